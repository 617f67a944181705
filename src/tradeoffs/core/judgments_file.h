#pragma once

#include "tradeoffs/core/scenario.h"

// Std
#include <optional>
#include <string>
#include <vector>

namespace tnw::tradeoffs {

// Reads and writes a file of trade-off judgments in the form the command line's `tradeoffs`
// tool reads. The dialog knows only this interface; the JSON form lives above the methods and is
// handed to the dialog by whoever makes it.
class JudgmentsFile {
 public:
  virtual ~JudgmentsFile() = default;

  // Writes judgments to the file at path; the reason, in the user's words, when it cannot.
  virtual std::optional<std::string> save(const std::string& path,
                                          const std::vector<TradeOffJudgment>& judgments) const = 0;
  // Reads the judgments in the file at path for a model of numAtt attributes into judgments
  // (every attribute index checked against the model); the reason when they cannot be read,
  // judgments then empty.
  virtual std::optional<std::string> load(const std::string& path, int numAtt,
                                          std::vector<TradeOffJudgment>& judgments) const = 0;
};

}  // namespace tnw::tradeoffs
