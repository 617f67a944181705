#include "tradeoffs/core/leave_one_out.h"

#include "common/core/number_format.h"
#include "model/attribute_names.h"
#include "model/value_function.h"
#include "tradeoffs/core/fit_downdate.h"
#include "tradeoffs/core/regression.h"

// Std
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace tnw::tradeoffs {

namespace {

std::optional<double> valueOf(const AttributeModel& m, int att, double score) {
  const AttValueResult r = SingleAttValue(m, att, score);
  if (!r.value) return std::nullopt;
  return r.value->toDouble();
}

template <typename T>
T at(const std::vector<T>& v, std::size_t i) {
  return i < v.size() ? v[i] : T{};
}

// The store without judgment `skip` (0-based), laid out as the judgment page records it.
JudgmentStore without(const JudgmentStore& store, int numAtt, int skip) {
  JudgmentStore rest;
  const int n = store.JudgmentCount;
  rest.dimension(n - 1, numAtt);
  int to = 0;
  for (int k = 0; k < n; ++k) {
    if (k == skip) continue;
    const auto from = static_cast<std::size_t>(k);
    const auto t = static_cast<std::size_t>(to++);
    rest.ScoreAFirst[t] = at(store.ScoreAFirst, from);
    rest.ScoreBFirst[t] = at(store.ScoreBFirst, from);
    rest.ScoreASecond[t] = at(store.ScoreASecond, from);
    rest.ScoreBSecond[t] = at(store.ScoreBSecond, from);
    rest.PrefResponse[t] = at(store.PrefResponse, from);
    rest.FirstAtt[t] = at(store.FirstAtt, from);
    rest.SecondAtt[t] = at(store.SecondAtt, from);
    rest.ValueDiff[t] = at(store.ValueDiff, from);
  }
  rest.JudgmentCount = n - 1;
  return rest;
}

// The score that makes attribute `moved` fit: with the other attribute's difference d_other,
// the coefficients c_moved and c_other and response r, v(B) = v(A) - (r - c_other d_other) /
// c_moved, the model value of the judgment then being exactly its response.
std::optional<double> fittedScore(const AttributeModel& m, int moved, double scoreA, double cMoved,
                                  double cOther, double dOther, int response) {
  if (cMoved == 0.0 || !std::isfinite(cMoved)) return std::nullopt;
  const std::optional<double> vA = valueOf(m, moved, scoreA);
  if (!vA) return std::nullopt;
  const double target = *vA - (response - cOther * dOther) / cMoved;
  return LeaveOneOut::scoreForValue(m, moved, target);
}

void fitScores(const JudgmentStore& store, const AttributeModel& m, const std::vector<double>& coef,
               JudgmentInfluence& j) {
  const auto k = static_cast<std::size_t>(j.judgment - 1);
  const std::vector<double> diffs = at(store.ValueDiff, k);
  const int numAtt = static_cast<int>(diffs.size());
  if (j.first == j.second || j.first < 0 || j.second < 0 || j.first >= numAtt ||
      j.second >= numAtt) {
    return;
  }
  const double cFirst = at(coef, static_cast<std::size_t>(j.first + 1));
  const double cSecond = at(coef, static_cast<std::size_t>(j.second + 1));
  const double dFirst = diffs[static_cast<std::size_t>(j.first)];
  const double dSecond = diffs[static_cast<std::size_t>(j.second)];
  j.fittedBSecond = fittedScore(m, j.second, j.scores[2], cSecond, cFirst, dFirst, j.response);
  j.fittedBFirst = fittedScore(m, j.first, j.scores[0], cFirst, cSecond, dSecond, j.response);
}

// The index of the fit without one judgment, as far as it is known.
struct LeftOut {
  // The index (none when that fit cannot be completed).
  std::optional<double> index;
  // Whether a new fit is sure to agree with it to rounding (see DowndatedIndex).
  bool settled = false;
  // Whether it is the index of a new fit.
  bool refit = false;
};

// The index of the fit without each judgment (entry k - 1 for judgment k), and how far a settled
// one may be from a new fit's.
struct LeftOuts {
  std::vector<LeftOut> each;
  double tolerance = 0.0;
};

// The index of the fit without each judgment, from `full`, the completed fit of every judgment,
// by the rank-one downdate of its inverse, which agrees with a new fit to rounding. Where leaving
// a judgment out changes whether the artificial observation is appended, or `full` is not a fit
// of these judgments, the regression is run again.
LeftOuts leaveOneOutIndexes(const JudgmentStore& store, int numAtt, const RegressionWork& full) {
  const int n = std::max(store.JudgmentCount, 0);
  LeftOuts all;
  std::vector<LeftOut>& out = all.each;
  out.resize(static_cast<std::size_t>(n));
  const bool prepared = full.K == numAtt && (full.N == n || full.N == n + 1);
  const FitDowndate downdate(full);
  int nonZero = 0;
  for (int k = 0; k < n; ++k) nonZero += at(store.PrefResponse, static_cast<std::size_t>(k)) != 0;
  for (int k = 1; k <= n; ++k) {
    const auto u = static_cast<std::size_t>(k - 1);
    const bool responseNonZero = at(store.PrefResponse, u) != 0;
    // The artificial observation is appended exactly when every response is 0.
    const bool appendedWithout = nonZero - (responseNonZero ? 1 : 0) == 0;
    const bool appendedFull = full.N == n + 1;
    if (!prepared || appendedWithout != appendedFull) {
      out[u] = {LeaveOneOut::indexWithout(store, numAtt, k), true, true};
    } else {
      const DowndatedIndex d = downdate.without(k);
      out[u] = {d.index, d.settled, false};
    }
  }
  all.tolerance = downdate.tolerance();
  return all;
}

// The full fit of the judgments, as the Next button runs it.
Regression fullFit(const JudgmentStore& store, int numAtt) {
  JudgmentStore copy = store;
  TradeOffWeights scratch;
  MultiRegressionData record;
  Regression full;
  full.RegressMain(copy, numAtt, record, scratch);
  return full;
}

// The judgment a list line is made of, with the index of the fit without it.
JudgmentInfluence influence(const JudgmentStore& store, int k, double index, double fullIndex) {
  const auto u = static_cast<std::size_t>(k - 1);
  JudgmentInfluence j;
  j.judgment = k;
  j.first = at(store.FirstAtt, u);
  j.second = at(store.SecondAtt, u);
  j.scores = {at(store.ScoreAFirst, u), at(store.ScoreBFirst, u), at(store.ScoreASecond, u),
              at(store.ScoreBSecond, u)};
  j.response = at(store.PrefResponse, u);
  j.indexWithout = index;
  j.gain = index - fullIndex;
  return j;
}

// Largest gain first; equal gains in the order of the judgments.
bool ranksBefore(const JudgmentInfluence& a, const JudgmentInfluence& b) {
  return a.gain != b.gain ? a.gain > b.gain : a.judgment < b.judgment;
}

// The at most `count` judgments whose removal raises the index above `fullIndex` by more than
// the threshold, largest gain first. A judgment whose downdated index is not settled is fitted
// again. The judgments are then ranked by their gains; where two gains, or a gain and the
// threshold, are within the tolerance of the settled indexes, the order is left to the indexes
// of new fits, so that the list is the one the new fits alone would give; so are the listed
// indexes when that tolerance exceeds the one the list is shown with. Judgments are taken down
// the ranking until `count` are listed; one whose new fit cannot be completed or gains nothing
// is passed over for the next.
std::vector<JudgmentInfluence> listWorst(const JudgmentStore& store, int numAtt, LeftOuts all,
                                         double fullIndex, int count) {
  if (count <= 0) return {};
  std::vector<LeftOut>& left = all.each;
  const double margin = all.tolerance;
  // Differences at the level of rounding noise are no harm done.
  constexpr double kThreshold = 1e-12;
  // A listed index is within this of a new fit's.
  constexpr double kListed = 1e-12;
  const auto refit = [&](int k) {
    LeftOut& l = left[static_cast<std::size_t>(k - 1)];
    if (!l.refit) l = {LeaveOneOut::indexWithout(store, numAtt, k), true, true};
    return l.index;
  };
  std::vector<std::pair<double, int>> ranked;  // gain, judgment
  for (int k = 1; k <= static_cast<int>(left.size()); ++k) {
    const LeftOut& l = left[static_cast<std::size_t>(k - 1)];
    const std::optional<double> index = l.settled ? l.index : refit(k);
    if (index && *index - fullIndex > kThreshold - margin)
      ranked.emplace_back(*index - fullIndex, k);
  }
  // A heap whose top is the largest gain (the earliest judgment among equal ones): only the top
  // of the ranking is ever taken.
  const auto below = [](const auto& a, const auto& b) {
    return a.first != b.first ? a.first < b.first : a.second > b.second;
  };
  std::make_heap(ranked.begin(), ranked.end(), below);
  const auto take = [&] {
    std::pop_heap(ranked.begin(), ranked.end(), below);
    const std::pair<double, int> top = ranked.back();
    ranked.pop_back();
    return top;
  };
  std::vector<JudgmentInfluence> found;
  std::vector<std::pair<double, int>> run;
  while (!ranked.empty() && static_cast<int>(found.size()) < count) {
    // A run of gains each within the margin of the one before.
    run.assign(1, take());
    while (!ranked.empty() && run.back().first - ranked.front().first <= margin) {
      run.push_back(take());
    }
    const bool contested =
        margin > kListed || run.size() > 1 || run.back().first <= kThreshold + margin;
    for (const auto& [gain, k] : run) {
      const std::optional<double> index =
          contested ? refit(k) : left[static_cast<std::size_t>(k - 1)].index;
      if (index && *index - fullIndex > kThreshold) {
        found.push_back(influence(store, k, *index, fullIndex));
      }
    }
  }
  std::sort(found.begin(), found.end(), ranksBefore);
  if (static_cast<int>(found.size()) > count) found.resize(static_cast<std::size_t>(count));
  return found;
}

}  // namespace

std::vector<std::optional<double>> LeaveOneOut::indexesWithout(const JudgmentStore& store,
                                                               int numAtt) {
  const Regression full = fullFit(store, numAtt);
  std::vector<std::optional<double>> out;
  for (const LeftOut& l : leaveOneOutIndexes(store, numAtt, full.work()).each) {
    out.push_back(l.index);
  }
  return out;
}

std::optional<double> LeaveOneOut::indexWithout(const JudgmentStore& store, int numAtt,
                                                int judgment) {
  if (judgment < 1 || judgment > store.JudgmentCount) return std::nullopt;
  JudgmentStore rest = without(store, numAtt, judgment - 1);
  TradeOffWeights scratch;
  MultiRegressionData record;
  Regression reg;
  reg.RegressMain(rest, numAtt, record, scratch);
  if (reg.failed() || reg.error()) return std::nullopt;
  // A fit that stopped on one of these warnings never formed its index.
  for (const std::string& w : reg.warnings()) {
    if (w == Regression::kZeroTotalWarning || w == Regression::kNegativeSumWarning) {
      return std::nullopt;
    }
  }
  return record.ConsistencyIndex;
}

std::vector<JudgmentInfluence> LeaveOneOut::worst(const JudgmentStore& store,
                                                  const AttributeModel& model,
                                                  const RegressionWork& full, int count) {
  const int numAtt = model.attributeCount();
  std::vector<JudgmentInfluence> found = listWorst(
      store, numAtt, leaveOneOutIndexes(store, numAtt, full), full.ConsistencyIndex, count);
  for (JudgmentInfluence& j : found) fitScores(store, model, full.Coef, j);
  return found;
}

std::vector<JudgmentInfluence> LeaveOneOut::worst(const JudgmentStore& store,
                                                  const AttributeModel& model,
                                                  const std::vector<double>& coef, double fullIndex,
                                                  int count) {
  const int numAtt = model.attributeCount();
  const Regression full = fullFit(store, numAtt);
  std::vector<JudgmentInfluence> found =
      listWorst(store, numAtt, leaveOneOutIndexes(store, numAtt, full.work()), fullIndex, count);
  for (JudgmentInfluence& j : found) fitScores(store, model, coef, j);
  return found;
}

std::optional<double> LeaveOneOut::scoreForValue(const AttributeModel& model, int att,
                                                 double value) {
  if (att < 0 || att >= kMaxAttributes || !std::isfinite(value)) return std::nullopt;
  double low = model.AttScoreLow[static_cast<std::size_t>(att)];
  double high = model.AttScoreHigh[static_cast<std::size_t>(att)];
  if (!std::isfinite(low) || !std::isfinite(high)) return std::nullopt;
  if (low > high) std::swap(low, high);
  // The value function need not be monotone: the first crossing from the low end is taken.
  constexpr int kSteps = 256;
  std::optional<double> previous;
  double previousScore = low;
  for (int i = 0; i <= kSteps; ++i) {
    const double s = i == kSteps ? high : low + (high - low) * i / kSteps;
    const std::optional<double> v = valueOf(model, att, s);
    if (!v) return std::nullopt;
    const double g = *v - value;
    if (g == 0.0) return s;
    if (previous && (*previous < 0.0) != (g < 0.0)) {
      double a = previousScore;
      double b = s;
      const bool risingAtB = g > 0.0;
      for (int step = 0; step < 60; ++step) {
        const double mid = (a + b) / 2.0;
        const std::optional<double> vm = valueOf(model, att, mid);
        if (!vm) return std::nullopt;
        if ((*vm - value > 0.0) == risingAtB) {
          b = mid;
        } else {
          a = mid;
        }
      }
      // The end on the side of `previous`: on a plateau of the rounded values it is the value.
      return a;
    }
    previous = g;
    previousScore = s;
  }
  return std::nullopt;
}

std::string LeaveOneOut::describe(const AttributeModel& model, const JudgmentInfluence& j) {
  // Scores as the panel shows them, without the period that the format leaves after a whole
  // number.
  const auto score = [](double s) {
    std::string text = formatNumber(s, "###,##0.##");
    if (!text.empty() && text.back() == '.') text.pop_back();
    return text;
  };
  std::string line = "Judgment " + std::to_string(j.judgment) + " (" +
                     model::attributeName(model, j.first) + ", " +
                     model::attributeName(model, j.second) + "): A " + score(j.scores[0]) + " / " +
                     score(j.scores[2]) + ", B " + score(j.scores[1]) + " / " + score(j.scores[3]);
  if (j.response != 0) line += ", response " + std::to_string(j.response);
  line += "; index without it " + formatNumber(j.indexWithout, "0.0000") + " (+" +
          formatNumber(j.gain, "0.0000") + "); B fitting the weights: ";
  if (j.fittedBSecond) {
    line += model::attributeName(model, j.second) + " " + score(*j.fittedBSecond);
    if (j.fittedBFirst)
      line += " (or " + model::attributeName(model, j.first) + " " + score(*j.fittedBFirst) + ")";
  } else if (j.fittedBFirst) {
    line += model::attributeName(model, j.first) + " " + score(*j.fittedBFirst);
  } else {
    line += "no score in the range";
  }
  return line;
}

}  // namespace tnw::tradeoffs
