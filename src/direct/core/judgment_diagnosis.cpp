#include "direct/core/judgment_diagnosis.h"

#include "common/core/number_format.h"
#include "direct/core/attribute_texts.h"
#include "direct/core/judgment_status_check.h"

// Std
#include <algorithm>
#include <cmath>

namespace tnw::direct {

namespace {

// A ratio as a box shows it ("0.00"), read back: the status check compares these.
double shown(double r) { return leadingNumber(formatNumber(r, "0.00")); }

// The least box value (two decimals) that is at least x, and the greatest that is at most x.
double ceilShown(double x) {
  double v = shown(std::ceil(x * 100.0 - 1e-7) / 100.0);
  if (v < x) v = shown(v + 0.01);
  return v;
}

double floorShown(double x) {
  double v = shown(std::floor(x * 100.0 + 1e-7) / 100.0);
  if (v > x) v = shown(v - 0.01);
  return v;
}

// A limit as text: two decimals when that is exact, else four.
std::string limitText(double v) {
  const std::string two = formatNumber(v, "0.00");
  return leadingNumber(two) == v ? two : formatNumber(v, "0.0000");
}

// Whether a box value gives a usable handle that stands for the same shown ratio.
bool typeable(const PreferenceCone& cone, double r) {
  const HandlePoint p = cone.handleForRatio(r);
  return cone.validHandle(p) && shown(cone.ratioFromHandle(p)) == r;
}

// The first judged attribute of the groups from `from` towards `to` (nearest first), or -1.
int firstJudged(const WeightRatioJudgments& j, int from, int to) {
  const int step = to >= from ? 1 : -1;
  for (int g = from; step > 0 ? g <= to : g >= to; g += step) {
    for (int k = 0; k < j.count(); ++k) {
      if (j.group(k) == g && j.judged(k)) return k;
    }
  }
  return -1;
}

// The ratio a handle would stand for when moved just inside the usable area.
double nearestUsableRatio(const PreferenceCone& cone, HandlePoint p) {
  const float h = cone.handleSize();
  const float s = cone.side();
  const float x = std::isfinite(p.x) ? std::clamp(p.x, h, s) : s;
  const float height = std::isfinite(p.y) ? std::clamp(s - p.y, h, s) : h;
  return shown(height / x);
}

std::string quoted(const AttributeModel& model, int i) {
  return "\"" + AttributeTexts::name(model, i) + "\"";
}

}  // namespace

double JudgmentDiagnosis::smallestTypeable(const PreferenceCone& cone) {
  double r = ceilShown(cone.handleSize() / (PreferenceCone::kReach * cone.side()));
  for (int step = 0; step < 100 && !typeable(cone, r); ++step) r = shown(r + 0.01);
  return r;
}

double JudgmentDiagnosis::largestTypeable(const PreferenceCone& cone) {
  double r = floorShown(PreferenceCone::kReach * cone.side() / cone.handleSize());
  for (int step = 0; step < 100 && r > 0.01 && !typeable(cone, r); ++step) r = shown(r - 0.01);
  return r;
}

const char* JudgmentDiagnosis::boundName(Bound bound) {
  switch (bound) {
    case Bound::Lower:
      return "lower";
    case Bound::Upper:
      return "upper";
    case Bound::Both:
      return "both";
    case Bound::None:
      break;
  }
  return "";
}

JudgmentDiagnosis::Result JudgmentDiagnosis::diagnose(const PreferenceCone& cone,
                                                      const RegionHandles& handles,
                                                      const WeightRatioJudgments& judgments, int t,
                                                      const AttributeModel& model) {
  const auto check = JudgmentStatusCheck::check(cone, handles, judgments, t);
  Result d;
  d.state = check.state;
  if (check.state != JudgmentState::Invalid && check.state != JudgmentState::Inconsistent) return d;
  d.upperLimitAttribute = firstJudged(judgments, judgments.group(t) - 1, 1);
  d.lowerLimitAttribute = firstJudged(judgments, judgments.group(t) + 1, judgments.groupCount());
  const double upperLimit = d.upperLimitAttribute >= 0 ? judgments.lower(d.upperLimitAttribute)
                                                       : JudgmentStatusCheck::kNoUpperLimit;
  // No lower limit when no less important attribute is judged.
  const bool hasLowerLimit = d.lowerLimitAttribute >= 0;
  const double lowerLimit = hasLowerLimit ? judgments.upper(d.lowerLimitAttribute) : 0.0;
  double lo = 0.0;
  double hi = 0.0;
  const double typeMin = smallestTypeable(cone);
  const double typeMax = largestTypeable(cone);
  if (check.state == JudgmentState::Invalid) {
    const bool firstBad = !cone.validHandle(handles.first);
    const bool secondBad = !cone.validHandle(handles.second);
    const double a = nearestUsableRatio(cone, handles.first);
    const double b = nearestUsableRatio(cone, handles.second);
    lo = std::min(a, b);
    hi = std::max(a, b);
    const bool badIsLower = firstBad ? a <= b : b < a;
    d.bound = firstBad && secondBad ? Bound::Both : (badIsLower ? Bound::Lower : Bound::Upper);
    const char* which = d.bound == Bound::Both    ? "both handles lie"
                        : d.bound == Bound::Lower ? "the handle of the lower bound lies"
                                                  : "the handle of the upper bound lies";
    d.text = std::string("Conflict: ") + which +
             " outside the usable area, which takes ratios from " + formatNumber(typeMin, "0.00") +
             " to " + formatNumber(typeMax, "0.00") + ".";
  } else {
    lo = shown(check.lowerRatio);
    hi = shown(check.upperRatio);
    const bool lowBad = hasLowerLimit && lo < lowerLimit;
    const bool highBad = hi > upperLimit;
    d.bound = lowBad && highBad ? Bound::Both : (lowBad ? Bound::Lower : Bound::Upper);
    d.text = "Conflict:";
    if (lowBad) {
      d.text += " the lower bound " + formatNumber(lo, "0.00") + " is below " +
                limitText(lowerLimit) + ", the upper ratio of " +
                quoted(model, d.lowerLimitAttribute) + " (less important)" + (highBad ? ";" : ".");
    }
    if (highBad) {
      d.text += " the upper bound " + formatNumber(hi, "0.00") + " is above " +
                limitText(upperLimit) +
                (d.upperLimitAttribute >= 0
                     ? ", the lower ratio of " + quoted(model, d.upperLimitAttribute) +
                           " (more important)."
                     : ", the largest ratio allowed.");
    }
  }
  const double least = std::max(typeMin, hasLowerLimit ? ceilShown(lowerLimit) : typeMin);
  const double most = std::min(typeMax, floorShown(upperLimit));
  if (least > most) {
    d.text +=
        " No interval is consistent: the judged attributes of the other groups leave no "
        "room between " +
        formatNumber(least, "0.00") + " and " + formatNumber(most, "0.00") + ".";
    return d;
  }
  d.nearestLower = std::clamp(lo, least, most);
  d.nearestUpper = std::clamp(hi, least, most);
  d.text += " Nearest consistent interval: " + formatNumber(*d.nearestLower, "0.00") + " to " +
            formatNumber(*d.nearestUpper, "0.00") + ".";
  return d;
}

}  // namespace tnw::direct
