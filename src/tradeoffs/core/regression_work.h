#pragma once

#include "tradeoffs/core/matrix.h"

// Std
#include <cstdint>
#include <string>
#include <vector>

namespace tnw::tradeoffs {

// The working arrays and scalars of one regression run, named as the dialog names them. Vectors
// indexed by attribute or observation have a lower bound of 0 that is not used: attribute i and
// observation k are at index i and k. Every run of RegressMain sizes them anew, keeping the
// storage of the run before.
struct RegressionWork {
  // N, the number of observations, and K, the number of attributes.
  int N = 0;
  int K = 0;
  // The value differences, X(k, j), and the responses, Y(k).
  Matrix X;
  std::vector<double> Y;
  // The non-zero differences of X row by row (a judgment has two): observation k's attributes
  // and differences are at [NonZeroStart[k], NonZeroStart[k + 1]) of NonZeroAtt and NonZeroDiff,
  // in attribute order. dimension() empties the list; CalMeans, the first step of a fit, makes
  // it anew from X (relistNonZeros) and the steps after it read that list, so X is written in
  // full before the means are taken.
  std::vector<int> NonZeroStart;
  std::vector<int> NonZeroAtt;
  std::vector<double> NonZeroDiff;
  // The column means of X and the mean of Y.
  std::vector<double> XMean;
  double YMean = 0.0;
  // The centred cross-products, (0..K) × (0..K); (0,0) is the total sum of squares of Y.
  Matrix CrossProd;
  // The inverse of the attribute block of CrossProd, (1..K) × (1..K) at indexes 1..K.
  Matrix InvMatrix;
  // The least-squares coefficients and the coefficients as reported (shifted).
  std::vector<double> RegCoef;
  std::vector<double> Coef;
  // The error term of each coefficient and the low and high estimates.
  std::vector<double> CoefVar;
  std::vector<double> LowEst;
  std::vector<double> HighEst;
  // The fitted value and the residual of each observation.
  std::vector<double> ModelValue;
  std::vector<double> Residual;
  // The normalised weights of CalWeights.
  std::vector<double> Weights;
  // The scalars of the fit.
  double Constant = 0.0;
  double StdErrEst = 0.0;
  double RSquared = 0.0;
  std::int16_t DegFreedom = 0;
  double ConsistencyIndex = 0.0;
  // 1 when the inversion failed.
  std::int16_t NoInverse = 0;
  // The verdict on negative coefficients; formed but shown nowhere, kept for inspection.
  std::string Verdict;

  // Sizes every array for n observations and k attributes, all zero, and empties the list of
  // non-zero differences.
  void dimension(int n, int k) {
    dimensionAllButX(n, k);
    X.assignZeros(n + 1, k + 1);
  }
  // The same, but the elements of X are left as they lie in its storage: for a caller that
  // writes every element of X.
  void dimensionAllButX(int n, int k) {
    N = n;
    K = k;
    const auto obs = static_cast<std::size_t>(n + 1);
    const auto att = static_cast<std::size_t>(k + 1);
    X.reshape(n + 1, k + 1);
    Y.assign(obs, 0.0);
    NonZeroStart.clear();
    NonZeroAtt.clear();
    NonZeroDiff.clear();
    XMean.assign(att, 0.0);
    YMean = 0.0;
    CrossProd.assignZeros(k + 1, k + 1);
    InvMatrix.assignZeros(k + 1, k + 1);
    for (auto* v : {&RegCoef, &Coef, &CoefVar, &LowEst, &HighEst, &Weights}) v->assign(att, 0.0);
    ModelValue.assign(obs, 0.0);
    Residual.assign(obs, 0.0);
    Constant = StdErrEst = RSquared = ConsistencyIndex = 0.0;
    DegFreedom = 0;
    NoInverse = 0;
    Verdict.clear();
  }

  // Lists the non-zero differences of X (a NaN counts as non-zero), unless they are listed.
  void listNonZeros();
  // Lists them anew, from X as it is now.
  void relistNonZeros() {
    NonZeroStart.clear();
    listNonZeros();
  }
};

}  // namespace tnw::tradeoffs
