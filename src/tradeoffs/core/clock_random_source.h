#pragma once

#include "tradeoffs/core/random_source.h"

// Std
#include <cstdint>

namespace tnw::tradeoffs {

// The default random source: the clock is mixed into the state on every draw, as the page
// reseeds its generator from the clock on every call.
class ClockRandomSource : public RandomSource {
 public:
  // A source whose state starts from the clock.
  ClockRandomSource();
  // The next number in [0, 1).
  float next() override;

 private:
  std::uint64_t m_state = 0;
};

}  // namespace tnw::tradeoffs
