#include "tradeoffs/core/clock_random_source.h"

// Std
#include <chrono>

namespace tnw::tradeoffs {

namespace {

std::uint64_t clockTicks() {
  return static_cast<std::uint64_t>(
      std::chrono::high_resolution_clock::now().time_since_epoch().count());
}

}  // namespace

ClockRandomSource::ClockRandomSource() : m_state(clockTicks()) {}

float ClockRandomSource::next() {
  // splitmix64 over a state that takes in the clock each time; two draws within one clock tick
  // still differ because the state moves on by the golden-ratio increment.
  m_state = (m_state + 0x9E3779B97F4A7C15ull) ^ clockTicks();
  std::uint64_t z = m_state;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
  z ^= z >> 31;
  // 24 bits: every value is exact in single precision and below 1.
  return static_cast<float>(z >> 40) * (1.0f / 16777216.0f);
}

}  // namespace tnw::tradeoffs
