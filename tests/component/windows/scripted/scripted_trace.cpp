#include "scripted/scripted_trace.h"

// Windows
#include <windows.h>

namespace tnw {

ScriptedTrace::ScriptedTrace() {
  wchar_t buffer[MAX_PATH] = {};
  const DWORD length = GetEnvironmentVariableW(L"TNW_SCRIPTED_TRACE", buffer, MAX_PATH);
  if (length > 0 && length < MAX_PATH) m_path.assign(buffer, length);
}

void ScriptedTrace::write(const std::string& line) const noexcept {
  if (m_path.empty()) return;
  HANDLE file = CreateFileW(m_path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                            nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return;
  DWORD written = 0;
  WriteFile(file, line.data(), DWORD(line.size()), &written, nullptr);
  WriteFile(file, "\n", 1, &written, nullptr);
  CloseHandle(file);
}

}  // namespace tnw
