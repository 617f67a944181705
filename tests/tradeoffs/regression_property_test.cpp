// The regression against an independent least-squares solution: the normal equations of the
// model with an intercept, solved by Gaussian elimination with partial pivoting. Dense random
// observations first, then judgments as the page records them.

#include "tradeoffs/core/regression.h"
#include "tradeoffs/core/tradeoff_weights.h"

// Std
#include <algorithm>
#include <cmath>
#include <random>
#include <utility>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
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
    TradeOffWeights weights;
    MultiRegressionData record;
    Regression reg;
    reg.RegressMain(store, k, record, weights);
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

// Judgments as the dialog records them: each differs on its pair's two attributes only.
struct JudgmentCase {
  int k;
  int n;
  // Numerical trade-offs (every response 0, so the artificial observation is appended) or
  // verbal ones (responses -3..3).
  bool numerical;
  // The automatic cycle of neighbouring pairs, or pairs chosen at random in manual mode.
  bool cycle;
};

// Whether the centred columns of x are far from dependent: the Cholesky factor of their
// correlation matrix keeps every pivot above 0.1.
bool wellConditioned(const std::vector<std::vector<double>>& x) {
  const std::size_t n = x.size();
  const std::size_t k = x.front().size();
  std::vector<double> mean(k, 0.0);
  for (const auto& row : x) {
    for (std::size_t j = 0; j < k; ++j) mean[j] += row[j] / static_cast<double>(n);
  }
  std::vector<std::vector<double>> c(k, std::vector<double>(k, 0.0));
  for (const auto& row : x) {
    for (std::size_t i = 0; i < k; ++i) {
      for (std::size_t j = 0; j < k; ++j) c[i][j] += (row[i] - mean[i]) * (row[j] - mean[j]);
    }
  }
  for (std::size_t i = 0; i < k; ++i) {
    if (!(c[i][i] > 0.0)) return false;
  }
  std::vector<std::vector<double>> r(k, std::vector<double>(k, 0.0));
  for (std::size_t i = 0; i < k; ++i) {
    for (std::size_t j = 0; j < k; ++j) r[i][j] = c[i][j] / std::sqrt(c[i][i] * c[j][j]);
  }
  for (std::size_t j = 0; j < k; ++j) {
    double d = r[j][j];
    for (std::size_t m = 0; m < j; ++m) d -= r[j][m] * r[j][m];
    if (!(d > 0.01)) return false;
    r[j][j] = std::sqrt(d);
    for (std::size_t i = j + 1; i < k; ++i) {
      double v = r[i][j];
      for (std::size_t m = 0; m < j; ++m) v -= r[i][m] * r[j][m];
      r[i][j] = v / r[j][j];
    }
  }
  return true;
}

// A value difference as the page forms it: in currency, four decimals, never 0.
double valueDiff(std::mt19937& rng) {
  std::uniform_real_distribution<double> size(0.05, 1.0);
  std::bernoulli_distribution negative(0.5);
  const double d = std::round(size(rng) * 10000.0) / 10000.0;
  return negative(rng) ? -d : d;
}

class RegressionJudgmentPropertyTest : public ::testing::TestWithParam<JudgmentCase> {};

TEST_P(RegressionJudgmentPropertyTest, MatchesIndependentLeastSquaresOnTwoAttributeJudgments) {
  const JudgmentCase p = GetParam();
  std::mt19937 rng(
      static_cast<unsigned>(7919 * p.k + 31 * p.n + (p.numerical ? 1 : 0) + (p.cycle ? 2 : 0)));
  std::uniform_int_distribution<int> response(-3, 3);
  std::uniform_int_distribution<int> attribute(0, p.k - 1);
  std::uniform_real_distribution<double> weight(0.2, 1.0);
  int fitted = 0;
  for (int draw = 0; draw < 200 && fitted < 20; ++draw) {
    // Numerical trade-offs are near-indifferent under some weights: the second difference
    // roughly offsets the first.
    std::vector<double> w(static_cast<std::size_t>(p.k));
    for (double& v : w) v = weight(rng);
    JudgmentStore store;
    store.dimension(p.n, p.k);
    std::vector<std::vector<double>> x;
    std::vector<double> y;
    for (int obs = 0; obs < p.n; ++obs) {
      int first = obs % p.k;
      int second = (first + 1) % p.k;
      if (!p.cycle) {
        first = attribute(rng);
        do second = attribute(rng);
        while (second == first);
      }
      std::vector<double> row(static_cast<std::size_t>(p.k), 0.0);
      const auto f = static_cast<std::size_t>(first);
      const auto s = static_cast<std::size_t>(second);
      row[f] = valueDiff(rng);
      if (p.numerical) {
        const double offset = -row[f] * w[f] / w[s] * (0.8 + 0.4 * weight(rng));
        row[s] = std::round(offset * 10000.0) / 10000.0;
        if (row[s] == 0.0) row[s] = row[f] > 0.0 ? -0.0001 : 0.0001;
      } else {
        row[s] = valueDiff(rng);
      }
      const int r = p.numerical ? 0 : response(rng);
      const auto o = static_cast<std::size_t>(obs);
      store.ValueDiff[o] = row;
      store.PrefResponse[o] = static_cast<std::int16_t>(r);
      x.push_back(row);
      y.push_back(r);
    }
    store.JudgmentCount = p.n;
    // The artificial observation, as the fit appends it when every response is 0.
    const bool allZero = std::all_of(y.begin(), y.end(), [](double v) { return v == 0.0; });
    if (allZero) {
      x.emplace_back(static_cast<std::size_t>(p.k), 1.0);
      y.push_back(1.0);
    }
    if (!wellConditioned(x) || std::all_of(y.begin(), y.end(), [&](double v) { return v == y[0]; }))
      continue;
    ++fitted;

    TradeOffWeights weights;
    MultiRegressionData record;
    Regression reg;
    reg.RegressMain(store, p.k, record, weights);
    ASSERT_FALSE(reg.failed());
    ASSERT_TRUE(reg.warnings().empty());
    EXPECT_EQ(reg.work().N, static_cast<int>(y.size()));
    EXPECT_EQ(allZero, p.numerical);

    const LeastSquares expected = fit(x, y);
    double shift = 0.0;
    for (double b : expected.slopes) shift = std::max(shift, -b);
    for (int j = 0; j < p.k; ++j) {
      const auto jj = static_cast<std::size_t>(j);
      EXPECT_NEAR(reg.work().RegCoef[jj + 1], expected.slopes[jj], 1e-9);
      EXPECT_NEAR(record.Coef[jj], expected.slopes[jj] + shift, 1e-9);
    }
    EXPECT_NEAR(record.RSquared, expected.rSquared, 1e-9);
    EXPECT_EQ(record.NumObs, static_cast<int>(y.size()));
  }
  // Most draws are well conditioned; the property was checked on twenty of them.
  EXPECT_EQ(fitted, 20);
}

INSTANTIATE_TEST_SUITE_P(
    Judgments, RegressionJudgmentPropertyTest,
    ::testing::Values(JudgmentCase{3, 6, true, true}, JudgmentCase{3, 6, false, true},
                      JudgmentCase{4, 12, true, true}, JudgmentCase{5, 20, true, true},
                      JudgmentCase{5, 20, false, true}, JudgmentCase{4, 12, true, false},
                      JudgmentCase{6, 30, false, false}, JudgmentCase{8, 56, true, false},
                      JudgmentCase{31, 930, true, true}, JudgmentCase{31, 930, false, false}));

}  // namespace
}  // namespace tnw::tradeoffs
