#include "tradeoffs/core/leave_one_out.h"

#include "model/value_function.h"
#include "regression_fixtures.h"
#include "trade_off_fixtures.h"
#include "tradeoffs/core/regression.h"
#include "tradeoffs/core/tradeoff_weights.h"

// Std
#include <cmath>
#include <random>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

// Appends a numerical judgment on the pair (first, second) with scores A1, B1, A2, B2 on the
// model's linear 0..100 value functions (values score / 100, exact at two decimals).
void addScored(JudgmentStore& store, int first, int second, double a1, double b1, double a2,
               double b2, int numAtt = 3) {
  const int k = store.JudgmentCount;
  store.extend(k + 1, numAtt);
  const auto at = static_cast<std::size_t>(k);
  store.ScoreAFirst[at] = a1;
  store.ScoreBFirst[at] = b1;
  store.ScoreASecond[at] = a2;
  store.ScoreBSecond[at] = b2;
  store.FirstAtt[at] = static_cast<std::int16_t>(first);
  store.SecondAtt[at] = static_cast<std::int16_t>(second);
  store.PrefResponse[at] = 0;
  std::vector<double> diffs(static_cast<std::size_t>(numAtt), 0.0);
  diffs[static_cast<std::size_t>(first)] = (a1 - b1) / 100.0;
  diffs[static_cast<std::size_t>(second)] = (a2 - b2) / 100.0;
  store.ValueDiff[at] = diffs;
  store.JudgmentCount = k + 1;
}

// Five judgments consistent with the weights (0.5, 0.3, 0.2).
JudgmentStore consistentJudgments() {
  JudgmentStore store;
  addScored(store, 0, 1, 60, 30, 20, 70);
  addScored(store, 1, 2, 50, 30, 10, 40);
  addScored(store, 2, 0, 70, 20, 30, 50);
  addScored(store, 0, 1, 40, 22, 10, 40);
  addScored(store, 1, 2, 30, 20, 25, 40);
  return store;
}

class LeaveOneOutTest : public ::testing::Test {
 protected:
  // Runs the full fit on the store as the Next button does and returns its index.
  double fit(JudgmentStore& store) {
    reg.RegressMain(store, 3, record, weights);
    EXPECT_FALSE(reg.error().has_value());
    return record.ConsistencyIndex;
  }

  AttributeModel model = testing::makeModel(3, 100.0);
  TradeOffWeights weights;
  MultiRegressionData record;
  Regression reg;
};

TEST_F(LeaveOneOutTest, TheOneInconsistentJudgmentHurtsMostAndWithoutItTheIndexIsOne) {
  JudgmentStore store = consistentJudgments();
  // Judgment 6 trades 0.5 of attribute 3 against 0.5 of attribute 1; the weights say 0.2.
  addScored(store, 2, 0, 80, 30, 10, 60);
  const double full = fit(store);
  ASSERT_LT(full, 0.99);

  const auto worst = LeaveOneOut::worst(store, model, reg.work().Coef, full);
  ASSERT_FALSE(worst.empty());
  EXPECT_LE(worst.size(), 3u);
  EXPECT_EQ(worst[0].judgment, 6);
  EXPECT_EQ(worst[0].first, 2);
  EXPECT_EQ(worst[0].second, 0);
  EXPECT_EQ(worst[0].scores, (std::array<double, 4>{80, 30, 10, 60}));
  EXPECT_NEAR(worst[0].indexWithout, 1.0, 1e-12);
  EXPECT_NEAR(worst[0].gain, 1.0 - full, 1e-12);
  for (std::size_t i = 1; i < worst.size(); ++i) {
    EXPECT_LE(worst[i].gain, worst[i - 1].gain);
    EXPECT_GT(worst[i].gain, 0.0);
  }
  // The full regression run again sums in another order than the downdated sums: equal to
  // rounding.
  const auto again = LeaveOneOut::indexWithout(store, 3, 6);
  ASSERT_TRUE(again.has_value());
  EXPECT_NEAR(*again, worst[0].indexWithout, 1e-12);
}

TEST_F(LeaveOneOutTest, TheFittedScoreOfBMakesTheEstimatedWeightsFitTheJudgment) {
  JudgmentStore store = consistentJudgments();
  addScored(store, 2, 0, 80, 30, 10, 60);
  const double full = fit(store);
  const auto worst = LeaveOneOut::worst(store, model, reg.work().Coef, full);
  ASSERT_FALSE(worst.empty());
  const JudgmentInfluence& j = worst[0];
  ASSERT_TRUE(j.fittedBSecond.has_value());
  const auto& c = reg.work().Coef;  // 1-based: attribute 3 at [3], attribute 1 at [1]
  const double v = SingleAttValue(model, 0, *j.fittedBSecond).value->toDouble();
  // The model value c3 (v3(A1) - v3(B1)) + c1 (v1(A2) - v1(B2')) is the response 0.
  EXPECT_NEAR(c[3] * (0.80 - 0.30) + c[1] * (0.10 - v), 0.0, 1e-4);
  // Moving B's first score instead needs v3(B1') = 0.8 + c1 (0.1 - 0.6) / c3, when in 0..1.
  const double needed = 0.80 + c[1] * (0.10 - 0.60) / c[3];
  if (needed >= 0.0 && needed <= 1.0) {
    ASSERT_TRUE(j.fittedBFirst.has_value());
    EXPECT_NEAR(SingleAttValue(model, 2, *j.fittedBFirst).value->toDouble(), needed, 1e-4);
  } else {
    EXPECT_FALSE(j.fittedBFirst.has_value()) << needed;
  }
  EXPECT_EQ(LeaveOneOut::describe(model, j).rfind("Judgment 6 (Att3, Att1): A 80 / 10, B 30 / 60; "
                                                  "index without it 1.0000 (+",
                                                  0),
            0u)
      << LeaveOneOut::describe(model, j);
}

