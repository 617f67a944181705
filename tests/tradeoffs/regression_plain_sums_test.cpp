// The regression's sparse cross-products and its narrowed Gauss-Jordan sweep against the plain
// forms kept here: every centred product summed over every observation, and the sweep over all
// 2K columns. Random judgments for 3 to 31 attributes, with the cases that touch the edges: the
// artificial observation, a judgment on one attribute, attributes never judged, dense rows.

#include "tradeoffs/core/regression.h"
#include "tradeoffs/core/tradeoff_weights.h"

// Std
#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

// CrossProd(i, j) = Σₖ (X(k, j) − XMean(j)) (X(k, i) − XMean(i)), column 0 with Y, (0,0) = Σ e².
Matrix plainCrossProducts(const RegressionWork& w) {
  Matrix c(w.K + 1, w.K + 1);
  auto mean = [&w](int j) { return w.XMean[static_cast<std::size_t>(j)]; };
  for (int i = 1; i <= w.K; ++i) {
    for (int j = 1; j <= w.K; ++j) {
      double sum = 0.0;
      for (int k = 1; k <= w.N; ++k) sum += (w.X(k, j) - mean(j)) * (w.X(k, i) - mean(i));
      c(i, j) = sum;
    }
    double sum = 0.0;
    for (int k = 1; k <= w.N; ++k) {
      sum += (w.X(k, i) - mean(i)) * (w.Y[static_cast<std::size_t>(k)] - w.YMean);
    }
    c(i, 0) = sum;
  }
  double total = 0.0;
  for (int k = 1; k <= w.N; ++k) {
    const double d = w.Y[static_cast<std::size_t>(k)] - w.YMean;
    total += d * d;
  }
  c(0, 0) = total;
  return c;
}

// Gauss-Jordan without row exchange over all 2K columns; false where a pivot stays 0.
bool plainInverse(const Matrix& cross, int k, Matrix& inverse) {
  Matrix a(k + 1, 2 * k + 1);
  for (int r = 1; r <= k; ++r) {
    for (int c = 1; c <= k; ++c) a(r, c) = cross(r, c);
    a(r, k + r) = 1.0;
  }
  for (int r = 1; r <= k; ++r) {
    if (a(r, r) == 0.0) {
      for (int s = r + 1; s <= k; ++s) {
        if (a(s, r) != 0.0) {
          for (int c = 1; c <= 2 * k; ++c) a(r, c) += a(s, c);
          break;
        }
      }
    }
    if (a(r, r) == 0.0) return false;
    const double factor = 1.0 / a(r, r);
    for (int c = 1; c <= 2 * k; ++c) a(r, c) *= factor;
    for (int i = 1; i <= k; ++i) {
      if (i == r) continue;
      const double f = a(i, r);
      for (int c = 1; c <= 2 * k; ++c) a(i, c) -= f * a(r, c);
    }
  }
  inverse = Matrix(k + 1, k + 1);
  for (int i = 1; i <= k; ++i) {
    for (int j = 1; j <= k; ++j) inverse(i, j) = a(i, k + j);
  }
  return true;
}

// How a case's judgments are drawn.
enum class Shape { Pairs, PairsAllIndifferent, SomeOnOneAttribute, SomeNeverJudged, SomeDense };

JudgmentStore drawJudgments(int k, Shape shape, std::mt19937& rng) {
  std::uniform_int_distribution<int> attribute(0, k - 1);
  std::uniform_int_distribution<int> response(-3, 3);
  std::uniform_real_distribution<double> size(0.05, 1.0);
  const int n = k * (k - 1);
  JudgmentStore s;
  s.dimension(n, k);
  // With attributes never judged, judgments use the first k - 2 attributes only.
  const int usable = shape == Shape::SomeNeverJudged ? std::max(1, k - 2) : k;
  for (int r = 0; r < n; ++r) {
    auto& row = s.ValueDiff[static_cast<std::size_t>(r)];
    const int a = attribute(rng) % usable;
    int b = attribute(rng) % usable;
    if (b == a && !(shape == Shape::SomeOnOneAttribute && r % 5 == 0)) b = (a + 1) % usable;
    row[static_cast<std::size_t>(a)] = std::round(size(rng) * 1e4) / 1e4;
    row[static_cast<std::size_t>(b)] = -std::round(size(rng) * 1e4) / 1e4;
    if (shape == Shape::SomeDense && r % 7 == 0) {
      for (double& v : row) v = std::round((size(rng) - 0.5) * 1e4) / 1e4;
    }
    s.PrefResponse[static_cast<std::size_t>(r)] =
        shape == Shape::PairsAllIndifferent ? 0 : static_cast<std::int16_t>(response(rng));
  }
  s.JudgmentCount = n;
  return s;
}

