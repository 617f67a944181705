#include "common/core/number_format.h"

// Std
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <system_error>

namespace tnw {
namespace {

// A non-negative decimal: its significant digits and how many of them stand before the period
// (may be zero or negative for values below 0.1, or exceed the digit count for large values).
struct Decimal {
  std::string digits;
  int pointPos = 0;
};

// The value's magnitude to the given number of significant digits, trailing zeros removed.
// std::to_chars is used because it ignores the C locale, which a Qt host may have changed.
Decimal toDecimal(double magnitude, int significant) {
  Decimal d;
  if (magnitude == 0.0) return d;
  char buf[64];
  const auto res = std::to_chars(buf, buf + sizeof buf, magnitude, std::chars_format::scientific,
                                 significant - 1);
  const std::string_view text(buf, static_cast<std::size_t>(res.ptr - buf));
  const std::size_t e = text.find('e');
  for (std::size_t i = 0; i < e; ++i) {
    if (text[i] != '.') d.digits.push_back(text[i]);
  }
  int exponent = 0;
  std::from_chars(text.data() + e + (text[e + 1] == '+' ? 2 : 1), text.data() + text.size(),
                  exponent);
  d.pointPos = exponent + 1;
  while (!d.digits.empty() && d.digits.back() == '0') d.digits.pop_back();
  return d;
}

// Rounds d half away from zero so that at most `decimals` digits follow the period.
void roundToDecimals(Decimal& d, int decimals) {
  const long cut = static_cast<long>(d.pointPos) + decimals;
  if (cut >= static_cast<long>(d.digits.size())) return;
  if (cut < 0) {
    d.digits.clear();
    return;
  }
  const bool up = d.digits[static_cast<std::size_t>(cut)] >= '5';
  d.digits.resize(static_cast<std::size_t>(cut));
  if (up) {
    std::size_t i = d.digits.size();
    while (i > 0 && d.digits[i - 1] == '9') {
      d.digits[i - 1] = '0';
      --i;
    }
    if (i == 0) {
      d.digits.insert(d.digits.begin(), '1');
      ++d.pointPos;
    } else {
      ++d.digits[i - 1];
    }
  }
  while (!d.digits.empty() && d.digits.back() == '0') d.digits.pop_back();
  if (d.digits.empty()) d.pointPos = 0;
}

// The digit at position i counted from the first significant digit (0 past either end).
char digitAt(const Decimal& d, long i) {
  if (i < 0 || i >= static_cast<long>(d.digits.size())) return '0';
  return d.digits[static_cast<std::size_t>(i)];
}

// What a format pattern asks for.
struct Pattern {
  int minInt = 0;
  bool grouping = false;
  bool hasPoint = false;
  int minFrac = 0;
  int maxFrac = 0;
};

Pattern parsePattern(std::string_view pattern) {
  Pattern p;
  const std::size_t point = pattern.find('.');
  const std::string_view intPart = pattern.substr(0, point);
  for (char c : intPart) {
    if (c == '0') ++p.minInt;
    if (c == ',') p.grouping = true;
  }
  if (point != std::string_view::npos) {
    p.hasPoint = true;
    for (char c : pattern.substr(point + 1)) {
      if (c == '0') ++p.minFrac, ++p.maxFrac;
      if (c == '#') ++p.maxFrac;
    }
  }
  return p;
}

std::string groupThousands(const std::string& digits) {
  std::string out;
  const std::size_t n = digits.size();
  for (std::size_t i = 0; i < n; ++i) {
    if (i > 0 && (n - i) % 3 == 0) out.push_back(',');
    out.push_back(digits[i]);
  }
  return out;
}

// The general text of a magnitude with the given significant digits and exponent threshold.
std::string generalFromDecimal(double value, int significant) {
  if (!std::isfinite(value)) return {};
  if (value == 0.0) return "0";
  const Decimal d = toDecimal(std::fabs(value), significant);
  std::string out = value < 0 ? "-" : "";
  const int exponent = d.pointPos - 1;
  if (exponent < -4 || exponent >= significant) {
    out.push_back(d.digits[0]);
    if (d.digits.size() > 1) out.append(".").append(d.digits, 1);
    const int absExp = exponent < 0 ? -exponent : exponent;
    out += exponent < 0 ? "E-" : "E+";
    if (absExp < 10) out.push_back('0');
    out += std::to_string(absExp);
    return out;
  }
  if (d.pointPos <= 0) {
    out.append("0.").append(static_cast<std::size_t>(-d.pointPos), '0').append(d.digits);
  } else if (d.pointPos >= static_cast<int>(d.digits.size())) {
    out.append(d.digits).append(static_cast<std::size_t>(d.pointPos) - d.digits.size(), '0');
  } else {
    const auto pos = static_cast<std::size_t>(d.pointPos);
    out.append(d.digits, 0, pos).append(".").append(d.digits, pos);
  }
  return out;
}

// What the host language's reading passes over: blanks, tabs and line feeds, not carriage returns.
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n'; }

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Reads "&H..." or "&O..." (s starts after the '&'); the host language gives a 16-bit integer
// when the digits fit in four hex or six octal digits, else a 32-bit one.
double readRadixInteger(const std::string& s) {
  if (s.empty()) return 0.0;
  const char kind = static_cast<char>(s[0] | 0x20);
  const int radix = kind == 'h' ? 16 : (kind == 'o' ? 8 : 0);
  if (radix == 0) return 0.0;
  std::uint64_t v = 0;
  std::size_t i = 1;
  for (; i < s.size(); ++i) {
    int digit = -1;
    const char c = s[i];
    if (isDigit(c)) digit = c - '0';
    if (radix == 16 && c >= 'a' && c <= 'f') digit = c - 'a' + 10;
    if (radix == 16 && c >= 'A' && c <= 'F') digit = c - 'A' + 10;
    if (digit < 0 || digit >= radix) break;
    v = v * static_cast<std::uint64_t>(radix) + static_cast<std::uint64_t>(digit);
    if (v > 0xFFFFFFFFull) return 0.0;  // beyond a 32-bit integer: no number
  }
  if (v <= 0xFFFF) return static_cast<double>(static_cast<std::int16_t>(v));
  return static_cast<double>(static_cast<std::int32_t>(static_cast<std::uint32_t>(v)));
}

}  // namespace

std::string formatNumber(double value, std::string_view pattern) {
  if (!std::isfinite(value)) return {};
  const Pattern p = parsePattern(pattern);
  Decimal d = toDecimal(std::fabs(value), 15);
  roundToDecimals(d, p.maxFrac);

  std::string intDigits;
  for (long i = 0; i < d.pointPos; ++i) intDigits.push_back(digitAt(d, i));
  if (static_cast<int>(intDigits.size()) < p.minInt) {
    intDigits.insert(0, static_cast<std::size_t>(p.minInt) - intDigits.size(), '0');
  }
  std::string frac;
  for (int i = 0; i < p.maxFrac; ++i) frac.push_back(digitAt(d, d.pointPos + i));
  while (static_cast<int>(frac.size()) > p.minFrac && frac.back() == '0') frac.pop_back();

  std::string out = value < 0 ? "-" : "";
  out += p.grouping ? groupThousands(intDigits) : intDigits;
  if (p.hasPoint) out.append(".").append(frac);
  return out;
}

std::string generalText(double value) { return generalFromDecimal(value, 15); }

std::string generalTextSingle(float value) {
  return generalFromDecimal(static_cast<double>(value), 7);
}

std::string generalText(Currency value) {
  const std::int64_t ticks = value.ticks();
  const std::uint64_t magnitude =
      ticks < 0 ? 0 - static_cast<std::uint64_t>(ticks) : static_cast<std::uint64_t>(ticks);
  std::string out = ticks < 0 ? "-" : "";
  out += std::to_string(magnitude / 10000);
  std::string frac = std::to_string(magnitude % 10000);
  frac.insert(0, 4 - frac.size(), '0');
  while (!frac.empty() && frac.back() == '0') frac.pop_back();
  if (!frac.empty()) out.append(".").append(frac);
  return out;
}

double leadingNumber(std::string_view text) {
  std::string s;
  for (char c : text) {
    if (!isBlank(c)) s.push_back(c);
  }
  if (!s.empty() && s[0] == '&') return readRadixInteger(s.substr(1));

  std::string number;
  std::size_t i = 0;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) number.push_back(s[i++]);
  bool anyDigit = false;
  for (; i < s.size(); ++i) {
    if (isDigit(s[i])) {
      number.push_back(s[i]);
      anyDigit = true;
    } else if (s[i] == ',' && anyDigit && i + 1 < s.size() && isDigit(s[i + 1])) {
      continue;  // a group separator as our own formats write it
    } else {
      break;
    }
  }
  if (i < s.size() && s[i] == '.') {
    number.push_back('.');
    for (++i; i < s.size() && isDigit(s[i]); ++i) {
      number.push_back(s[i]);
      anyDigit = true;
    }
  }
  if (!anyDigit) return 0.0;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
    std::size_t j = i + 1;
    std::string exponent = "e";
    if (j < s.size() && (s[j] == '+' || s[j] == '-')) exponent.push_back(s[j++]);
    const std::size_t firstDigit = j;
    while (j < s.size() && isDigit(s[j])) exponent.push_back(s[j++]);
    if (j > firstDigit) number += exponent;
  }
  const char* first = number.data();
  if (*first == '+') ++first;
  double v = 0.0;
  const auto res = std::from_chars(first, number.data() + number.size(), v);
  if (res.ec != std::errc() || !std::isfinite(v)) return 0.0;
  return v;
}

}  // namespace tnw