TEST_F(LeaveOneOutTest, ConsistentJudgmentsHurtNothing) {
  JudgmentStore store = consistentJudgments();
  addScored(store, 2, 0, 70, 20, 30, 50);
  const double full = fit(store);
  EXPECT_NEAR(full, 1.0, 1e-12);
  EXPECT_TRUE(LeaveOneOut::worst(store, model, reg.work().Coef, full).empty());
}

TEST_F(LeaveOneOutTest, AJudgmentWhoseRemovalLeavesNoFitIsPassedOver) {
  // Three attributes and four judgments: without one, N - K - 1 is 0 and no index is formed.
  JudgmentStore store;
  addScored(store, 0, 1, 60, 30, 20, 70);
  addScored(store, 1, 2, 50, 30, 10, 40);
  addScored(store, 2, 0, 70, 20, 30, 50);
  addScored(store, 0, 1, 40, 20, 10, 60);
  EXPECT_FALSE(LeaveOneOut::indexWithout(store, 3, 1).has_value());
  EXPECT_FALSE(LeaveOneOut::indexWithout(store, 3, 0).has_value());
  EXPECT_FALSE(LeaveOneOut::indexWithout(store, 3, 5).has_value());
  EXPECT_TRUE(LeaveOneOut::worst(store, model, std::vector<double>(4, 0.3), 0.5).empty());
}

TEST_F(LeaveOneOutTest, TakingTheSumsDownAgreesWithRunningTheRegressionAgain) {
  // Random judgments on four attributes, numerical and verbal; leaving out the one verbal
  // judgment changes whether the artificial observation is appended.
  std::mt19937 random(17);
  std::uniform_real_distribution<double> diff(-0.6, 0.6);
  JudgmentStore store;
  for (int k = 0; k < 14; ++k) {
    std::vector<double> d(4, 0.0);
    d[static_cast<std::size_t>(k % 4)] = diff(random);
    d[static_cast<std::size_t>((k + 1) % 4)] = diff(random);
    testing::addJudgment(store, d, static_cast<std::int16_t>(k == 5 ? 2 : 0));
  }
  const auto all = LeaveOneOut::indexesWithout(store, 4);
  ASSERT_EQ(all.size(), 14u);
  for (int k = 1; k <= 14; ++k) {
    const auto refit = LeaveOneOut::indexWithout(store, 4, k);
    ASSERT_EQ(all[static_cast<std::size_t>(k - 1)].has_value(), refit.has_value()) << k;
    if (refit) {
      EXPECT_NEAR(*all[static_cast<std::size_t>(k - 1)], *refit, 1e-10) << k;
    }
  }
}

TEST_F(LeaveOneOutTest, UpdatingTheInverseAgreesWithRunningTheRegressionAgain) {
  // Eight attributes in random judgments, some verbal; the last attribute is judged once, so
  // without that judgment its column is constant and no index can be formed.
  std::mt19937 random(29);
  std::uniform_real_distribution<double> diff(-0.8, 0.8);
  JudgmentStore store;
  for (int k = 0; k < 40; ++k) {
    std::vector<double> d(8, 0.0);
    d[static_cast<std::size_t>(k % 7)] = diff(random);
    d[static_cast<std::size_t>((k + 3) % 7)] = diff(random);
    testing::addJudgment(store, d, static_cast<std::int16_t>(k % 9 == 4 ? 1 + k % 3 : 0));
  }
  std::vector<double> once(8, 0.0);
  once[7] = 0.5;
  once[2] = -0.3;
  testing::addJudgment(store, once, 0);
  const auto all = LeaveOneOut::indexesWithout(store, 8);
  ASSERT_EQ(all.size(), 41u);
  int formed = 0;
  for (int k = 1; k <= 41; ++k) {
    const auto refit = LeaveOneOut::indexWithout(store, 8, k);
    ASSERT_EQ(all[static_cast<std::size_t>(k - 1)].has_value(), refit.has_value()) << k;
    if (refit) {
      EXPECT_NEAR(*all[static_cast<std::size_t>(k - 1)], *refit, 1e-10) << k;
      ++formed;
    }
  }
  EXPECT_EQ(formed, 40);
}

TEST_F(LeaveOneOutTest, ScoreForValueInvertsTheValueFunctionWithinTheRange) {
  const auto s = LeaveOneOut::scoreForValue(model, 1, 0.25);
  ASSERT_TRUE(s.has_value());
  EXPECT_NEAR(*s, 25.0, 0.01);
  EXPECT_EQ(SingleAttValue(model, 1, *s).value->toDouble(), 0.25);
  EXPECT_FALSE(LeaveOneOut::scoreForValue(model, 1, 1.5).has_value());
  EXPECT_FALSE(LeaveOneOut::scoreForValue(model, 1, -0.1).has_value());
  EXPECT_FALSE(LeaveOneOut::scoreForValue(model, 40, 0.5).has_value());
}

}  // namespace
}  // namespace tnw::tradeoffs
