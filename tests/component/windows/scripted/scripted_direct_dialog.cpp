#include "scripted/scripted_direct_dialog.h"

#include "model_json/scenario_json.h"
#include "scripted/scripted_dialogs.h"

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

ScriptedDirectDialog::ScriptedDirectDialog(std::string name, WizardContext& context,
                                           direct::DirectAEvents& events, UiServices& ui,
                                           ScriptedScenario& scenario, MessageWindow& window,
                                           const ScriptedTrace& trace)
    : ScriptedDialog(std::move(name), {760, 560}, window, trace),
      m_player(context, ui, events),
      m_run(scenario.nextDirectRun()) {
  m_player.load();
  this->trace("caption \"" + m_player.caption() + "\"");
}

void ScriptedDirectDialog::act() {
  if (m_played || m_run.value.is_null()) return;
  m_played = true;
  direct::DirectScenario run;
  if (const auto error = readDirectScenario(m_run.value, m_run.pointer, run)) {
    trace("scenario error: " + error->text());
    return;
  }
  run.entry = direct::TextEntry::Set;
  const direct::PlayedScenario played = m_player.play(run, *this);
  if (played.error) {
    trace("scenario error: " + *played.error);
  } else if (run.end == direct::ScenarioEnd::Finish) {
    trace("exported arrays after the host's handler:" + arraysText());
  }
}

void ScriptedDirectDialog::orderPlaced(bool nextEnabled) {
  trace("order placed, Next " + std::string(nextEnabled ? "enabled" : "disabled"));
}

void ScriptedDirectDialog::referenceChosen(int step, const std::string& caption) {
  trace("step " + std::to_string(step) + " \"" + caption + "\"");
}

void ScriptedDirectDialog::stepPlayed(const direct::ScenarioStep& step,
                                      const direct::PlayedStep& played) {
  if (step.restart) {
    trace("restart");
    return;
  }
  trace("judged target " + std::to_string(step.target) +
        (played.recorded ? " recorded" : " not recorded"));
}

void ScriptedDirectDialog::finishing(int step, bool finishEnabled) {
  trace("step " + std::to_string(step) + ", Finish " + (finishEnabled ? "enabled" : "disabled"));
}

std::string ScriptedDirectDialog::arraysText() const {
  const direct::DirectExport::Weights& exported = m_player.exported();
  return " Weights" + numbers(exported.Weights) + " WeightsH" + numbers(exported.WeightsH) +
         " WeightsL" + numbers(exported.WeightsL);
}

std::unique_ptr<WizardDialog> makeScriptedDirectDialog(std::string name, WizardContext& context,
                                                       direct::DirectAEvents& events, UiServices& ui,
                                                       ScriptedScenario& scenario,
                                                       MessageWindow& window,
                                                       const ScriptedTrace& trace) {
  return std::make_unique<ScriptedDirectDialog>(std::move(name), context, events, ui, scenario,
                                                window, trace);
}

}  // namespace tnw
