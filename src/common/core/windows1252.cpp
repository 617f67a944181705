#include "common/core/windows1252.h"

// Std
#include <array>
#include <cstdint>

namespace tnw {
namespace {

// Code points of the bytes 0x80..0x9F; the others equal their byte value.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void appendUtf8(std::string& out, char32_t cp) {
  if (cp < 0x80) {
    out.push_back(static_cast<char>(cp));
  } else if (cp < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
    out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
  } else {
    out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
    out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
  }
}

char toByte(char32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
  for (std::size_t i = 0; i < kHighControls.size(); ++i) {
    if (kHighControls[i] == cp) return static_cast<char>(0x80 + i);
  }
  return '?';
}

// Decodes one UTF-8 sequence at text[i]; advances i. Returns 0xFFFFFFFF for a malformed one.
char32_t decodeUtf8(std::string_view text, std::size_t& i) {
  const auto lead = static_cast<std::uint8_t>(text[i++]);
  if (lead < 0x80) return lead;
  int extra = 0;
  char32_t cp = 0;
  if ((lead & 0xE0) == 0xC0) {
    extra = 1;
    cp = lead & 0x1F;
  } else if ((lead & 0xF0) == 0xE0) {
    extra = 2;
    cp = lead & 0x0F;
  } else if ((lead & 0xF8) == 0xF0) {
    extra = 3;
    cp = lead & 0x07;
  } else {
    return 0xFFFFFFFF;
  }
  for (int k = 0; k < extra; ++k) {
    if (i >= text.size()) return 0xFFFFFFFF;
    const auto b = static_cast<std::uint8_t>(text[i]);
    if ((b & 0xC0) != 0x80) return 0xFFFFFFFF;
    cp = (cp << 6) | (b & 0x3F);
    ++i;
  }
  return cp;
}

}  // namespace

std::string windows1252ToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (char c : bytes) {
    const auto b = static_cast<std::uint8_t>(c);
    if (b >= 0x80 && b <= 0x9F) {
      appendUtf8(out, kHighControls[b - 0x80]);
    } else {
      appendUtf8(out, b);
    }
  }
  return out;
}

std::string utf8ToWindows1252(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  std::size_t i = 0;
  while (i < text.size()) out.push_back(toByte(decodeUtf8(text, i)));
  return out;
}

}  // namespace tnw
