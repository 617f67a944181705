#pragma once

#include "wizard/core/scenario_end.h"

// Std
#include <vector>

namespace tnw::tradeoffs {

using wizard::ScenarioEnd;

// One trade-off judgment: the pair, the four scores [a1, b1, a2, b2] and the response (0
// numerical, -3..3 verbal).
struct TradeOffJudgment {
  // The attribute indexes of the pair.
  int first = 0;
  int second = 0;
  // a1, b1, a2, b2 as given.
  double scores[4] = {0, 0, 0, 0};
  // The verbal response, 0 for a numerical judgment.
  int response = 0;
};

// A run of the trade-off dialog: the judgments entered in manual mode and how the run ends.
struct TradeOffScenario {
  // The judgments in order.
  std::vector<TradeOffJudgment> judgments;
  // How the run ends; Finish presses Next (the fit) first.
  ScenarioEnd end = ScenarioEnd::Finish;
};

}  // namespace tnw::tradeoffs
