#include "common/core/win_help.h"

namespace tnw {

namespace {

std::wstring wideFromUtf8(const std::string& text) {
  if (text.empty()) return {};
  const int size = MultiByteToWideChar(CP_UTF8, 0, text.data(), int(text.size()), nullptr, 0);
  if (size <= 0) return {};
  std::wstring result(std::size_t(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), int(text.size()), result.data(), size);
  return result;
}

// The text in the ANSI code page; false where a character has no exact form there.
bool ansiFromWide(const std::wstring& text, std::string& ansi) {
  ansi.clear();
  if (text.empty()) return true;
  const UINT codePage = GetACP();
  // A UTF-8 code page holds every character, and refuses the flags that detect a lossy one.
  const DWORD flags = codePage == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
  BOOL lossy = FALSE;
  BOOL* lossyFlag = codePage == CP_UTF8 ? nullptr : &lossy;
  const int size = WideCharToMultiByte(codePage, flags, text.data(), int(text.size()), nullptr, 0,
                                       nullptr, lossyFlag);
  if (size <= 0 || lossy) return false;
  ansi.assign(std::size_t(size), '\0');
  WideCharToMultiByte(codePage, flags, text.data(), int(text.size()), ansi.data(), size, nullptr,
                      nullptr);
  return true;
}

std::wstring shortPathName(const std::wstring& path) {
  const DWORD size = GetShortPathNameW(path.c_str(), nullptr, 0);
  if (size == 0) return {};
  std::wstring result(size, L'\0');
  const DWORD length = GetShortPathNameW(path.c_str(), result.data(), size);
  if (length == 0 || length >= size) return {};
  result.resize(length);
  return result;
}

}  // namespace

std::string winHelpFileName(const std::string& helpFile) noexcept {
  try {
    const std::wstring wide = wideFromUtf8(helpFile);
    if (wide.empty()) return {};
    std::string ansi;
    if (ansiFromWide(wide, ansi)) return ansi;
    // WinHelpA takes no other kind of name; a short name is generated from characters that the
    // code page usually has.
    const std::wstring shortName = shortPathName(wide);
    if (!shortName.empty() && ansiFromWide(shortName, ansi)) return ansi;
  } catch (...) {
  }
  return {};
}

bool showWinHelp(HWND owner, const std::string& helpFile, int context,
                 const WinHelpCall& call) noexcept {
  const std::string file = winHelpFileName(helpFile);
  if (file.empty()) return false;
  // The context number goes as the command's data, as HELP_CONTEXT expects.
  const auto data = static_cast<ULONG_PTR>(static_cast<DWORD>(context));
  try {
    const BOOL opened = call ? call(owner, file.c_str(), HELP_CONTEXT, data)
                             : WinHelpA(owner, file.c_str(), HELP_CONTEXT, data);
    return opened != FALSE;
  } catch (...) {
    return false;
  }
}

}  // namespace tnw
