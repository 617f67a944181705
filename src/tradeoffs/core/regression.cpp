#include "tradeoffs/core/regression.h"

#include "common/core/currency.h"
#include "common/core/number_format.h"
#include "tradeoffs/core/add_scaled.h"

// Std
#include <algorithm>
#include <cmath>

namespace tnw::tradeoffs {

namespace {

bool allFinite(const std::vector<double>& v) {
  return std::all_of(v.begin(), v.end(), [](double d) { return std::isfinite(d); });
}

void ensureSize(std::vector<double>& v, int n) {
  if (static_cast<int>(v.size()) < n) v.resize(static_cast<std::size_t>(n), 0.0);
}

}  // namespace

std::string Regression::zeroWeightWarning(int attribute) {
  const std::string i = std::to_string(attribute);
  return "  mL(" + i + ", " + i + ")=0, you will get a zero weight!";
}

std::optional<std::string> Regression::consistencyComment(double index) {
  // The bands are judged on the index as rounded to currency, so 0.90006 counts as 0.9001.
  const std::optional<Currency> c = Currency::fromDouble(index);
  if (!c) return std::nullopt;
  std::string text = "  Consistency index is " + generalText(*c);
  if (*c <= Currency::fromTicks(7500)) {
    text +=
        ", which is not good. You had better adjust the pairwise comparisons among the "
        "criteria again.";
  } else if (*c <= Currency::fromTicks(8500)) {
    text +=
        ", which looks good. You may get more consistent judgments if you further adjust the "
        "pairwise comparisons among the criteria.";
  } else if (*c <= Currency::fromTicks(9000)) {
    text += ". It is very good! ";
  } else {
    text += ". It is extremely good!";
  }
  return text;
}

void Regression::RegressMain(JudgmentStore& store, int numAtt, MultiRegressionData& record,
                             TradeOffWeights& shared) {
  m_warnings.clear();
  m_error.reset();
  m_failed = true;
  if (numAtt > kMaxAttributes) {
    m_error = kTooManyAttributesError;
    return;
  }
  loadObservations(store, numAtt < 0 ? 0 : numAtt);
  CalMeans();
  CalCoeffMatrix();
  if (!Matrix_Invert()) return;
  CalCoefficients();
  if (!CalParameters() && m_error) return;
  LowHighEstimation();
  CalModelValues();
  if (!resultsFinite()) {
    m_error = kNotFiniteError;
    return;
  }
  StoreMultiRegressionData(record, shared);
}

// Copies the judgments into X and Y, appending the artificial observation when every response
// is 0: its response 1 and differences 1 make the coefficients sum to one.
void Regression::loadObservations(JudgmentStore& store, int numAtt) {
  int n = store.JudgmentCount < 0 ? 0 : store.JudgmentCount;
  store.extend(n, numAtt);
  std::int16_t maxResponse = 0;
  std::int16_t minResponse = 0;
  for (int k = 0; k < n; ++k) {
    const std::int16_t r = store.PrefResponse[static_cast<std::size_t>(k)];
    if (r > maxResponse) {
      maxResponse = r;
    } else if (r < minResponse) {
      minResponse = r;
    }
  }
  if (maxResponse == 0 && maxResponse == minResponse) {
    ++n;
    store.extend(n, numAtt);
    const auto last = static_cast<std::size_t>(n - 1);
    store.PrefResponse[last] = 1;
    store.ValueDiff[last].assign(static_cast<std::size_t>(numAtt), 1.0);
  }
  // Every element of X is written below, row 0 and column 0 (not used) with 0s.
  m_work.dimensionAllButX(n, numAtt);
  const auto width = static_cast<std::size_t>(numAtt) + 1;
  std::fill_n(&m_work.X(0, 0), width, 0.0);
  for (int k = 1; k <= n; ++k) {
    const auto& row = store.ValueDiff[static_cast<std::size_t>(k - 1)];
    const std::size_t given = std::min(row.size(), static_cast<std::size_t>(numAtt));
    double* x = &m_work.X(k, 0);
    x[0] = 0.0;
    std::copy_n(row.begin(), given, x + 1);
    std::fill(x + 1 + given, x + width, 0.0);
    m_work.Y[static_cast<std::size_t>(k)] = store.PrefResponse[static_cast<std::size_t>(k - 1)];
  }
}

void Regression::CalMeans() {
  RegressionWork& w = m_work;
  // Without observations there is no mean: they stay 0 (a run always has at least one).
  if (w.N <= 0) return;
  w.relistNonZeros();
  // Column sums row by row: each column is still summed in observation order, and a zero
  // difference leaves a sum as it is.
  std::vector<double> sums(static_cast<std::size_t>(w.K + 1), 0.0);
  const std::size_t listed = w.NonZeroAtt.size();
  for (std::size_t t = 0; t < listed; ++t) {
    sums[static_cast<std::size_t>(w.NonZeroAtt[t])] += w.NonZeroDiff[t];
  }
  for (int j = 1; j <= w.K; ++j) {
    w.XMean[static_cast<std::size_t>(j)] = sums[static_cast<std::size_t>(j)] / w.N;
  }
  double ySum = 0.0;
  for (int k = 1; k <= w.N; ++k) ySum += w.Y[static_cast<std::size_t>(k)];
  w.YMean = ySum / w.N;
}

// One pass over the observations in order. An observation's centred difference on an attribute
// it leaves at 0 is -XMean(j), the same in every such observation, so an observation adds its
// products only to the pairs (i, j) where i or j is one of its non-zero attributes; the
// observations that touch neither add (N - touching) × XMean(i) × XMean(j) at the end. A
// judgment has two non-zero differences, so the pass costs about 2·N·K products instead of
// N·K², and each pair still sums the same terms as the plain centred sum.
void Regression::CalCoeffMatrix() {
  RegressionWork& w = m_work;
  w.listNonZeros();
  const int k = w.K;
  const auto att = static_cast<std::size_t>(k + 1);
  // Row p of part holds the products of the observations where p is non-zero; a pair of two
  // non-zero attributes goes to the row of the first, so each product is taken once.
  Matrix part(k + 1, k + 1);
  const double* mean = w.XMean.data();
  // The centred differences of the observation in hand: 0 - XMean(j) where it leaves j at 0.
  // d(0) stays 0, so that a row's products can be added from column 0 (not used) in blocks.
  std::vector<double> d(att, 0.0);
  for (int j = 1; j <= k; ++j) d[static_cast<std::size_t>(j)] = 0.0 - mean[j];
  std::vector<int> touchingOne(att, 0);         // observations where i is non-zero
  std::vector<int> touchingBoth(att * att, 0);  // observations where i and j are non-zero
  std::vector<double> yTouching(att, 0.0);      // Σ (Y - YMean) over the observations touching i
  std::vector<double> xy(att, 0.0);             // Σ centred X(i) × (Y - YMean) over the same
  const int* cols = w.NonZeroAtt.data();
  const double* values = w.NonZeroDiff.data();
  double yTotal = 0.0;
  double total = 0.0;
  for (int obs = 1; obs <= w.N; ++obs) {
    const auto begin = static_cast<std::size_t>(w.NonZeroStart[static_cast<std::size_t>(obs)]);
    const auto end = static_cast<std::size_t>(w.NonZeroStart[static_cast<std::size_t>(obs) + 1]);
    for (std::size_t t = begin; t < end; ++t) {
      d[static_cast<std::size_t>(cols[t])] = values[t] - mean[cols[t]];
    }
    const double e = w.Y[static_cast<std::size_t>(obs)] - w.YMean;
    yTotal += e;
    total += e * e;
    for (std::size_t t = begin; t < end; ++t) {
      const int p = cols[t];
      const auto pp = static_cast<std::size_t>(p);
      const double dp = d[pp];
      yTouching[pp] += e;
      xy[pp] += dp * e;
      ++touchingOne[pp];
      double* row = &part(p, 0);
      addScaled<false>(row, d.data(), dp, 0, k + 1);
      for (std::size_t u = t + 1; u < end; ++u) {
        ++touchingBoth[pp * att + static_cast<std::size_t>(cols[u])];
      }
      d[pp] = 0.0;  // the later non-zero attributes skip the pair with p
    }
    for (std::size_t t = begin; t < end; ++t)
      d[static_cast<std::size_t>(cols[t])] = 0.0 - mean[cols[t]];
  }
  Matrix& c = w.CrossProd;
  c.assignZeros(k + 1, k + 1);
  for (int i = 1; i <= k; ++i) {
    const auto ii = static_cast<std::size_t>(i);
    c(i, i) = part(i, i) + (w.N - touchingOne[ii]) * (mean[i] * mean[i]);
    for (int j = i + 1; j <= k; ++j) {
      const auto jj = static_cast<std::size_t>(j);
      const int rest = w.N - touchingOne[ii] - touchingOne[jj] + touchingBoth[ii * att + jj];
      c(i, j) = part(i, j) + part(j, i) + rest * (mean[i] * mean[j]);
      c(j, i) = c(i, j);
    }
    c(i, 0) = xy[ii] + (-mean[i]) * (yTotal - yTouching[ii]);
  }
  c(0, 0) = total;
}

void Regression::CalCoefficients() {
  RegressionWork& w = m_work;
  for (int i = 1; i <= w.K; ++i) {
    double sum = 0.0;
    for (int j = 1; j <= w.K; ++j) sum += w.InvMatrix(i, j) * w.CrossProd(j, 0);
    w.RegCoef[static_cast<std::size_t>(i)] = sum;
  }
}

bool Regression::CalParameters() {
  RegressionWork& w = m_work;
  w.Constant = 0.0;
  double ssr = 0.0;
  for (int i = 1; i <= w.K; ++i) ssr += w.RegCoef[static_cast<std::size_t>(i)] * w.CrossProd(i, 0);
  const double total = w.CrossProd(0, 0);
  const double sse = total - ssr;
  if (total == 0.0) {
    m_warnings.push_back(kZeroTotalWarning);
    return false;
  }
  if (ssr < 0.0) {
    m_warnings.push_back(kNegativeSumWarning);
    return false;
  }
  w.RSquared = ssr / total;
  const int degFreedom = w.N - w.K - 1;
  if (degFreedom == 0) {
    m_error = kNoDegreeOfFreedomError;
    return false;
  }
  w.DegFreedom = static_cast<std::int16_t>(degFreedom);
  w.StdErrEst = std::sqrt(std::fabs(sse / degFreedom));
  for (int i = 1; i <= w.K; ++i) {
    const auto ii = static_cast<std::size_t>(i);
    if (w.CrossProd(i, i) <= 0.0) m_warnings.push_back(zeroWeightWarning(i));
    w.Coef[ii] = w.RegCoef[ii];
    // A variance-like term, no square root: the bands are built on it as it is, on purpose.
    w.CoefVar[ii] = (sse / degFreedom) * w.InvMatrix(i, i);
  }
  if (degFreedom + 1 == 0) {
    m_error = kNoConsistencyError;
    return false;
  }
  // N - K in the denominator (not N - K - 1), as the system has always reported it.
  w.ConsistencyIndex = 1.0 - (1.0 - w.RSquared) * (w.N - 1) / (degFreedom + 1);
  return true;
}

void Regression::LowHighEstimation() {
  RegressionWork& w = m_work;
  double m = 0.0;
  for (int i = 1; i <= w.K; ++i) m = std::min(m, w.Coef[static_cast<std::size_t>(i)]);
  double shift = 0.0;
  if (m < 0.0) {
    shift = -m;
    w.Verdict = "  Some weights were negative! You should adjust responses or add comparisons.";
  } else {
    w.Verdict = "  The weights are acceptable.";
  }
  for (int i = 1; i <= w.K; ++i) {
    const auto ii = static_cast<std::size_t>(i);
    if (shift > 0.0) w.Coef[ii] += shift;
    w.LowEst[ii] = w.Coef[ii] - 2.0 * w.CoefVar[ii];
    w.HighEst[ii] = w.Coef[ii] + 2.0 * w.CoefVar[ii];
  }
}

void Regression::CalModelValues() {
  RegressionWork& w = m_work;
  w.listNonZeros();
  for (int k = 1; k <= w.N; ++k) {
    // A zero difference adds nothing (the coefficients are finite or the fit is rejected), so
    // only the non-zero ones are summed, in order.
    const auto begin = static_cast<std::size_t>(w.NonZeroStart[static_cast<std::size_t>(k)]);
    const auto end = static_cast<std::size_t>(w.NonZeroStart[static_cast<std::size_t>(k) + 1]);
    double sum = 0.0;
    for (std::size_t t = begin; t < end; ++t) {
      sum += w.Coef[static_cast<std::size_t>(w.NonZeroAtt[t])] * w.NonZeroDiff[t];
    }
    const auto kk = static_cast<std::size_t>(k);
    w.ModelValue[kk] = sum;
    w.Residual[kk] = w.Y[kk] - sum;
  }
}

void Regression::StoreMultiRegressionData(MultiRegressionData& record, TradeOffWeights& shared) {
  const RegressionWork& w = m_work;
  // Checked before anything is written, so that a failure leaves everything as it was.
  std::optional<std::string> comment = consistencyComment(w.ConsistencyIndex);
  if (!comment) {
    m_error = kNotFiniteError;
    return;
  }
  record.Constant = w.Constant;
  record.StdErrEst = w.StdErrEst;
  record.RSquared = w.RSquared;
  record.NumObs = static_cast<std::int16_t>(w.N);
  record.DegFreedom = w.DegFreedom;
  ensureSize(shared.CloseWeights, w.K);
  ensureSize(shared.LowerWeights, w.K);
  ensureSize(shared.UpperWeights, w.K);
  for (int i = 1; i <= w.K; ++i) {
    const auto at = static_cast<std::size_t>(i - 1);
    const auto ii = static_cast<std::size_t>(i);
    record.Coef[at] = w.Coef[ii];
    record.CoefVar[at] = w.CoefVar[ii];
    record.LowEst[at] = w.LowEst[ii];
    record.HighEst[at] = w.HighEst[ii];
    shared.CloseWeights[at] = w.Coef[ii];
    shared.LowerWeights[at] = w.LowEst[ii];
    shared.UpperWeights[at] = w.HighEst[ii];
  }
  record.ConsistencyIndex = w.ConsistencyIndex;
  shared.RegressionComment = std::move(*comment);
  m_failed = false;
}

std::optional<std::string> Regression::CalWeights() {
  RegressionWork& w = m_work;
  double s = 0.0;
  for (int i = 1; i <= w.K; ++i) s += w.Coef[static_cast<std::size_t>(i)];
  std::fill(w.Weights.begin(), w.Weights.end(), 0.0);
  // No attribute at all sums to zero too: there are no weights to form.
  if (s == 0.0) return std::string(kZeroSumError);
  if (!std::isfinite(s)) return std::string(kNotFiniteError);
  for (int i = 1; i <= w.K; ++i) {
    const auto ii = static_cast<std::size_t>(i);
    w.Weights[ii] = w.Coef[ii] / s;
  }
  if (!allFinite(w.Weights)) {
    std::fill(w.Weights.begin(), w.Weights.end(), 0.0);
    return std::string(kNotFiniteError);
  }
  return std::nullopt;
}

bool Regression::resultsFinite() const {
  const RegressionWork& w = m_work;
  return std::isfinite(w.StdErrEst) && std::isfinite(w.RSquared) &&
         std::isfinite(w.ConsistencyIndex) && allFinite(w.Coef) && allFinite(w.CoefVar) &&
         allFinite(w.LowEst) && allFinite(w.HighEst);
}

}  // namespace tnw::tradeoffs
