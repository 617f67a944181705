#include "scripted/scripted_trade_offs_dialog.h"

#include "wizard/core/wizard_context.h"
#include "model_json/judgments_json.h"
#include "scripted/scripted_dialogs.h"
#include "tradeoffs/core/tradeoffs_a_events.h"

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
                                                 tradeoffs::TradeOffsAEvents& events, UiServices& ui,
                                                 ScriptedScenario& scenario, MessageWindow& window,
                                                 const ScriptedTrace& trace)
    : ScriptedDialog(std::move(name), {780, 580}, window, trace),
      m_context(context),
      m_events(events),
      m_player(context, ui, *this, m_random),
      m_run(scenario.nextTradeOffsRun()) {
  m_player.load();
  this->trace("instruction \"" + m_player.instruction() + "\"");
}

void ScriptedTradeOffsDialog::act() {
  if (m_played || m_run.value.is_null()) return;
  m_played = true;
  tradeoffs::TradeOffScenario run;
  const int numAtt = m_context.model.attributeCount();
  if (const auto error = readTradeOffScenario(m_run.value, m_run.pointer, numAtt, run)) {
    trace("scenario error: " + error->text());
    return;
  }
  m_player.play(run, *this);
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

void ScriptedTradeOffsDialog::judgmentEntered(const tradeoffs::TradeOffJudgment& judgment, bool entered) {
  const std::string pair = std::to_string(judgment.first) + "," + std::to_string(judgment.second);
  trace(entered ? "judged " + pair : "pair " + pair + " refused");
}

void ScriptedTradeOffsDialog::finishing(int step, const std::string& comment, bool finishEnabled) {
  trace("step " + std::to_string(step) + ", comment \"" + comment + "\", Finish " +
        (finishEnabled ? "enabled" : "disabled"));
}

std::unique_ptr<WizardDialog> makeScriptedTradeOffsDialog(std::string name, WizardContext& context,
                                                          tradeoffs::TradeOffsAEvents& events, UiServices& ui,
                                                          ScriptedScenario& scenario,
                                                          MessageWindow& window,
                                                          const ScriptedTrace& trace) {
  return std::make_unique<ScriptedTradeOffsDialog>(std::move(name), context, events, ui, scenario,
                                                   window, trace);
}

}  // namespace tnw
