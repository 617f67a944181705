#include "direct/core/exact_weight_bounds.h"

#include "common/core/number_format.h"
#include "direct/core/attribute_texts.h"
#include "model/attribute_model.h"

// Std
#include <algorithm>
#include <cmath>
#include <map>

namespace tnw::direct {

// The closed form for groups, and why it is exact.
//
// Let the groups be g = 1..G, group g with n_g >= 1 members and a shared ratio x_g in
// [a_g, b_g], 0 <= a_g <= b_g, and D = sum_h n_h a_h > 0. A member of group g has the weight
//     w_g(x) = x_g / (n_g x_g + S),   S = sum_{h != g} n_h x_h.
// (1) For fixed S >= 0, w_g rises with x_g: d/dx [x / (n x + S)] = S / (n x + S)^2 >= 0.
// (2) For fixed x_g >= 0, w_g falls as S grows (S is in the denominator only).
// (3) S depends only on the other groups' ratios, so x_g and S vary independently over the box,
//     S from S_min = sum_{h != g} n_h a_h to S_max = sum_{h != g} n_h b_h.
// Hence the least weight takes x_g = a_g with S = S_max, and the greatest x_g = b_g with
// S = S_min, both points of the box:
//     w_g,min = a_g / (n_g a_g + sum_{h != g} n_h b_h),
//     w_g,max = b_g / (n_g b_g + sum_{h != g} n_h a_h).
// Both denominators are at least D > 0. With one member per group this is the familiar
// L_i / (L_i + sum_{j != i} U_j) and U_i / (U_i + sum_{j != i} L_j). Applying that per-attribute
// form to tied attributes would let a member's co-members sit at their upper bound while it sits
// at its lower one, which ties forbid: its bounds would be too wide.
std::vector<ExactWeightBounds::Bound> ExactWeightBounds::groupBounds(
    const std::vector<GroupInterval>& groups) {
  std::vector<Bound> bounds;
  bounds.reserve(groups.size());
  for (std::size_t g = 0; g < groups.size(); ++g) {
    // The other groups are summed afresh (not subtracted from a total) so that no cancellation
    // creeps in; there are at most 31 groups.
    double othersLow = 0.0;
    double othersHigh = 0.0;
    for (std::size_t h = 0; h < groups.size(); ++h) {
      if (h == g) continue;
      othersLow += groups[h].members * groups[h].low;
      othersHigh += groups[h].members * groups[h].high;
    }
    const GroupInterval& own = groups[g];
    const double minDen = own.members * own.low + othersHigh;
    const double maxDen = own.members * own.high + othersLow;
    bounds.push_back(
        {minDen > 0.0 ? own.low / minDen : 0.0, maxDen > 0.0 ? own.high / maxDen : 0.0});
  }
  return bounds;
}

ExactWeightBounds::Result ExactWeightBounds::compute(const std::vector<double>& lower,
                                                     const std::vector<double>& upper,
                                                     const std::vector<std::int16_t>& group,
                                                     int refAtt) {
  Result result;
  const int n = static_cast<int>(std::min(lower.size(), upper.size()));
  if (n == 0) return result;
  const auto groupOf = [&group](int i) {
    return static_cast<std::size_t>(i) < group.size() ? group[static_cast<std::size_t>(i)] : 0;
  };
  // Groups keyed by their number; an attribute outside any group gets a key of its own.
  std::map<int, std::size_t> slot;
  std::vector<GroupInterval> groups;
  std::vector<std::size_t> slotOf(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) {
    const int g = groupOf(i);
    const int key = g > 0 ? g : -1 - i;
    const bool reference = i == refAtt;
    const double low = reference ? 1.0 : lower[static_cast<std::size_t>(i)];
    const double high = reference ? 1.0 : upper[static_cast<std::size_t>(i)];
    result.attribute = i;
    if (!std::isfinite(low) || !std::isfinite(high)) {
      result.outcome = Outcome::NotFinite;
      return result;
    }
    if (low < 0.0) {
      result.outcome = Outcome::NegativeBound;
      return result;
    }
    const auto found = slot.find(key);
    if (found == slot.end()) {
      slot.emplace(key, groups.size());
      slotOf[static_cast<std::size_t>(i)] = groups.size();
      groups.push_back({low, high, 1});
      continue;
    }
    // Members move together: the shared ratio must lie in every member's interval.
    GroupInterval& shared = groups[found->second];
    shared.low = std::max(shared.low, low);
    shared.high = std::min(shared.high, high);
    ++shared.members;
    slotOf[static_cast<std::size_t>(i)] = found->second;
  }
  for (int i = 0; i < n; ++i) {
    const GroupInterval& g = groups[slotOf[static_cast<std::size_t>(i)]];
    if (g.low > g.high) {
      result.outcome = Outcome::GroupsDisagree;
      result.attribute = i;
      return result;
    }
  }
  double sumLow = 0.0;
  for (const GroupInterval& g : groups) sumLow += g.members * g.low;
  result.attribute = -1;
  if (!(sumLow > 0.0) || !std::isfinite(sumLow)) {
    result.outcome = std::isfinite(sumLow) ? Outcome::ZeroSum : Outcome::NotFinite;
    return result;
  }
  const std::vector<Bound> perGroup = groupBounds(groups);
  for (int i = 0; i < n; ++i)
    result.bounds.push_back(perGroup[slotOf[static_cast<std::size_t>(i)]]);
  result.outcome = Outcome::Computed;
  return result;
}

std::string ExactWeightBounds::message(const AttributeModel& model, const Result& result) {
  const std::string name =
      result.attribute >= 0 ? " (" + AttributeTexts::name(model, result.attribute) + ")" : "";
  switch (result.outcome) {
    case Outcome::Computed:
      return {};
    case Outcome::NoAttributes:
      return "No exact weight ranges: there are no attributes.";
    case Outcome::NotFinite:
      return "No exact weight ranges: a weight ratio" + name + " is not a finite number.";
    case Outcome::NegativeBound:
      return "No exact weight ranges: a lower weight ratio" + name + " is below zero.";
    case Outcome::GroupsDisagree:
      return "No exact weight ranges: the attributes tied with" + name +
             " have intervals without a ratio in common.";
    case Outcome::ZeroSum:
      return "No exact weight ranges: every weight ratio may be zero.";
  }
  return {};
}

std::vector<std::array<std::string, ExactWeightBounds::kColumns>> ExactWeightBounds::rows(
    const AttributeModel& model, const Result& result) {
  std::vector<std::array<std::string, kColumns>> out;
  for (std::size_t i = 0; i < result.bounds.size(); ++i) {
    const int att = static_cast<int>(i);
    out.push_back({std::to_string(att + 1), AttributeTexts::name(model, att),
                   formatNumber(result.bounds[i].low, "0.0000"),
                   formatNumber(result.bounds[i].high, "0.0000")});
  }
  return out;
}

}  // namespace tnw::direct