// |a − b| within 1e-12 of the larger of |b| and the scale of what is compared.
void expectClose(double a, double b, double scale, const char* what, int i, int j) {
  EXPECT_LE(std::fabs(a - b), 1e-12 * std::max(std::fabs(b), scale))
      << what << "(" << i << ", " << j << "): " << a << " against " << b;
}

void compareWithPlainForms(int k, Shape shape, unsigned seed) {
  std::mt19937 rng(seed);
  JudgmentStore store = drawJudgments(k, shape, rng);
  TradeOffWeights weights;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(store, k, record, weights);
  const RegressionWork& w = reg.work();
  const Matrix plain = plainCrossProducts(w);
  // A product sum is compared at the scale of its two sums of squares, where a sum that
  // cancels to near 0 has its rounding.
  for (int i = 0; i <= k; ++i) {
    for (int j = 0; j <= k; ++j) {
      if (i == 0 && j > 0) continue;  // the first row is not formed
      const double scale = std::sqrt(std::fabs(plain(i, i) * plain(j, j)));
      expectClose(w.CrossProd(i, j), plain(i, j), scale, "CrossProd", i, j);
    }
  }
  // The same fit from the plain cross-products and the plain sweep.
  Regression ref;
  ref.work() = w;
  ref.work().CrossProd = plain;
  Matrix inverse;
  const bool inverted = plainInverse(plain, k, inverse);
  EXPECT_EQ(inverted, w.NoInverse == 0);
  if (!inverted) {
    EXPECT_EQ(reg.warnings(), std::vector<std::string>{Regression::kNoInverseWarning});
    return;
  }
  ref.work().InvMatrix = inverse;
  ref.CalCoefficients();
  ref.CalParameters();
  ref.LowHighEstimation();
  EXPECT_EQ(reg.warnings(), ref.warnings());
  // Coefficients at the scale of the largest (the smallest is shifted to 0).
  const auto largest = [](const std::vector<double>& v) {
    double m = 0.0;
    for (const double d : v) m = std::max(m, std::fabs(d));
    return m;
  };
  const double coefScale = largest(ref.work().Coef);
  const double varScale = largest(ref.work().CoefVar);
  for (int i = 1; i <= k; ++i) {
    const auto ii = static_cast<std::size_t>(i);
    expectClose(w.Coef[ii], ref.work().Coef[ii], coefScale, "Coef", i, 0);
    expectClose(w.CoefVar[ii], ref.work().CoefVar[ii], varScale, "CoefVar", i, 0);
  }
  expectClose(w.RSquared, ref.work().RSquared, 0.0, "RSquared", 0, 0);
  expectClose(w.ConsistencyIndex, ref.work().ConsistencyIndex, 0.0, "ConsistencyIndex", 0, 0);
  expectClose(w.StdErrEst, ref.work().StdErrEst, 0.0, "StdErrEst", 0, 0);
}

TEST(RegressionPlainSumsTest, TheSweepFromThePivotOnGivesTheFullSweepsInverseExactly) {
  std::mt19937 rng(77);
  for (int k = 3; k <= 31; ++k) {
    JudgmentStore store = drawJudgments(k, Shape::Pairs, rng);
    TradeOffWeights weights;
    MultiRegressionData record;
    Regression reg;
    reg.RegressMain(store, k, record, weights);
    Matrix inverse;
    ASSERT_TRUE(plainInverse(reg.work().CrossProd, k, inverse));
    for (int i = 1; i <= k; ++i) {
      for (int j = 1; j <= k; ++j) ASSERT_EQ(reg.work().InvMatrix(i, j), inverse(i, j));
    }
  }
}

