#include "tradeoffs/regression.h"

#include "common/currency.h"
#include "common/number_format.h"
#include "component/wizard_context.h"

// Std
#include <algorithm>
#include <cmath>

namespace tnw {

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
                             WizardContext& shared) {
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
  m_work.dimension(n, numAtt);
  for (int k = 1; k <= n; ++k) {
    const auto& row = store.ValueDiff[static_cast<std::size_t>(k - 1)];
    for (int j = 1; j <= numAtt; ++j) {
      const auto col = static_cast<std::size_t>(j - 1);
      m_work.X(k, j) = col < row.size() ? row[col] : 0.0;
    }
    m_work.Y[static_cast<std::size_t>(k)] = store.PrefResponse[static_cast<std::size_t>(k - 1)];
  }
}

void Regression::CalMeans() {
  RegressionWork& w = m_work;
  // Without observations there is no mean: they stay 0 (a run always has at least one).
  if (w.N <= 0) return;
  for (int j = 1; j <= w.K; ++j) {
    double sum = 0.0;
    for (int k = 1; k <= w.N; ++k) sum += w.X(k, j);
    w.XMean[static_cast<std::size_t>(j)] = sum / w.N;
  }
  double ySum = 0.0;
  for (int k = 1; k <= w.N; ++k) ySum += w.Y[static_cast<std::size_t>(k)];
  w.YMean = ySum / w.N;
}

void Regression::CalCoeffMatrix() {
  RegressionWork& w = m_work;
  const auto mean = [&w](int j) { return w.XMean[static_cast<std::size_t>(j)]; };
  for (int i = 1; i <= w.K; ++i) {
    for (int j = 1; j <= w.K; ++j) {
      double sum = 0.0;
      for (int k = 1; k <= w.N; ++k) sum += (w.X(k, j) - mean(j)) * (w.X(k, i) - mean(i));
      w.CrossProd(i, j) = sum;
    }
    double sum = 0.0;
    for (int k = 1; k <= w.N; ++k) {
      sum += (w.X(k, i) - mean(i)) * (w.Y[static_cast<std::size_t>(k)] - w.YMean);
    }
    w.CrossProd(i, 0) = sum;
  }
  double total = 0.0;
  for (int k = 1; k <= w.N; ++k) {
    const double d = w.Y[static_cast<std::size_t>(k)] - w.YMean;
    total += d * d;
  }
  w.CrossProd(0, 0) = total;
}

// Gauss-Jordan without row exchange: a zero pivot is repaired by adding the first later row
// that has a non-zero entry in the pivot column. The zero tests are exact on purpose.
bool Regression::Matrix_Invert() {
  RegressionWork& w = m_work;
  const int k = w.K;
  Matrix a(k + 1, 2 * k + 1);
  for (int r = 1; r <= k; ++r) {
    for (int c = 1; c <= k; ++c) a(r, c) = w.CrossProd(r, c);
    a(r, k + r) = 1.0;
  }
  for (int r = 1; r <= k; ++r) {
    if (a(r, r) == 0.0) {
      for (int s = r + 1; s <= k; ++s) {
        if (a(s, r) != 0.0) {
          for (int c = 1; c <= 2 * k; ++c) a(r, c) += a(s, c);
          break;
        }
      }
    }
    if (a(r, r) == 0.0) {
      m_warnings.push_back(kNoInverseWarning);
      w.NoInverse = 1;
      return false;
    }
    const double factor = 1.0 / a(r, r);
    for (int c = 1; c <= 2 * k; ++c) a(r, c) *= factor;
    for (int i = 1; i <= k; ++i) {
      if (i == r) continue;
      const double f = a(i, r);
      for (int c = 1; c <= 2 * k; ++c) a(i, c) -= f * a(r, c);
    }
  }
  for (int i = 1; i <= k; ++i) {
    for (int j = 1; j <= k; ++j) w.InvMatrix(i, j) = a(i, k + j);
  }
  return true;
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
  for (int k = 1; k <= w.N; ++k) {
    double sum = 0.0;
    for (int i = 1; i <= w.K; ++i) sum += w.Coef[static_cast<std::size_t>(i)] * w.X(k, i);
    const auto kk = static_cast<std::size_t>(k);
    w.ModelValue[kk] = sum;
    w.Residual[kk] = w.Y[kk] - sum;
  }
}

void Regression::StoreMultiRegressionData(MultiRegressionData& record, WizardContext& shared) {
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

}  // namespace tnw
