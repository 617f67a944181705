#include "scripted/scripted_ui_services.h"

#include "common/core/win_help.h"

namespace tnw {

namespace {

const char* iconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Information:
      return "information";
    case MessageIcon::Exclamation:
      return "exclamation";
    case MessageIcon::Critical:
      return "critical";
    case MessageIcon::Question:
      break;
  }
  return "question";
}

std::string utf8FromWide(const std::wstring& text) {
  if (text.empty()) return {};
  const int size =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), nullptr, 0, nullptr, nullptr);
  if (size <= 0) return {};
  std::string result(std::size_t(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), result.data(), size, nullptr,
                      nullptr);
  return result;
}

// The file WinHelpA would get, told as the full name it stands for (so a short name reads the
// same on every machine), and whether it was given as it is or by its short name.
std::string helpFileText(LPCSTR file, const std::string& helpFile) {
  const std::string given(file);
  std::wstring wide(given.size() + 1, L'\0');
  const int size = MultiByteToWideChar(CP_ACP, 0, given.c_str(), -1, wide.data(), int(wide.size()));
  wide.resize(size > 0 ? std::size_t(size - 1) : 0);
  std::wstring full(32768, L'\0');
  const DWORD length = GetLongPathNameW(wide.c_str(), full.data(), DWORD(full.size()));
  full.resize(length > 0 && length < full.size() ? length : 0);
  const std::string named = utf8FromWide(full.empty() ? wide : full);
  return named + (utf8FromWide(wide) == helpFile ? " (as given)" : " (by its short name)");
}

}  // namespace

void ScriptedUiServices::messageBox(const std::string& text, MessageIcon icon,
                                    const std::string& title) {
  m_trace.write(std::string("message ") + iconName(icon) + " " + title + ": " + text);
}

void ScriptedUiServices::beep() { m_trace.write("beep"); }

void ScriptedUiServices::setBusy(bool) {}

void ScriptedUiServices::showHelp(const std::string& helpFile, int context) {
  // The help call is made as on every Windows build, with the tracing call in WinHelpA's place:
  // there is no help viewer to show anything under test.
  const WinHelpCall traced = [this, &helpFile](HWND, LPCSTR file, UINT command, ULONG_PTR data) {
    m_trace.write("WinHelpA " + helpFileText(file, helpFile) + " " +
                  (command == HELP_CONTEXT ? "HELP_CONTEXT" : std::to_string(command)) + " " +
                  std::to_string(data));
    return TRUE;
  };
  if (!showWinHelp(nullptr, helpFile, context, traced))
    m_trace.write("help not opened: " + helpFile + " has no name WinHelpA takes");
}

}  // namespace tnw
