#pragma once

#include "component/wizard_context.h"
#include "tradeoffs/judgment_store.h"
#include "tradeoffs/multi_regression_data.h"
#include "tradeoffs/regression_work.h"

// Std
#include <cstdint>
#include <utility>
#include <vector>

namespace tnw::testing {

// Appends one judgment with the given value differences (one per attribute) and response.
inline void addJudgment(JudgmentStore& store, std::vector<double> diffs, std::int16_t response) {
  const int k = store.JudgmentCount;
  store.extend(k + 1, static_cast<int>(diffs.size()));
  store.ValueDiff[static_cast<std::size_t>(k)] = std::move(diffs);
  store.PrefResponse[static_cast<std::size_t>(k)] = response;
  store.JudgmentCount = k + 1;
}

// A context whose weight tables and comment hold recognisable earlier values.
inline WizardContext contextWithEarlierResults(int numAtt) {
  WizardContext ctx;
  ctx.CloseWeights.assign(static_cast<std::size_t>(numAtt), 7.0);
  ctx.LowerWeights.assign(static_cast<std::size_t>(numAtt), 6.0);
  ctx.UpperWeights.assign(static_cast<std::size_t>(numAtt), 8.0);
  ctx.RegressionComment = "earlier";
  return ctx;
}

// A record holding recognisable earlier values.
inline MultiRegressionData recordWithEarlierResults() {
  MultiRegressionData r;
  r.StdErrEst = 5.0;
  r.RSquared = 0.5;
  r.NumObs = 9;
  r.DegFreedom = 4;
  r.ConsistencyIndex = 0.25;
  r.Coef.fill(3.0);
  return r;
}

// Sets up CalParameters for N observations and K attributes with R² = ssr / total.
inline void setUpParameters(RegressionWork& w, int n, int k, double total, double ssr) {
  w.dimension(n, k);
  w.CrossProd(0, 0) = total;
  for (int i = 1; i <= k; ++i) {
    w.RegCoef[static_cast<std::size_t>(i)] = 1.0;
    w.CrossProd(i, 0) = ssr / k;
    w.CrossProd(i, i) = 1.0;
    w.InvMatrix(i, i) = 2.0;
  }
}

}  // namespace tnw::testing
