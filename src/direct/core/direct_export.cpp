#include "direct/core/direct_export.h"

// Std
#include <algorithm>
#include <cmath>

namespace tnw::direct {

DirectExport::Outcome DirectExport::compute(const std::vector<double>& lower,
                                            const std::vector<double>& upper, int n, Weights& out) {
  out = Weights{};
  const auto count =
      std::min({static_cast<std::size_t>(std::max(n, 0)), lower.size(), upper.size()});
  double sumL = 0.0;
  double sumU = 0.0;
  for (std::size_t i = 0; i < count; ++i) {
    sumL += lower[i];
    sumU += upper[i];
  }
  if (sumL == 0.0 || sumU == 0.0) return Outcome::ZeroSum;
  Weights w;
  for (std::size_t i = 0; i < count; ++i) {
    const double low = lower[i] / sumU;
    const double high = upper[i] / sumL;
    const double mid = (high + low) / 2.0;
    if (!std::isfinite(low) || !std::isfinite(high) || !std::isfinite(mid)) {
      return Outcome::NotFinite;
    }
    w.WeightsL.push_back(low);
    w.WeightsH.push_back(high);
    w.Weights.push_back(mid);
  }
  if (count == 0) return Outcome::ZeroSum;
  out = std::move(w);
  return Outcome::Exported;
}

std::string DirectExport::message(Outcome outcome) {
  switch (outcome) {
    case Outcome::Exported:
      return {};
    case Outcome::ZeroSum:
      return "The weights cannot be exported: the lower or the upper weight ratios add up to "
             "zero.";
    case Outcome::NotFinite:
      return "The weights cannot be exported: the weight ratios do not give finite weights.";
  }
  return {};
}

}  // namespace tnw::direct
