// The stand-in's BSTRs and its UTF-8 / UTF-16 conversions.

#include "oleauto.h"

// Std
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

// A BSTR is preceded by its length in bytes and followed by a null code unit.
constexpr std::size_t kPrefix = sizeof(ULONG);

BSTR allocate(const void* bytes, std::size_t size) {
  if (size > 0x7FFFFFF0u) return nullptr;
  auto* block = static_cast<unsigned char*>(std::malloc(kPrefix + size + sizeof(OLECHAR) + 1));
  if (!block) return nullptr;
  const auto length = static_cast<ULONG>(size);
  std::memcpy(block, &length, kPrefix);
  if (bytes) {
    std::memcpy(block + kPrefix, bytes, size);
  } else {
    std::memset(block + kPrefix, 0, size);
  }
  std::memset(block + kPrefix + size, 0, sizeof(OLECHAR) + 1);
  return reinterpret_cast<BSTR>(block + kPrefix);
}

unsigned char* blockOf(BSTR text) { return reinterpret_cast<unsigned char*>(text) - kPrefix; }

constexpr char32_t kReplacement = 0xFFFD;

// The code point at text[i], moving i past it; an invalid sequence gives U+FFFD and skips one byte.
char32_t decodeUtf8(const unsigned char* text, std::size_t size, std::size_t& i) {
  const unsigned char lead = text[i++];
  if (lead < 0x80) return lead;
  int more = 0;
  char32_t point = 0;
  char32_t least = 0;
  if ((lead & 0xE0) == 0xC0) {
    more = 1, point = lead & 0x1F, least = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    more = 2, point = lead & 0x0F, least = 0x800;
  } else if ((lead & 0xF8) == 0xF0) {
    more = 3, point = lead & 0x07, least = 0x10000;
  } else {
    return kReplacement;
  }
  std::size_t j = i;
  for (int k = 0; k < more; ++k, ++j) {
    if (j >= size || (text[j] & 0xC0) != 0x80) return kReplacement;
    point = (point << 6) | (text[j] & 0x3F);
  }
  if (point < least || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF))
    return kReplacement;
  i = j;
  return point;
}

// The code point at wide[i], moving i past it; a lone surrogate gives U+FFFD.
char32_t decodeUtf16(const WCHAR* wide, std::size_t size, std::size_t& i) {
  const char32_t unit = wide[i++];
  if (unit < 0xD800 || unit > 0xDFFF) return unit;
  if (unit >= 0xDC00 || i >= size || wide[i] < 0xDC00 || wide[i] > 0xDFFF) return kReplacement;
  const char32_t low = wide[i++];
  return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
}

void encodeUtf16(char32_t point, std::u16string& out) {
  if (point < 0x10000) {
    out += static_cast<char16_t>(point);
    return;
  }
  point -= 0x10000;
  out += static_cast<char16_t>(0xD800 + (point >> 10));
  out += static_cast<char16_t>(0xDC00 + (point & 0x3FF));
}

void encodeUtf8(char32_t point, std::string& out) {
  if (point < 0x80) {
    out += static_cast<char>(point);
  } else if (point < 0x800) {
    out += static_cast<char>(0xC0 | (point >> 6));
    out += static_cast<char>(0x80 | (point & 0x3F));
  } else if (point < 0x10000) {
    out += static_cast<char>(0xE0 | (point >> 12));
    out += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (point & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (point >> 18));
    out += static_cast<char>(0x80 | ((point >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (point & 0x3F));
  }
}

// Copies converted into the caller's buffer as the platform does: the size needed when there is
// no buffer, 0 when it is too small.
template <class Char, class Text>
int deliver(const Text& converted, Char* buffer, int bufferSize) {
  const auto size = static_cast<int>(converted.size());
  if (bufferSize == 0) return size;
  if (bufferSize < size) return 0;
  std::memcpy(buffer, converted.data(), converted.size() * sizeof(Char));
  return size;
}

}  // namespace

BSTR SysAllocStringLen(const OLECHAR* text, UINT size) {
  if (size > 0x3FFFFFF0u) return nullptr;
  return allocate(text, std::size_t(size) * sizeof(OLECHAR));
}

BSTR SysAllocStringByteLen(LPCSTR bytes, UINT size) { return allocate(bytes, size); }

void SysFreeString(BSTR text) {
  if (text) std::free(blockOf(text));
}

UINT SysStringLen(BSTR text) { return SysStringByteLen(text) / sizeof(OLECHAR); }

UINT SysStringByteLen(BSTR text) {
  if (!text) return 0;
  ULONG length = 0;
  std::memcpy(&length, blockOf(text), kPrefix);
  return length;
}

int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int size, LPWSTR wide,
                        int wideSize) {
  if (codePage != CP_UTF8 || flags != 0 || !text || size == 0 || wideSize < 0) return 0;
  if (wideSize > 0 && !wide) return 0;
  const std::size_t length = size < 0 ? std::strlen(text) + 1 : std::size_t(size);
  const auto* bytes = reinterpret_cast<const unsigned char*>(text);
  std::u16string converted;
  for (std::size_t i = 0; i < length;) encodeUtf16(decodeUtf8(bytes, length, i), converted);
  return deliver(converted, wide, wideSize);
}

int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR wide, int size, LPSTR text,
                        int textSize, LPCSTR defaultChar, BOOL* usedDefault) {
  if (codePage != CP_UTF8 || flags != 0 || defaultChar || usedDefault) return 0;
  if (!wide || size == 0 || textSize < 0 || (textSize > 0 && !text)) return 0;
  std::size_t length = 0;
  if (size < 0) {
    while (wide[length]) ++length;
    ++length;
  } else {
    length = std::size_t(size);
  }
  std::string converted;
  for (std::size_t i = 0; i < length;) encodeUtf8(decodeUtf16(wide, length, i), converted);
  return deliver(converted, text, textSize);
}
