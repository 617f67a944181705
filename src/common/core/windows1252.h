#pragma once

// Std
#include <string>
#include <string_view>

namespace tnw {

// The host writes its texts in the Windows-1252 code page; the wizard works in UTF-8.

// Converts Windows-1252 bytes to UTF-8. The five bytes the code page leaves undefined (0x81, 0x8D,
// 0x8F, 0x90, 0x9D) become the control characters of the same number, as Windows converts them.
std::string windows1252ToUtf8(std::string_view bytes);

// Converts UTF-8 to Windows-1252. Characters the code page cannot hold, and bytes that are not
// valid UTF-8, become '?'.
std::string utf8ToWindows1252(std::string_view text);

}  // namespace tnw
