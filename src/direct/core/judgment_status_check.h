#pragma once

#include "direct/core/judgment_state.h"
#include "direct/core/preference_cone.h"
#include "direct/core/weight_ratio_judgments.h"

// Std
#include <optional>

namespace tnw::direct {

// Check_Judgment_Status without its display: what the two handles say about the target's
// interval against the judged attributes of the other groups.
class JudgmentStatusCheck {
 public:
  // The upper ratio limit when no more important attribute is judged.
  static constexpr double kNoUpperLimit = 100.0;

  // What the check found.
  struct Result {
    JudgmentState state = JudgmentState::None;
    float lowerRatio = 0.0F;  // the smaller of the two handle ratios
    float upperRatio = 0.0F;  // the larger one
    double upperLimit = kNoUpperLimit;
    std::optional<double> lowerLimit;  // none when no less important attribute is judged
  };

  // Checks target t's handles.
  static Result check(const PreferenceCone& cone, const RegionHandles& handles,
                      const WeightRatioJudgments& judgments, int t);
  // The lower ratio of the first judged attribute of the more important groups, nearest first.
  static double upperLimit(const WeightRatioJudgments& judgments, int t);
  // The upper ratio of the first judged attribute of the less important groups, nearest first.
  static std::optional<double> lowerLimit(const WeightRatioJudgments& judgments, int t,
                                          int groupCount);
};

}  // namespace tnw::direct
