#include "direct/core/ratio_bound_check.h"

#include "common/core/number_format.h"
#include "model/attribute_names.h"

// Std
#include <cmath>

namespace tnw::direct {

double RatioBoundCheck::boxValue(std::string_view text) {
  const double value = leadingNumber(model::trimmed(text));
  // A run of digits too long for a double reads as nothing rather than as infinity.
  return std::isfinite(value) ? value : 0.0;
}

bool RatioBoundCheck::beyondRange(std::string_view text) {
  const std::string s = model::trimmed(text);
  if (leadingNumber(s) != 0.0) return false;
  // A mantissa with a digit other than 0 that reads as 0 overflowed, unless its exponent is
  // negative (then it is a number too small to tell from 0, which is what it reads as).
  std::size_t i = 0;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
  bool nonZero = false;
  for (; i < s.size() && ((s[i] >= '0' && s[i] <= '9') || s[i] == ',' || s[i] == '.'); ++i) {
    nonZero = nonZero || (s[i] >= '1' && s[i] <= '9');
  }
  const bool exponent =
      i + 1 < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D');
  const bool negativeExponent = exponent && s[i + 1] == '-';
  return nonZero && !negativeExponent;
}

RatioBoundCheck::Result RatioBoundCheck::CheckLowerWeightRatio(std::string_view lowerText,
                                                               std::string_view upperText) {
  if (beyondRange(lowerText)) return {false, kTooLarge};
  const double lower = boxValue(lowerText);
  const double upper = boxValue(upperText);
  // An upper box too large to read is its own check's to refuse; this box is not held to it.
  const bool upperReadable = !beyondRange(upperText);
  if (lower <= 0.0 || (upperReadable && lower > upper)) {
    return {false,
            "The weight ratio you entered should be greater than zero and less than or equal to " +
                generalText(upper) + "!"};
  }
  return {};
}

RatioBoundCheck::Result RatioBoundCheck::CheckUpperWeightRatio(std::string_view lowerText,
                                                               std::string_view upperText) {
  if (beyondRange(upperText)) return {false, kTooLarge};
  const double lower = boxValue(lowerText);
  const double upper = boxValue(upperText);
  if (upper < lower) {
    return {false, "The weight ratio you entered should be greater than or equal to " +
                       generalText(lower) + "!"};
  }
  return {};
}

}  // namespace tnw::direct
