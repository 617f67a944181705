#include "model_json/direct_player.h"

#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"
#include "direct/core/scenario_player.h"

// Std
#include <utility>

namespace tnw {
namespace {

using namespace tnw::direct;
using nlohmann::ordered_json;

// The host side of the run: keeps the export and ignores the rest.
struct ExportCatcher : DirectAEvents {
  void ExportDirectAW(const std::string&, std::int16_t, std::vector<double>& weights,
                      std::vector<double>& weightsH, std::vector<double>& weightsL) override {
    exported = ordered_json{{"weights", weights}, {"weightsH", weightsH}, {"weightsL", weightsL}};
  }
  void SendMasseges(const std::string&) override {}
  void ShowTNWSelMethod() override {}
  void UnloadDirectA() override {}
  void UnloadTNWizard(std::int16_t, bool) override {}

  ordered_json exported = nullptr;
};

// The lit status lamp; null while none is lit (after a failed check, a refused target or a
// restart).
ordered_json statusName(JudgmentState state) {
  switch (state) {
    case JudgmentState::Consistent:
      return "consistent";
    case JudgmentState::Inconsistent:
      return "inconsistent";
    case JudgmentState::Invalid:
      return "invalid";
    default:
      return nullptr;
  }
}

// Why the lit lamp is "Inconsistent" or "Invalid"; null while neither is lit.
ordered_json diagnosisJson(const JudgmentDiagnosis::Result& d) {
  if (d.text.empty()) return nullptr;
  const auto attribute = [](int i) { return i >= 0 ? ordered_json(i) : ordered_json(nullptr); };
  ordered_json nearest = nullptr;
  if (d.nearestLower && d.nearestUpper) {
    nearest = ordered_json{{"lower", *d.nearestLower}, {"upper", *d.nearestUpper}};
  }
  return ordered_json{{"bound", JudgmentDiagnosis::boundName(d.bound)},
                      {"lowerLimitAttribute", attribute(d.lowerLimitAttribute)},
                      {"upperLimitAttribute", attribute(d.upperLimitAttribute)},
                      {"nearest", nearest},
                      {"text", d.text}};
}

ordered_json stepJson(const direct::PlayedStep& step) {
  return ordered_json{{"messages", step.messages},   {"lowerText", step.lowerText},
                      {"upperText", step.upperText}, {"status", statusName(step.status)},
                      {"recorded", step.recorded},   {"diagnosis", diagnosisJson(step.diagnosis)}};
}

ordered_json gridRows(const ResultsGrid& grid) {
  ordered_json rows = ordered_json::array();
  for (int r = 1; r < grid.rows(); ++r) {
    rows.push_back(ordered_json{{"id", grid.cell(r, 0)},
                                {"name", grid.cell(r, 1)},
                                {"symbol", grid.cell(r, 2)},
                                {"middle", grid.cell(r, 3)},
                                {"range", grid.cell(r, 4)}});
  }
  return rows;
}

// The exact weight ranges of the results step: [] before it, null when they cannot be computed.
ordered_json exactBounds(const direct::ScenarioOutcome& o) {
  if (o.step != 3) return ordered_json::array();
  if (o.exactBounds.outcome != ExactWeightBounds::Outcome::Computed) return nullptr;
  ordered_json bounds = ordered_json::array();
  for (const auto& b : o.exactBounds.bounds) {
    bounds.push_back(ordered_json{{"low", b.low}, {"high", b.high}});
  }
  return bounds;
}

// Why the results step shows no exact weight ranges; null when it shows them (or is not reached).
ordered_json exactBoundsError(const WizardContext& c, const direct::ScenarioOutcome& o) {
  if (o.step != 3) return nullptr;
  const std::string text = ExactWeightBounds::message(c.model, o.exactBounds);
  return text.empty() ? ordered_json(nullptr) : ordered_json(text);
}

ordered_json result(const WizardContext& c, const direct::ScenarioOutcome& o,
                    const direct::PlayedScenario& played, const ordered_json& exported) {
  ordered_json steps = ordered_json::array();
  for (const direct::PlayedStep& step : played.steps) steps.push_back(stepJson(step));
  return ordered_json{{"finalGroupCount", o.finalGroupCount},
                      {"finalAttGroup", o.finalAttGroup},
                      {"refAtt", o.refAtt},
                      {"steps", std::move(steps)},
                      {"lower", o.lower},
                      {"middle", o.middle},
                      {"upper", o.upper},
                      {"judged", o.judged},
                      {"complete", o.complete},
                      {"grid", o.step == 3 ? gridRows(o.grid) : ordered_json::array()},
                      {"export", exported},
                      {"exactBounds", exactBounds(o)},
                      {"exactBoundsError", exactBoundsError(c, o)}};
}

// The run's notes: the messages shown before the run and on the way, and how it was taken.
void takeNotes(const std::vector<std::string>& before, const direct::PlayedScenario& played,
               std::vector<std::string>& notes) {
  notes = before;
  notes.insert(notes.end(), played.entryMessages.begin(), played.entryMessages.end());
  if (played.error) return;
  if (played.keptReference) {
    notes.push_back("The earlier result's reference attribute " +
                    std::to_string(*played.keptReference) + " is used, as in the dialog.");
  }
  notes.insert(notes.end(), played.endMessages.begin(), played.endMessages.end());
}

}  // namespace

DirectPlayResult playDirectScenario(WizardContext& context, RecordingUiServices& ui,
                                    const direct::DirectScenario& scenario) {
  std::vector<std::string> before;
  for (const auto& m : ui.messages()) before.push_back(m.text);
  ExportCatcher events;
  direct::ScenarioPlayer player(context, ui, events);
  player.load();
  const direct::PlayedScenario played = player.play(scenario);
  DirectPlayResult out;
  // A dialog that cannot weigh the model says why in its last message, and nothing is noted.
  if (!played.usable) {
    out.error = played.error;
    return out;
  }
  takeNotes(before, played, out.notes);
  if (played.error) {
    out.error = played.error;
    return out;
  }
  out.output = result(context, player.outcome(), played, events.exported);
  return out;
}

}  // namespace tnw
