#pragma once

#include "model_json/judgments_json.h"

// JSON
#include <nlohmann/json.hpp>

// Std
#include <vector>

namespace tnw::tradeoffs {
class RandomSource;
}  // namespace tnw::tradeoffs

namespace tnw {

struct WizardContext;

// Enters the judgments through the trade-off dialog's presenter as its Enter does (the pair
// chosen in manual mode, the four scores, the response), then presses Next and, when the fit was
// completed, Finish. The result in the shape `tnwizard tradeoffs` prints: the fit, every message
// shown in "warnings", and the export (null when there was none).
nlohmann::ordered_json playTradeOffJudgments(WizardContext& context,
                                             const std::vector<TradeOffJudgment>& judgments,
                                             tradeoffs::RandomSource& random);

}  // namespace tnw
