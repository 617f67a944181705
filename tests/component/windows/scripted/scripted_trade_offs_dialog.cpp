#include "scripted/scripted_trade_offs_dialog.h"

#include "common/number_format.h"
#include "component/wizard_context.h"
#include "scripted/scripted_dialogs.h"
#include "scripted/scripted_scenario.h"
#include "tradeoffs/trade_offs_a_events.h"

// Std
#include <cstdio>
#include <utility>

namespace tnw {

namespace {

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

ScriptedTradeOffsDialog::ScriptedTradeOffsDialog(std::string name, WizardContext& context,
                                                 tradeoffs::TradeOffsAEvents& events,
                                                 UiServices& ui, ScriptedScenario& scenario,
                                                 MessageWindow& window, const ScriptedTrace& trace)
    : ScriptedDialog(std::move(name), {780, 580}, window, trace),
      m_context(context),
      m_events(events),
      m_presenter(context, ui, *this, m_random),
      m_run(scenario.nextTradeOffsRun()) {
  m_presenter.Form_Load();
  this->trace("instruction \"" + m_presenter.lblInstruction().caption + "\"");
}

void ScriptedTradeOffsDialog::act() {
  if (m_played || !m_run.is_object()) return;
  m_played = true;
  try {
    const auto judgments = m_run.value("judgments", nlohmann::json::array());
    if (!judgments.empty()) m_presenter.optPCManual_Click();
    for (const nlohmann::json& judgment : judgments) judge(judgment);
    const std::string how = m_run.value("end", std::string("Finish"));
    if (how == "Cancel") {
      m_presenter.cmdCancel_Click();
    } else if (how == "Back") {
      m_presenter.cmdBack_Click();
    } else {
      finish();
    }
  } catch (const nlohmann::json::exception& error) {
    trace(std::string("scenario error: ") + error.what());
  }
}

void ScriptedTradeOffsDialog::ExportTradeOffsW(const std::string& TNType,
                                               std::vector<double>& Weights,
                                               std::vector<double>& WeightsH,
                                               std::vector<double>& WeightsL) {
  m_events.ExportTradeOffsW(TNType, Weights, WeightsH, WeightsL);
  trace("exported arrays after the host's handler: Weights" + numbers(Weights) + " WeightsH" +
        numbers(WeightsH) + " WeightsL" + numbers(WeightsL));
}

void ScriptedTradeOffsDialog::SendMasseges(const std::string& Msg) { m_events.SendMasseges(Msg); }

void ScriptedTradeOffsDialog::ShowTNWSelMethod() { m_events.ShowTNWSelMethod(); }

void ScriptedTradeOffsDialog::UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) {
  m_events.UnloadTNWizard(fIndex, WeightsDone);
}

void ScriptedTradeOffsDialog::judge(const nlohmann::json& judgment) {
  const int first = judgment.at("first").get<int>();
  const int second = judgment.at("second").get<int>();
  if (!choosePair(first, second)) {
    trace("pair " + std::to_string(first) + "," + std::to_string(second) + " refused");
    return;
  }
  const auto& scores = judgment.at("scores");
  // Boxes in the order A first, A second, B first, B second.
  const double boxes[4] = {scores.at(0).get<double>(), scores.at(2).get<double>(),
                           scores.at(1).get<double>(), scores.at(3).get<double>()};
  for (int i = 0; i < 4; ++i) m_presenter.setScoreText(i, generalText(boxes[i]));
  const int response = judgment.value("response", 0);
  if (response == 0) {
    m_presenter.tsComparisonApproaches_Click(1);
  } else {
    m_presenter.tsComparisonApproaches_Click(2);
    m_presenter.optPCVerbal_Click(response + 3);
  }
  m_presenter.cmdTradeOffEnter_Click();
  trace("judged " + std::to_string(first) + "," + std::to_string(second));
}

bool ScriptedTradeOffsDialog::choosePair(int first, int second) {
  tradeoffs::JudgmentPage& page = m_presenter.judgmentPage();
  // An exchange of the two attributes goes through a third one, as the lists refuse to hold
  // the same attribute twice.
  if (first == page.SecondAttIndex() && second == page.FirstAttIndex()) {
    for (int t = 0; t < m_context.model.attributeCount(); ++t) {
      if (t != first && t != second) {
        m_presenter.lstTradeOffFirstC_Click(t);
        break;
      }
    }
  }
  if (first == page.SecondAttIndex()) {
    m_presenter.lstTradeOffSecondC_Click(second);
    m_presenter.lstTradeOffFirstC_Click(first);
  } else {
    m_presenter.lstTradeOffFirstC_Click(first);
    m_presenter.lstTradeOffSecondC_Click(second);
  }
  return page.FirstAttIndex() == first && page.SecondAttIndex() == second;
}

void ScriptedTradeOffsDialog::finish() {
  m_presenter.cmdNext_Click();
  trace("step " + std::to_string(m_presenter.step()) + ", comment \"" +
        m_presenter.weights().RegressionComment + "\", Finish " +
        (m_presenter.cmdFinish().enabled ? "enabled" : "disabled"));
  m_presenter.cmdFinish_Click();
}

std::unique_ptr<WizardDialog> makeScriptedTradeOffsDialog(
    std::string name, WizardContext& context, tradeoffs::TradeOffsAEvents& events, UiServices& ui,
    ScriptedScenario& scenario, MessageWindow& window, const ScriptedTrace& trace) {
  return std::make_unique<ScriptedTradeOffsDialog>(std::move(name), context, events, ui, scenario,
                                                   window, trace);
}

}  // namespace tnw
