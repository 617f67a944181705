#include "scripted/scripted_direct_dialog.h"

#include "scripted/scripted_dialogs.h"
#include "scripted/scripted_scenario.h"

// Std
#include <cstdio>
#include <utility>

namespace tnw {

namespace {

using Box = direct::JudgmentPage::Box;

std::string boxText(const nlohmann::json& step, const char* key) {
  if (!step.contains(key)) return {};
  const nlohmann::json& value = step[key];
  return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string numbers(const std::vector<double>& values) {
  std::string text;
  for (double value : values) {
    char buffer[32];
    std::snprintf(buffer, sizeof(buffer), " %.6f", value);
    text += buffer;
  }
  return text;
}

}  // namespace

ScriptedDirectDialog::ScriptedDirectDialog(std::string name, WizardContext& context,
                                           direct::DirectAEvents& events, UiServices& ui,
                                           ScriptedScenario& scenario, MessageWindow& window,
                                           const ScriptedTrace& trace)
    : ScriptedDialog(std::move(name), {760, 560}, window, trace),
      m_presenter(context, ui, events),
      m_run(scenario.nextDirectRun()) {
  m_presenter.Form_Load();
  this->trace("caption \"" + m_presenter.caption() + "\"");
}

void ScriptedDirectDialog::act() {
  if (m_played || !m_run.is_object()) return;
  m_played = true;
  try {
    // A run with only an "end" leaves the dialog on its first step.
    if (m_run.contains("order") || m_run.contains("reference") || m_run.contains("steps")) {
      if (m_run.contains("order")) placeOrder(m_run["order"]);
      chooseReference(m_run);
      for (const nlohmann::json& step : m_run.value("steps", nlohmann::json::array())) judge(step);
    }
    end(m_run.value("end", std::string("Finish")));
  } catch (const nlohmann::json::exception& error) {
    trace(std::string("scenario error: ") + error.what());
  }
}

void ScriptedDirectDialog::placeOrder(const nlohmann::json& order) {
  const int n = m_presenter.ordering().order().numAtt();
  for (int j = 0; j < n && j < int(order.size()); ++j) {
    const int group = order[std::size_t(j)].get<int>();
    if (group < 1 || group > n) continue;
    while (m_presenter.ordering().order().GroupCount() < group) m_presenter.cmdAdd_Click();
    const bool placed = m_presenter.ordering().order().AttGroup(j) != 0;
    m_presenter.picOrder_DragDrop(group, (placed ? "B" : "A") + std::to_string(j));
  }
  trace("order placed, Next " +
        std::string(m_presenter.cmdNext().enabled ? "enabled" : "disabled"));
}

void ScriptedDirectDialog::chooseReference(const nlohmann::json& run) {
  m_presenter.cmdNext_Click();
  if (run.contains("reference")) m_presenter.cmdAttButtons_Click(run["reference"].get<int>());
  m_presenter.cmdNext_Click();
  trace("step " + std::to_string(m_presenter.WizardStep()) + " \"" + m_presenter.caption() + "\"");
}

void ScriptedDirectDialog::judge(const nlohmann::json& step) {
  if (step.value("restart", false)) {
    m_presenter.cmdReStart_Click();
    trace("restart");
    return;
  }
  const int target = step.value("target", -1);
  m_presenter.imgcmbTargetAtt_Click(target);
  m_presenter.txtWR_SetText(Box::Lower, boxText(step, "lower"));
  m_presenter.txtWR_SetText(Box::Upper, boxText(step, "upper"));
  m_presenter.txtWR_LostFocus(Box::Lower);
  m_presenter.txtWR_LostFocus(Box::Upper);
  const bool recorded = m_presenter.cmdEnter().enabled && m_presenter.cmdEnter_Click();
  trace("judged target " + std::to_string(target) + (recorded ? " recorded" : " not recorded"));
}

void ScriptedDirectDialog::end(const std::string& how) {
  if (how == "Cancel") {
    m_presenter.cmdCancel_Click();
  } else if (how == "Back") {
    while (m_presenter.WizardStep() > 0) m_presenter.cmdBack_Click();
    m_presenter.cmdBack_Click();
  } else {
    m_presenter.cmdNext_Click();
    trace("step " + std::to_string(m_presenter.WizardStep()) + ", Finish " +
          (m_presenter.cmdFinish().enabled ? "enabled" : "disabled"));
    m_presenter.cmdFinish_Click();
    trace("exported arrays after the host's handler:" + arraysText());
  }
}

std::string ScriptedDirectDialog::arraysText() const {
  const direct::DirectExport::Weights& exported = m_presenter.exported();
  return " Weights" + numbers(exported.Weights) + " WeightsH" + numbers(exported.WeightsH) +
         " WeightsL" + numbers(exported.WeightsL);
}

std::unique_ptr<WizardDialog> makeScriptedDirectDialog(std::string name, WizardContext& context,
                                                       direct::DirectAEvents& events,
                                                       UiServices& ui, ScriptedScenario& scenario,
                                                       MessageWindow& window,
                                                       const ScriptedTrace& trace) {
  return std::make_unique<ScriptedDirectDialog>(std::move(name), context, events, ui, scenario,
                                                window, trace);
}

}  // namespace tnw
