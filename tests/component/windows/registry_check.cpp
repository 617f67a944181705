// tnw_registry_check: prints every registry entry of the server (present with its values, or
// absent) in a fixed text form that the conformance test compares before and after
// registration. The server's path is printed as its file name and whether that file exists.
#include "component/windows/tnwizard_mavt_h.h"

// Windows
#include <windows.h>

// Std
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

std::string narrow(const std::wstring& text) {
  std::string result;
  for (wchar_t c : text) result.push_back(char(c));
  return result;
}

std::wstring guidText(REFGUID guid) {
  wchar_t text[40] = {};
  StringFromGUID2(guid, text, 40);
  return text;
}

std::string describeValue(const std::wstring& key, const std::wstring& name,
                          const std::wstring& data) {
  if (key.find(L"InprocServer32") == std::wstring::npos || !name.empty())
    return "\"" + narrow(data) + "\"";
  const std::size_t slash = data.find_last_of(L"\\/");
  const std::wstring file = slash == std::wstring::npos ? data : data.substr(slash + 1);
  const bool exists = GetFileAttributesW(data.c_str()) != INVALID_FILE_ATTRIBUTES;
  return "\"" + narrow(file) + "\"" + (exists ? " (file exists)" : " (file missing)");
}

void printKey(const std::wstring& path) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_CLASSES_ROOT, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) {
    std::printf("HKCR\\%s: absent\n", narrow(path).c_str());
    return;
  }
  std::vector<std::string> values;
  for (DWORD i = 0;; ++i) {
    wchar_t name[256];
    DWORD nameLength = 256;
    wchar_t data[1024];
    DWORD dataBytes = sizeof(data);
    DWORD type = 0;
    if (RegEnumValueW(key, i, name, &nameLength, nullptr, &type, reinterpret_cast<BYTE*>(data),
                      &dataBytes) != ERROR_SUCCESS)
      break;
    std::wstring text;
    if (type == REG_SZ || type == REG_EXPAND_SZ)
      text.assign(data, wcsnlen(data, dataBytes / sizeof(wchar_t)));
    const std::wstring valueName(name, nameLength);
    values.push_back((valueName.empty() ? std::string("@") : narrow(valueName)) + "=" +
                     describeValue(path, valueName, text));
  }
  RegCloseKey(key);
  std::sort(values.begin(), values.end());
  std::string line = "HKCR\\" + narrow(path) + ":";
  if (values.empty()) line += " present";
  for (const std::string& value : values) line += " " + value;
  std::printf("%s\n", line.c_str());
}

}  // namespace

int main() {
  const std::wstring clsid = L"CLSID\\" + guidText(CLSID_TNW_MAVT);
  const std::wstring typeLib = L"TypeLib\\" + guidText(LIBID_TNWizard_MAVT);
  const std::wstring keys[] = {
      clsid,
      clsid + L"\\InprocServer32",
      clsid + L"\\ProgID",
      clsid + L"\\VersionIndependentProgID",
      clsid + L"\\TypeLib",
      clsid + L"\\Version",
      clsid + L"\\Programmable",
      L"TNWizard_MAVT.TNW_MAVT",
      L"TNWizard_MAVT.TNW_MAVT\\CLSID",
      typeLib,
      typeLib + L"\\1.0",
      L"Interface\\" + guidText(IID__TNW_MAVT),
      L"Interface\\" + guidText(IID__TNW_MAVT) + L"\\TypeLib",
      L"Interface\\" + guidText(DIID___TNW_MAVT),
      L"Interface\\" + guidText(DIID___TNW_MAVT) + L"\\TypeLib",
  };
  for (const std::wstring& key : keys) printKey(key);
  return 0;
}
