#pragma once

#include "model_json/json_input.h"

// Std
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tnw {

// One step of a direct-method scenario: a restart, or a target with the two typed texts.
struct ScenarioStep {
  // {"restart": true}: Re-start All is pressed instead of a judgment.
  bool restart = false;
  // The target chosen in the list (-1 when none is given).
  int target = -1;
  // The texts typed into the lower and the upper ratio box.
  std::string lower;
  std::string upper;
};

// A scenario of `tnwizard direct`, read and checked but not yet run.
struct DirectScenario {
  // The group (1..31) of each attribute, when given.
  std::optional<std::vector<int>> order;
  // The reference attribute (0..30), when given.
  std::optional<int> reference;
  // The judgment steps in order.
  std::vector<ScenarioStep> steps;
};

// What a scenario may hold. A model has at most 31 attributes, a ratio is typed in a few
// characters, and a session of judgments with every re-entry and restart a user makes stays
// far below a thousand steps.
inline constexpr JsonLimits kScenarioJsonLimits{1u << 20, 8, 1000, 256, 64};

// Reads the scenario text within kScenarioJsonLimits into scenario: nothing, or where and why
// it cannot be run.
std::optional<JsonInputError> readDirectScenario(std::string_view text, DirectScenario& scenario);

}  // namespace tnw
