#pragma once

// The help call of the Windows builds, without Qt, so that the Qt UI services and the automation
// server's own UI services open the host's help file the same way. Windows only.

// Windows
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

// Std
#include <functional>
#include <string>

namespace tnw {

// What opens a help file, with WinHelpA's parameters: owner window, file name in the ANSI code
// page, command, data. Tests put their own in place of WinHelpA.
using WinHelpCall = std::function<BOOL(HWND owner, LPCSTR file, UINT command, ULONG_PTR data)>;

// The file name WinHelpA gets for helpFile (UTF-8): the name itself in the ANSI code page or,
// where one of its characters has no form there, the existing file's short (8.3) name, which
// names the same file; empty when neither exists. Never throws.
std::string winHelpFileName(const std::string& helpFile) noexcept;

// Opens helpFile (UTF-8: NorixDir + "\NORIX.HLP") at the topic with context number context,
// owned by owner: WinHelpA(owner, file, HELP_CONTEXT, context), or call in its place when one
// is given. False when the file name has no ANSI form or the call fails. Never throws.
bool showWinHelp(HWND owner, const std::string& helpFile, int context,
                 const WinHelpCall& call = {}) noexcept;

}  // namespace tnw
