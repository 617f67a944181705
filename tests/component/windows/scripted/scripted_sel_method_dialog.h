#pragma once

#include "scripted/scripted_dialog.h"
#include "selmethod/core/selmethod_presenter.h"

namespace tnw {

class ScriptedScenario;
struct WizardContext;

// frmTNWSelMethod in the scripted test build: the method-selection presenter, loaded on
// creation, driven by the scenario's "selMethod" actions each time the dialog is shown.
class ScriptedSelMethodDialog : public ScriptedDialog {
 public:
  // A loaded selection dialog (loading sends its status text through events).
  ScriptedSelMethodDialog(std::string name, WizardContext& context,
                          selmethod::SelMethodEvents& events, UiServices& ui,
                          ScriptedScenario& scenario, MessageWindow& window,
                          const ScriptedTrace& trace);

 protected:
  // Activates the dialog and plays the next action: "Direct" or "TradeOffs" selects that item
  // and presses Next, "Next" presses Next as preselected, "Cancel" presses Cancel, "Help"
  // presses Help and goes on with the next action.
  void act() override;

 private:
  selmethod::SelMethodPresenter m_presenter;
  ScriptedScenario& m_scenario;
};

}  // namespace tnw
