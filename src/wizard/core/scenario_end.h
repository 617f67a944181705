#pragma once

namespace tnw::wizard {

// How a played scenario leaves its dialog once its steps are taken.
enum class ScenarioEnd {
  // Next to the last step, then Finish: the method hands its weights over.
  Finish,
  // Cancel: the wizard closes without weights.
  Cancel,
  // Back to the first step and once more, back to the method selection.
  Back,
};

}  // namespace tnw::wizard
