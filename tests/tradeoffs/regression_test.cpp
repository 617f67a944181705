#include "tradeoffs/core/regression.h"

#include "regression_fixtures.h"
#include "tradeoffs/core/tradeoff_weights.h"

// Std
#include <cmath>
#include <utility>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

using testing::addJudgment;
using testing::setUpParameters;

TEST(RegressionTest, AllResponsesZeroAppendsOneObservationSoConsistentCoefficientsSumToOne) {
  // Numerical trade-offs consistent with the weights (0.5, 0.3, 0.2): w·ΔV = 0 for each.
  const double w[3] = {0.5, 0.3, 0.2};
  JudgmentStore store;
  for (double t : {0.2, 0.5}) {
    addJudgment(store, {w[1] * t, -w[0] * t, 0.0}, 0);
    addJudgment(store, {0.0, w[2] * t, -w[1] * t}, 0);
    addJudgment(store, {-w[2] * t, 0.0, w[0] * t}, 0);
  }
  TradeOffWeights weights;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, 3, record, weights);

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
    EXPECT_NEAR(weights.CloseWeights[static_cast<std::size_t>(i)], w[i], 1e-12);
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
  TradeOffWeights weights;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, 2, record, weights);
  reg.RegressMain(store, 2, record, weights);
  EXPECT_EQ(store.JudgmentCount, 3);
  EXPECT_EQ(store.PrefResponse.size(), 4u);
  EXPECT_EQ(reg.work().N, 4);
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

TEST(RegressionTest, TinyNonZeroPivotIsDividedByNeitherRepairedNorRefused) {
  Regression reg;
  RegressionWork& w = reg.work();
  w.dimension(5, 2);
  // A pivot of 1e-300 is not 0: it is divided by as it is. The true inverse is close to
  // ((-1, 1), (1, -1e-300)); a tolerance that repaired the pivot by adding row 2 would give
  // (1,1) = -1, one that refused it would set NoInverse.
  w.CrossProd(1, 1) = 1e-300;
  w.CrossProd(1, 2) = 1.0;
  w.CrossProd(2, 1) = 1.0;
  w.CrossProd(2, 2) = 1.0;
  ASSERT_TRUE(reg.Matrix_Invert());
  EXPECT_EQ(w.NoInverse, 0);
  EXPECT_TRUE(reg.warnings().empty());
  EXPECT_GT(std::fabs(w.InvMatrix(1, 1)), 1e200);
  EXPECT_NEAR(w.InvMatrix(1, 2), 1.0, 1e-12);
  EXPECT_NEAR(w.InvMatrix(2, 1), 1.0, 1e-12);

  // Alone on the diagonal the tiny pivot inverts exactly to 1e300.
  Regression diagonal;
  RegressionWork& d = diagonal.work();
  d.dimension(5, 2);
  d.CrossProd(1, 1) = 1e-300;
  d.CrossProd(2, 2) = 1.0;
  ASSERT_TRUE(diagonal.Matrix_Invert());
  EXPECT_EQ(d.NoInverse, 0);
  EXPECT_DOUBLE_EQ(d.InvMatrix(1, 1), 1e300);
  EXPECT_EQ(d.InvMatrix(2, 2), 1.0);
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
  TradeOffWeights weights;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, 3, record, weights);
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

}  // namespace
}  // namespace tnw::tradeoffs
