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

// Plays the judgments with the trade-off method's scenario player, ending with Finish (Next, and
// Finish when the fit was completed). The result in the shape `tnwizard tradeoffs` prints: the fit,
// every message shown in "warnings", and the export (null when there was none).
nlohmann::ordered_json playTradeOffJudgments(
    WizardContext& context, const std::vector<tradeoffs::TradeOffJudgment>& judgments,
    tradeoffs::RandomSource& random);

}  // namespace tnw
