// Benchmarks of the direct method: recording a judgment and checking the judgment status at
// the largest size (31 attributes in 10 groups), and a whole run of 30 judgments.

#include "common/core/recording_ui_services.h"
#include "direct/core/direct_a_presenter.h"
#include "direct/core/judgment_status_check.h"
#include "direct/core/weight_ratio_judgments.h"

// Google Benchmark
#include <benchmark/benchmark.h>

// Std
#include <string>

namespace {

constexpr int kAttributes = 31;
constexpr int kGroups = 10;

// Attribute 0 alone in group 1 (the reference), the other 30 spread over groups 2 to 10.
int groupOf(int j) { return j == 0 ? 1 : 2 + (j - 1) % (kGroups - 1); }

tnw::WizardContext makeContext() {
  tnw::WizardContext context;
  context.model.NumAtt = kAttributes;
  for (std::size_t i = 0; i < kAttributes; ++i) {
    context.model.AttName[i] = "Attribute " + std::to_string(i + 1);
    context.model.AttOrientation[i] = i % 3 == 0 ? "1" : "0";
    context.model.AttScoreHigh[i] = 100.0;
  }
  return context;
}

// The final order of groupOf, as the ordering step leaves it in the direct method's result.
tnw::direct::DirectResult makeOrder() {
  tnw::direct::DirectResult result;
  result.FinalGroupCount = kGroups;
  result.FinalGroupSize.assign(kAttributes + 1, 0);
  for (int j = 0; j < kAttributes; ++j) {
    result.FinalAttGroup.push_back(static_cast<std::int16_t>(groupOf(j)));
    ++result.FinalGroupSize[static_cast<std::size_t>(groupOf(j))];
  }
  return result;
}

struct NullEvents : tnw::direct::DirectAEvents {
  void ExportDirectAW(const std::string&, std::int16_t, std::vector<double>& w,
                      std::vector<double>&, std::vector<double>&) override {
    exported = !w.empty();
  }
  void SendMasseges(const std::string&) override {}
  void ShowTNWSelMethod() override {}
  void UnloadDirectA() override {}
  void UnloadTNWizard(std::int16_t, bool) override {}
  bool exported = false;
};

void BM_RecordWeightRatios(benchmark::State& state) {
  const tnw::WizardContext context = makeContext();
  tnw::direct::DirectResult result = makeOrder();
  result.RefAtt = static_cast<std::int16_t>(kAttributes - 1);  // in group 10
  tnw::direct::WeightRatioJudgments judgments(context.model, result);
  judgments.CalcIniWeightRatios();
  // Target 1 is in group 2: its ties are copied, group 1 is pushed up, groups 3 to 9 down.
  for (auto _ : state) {
    benchmark::DoNotOptimize(judgments.RecordWeightRatios(1, 1.3, 1.4, {}));
  }
}
BENCHMARK(BM_RecordWeightRatios);

void BM_Check_Judgment_Status(benchmark::State& state) {
  const tnw::WizardContext context = makeContext();
  tnw::direct::DirectResult result = makeOrder();
  tnw::direct::WeightRatioJudgments judgments(context.model, result);
  judgments.CalcIniWeightRatios();
  const tnw::direct::PreferenceCone cone(200.0F, 8.0F);
  const tnw::direct::RegionHandles handles{cone.handleForRatio(0.4), cone.handleForRatio(0.6)};
  // Target 5 is in group 6: both limit searches run over every other group.
  for (auto _ : state) {
    benchmark::DoNotOptimize(tnw::direct::JudgmentStatusCheck::check(cone, handles, judgments, 5));
  }
}
BENCHMARK(BM_Check_Judgment_Status);

// Whole run: order 31 attributes into 10 groups by drops, choose the reference, make 30
// judgments (type both bounds, leave both boxes, Enter), go to the results and Finish.
void runScenario(NullEvents& events) {
  tnw::WizardContext context = makeContext();
  tnw::RecordingUiServices ui;
  tnw::direct::DirectAPresenter p(context, ui, events);
  p.Form_Load();
  for (int j = 0; j < kAttributes; ++j) {
    while (p.ordering().order().GroupCount() < groupOf(j)) p.cmdAdd_Click();
    p.picOrder_DragDrop(groupOf(j), "A" + std::to_string(j));
  }
  p.cmdNext_Click();
  p.cmdAttButtons_Click(0);
  p.cmdNext_Click();
  using Box = tnw::direct::JudgmentPage::Box;
  for (int j = 1; j < kAttributes; ++j) {
    const double lower = 1.0 - 0.09 * groupOf(j);
    p.imgcmbTargetAtt_Click(j);
    p.txtWR_SetText(Box::Lower, std::to_string(lower));
    p.txtWR_SetText(Box::Upper, std::to_string(lower + 0.04));
    p.txtWR_LostFocus(Box::Lower);
    p.txtWR_LostFocus(Box::Upper);
    p.cmdEnter_Click();
  }
  p.cmdNext_Click();
  p.cmdFinish_Click();
}

void BM_WholeScenarioOf30Judgments(benchmark::State& state) {
  for (auto _ : state) {
    NullEvents events;
    runScenario(events);
    if (!events.exported) {
      state.SkipWithError("the scenario did not reach the export");
      break;
    }
  }
}
BENCHMARK(BM_WholeScenarioOf30Judgments);

// Typing a ratio of n digits ("0." and then n - 2 fives) key by key into the lower box, as the
// dialog hands the keys on: the caret and selection only. The cost per key must not grow with
// the text, so the whole entry is linear in n.
void BM_TypingARatioKeyByKey(benchmark::State& state) {
  const auto n = static_cast<int>(state.range(0));
  NullEvents events;
  tnw::WizardContext context = makeContext();
  tnw::RecordingUiServices ui;
  tnw::direct::DirectAPresenter p(context, ui, events);
  p.Form_Load();
  for (int j = 0; j < kAttributes; ++j) {
    while (p.ordering().order().GroupCount() < groupOf(j)) p.cmdAdd_Click();
    p.picOrder_DragDrop(groupOf(j), "A" + std::to_string(j));
  }
  p.cmdNext_Click();
  p.cmdAttButtons_Click(0);
  p.cmdNext_Click();
  using Box = tnw::direct::JudgmentPage::Box;
  for (auto _ : state) {
    p.txtWR_SetText(Box::Lower, "");
    for (int i = 0; i < n; ++i) {
      const tnw::wizard::TextBoxState& shown = p.judgment().box(Box::Lower);
      const char key = i == 0 ? '0' : (i == 1 ? '.' : '5');
      p.txtWR_KeyPress(Box::Lower, shown.selStart, shown.selLength, key);
    }
  }
  if (static_cast<int>(p.judgment().box(Box::Lower).text.size()) != n) {
    state.SkipWithError("the box does not hold every key typed");
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_TypingARatioKeyByKey)
    ->RangeMultiplier(4)
    ->Range(1 << 10, 1 << 18)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

}  // namespace
