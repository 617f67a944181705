#pragma once

#include "common/currency.h"

// Std
#include <string>
#include <string_view>

namespace tnw {

// Writes value in one of the fixed formats the wizard displays: "0.00", "0.0000", "0.0#",
// "###,##0.0#", "###,##0.##", "#,##0.0000" and "###" (which writes 0 as the empty text).
// Rounding is half away from zero on the decimal value, as the host language's formatter does.
std::string formatNumber(double value, std::string_view pattern);

// The general text of a double, as the host language converts a number to text: up to 15
// significant digits, no trailing zeros, exponent form for very large and very small numbers.
std::string generalText(double value);

// The general text of a single-precision number (up to 7 significant digits).
std::string generalTextSingle(float value);

// The general text of a currency value (up to four decimals, no trailing zeros).
std::string generalText(Currency value);

// The leading number of a text: blanks skipped, an optional sign, digits with at most one
// period, an optional exponent; group separators between digits are read over. 0 where none.
double leadingNumber(std::string_view text);

}  // namespace tnw
