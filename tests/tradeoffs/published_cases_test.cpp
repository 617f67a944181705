// Published cases for the weight estimation: the NIST StRD "Longley" data set with its certified
// least-squares results, and a two-attribute trade-off example whose answer is known exactly.

#include "regression_fixtures.h"
#include "tradeoffs/core/regression.h"
#include "tradeoffs/core/tradeoff_weights.h"

// Std
#include <array>
#include <cmath>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

using testing::addJudgment;

// The Longley data (NIST StRD, linear regression, "higher" difficulty): 16 observations of
// y = total employment on x1 GNP deflator, x2 GNP, x3 unemployed, x4 armed forces,
// x5 population and x6 year, as printed in the certificate.
constexpr int kLongleyN = 16;
constexpr int kLongleyK = 6;
constexpr std::array<std::array<double, kLongleyK + 1>, kLongleyN> kLongley{{
    {60323, 83.0, 234289, 2356, 1590, 107608, 1947},
    {61122, 88.5, 259426, 2325, 1456, 108632, 1948},
    {60171, 88.2, 258054, 3682, 1616, 109773, 1949},
    {61187, 89.5, 284599, 3351, 1650, 110929, 1950},
    {63221, 96.2, 328975, 2099, 3099, 112075, 1951},
    {63639, 98.1, 346999, 1932, 3594, 113270, 1952},
    {64989, 99.0, 365385, 1870, 3547, 115094, 1953},
    {63761, 100.0, 363112, 3578, 3350, 116219, 1954},
    {66019, 101.2, 397469, 2904, 3048, 117388, 1955},
    {67857, 104.6, 419180, 2822, 2857, 118734, 1956},
    {68169, 108.4, 442769, 2936, 2798, 120445, 1957},
    {66513, 110.8, 444546, 4681, 2637, 121950, 1958},
    {68655, 112.6, 482704, 3813, 2552, 123366, 1959},
    {69564, 114.2, 502601, 3931, 2514, 125368, 1960},
    {69331, 115.7, 518173, 4806, 2572, 127852, 1961},
    {70551, 116.9, 554894, 4007, 2827, 130081, 1962},
}};

// The certified values: intercept b0 and b1..b6, their standard deviations, the residual
// standard deviation and R².
constexpr std::array<double, kLongleyK + 1> kCertifiedB{
    -3482258.63459582, 15.0618722713733,       -0.358191792925910E-01, -2.02022980381683,
    -1.03322686717359, -0.511041056535807E-01, 1829.15146461355};
constexpr std::array<double, kLongleyK + 1> kCertifiedSd{
    890420.383607373,  84.9149257747669,  0.334910077722432E-01, 0.488399681651699,
    0.214274163161675, 0.226073200069370, 455.478499142212};
constexpr double kCertifiedResidualSd = 304.854073561965;
constexpr double kCertifiedRSquared = 0.995479004577296;

// Ten significant digits: a relative error of at most 1e-10 (a log relative error of 10).
void expectTenDigits(double actual, double certified, const char* what, int i) {
  EXPECT_LE(std::fabs(actual - certified), 1e-10 * std::fabs(certified))
      << what << " " << i << ": " << actual << " against the certified " << certified;
}

// The Longley responses exceed a judgment's 16-bit response, so the data go straight into the
// working arrays and the fit's own steps run on them, as RegressMain runs them after loading.
class LongleyFit : public ::testing::Test {
 protected:
  void SetUp() override {
    RegressionWork& w = m_reg.work();
    w.dimension(kLongleyN, kLongleyK);
    for (int k = 1; k <= kLongleyN; ++k) {
      const auto& row = kLongley[static_cast<std::size_t>(k - 1)];
      w.Y[static_cast<std::size_t>(k)] = row[0];
      for (int j = 1; j <= kLongleyK; ++j) w.X(k, j) = row[static_cast<std::size_t>(j)];
    }
    m_reg.CalMeans();
    m_reg.CalCoeffMatrix();
    ASSERT_TRUE(m_reg.Matrix_Invert());
    m_reg.CalCoefficients();
    ASSERT_TRUE(m_reg.CalParameters());
  }

  Regression m_reg;
};

