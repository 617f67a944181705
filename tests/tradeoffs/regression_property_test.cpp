// The regression against an independent least-squares solution: the normal equations of the
// model with an intercept, solved by Gaussian elimination with partial pivoting.

#include "component/wizard_context.h"
#include "tradeoffs/regression.h"

// Std
#include <cmath>
#include <random>
#include <utility>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

// Solves a·x = b for a square system with partial pivoting.
std::vector<double> solve(std::vector<std::vector<double>> a, std::vector<double> b) {
  const std::size_t n = b.size();
  for (std::size_t c = 0; c < n; ++c) {
    std::size_t p = c;
    for (std::size_t r = c + 1; r < n; ++r) {
      if (std::fabs(a[r][c]) > std::fabs(a[p][c])) p = r;
    }
    std::swap(a[c], a[p]);
    std::swap(b[c], b[p]);
    for (std::size_t r = c + 1; r < n; ++r) {
      const double f = a[r][c] / a[c][c];
      for (std::size_t j = c; j < n; ++j) a[r][j] -= f * a[c][j];
      b[r] -= f * b[c];
    }
  }
  std::vector<double> x(n);
  for (std::size_t i = n; i-- > 0;) {
    double s = b[i];
    for (std::size_t j = i + 1; j < n; ++j) s -= a[i][j] * x[j];
    x[i] = s / a[i][i];
  }
  return x;
}

struct LeastSquares {
  std::vector<double> slopes;
  double rSquared = 0.0;
};

// Fits y = b0 + Σ bj xj by the normal equations; returns the slopes and R².
LeastSquares fit(const std::vector<std::vector<double>>& x, const std::vector<double>& y) {
  const std::size_t n = y.size();
  const std::size_t p = x.front().size() + 1;
  std::vector<std::vector<double>> ata(p, std::vector<double>(p, 0.0));
  std::vector<double> aty(p, 0.0);
  for (std::size_t k = 0; k < n; ++k) {
    std::vector<double> row{1.0};
    row.insert(row.end(), x[k].begin(), x[k].end());
    for (std::size_t i = 0; i < p; ++i) {
      aty[i] += row[i] * y[k];
      for (std::size_t j = 0; j < p; ++j) ata[i][j] += row[i] * row[j];
    }
  }
  const std::vector<double> b = solve(ata, aty);
  double mean = 0.0;
  for (double v : y) mean += v / static_cast<double>(n);
  double sse = 0.0;
  double sst = 0.0;
  for (std::size_t k = 0; k < n; ++k) {
    double f = b[0];
    for (std::size_t j = 1; j < p; ++j) f += b[j] * x[k][j - 1];
    sse += (y[k] - f) * (y[k] - f);
    sst += (y[k] - mean) * (y[k] - mean);
  }
  return {std::vector<double>(b.begin() + 1, b.end()), 1.0 - sse / sst};
}

class RegressionPropertyTest : public ::testing::TestWithParam<std::pair<int, int>> {};

TEST_P(RegressionPropertyTest, MatchesIndependentLeastSquaresOnRandomWellConditionedJudgments) {
  const int k = GetParam().first;
  const int n = GetParam().second;
  std::mt19937 rng(static_cast<unsigned>(1000 * k + n));
  std::uniform_real_distribution<double> diff(-1.0, 1.0);
  std::uniform_int_distribution<int> response(-3, 3);
  for (int trial = 0; trial < 20; ++trial) {
    JudgmentStore store;
    store.dimension(n, k);
    std::vector<std::vector<double>> x(static_cast<std::size_t>(n));
    std::vector<double> y(static_cast<std::size_t>(n));
    for (int obs = 0; obs < n; ++obs) {
      const auto o = static_cast<std::size_t>(obs);
      for (int j = 0; j < k; ++j) x[o].push_back(diff(rng));
      // A response of 3 first keeps the responses from being all 0.
      y[o] = obs == 0 ? 3 : response(rng);
      store.ValueDiff[o] = x[o];
      store.PrefResponse[o] = static_cast<std::int16_t>(y[o]);
    }
    store.JudgmentCount = n;
    WizardContext ctx;
    MultiRegressionData record;
    Regression reg;
    reg.RegressMain(store, k, record, ctx);
    ASSERT_FALSE(reg.failed());
    ASSERT_TRUE(reg.warnings().empty());

    const LeastSquares expected = fit(x, y);
    double shift = 0.0;
    for (int j = 0; j < k; ++j)
      shift = std::max(shift, -expected.slopes[static_cast<std::size_t>(j)]);
    for (int j = 0; j < k; ++j) {
      const auto jj = static_cast<std::size_t>(j);
      EXPECT_NEAR(reg.work().RegCoef[jj + 1], expected.slopes[jj], 1e-9);
      EXPECT_NEAR(record.Coef[jj], expected.slopes[jj] + shift, 1e-9);
    }
    EXPECT_NEAR(record.RSquared, expected.rSquared, 1e-9);
    EXPECT_EQ(record.DegFreedom, n - k - 1);
    const double index = 1.0 - (1.0 - expected.rSquared) * (n - 1) / (n - k);
    EXPECT_NEAR(record.ConsistencyIndex, index, 1e-9);
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, RegressionPropertyTest,
                         ::testing::Values(std::make_pair(2, 6), std::make_pair(3, 12),
                                           std::make_pair(5, 20), std::make_pair(8, 56),
                                           std::make_pair(31, 930)));

}  // namespace
}  // namespace tnw
