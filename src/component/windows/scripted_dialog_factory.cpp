#include "component/windows/scripted_dialog_factory.h"

#include "component/windows/message_window.h"
#include "component/windows/scripted_dialog.h"
#include "component/windows/scripted_dialogs.h"
#include "component/windows/scripted_scenario.h"
#include "component/windows/scripted_trace.h"

// Std
#include <utility>

namespace tnw {

ScriptedDialogFactory::ScriptedDialogFactory(ScriptedScenario& scenario, UiServices& ui,
                                             MessageWindow& window, const ScriptedTrace& trace)
    : m_scenario(scenario),
      m_ui(ui),
      m_window(window),
      m_trace(trace),
      m_self(std::make_shared<ScriptedDialogFactory*>(this)) {}

ScriptedDialogFactory::~ScriptedDialogFactory() { destroyReleased(); }

std::unique_ptr<WizardDialog> ScriptedDialogFactory::createSelMethod(WizardContext& context,
                                                                     SelMethodEvents& events) {
  return makeScriptedSelMethodDialog(nextName("frmTNWSelMethod"), context, events, m_ui, m_scenario,
                                     m_window, m_trace);
}

std::unique_ptr<WizardDialog> ScriptedDialogFactory::createDirectA(WizardContext& context,
                                                                   DirectAEvents& events) {
  return makeScriptedDirectDialog(nextName("frmDirectA"), context, events, m_ui, m_scenario,
                                  m_window, m_trace);
}

std::unique_ptr<WizardDialog> ScriptedDialogFactory::createTradeOffsA(WizardContext& context,
                                                                      TradeOffsAEvents& events) {
  return makeScriptedTradeOffsDialog(nextName("frmTradeOffsA"), context, events, m_ui, m_scenario,
                                     m_window, m_trace);
}

void ScriptedDialogFactory::release(std::unique_ptr<WizardDialog> dialog) {
  if (!dialog) return;
  if (auto* scripted = dynamic_cast<ScriptedDialog*>(dialog.get()))
    m_trace.write(scripted->name() + " released");
  m_released.push_back(std::move(dialog));
  std::weak_ptr<ScriptedDialogFactory*> self = m_self;
  // If the task cannot be queued the dialog waits for the next release or the factory's end.
  m_window.post([self] {
    if (const auto alive = self.lock()) (*alive)->destroyReleased();
  });
}

std::string ScriptedDialogFactory::nextName(const std::string& form) {
  return form + "#" + std::to_string(++m_created[form]);
}

void ScriptedDialogFactory::destroyReleased() {
  // Moved out first: a dialog's destructor must not see the list change under it.
  std::vector<std::unique_ptr<WizardDialog>> released = std::move(m_released);
  m_released.clear();
}

}  // namespace tnw
