#pragma once

#include "model_json/json_input.h"

// Std
#include <optional>
#include <string_view>
#include <vector>

namespace tnw {

// One judgment of `tnwizard tradeoffs`: the pair, the four scores [a1, b1, a2, b2] and the
// response (0 numerical, -3..3 verbal).
struct TradeOffJudgment {
  // The attribute indexes of the pair.
  int first = 0;
  int second = 0;
  // a1, b1, a2, b2 as given.
  double scores[4] = {0, 0, 0, 0};
  // The verbal response, 0 for a numerical judgment.
  int response = 0;
};

// What a judgment list may hold. The method needs a few judgments per attribute of at most 31;
// judgments past that number are not recorded, so a thousand is far more than a session makes.
inline constexpr JsonLimits kJudgmentsJsonLimits{1u << 20, 8, 1000, 256, 64};

// Reads the judgments for a model of numAtt attributes within kJudgmentsJsonLimits: nothing, or
// where and why they cannot be entered. A judgment is named by its 0-based place, "[2]".
std::optional<JsonInputError> readTradeOffJudgments(std::string_view text, int numAtt,
                                                    std::vector<TradeOffJudgment>& judgments);

}  // namespace tnw
