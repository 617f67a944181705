#include "direct/core/weight_ratio_judgments.h"

// Std
#include <algorithm>

namespace tnw::direct {

namespace {
constexpr double kLessImportant = 0.8;
constexpr double kMoreImportant = 1.2;
}  // namespace

WeightRatioJudgments::WeightRatioJudgments(const AttributeModel& model, DirectResult& result)
    : m_model(model), m_result(result) {
  reset();
}

void WeightRatioJudgments::reset() {
  m_count = m_model.attributeCount();
  const auto n = static_cast<std::size_t>(m_count);
  m_result.LowerWeights.resize(n, 0.0);
  m_result.CloseWeights.resize(n, 0.0);
  m_result.UpperWeights.resize(n, 0.0);
  m_judged.assign(n, false);
  m_hasHandles.assign(n, false);
  m_handles.assign(n, RegionHandles{});
}

WeightRatioJudgments::State WeightRatioJudgments::state() const {
  return {m_count,
          m_judged,
          m_hasHandles,
          m_handles,
          m_result.LowerWeights,
          m_result.CloseWeights,
          m_result.UpperWeights};
}

void WeightRatioJudgments::restore(const State& state) {
  m_count = state.count;
  m_judged = state.judged;
  m_hasHandles = state.hasHandles;
  m_handles = state.handles;
  m_result.LowerWeights = state.lowerWeights;
  m_result.CloseWeights = state.closeWeights;
  m_result.UpperWeights = state.upperWeights;
}

int WeightRatioJudgments::group(int i) const {
  if (!valid(i) || static_cast<std::size_t>(i) >= m_result.FinalAttGroup.size()) return 0;
  return m_result.FinalAttGroup[static_cast<std::size_t>(i)];
}

bool WeightRatioJudgments::judged(int i) const {
  return valid(i) && m_judged[static_cast<std::size_t>(i)];
}

void WeightRatioJudgments::setJudged(int i, bool value) {
  if (valid(i)) m_judged[static_cast<std::size_t>(i)] = value;
}

void WeightRatioJudgments::setHandles(int i, const RegionHandles& handles) {
  if (!valid(i)) return;
  m_handles[static_cast<std::size_t>(i)] = handles;
  m_hasHandles[static_cast<std::size_t>(i)] = true;
}

const RegionHandles* WeightRatioJudgments::handles(int i) const {
  if (!valid(i) || !m_hasHandles[static_cast<std::size_t>(i)]) return nullptr;
  return &m_handles[static_cast<std::size_t>(i)];
}

double WeightRatioJudgments::lower(int i) const {
  return valid(i) ? m_result.LowerWeights[static_cast<std::size_t>(i)] : 0.0;
}

double WeightRatioJudgments::middle(int i) const {
  return valid(i) ? m_result.CloseWeights[static_cast<std::size_t>(i)] : 0.0;
}

double WeightRatioJudgments::upper(int i) const {
  return valid(i) ? m_result.UpperWeights[static_cast<std::size_t>(i)] : 0.0;
}

int WeightRatioJudgments::judgedCount() const {
  return static_cast<int>(std::count(m_judged.begin(), m_judged.end(), true));
}

bool WeightRatioJudgments::isComplete() const { return judgedCount() == m_count; }

void WeightRatioJudgments::setInterval(int i, double lower, double middle, double upper) {
  const auto u = static_cast<std::size_t>(i);
  m_result.LowerWeights[u] = lower;
  m_result.CloseWeights[u] = middle;
  m_result.UpperWeights[u] = upper;
}

void WeightRatioJudgments::CalcIniWeightRatios() {
  const int refGroup = group(m_result.RefAtt);
  for (int i = 0; i < m_count; ++i) {
    const int g = group(i);
    if (g > refGroup) {
      setInterval(i, kLessImportant, kLessImportant, kLessImportant);
    } else if (g == refGroup) {
      setInterval(i, 1.0, 1.0, 1.0);
      m_judged[static_cast<std::size_t>(i)] = true;
    } else {
      setInterval(i, kMoreImportant, kMoreImportant, kMoreImportant);
    }
  }
}

void WeightRatioJudgments::ReStartJudgments() {
  std::fill(m_judged.begin(), m_judged.end(), false);
  CalcIniWeightRatios();
}

std::vector<int> WeightRatioJudgments::RecordWeightRatios(int t, double lower, double upper,
                                                          const RegionHandles& handles) {
  std::vector<int> ties;
  if (!valid(t)) return ties;
  const double mid = (lower + upper) / 2.0;
  if (lower == upper) {
    setInterval(t, mid, mid, mid);
  } else {
    setInterval(t, lower, mid, upper);
  }
  const auto ut = static_cast<std::size_t>(t);
  m_judged[ut] = true;
  m_handles[ut] = handles;
  m_hasHandles[ut] = true;
  for (int k = 0; k < m_count; ++k) {
    if (k == t || k == m_result.RefAtt || group(k) != group(t)) continue;
    const auto uk = static_cast<std::size_t>(k);
    setInterval(k, this->lower(t), middle(t), this->upper(t));
    m_handles[uk] = handles;
    m_hasHandles[uk] = true;
    m_judged[uk] = true;
    ties.push_back(k);
  }
  propagateUp(t);
  propagateDown(t);
  return ties;
}

void WeightRatioJudgments::propagateUp(int t) {
  const double limit = upper(t);
  for (int g = group(t) - 1; g >= 1; --g) {
    for (int k = 0; k < m_count; ++k) {
      if (group(k) != g) continue;
      // Intervals beyond an attribute the decision maker has settled are left alone.
      if (judged(k)) return;
      const auto u = static_cast<std::size_t>(k);
      double& lo = m_result.LowerWeights[u];
      double& mid = m_result.CloseWeights[u];
      double& hi = m_result.UpperWeights[u];
      if (limit > lo) lo = limit;
      if (lo <= hi) {
        if (lo > mid) mid = (hi + lo) / 2.0;
      } else {
        mid = lo;
        hi = lo;
      }
    }
  }
}

void WeightRatioJudgments::propagateDown(int t) {
  const double limit = lower(t);
  for (int g = group(t) + 1; g <= m_result.FinalGroupCount; ++g) {
    for (int k = 0; k < m_count; ++k) {
      if (group(k) != g) continue;
      if (judged(k)) return;
      const auto u = static_cast<std::size_t>(k);
      double& lo = m_result.LowerWeights[u];
      double& mid = m_result.CloseWeights[u];
      double& hi = m_result.UpperWeights[u];
      if (limit < hi) hi = limit;
      if (hi >= lo) {
        if (mid > hi) mid = (hi + lo) / 2.0;
      } else {
        mid = hi;
        lo = hi;
      }
    }
  }
}

}  // namespace tnw::direct
