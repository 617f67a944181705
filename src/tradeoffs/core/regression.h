#pragma once

#include "tradeoffs/core/judgment_store.h"
#include "tradeoffs/core/multi_regression_data.h"
#include "tradeoffs/core/regression_work.h"
#include "tradeoffs/core/tradeoff_weights.h"

// Std
#include <optional>
#include <string>
#include <vector>

namespace tnw::tradeoffs {

// The weight estimation of the trade-off method: a least-squares fit of the responses on the
// value differences, its statistics, the shifted coefficients with their bands, the consistency
// comment and the normalised weights. It shows nothing: the warnings it meets and the message
// of a fit that cannot be completed are handed to the caller, in the order they arose.
class Regression {
 public:
  // The warning of a pivot that no later row can repair.
  static constexpr const char* kNoInverseWarning =
      "  Since there is no invert matrix can be abtained, the regression results are not correct!";
  // The warning of a zero total sum of squares of the responses.
  static constexpr const char* kZeroTotalWarning =
      "  mL(0,0)=0, can not calculate the whole coefficients!";
  // The warning of a negative regression sum.
  static constexpr const char* kNegativeSumWarning =
      "  The regression sum is less than zero, can not calculate the whole coefficients!";
  // The message when N - K - 1 = 0 leaves the error terms without a divisor.
  static constexpr const char* kNoDegreeOfFreedomError =
      "  The degree of freedom is zero, so the regression results cannot be calculated! "
      "Please record more tradeoffs.";
  // The message when N - K = 0 leaves the consistency index without a divisor.
  static constexpr const char* kNoConsistencyError =
      "  The number of observations equals the number of attributes, so the consistency index "
      "cannot be calculated! Please record more tradeoffs.";
  // The message when the fit produced numbers that are not finite.
  static constexpr const char* kNotFiniteError =
      "  The regression results are not finite numbers and cannot be used!";
  // The message when there are more attributes than a stored result can hold.
  static constexpr const char* kTooManyAttributesError =
      "  The regression results can be stored for at most 31 attributes!";
  // The message when the coefficients sum to zero and the weights cannot be normalised.
  static constexpr const char* kZeroSumError =
      "  The coefficients sum to zero, so the weights cannot be normalised!";

  // The warning of an attribute whose centred sum of squares is not positive.
  static std::string zeroWeightWarning(int attribute);
  // The consistency comment for an index; empty when the index cannot be rounded to currency.
  static std::optional<std::string> consistencyComment(double index);

  // Runs the whole fit on the recorded judgments for numAtt attributes. A completed fit writes
  // the record and the method's weight tables and comment; a failed one leaves them as they were.
  void RegressMain(JudgmentStore& store, int numAtt, MultiRegressionData& record,
                   TradeOffWeights& shared);

  // The column means XMean of X and the mean YMean of Y.
  void CalMeans();
  // Fills CrossProd from X and Y.
  void CalCoeffMatrix();
  // Inverts the attribute block of CrossProd into InvMatrix; false (and NoInverse) on failure.
  bool Matrix_Invert();
  // RegCoef = InvMatrix × column 0 of CrossProd.
  void CalCoefficients();
  // The statistics, Coef and CoefVar; false when the fit cannot go on to the later steps.
  bool CalParameters();
  // Shifts negative coefficients and forms the low and high estimates.
  void LowHighEstimation();
  // The fitted values and residuals from the shifted coefficients.
  void CalModelValues();
  // Writes the record, the weight tables and the consistency comment.
  void StoreMultiRegressionData(MultiRegressionData& record, TradeOffWeights& shared);
  // Weights(i) = Coef(i) / Σ Coef. When the sum is zero (as after a fit that stopped on a
  // warning) or the weights are not finite, the weights stay 0 and the message is returned.
  std::optional<std::string> CalWeights();

  // The working arrays (tests and the results read them; steps may be driven on them directly).
  RegressionWork& work() { return m_work; }
  // The working arrays, read-only.
  const RegressionWork& work() const { return m_work; }
  // The warnings of the last run, in order.
  const std::vector<std::string>& warnings() const { return m_warnings; }
  // The message of a fit that could not be completed (the defined outcome), if any.
  const std::optional<std::string>& error() const { return m_error; }
  // Whether the last run stopped before storing its results.
  bool failed() const { return m_failed; }

 private:
  void loadObservations(JudgmentStore& store, int numAtt);
  void eliminate(Matrix& a, int r, int& reach);
  bool resultsFinite() const;

  RegressionWork m_work;
  std::vector<std::string> m_warnings;
  std::optional<std::string> m_error;
  bool m_failed = false;
};

}  // namespace tnw::tradeoffs
