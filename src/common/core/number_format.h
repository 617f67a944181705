#pragma once

#include "common/core/currency.h"

// Std
#include <string>
#include <string_view>

namespace tnw {

// Writes value in one of the fixed formats the wizard displays: "0.00", "0.0000", "0.0#",
// "###,##0.0#", "###,##0.##", "#,##0.0000" and "###" (which writes 0 as the empty text). Any
// pattern of digit placeholders ('0' always written, '#' written when significant), one period
// and group commas in the integer part is understood. As the host language's formatter does, the
// value is first taken to 15 significant digits, then rounded half away from zero; a pattern
// with a period always writes it ("5." for 5 in "0.##"), and a negative value that rounds to
// zero keeps its sign ("-0.00"). NaN and infinity give the empty text.
std::string formatNumber(double value, std::string_view pattern);

// The general text of a double, as the host language converts a number to text: up to 15
// significant digits, no trailing zeros, a leading "0" before the period; exponent form
// ("1E+15", "1.5E-05") when the decimal exponent is below -4 or 15 and above.
std::string generalText(double value);

// The general text of a single-precision number: as generalText with up to 7 significant digits
// (exponent form from 1E+07 up).
std::string generalTextSingle(float value);

// The general text of a currency value: up to four decimals, no trailing zeros, never an exponent.
std::string generalText(Currency value);

// The leading number of a text, as the host language reads it: blanks, tabs and line feeds are
// passed over anywhere; an optional sign, digits with at most one period, an optional exponent
// ("E" or "D"); "&H" and "&O" introduce hexadecimal and octal integers. Reading stops at the
// first character that cannot continue the number. Unlike the host language, a comma between
// two digits of the integer part is read over, so the group separators written by formatNumber
// read back. 0 where there is no number, and for a number beyond the range of a double.
double leadingNumber(std::string_view text);

}  // namespace tnw
