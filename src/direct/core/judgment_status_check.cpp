#include "direct/core/judgment_status_check.h"

#include "common/core/number_format.h"

// Std
#include <algorithm>

namespace tnw::direct {

namespace {

// The ratio as its box shows it ("0.00"): that is the value Enter would record, so the limits
// are compared with it rather than with the handle's single-precision noise.
double shownRatio(float r) { return leadingNumber(formatNumber(r, "0.00")); }

}  // namespace

double JudgmentStatusCheck::upperLimit(const WeightRatioJudgments& judgments, int t) {
  for (int g = judgments.group(t) - 1; g >= 1; --g) {
    for (int k = 0; k < judgments.count(); ++k) {
      if (judgments.group(k) == g && judgments.judged(k)) return judgments.lower(k);
    }
  }
  return kNoUpperLimit;
}

std::optional<double> JudgmentStatusCheck::lowerLimit(const WeightRatioJudgments& judgments, int t,
                                                      int groupCount) {
  for (int g = judgments.group(t) + 1; g <= groupCount; ++g) {
    for (int k = 0; k < judgments.count(); ++k) {
      if (judgments.group(k) == g && judgments.judged(k)) return judgments.upper(k);
    }
  }
  return std::nullopt;
}

JudgmentStatusCheck::Result JudgmentStatusCheck::check(const PreferenceCone& cone,
                                                       const RegionHandles& handles,
                                                       const WeightRatioJudgments& judgments,
                                                       int t) {
  Result result;
  if (!cone.validHandle(handles.first) || !cone.validHandle(handles.second)) {
    result.state = JudgmentState::Invalid;
    return result;
  }
  const float a = cone.ratioFromHandle(handles.first);
  const float b = cone.ratioFromHandle(handles.second);
  result.lowerRatio = std::min(a, b);
  result.upperRatio = std::max(a, b);
  result.upperLimit = upperLimit(judgments, t);
  result.lowerLimit = lowerLimit(judgments, t, judgments.groupCount());
  const bool aboveLower =
      !result.lowerLimit.has_value() || shownRatio(result.lowerRatio) >= *result.lowerLimit;
  const bool belowUpper = shownRatio(result.upperRatio) <= result.upperLimit;
  result.state = aboveLower && belowUpper ? JudgmentState::Consistent : JudgmentState::Inconsistent;
  return result;
}

}  // namespace tnw::direct
