// Feeds arbitrary text to the scenario reader of `tnwizard direct` and plays what it accepts
// through the direct dialog's presenter, on a fresh model or one with an earlier result. Besides
// the sanitizers it checks that a refusal is located, that a played run has one entry per step,
// and that an export only comes from a complete run with finite weights.

#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"
#include "fuzz_models.h"
#include "model_json/direct_player.h"
#include "model_json/scenario_json.h"

// Std
#include <cmath>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tnw::fuzz::check;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  tnw::direct::DirectScenario scenario;
  if (const auto error = tnw::readDirectScenario(text, scenario)) {
    check(!error->where.empty() && !error->what.empty());
    check(error->text().find("json.exception") == std::string::npos);
    return 0;
  }
  tnw::WizardContext context;
  context.FileIndex = 1;
  context.model = tnw::fuzz::fuzzModel(4, size % 2 == 1);
  tnw::RecordingUiServices ui;
  const tnw::DirectPlayResult run = tnw::playDirectScenario(context, ui, scenario);
  check(run.error.has_value() == run.output.is_null());
  if (run.error) return 0;
  check(run.output["steps"].size() == scenario.steps.size());
  const auto& exported = run.output["export"];
  if (!exported.is_null()) {
    check(run.output["complete"].get<bool>());
    for (const char* key : {"weights", "weightsH", "weightsL"}) {
      check(exported[key].size() == 4);
      for (const auto& w : exported[key]) check(w.is_number() && std::isfinite(w.get<double>()));
    }
  }
  run.output.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  return 0;
}
