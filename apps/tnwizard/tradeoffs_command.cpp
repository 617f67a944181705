// tnwizard tradeoffs MODEL JUDGMENTS.json: records judgments as the trade-off dialog's Enter does
// and runs the regression of its Next button, through the dialog's own presenter.

#include "commands.h"
#include "common/number_format.h"
#include "common/recording_ui_services.h"
#include "component/wizard_context.h"
#include "console_ui_services.h"
#include "model/model_file_reader.h"
#include "tradeoffs/clock_random_source.h"
#include "tradeoffs/trade_offs_a_events.h"
#include "tradeoffs/trade_offs_a_presenter.h"

// JSON
#include <nlohmann/json.hpp>

// Std
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>

namespace {

using nlohmann::ordered_json;

// Keeps the one export the Finish button raises.
class ExportCatcher : public tnw::TradeOffsAEvents {
 public:
  void ExportTradeOffsW(const std::string&, std::vector<double>& Weights,
                        std::vector<double>& WeightsH, std::vector<double>& WeightsL) override {
    m_export = ordered_json{{"weights", Weights}, {"weightsH", WeightsH}, {"weightsL", WeightsL}};
  }
  void SendMasseges(const std::string&) override {}
  void ShowTNWSelMethod() override {}
  void UnloadTNWizard(std::int16_t, bool) override {}

  // The export, or null when there was none.
  const ordered_json& exported() const { return m_export; }

 private:
  ordered_json m_export = nullptr;
};

// One judgment of the input file.
struct Judgment {
  int first = 0;
  int second = 0;
  double scores[4] = {0, 0, 0, 0};
  int response = 0;
};

// A judgments file that cannot be run as written; what() says which judgment and why.
struct JudgmentsError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Whether v is an integer from low to high (a JSON integer of any size).
bool integerIn(const nlohmann::json& v, int low, int high) {
  if (v.is_number_unsigned()) {
    return high >= 0 && v.get<std::uint64_t>() <= static_cast<std::uint64_t>(high) &&
           static_cast<std::int64_t>(v.get<std::uint64_t>()) >= low;
  }
  return v.is_number_integer() && v.get<std::int64_t>() >= low && v.get<std::int64_t>() <= high;
}

// The attribute index of field `key` of judgment `at`, which must be an index of the model.
int attributeIndex(const nlohmann::json& item, const char* key, std::size_t at, int numAtt) {
  const std::string where = "judgment [" + std::to_string(at) + "]: \"" + key + "\" ";
  if (!item.contains(key)) throw JudgmentsError(where + "is missing");
  const nlohmann::json& v = item[key];
  if (!v.is_number_integer()) throw JudgmentsError(where + "is not an integer");
  if (!integerIn(v, 0, numAtt - 1)) {
    const std::string range = numAtt > 0 ? "0 to " + std::to_string(numAtt - 1) : "none";
    throw JudgmentsError(where + v.dump() +
                         " is not an attribute index of the model (its indexes: " + range + ")");
  }
  return static_cast<int>(v.get<std::int64_t>());
}

// Reads the judgments; a message names a judgment by its 0-based place in the array, "[2]".
std::vector<Judgment> parseJudgments(const nlohmann::json& j, int numAtt) {
  if (!j.is_array()) throw JudgmentsError("the judgments are not a JSON array");
  std::vector<Judgment> out;
  for (std::size_t at = 0; at < j.size(); ++at) {
    const nlohmann::json& item = j[at];
    const std::string where = "judgment [" + std::to_string(at) + "]: ";
    if (!item.is_object()) throw JudgmentsError(where + "is not a JSON object");
    Judgment jd;
    jd.first = attributeIndex(item, "first", at, numAtt);
    jd.second = attributeIndex(item, "second", at, numAtt);
    if (!item.contains("scores") || !item["scores"].is_array() || item["scores"].size() != 4) {
      throw JudgmentsError(where + "\"scores\" must be an array of four numbers [a1,b1,a2,b2]");
    }
    for (std::size_t i = 0; i < 4; ++i) {
      if (!item["scores"][i].is_number()) {
        throw JudgmentsError(where + "\"scores\" must be an array of four numbers [a1,b1,a2,b2]");
      }
      jd.scores[i] = item["scores"][i].get<double>();
    }
    if (item.contains("response")) {
      const nlohmann::json& r = item["response"];
      if (!integerIn(r, -3, 3)) {
        throw JudgmentsError(where + "\"response\" must be an integer from -3 to 3");
      }
      jd.response = static_cast<int>(r.get<std::int64_t>());
    }
    out.push_back(jd);
  }
  return out;
}

// Chooses the pair in the two lists in an order that the lists do not refuse on the way. An
// exchange of the two attributes goes through a third one when the model has one; with two
// attributes the lists refuse it, as they do in the dialog.
bool choosePair(tnw::TradeOffsAPresenter& p, const Judgment& j, int numAtt) {
  const int first = p.judgmentPage().FirstAttIndex();
  const int second = p.judgmentPage().SecondAttIndex();
  if (j.first == second && j.second == first) {
    for (int t = 0; t < numAtt; ++t) {
      if (t != j.first && t != j.second) {
        p.lstTradeOffFirstC_Click(t);
        break;
      }
    }
  }
  if (j.first == p.judgmentPage().SecondAttIndex()) {
    p.lstTradeOffSecondC_Click(j.second);
    p.lstTradeOffFirstC_Click(j.first);
  } else {
    p.lstTradeOffFirstC_Click(j.first);
    p.lstTradeOffSecondC_Click(j.second);
  }
  return p.judgmentPage().FirstAttIndex() == j.first &&
         p.judgmentPage().SecondAttIndex() == j.second;
}

void enterJudgment(tnw::TradeOffsAPresenter& p, const Judgment& j, int numAtt) {
  if (!choosePair(p, j, numAtt)) return;
  // Boxes in the order (1) A first, (2) A second, (3) B first, (4) B second.
  const double boxes[4] = {j.scores[0], j.scores[2], j.scores[1], j.scores[3]};
  for (int i = 0; i < 4; ++i) p.setScoreText(i, tnw::generalText(boxes[i]));
  if (j.response == 0) {
    p.tsComparisonApproaches_Click(1);
  } else {
    p.tsComparisonApproaches_Click(2);
    p.optPCVerbal_Click(j.response + 3);
  }
  p.cmdTradeOffEnter_Click();
}

ordered_json firstK(const std::array<double, tnw::kMaxAttributes>& a, int k) {
  return std::vector<double>(a.begin(), a.begin() + k);
}

// The judgments that lower the consistency index most, as the regression status tab lists them.
ordered_json worstJudgments(const tnw::TradeOffsAPresenter& p) {
  ordered_json list = ordered_json::array();
  const auto optional = [](const std::optional<double>& v) {
    return v ? ordered_json(*v) : ordered_json(nullptr);
  };
  const auto& lines = p.worstJudgmentLines();
  std::size_t at = 0;
  for (const tnw::JudgmentInfluence& j : p.worstJudgments()) {
    list.push_back(ordered_json{{"judgment", j.judgment},
                                {"first", j.first},
                                {"second", j.second},
                                {"scores", j.scores},
                                {"response", j.response},
                                {"indexWithout", j.indexWithout},
                                {"gain", j.gain},
                                {"fittedBSecond", optional(j.fittedBSecond)},
                                {"fittedBFirst", optional(j.fittedBFirst)},
                                {"text", at < lines.size() ? lines[at] : std::string()}});
    ++at;
  }
  return list;
}

ordered_json result(const tnw::TradeOffsAPresenter& p, const tnw::RecordingUiServices& ui,
                    const tnw::WizardContext& ctx, const ordered_json& exported) {
  const tnw::MultiRegressionData& r = p.record();
  const int k = ctx.model.attributeCount();
  ordered_json warnings = ordered_json::array();
  for (const auto& m : ui.messages()) warnings.push_back(m.text);
  const auto& w = p.regression().work();
  std::vector<double> weights;
  for (int i = 1; i <= k && i < static_cast<int>(w.Weights.size()); ++i) {
    weights.push_back(w.Weights[static_cast<std::size_t>(i)]);
  }
  return ordered_json{{"noInverse", w.NoInverse == 1},
                      {"warnings", warnings},
                      {"error", p.fitError() ? ordered_json(*p.fitError()) : ordered_json(nullptr)},
                      {"constant", r.Constant},
                      {"stdErrEst", r.StdErrEst},
                      {"rSquared", r.RSquared},
                      {"numObs", r.NumObs},
                      {"degFreedom", r.DegFreedom},
                      {"consistencyIndex", r.ConsistencyIndex},
                      {"coef", firstK(r.Coef, k)},
                      {"coefVar", firstK(r.CoefVar, k)},
                      {"lowEst", firstK(r.LowEst, k)},
                      {"highEst", firstK(r.HighEst, k)},
                      {"weights", weights},
                      {"comment", ctx.RegressionComment},
                      {"export", exported},
                      {"worstJudgments", worstJudgments(p)}};
}

}  // namespace

