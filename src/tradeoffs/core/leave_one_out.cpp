#include "tradeoffs/core/leave_one_out.h"

#include "common/core/number_format.h"
#include "model/attribute_names.h"
#include "model/value_function.h"
#include "tradeoffs/core/regression.h"

// Std
#include <algorithm>
#include <cmath>
#include <functional>
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

// The index of the fit whose centred sums are those of `full` without observation k: with d the
// observation's deviations from the means of all n observations, every centred cross-product
// loses n / (n - 1) d_i d_j (the exact update for removing one point).
std::optional<double> downdatedIndex(const RegressionWork& full, int k) {
  const int n = full.N;
  const int kk = full.K;
  if (n - 1 < 1) return std::nullopt;
  const double factor = static_cast<double>(n) / (n - 1);
  std::vector<double> d(static_cast<std::size_t>(kk + 1));
  d[0] = full.Y[static_cast<std::size_t>(k)] - full.YMean;
  for (int j = 1; j <= kk; ++j) {
    d[static_cast<std::size_t>(j)] = full.X(k, j) - full.XMean[static_cast<std::size_t>(j)];
  }
  Regression reg;
  RegressionWork& w = reg.work();
  w.N = n - 1;
  w.K = kk;
  w.CrossProd = Matrix(kk + 1, kk + 1);
  w.InvMatrix = Matrix(kk + 1, kk + 1);
  for (auto* v : {&w.RegCoef, &w.Coef, &w.CoefVar})
    v->assign(static_cast<std::size_t>(kk + 1), 0.0);
  for (int i = 0; i <= kk; ++i) {
    // Row 0 holds only (0, 0); the fit reads column 0 and the attribute block.
    const int last = i == 0 ? 0 : kk;
    for (int j = 0; j <= last; ++j) {
      w.CrossProd(i, j) = full.CrossProd(i, j) -
                          factor * d[static_cast<std::size_t>(i)] * d[static_cast<std::size_t>(j)];
    }
  }
  if (!reg.Matrix_Invert()) return std::nullopt;
  reg.CalCoefficients();
  if (!reg.CalParameters() || !std::isfinite(w.ConsistencyIndex)) return std::nullopt;
  return w.ConsistencyIndex;
}

// The full fit's inverse and coefficients, from which each index without one observation is
// found by a rank-one update in O(K^2) instead of a new inversion in O(K^3).
struct FullInverse {
  explicit FullInverse(const RegressionWork& full) : w(full) {
    const int kk = full.K;
    valid = full.NoInverse == 0 && kk > 0 && full.InvMatrix.rows() == kk + 1 &&
            full.InvMatrix.cols() == kk + 1 && full.CrossProd.rows() == kk + 1;
    if (!valid) return;
    b.assign(static_cast<std::size_t>(kk + 1), 0.0);
    for (int i = 1; i <= kk; ++i) {
      double sum = 0.0;
      for (int j = 1; j <= kk; ++j) sum += full.InvMatrix(i, j) * full.CrossProd(j, 0);
      b[static_cast<std::size_t>(i)] = sum;
      ssr += sum * full.CrossProd(i, 0);
    }
    valid = std::isfinite(ssr);
  }

  const RegressionWork& w;
  bool valid = false;
  std::vector<double> b;  // C^-1 c: the full fit's coefficients
  double ssr = 0.0;       // c' C^-1 c: the full fit's regression sum
};

// downdatedIndex by Sherman-Morrison: with C' = C - f d d' and c' = c - f d0 d, the regression
// sum c' C'^-1 c' follows from u = C^-1 d alone. An observation whose leverage leaves C' (near)
// singular is left to the inversion, which decides as it always has.
std::optional<double> updatedIndex(const FullInverse& full, int k) {
  const RegressionWork& w = full.w;
  const int n = w.N;
  const int kk = w.K;
  if (n - 1 < 1) return std::nullopt;
  const double f = static_cast<double>(n) / (n - 1);
  std::vector<double> d(static_cast<std::size_t>(kk + 1));
  const double d0 = w.Y[static_cast<std::size_t>(k)] - w.YMean;
  for (int j = 1; j <= kk; ++j) {
    d[static_cast<std::size_t>(j)] = w.X(k, j) - w.XMean[static_cast<std::size_t>(j)];
  }
  double s = 0.0;   // d' C^-1 d
  double db = 0.0;  // d' b
  for (int i = 1; i <= kk; ++i) {
    double u = 0.0;
    for (int j = 1; j <= kk; ++j) u += w.InvMatrix(i, j) * d[static_cast<std::size_t>(j)];
    s += d[static_cast<std::size_t>(i)] * u;
    db += d[static_cast<std::size_t>(i)] * full.b[static_cast<std::size_t>(i)];
  }
  const double pivot = 1.0 - f * s;
  if (!(pivot > 1e-6)) return downdatedIndex(w, k);
  const double uc = db - f * d0 * s;  // u' c'
  const double ssr = full.ssr - 2.0 * f * d0 * db + f * f * d0 * d0 * s + f * uc * uc / pivot;
  const double total = w.CrossProd(0, 0) - f * d0 * d0;
  // The checks of Regression::CalParameters on the fit of N - 1 observations.
  if (total == 0.0 || ssr < 0.0) return std::nullopt;
  const int degFreedom = (n - 1) - kk - 1;
  if (degFreedom == 0 || degFreedom + 1 == 0) return std::nullopt;
  const double index = 1.0 - (1.0 - ssr / total) * (n - 2) / (degFreedom + 1);
  if (!std::isfinite(index)) return std::nullopt;
  return index;
}

}  // namespace

