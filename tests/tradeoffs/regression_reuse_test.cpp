// One Regression running fit after fit keeps the storage of its working arrays: each fit must
// still be exactly the fit of a new Regression, whatever the sizes of the fits before it.

#include "tradeoffs/core/regression.h"
#include "tradeoffs/core/tradeoff_weights.h"

// Std
#include <cmath>
#include <limits>
#include <random>
#include <vector>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

// n pair judgments over k attributes, each row holding its first `given` differences only.
JudgmentStore drawJudgments(int k, int n, int given, bool indifferent, unsigned seed) {
  std::mt19937 rng(seed);
  std::uniform_int_distribution<int> attribute(0, given - 1);
  std::uniform_int_distribution<int> response(-3, 3);
  std::uniform_real_distribution<double> size(0.05, 1.0);
  JudgmentStore s;
  s.dimension(n, k);
  for (int r = 0; r < n; ++r) {
    auto& row = s.ValueDiff[static_cast<std::size_t>(r)];
    row.resize(static_cast<std::size_t>(given));
    const int a = attribute(rng);
    const int b = (a + 1 + attribute(rng) % (given - 1)) % given;
    row[static_cast<std::size_t>(a)] = std::round(size(rng) * 1e4) / 1e4;
    row[static_cast<std::size_t>(b)] = -std::round(size(rng) * 1e4) / 1e4;
    s.PrefResponse[static_cast<std::size_t>(r)] =
        indifferent ? 0 : static_cast<std::int16_t>(response(rng));
  }
  s.JudgmentCount = n;
  return s;
}

void expectSameMatrix(const Matrix& a, const Matrix& b, const char* what) {
  ASSERT_EQ(a.rows(), b.rows()) << what;
  ASSERT_EQ(a.cols(), b.cols()) << what;
  for (int i = 0; i < a.rows(); ++i) {
    for (int j = 0; j < a.cols(); ++j) {
      ASSERT_EQ(a(i, j), b(i, j)) << what << "(" << i << ", " << j << ")";
    }
  }
}

void expectSameWork(const RegressionWork& a, const RegressionWork& b) {
  EXPECT_EQ(a.N, b.N);
  EXPECT_EQ(a.K, b.K);
  expectSameMatrix(a.X, b.X, "X");
  expectSameMatrix(a.CrossProd, b.CrossProd, "CrossProd");
  expectSameMatrix(a.InvMatrix, b.InvMatrix, "InvMatrix");
  EXPECT_EQ(a.Y, b.Y);
  EXPECT_EQ(a.NonZeroStart, b.NonZeroStart);
  EXPECT_EQ(a.NonZeroAtt, b.NonZeroAtt);
  EXPECT_EQ(a.NonZeroDiff, b.NonZeroDiff);
  EXPECT_EQ(a.XMean, b.XMean);
  EXPECT_EQ(a.YMean, b.YMean);
  for (auto member : {&RegressionWork::RegCoef, &RegressionWork::Coef, &RegressionWork::CoefVar,
                      &RegressionWork::LowEst, &RegressionWork::HighEst,
                      &RegressionWork::ModelValue, &RegressionWork::Residual}) {
    EXPECT_EQ(a.*member, b.*member);
  }
  EXPECT_EQ(a.StdErrEst, b.StdErrEst);
  EXPECT_EQ(a.RSquared, b.RSquared);
  EXPECT_EQ(a.DegFreedom, b.DegFreedom);
  EXPECT_EQ(a.ConsistencyIndex, b.ConsistencyIndex);
  EXPECT_EQ(a.NoInverse, b.NoInverse);
}

TEST(RegressionReuseTest, EachFitAfterFitsOfOtherSizesIsTheFitOfANewRegression) {
  struct Case {
    int k, n, given;
    bool indifferent;
  };
  // Larger and smaller in turn; rows shorter than K after rows of K differences; the artificial
  // observation; too few judgments for a fit.
  const Case cases[] = {{31, 930, 31, false}, {5, 20, 5, false},   {31, 100, 20, false},
                        {8, 56, 8, true},     {31, 30, 31, false}, {31, 930, 31, false},
                        {3, 12, 2, false},    {16, 240, 16, true}};
  Regression reused;
  unsigned seed = 11;
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << "K " << c.k << ", N " << c.n << ", given " << c.given);
    JudgmentStore forReused = drawJudgments(c.k, c.n, c.given, c.indifferent, seed++);
    JudgmentStore forFresh = forReused;
    TradeOffWeights weights;
    MultiRegressionData record;
    reused.RegressMain(forReused, c.k, record, weights);
    Regression fresh;
    fresh.RegressMain(forFresh, c.k, record, weights);
    EXPECT_EQ(reused.failed(), fresh.failed());
    EXPECT_EQ(reused.error(), fresh.error());
    EXPECT_EQ(reused.warnings(), fresh.warnings());
    expectSameWork(reused.work(), fresh.work());
  }
}

TEST(RegressionReuseTest, TheNonZeroDifferencesAreListedFromXRowByRowInAttributeOrder) {
  RegressionWork w;
  w.dimension(4, 9);
  w.X(1, 2) = 0.5;
  w.X(1, 9) = -0.25;
  w.X(2, 1) = -0.0;  // a zero all the same
  w.X(2, 6) = std::numeric_limits<double>::quiet_NaN();
  for (int j = 1; j <= 9; ++j) w.X(4, j) = j;
  w.listNonZeros();
  EXPECT_EQ(w.NonZeroStart, (std::vector<int>{0, 0, 2, 3, 3, 12}));
  EXPECT_EQ(w.NonZeroAtt, (std::vector<int>{2, 9, 6, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
  ASSERT_EQ(w.NonZeroDiff.size(), 12u);
  EXPECT_EQ(w.NonZeroDiff[0], 0.5);
  EXPECT_EQ(w.NonZeroDiff[1], -0.25);
  EXPECT_TRUE(std::isnan(w.NonZeroDiff[2]));
  EXPECT_EQ(w.NonZeroDiff[11], 9.0);
  // Sizing the arrays anew empties the list, to be made from the new X.
  w.dimension(2, 3);
  EXPECT_TRUE(w.NonZeroStart.empty());
  EXPECT_TRUE(w.NonZeroAtt.empty());
  EXPECT_TRUE(w.NonZeroDiff.empty());
}

// Steps driven one by one on X written anew between them: the means are the new X's, and so is
// every step after them.
TEST(RegressionReuseTest, TheMeansAndTheStepsAfterThemReadXAsItIsWhenTheMeansAreTaken) {
  Regression r;
  RegressionWork& w = r.work();
  w.dimension(3, 2);
  w.X(1, 1) = 1.0;
  w.X(2, 2) = 1.0;
  r.CalMeans();
  EXPECT_EQ(w.XMean[1], 1.0 / 3.0);
  // New differences in the same shape, then the steps again from the means on.
  w.X(1, 1) = 0.0;
  w.X(3, 1) = 0.5;
  w.X(3, 2) = 0.25;
  w.Coef = {0.0, 2.0, 4.0};
  r.CalMeans();
  EXPECT_EQ(w.XMean[1], 0.5 / 3.0);
  EXPECT_EQ(w.XMean[2], 1.25 / 3.0);
  r.CalModelValues();
  EXPECT_EQ(w.ModelValue[1], 0.0);
  EXPECT_EQ(w.ModelValue[2], 4.0);
  EXPECT_EQ(w.ModelValue[3], 2.0);
}

}  // namespace
}  // namespace tnw::tradeoffs
