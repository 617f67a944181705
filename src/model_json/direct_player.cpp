#include "model_json/direct_player.h"

#include "common/recording_ui_services.h"
#include "component/wizard_context.h"
#include "direct/direct_a_presenter.h"

// Std
#include <stdexcept>

namespace tnw {
namespace {

using nlohmann::json;
using nlohmann::ordered_json;
using namespace tnw::direct;
using Box = direct::JudgmentPage::Box;

// A scenario that cannot be run as written; what() says why.
struct ScenarioError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The host side of the run: keeps the export and ignores the rest.
struct ExportCatcher : direct::DirectAEvents {
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

// Message texts shown since `from`, as a JSON array.
ordered_json messagesSince(const RecordingUiServices& ui, std::size_t from) {
  ordered_json texts = ordered_json::array();
  for (std::size_t i = from; i < ui.messages().size(); ++i) texts.push_back(ui.messages()[i].text);
  return texts;
}

void noteMessagesSince(const RecordingUiServices& ui, std::size_t from,
                       std::vector<std::string>& notes) {
  for (std::size_t i = from; i < ui.messages().size(); ++i) notes.push_back(ui.messages()[i].text);
}

void applyOrder(direct::DirectAPresenter& p, const std::vector<int>& order, int n) {
  if (static_cast<int>(order.size()) != n) {
    throw ScenarioError("\"order\" needs one group number per attribute");
  }
  for (int j = 0; j < n; ++j) {
    const int g = order[static_cast<std::size_t>(j)];
    if (g < 1 || g > n) throw ScenarioError("group numbers run from 1 to the attribute count");
    while (p.ordering().order().GroupCount() < g) p.cmdAdd_Click();
    const bool placed = p.ordering().order().AttGroup(j) != 0;
    p.picOrder_DragDrop(g, (placed ? "B" : "A") + std::to_string(j));
  }
}

void chooseOrderAndReference(direct::DirectAPresenter& p, const DirectScenario& scenario, int n) {
  if (scenario.order) {
    applyOrder(p, *scenario.order, n);
  } else if (!p.resuming()) {
    throw ScenarioError("\"order\" is needed when the model holds no earlier result");
  }
  p.cmdNext_Click();
  if (p.WizardStep() != 1) throw ScenarioError("the order does not place every attribute");
  if (scenario.reference) {
    const int r = *scenario.reference;
    if (r < 0 || r >= n) throw ScenarioError("\"reference\" is not an attribute index");
    p.cmdAttButtons_Click(r);
  } else if (!p.resuming()) {
    throw ScenarioError("\"reference\" is needed when the model holds no earlier result");
  }
  p.cmdNext_Click();
}

// Types `text` into a ratio box as a user does: the old text selected and deleted, then every
// character through the box's key filter.
void typeText(direct::DirectAPresenter& p, Box box, const std::string& text) {
  p.txtWR_SetText(box, "");
  for (const unsigned char c : text) {
    const wizard::TextBoxState& shown = p.judgment().box(box);
    p.txtWR_KeyPress(box, shown.selStart, shown.selLength, c);
  }
}

// One judgment step as DESIGN.md describes it; returns whether Enter recorded it.
bool judge(direct::DirectAPresenter& p, const RecordingUiServices& ui, const ScenarioStep& step) {
  const std::size_t before = ui.messages().size();
  const int target = step.target;
  p.imgcmbTargetAtt_Click(target);
  if (p.judgment().targets().currentTarget() != target || ui.messages().size() != before) {
    return false;
  }
  typeText(p, Box::Lower, step.lower);
  typeText(p, Box::Upper, step.upper);
  p.txtWR_LostFocus(Box::Lower);
  if (ui.messages().size() != before) return false;
  p.txtWR_LostFocus(Box::Upper);
  if (ui.messages().size() != before) return false;
  if (!p.cmdEnter().enabled) return false;
  return p.cmdEnter_Click();
}

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

ordered_json runStep(direct::DirectAPresenter& p, const RecordingUiServices& ui,
                     const ScenarioStep& step) {
  const std::size_t before = ui.messages().size();
  bool recorded = false;
  if (step.restart) {
    p.cmdReStart_Click();
  } else {
    recorded = judge(p, ui, step);
  }
  return ordered_json{{"messages", messagesSince(ui, before)},
                      {"lowerText", p.judgment().box(Box::Lower).text},
                      {"upperText", p.judgment().box(Box::Upper).text},
                      {"status", statusName(p.lamps().state())},
                      {"recorded", recorded},
                      {"diagnosis", diagnosisJson(p.judgment().diagnosis())}};
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
ordered_json exactBounds(const direct::DirectAPresenter& p) {
  if (p.WizardStep() != 3) return ordered_json::array();
  const auto& r = p.exactBounds();
  if (r.outcome != direct::ExactWeightBounds::Outcome::Computed) return nullptr;
  ordered_json bounds = ordered_json::array();
  for (const auto& b : r.bounds) bounds.push_back(ordered_json{{"low", b.low}, {"high", b.high}});
  return bounds;
}

// Why the results step shows no exact weight ranges; null when it shows them (or is not reached).
ordered_json exactBoundsError(const WizardContext& c, const direct::DirectAPresenter& p) {
  if (p.WizardStep() != 3) return nullptr;
  const std::string text = direct::ExactWeightBounds::message(c.model, p.exactBounds());
  return text.empty() ? ordered_json(nullptr) : ordered_json(text);
}

ordered_json result(const WizardContext& c, const direct::DirectAPresenter& p, ordered_json steps,
                    const ordered_json& exported) {
  const auto& judged = p.judgment().judgments().judgedFlags();
  const direct::DirectResult& r = p.result();
  return ordered_json{{"finalGroupCount", r.FinalGroupCount},
                      {"finalAttGroup", r.FinalAttGroup},
                      {"refAtt", r.RefAtt},
                      {"steps", std::move(steps)},
                      {"lower", r.LowerWeights},
                      {"middle", r.CloseWeights},
                      {"upper", r.UpperWeights},
                      {"judged", std::vector<bool>(judged.begin(), judged.end())},
                      {"complete", p.judgment().judgments().isComplete()},
                      {"grid", p.WizardStep() == 3 ? gridRows(p.grid()) : ordered_json::array()},
                      {"export", exported},
                      {"exactBounds", exactBounds(p)},
                      {"exactBoundsError", exactBoundsError(c, p)}};
}

ordered_json runScenario(WizardContext& context, RecordingUiServices& ui,
                         const DirectScenario& scenario, std::vector<std::string>& notes) {
  ExportCatcher events;
  direct::DirectAPresenter p(context, ui, events);
  p.Form_Load();
  if (!p.usable()) throw ScenarioError(ui.messages().back().text);
  const int n = p.ordering().order().numAtt();
  try {
    chooseOrderAndReference(p, scenario, n);
  } catch (const ScenarioError&) {
    noteMessagesSince(ui, 0, notes);  // for instance why an earlier result could not be resumed
    throw;
  }
  noteMessagesSince(ui, 0, notes);
  if (p.resuming() && scenario.reference && *scenario.reference != p.result().RefAtt) {
    notes.push_back("The earlier result's reference attribute " +
                    std::to_string(p.result().RefAtt) + " is used, as in the dialog.");
  }
  ordered_json steps = ordered_json::array();
  for (const ScenarioStep& step : scenario.steps) steps.push_back(runStep(p, ui, step));
  const std::size_t before = ui.messages().size();
  p.cmdNext_Click();
  p.cmdFinish_Click();
  noteMessagesSince(ui, before, notes);
  return result(context, p, std::move(steps), events.exported);
}

}  // namespace

DirectPlayResult playDirectScenario(WizardContext& context, RecordingUiServices& ui,
                                    const DirectScenario& scenario) {
  DirectPlayResult out;
  try {
    out.output = runScenario(context, ui, scenario, out.notes);
  } catch (const ScenarioError& e) {
    out.output = nullptr;
    out.error = e.what();
  }
  return out;
}

}  // namespace tnw
