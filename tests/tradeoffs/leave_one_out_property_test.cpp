// The list of the judgments that lower the consistency index most, found from the full fit,
// against the plain way of finding it: the whole regression run again without each judgment in
// turn, the gains above the threshold sorted, the first three listed.

#include "regression_fixtures.h"
#include "trade_off_fixtures.h"
#include "tradeoffs/core/leave_one_out.h"
#include "tradeoffs/core/regression.h"
#include "tradeoffs/core/tradeoff_weights.h"

// Std
#include <algorithm>
#include <random>
#include <string>
#include <vector>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

constexpr double kThreshold = 1e-12;

// How a random store is made.
enum class Kind { Numerical, Verbal, OneVerbal, OnceJudged, Repeated };

// A random store of n judgments over k attributes on linear 0..100 value functions.
JudgmentStore randomStore(std::mt19937& random, int k, int n, Kind kind) {
  std::uniform_int_distribution<int> att(0, k - 1);
  std::uniform_int_distribution<int> score(0, 100);
  std::uniform_int_distribution<int> response(-3, 3);
  JudgmentStore store;
  store.dimension(n, k);
  for (int j = 0; j < n; ++j) {
    const auto u = static_cast<std::size_t>(j);
    int first = att(random);
    int second = att(random);
    if (kind == Kind::OnceJudged) {
      // The last attribute is judged only in the last judgment.
      first = j == n - 1 ? k - 1 : first % (k - 1);
      second = second % (k - 1);
    }
    if (first == second) second = (first + 1 + second % (k - 1)) % k;
    if (kind == Kind::OnceJudged && j < n - 1 && second == k - 1) second = (first + 1) % (k - 1);
    if (kind == Kind::Repeated && j % 4 == 3) {
      store.setEntry(j, store.entry(j - 1), k);  // the same judgment recorded twice
      continue;
    }
    store.FirstAtt[u] = static_cast<std::int16_t>(first);
    store.SecondAtt[u] = static_cast<std::int16_t>(second);
    store.ScoreAFirst[u] = score(random);
    store.ScoreBFirst[u] = score(random);
    store.ScoreASecond[u] = score(random);
    store.ScoreBSecond[u] = score(random);
    store.ValueDiff[u][static_cast<std::size_t>(first)] =
        (store.ScoreAFirst[u] - store.ScoreBFirst[u]) / 100.0;
    store.ValueDiff[u][static_cast<std::size_t>(second)] =
        (store.ScoreASecond[u] - store.ScoreBSecond[u]) / 100.0;
    const bool verbal = kind == Kind::Verbal || (kind == Kind::OneVerbal && j == n / 2);
    store.PrefResponse[u] = static_cast<std::int16_t>(verbal ? response(random) : 0);
  }
  if (kind == Kind::OneVerbal) store.PrefResponse[static_cast<std::size_t>(n / 2)] = 2;
  store.JudgmentCount = n;
  return store;
}

// The list as running the regression again without each judgment gives it.
std::vector<JudgmentInfluence> refitList(const JudgmentStore& store, int k, double fullIndex) {
  std::vector<JudgmentInfluence> list;
  for (int j = 1; j <= store.JudgmentCount; ++j) {
    const std::optional<double> index = LeaveOneOut::indexWithout(store, k, j);
    if (!index || !(*index - fullIndex > kThreshold)) continue;
    JudgmentInfluence influence;
    influence.judgment = j;
    influence.indexWithout = *index;
    influence.gain = *index - fullIndex;
    list.push_back(influence);
  }
  std::stable_sort(list.begin(), list.end(),
                   [](const auto& a, const auto& b) { return a.gain > b.gain; });
  if (list.size() > static_cast<std::size_t>(LeaveOneOut::kShown)) list.resize(LeaveOneOut::kShown);
  return list;
}

// Whether judgments a and b (1-based) were recorded alike: their gains are equal but for
// rounding, which decides their order in the plain list.
bool sameJudgment(const JudgmentStore& store, int a, int b) {
  const JudgmentStore::Entry x = store.entry(a - 1);
  const JudgmentStore::Entry y = store.entry(b - 1);
  return x.valueDiff == y.valueDiff && x.prefResponse == y.prefResponse;
}

TEST(LeaveOneOutPropertyTest, TheListFromTheFullFitIsTheListOfRunningTheRegressionAgain) {
  std::mt19937 random(2024);
  const Kind kinds[] = {Kind::Numerical, Kind::Verbal, Kind::OneVerbal, Kind::OnceJudged,
                        Kind::Repeated};
  int listed = 0;
  for (int round = 0; round < 200; ++round) {
    const int k = 3 + round % 29;
    const Kind kind = kinds[round % 5];
    std::uniform_int_distribution<int> extra(0, 2 * k);
    const int n = k + 3 + extra(random);
    JudgmentStore store = randomStore(random, k, n, kind);
    const AttributeModel model = testing::makeModel(k, 100.0);
    TradeOffWeights weights;
    MultiRegressionData record;
    Regression reg;
    reg.RegressMain(store, k, record, weights);
    if (reg.failed()) continue;
    const std::vector<JudgmentInfluence> found = LeaveOneOut::worst(store, model, reg.work());
    const std::vector<JudgmentInfluence> expected = refitList(store, k, record.ConsistencyIndex);
    ASSERT_EQ(found.size(), expected.size()) << "round " << round;
    for (std::size_t i = 0; i < found.size(); ++i) {
      EXPECT_TRUE(found[i].judgment == expected[i].judgment ||
                  sameJudgment(store, found[i].judgment, expected[i].judgment))
          << "round " << round << " line " << i << ": " << found[i].judgment << " instead of "
          << expected[i].judgment;
      EXPECT_NEAR(found[i].indexWithout, expected[i].indexWithout, 1e-12) << "round " << round;
      // The line shown is the same, its rounded index and gain included.
      JudgmentInfluence shown = found[i];
      shown.judgment = expected[i].judgment;
      shown.indexWithout = expected[i].indexWithout;
      shown.gain = expected[i].gain;
      if (shown.judgment == found[i].judgment) {
        EXPECT_EQ(LeaveOneOut::describe(model, found[i]), LeaveOneOut::describe(model, shown));
      }
    }
    // The convenience form, which runs the full fit itself, lists the same.
    const std::vector<JudgmentInfluence> again =
        LeaveOneOut::worst(store, model, reg.work().Coef, record.ConsistencyIndex);
    ASSERT_EQ(again.size(), found.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
      EXPECT_EQ(again[i].judgment, found[i].judgment);
      EXPECT_EQ(again[i].indexWithout, found[i].indexWithout);
      EXPECT_EQ(LeaveOneOut::describe(model, again[i]), LeaveOneOut::describe(model, found[i]));
    }
    listed += static_cast<int>(found.size());
  }
  // Most stores are inconsistent enough to list three judgments.
  EXPECT_GT(listed, 400);
}

}  // namespace
}  // namespace tnw::tradeoffs
