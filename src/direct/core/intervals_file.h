#pragma once

#include "direct/core/scenario.h"

// Std
#include <optional>
#include <string>

namespace tnw::direct {

// Reads and writes a file of the direct method's judgments (the importance order, the reference
// and one interval per judged target) in the form the command line's `direct` tool reads. The
// dialog knows only this interface; the JSON form lives above the methods and is handed to the
// dialog by whoever makes it.
class IntervalsFile {
 public:
  virtual ~IntervalsFile() = default;

  // Writes scenario's order, reference and steps to the file at path; the reason, in the user's
  // words, when it cannot.
  virtual std::optional<std::string> save(const std::string& path,
                                          const DirectScenario& scenario) const = 0;
  // Reads the scenario in the file at path; the reason when it cannot be read, scenario then
  // empty.
  virtual std::optional<std::string> load(const std::string& path,
                                          DirectScenario& scenario) const = 0;
};

}  // namespace tnw::direct
