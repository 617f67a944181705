#include "scripted/scripted_dialog_factory.h"

#include "component/windows/message_window.h"
#include "scripted/scripted_dialog.h"
#include "scripted/scripted_dialogs.h"
#include "scripted/scripted_scenario.h"
#include "scripted/scripted_trace.h"

// Std
#include <stdexcept>
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

std::unique_ptr<WizardDialog> ScriptedDialogFactory::createSelMethod(
    WizardContext& context, selmethod::SelMethodEvents& events) {
  // A selection dialog with nothing to play would wait for ever; the host gets an error instead.
  if (!m_scenario.given())
    throw std::runtime_error("No scenario: TNW_SCRIPTED_SCENARIO names none, so nothing is shown.");
  reserveRelease();
  return makeScriptedSelMethodDialog(nextName("frmTNWSelMethod"), context, events, m_ui, m_scenario,
                                     m_window, m_trace);
}

std::unique_ptr<WizardDialog> ScriptedDialogFactory::createDirectA(WizardContext& context,
                                                                   direct::DirectAEvents& events) {
  reserveRelease();
  return makeScriptedDirectDialog(nextName("frmDirectA"), context, events, m_ui, m_scenario,
                                  m_window, m_trace);
}

std::unique_ptr<WizardDialog> ScriptedDialogFactory::createTradeOffsA(
    WizardContext& context, tradeoffs::TradeOffsAEvents& events) {
  reserveRelease();
  return makeScriptedTradeOffsDialog(nextName("frmTradeOffsA"), context, events, m_ui, m_scenario,
                                     m_window, m_trace);
}

void ScriptedDialogFactory::release(std::unique_ptr<WizardDialog> dialog) noexcept {
  if (!dialog) return;
  if (m_outstanding > 0) --m_outstanding;
  try {
    if (auto* scripted = dynamic_cast<ScriptedDialog*>(dialog.get()))
      m_trace.write(scripted->name() + " released");
  } catch (...) {
  }
  // Room was reserved when the dialog was made, so this does not allocate.
  m_released.push_back(std::move(dialog));
  // If the task cannot be queued the dialog waits for the next release or the factory's end.
  try {
    std::weak_ptr<ScriptedDialogFactory*> self = m_self;
    m_window.post([self] {
      if (const auto alive = self.lock()) (*alive)->destroyReleased();
    });
  } catch (...) {
  }
}

void ScriptedDialogFactory::reserveRelease() {
  m_released.reserve(m_released.size() + m_outstanding + 1);
  ++m_outstanding;
}

std::string ScriptedDialogFactory::nextName(const std::string& form) {
  return form + "#" + std::to_string(++m_created[form]);
}

void ScriptedDialogFactory::destroyReleased() noexcept {
  // One at a time, each out of the list before it goes: a dialog's destructor must not see the
  // list change under it, and the list keeps the room reserved for later releases.
  while (!m_released.empty()) {
    std::unique_ptr<WizardDialog> dialog = std::move(m_released.front());
    m_released.erase(m_released.begin());
    dialog.reset();
  }
}

}  // namespace tnw
