#pragma once

#include "common/core/currency.h"

namespace tnw::tradeoffs {

// The scores of the two alternatives on the two selected attributes: A₁, B₁ on the first, A₂, B₂
// on the second.
struct TradeOffScores {
  Currency A1;
  Currency B1;
  Currency A2;
  Currency B2;
};

}  // namespace tnw::tradeoffs
