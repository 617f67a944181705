#include "model/value_function.h"

// Std
#include <algorithm>
#include <cmath>

namespace tnw {
namespace {

// The points as they are stored, read in place: an Empty Variant counts as 0, as the host
// language's Variant arithmetic takes it.
class Points {
 public:
  explicit Points(std::span<const std::optional<double>> p) : m_p(p.data()) {}
  double operator[](std::size_t i) const { return m_p[i].value_or(0.0); }

 private:
  const std::optional<double>* m_p;
};

// The interval k (0..N-2) whose ends enclose XEval in the points' own order, the first for
// scores before the second point and the last for scores from the last point on. The bisection
// runs over point numbers 1..N and compares XEval with the point before the midpoint.
int findInterval(const Points& x, int n, double xEval) {
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

template <typename... T>
bool allFinite(T... values) {
  return (std::isfinite(values) && ...);
}

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
  if (!allFinite(m0, m1, m2, m3, m4, tLeft, tRight, h)) return std::nullopt;
  return Cubic{y[ki], tLeft, (3.0 * m2 - 2.0 * tLeft - tRight) / h,
               (tLeft + tRight - 2.0 * m2) / (h * h), x[ki]};
}

}  // namespace

namespace {

// The cubic that serves xEval through the first n >= 1 points and its value there, with false
// where the host language would stop with a run-time error.
bool interpolate(const Points& x, const Points& y, int n, double xEval, Cubic& c, double& value) {
  c = Cubic{y[0], 0.0, 0.0, 0.0, x[0]};
  if (n == 2) {
    c.p1 = (y[0] - y[1]) / (x[0] - x[1]);
  } else if (n >= 3) {
    const std::optional<Cubic> akima = akimaCubic(x, y, n, xEval);
    if (!akima) return false;
    c = *akima;
  }
  const double d = xEval - c.base;
  value = c.p0 + c.p1 * d + c.p2 * d * d + c.p3 * d * d * d;
  return allFinite(c.p0, c.p1, c.p2, c.p3, d, value);
}

}  // namespace

std::optional<GnsplValues> gnspl(std::span<const std::optional<double>> X,
                                 std::span<const std::optional<double>> Y, int N, bool Flag,
                                 double XEval) {
  GnsplValues R{};
  const int available = static_cast<int>(std::min({X.size(), Y.size(), std::size_t{kMaxPoints}}));
  const int n = std::min(N, available);
  if (n < 1) return R;
  Cubic c;
  double value = 0.0;
  if (!interpolate(Points(X), Points(Y), n, XEval, c, value)) return std::nullopt;
  R[4] = value;
  if (Flag) {
    R[0] = c.p0;
    R[1] = c.p1;
    R[2] = c.p2;
    R[3] = c.p3;
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
  // gnspl's value, without its result Variants.
  Cubic c;
  double v = 0.0;
  if (!interpolate(Points(model.PointScore[att]), Points(model.PointValue[att]), n, Score, c, v)) {
    return {std::nullopt, ValueFailure::NotComputable};
  }
  if (v > 1.0) {
    v = 1.0;
  } else if (v < 0.0) {
    v = 0.0;
  }
  // Four decimals on purpose: the trade-off pages compare and show these rounded values.
  return {Currency::fromDouble(v), ValueFailure::None};
}

std::string valueFailureMessage(const AttributeModel& model, int AttID, ValueFailure failure) {
  if (failure == ValueFailure::None) return {};
  if (failure == ValueFailure::AttributeOutOfRange || AttID < 0 || AttID >= kMaxAttributes) {
    return "Attribute " + std::to_string(AttID) +
           " does not exist in the model (attributes are numbered from 0 to 30).";
  }
  const std::string what = "The value function of the attribute \"" +
                           model.AttName[static_cast<std::size_t>(AttID)] + "\"";
  switch (failure) {
    case ValueFailure::NoPoints:
      return what + " has no points.";
    case ValueFailure::TooManyPoints:
      return what + " has more than 11 points.";
    case ValueFailure::NotComputable:
      return what +
             " cannot be evaluated at this score: two of its points share a score, or its numbers"
             " are too large.";
    default:
      return {};
  }
}

}  // namespace tnw
