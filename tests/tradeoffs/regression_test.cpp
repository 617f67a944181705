#include "tradeoffs/regression.h"

#include "component/wizard_context.h"

// Std
#include <cmath>
#include <random>
#include <utility>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

// Appends one judgment with the given value differences (one per attribute) and response.
void addJudgment(JudgmentStore& store, std::vector<double> diffs, std::int16_t response) {
  const int k = store.JudgmentCount;
  store.extend(k + 1, static_cast<int>(diffs.size()));
  store.ValueDiff[static_cast<std::size_t>(k)] = std::move(diffs);
  store.PrefResponse[static_cast<std::size_t>(k)] = response;
  store.JudgmentCount = k + 1;
}

// A context whose weight tables and comment hold recognisable earlier values.
WizardContext contextWithEarlierResults(int numAtt) {
  WizardContext ctx;
  ctx.CloseWeights.assign(static_cast<std::size_t>(numAtt), 7.0);
  ctx.LowerWeights.assign(static_cast<std::size_t>(numAtt), 6.0);
  ctx.UpperWeights.assign(static_cast<std::size_t>(numAtt), 8.0);
  ctx.RegressionComment = "earlier";
  return ctx;
}

MultiRegressionData recordWithEarlierResults() {
  MultiRegressionData r;
  r.StdErrEst = 5.0;
  r.RSquared = 0.5;
  r.NumObs = 9;
  r.DegFreedom = 4;
  r.ConsistencyIndex = 0.25;
  r.Coef.fill(3.0);
  return r;
}

TEST(RegressionTest, AllResponsesZeroAppendsOneObservationSoConsistentCoefficientsSumToOne) {
  // Numerical trade-offs consistent with the weights (0.5, 0.3, 0.2): w·ΔV = 0 for each.
  const double w[3] = {0.5, 0.3, 0.2};
  JudgmentStore store;
  for (double t : {0.2, 0.5}) {
    addJudgment(store, {w[1] * t, -w[0] * t, 0.0}, 0);
    addJudgment(store, {0.0, w[2] * t, -w[1] * t}, 0);
    addJudgment(store, {-w[2] * t, 0.0, w[0] * t}, 0);
  }
  WizardContext ctx;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, 3, record, ctx);

  EXPECT_TRUE(reg.warnings().empty());
  EXPECT_FALSE(reg.error().has_value());
  EXPECT_EQ(store.JudgmentCount, 6);
  EXPECT_EQ(reg.work().N, 7);
  EXPECT_EQ(record.NumObs, 7);
  EXPECT_EQ(store.PrefResponse[6], 1);
  EXPECT_EQ(store.ValueDiff[6], (std::vector<double>{1.0, 1.0, 1.0}));
  double sum = 0.0;
  for (int i = 0; i < 3; ++i) {
    EXPECT_NEAR(record.Coef[static_cast<std::size_t>(i)], w[i], 1e-12);
    EXPECT_NEAR(ctx.CloseWeights[static_cast<std::size_t>(i)], w[i], 1e-12);
    sum += record.Coef[static_cast<std::size_t>(i)];
  }
  EXPECT_NEAR(sum, 1.0, 1e-12);
  EXPECT_NEAR(record.RSquared, 1.0, 1e-12);
  EXPECT_EQ(record.DegFreedom, 3);
}

TEST(RegressionTest, ArtificialObservationRewritesTheSameExtraPositionOnEveryRun) {
  JudgmentStore store;
  addJudgment(store, {0.3, -0.5}, 0);
  addJudgment(store, {0.6, -1.0}, 0);
  addJudgment(store, {-0.3, 0.5}, 0);
  WizardContext ctx;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, 2, record, ctx);
  reg.RegressMain(store, 2, record, ctx);
  EXPECT_EQ(store.JudgmentCount, 3);
  EXPECT_EQ(store.PrefResponse.size(), 4u);
  EXPECT_EQ(reg.work().N, 4);
}

