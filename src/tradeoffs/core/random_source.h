#pragma once

namespace tnw::tradeoffs {

// A source of uniform random numbers in [0, 1) of single precision, as the trade-off page draws
// them. Injected, so that tests and the headless runner can fix the draws.
class RandomSource {
 public:
  virtual ~RandomSource() = default;
  // The next number, at least 0 and less than 1.
  virtual float next() = 0;
};

}  // namespace tnw::tradeoffs
