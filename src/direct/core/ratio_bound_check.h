#pragma once

// Std
#include <string>
#include <string_view>

namespace tnw::direct {

// The checks of the two ratio boxes when the focus leaves them (CheckLowerWeightRatio,
// CheckUpperWeightRatio). Each reads both boxes with the leading-number conversion.
class RatioBoundCheck {
 public:
  // The outcome of a check: ok, or the message to show.
  struct Result {
    bool ok = true;
    std::string message;
  };

  // Fails when lower is 0 or less, or above upper.
  static Result CheckLowerWeightRatio(std::string_view lowerText, std::string_view upperText);
  // Fails when upper is below lower (no test against zero of its own).
  static Result CheckUpperWeightRatio(std::string_view lowerText, std::string_view upperText);
  // The value of a box: the leading number of its trimmed text, 0 where there is none
  // or where it would not be finite.
  static double boxValue(std::string_view text);
  // Whether the box's leading number is too large for a double (boxValue then reads 0).
  static bool beyondRange(std::string_view text);
  // The message for a box whose number is too large.
  static constexpr const char* kTooLarge =
      "The weight ratio you entered is too large to be a number the wizard can use!";
};

}  // namespace tnw::direct