TEST(RegressionTest, ZeroColumnCannotBeRepairedSoNoInverseStopsBeforeAnyStatistic) {
  // Attribute 3 appears in no judgment and the verbal responses need no extra observation.
  JudgmentStore store;
  addJudgment(store, {0.4, -0.2, 0.0}, -2);
  addJudgment(store, {-0.1, 0.3, 0.0}, 1);
  addJudgment(store, {0.2, 0.2, 0.0}, 3);
  addJudgment(store, {0.5, -0.4, 0.0}, -1);
  WizardContext ctx = contextWithEarlierResults(3);
  MultiRegressionData record = recordWithEarlierResults();
  Regression reg;
  reg.RegressMain(store, 3, record, ctx);

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
  EXPECT_EQ(ctx.CloseWeights, (std::vector<double>{7.0, 7.0, 7.0}));
  EXPECT_EQ(ctx.RegressionComment, "earlier");
}

TEST(RegressionTest, ZeroPivotIsRepairedByAddingTheFirstLaterRowWithoutRowExchange) {
  Regression reg;
  RegressionWork& w = reg.work();
  w.dimension(5, 3);
  // Pivot (1,1) is 0; row 3 is the first later row with a non-zero entry in column 1.
  const double a[3][3] = {{0.0, 2.0, 1.0}, {0.0, 1.0, 0.0}, {4.0, 0.0, 1.0}};
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) w.CrossProd(i + 1, j + 1) = a[i][j];
  }
  ASSERT_TRUE(reg.Matrix_Invert());
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) {
      double p = 0.0;
      for (int m = 0; m < 3; ++m) p += a[i][m] * w.InvMatrix(m + 1, j + 1);
      EXPECT_NEAR(p, i == j ? 1.0 : 0.0, 1e-12) << i << "," << j;
    }
  }
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

TEST(RegressionTest, NegativeCoefficientsMinusPointOneFourSevenBecomeZeroPointFiveEight) {
  Regression reg;
  RegressionWork& w = reg.work();
  w.dimension(2, 3);
  const double coef[3] = {-0.1, 0.4, 0.7};
  for (int i = 1; i <= 3; ++i) {
    w.Coef[static_cast<std::size_t>(i)] = coef[i - 1];
    w.CoefVar[static_cast<std::size_t>(i)] = 0.01;
  }
  w.X(1, 1) = 1.0;
  w.X(1, 2) = 1.0;
  w.X(1, 3) = 1.0;
  w.Y[1] = 1.0;
  reg.LowHighEstimation();
  reg.CalModelValues();
  const double shifted[3] = {0.0, 0.5, 0.8};
  for (int i = 1; i <= 3; ++i) {
    const auto ii = static_cast<std::size_t>(i);
    EXPECT_NEAR(w.Coef[ii], shifted[i - 1], 1e-15);
    EXPECT_NEAR(w.LowEst[ii], shifted[i - 1] - 0.02, 1e-15);
    EXPECT_NEAR(w.HighEst[ii], shifted[i - 1] + 0.02, 1e-15);
  }
  EXPECT_NEAR(w.ModelValue[1], 1.3, 1e-15);
  EXPECT_NEAR(w.Residual[1], -0.3, 1e-15);
  EXPECT_EQ(w.Verdict,
            "  Some weights were negative! You should adjust responses or add comparisons.");
}

TEST(RegressionTest, FitWithCoefficientsMinusPointOneFourSevenIsShiftedBeforeItIsStored) {
  // Responses exactly X·(-0.1, 0.4, 0.7).
  JudgmentStore store;
  addJudgment(store, {10.0, 0.0, 0.0}, -1);
  addJudgment(store, {0.0, 5.0, 0.0}, 2);
  addJudgment(store, {0.0, 0.0, 10.0}, 7);
  addJudgment(store, {10.0, 5.0, 10.0}, 8);
  addJudgment(store, {0.0, 10.0, 0.0}, 4);
  addJudgment(store, {-10.0, 0.0, 0.0}, 1);
  addJudgment(store, {0.0, 0.0, -10.0}, -7);
  WizardContext ctx;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, 3, record, ctx);
  ASSERT_FALSE(reg.failed());
  EXPECT_NEAR(reg.work().RegCoef[1], -0.1, 1e-9);
  EXPECT_NEAR(record.Coef[0], 0.0, 1e-9);
  EXPECT_NEAR(record.Coef[1], 0.5, 1e-9);
  EXPECT_NEAR(record.Coef[2], 0.8, 1e-9);
  EXPECT_EQ(reg.work().Verdict,
            "  Some weights were negative! You should adjust responses or add comparisons.");
}

