// Benchmarks of the trade-off method: the regression, one score-entry step and the charts.

#include "common/core/recording_ui_services.h"
#include "graphs/core/graphs.h"
#include "graphs/core/recording_surface.h"
#include "tradeoffs/core/judgment_page.h"
#include "tradeoffs/core/leave_one_out.h"
#include "tradeoffs/core/random_source.h"
#include "tradeoffs/core/regression.h"
#include "tradeoffs/core/results_page.h"
#include "wizard/core/wizard_context.h"

// Google Benchmark
#include <benchmark/benchmark.h>

// Std
#include <random>

namespace {

// Fixed draws, so that every iteration does the same work.
class FixedRandomSource : public tnw::tradeoffs::RandomSource {
 public:
  float next() override {
    m_r = m_r + 0.37f;
    if (m_r >= 1.0f) m_r -= 1.0f;
    return m_r;
  }

 private:
  float m_r = 0.1f;
};

tnw::AttributeModel makeModel(int numAtt) {
  tnw::AttributeModel m;
  m.NumAtt = static_cast<std::int16_t>(numAtt);
  for (std::size_t a = 0; a < static_cast<std::size_t>(numAtt); ++a) {
    m.AttName[a] = "Attribute " + std::to_string(a + 1);
    m.AttOrientation[a] = "0";
    m.AttScoreHigh[a] = 10.0;
    m.NumPoints[a] = 3;
    m.PointScore[a][0] = 0.0;
    m.PointScore[a][1] = 5.0;
    m.PointScore[a][2] = 10.0;
    m.PointValue[a][0] = 0.0;
    m.PointValue[a][1] = 0.7;
    m.PointValue[a][2] = 1.0;
  }
  return m;
}

// NumAtt × (NumAtt - 1) verbal judgments of neighbouring pairs, as the automatic cycle gives.
tnw::tradeoffs::JudgmentStore makeJudgments(int k) {
  std::mt19937 rng(42);
  std::uniform_real_distribution<double> diff(-1.0, 1.0);
  std::uniform_int_distribution<int> response(-3, 3);
  tnw::tradeoffs::JudgmentStore s;
  const int n = k * (k - 1);
  s.dimension(n, k);
  for (int j = 0; j < n; ++j) {
    const auto jj = static_cast<std::size_t>(j);
    const int first = j % k;
    const int second = (first + 1) % k;
    s.ValueDiff[jj][static_cast<std::size_t>(first)] = diff(rng);
    s.ValueDiff[jj][static_cast<std::size_t>(second)] = diff(rng);
    s.PrefResponse[jj] = static_cast<std::int16_t>(j == 0 ? 3 : response(rng));
  }
  s.JudgmentCount = n;
  return s;
}

void BM_RegressMain(benchmark::State& state) {
  const int k = static_cast<int>(state.range(0));
  tnw::tradeoffs::JudgmentStore store = makeJudgments(k);
  tnw::tradeoffs::TradeOffWeights weights;
  tnw::tradeoffs::MultiRegressionData record;
  tnw::tradeoffs::Regression reg;
  for (auto _ : state) {
    reg.RegressMain(store, k, record, weights);
    benchmark::DoNotOptimize(reg.CalWeights());
    benchmark::DoNotOptimize(record.RSquared);
  }
  state.counters["judgments"] = store.JudgmentCount;
}
BENCHMARK(BM_RegressMain)->Arg(5)->Arg(31)->Unit(benchmark::kMicrosecond);

// The list of the judgments that lower the consistency index most, as Next forms it after the
// fit: every judgment left out in turn, at K = 31 (930 judgments).
void BM_LeaveOneOutWorst(benchmark::State& state) {
  const int k = static_cast<int>(state.range(0));
  const tnw::AttributeModel model = makeModel(k);
  tnw::tradeoffs::JudgmentStore store = makeJudgments(k);
  tnw::tradeoffs::TradeOffWeights weights;
  tnw::tradeoffs::MultiRegressionData record;
  tnw::tradeoffs::Regression reg;
  reg.RegressMain(store, k, record, weights);
  std::size_t listed = 0;
  for (auto _ : state) {
    const auto worst = tnw::tradeoffs::LeaveOneOut::worst(store, model, reg.work());
    listed = worst.size();
    benchmark::DoNotOptimize(listed);
  }
  if (listed == 0) state.SkipWithError("no judgment listed");
  state.counters["judgments"] = store.JudgmentCount;
}
BENCHMARK(BM_LeaveOneOutWorst)->Arg(31)->Unit(benchmark::kMicrosecond);

void BM_ScoreEntryStep(benchmark::State& state) {
  tnw::WizardContext ctx;
  ctx.model = makeModel(31);
  tnw::RecordingUiServices ui;
  FixedRandomSource random;
  tnw::tradeoffs::JudgmentPage page(ctx, ui, random);
  page.reset();
  for (auto _ : state) {
    // One trade-off: type a score, step it, press Enter (record and move on to the next pair).
    page.scoreBoxKeyPress(0, '5', 0, 99);
    page.tbScoreChanger_ButtonClick(0, true);
    page.cmdTradeOffEnter_Click();
    if (page.TradeOffNo() >= page.TradeOffsNeeded()) page.cmdTradeOffClearAll_Click();
  }
  benchmark::DoNotOptimize(page.store().JudgmentCount);
}
BENCHMARK(BM_ScoreEntryStep);

// Typing a score of n characters ("30." and then n - 3 fives) key by key into a score box. The
// cost per key must not grow with the text, so the whole entry is linear in n.
void BM_TypingAScoreKeyByKey(benchmark::State& state) {
  const auto n = static_cast<int>(state.range(0));
  tnw::WizardContext ctx;
  ctx.model = makeModel(3);
  tnw::RecordingUiServices ui;
  FixedRandomSource random;
  tnw::tradeoffs::JudgmentPage page(ctx, ui, random);
  page.reset();
  const std::string start = "30.";
  for (auto _ : state) {
    page.setScoreText(0, "");
    for (int i = 0; i < n; ++i) {
      const char key = i < 3 ? start[static_cast<std::size_t>(i)] : '5';
      page.scoreBoxKeyPress(0, key, i, 0);
    }
  }
  if (static_cast<int>(page.controls().scoreBoxes[0].text.size()) != n) {
    state.SkipWithError("the box does not hold every key typed");
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_TypingAScoreKeyByKey)
    ->RangeMultiplier(4)
    ->Range(1 << 10, 1 << 18)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

void BM_DrawChart(benchmark::State& state) {
  const tnw::AttributeModel model = makeModel(31);
  tnw::tradeoffs::TradeOffWeights weights;
  for (int i = 0; i < 31; ++i) {
    weights.CloseWeights.push_back(0.02 + 0.001 * i);
    weights.UpperWeights.push_back(0.03 + 0.001 * i);
    weights.LowerWeights.push_back(0.01 + 0.001 * i);
  }
  const char* keys[] = {tnw::tradeoffs::ResultsPage::kHLCa, tnw::tradeoffs::ResultsPage::kHLCb,
                        tnw::tradeoffs::ResultsPage::kWeightBars};
  tnw::tradeoffs::ResultsPage page;
  page.tbWeightCharts_ButtonClick(keys[state.range(0)], model, weights);
  tnw::RecordingSurface surface;
  for (auto _ : state) {
    surface.reset();
    page.drawChart(surface);
    benchmark::DoNotOptimize(surface.ops().size());
  }
  state.SetLabel(keys[state.range(0)]);
}
BENCHMARK(BM_DrawChart)->DenseRange(0, 2);

}  // namespace
