// The fits that cannot be completed: the warnings, the defined outcomes, and what each leaves in
// the record, the shared tables and the weights.

#include "regression_fixtures.h"
#include "tradeoffs/core/regression.h"

// Std
#include <cmath>
#include <string>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

using testing::addJudgment;
using testing::recordWithEarlierResults;
using testing::setUpParameters;
using testing::weightsWithEarlierResults;

TEST(RegressionTest, ZeroColumnCannotBeRepairedSoNoInverseStopsBeforeAnyStatistic) {
  // Attribute 3 appears in no judgment and the verbal responses need no extra observation.
  JudgmentStore store;
  addJudgment(store, {0.4, -0.2, 0.0}, -2);
  addJudgment(store, {-0.1, 0.3, 0.0}, 1);
  addJudgment(store, {0.2, 0.2, 0.0}, 3);
  addJudgment(store, {0.5, -0.4, 0.0}, -1);
  TradeOffWeights weights = weightsWithEarlierResults(3);
  MultiRegressionData record = recordWithEarlierResults();
  Regression reg;
  reg.RegressMain(store, 3, record, weights);

  ASSERT_EQ(reg.warnings().size(), 1u);
  EXPECT_EQ(reg.warnings()[0],
            "  Since there is no invert matrix can be abtained, the regression results are not "
            "correct!");
  EXPECT_EQ(reg.work().NoInverse, 1);
  EXPECT_TRUE(reg.failed());
  EXPECT_EQ(reg.work().N, 4);
  EXPECT_EQ(reg.work().RSquared, 0.0);
  EXPECT_EQ(reg.work().RegCoef[1], 0.0);
  EXPECT_EQ(record.NumObs, 9);
  EXPECT_EQ(record.RSquared, 0.5);
  EXPECT_EQ(weights.CloseWeights, (std::vector<double>{7.0, 7.0, 7.0}));
  EXPECT_EQ(weights.RegressionComment, "earlier");
}

TEST(RegressionTest, ZeroPivotWithNoLaterRowToRepairItSetsNoInverse) {
  Regression reg;
  RegressionWork& w = reg.work();
  w.dimension(5, 2);
  w.CrossProd(1, 1) = 1.0;
  w.CrossProd(1, 2) = 2.0;
  w.CrossProd(2, 1) = 2.0;
  w.CrossProd(2, 2) = 4.0;  // exactly singular: row 2 becomes 0 after the first pivot
  EXPECT_FALSE(reg.Matrix_Invert());
  EXPECT_EQ(w.NoInverse, 1);
  ASSERT_EQ(reg.warnings().size(), 1u);
  EXPECT_EQ(reg.warnings()[0], Regression::kNoInverseWarning);
}

TEST(RegressionTest, ZeroTotalSumOfSquaresWarnsAndLaterStepsRunOnUnsetCoefficients) {
  // Every response is 2: the fit has nothing to explain.
  JudgmentStore store;
  addJudgment(store, {0.4, -0.2}, 2);
  addJudgment(store, {-0.1, 0.3}, 2);
  addJudgment(store, {0.2, 0.25}, 2);
  addJudgment(store, {0.5, -0.4}, 2);
  TradeOffWeights weights = weightsWithEarlierResults(2);
  MultiRegressionData record = recordWithEarlierResults();
  Regression reg;
  reg.RegressMain(store, 2, record, weights);
  ASSERT_EQ(reg.warnings().size(), 1u);
  EXPECT_EQ(reg.warnings()[0], "  mL(0,0)=0, can not calculate the whole coefficients!");
  EXPECT_FALSE(reg.error().has_value());
  EXPECT_EQ(record.NumObs, 4);
  EXPECT_EQ(record.DegFreedom, 0);
  EXPECT_EQ(record.RSquared, 0.0);
  EXPECT_EQ(record.Coef[0], 0.0);
  EXPECT_EQ(weights.CloseWeights, (std::vector<double>{0.0, 0.0}));
  EXPECT_EQ(weights.RegressionComment,
            "  Consistency index is 0, which is not good. You had better adjust the pairwise "
            "comparisons among the criteria again.");
}

TEST(RegressionTest, NegativeRegressionSumWarnsAndStopsTheStatistics) {
  Regression reg;
  RegressionWork& w = reg.work();
  setUpParameters(w, 6, 1, 1.0, -1.0);
  EXPECT_FALSE(reg.CalParameters());
  ASSERT_EQ(reg.warnings().size(), 1u);
  EXPECT_EQ(reg.warnings()[0],
            "  The regression sum is less than zero, can not calculate the whole coefficients!");
  EXPECT_EQ(w.RSquared, 0.0);
  EXPECT_EQ(w.Coef[1], 0.0);
}