TEST(RegressionTest, PositiveCoefficientsAreAcceptableAndUnshifted) {
  Regression reg;
  RegressionWork& w = reg.work();
  w.dimension(2, 2);
  w.Coef[1] = 0.25;
  w.Coef[2] = 0.0;
  reg.LowHighEstimation();
  EXPECT_EQ(w.Coef[1], 0.25);
  EXPECT_EQ(w.Coef[2], 0.0);
  EXPECT_EQ(w.Verdict, "  The weights are acceptable.");
}

struct CommentCase {
  double index;
  const char* text;
};

class ConsistencyCommentTest : public ::testing::TestWithParam<CommentCase> {};

TEST_P(ConsistencyCommentTest, BandIsChosenOnTheIndexRoundedToCurrency) {
  EXPECT_EQ(Regression::consistencyComment(GetParam().index), std::string(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    Thresholds, ConsistencyCommentTest,
    ::testing::Values(
        CommentCase{0.75,
                    "  Consistency index is 0.75, which is not good. You had better adjust the "
                    "pairwise comparisons among the criteria again."},
        CommentCase{0.85,
                    "  Consistency index is 0.85, which looks good. You may get more consistent "
                    "judgments if you further adjust the pairwise comparisons among the criteria."},
        CommentCase{0.9, "  Consistency index is 0.9. It is very good! "},
        CommentCase{0.90006, "  Consistency index is 0.9001. It is extremely good!"},
        CommentCase{0.82344,
                    "  Consistency index is 0.8234, which looks good. You may get more consistent "
                    "judgments if you further adjust the pairwise comparisons among the criteria."},
        CommentCase{0.85004,
                    "  Consistency index is 0.85, which looks good. You may get more "
                    "consistent judgments if you further adjust the pairwise comparisons "
                    "among the criteria."}));

// Sets up CalParameters for N observations and K attributes with R² = ssr / total.
void setUpParameters(RegressionWork& w, int n, int k, double total, double ssr) {
  w.dimension(n, k);
  w.CrossProd(0, 0) = total;
  for (int i = 1; i <= k; ++i) {
    w.RegCoef[static_cast<std::size_t>(i)] = 1.0;
    w.CrossProd(i, 0) = ssr / k;
    w.CrossProd(i, i) = 1.0;
    w.InvMatrix(i, i) = 2.0;
  }
}

TEST(RegressionTest, FiveObservationsThreeAttributesRSquaredPointNineGiveIndexPointEight) {
  Regression reg;
  RegressionWork& w = reg.work();
  setUpParameters(w, 5, 3, 10.0, 9.0);
  ASSERT_TRUE(reg.CalParameters());
  EXPECT_EQ(w.DegFreedom, 1);
  EXPECT_NEAR(w.RSquared, 0.9, 1e-15);
  EXPECT_NEAR(w.ConsistencyIndex, 0.8, 1e-12);  // 1 - 0.1 × 4 / 2
  EXPECT_NEAR(w.StdErrEst, 1.0, 1e-12);         // √|1 / 1|
  EXPECT_NEAR(w.CoefVar[2], 2.0, 1e-12);        // (SSE / DF) × InvMatrix(2,2), no root
  EXPECT_EQ(w.Constant, 0.0);
  EXPECT_TRUE(reg.warnings().empty());
}

TEST(RegressionTest, ZeroTotalSumOfSquaresWarnsAndLaterStepsRunOnUnsetCoefficients) {
  // Every response is 2: the fit has nothing to explain.
  JudgmentStore store;
  addJudgment(store, {0.4, -0.2}, 2);
  addJudgment(store, {-0.1, 0.3}, 2);
  addJudgment(store, {0.2, 0.25}, 2);
  addJudgment(store, {0.5, -0.4}, 2);
  WizardContext ctx = contextWithEarlierResults(2);
  MultiRegressionData record = recordWithEarlierResults();
  Regression reg;
  reg.RegressMain(store, 2, record, ctx);
  ASSERT_EQ(reg.warnings().size(), 1u);
  EXPECT_EQ(reg.warnings()[0], "  mL(0,0)=0, can not calculate the whole coefficients!");
  EXPECT_FALSE(reg.error().has_value());
  EXPECT_EQ(record.NumObs, 4);
  EXPECT_EQ(record.DegFreedom, 0);
  EXPECT_EQ(record.RSquared, 0.0);
  EXPECT_EQ(record.Coef[0], 0.0);
  EXPECT_EQ(ctx.CloseWeights, (std::vector<double>{0.0, 0.0}));
  EXPECT_EQ(ctx.RegressionComment,
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

TEST(RegressionTest, AttributeThatNeverVariedWarnsWithItsNumberTwiceAndGoesOn) {
  Regression reg;
  RegressionWork& w = reg.work();
  setUpParameters(w, 8, 3, 10.0, 9.0);
  w.CrossProd(2, 2) = 0.0;
  ASSERT_TRUE(reg.CalParameters());
  ASSERT_EQ(reg.warnings().size(), 1u);
  EXPECT_EQ(reg.warnings()[0], "  mL(2, 2)=0, you will get a zero weight!");
  EXPECT_EQ(w.Coef[3], 1.0);
}

TEST(RegressionTest, TwoAttributesWithNumericalTradeOffsHaveNoDegreeOfFreedomAndStopCleanly) {
  // NumAtt = 2 needs two trade-offs; the artificial observation makes N = 3 = K + 1.
  JudgmentStore store;
  addJudgment(store, {0.3, -0.5}, 0);
  addJudgment(store, {-0.2, 0.25}, 0);
  WizardContext ctx = contextWithEarlierResults(2);
  MultiRegressionData record = recordWithEarlierResults();
  Regression reg;
  reg.RegressMain(store, 2, record, ctx);
  EXPECT_EQ(reg.work().N, 3);
  ASSERT_TRUE(reg.error().has_value());
  EXPECT_EQ(*reg.error(), Regression::kNoDegreeOfFreedomError);
  EXPECT_EQ(reg.error()->rfind("  ", 0), 0u);
  EXPECT_TRUE(reg.failed());
  EXPECT_EQ(record.NumObs, 9);
  EXPECT_EQ(ctx.CloseWeights, (std::vector<double>{7.0, 7.0}));
  EXPECT_EQ(ctx.RegressionComment, "earlier");
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

TEST(RegressionTest, CalWeightsDividesByTheSumOfTheCoefficients) {
  Regression reg;
  RegressionWork& w = reg.work();
  w.dimension(4, 3);
  w.Coef[1] = 0.2;
  w.Coef[2] = 0.6;
  w.Coef[3] = 1.2;
  EXPECT_FALSE(reg.CalWeights().has_value());
  EXPECT_NEAR(w.Weights[1], 0.1, 1e-15);
  EXPECT_NEAR(w.Weights[2], 0.3, 1e-15);
  EXPECT_NEAR(w.Weights[3], 0.6, 1e-15);
}

TEST(RegressionTest, MoreThanThirtyOneAttributesEndInAMessage) {
  JudgmentStore store;
  WizardContext ctx;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, 32, record, ctx);
  ASSERT_TRUE(reg.error().has_value());
  EXPECT_EQ(*reg.error(), Regression::kTooManyAttributesError);
}

TEST(RegressionTest, NoJudgmentsAtAllGiveTheNoInverseWarning) {
  JudgmentStore store;
  WizardContext ctx;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, 3, record, ctx);
  EXPECT_EQ(reg.work().N, 1);
  ASSERT_EQ(reg.warnings().size(), 1u);
  EXPECT_EQ(reg.warnings()[0], Regression::kNoInverseWarning);
}

}  // namespace
}  // namespace tnw
