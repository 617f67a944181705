#include "direct/ratio_bound_check.h"

#include "common/number_format.h"
#include "direct/attribute_texts.h"

// Std
#include <cmath>

namespace tnw {

double RatioBoundCheck::boxValue(std::string_view text) {
  const double value = leadingNumber(AttributeTexts::trim(text));
  // A run of digits too long for a double reads as nothing rather than as infinity.
  return std::isfinite(value) ? value : 0.0;
}

RatioBoundCheck::Result RatioBoundCheck::CheckLowerWeightRatio(std::string_view lowerText,
                                                               std::string_view upperText) {
  const double lower = boxValue(lowerText);
  const double upper = boxValue(upperText);
  if (lower <= 0.0 || lower > upper) {
    return {false,
            "The weight ratio you entered should be greater than zero and less than or equal to " +
                generalText(upper) + "!"};
  }
  return {};
}

RatioBoundCheck::Result RatioBoundCheck::CheckUpperWeightRatio(std::string_view lowerText,
                                                               std::string_view upperText) {
  const double lower = boxValue(lowerText);
  const double upper = boxValue(upperText);
  if (upper < lower) {
    return {false, "The weight ratio you entered should be greater than or equal to " +
                       generalText(lower) + "!"};
  }
  return {};
}

}  // namespace tnw
