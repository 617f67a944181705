// Feeds arbitrary text to the judgment reader of `tnwizard tradeoffs` and enters what it accepts
// through the trade-off dialog's presenter, then runs the fit. Besides the sanitizers it checks
// that a refusal is located, and that an export only follows a completed fit, with one finite
// weight per attribute.

#include "wizard/core/wizard_context.h"
#include "fuzz_models.h"
#include "model_json/judgments_json.h"
#include "model_json/tradeoffs_player.h"
#include "tradeoffs/core/random_source.h"

// Std
#include <cmath>
#include <cstdint>
#include <string_view>

namespace {

// The same draws every run, so that a finding can be replayed.
class FixedRandomSource : public tnw::tradeoffs::RandomSource {
 public:
  float next() override {
    m_x = m_x * 0.618034f + 0.3f;
    m_x -= std::floor(m_x);
    return m_x;
  }

 private:
  float m_x = 0.25f;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tnw::fuzz::check;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  // Two attributes reach the defined outcome of a fit without degrees of freedom; four do not.
  const int numAtt = size % 3 == 0 ? 2 : 4;
  std::vector<tnw::tradeoffs::TradeOffJudgment> judgments;
  if (const auto error = tnw::readTradeOffJudgments(text, numAtt, judgments)) {
    check(!error->where.empty() && !error->what.empty());
    check(error->text().find("json.exception") == std::string::npos);
    return 0;
  }
  tnw::WizardContext context;
  context.FileIndex = 1;
  context.model = tnw::fuzz::fuzzModel(numAtt, false);
  FixedRandomSource random;
  const nlohmann::ordered_json out = tnw::playTradeOffJudgments(context, judgments, random);
  const auto& exported = out["export"];
  if (!exported.is_null()) {
    check(out["error"].is_null());
    for (const char* key : {"weights", "weightsH", "weightsL"}) {
      check(exported[key].size() == static_cast<std::size_t>(numAtt));
      for (const auto& w : exported[key]) check(w.is_number() && std::isfinite(w.get<double>()));
    }
  }
  out.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  return 0;
}
