#include "model_json/tradeoffs_player.h"

#include "common/number_format.h"
#include "common/recording_ui_services.h"
#include "component/wizard_context.h"
#include "tradeoffs/trade_offs_a_events.h"
#include "tradeoffs/trade_offs_a_presenter.h"

// Std
#include <cstdint>
#include <optional>
#include <string>

namespace tnw {
namespace {

using nlohmann::ordered_json;
using Judgment = TradeOffJudgment;

// Keeps the one export the Finish button raises.
class ExportCatcher : public tradeoffs::TradeOffsAEvents {
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

// Chooses the pair in the two lists in an order that the lists do not refuse on the way. An
// exchange of the two attributes goes through a third one when the model has one; with two
// attributes the lists refuse it, as they do in the dialog.
bool choosePair(tradeoffs::TradeOffsAPresenter& p, const Judgment& j, int numAtt) {
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

void enterJudgment(tradeoffs::TradeOffsAPresenter& p, const Judgment& j, int numAtt) {
  if (!choosePair(p, j, numAtt)) return;
  // Boxes in the order (1) A first, (2) A second, (3) B first, (4) B second.
  const double boxes[4] = {j.scores[0], j.scores[2], j.scores[1], j.scores[3]};
  for (int i = 0; i < 4; ++i) p.setScoreText(i, generalText(boxes[i]));
  if (j.response == 0) {
    p.tsComparisonApproaches_Click(1);
  } else {
    p.tsComparisonApproaches_Click(2);
    p.optPCVerbal_Click(j.response + 3);
  }
  p.cmdTradeOffEnter_Click();
}

ordered_json firstK(const std::array<double, kMaxAttributes>& a, int k) {
  return std::vector<double>(a.begin(), a.begin() + k);
}

// The judgments that lower the consistency index most, as the regression status tab lists them.
ordered_json worstJudgments(const tradeoffs::TradeOffsAPresenter& p) {
  ordered_json list = ordered_json::array();
  const auto optional = [](const std::optional<double>& v) {
    return v ? ordered_json(*v) : ordered_json(nullptr);
  };
  const auto& lines = p.worstJudgmentLines();
  std::size_t at = 0;
  for (const tradeoffs::JudgmentInfluence& j : p.worstJudgments()) {
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

ordered_json result(const tradeoffs::TradeOffsAPresenter& p, const RecordingUiServices& ui,
                    const WizardContext& ctx, const ordered_json& exported) {
  const tradeoffs::MultiRegressionData& r = p.record();
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
                      {"comment", p.weights().RegressionComment},
                      {"export", exported},
                      {"worstJudgments", worstJudgments(p)}};
}

}  // namespace

nlohmann::ordered_json playTradeOffJudgments(WizardContext& ctx,
                                             const std::vector<TradeOffJudgment>& judgments,
                                             tradeoffs::RandomSource& random) {
  RecordingUiServices ui;
  ExportCatcher events;
  tradeoffs::TradeOffsAPresenter p(ctx, ui, events, random);
  p.Form_Load();
  p.optPCManual_Click();
  for (const Judgment& j : judgments) enterJudgment(p, j, ctx.model.attributeCount());
  p.cmdNext_Click();
  // Finish hands the weights over only when the fit was completed; otherwise it shows the fit's
  // message again, which the warnings already hold.
  if (!p.fitError()) p.cmdFinish_Click();
  return result(p, ui, ctx, events.exported());
}

}  // namespace tnw
