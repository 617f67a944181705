// tnw_registry_check: prints every registry entry of the server (present with its values, or
// absent) in a fixed text form that the conformance test compares before and after
// registration. The server's path is printed as its file name and whether that file exists.
// With the argument "user" it reads the current user's classes (HKCU\Software\Classes), where
// regsvr32 /n /i:user registers, instead of HKEY_CLASSES_ROOT.
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

// Where the keys are read: the root key, the key under it and the name printed for both.
struct Classes {
  HKEY root;
  std::wstring prefix;
  std::string name;
};

void printKey(const Classes& classes, const std::wstring& path) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(classes.root, (classes.prefix + path).c_str(), 0, KEY_READ, &key) !=
      ERROR_SUCCESS) {
    std::printf("%s\\%s: absent\n", classes.name.c_str(), narrow(path).c_str());
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
  std::string line = classes.name + "\\" + narrow(path) + ":";
  if (values.empty()) line += " present";
  for (const std::string& value : values) line += " " + value;
  std::printf("%s\n", line.c_str());
}

}  // namespace

int main(int argc, char** argv) {
  const bool user = argc > 1 && std::string(argv[1]) == "user";
  const Classes classes =
      user ? Classes{HKEY_CURRENT_USER, L"Software\\Classes\\", "HKCU\\Software\\Classes"}
           : Classes{HKEY_CLASSES_ROOT, L"", "HKCR"};
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
  for (const std::wstring& key : keys) printKey(classes, key);
  return 0;
}
