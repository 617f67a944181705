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
#include <cstdio>
#include <fstream>
#include <optional>

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

std::optional<std::vector<Judgment>> parseJudgments(const nlohmann::json& j) {
  if (!j.is_array()) return std::nullopt;
  std::vector<Judgment> out;
  for (const auto& item : j) {
    if (!item.is_object() || !item.contains("first") || !item.contains("second") ||
        !item.contains("scores") || !item["first"].is_number_integer() ||
        !item["second"].is_number_integer() || !item["scores"].is_array() ||
        item["scores"].size() != 4) {
      return std::nullopt;
    }
    Judgment jd;
    jd.first = item["first"].get<int>();
    jd.second = item["second"].get<int>();
    for (std::size_t i = 0; i < 4; ++i) {
      if (!item["scores"][i].is_number()) return std::nullopt;
      jd.scores[i] = item["scores"][i].get<double>();
    }
    if (item.contains("response")) {
      if (!item["response"].is_number_integer()) return std::nullopt;
      jd.response = item["response"].get<int>();
      if (jd.response < -3 || jd.response > 3) return std::nullopt;
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
                      {"export", exported}};
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
  const std::optional<std::vector<Judgment>> judgments =
      input.is_discarded() ? std::nullopt : parseJudgments(input);
  if (!judgments) {
    std::fputs(
        "tnwizard: the judgments must be a JSON array of "
        "{\"first\":i,\"second\":j,\"scores\":[a1,b1,a2,b2],\"response\":-3..3}\n",
        stderr);
    return 1;
  }
  tnw::RecordingUiServices ui;
  ExportCatcher events;
  tnw::ClockRandomSource random;
  tnw::TradeOffsAPresenter p(ctx, ui, events, random);
  p.Form_Load();
  p.optPCManual_Click();
  for (const Judgment& j : *judgments) enterJudgment(p, j, ctx.model.attributeCount());
  p.cmdNext_Click();
  // Finish hands the weights over only when the fit was completed; otherwise it shows the fit's
  // message again, which the warnings already hold.
  if (!p.fitError()) p.cmdFinish_Click();
  const std::string text = result(p, ui, ctx, events.exported())
                               .dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  std::printf("%s\n", text.c_str());
  return 0;
}
