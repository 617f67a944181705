#pragma once

#include "component/windows/dialog_backend.h"
#include "scripted/scripted_dialog_factory.h"
#include "scripted/scripted_scenario.h"
#include "scripted/scripted_trace.h"
#include "scripted/scripted_ui_services.h"

namespace tnw {

// The dialog backend of the test build of the server: scripted dialogs that play the JSON
// scenario of TNW_SCRIPTED_SCENARIO through the presenters, UI services that only trace, and
// the model file reader of every host.
class ScriptedDialogBackend : public DialogBackend {
 public:
  // A backend whose dialogs act from window's message loop.
  explicit ScriptedDialogBackend(MessageWindow& window);

  // The scripted dialogs.
  WizardDialogFactory& factory() override { return m_factory; }
  // The tracing UI services.
  UiServices& ui() override { return m_ui; }
  // OpenRelatedFileForTNW.
  WizardComponent::ModelReader modelReader() override;

 private:
  ScriptedTrace m_trace;
  ScriptedUiServices m_ui;
  ScriptedScenario m_scenario;
  ScriptedDialogFactory m_factory;
};

}  // namespace tnw