TEST(RegressionPlainSumsTest, RepairedZeroPivotsGiveTheFullSweepsInverseExactly) {
  // Symmetric matrices with zeros on the diagonal; in every other one the first pivot is 0 and
  // a later row must repair it.
  std::mt19937 rng(91);
  std::uniform_int_distribution<int> entry(-4, 4);
  int invertible = 0;
  for (int trial = 0; trial < 400; ++trial) {
    const int k = 2 + trial % 6;
    Regression reg;
    RegressionWork& w = reg.work();
    w.dimension(k + 2, k);
    for (int i = 1; i <= k; ++i) {
      for (int j = i; j <= k; ++j) {
        const double v = i == j && (i + trial) % 2 == 0 ? 0.0 : entry(rng) / 3.0;
        w.CrossProd(i, j) = v;
        w.CrossProd(j, i) = v;
      }
    }
    Matrix inverse;
    const bool inverted = plainInverse(w.CrossProd, k, inverse);
    ASSERT_EQ(reg.Matrix_Invert(), inverted);
    if (!inverted) continue;
    ++invertible;
    for (int i = 1; i <= k; ++i) {
      for (int j = 1; j <= k; ++j) ASSERT_EQ(w.InvMatrix(i, j), inverse(i, j));
    }
  }
  EXPECT_GT(invertible, 100);
}

TEST(RegressionPlainSumsTest, NonFiniteAndExtremeEntriesGiveTheFullSweepsInverse) {
  // A factor that is infinite or NaN turns the 0s of the identity's columns into NaN in the
  // full sweep; so must it in the narrowed one. Entries are drawn among 0, small integers,
  // subnormal, huge, infinite and NaN.
  std::mt19937 rng(93);
  std::uniform_int_distribution<int> kind(0, 40);
  std::uniform_int_distribution<int> entry(-2, 2);
  const double special[] = {std::numeric_limits<double>::infinity(),
                            -std::numeric_limits<double>::infinity(),
                            std::numeric_limits<double>::quiet_NaN(), 1e-320, 1e300};
  int withNaN = 0;
  for (int trial = 0; trial < 2000; ++trial) {
    const int k = 1 + trial % 9;
    Regression reg;
    RegressionWork& w = reg.work();
    w.dimension(k + 2, k);
    for (int i = 1; i <= k; ++i) {
      for (int j = 1; j <= k; ++j) {
        const int t = kind(rng);
        w.CrossProd(i, j) = t < 5 ? special[t] : t < 20 ? 0.0 : entry(rng);
      }
    }
    Matrix inverse;
    const bool inverted = plainInverse(w.CrossProd, k, inverse);
    ASSERT_EQ(reg.Matrix_Invert(), inverted) << trial;
    if (!inverted) continue;
    for (int i = 1; i <= k; ++i) {
      for (int j = 1; j <= k; ++j) {
        const double want = inverse(i, j);
        if (std::isnan(want)) {
          ++withNaN;
          ASSERT_TRUE(std::isnan(w.InvMatrix(i, j))) << trial << ": (" << i << ", " << j << ")";
        } else {
          ASSERT_EQ(w.InvMatrix(i, j), want) << trial << ": (" << i << ", " << j << ")";
        }
      }
    }
  }
  EXPECT_GT(withNaN, 100);
}

TEST(RegressionPlainSumsTest, PairJudgmentsFitAsWithThePlainSums) {
  for (int k = 3; k <= 31; ++k) compareWithPlainForms(k, Shape::Pairs, 100u + k);
}

TEST(RegressionPlainSumsTest, IndifferentJudgmentsWithTheArtificialObservationFitAlike) {
  for (int k = 3; k <= 31; ++k) compareWithPlainForms(k, Shape::PairsAllIndifferent, 200u + k);
}

TEST(RegressionPlainSumsTest, JudgmentsOnOneAttributeFitAlike) {
  for (int k = 3; k <= 31; ++k) compareWithPlainForms(k, Shape::SomeOnOneAttribute, 300u + k);
}

TEST(RegressionPlainSumsTest, AttributesNeverJudgedFailAlike) {
  for (int k = 3; k <= 31; ++k) compareWithPlainForms(k, Shape::SomeNeverJudged, 400u + k);
}

TEST(RegressionPlainSumsTest, DenseObservationsAmongTheJudgmentsFitAlike) {
  for (int k = 3; k <= 31; ++k) compareWithPlainForms(k, Shape::SomeDense, 500u + k);
}

}  // namespace
}  // namespace tnw::tradeoffs