TEST_F(LongleyFit, SlopesMatchTheCertifiedCoefficientsToTenDigits) {
  const RegressionWork& w = m_reg.work();
  for (int i = 1; i <= kLongleyK; ++i) {
    expectTenDigits(w.RegCoef[static_cast<std::size_t>(i)],
                    kCertifiedB[static_cast<std::size_t>(i)], "coefficient", i);
  }
  EXPECT_TRUE(m_reg.warnings().empty());
}

TEST_F(LongleyFit, ErrorTermsAreTheSquaresOfTheCertifiedStandardDeviations) {
  // CoefVar is the variance-like term (no square root), so its root is the standard deviation.
  const RegressionWork& w = m_reg.work();
  for (int i = 1; i <= kLongleyK; ++i) {
    expectTenDigits(std::sqrt(w.CoefVar[static_cast<std::size_t>(i)]),
                    kCertifiedSd[static_cast<std::size_t>(i)], "standard deviation", i);
  }
}

TEST_F(LongleyFit, InterceptFromTheCentredFitMatchesTheCertifiedOne) {
  // The fit reports no constant; the centred sums imply b0 = mean(y) - Σ bi mean(xi), with the
  // variance s² (1/N + x̄ᵀ InvMatrix x̄).
  const RegressionWork& w = m_reg.work();
  double b0 = w.YMean;
  double quad = 0.0;
  for (int i = 1; i <= kLongleyK; ++i) {
    const auto ii = static_cast<std::size_t>(i);
    b0 -= w.RegCoef[ii] * w.XMean[ii];
    for (int j = 1; j <= kLongleyK; ++j) {
      quad += w.XMean[ii] * w.InvMatrix(i, j) * w.XMean[static_cast<std::size_t>(j)];
    }
  }
  const double s2 = w.StdErrEst * w.StdErrEst;
  expectTenDigits(b0, kCertifiedB[0], "intercept", 0);
  expectTenDigits(std::sqrt(s2 * (1.0 / kLongleyN + quad)), kCertifiedSd[0], "intercept sd", 0);
  EXPECT_EQ(w.Constant, 0.0);
}

TEST_F(LongleyFit, ResidualStandardDeviationAndRSquaredMatchTheCertificate) {
  const RegressionWork& w = m_reg.work();
  expectTenDigits(w.StdErrEst, kCertifiedResidualSd, "residual sd", 0);
  expectTenDigits(w.RSquared, kCertifiedRSquared, "R squared", 0);
  EXPECT_EQ(w.DegFreedom, 9);
}

TEST(TwoAttributeTradeOffTest, ThreeConsistentIndifferenceJudgmentsGiveTwoThirdsAndOneThird) {
  // A's gain on attribute 1 exactly balances twice its loss on attribute 2 in each judgment
  // (value differences that are exact in binary), so w1 = 2 w2; the appended observation makes
  // the weights sum to one.
  JudgmentStore store;
  addJudgment(store, {0.125, -0.25}, 0);
  addJudgment(store, {-0.25, 0.5}, 0);
  addJudgment(store, {0.375, -0.75}, 0);
  TradeOffWeights weights;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, 2, record, weights);
  ASSERT_FALSE(reg.error().has_value());
  ASSERT_FALSE(reg.CalWeights().has_value());

  const RegressionWork& w = reg.work();
  EXPECT_TRUE(reg.warnings().empty());
  EXPECT_EQ(record.NumObs, 4);
  EXPECT_EQ(record.DegFreedom, 1);
  EXPECT_DOUBLE_EQ(w.Weights[1], 2.0 / 3.0);
  EXPECT_DOUBLE_EQ(w.Weights[2], 1.0 / 3.0);
  EXPECT_DOUBLE_EQ(record.Coef[0], 2.0 / 3.0);
  EXPECT_DOUBLE_EQ(record.Coef[1], 1.0 / 3.0);
  EXPECT_DOUBLE_EQ(record.RSquared, 1.0);
  EXPECT_DOUBLE_EQ(record.ConsistencyIndex, 1.0);
  EXPECT_EQ(weights.RegressionComment, "  Consistency index is 1. It is extremely good!");
}

}  // namespace
}  // namespace tnw::tradeoffs
