// tnw_script_host SCRIPT.vbs [ARGUMENT...]: runs a VBScript file with WScript and Host objects;
// exits 0 when the script ran without error.
#include "script_host.h"

// Windows
#include <windows.h>

// Std
#include <string>
#include <vector>

namespace {

bool readScript(const wchar_t* path, std::wstring& script) {
  HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  std::string bytes;
  char buffer[4096];
  DWORD read = 0;
  while (ReadFile(file, buffer, sizeof(buffer), &read, nullptr) && read > 0)
    bytes.append(buffer, read);
  CloseHandle(file);
  const int size = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), int(bytes.size()), nullptr, 0);
  script.assign(std::size_t(size > 0 ? size : 0), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, bytes.data(), int(bytes.size()), script.data(), size);
  return true;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc < 2) {
    fwprintf(stderr, L"usage: tnw_script_host SCRIPT.vbs [ARGUMENT...]\n");
    return 2;
  }
  std::wstring script;
  if (!readScript(argv[1], script)) {
    fwprintf(stderr, L"tnw_script_host: cannot read %ls\n", argv[1]);
    return 2;
  }
  if (FAILED(CoInitialize(nullptr))) return 3;
  bool ok = false;
  {
    tnw::testing::ScriptHost host(std::vector<std::wstring>(argv + 2, argv + argc));
    ok = host.run(script);
  }
  CoUninitialize();
  return ok ? 0 : 1;
}
