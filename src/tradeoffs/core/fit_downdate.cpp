#include "tradeoffs/core/fit_downdate.h"

#include "tradeoffs/core/regression.h"

// Std
#include <algorithm>
#include <cmath>
#include <limits>

namespace tnw::tradeoffs {

namespace {

// Below this pivot 1 - f d' C^-1 d the update is left to the inversion.
constexpr double kSingularPivot = 1e-6;
// The settled index: C' is at least a quarter of C in every direction, the observation takes
// at most three quarters of the responses' spread with it, the attributes are far from
// collinear (each one's variance inflation C(i,i) × C^-1(i,i) at most 1e4) and the fit does
// not explain (almost) nothing. Rounding is then amplified at most a few times, as in a new fit.
constexpr double kSettledPivot = 0.25;
constexpr double kSettledTotalShare = 0.25;
constexpr double kSettledInflation = 1e4;
constexpr double kSettledRSquared = 1e-9;
// An index this large is far from any a fit with moderate leverage can give.
constexpr double kSettledIndex = 1e6;
// How far C C^-1 v may be from v (relative to v): the inversion has no row
// exchange and no test for a pivot that is merely small, so a (nearly) singular C can leave an
// "inverse" that is not one.
constexpr double kSettledResidual = 1e-9;
// The tolerance of a settled index: far above the rounding of the downdate and of a new fit,
// which grows with the attributes' collinearity and the index's factor (N - 2) / (N - K - 1).
constexpr double kBaseTolerance = 5e-13;
constexpr double kRoundingFactor = 64.0;
// The full fit's scale: total × C^-1(i,i) below this keeps every result of the new fit finite.
constexpr double kSettledScale = 1e290;

// How far C^-1 is from an inverse of C, tried on two fixed vectors v with no pattern among the
// attributes: the largest entry of |C (C^-1 v) - v| over the largest of |v|. A C^-1 that is not
// an inverse (of a singular C) misses such vectors by far; this costs O(K^2), not O(K^3).
double inverseResidual(const RegressionWork& w) {
  const int kk = w.K;
  const auto att = static_cast<std::size_t>(kk + 1);
  std::vector<double> v(att, 0.0);
  std::vector<double> u(att, 0.0);
  double worst = 0.0;
  for (const double step : {0.6180339887498949, 0.7548776662466927}) {
    double largest = 0.0;
    for (int j = 1; j <= kk; ++j) {
      const double t = j * step;
      v[static_cast<std::size_t>(j)] = t - std::floor(t) - 0.5;
      largest = std::max(largest, std::fabs(v[static_cast<std::size_t>(j)]));
    }
    for (const bool back : {false, true}) {
      // u = C^-1 v, then u = C u - v.
      const Matrix& m = back ? w.CrossProd : w.InvMatrix;
      const std::vector<double>& from = back ? u : v;
      std::vector<double> to(att, 0.0);
      for (int i = 1; i <= kk; ++i) {
        const double* row = m.row(i);
        double sum = 0.0;
        for (int j = 1; j <= kk; ++j) sum += row[j] * from[static_cast<std::size_t>(j)];
        to[static_cast<std::size_t>(i)] = back ? sum - v[static_cast<std::size_t>(i)] : sum;
      }
      u.swap(to);
    }
    for (int j = 1; j <= kk; ++j) {
      const double e = std::fabs(u[static_cast<std::size_t>(j)]) / largest;
      // NaN counts as the largest residual.
      if (!(e <= worst)) worst = e;
    }
  }
  return worst;
}

}  // namespace

FitDowndate::FitDowndate(const RegressionWork& full) : m_full(full) {
  const int kk = full.K;
  const auto att = static_cast<std::size_t>(kk + 1);
  const auto rows = static_cast<std::size_t>(full.N + 1);
  m_valid = full.NoInverse == 0 && kk > 0 && full.N >= 1 && full.InvMatrix.rows() == kk + 1 &&
            full.InvMatrix.cols() == kk + 1 && full.CrossProd.rows() == kk + 1 &&
            full.CrossProd.cols() == kk + 1 && full.X.rows() == full.N + 1 &&
            full.X.cols() == kk + 1 && full.Y.size() >= rows && full.XMean.size() >= att &&
            full.NonZeroStart.size() == rows + 1;
  if (!m_valid) return;
  m_b.assign(att, 0.0);
  m_g.assign(att, 0.0);
  double inflation = 0.0;
  double invDiag = 0.0;
  for (int i = 1; i <= kk; ++i) {
    const auto ii = static_cast<std::size_t>(i);
    double b = 0.0;
    double g = 0.0;
    for (int j = 1; j <= kk; ++j) {
      b += full.InvMatrix(i, j) * full.CrossProd(j, 0);
      g += full.InvMatrix(i, j) * full.XMean[static_cast<std::size_t>(j)];
    }
    m_b[ii] = b;
    m_g[ii] = g;
    m_ssr += b * full.CrossProd(i, 0);
    m_meanG += full.XMean[ii] * g;
    m_meanB += full.XMean[ii] * b;
    // NaN stays out of both maxima and is caught by the checks below.
    inflation = std::max(inflation, full.CrossProd(i, i) * full.InvMatrix(i, i));
    invDiag = std::max(invDiag, std::fabs(full.InvMatrix(i, i)));
  }
  m_valid = std::isfinite(m_ssr) && std::isfinite(m_meanG) && std::isfinite(m_meanB);
  const double total = full.CrossProd(0, 0);
  m_trusted = m_valid && total > 0.0 && std::isfinite(inflation) &&
              inflation <= kSettledInflation && total * invDiag < kSettledScale &&
              inverseResidual(full) <= kSettledResidual;
  const int degFreedomWithout = (full.N - 1) - kk - 1;
  const double factor =
      degFreedomWithout + 1 > 0 ? static_cast<double>(full.N - 2) / (degFreedomWithout + 1) : 1.0;
  if (m_trusted) {
    m_tolerance = kBaseTolerance + kRoundingFactor * std::numeric_limits<double>::epsilon() *
                                       inflation * std::max(factor, 1.0);
  }
}

DowndatedIndex FitDowndate::without(int k) const {
  const RegressionWork& w = m_full;
  const int n = w.N;
  const int kk = w.K;
  if (k < 1 || k > n || n - 1 < 1) return {std::nullopt, true};
  if (!m_valid) return {invertedWithout(k), false};
  const double f = static_cast<double>(n) / (n - 1);
  // The row's non-zero attributes and differences, as the fit listed them.
  const auto begin = static_cast<std::size_t>(w.NonZeroStart[static_cast<std::size_t>(k)]);
  const auto end = static_cast<std::size_t>(w.NonZeroStart[static_cast<std::size_t>(k) + 1]);
  const int* cols = w.NonZeroAtt.data() + begin;
  const double* values = w.NonZeroDiff.data() + begin;
  const std::size_t count = end - begin;
  double xCx = 0.0;
  double xg = 0.0;
  double xb = 0.0;
  for (std::size_t t = 0; t < count; ++t) {
    const int p = cols[t];
    const auto pp = static_cast<std::size_t>(p);
    const double* inv = w.InvMatrix.row(p);
    double sum = 0.0;
    for (std::size_t u = 0; u < count; ++u) sum += inv[cols[u]] * values[u];
    xCx += values[t] * sum;
    xg += values[t] * m_g[pp];
    xb += values[t] * m_b[pp];
  }
  const double s = xCx - 2.0 * xg + m_meanG;  // d' C^-1 d
  const double db = xb - m_meanB;             // d' b
  const double d0 = w.Y[static_cast<std::size_t>(k)] - w.YMean;
  const double pivot = 1.0 - f * s;
  if (!(pivot > kSingularPivot)) return {invertedWithout(k), false};
  const double uc = db - f * d0 * s;  // u' c' with u = C^-1 d
  const double ssr = m_ssr - 2.0 * f * d0 * db + f * f * d0 * d0 * s + f * uc * uc / pivot;
  const double fullTotal = w.CrossProd(0, 0);
  const double total = fullTotal - f * d0 * d0;
  // The checks of Regression::CalParameters on the fit of N - 1 observations.
  if (total == 0.0 || ssr < 0.0) return {std::nullopt, false};
  const int degFreedom = (n - 1) - kk - 1;
  if (degFreedom == 0 || degFreedom + 1 == 0) return {std::nullopt, true};
  const double index = 1.0 - (1.0 - ssr / total) * (n - 2) / (degFreedom + 1);
  if (!std::isfinite(index)) return {std::nullopt, false};
  const bool settled = m_trusted && pivot >= kSettledPivot &&
                       total >= kSettledTotalShare * fullTotal && ssr >= kSettledRSquared * total &&
                       std::fabs(index) <= kSettledIndex;
  return {index, settled};
}

// The sums of the full fit less the observation's products, inverted and evaluated by the
// fit's own steps.
std::optional<double> FitDowndate::invertedWithout(int k) const {
  const RegressionWork& full = m_full;
  const int n = full.N;
  const int kk = full.K;
  if (n - 1 < 1 || kk < 0 || full.CrossProd.rows() != kk + 1 || full.CrossProd.cols() != kk + 1 ||
      full.X.rows() != n + 1 || full.X.cols() != kk + 1 ||
      full.Y.size() < static_cast<std::size_t>(n + 1) ||
      full.XMean.size() < static_cast<std::size_t>(kk + 1)) {
    return std::nullopt;
  }
  const double factor = static_cast<double>(n) / (n - 1);
  std::vector<double> d(static_cast<std::size_t>(kk + 1));
  d[0] = full.Y[static_cast<std::size_t>(k)] - full.YMean;
  for (int j = 1; j <= kk; ++j) {
    d[static_cast<std::size_t>(j)] = full.X(k, j) - full.XMean[static_cast<std::size_t>(j)];
  }
  Regression reg;
  RegressionWork& w = reg.work();
  w.N = n - 1;
  w.K = kk;
  w.CrossProd = Matrix(kk + 1, kk + 1);
  w.InvMatrix = Matrix(kk + 1, kk + 1);
  for (auto* v : {&w.RegCoef, &w.Coef, &w.CoefVar})
    v->assign(static_cast<std::size_t>(kk + 1), 0.0);
  for (int i = 0; i <= kk; ++i) {
    // Row 0 holds only (0, 0); the fit reads column 0 and the attribute block.
    const int last = i == 0 ? 0 : kk;
    for (int j = 0; j <= last; ++j) {
      w.CrossProd(i, j) = full.CrossProd(i, j) -
                          factor * d[static_cast<std::size_t>(i)] * d[static_cast<std::size_t>(j)];
    }
  }
  if (!reg.Matrix_Invert()) return std::nullopt;
  reg.CalCoefficients();
  if (!reg.CalParameters() || !std::isfinite(w.ConsistencyIndex)) return std::nullopt;
  return w.ConsistencyIndex;
}

}  // namespace tnw::tradeoffs
