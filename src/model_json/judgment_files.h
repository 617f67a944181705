#pragma once

#include "direct/core/intervals_file.h"
#include "direct/core/scenario.h"
#include "tradeoffs/core/judgments_file.h"

// Std
#include <optional>
#include <string>
#include <vector>

namespace tnw {

// The trade-off judgments as the JSON list `tnwizard tradeoffs` reads:
// [{"first": i, "second": j, "scores": [a1, b1, a2, b2], "response": r}, ...], one per line.
std::string writeTradeOffJudgments(const std::vector<tradeoffs::TradeOffJudgment>& judgments);

// The direct method's order, reference and judgment steps as the JSON scenario `tnwizard direct`
// reads: {"order": [...], "reference": r, "steps": [{"target": t, "lower": "…", "upper": "…"}]}.
std::string writeDirectIntervals(const direct::DirectScenario& scenario);

// The trade-off dialog's judgment files in JSON, read with readTradeOffJudgments.
class JsonJudgmentsFile : public tradeoffs::JudgmentsFile {
 public:
  // Writes writeTradeOffJudgments(judgments) to path.
  std::optional<std::string> save(
      const std::string& path,
      const std::vector<tradeoffs::TradeOffJudgment>& judgments) const override;
  // Reads the file within kJudgmentsJsonLimits; the located reason when it cannot be used.
  std::optional<std::string> load(
      const std::string& path, int numAtt,
      std::vector<tradeoffs::TradeOffJudgment>& judgments) const override;
};

// The direct dialog's interval files in JSON, read with readDirectScenario.
class JsonIntervalsFile : public direct::IntervalsFile {
 public:
  // Writes writeDirectIntervals(scenario) to path.
  std::optional<std::string> save(const std::string& path,
                                  const direct::DirectScenario& scenario) const override;
  // Reads the file within kScenarioJsonLimits; the located reason when it cannot be used.
  std::optional<std::string> load(const std::string& path,
                                  direct::DirectScenario& scenario) const override;
};

}  // namespace tnw
