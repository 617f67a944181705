#include "direct/core/previous_judgments.h"

// Std
#include <algorithm>
#include <cmath>

namespace tnw::direct {

namespace {

struct Ratios {
  std::vector<double> lower, middle, upper;
};

bool allFinite(const std::vector<double>& v) {
  return std::all_of(v.begin(), v.end(), [](double x) { return std::isfinite(x); });
}

}  // namespace

bool PreviousJudgments::hasPreviousResult(const AttributeModel& model) {
  return model.PrevTNType == "MAVT_DIRECT" || model.PrevTNType == "MAVT_TRADEOFFS";
}

int PreviousJudgments::chooseReference(const AttributeModel& model, int n) {
  if (n <= 0) return 0;
  const auto first = model.PrevWeight.begin();
  const auto [lo, hi] = std::minmax_element(first, first + n);
  const double mid = (*lo + *hi) / 2.0;
  const double d = std::fabs(model.PrevWeight[0] - mid);
  int ref = 0;
  for (int i = 1; i < n; ++i) {
    if (std::fabs(model.PrevWeight[static_cast<std::size_t>(i)] - mid) < d) ref = i;
  }
  return ref;
}

PreviousJudgments::Outcome PreviousJudgments::GetPreviousWeightRatios(
    const AttributeModel& model, DirectResult& result, WeightRatioJudgments& judgments) {
  const int n = judgments.count();
  if (n == 0) return Outcome::BadReference;
  int ref = 0;
  if (model.PrevRefAtt.has_value()) {
    const double stored = *model.PrevRefAtt;
    if (!std::isfinite(stored)) return Outcome::BadReference;
    // The stored value is converted as the host converts a number to an integer: ties to even.
    const double rounded = std::nearbyint(stored);
    if (rounded < 0.0 || rounded >= n) return Outcome::BadReference;
    ref = static_cast<int>(rounded);
  } else {
    ref = chooseReference(model, n);
  }
  const auto r = static_cast<std::size_t>(ref);
  const double lr = model.PrevWeightL[r];
  const double mr = model.PrevWeight[r];
  const double ur = model.PrevWeightH[r];
  if (lr == 0.0 || mr == 0.0 || ur == 0.0) return Outcome::ZeroReferenceWeight;
  Ratios ratios;
  for (std::size_t i = 0; i < static_cast<std::size_t>(n); ++i) {
    ratios.lower.push_back(model.PrevWeightL[i] / lr);
    ratios.middle.push_back(model.PrevWeight[i] / mr);
    ratios.upper.push_back(model.PrevWeightH[i] / ur);
  }
  if (!allFinite(ratios.lower) || !allFinite(ratios.middle) || !allFinite(ratios.upper)) {
    return Outcome::NotFinite;
  }
  result.RefAtt = static_cast<std::int16_t>(ref);
  result.LowerWeights = ratios.lower;
  result.CloseWeights = ratios.middle;
  result.UpperWeights = ratios.upper;
  for (int i = 0; i < n; ++i) judgments.setJudged(i, true);
  return Outcome::Resumed;
}

PreviousJudgments::Order PreviousJudgments::orderFromMiddleRatios(
    const std::vector<double>& middle) {
  std::vector<double> w(middle);
  const auto n = w.size();
  Order order;
  order.GroupSize.assign(n + 1, 0);
  order.AttGroup.assign(n, 0);
  for (std::size_t g = 1; g <= n; ++g) {
    double m = 0.0;
    for (double x : w) {
      if (x > m) m = x;
    }
    std::int16_t count = 0;
    for (std::size_t i = 0; i < n; ++i) {
      if (w[i] == m) {
        order.AttGroup[i] = static_cast<std::int16_t>(g);
        w[i] = -1.0;
        ++count;
      }
    }
    if (count > 0) {
      ++order.GroupCount;
      order.GroupSize[static_cast<std::size_t>(order.GroupCount)] = count;
    }
  }
  return order;
}

PreviousJudgments::Outcome PreviousJudgments::GetPreviousOrder(const AttributeModel& model,
                                                               DirectResult& result,
                                                               WeightRatioJudgments& judgments,
                                                               Order& order) {
  const Outcome outcome = GetPreviousWeightRatios(model, result, judgments);
  if (outcome != Outcome::Resumed) return outcome;
  order = orderFromMiddleRatios(result.CloseWeights);
  return outcome;
}

std::string PreviousJudgments::message(Outcome outcome) {
  switch (outcome) {
    case Outcome::Resumed:
      return {};
    case Outcome::ZeroReferenceWeight:
      return "The earlier weights cannot be resumed: the earlier weight of the reference "
             "attribute is zero. The judgments start afresh.";
    case Outcome::BadReference:
      return "The earlier weights cannot be resumed: the stored reference attribute is not an "
             "attribute of this model. The judgments start afresh.";
    case Outcome::NotFinite:
      return "The earlier weights cannot be resumed: they do not give finite weight ratios. "
             "The judgments start afresh.";
  }
  return {};
}

}  // namespace tnw::direct
