#include "model_json/tradeoffs_player.h"

#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"
#include "tradeoffs/core/scenario_player.h"
#include "tradeoffs/core/tradeoffs_a_events.h"

// Std
#include <cstdint>
#include <optional>
#include <string>

namespace tnw {
namespace {

using namespace tnw::tradeoffs;
using nlohmann::ordered_json;

// Keeps the one export the Finish button raises.
class ExportCatcher : public TradeOffsAEvents {
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

ordered_json firstK(const std::array<double, kMaxAttributes>& a, int k) {
  return std::vector<double>(a.begin(), a.begin() + k);
}

// The judgments that lower the consistency index most, as the regression status tab lists them.
ordered_json worstJudgments(const tradeoffs::TradeOffOutcome& o) {
  ordered_json list = ordered_json::array();
  const auto optional = [](const std::optional<double>& v) {
    return v ? ordered_json(*v) : ordered_json(nullptr);
  };
  const auto& lines = o.worstJudgmentLines;
  std::size_t at = 0;
  for (const JudgmentInfluence& j : o.worstJudgments) {
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

ordered_json result(const tradeoffs::TradeOffOutcome& o, const RecordingUiServices& ui, int k,
                    const ordered_json& exported) {
  const MultiRegressionData& r = o.record;
  ordered_json warnings = ordered_json::array();
  for (const auto& m : ui.messages()) warnings.push_back(m.text);
  return ordered_json{{"noInverse", o.noInverse},
                      {"warnings", warnings},
                      {"error", o.fitError ? ordered_json(*o.fitError) : ordered_json(nullptr)},
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
                      {"weights", o.weights},
                      {"comment", o.comment},
                      {"export", exported},
                      {"worstJudgments", worstJudgments(o)}};
}

}  // namespace

nlohmann::ordered_json playTradeOffJudgments(WizardContext& ctx,
                                             const std::vector<tradeoffs::TradeOffJudgment>& judgments,
                                             RandomSource& random) {
  RecordingUiServices ui;
  ExportCatcher events;
  tradeoffs::TradeOffScenarioPlayer player(ctx, ui, events, random);
  player.load();
  player.play(tradeoffs::TradeOffScenario{judgments, wizard::ScenarioEnd::Finish});
  return result(player.outcome(), ui, ctx.model.attributeCount(), events.exported());
}

}  // namespace tnw
