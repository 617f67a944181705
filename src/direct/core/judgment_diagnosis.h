#pragma once

#include "direct/core/judgment_state.h"
#include "direct/core/preference_cone.h"
#include "direct/core/weight_ratio_judgments.h"

// Std
#include <optional>
#include <string>

namespace tnw {
struct AttributeModel;
}  // namespace tnw

namespace tnw::direct {

// Why a judgment on the judgment page is inconsistent or invalid, in words: which bound
// conflicts (with which judged attribute), and the nearest interval that the ratio boxes could
// take for the judgment to be consistent.
class JudgmentDiagnosis {
 public:
  // Which bound of the judgment conflicts.
  enum class Bound { None, Lower, Upper, Both };

  // What diagnose() found.
  struct Result {
    // The status diagnosed; Consistent or None leave everything else empty.
    JudgmentState state = JudgmentState::None;
    // The bound that conflicts.
    Bound bound = Bound::None;
    // The judged attribute whose upper ratio is the lower limit (-1 when none).
    int lowerLimitAttribute = -1;
    // The judged attribute whose lower ratio is the upper limit (-1 when none).
    int upperLimitAttribute = -1;
    // The nearest consistent interval, as the boxes would show it; none when no interval is.
    std::optional<double> nearestLower;
    std::optional<double> nearestUpper;
    // The line shown under the status lamps ("" when there is nothing to diagnose).
    std::string text;
  };

  // Diagnoses target t's handles on `cone` against the judged attributes of the other groups.
  static Result diagnose(const PreferenceCone& cone, const RegionHandles& handles,
                         const WeightRatioJudgments& judgments, int t, const AttributeModel& model);
  // The smallest and the largest ratio a box can take with its handle inside the usable area.
  static double smallestTypeable(const PreferenceCone& cone);
  static double largestTypeable(const PreferenceCone& cone);
  // The name of a bound for the command line: "lower", "upper", "both" or "".
  static const char* boundName(Bound bound);
};

}  // namespace tnw::direct