int runTradeOffs(const std::vector<std::string>& args) {
  if (args.size() != 2) return tnwUsage();
  tnw::ConsoleUiServices console;
  tnw::WizardContext ctx;
  ctx.PathAndFileName = args[0];
  ctx.FileIndex = 1;
  if (!tnw::OpenRelatedFileForTNW(args[0], ctx.model, console).opened) return kExitCannotOpen;
  std::ifstream in(args[1]);
  if (!in) {
    std::fputs("There are problems in accessing the relevant data.\n", stderr);
    return kExitCannotOpen;
  }
  const nlohmann::json input = nlohmann::json::parse(in, nullptr, false);
  std::vector<Judgment> judgments;
  try {
    if (input.is_discarded()) throw JudgmentsError("the file is not valid JSON");
    judgments = parseJudgments(input, ctx.model.attributeCount());
  } catch (const JudgmentsError& e) {
    std::fprintf(stderr,
                 "tnwizard: %s: %s\nThe judgments must be a JSON array of "
                 "{\"first\":i,\"second\":j,\"scores\":[a1,b1,a2,b2],\"response\":-3..3}\n",
                 args[1].c_str(), e.what());
    return 1;
  }
  tnw::RecordingUiServices ui;
  ExportCatcher events;
  tnw::ClockRandomSource random;
  tnw::TradeOffsAPresenter p(ctx, ui, events, random);
  p.Form_Load();
  p.optPCManual_Click();
  for (const Judgment& j : judgments) enterJudgment(p, j, ctx.model.attributeCount());
  p.cmdNext_Click();
  // Finish hands the weights over only when the fit was completed; otherwise it shows the fit's
  // message again, which the warnings already hold.
  if (!p.fitError()) p.cmdFinish_Click();
  const std::string text = result(p, ui, ctx, events.exported())
                               .dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  std::printf("%s\n", text.c_str());
  return 0;
}
