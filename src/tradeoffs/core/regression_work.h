#pragma once

#include "tradeoffs/core/matrix.h"

// Std
#include <cstdint>
#include <string>
#include <vector>

namespace tnw::tradeoffs {

// The working arrays and scalars of one regression run, named as the dialog names them. Vectors
// indexed by attribute or observation have a lower bound of 0 that is not used: attribute i and
// observation k are at index i and k. Every run of RegressMain makes them anew.
struct RegressionWork {
  // N, the number of observations, and K, the number of attributes.
  int N = 0;
  int K = 0;
  // The value differences, X(k, j), and the responses, Y(k).
  Matrix X;
  std::vector<double> Y;
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

  // Sizes every array for n observations and k attributes, all zero.
  void dimension(int n, int k) {
    N = n;
    K = k;
    const auto obs = static_cast<std::size_t>(n + 1);
    const auto att = static_cast<std::size_t>(k + 1);
    X = Matrix(n + 1, k + 1);
    Y.assign(obs, 0.0);
    XMean.assign(att, 0.0);
    YMean = 0.0;
    CrossProd = Matrix(k + 1, k + 1);
    InvMatrix = Matrix(k + 1, k + 1);
    for (auto* v : {&RegCoef, &Coef, &CoefVar, &LowEst, &HighEst, &Weights}) v->assign(att, 0.0);
    ModelValue.assign(obs, 0.0);
    Residual.assign(obs, 0.0);
    Constant = StdErrEst = RSquared = ConsistencyIndex = 0.0;
    DegFreedom = 0;
    NoInverse = 0;
    Verdict.clear();
  }
};

}  // namespace tnw::tradeoffs
