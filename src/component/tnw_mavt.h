#pragma once

#include "common/core/ui_services.h"
#include "component/core/tnw_mavt_events.h"
#include "tnwizard_mavt_export.h"

// Std
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tnw {

struct WizardContext;

// TNW_MAVT: the weight-elicitation wizard as a host embeds it (link TNWizard::mavt).
//
// Calling order (all on the thread that runs the QApplication):
//   1. Create one TNW_MAVT per model and give it your listener with setEvents().
//   2. GetCurFileData(NorixDir, FileIndex, PathAndFileName): stores the three values and reads
//      the model file (a file that cannot be opened is reported once in a message box titled
//      "NORIX"). Call it before ShowTNWizard; it reads the file every time it is called.
//   3. ShowTNWizard(): shows the method-selection dialog, modeless. The call returns at once;
//      the wizard runs in your event loop. A second call only makes it visible again.
//   4. Handle the events (see TnwMavtEvents): status texts, the exported weights, and finally
//      UnloadTNWizard(fIndex, WeightsDone) when the user presses Finish or Cancel.
//   5. UnloadTNWizard(): hides and releases every dialog (destroyed once control is back in the
//      event loop). Call it when the UnloadTNWizard event arrives, from inside the handler if
//      you like. A later ShowTNWizard starts afresh with a new selection dialog.
// The object may be destroyed at any time, also from inside one of its event handlers; it then
// sends no more events, and its dialogs go once control is back in the event loop.
//
// Modality: the method-selection dialog is modeless. The two method dialogs are application-
// modal while they are shown: they block input to every other window of the process, the
// host's own windows included, as a modal dialog of the host would. The dialogs have no owner
// window (the host hands none over), so a window-modal show would block nothing. The modal show
// never runs a nested event loop: ShowTNWizard and the events return at once, and the wizard
// goes on in the host's event loop.
class TNWIZARD_MAVT_EXPORT TNW_MAVT {
 public:
  // Opens a help file at a context number.
  using HelpHandler = std::function<void(const std::string& helpFile, int context)>;

  // A wizard that shows its messages, pointer and help with Qt.
  TNW_MAVT();
  // A wizard that shows its messages, beep, pointer and help through the host's services;
  // ui must outlive the object.
  explicit TNW_MAVT(UiServices& ui);
  // Releases the dialogs that still exist (later, when called from inside one of its events).
  ~TNW_MAVT();
  TNW_MAVT(const TNW_MAVT&) = delete;
  TNW_MAVT& operator=(const TNW_MAVT&) = delete;

  // Sets the listener that receives the four events; null drops them.
  void setEvents(TnwMavtEvents* events);
  // Installs the handler for the Help buttons (help file NorixDir + "\NORIX.HLP", context
  // 4005025); without one WinHelp opens the file on Windows, and elsewhere the user is told which
  // file and topic would open. It has no effect on an object made with the host's own
  // UiServices: their showHelp then handles help.
  void setHelpHandler(HelpHandler handler);

  // Stores the host's directory, file index and model path, and reads the model file. The text
  // kept for NorixDir (the host's help files lie there) is context().NorixDir.
  void GetCurFileData(const std::string& NorixDir, std::int16_t FileIndex,
                      const std::string& PathAndFileName);
  // Shows the wizard (the method-selection dialog).
  void ShowTNWizard();
  // Hides and releases every dialog of the wizard.
  void UnloadTNWizard();

  // The data the wizard shares between its dialogs (the model read, the results).
  const WizardContext& context() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> m_impl;
};

}  // namespace tnw
