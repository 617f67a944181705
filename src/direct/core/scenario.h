#pragma once

#include "wizard/core/scenario_end.h"

// Std
#include <optional>
#include <string>
#include <vector>

namespace tnw::direct {

using wizard::ScenarioEnd;

// One step of a direct-method scenario: a restart, or a target with the two texts of its ratio
// boxes.
struct ScenarioStep {
  // Re-start All is pressed instead of a judgment.
  bool restart = false;
  // The target chosen in the list (-1 when none is given).
  int target = -1;
  // The texts entered into the lower and the upper ratio box.
  std::string lower;
  std::string upper;
};

// How a scenario's texts reach the ratio boxes.
enum class TextEntry {
  // The old text is selected and deleted, then every character goes through the box's key
  // filter, as a user types.
  Typed,
  // The box is given the whole text at once, as a paste does.
  Set,
};

// A run of the direct-method dialog: the order and the reference chosen, the judgment steps,
// and how the run ends. With neither an order, a reference nor a step, a run that does not end
// with Finish leaves the dialog on its first step.
struct DirectScenario {
  // The group (1..31) of each attribute, when given.
  std::optional<std::vector<int>> order;
  // The reference attribute (0..30), when given.
  std::optional<int> reference;
  // The judgment steps in order.
  std::vector<ScenarioStep> steps;
  // How the run ends.
  ScenarioEnd end = ScenarioEnd::Finish;
  // How the texts of the steps are entered.
  TextEntry entry = TextEntry::Typed;
};

}  // namespace tnw::direct
