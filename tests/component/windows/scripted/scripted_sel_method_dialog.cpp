#include "scripted/scripted_sel_method_dialog.h"

#include "scripted/scripted_dialogs.h"
#include "scripted/scripted_scenario.h"

// Std
#include <utility>

namespace tnw {

ScriptedSelMethodDialog::ScriptedSelMethodDialog(std::string name, WizardContext& context,
                                                 selmethod::SelMethodEvents& events, UiServices& ui,
                                                 ScriptedScenario& scenario, MessageWindow& window,
                                                 const ScriptedTrace& trace)
    : ScriptedDialog(std::move(name), {420, 330}, window, trace),
      m_presenter(context, ui, events),
      m_scenario(scenario) {
  m_presenter.Form_Load();
  this->trace("preselected " + std::to_string(m_presenter.selectedIndex()) + " " +
              m_presenter.selectedMethodName() + " " + m_presenter.description());
}

void ScriptedSelMethodDialog::act() {
  m_presenter.Form_Activate();
  const std::string action = m_scenario.nextSelMethodAction();
  if (action.empty()) return;
  trace("action " + action);
  if (action == "Direct" || action == "TradeOffs") {
    m_presenter.lstMethods_Click(action == "Direct" ? 0 : 1);
    m_presenter.cmdNext_Click();
  } else if (action == "Next") {
    m_presenter.cmdNext_Click();
  } else if (action == "Cancel") {
    m_presenter.cmdCancel_Click();
  } else if (action == "Help") {
    m_presenter.cmdHelp_Click();
    actLater();
  } else {
    trace("unknown action " + action);
  }
}

std::unique_ptr<WizardDialog> makeScriptedSelMethodDialog(
    std::string name, WizardContext& context, selmethod::SelMethodEvents& events, UiServices& ui,
    ScriptedScenario& scenario, MessageWindow& window, const ScriptedTrace& trace) {
  return std::make_unique<ScriptedSelMethodDialog>(std::move(name), context, events, ui, scenario,
                                                   window, trace);
}

}  // namespace tnw
