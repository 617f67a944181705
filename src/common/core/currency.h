#pragma once

// Std
#include <cstdint>
#include <optional>

namespace tnw {

// A fixed-point decimal with four places, held as a 64-bit count of ten-thousandths.
class Currency {
 public:
  // Zero.
  constexpr Currency() = default;

  // The value with the given count of ten-thousandths.
  static constexpr Currency fromTicks(std::int64_t ticks) {
    Currency c;
    c.m_ticks = ticks;
    return c;
  }

  // The nearest currency value to d, ties to even; empty for NaN, infinity or out of range.
  static std::optional<Currency> fromDouble(double d);

  // The count of ten-thousandths.
  constexpr std::int64_t ticks() const { return m_ticks; }

  // The value as a double.
  double toDouble() const { return static_cast<double>(m_ticks) / 10000.0; }

  friend constexpr bool operator==(Currency a, Currency b) = default;
  friend constexpr auto operator<=>(Currency a, Currency b) = default;

 private:
  std::int64_t m_ticks = 0;
};

}  // namespace tnw
