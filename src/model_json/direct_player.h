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

// Plays the scenario with the direct method's scenario player and gives the run in the shape
// `tnwizard direct` prints. ui records every message box; those it holds already are noted first.
DirectPlayResult playDirectScenario(WizardContext& context, RecordingUiServices& ui,
                                    const direct::DirectScenario& scenario);

}  // namespace tnw
