// SingleAttValue and gnspl against the way they were computed before they read the points in
// place: that implementation is kept here as it was, and both must give the same bits on many
// random value functions, rising and falling, with Empty points, shared scores and scores beyond
// the ends.

#include "model/value_function.h"

// Std
#include <algorithm>
#include <cmath>
#include <random>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {
namespace before {

// The interval k (0..N-2) whose ends enclose XEval in the points' own order, the first for
// scores before the second point and the last for scores from the last point on. The bisection
// runs over point numbers 1..N and compares XEval with the point before the midpoint.
int findInterval(const std::array<double, kMaxPoints + 1>& x, int n, double xEval) {
  const bool rising = x[static_cast<std::size_t>(n - 1)] >= x[0];
  auto before = [&](int point) {
    const double a = x[static_cast<std::size_t>(point)];
    return rising ? xEval < a : xEval > a;
  };
  if (before(1)) return 0;
  if (!before(n - 1)) return n - 2;
  int low = 1;
  int high = n;
  while (high - low != 1) {
    const int mid = (low + high) / 2;
    if (before(mid - 1)) {
      high = mid;
    } else {
      low = mid;
    }
  }
  return std::min(low - 1, n - 2);
}

// Akima's slope at a point from the four interval slopes around it (m[0..3] = intervals
// j-2..j+1 for the point between intervals j-1 and j).
double akimaSlope(double mA, double mB, double mC, double mD) {
  const double w1 = std::fabs(mD - mC);
  const double w2 = std::fabs(mB - mA);
  if (w1 == 0.0 && w2 == 0.0) return (mB + mC) / 2.0;
  return (w1 * mB + w2 * mC) / (w1 + w2);
}

bool allFinite(std::initializer_list<double> values) {
  return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

using Points = std::array<double, kMaxPoints + 1>;

// A cubic p0 + p1 d + p2 d^2 + p3 d^3 in d = score - base.
struct Cubic {
  double p0 = 0.0;
  double p1 = 0.0;
  double p2 = 0.0;
  double p3 = 0.0;
  double base = 0.0;
};

// The cubic of the interval that serves xEval, by Akima's rule (n >= 3); empty where the host
// language would stop with a division by zero or an overflow.
std::optional<Cubic> akimaCubic(const Points& x, const Points& y, int n, double xEval) {
  const int k = findInterval(x, n, xEval);
  auto real = [&](int j) {
    const auto i = static_cast<std::size_t>(j);
    return (y[i] - y[i + 1]) / (x[i] - x[i + 1]);
  };
  // Slopes of intervals k-2..k+2; those outside the data are extrapolated linearly.
  auto slope = [&](int j) {
    if (j == -1) return 2.0 * real(0) - real(1);
    if (j == -2) return 2.0 * (2.0 * real(0) - real(1)) - real(0);
    if (j == n - 1) return 2.0 * real(n - 2) - real(n - 3);
    if (j == n) return 2.0 * (2.0 * real(n - 2) - real(n - 3)) - real(n - 2);
    return real(j);
  };
  const double m0 = slope(k - 2);
  const double m1 = slope(k - 1);
  const double m2 = slope(k);
  const double m3 = slope(k + 1);
  const double m4 = slope(k + 2);
  const double tLeft = akimaSlope(m0, m1, m2, m3);
  const double tRight = akimaSlope(m1, m2, m3, m4);
  const auto ki = static_cast<std::size_t>(k);
  const double h = x[ki + 1] - x[ki];
  if (!allFinite({m0, m1, m2, m3, m4, tLeft, tRight, h})) return std::nullopt;
  return Cubic{y[ki], tLeft, (3.0 * m2 - 2.0 * tLeft - tRight) / h,
               (tLeft + tRight - 2.0 * m2) / (h * h), x[ki]};
}

std::optional<GnsplValues> gnspl(std::span<const std::optional<double>> X,
                                 std::span<const std::optional<double>> Y, int N, bool Flag,
                                 double XEval) {
  GnsplValues R{};
  const int available = static_cast<int>(std::min({X.size(), Y.size(), std::size_t{kMaxPoints}}));
  const int n = std::min(N, available);
  if (n < 1) return R;
  // Local copies with Empty read as 0, as the host language's Variant arithmetic does.
  Points x{};
  Points y{};
  for (int i = 0; i < n; ++i) {
    x[static_cast<std::size_t>(i)] = X[static_cast<std::size_t>(i)].value_or(0.0);
    y[static_cast<std::size_t>(i)] = Y[static_cast<std::size_t>(i)].value_or(0.0);
  }
  std::optional<Cubic> c = Cubic{y[0], 0.0, 0.0, 0.0, x[0]};
  if (n == 2) {
    c->p1 = (y[0] - y[1]) / (x[0] - x[1]);
  } else if (n >= 3) {
    c = akimaCubic(x, y, n, XEval);
    if (!c) return std::nullopt;
  }
  const double d = XEval - c->base;
  const double value = c->p0 + c->p1 * d + c->p2 * d * d + c->p3 * d * d * d;
  if (!allFinite({c->p0, c->p1, c->p2, c->p3, d, value})) return std::nullopt;
  R[4] = value;
  if (Flag) {
    R[0] = c->p0;
    R[1] = c->p1;
    R[2] = c->p2;
    R[3] = c->p3;
  }
  return R;
}

AttValueResult SingleAttValue(const AttributeModel& model, int AttID, double Score) {
  if (AttID < 0 || AttID >= kMaxAttributes)
    return {std::nullopt, ValueFailure::AttributeOutOfRange};
  const auto att = static_cast<std::size_t>(AttID);
  const int n = model.NumPoints[att];
  if (n > kMaxPoints) return {std::nullopt, ValueFailure::TooManyPoints};
  if (n < 1) return {std::nullopt, ValueFailure::NoPoints};
  const auto count = static_cast<std::size_t>(n);
  const auto R = gnspl(std::span(model.PointScore[att]).first(count),
                       std::span(model.PointValue[att]).first(count), n, true, Score);
  if (!R) return {std::nullopt, ValueFailure::NotComputable};
  double v = (*R)[4].value_or(0.0);
  if (v > 1.0) {
    v = 1.0;
  } else if (v < 0.0) {
    v = 0.0;
  }
  // Four decimals on purpose: the trade-off pages compare and show these rounded values.
  return {Currency::fromDouble(v), ValueFailure::None};
}

}  // namespace before

// The same double, bit for bit (NaN never occurs: such results are failures).
void expectSame(const std::optional<double>& a, const std::optional<double>& b) {
  ASSERT_EQ(a.has_value(), b.has_value());
  if (a) {
    EXPECT_EQ(std::signbit(*a), std::signbit(*b));
    EXPECT_EQ(*a, *b);
  }
}

AttributeModel randomFunction(std::mt19937& rng) {
  std::uniform_int_distribution<int> points(1, kMaxPoints);
  std::uniform_real_distribution<double> step(0.5, 20.0);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  AttributeModel m;
  m.NumAtt = 1;
  const int n = points(rng);
  m.NumPoints[0] = static_cast<std::int16_t>(n);
  const bool falling = unit(rng) < 0.3;
  double score = std::round(unit(rng) * 100.0) - 50.0;
  for (int p = 0; p < n; ++p) {
    const auto slot = static_cast<std::size_t>(falling ? n - 1 - p : p);
    m.PointScore[0][slot] = score;
    m.PointValue[0][slot] = std::round(unit(rng) * 1e4) / 1e4;
    // Now and then a shared score, an Empty score or an Empty value.
    const double odd = unit(rng);
    if (odd >= 0.06) score += std::round(step(rng) * 10.0) / 10.0;
    if (odd < 0.02) m.PointScore[0][slot].reset();
    if (odd > 0.98) m.PointValue[0][slot].reset();
  }
  return m;
}

TEST(ValueFunctionBeforeTest, RandomFunctionsGiveTheSameValuesAsBefore) {
  std::mt19937 rng(4242);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  int computed = 0;
  for (int f = 0; f < 3000; ++f) {
    const AttributeModel m = randomFunction(rng);
    const int n = m.NumPoints[0];
    const auto x = std::span(m.PointScore[0]).first(static_cast<std::size_t>(n));
    const auto y = std::span(m.PointValue[0]).first(static_cast<std::size_t>(n));
    for (int s = 0; s < 40; ++s) {
      // The points lie within -50..270; the scores reach beyond both ends.
      const double score = -80.0 + unit(rng) * 380.0;
      const AttValueResult now = SingleAttValue(m, 0, score);
      const AttValueResult then = before::SingleAttValue(m, 0, score);
      ASSERT_EQ(now.failure, then.failure);
      ASSERT_EQ(now.value, then.value);
      if (now.value) ++computed;
      for (const bool flag : {false, true}) {
        const auto a = gnspl(x, y, n, flag, score);
        const auto b = before::gnspl(x, y, n, flag, score);
        ASSERT_EQ(a.has_value(), b.has_value());
        if (!a) continue;
        for (std::size_t i = 0; i < 5; ++i) expectSame((*a)[i], (*b)[i]);
      }
    }
  }
  // Most of the draws are computable, so the values themselves were compared.
  EXPECT_GT(computed, 3000 * 40 / 2);
}

}  // namespace
}  // namespace tnw
