#pragma once

#include "common/core/ui_services.h"
#include "component/core/wizard_component.h"
#include "wizard/core/wizard_dialog_factory.h"

// Std
#include <memory>

namespace tnw {

class MessageWindow;

// What the automation server builds each component object from: the dialogs, the UI services
// and the reader of the host's model file. TNWizard_MAVT.dll is linked with the Qt dialogs, the
// test server TNWizard_MAVT_Test.dll with scripted ones.
class DialogBackend {
 public:
  virtual ~DialogBackend() = default;

  // Makes and releases the component's dialogs.
  virtual WizardDialogFactory& factory() = 0;
  // Message boxes, beep, busy pointer, help and screen size.
  virtual UiServices& ui() = 0;
  // Reads the host's model file for GetCurFileData.
  virtual WizardComponent::ModelReader modelReader() = 0;
};

// The backend this DLL was built with, acting from window's message loop; null if none can be
// made. Defined by the backend's own source file.
std::unique_ptr<DialogBackend> makeDialogBackend(MessageWindow& window);

}  // namespace tnw
