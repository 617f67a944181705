#pragma once

#include "common/core/currency.h"
#include "model/attribute_model.h"

// Std
#include <array>
#include <optional>
#include <span>
#include <string>

namespace tnw {

// Why a single-attribute value could not be computed. The host language would stop with a
// run-time error in each of these cases; we return the reason instead.
enum class ValueFailure {
  None,
  AttributeOutOfRange,  // AttID outside 0..30
  NoPoints,             // NumPoints below 1
  TooManyPoints,        // NumPoints above 11
  NotComputable,        // a division by zero or an overflow in the interpolation
};

// The outcome of SingleAttValue: the value, or why there is none.
struct AttValueResult {
  // The value in [0, 1], four decimals; empty when failure is not None.
  std::optional<Currency> value;
  // Why value is empty.
  ValueFailure failure = ValueFailure::None;
};

// What gnspl leaves in its five result Variants: R[0..3] the coefficients p0..p3 of the cubic of
// the interval used, in powers of (XEval - X(k)), when Flag is set (empty otherwise); R[4] the
// interpolated value at XEval. All five stay empty for N < 1.
using GnsplValues = std::array<std::optional<double>, 5>;

// Akima's piecewise-cubic interpolation through the first N points (X(k), Y(k)), evaluated at
// XEval. Points may be stored in rising or falling score order; scores beyond the ends use the
// first or last interval. Empty Variants count as 0. N above the length of X or Y is taken as
// that length. Empty result where the host language would stop with a run-time error: a division
// by zero (two neighbouring points share a score) or an overflow.
std::optional<GnsplValues> gnspl(std::span<const std::optional<double>> X,
                                 std::span<const std::optional<double>> Y, int N, bool Flag,
                                 double XEval);

// The value of Score on attribute AttID (0..30) through its value-function points, clamped to
// [0, 1] and rounded half to even to four decimals. Leaves the model unchanged.
AttValueResult SingleAttValue(const AttributeModel& model, int AttID, double Score);

// The message a presenter shows (title "NORIX", exclamation icon) for a failed SingleAttValue.
std::string valueFailureMessage(const AttributeModel& model, int AttID, ValueFailure failure);

}  // namespace tnw
