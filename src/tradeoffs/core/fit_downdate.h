#pragma once

#include "tradeoffs/core/regression_work.h"

// Std
#include <optional>
#include <vector>

namespace tnw::tradeoffs {

// The consistency index of a fit without one observation, and whether it can stand for the
// index a new fit without that observation would give.
struct DowndatedIndex {
  // The index; none when the fit without the observation cannot be completed.
  std::optional<double> index;
  // Whether a new fit is sure to complete and to agree with `index` to rounding: the
  // observation's leverage and share of the responses' spread are moderate and the full fit is
  // well conditioned. Otherwise only a new fit can say.
  bool settled = false;
};

// The fit of a regression with one observation taken out, found from the completed full fit
// without forming its sums again. With C the attribute block of the centred cross-products, c
// their response column and d the observation's deviations from the means of all n points,
// leaving it out gives C' = C - f d d' and c' = c - f d0 d (f = n / (n - 1)), and the regression
// sum c' C'^-1 c' follows from C^-1 by Sherman-Morrison. d = x - x̄ is dense, but the
// observation's row x has only a few non-zero differences: with g = C^-1 x̄ and b = C^-1 c
// formed once, d' C^-1 d = x' C^-1 x - 2 x' g + x̄' g and d' b = x' b - x̄' b cost as many
// products as x has non-zero pairs.
class FitDowndate {
 public:
  // Prepares the downdates of `full`, the working arrays of a fit run through CalParameters
  // (the full fit stays referenced and must outlive this object).
  explicit FitDowndate(const RegressionWork& full);

  // The index of the fit without observation k (1-based). An observation whose removal leaves
  // the cross-products (near) singular is taken out of the sums and the fit's own inversion
  // decides, as it does when the full fit has no inverse.
  DowndatedIndex without(int k) const;
  // How far a settled index may be from that of a new fit: indexes of two judgments, or an
  // index and a threshold, closer than this are told apart only by new fits.
  double tolerance() const { return m_tolerance; }

 private:
  std::optional<double> invertedWithout(int k) const;

  const RegressionWork& m_full;
  bool m_valid = false;     // the full fit has an inverse to update
  bool m_trusted = false;   // the full fit is well conditioned and far from overflow
  std::vector<double> m_b;  // C^-1 c: the full fit's coefficients
  std::vector<double> m_g;  // C^-1 x̄
  double m_ssr = 0.0;       // c' C^-1 c: the full fit's regression sum
  double m_meanG = 0.0;     // x̄' C^-1 x̄
  double m_meanB = 0.0;     // x̄' b
  double m_tolerance = 5e-13;
};

}  // namespace tnw::tradeoffs