TEST(RegressionTest, TwoAttributesWithNumericalTradeOffsHaveNoDegreeOfFreedomAndStopCleanly) {
  // NumAtt = 2 needs two trade-offs; the artificial observation makes N = 3 = K + 1.
  JudgmentStore store;
  addJudgment(store, {0.3, -0.5}, 0);
  addJudgment(store, {-0.2, 0.25}, 0);
  TradeOffWeights weights = weightsWithEarlierResults(2);
  MultiRegressionData record = recordWithEarlierResults();
  Regression reg;
  reg.RegressMain(store, 2, record, weights);
  EXPECT_EQ(reg.work().N, 3);
  ASSERT_TRUE(reg.error().has_value());
  EXPECT_EQ(*reg.error(), Regression::kNoDegreeOfFreedomError);
  EXPECT_EQ(reg.error()->rfind("  ", 0), 0u);
  EXPECT_TRUE(reg.failed());
  EXPECT_EQ(record.NumObs, 9);
  EXPECT_EQ(weights.CloseWeights, (std::vector<double>{7.0, 7.0}));
  EXPECT_EQ(weights.RegressionComment, "earlier");
  for (double v : reg.work().CoefVar) EXPECT_TRUE(std::isfinite(v));
  EXPECT_TRUE(std::isfinite(reg.work().StdErrEst));

  const std::optional<std::string> weightsError = reg.CalWeights();
  ASSERT_TRUE(weightsError.has_value());
  EXPECT_EQ(*weightsError, Regression::kZeroSumError);
  for (double v : reg.work().Weights) EXPECT_EQ(v, 0.0);
}

TEST(RegressionTest, AsManyObservationsAsAttributesLeaveNoDivisorForTheIndex) {
  Regression reg;
  RegressionWork& w = reg.work();
  setUpParameters(w, 3, 3, 10.0, 9.0);
  EXPECT_FALSE(reg.CalParameters());
  ASSERT_TRUE(reg.error().has_value());
  EXPECT_EQ(*reg.error(), Regression::kNoConsistencyError);
  EXPECT_TRUE(std::isfinite(w.ConsistencyIndex));
}

TEST(RegressionTest, CalWeightsRefusesAZeroSumANonFiniteSumAndWeightsThatOverflow) {
  Regression reg;
  RegressionWork& w = reg.work();
  w.dimension(4, 3);
  w.Coef[1] = 0.5;
  w.Coef[2] = -0.5;
  EXPECT_EQ(reg.CalWeights(), std::string(Regression::kZeroSumError));
  w.Coef[1] = 1e308;
  w.Coef[2] = 1e308;
  EXPECT_EQ(reg.CalWeights(), std::string(Regression::kNotFiniteError));
  // The sum 1e-300 is finite, but 1e10 / 1e-300 is not.
  w.Coef[1] = 1e10;
  w.Coef[2] = -1e10;
  w.Coef[3] = 1e-300;
  EXPECT_EQ(reg.CalWeights(), std::string(Regression::kNotFiniteError));
  for (double v : w.Weights) EXPECT_EQ(v, 0.0);
  // No attribute at all: there are no weights to form.
  w.dimension(1, 0);
  EXPECT_EQ(reg.CalWeights(), std::string(Regression::kZeroSumError));
}

TEST(RegressionTest, ZeroTotalSumOfSquaresLeavesCoefficientsThatCalWeightsCannotNormalise) {
  JudgmentStore store;
  addJudgment(store, {0.4, -0.2, 0.0}, 2);
  addJudgment(store, {0.0, 0.3, -0.1}, 2);
  addJudgment(store, {-0.2, 0.0, 0.25}, 2);
  addJudgment(store, {0.5, -0.4, 0.0}, 2);
  addJudgment(store, {0.0, 0.1, -0.3}, 2);
  TradeOffWeights weights;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, 3, record, weights);
  ASSERT_EQ(reg.warnings(), std::vector<std::string>{Regression::kZeroTotalWarning});
  EXPECT_FALSE(reg.error().has_value());
  EXPECT_EQ(reg.CalWeights(), std::string(Regression::kZeroSumError));
}

TEST(RegressionTest, MoreThanThirtyOneAttributesEndInAMessage) {
  JudgmentStore store;
  TradeOffWeights weights;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, 32, record, weights);
  ASSERT_TRUE(reg.error().has_value());
  EXPECT_EQ(*reg.error(), Regression::kTooManyAttributesError);
}

TEST(RegressionTest, NoJudgmentsAtAllGiveTheNoInverseWarning) {
  JudgmentStore store;
  TradeOffWeights weights;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, 3, record, weights);
  EXPECT_EQ(reg.work().N, 1);
  ASSERT_EQ(reg.warnings().size(), 1u);
  EXPECT_EQ(reg.warnings()[0], Regression::kNoInverseWarning);
}

}  // namespace
}  // namespace tnw::tradeoffs
