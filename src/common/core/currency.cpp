#include "common/core/currency.h"

// Std
#include <cmath>

namespace tnw {

std::optional<Currency> Currency::fromDouble(double d) {
  if (!std::isfinite(d)) return std::nullopt;
  const double scaled = d * 10000.0;
  // The largest magnitude a 64-bit count holds exactly enough to convert without overflow.
  constexpr double kLimit = 9.2233720368547748e18;
  if (scaled >= kLimit || scaled <= -kLimit) return std::nullopt;
  // nearbyint rounds half to even in the default rounding mode.
  return fromTicks(static_cast<std::int64_t>(std::nearbyint(scaled)));
}

}  // namespace tnw
