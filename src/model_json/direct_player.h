#pragma once

#include "model_json/scenario_json.h"

// JSON
#include <nlohmann/json.hpp>

// Std
#include <optional>
#include <string>
#include <vector>

namespace tnw {

struct WizardContext;
class RecordingUiServices;

// What playing a direct-method scenario gave.
struct DirectPlayResult {
  // The run in the shape `tnwizard direct` prints; null when the scenario could not be run.
  nlohmann::ordered_json output;
  // The message-box texts shown outside the steps (on entry, after Finish) and notes on how the
  // scenario was taken, in order.
  std::vector<std::string> notes;
  // Why the scenario could not be run as written (an order that does not fit the model, a
  // missing reference, a model the method cannot weigh).
  std::optional<std::string> error;
};

// Runs the scenario through the direct dialog's presenter as a user would: the order and the
// reference chosen, each step's texts typed key by key and checked, Enter pressed, then Next and
// Finish. ui records every message box.
DirectPlayResult playDirectScenario(WizardContext& context, RecordingUiServices& ui,
                                    const DirectScenario& scenario);

}  // namespace tnw