namespace {

// The index of the fit without each judgment, by the rank-one update of the full fit's inverse,
// which agrees with a new fit to rounding.
std::vector<std::optional<double>> leaveOneOutIndexes(const JudgmentStore& store, int numAtt) {
  const int n = std::max(store.JudgmentCount, 0);
  std::vector<std::optional<double>> out(static_cast<std::size_t>(n));
  JudgmentStore copy = store;
  TradeOffWeights scratch;
  MultiRegressionData record;
  Regression full;
  full.RegressMain(copy, numAtt, record, scratch);
  const RegressionWork& w = full.work();
  const bool prepared = w.K == numAtt && (w.N == n || w.N == n + 1);
  const FullInverse inverse(w);
  int nonZero = 0;
  for (int k = 0; k < n; ++k) nonZero += at(store.PrefResponse, static_cast<std::size_t>(k)) != 0;
  for (int k = 1; k <= n; ++k) {
    const auto u = static_cast<std::size_t>(k - 1);
    const bool responseNonZero = at(store.PrefResponse, u) != 0;
    // The artificial observation is appended exactly when every response is 0.
    const bool appendedWithout = nonZero - (responseNonZero ? 1 : 0) == 0;
    const bool appendedFull = w.N == n + 1;
    if (!prepared || appendedWithout != appendedFull) {
      out[u] = LeaveOneOut::indexWithout(store, numAtt, k);
    } else if (inverse.valid) {
      out[u] = updatedIndex(inverse, k);
    } else {
      out[u] = downdatedIndex(w, k);
    }
  }
  return out;
}

// The judgments whose exact gain may reach the list of the `count` worst: those whose updated
// gain is above the threshold and not below the count-th largest, less a margin far above the
// update's rounding.
std::vector<bool> candidates(const std::vector<std::optional<double>>& updated, double fullIndex,
                             double threshold, int count) {
  constexpr double kMargin = 5e-13;
  std::vector<double> gains;
  for (const auto& index : updated) {
    if (index && *index - fullIndex > threshold - kMargin) gains.push_back(*index - fullIndex);
  }
  double cutoff = threshold;
  if (count > 0 && static_cast<int>(gains.size()) > count) {
    std::nth_element(gains.begin(), gains.begin() + (count - 1), gains.end(), std::greater<>());
    cutoff = std::max(cutoff, gains[static_cast<std::size_t>(count - 1)]);
  }
  std::vector<bool> out(updated.size(), false);
  for (std::size_t u = 0; u < updated.size(); ++u) {
    out[u] = updated[u] && *updated[u] - fullIndex > cutoff - kMargin;
  }
  return out;
}

}  // namespace

std::vector<std::optional<double>> LeaveOneOut::indexesWithout(const JudgmentStore& store,
                                                               int numAtt) {
  return leaveOneOutIndexes(store, numAtt);
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
                                                  const std::vector<double>& coef, double fullIndex,
                                                  int count) {
  const int numAtt = model.attributeCount();
  std::vector<JudgmentInfluence> found;
  // Differences at the level of rounding noise are no harm done.
  constexpr double kThreshold = 1e-12;
  // The update finds the few judgments that can be among the worst; their indexes are then those
  // of a new fit without them.
  const std::vector<std::optional<double>> updated = indexesWithout(store, numAtt);
  const std::vector<bool> exact = candidates(updated, fullIndex, kThreshold, count);
  std::vector<std::optional<double>> indexes(updated.size());
  for (std::size_t u = 0; u < updated.size(); ++u) {
    if (exact[u]) indexes[u] = indexWithout(store, numAtt, static_cast<int>(u) + 1);
  }
  for (int k = 1; k <= static_cast<int>(indexes.size()); ++k) {
    const std::optional<double>& index = indexes[static_cast<std::size_t>(k - 1)];
    if (!index || !(*index - fullIndex > kThreshold)) continue;
    const auto u = static_cast<std::size_t>(k - 1);
    JudgmentInfluence j;
    j.judgment = k;
    j.first = at(store.FirstAtt, u);
    j.second = at(store.SecondAtt, u);
    j.scores = {at(store.ScoreAFirst, u), at(store.ScoreBFirst, u), at(store.ScoreASecond, u),
                at(store.ScoreBSecond, u)};
    j.response = at(store.PrefResponse, u);
    j.indexWithout = *index;
    j.gain = *index - fullIndex;
    found.push_back(j);
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const auto& a, const auto& b) { return a.gain > b.gain; });
  if (static_cast<int>(found.size()) > count)
    found.resize(static_cast<std::size_t>(std::max(count, 0)));
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
