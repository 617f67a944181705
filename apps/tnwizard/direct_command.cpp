// tnwizard direct MODEL SCENARIO.json: the direct method run headless through the presenter the
// dialog uses.

#include "commands.h"
#include "common/recording_ui_services.h"
#include "direct/direct_a_presenter.h"
#include "model/model_file_reader.h"

// JSON
#include <nlohmann/json.hpp>

// Std
#include <cstdio>
#include <fstream>
#include <iostream>
#include <stdexcept>

namespace {

using nlohmann::json;
using nlohmann::ordered_json;
using Box = tnw::JudgmentPage::Box;

constexpr const char* kCannotAccess = "There are problems in accessing the relevant data.";

// A scenario that cannot be run as written; what() says why.
struct ScenarioError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The host side of the run: keeps the export and ignores the rest.
struct ExportCatcher : tnw::DirectAEvents {
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
ordered_json messagesSince(const tnw::RecordingUiServices& ui, std::size_t from) {
  ordered_json texts = ordered_json::array();
  for (std::size_t i = from; i < ui.messages().size(); ++i) texts.push_back(ui.messages()[i].text);
  return texts;
}

void printMessagesSince(const tnw::RecordingUiServices& ui, std::size_t from) {
  for (std::size_t i = from; i < ui.messages().size(); ++i) {
    std::fprintf(stderr, "%s\n", ui.messages()[i].text.c_str());
  }
}

void applyOrder(tnw::DirectAPresenter& p, const json& order, int n) {
  if (!order.is_array() || static_cast<int>(order.size()) != n) {
    throw ScenarioError("\"order\" needs one group number per attribute");
  }
  for (int j = 0; j < n; ++j) {
    const int g = order[static_cast<std::size_t>(j)].get<int>();
    if (g < 1 || g > n) throw ScenarioError("group numbers run from 1 to the attribute count");
    while (p.ordering().order().GroupCount() < g) p.cmdAdd_Click();
    const bool placed = p.ordering().order().AttGroup(j) != 0;
    p.picOrder_DragDrop(g, (placed ? "B" : "A") + std::to_string(j));
  }
}

void chooseOrderAndReference(tnw::DirectAPresenter& p, const json& scenario, int n) {
  if (scenario.contains("order")) {
    applyOrder(p, scenario["order"], n);
  } else if (!p.resuming()) {
    throw ScenarioError("\"order\" is needed when the model holds no earlier result");
  }
  p.cmdNext_Click();
  if (p.WizardStep() != 1) throw ScenarioError("the order does not place every attribute");
  if (scenario.contains("reference")) {
    const int r = scenario["reference"].get<int>();
    if (r < 0 || r >= n) throw ScenarioError("\"reference\" is not an attribute index");
    p.cmdAttButtons_Click(r);
  } else if (!p.resuming()) {
    throw ScenarioError("\"reference\" is needed when the model holds no earlier result");
  }
  p.cmdNext_Click();
}

// Types `text` into a ratio box as a user does: the old text selected and deleted, then every
// character through the box's key filter.
void typeText(tnw::DirectAPresenter& p, Box box, const std::string& text) {
  p.txtWR_SetText(box, "");
  for (const unsigned char c : text) {
    const tnw::TextBoxState& shown = p.judgment().box(box);
    p.txtWR_KeyPress(box, shown.selStart, shown.selLength, c);
  }
}

std::string boxText(const json& step, const char* key) {
  if (!step.contains(key)) return {};
  const json& v = step[key];
  return v.is_string() ? v.get<std::string>() : v.dump();
}

// One judgment step as DESIGN.md describes it; returns whether Enter recorded it.
bool judge(tnw::DirectAPresenter& p, const tnw::RecordingUiServices& ui, const json& step) {
  const std::size_t before = ui.messages().size();
  const int target = step.value("target", -1);
  p.imgcmbTargetAtt_Click(target);
  if (p.judgment().targets().currentTarget() != target || ui.messages().size() != before) {
    return false;
  }
  typeText(p, Box::Lower, boxText(step, "lower"));
  typeText(p, Box::Upper, boxText(step, "upper"));
  p.txtWR_LostFocus(Box::Lower);
  if (ui.messages().size() != before) return false;
  p.txtWR_LostFocus(Box::Upper);
  if (ui.messages().size() != before) return false;
  if (!p.control("cmdEnter").enabled) return false;
  return p.cmdEnter_Click();
}

// The lit status lamp; null while none is lit (after a failed check, a refused target or a
// restart).
ordered_json statusName(tnw::JudgmentState state) {
  switch (state) {
    case tnw::JudgmentState::Consistent:
      return "consistent";
    case tnw::JudgmentState::Inconsistent:
      return "inconsistent";
    case tnw::JudgmentState::Invalid:
      return "invalid";
    default:
      return nullptr;
  }
}

ordered_json runStep(tnw::DirectAPresenter& p, const tnw::RecordingUiServices& ui,
                     const json& step) {
  const std::size_t before = ui.messages().size();
  bool recorded = false;
  if (step.value("restart", false)) {
    p.cmdReStart_Click();
  } else {
    recorded = judge(p, ui, step);
  }
  return ordered_json{{"messages", messagesSince(ui, before)},
                      {"lowerText", p.judgment().box(Box::Lower).text},
                      {"upperText", p.judgment().box(Box::Upper).text},
                      {"status", statusName(p.lamps().state())},
                      {"recorded", recorded}};
}

ordered_json gridRows(const tnw::ResultsGrid& grid) {
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

ordered_json result(const tnw::WizardContext& c, const tnw::DirectAPresenter& p, ordered_json steps,
                    const ordered_json& exported) {
  const auto& judged = p.judgment().judgments().judgedFlags();
  return ordered_json{{"finalGroupCount", c.FinalGroupCount},
                      {"finalAttGroup", c.FinalAttGroup},
                      {"refAtt", c.RefAtt},
                      {"steps", std::move(steps)},
                      {"lower", c.LowerWeights},
                      {"middle", c.CloseWeights},
                      {"upper", c.UpperWeights},
                      {"judged", std::vector<bool>(judged.begin(), judged.end())},
                      {"complete", p.judgment().judgments().isComplete()},
                      {"grid", p.WizardStep() == 3 ? gridRows(p.grid()) : ordered_json::array()},
                      {"export", exported}};
}

ordered_json runScenario(tnw::WizardContext& context, tnw::RecordingUiServices& ui,
                         const json& scenario) {
  ExportCatcher events;
  tnw::DirectAPresenter p(context, ui, events);
  p.Form_Load();
  if (!p.usable()) throw ScenarioError(ui.messages().back().text);
  const int n = p.ordering().order().numAtt();
  try {
    chooseOrderAndReference(p, scenario, n);
  } catch (const ScenarioError&) {
    printMessagesSince(ui, 0);  // for instance why an earlier result could not be resumed
    throw;
  }
  printMessagesSince(ui, 0);
  if (p.resuming() && scenario.contains("reference") &&
      scenario["reference"].get<int>() != context.RefAtt) {
    std::fprintf(stderr, "The earlier result's reference attribute %d is used, as in the dialog.\n",
                 static_cast<int>(context.RefAtt));
  }
  ordered_json steps = ordered_json::array();
  for (const json& step : scenario.value("steps", json::array())) {
    steps.push_back(runStep(p, ui, step));
  }
  const std::size_t before = ui.messages().size();
  p.cmdNext_Click();
  p.cmdFinish_Click();
  printMessagesSince(ui, before);
  return result(context, p, std::move(steps), events.exported);
}

}  // namespace

int runDirect(const std::vector<std::string>& args) {
  if (args.size() != 2) return tnwUsage();
  tnw::RecordingUiServices ui;
  tnw::WizardContext context;
  context.FileIndex = 1;
  context.PathAndFileName = args[0];
  if (!tnw::OpenRelatedFileForTNW(args[0], context.model, ui).opened) {
    std::fprintf(stderr, "%s\n", kCannotAccess);
    return kExitCannotOpen;
  }
  std::ifstream in(args[1]);
  if (!in) {
    std::fprintf(stderr, "%s\n", kCannotAccess);
    return kExitCannotOpen;
  }
  try {
    const json scenario = json::parse(in);
    if (!scenario.is_object()) throw ScenarioError("the scenario is not a JSON object");
    std::cout << runScenario(context, ui, scenario).dump(2) << "\n";
  } catch (const std::exception& e) {
    std::fprintf(stderr, "tnwizard: %s: %s\n", args[1].c_str(), e.what());
    return 1;
  }
  return 0;
}
