#pragma once

#include "model_json/json_input.h"
#include "tradeoffs/core/scenario.h"

// JSON
#include <nlohmann/json.hpp>

// Std
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tnw {

// What a judgment list may hold. The method needs a few judgments per attribute of at most 31;
// judgments past that number are not recorded, so a thousand is far more than a session makes.
inline constexpr JsonLimits kJudgmentsJsonLimits{1u << 20, 8, 1000, 256, 64};

// Reads the judgments for a model of numAtt attributes within kJudgmentsJsonLimits: nothing, or
// where and why they cannot be entered. A judgment is named by its 0-based place, "[2]".
std::optional<JsonInputError> readTradeOffJudgments(std::string_view text, int numAtt,
                                                    std::vector<tradeoffs::TradeOffJudgment>& judgments);

// Reads one trade-off run found at `pointer` of a larger document for a model of numAtt
// attributes: {"judgments": [judgment, ...], "end": "Finish" | "Cancel" | "Back"}, both members
// optional ("end" is "Finish" when left out). Errors name the members below pointer.
std::optional<JsonInputError> readTradeOffScenario(const nlohmann::json& value,
                                                   const std::string& pointer, int numAtt,
                                                   tradeoffs::TradeOffScenario& scenario);

}  // namespace tnw
