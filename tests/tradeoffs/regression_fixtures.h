#pragma once

#include "tradeoffs/core/judgment_store.h"
#include "tradeoffs/core/multi_regression_data.h"
#include "tradeoffs/core/regression_work.h"
#include "tradeoffs/core/tradeoff_weights.h"

// Std
#include <cstdint>
#include <utility>
#include <vector>

namespace tnw::testing {

// Appends one judgment with the given value differences (one per attribute) and response.
inline void addJudgment(tradeoffs::JudgmentStore& store, std::vector<double> diffs,
                        std::int16_t response) {
  const int k = store.JudgmentCount;
  store.extend(k + 1, static_cast<int>(diffs.size()));
  store.ValueDiff[static_cast<std::size_t>(k)] = std::move(diffs);
  store.PrefResponse[static_cast<std::size_t>(k)] = response;
  store.JudgmentCount = k + 1;
}

// Weight tables and a comment holding recognisable earlier values.
inline tradeoffs::TradeOffWeights weightsWithEarlierResults(int numAtt) {
  tradeoffs::TradeOffWeights weights;
  weights.CloseWeights.assign(static_cast<std::size_t>(numAtt), 7.0);
  weights.LowerWeights.assign(static_cast<std::size_t>(numAtt), 6.0);
  weights.UpperWeights.assign(static_cast<std::size_t>(numAtt), 8.0);
  weights.RegressionComment = "earlier";
  return weights;
}

// A record holding recognisable earlier values.
inline tradeoffs::MultiRegressionData recordWithEarlierResults() {
  tradeoffs::MultiRegressionData r;
  r.StdErrEst = 5.0;
  r.RSquared = 0.5;
  r.NumObs = 9;
  r.DegFreedom = 4;
  r.ConsistencyIndex = 0.25;
  r.Coef.fill(3.0);
  return r;
}

// Sets up CalParameters for N observations and K attributes with R² = ssr / total.
inline void setUpParameters(tradeoffs::RegressionWork& w, int n, int k, double total, double ssr) {
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
