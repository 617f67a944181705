#pragma once

#include "direct/core/scenario.h"
#include "model_json/json_input.h"

// JSON
#include <nlohmann/json.hpp>

// Std
#include <optional>
#include <string>
#include <string_view>

namespace tnw {

// What a scenario may hold. A model has at most 31 attributes, a ratio is typed in a few
// characters, and a session of judgments with every re-entry and restart a user makes stays
// far below a thousand steps.
inline constexpr JsonLimits kScenarioJsonLimits{1u << 20, 8, 1000, 256, 64};

// Reads the scenario text within kScenarioJsonLimits into scenario: nothing, or where and why
// it cannot be run. A scenario is an object:
//   {"order": [group per attribute], "reference": r,
//    "steps": [{"target": t, "lower": "text", "upper": "text"} | {"restart": true}, ...],
//    "end": "Finish" | "Cancel" | "Back"}
// every member optional ("end" is "Finish" when left out); its texts are typed key by key.
std::optional<JsonInputError> readDirectScenario(std::string_view text,
                                                 direct::DirectScenario& scenario);

// Reads one scenario object found at `pointer` of a larger document (errors name the members
// below it) into scenario, as readDirectScenario does.
std::optional<JsonInputError> readDirectScenario(const nlohmann::json& value,
                                                 const std::string& pointer,
                                                 direct::DirectScenario& scenario);

}  // namespace tnw
