#pragma once

#include "model/attribute_model.h"

// Std
#include <array>
#include <cstdint>

namespace tnw::tradeoffs {

// The result record of the regression that the results page reads. Attribute i (1-based) is
// stored at index i - 1 of the four arrays.
struct MultiRegressionData {
  // The constant of the model; never fitted, always 0.
  double Constant = 0.0;
  // The standard error of the estimate.
  double StdErrEst = 0.0;
  // The coefficient of determination.
  double RSquared = 0.0;
  // The number of observations, the artificial one included.
  std::int16_t NumObs = 0;
  // N - K - 1.
  std::int16_t DegFreedom = 0;
  // The consistency index, 1 - (1 - R²)(N - 1)/(N - K).
  double ConsistencyIndex = 0.0;
  // The shifted coefficients (close estimates), their error terms and the two bands.
  std::array<double, kMaxAttributes> Coef{};
  std::array<double, kMaxAttributes> CoefVar{};
  std::array<double, kMaxAttributes> LowEst{};
  std::array<double, kMaxAttributes> HighEst{};
};

}  // namespace tnw::tradeoffs
