#include "component/windows/server_registration.h"

#include "component/windows/com_boundary.h"
#include "component/windows/server_module.h"
#include "component/windows/tnwizard_mavt_h.h"

// Windows
#include <oleauto.h>
#include <olectl.h>

// Std
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace tnw {

namespace {

// Where the entries go: HKEY_CLASSES_ROOT (for every user, which needs administrator rights) or
// the current user's own classes, which COM looks at first.
struct ClassesRoot {
  HKEY key;
  const wchar_t* subKey;

  std::wstring path(const std::wstring& keyPath) const {
    return subKey[0] ? std::wstring(subKey) + L"\\" + keyPath : keyPath;
  }
};

const ClassesRoot kMachine{HKEY_CLASSES_ROOT, L""};
const ClassesRoot kUser{HKEY_CURRENT_USER, L"Software\\Classes"};

std::wstring guidText(REFGUID guid) {
  wchar_t text[40] = {};
  StringFromGUID2(guid, text, 40);
  return text;
}

HRESULT setValue(const ClassesRoot& root, const std::wstring& keyPath, const wchar_t* name,
                 const std::wstring& value) {
  HKEY key = nullptr;
  LSTATUS status = RegCreateKeyExW(root.key, root.path(keyPath).c_str(), 0, nullptr,
                                   REG_OPTION_NON_VOLATILE, KEY_SET_VALUE, nullptr, &key, nullptr);
  if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(status);
  const auto bytes = DWORD((value.size() + 1) * sizeof(wchar_t));
  status =
      RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), bytes);
  RegCloseKey(key);
  return HRESULT_FROM_WIN32(status);
}

HRESULT deleteTree(const ClassesRoot& root, const std::wstring& keyPath) {
  const std::wstring path = root.path(keyPath);
  const LSTATUS status = RegDeleteTreeW(root.key, path.c_str());
  if (status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND) {
    // RegDeleteTree empties the key; the key itself goes separately.
    const LSTATUS removed = RegDeleteKeyW(root.key, path.c_str());
    if (removed == ERROR_SUCCESS || removed == ERROR_FILE_NOT_FOUND) return S_OK;
    return HRESULT_FROM_WIN32(removed);
  }
  return HRESULT_FROM_WIN32(status);
}

bool keyExists(const ClassesRoot& root, const std::wstring& keyPath) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(root.key, root.path(keyPath).c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
    return false;
  RegCloseKey(key);
  return true;
}

// The default value of a key; empty when the key or the value is missing or not a text.
std::wstring defaultValue(const ClassesRoot& root, const std::wstring& keyPath) {
  wchar_t data[32768 / sizeof(wchar_t)] = {};
  DWORD bytes = sizeof(data) - sizeof(wchar_t);
  if (RegGetValueW(root.key, root.path(keyPath).c_str(), nullptr, RRF_RT_REG_SZ, nullptr, data,
                   &bytes) != ERROR_SUCCESS)
    return {};
  return data;
}

// Whether the entries under root belong to the DLL at path: true when its class names path as
// its server (compared as Windows compares file names), when it names none, or when the file it
// names is gone. Another copy's registration is left alone.
bool registeredHere(const ClassesRoot& root, const std::wstring& path) {
  const std::wstring registered =
      defaultValue(root, L"CLSID\\" + guidText(CLSID_TNW_MAVT) + L"\\InprocServer32");
  if (registered.empty() || GetFileAttributesW(registered.c_str()) == INVALID_FILE_ATTRIBUTES)
    return true;
  return CompareStringOrdinal(registered.c_str(), int(registered.size()), path.c_str(),
                              int(path.size()), TRUE) == CSTR_EQUAL;
}

HRESULT registerClass(const ClassesRoot& root, const std::wstring& path) {
  const std::wstring clsid = L"CLSID\\" + guidText(CLSID_TNW_MAVT);
  const std::wstring progId = ServerRegistration::kProgId;
  const std::pair<std::wstring, std::pair<const wchar_t*, std::wstring>> entries[] = {
      {clsid, {nullptr, ServerRegistration::kClassName}},
      {clsid + L"\\InprocServer32", {nullptr, path}},
      {clsid + L"\\InprocServer32", {L"ThreadingModel", L"Apartment"}},
      {clsid + L"\\ProgID", {nullptr, progId}},
      {clsid + L"\\VersionIndependentProgID", {nullptr, progId}},
      {clsid + L"\\TypeLib", {nullptr, guidText(LIBID_TNWizard_MAVT)}},
      {clsid + L"\\Version", {nullptr, L"1.0"}},
      {clsid + L"\\Programmable", {nullptr, L""}},
      {progId, {nullptr, ServerRegistration::kClassName}},
      {progId + L"\\CLSID", {nullptr, guidText(CLSID_TNW_MAVT)}},
  };
  for (const auto& [key, value] : entries) {
    const HRESULT hr = setValue(root, key, value.first, value.second);
    if (FAILED(hr)) return hr;
  }
  return S_OK;
}

constexpr SYSKIND kSysKind = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;

const std::wstring& libraryKey() {
  static const std::wstring key = L"TypeLib\\" + guidText(LIBID_TNWizard_MAVT);
  return key;
}

// Removes the library's key when no version of it is left.
void removeEmptyLibraryKey(const ClassesRoot& root) {
  const std::wstring library = root.path(libraryKey());
  HKEY key = nullptr;
  if (RegOpenKeyExW(root.key, library.c_str(), 0, KEY_READ, &key) == ERROR_SUCCESS) {
    DWORD subKeys = 0;
    RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &subKeys, nullptr, nullptr, nullptr, nullptr,
                     nullptr, nullptr, nullptr);
    RegCloseKey(key);
    // Another version of the library may still be registered; only an empty key goes.
    if (subKeys == 0) RegDeleteKeyW(root.key, library.c_str());
  }
}

HRESULT deleteInterfaces(const ClassesRoot& root) {
  for (REFIID iid : {IID__TNW_MAVT, DIID___TNW_MAVT}) {
    const HRESULT hr = deleteTree(root, L"Interface\\" + guidText(iid));
    if (FAILED(hr)) return hr;
  }
  return S_OK;
}

HRESULT unregisterTypeLib(const ClassesRoot& root) {
  const std::wstring version = libraryKey() + L"\\1.0";
  if (root.key == HKEY_CLASSES_ROOT && keyExists(root, version)) {
    const HRESULT hr = UnRegisterTypeLib(LIBID_TNWizard_MAVT, 1, 0, LOCALE_NEUTRAL, kSysKind);
    if (FAILED(hr) && keyExists(root, version)) return hr;
  }
  // The interfaces go with the library; removed here too in case the library's entry was
  // already gone while they were not.
  HRESULT hr = deleteTree(root, version);
  if (SUCCEEDED(hr)) hr = deleteInterfaces(root);
  if (FAILED(hr)) return hr;
  removeEmptyLibraryKey(root);
  return S_OK;
}

// The entries RegisterTypeLib writes for the machine, written for the current user:
// RegisterTypeLibForUser is missing or registers for the machine on some systems.
HRESULT registerTypeLibForUser(ITypeLib& typeLib, const std::wstring& path) {
  BSTR name = nullptr;
  BSTR doc = nullptr;
  typeLib.GetDocumentation(-1, &name, &doc, nullptr, nullptr);
  const std::wstring title = doc && *doc ? doc : (name ? name : L"");
  SysFreeString(name);
  SysFreeString(doc);
  const std::wstring version = libraryKey() + L"\\1.0";
  const std::wstring lib = guidText(LIBID_TNWizard_MAVT);
  const std::wstring marshaler = L"{00020424-0000-0000-C000-000000000046}";
  std::vector<std::tuple<std::wstring, const wchar_t*, std::wstring>> entries = {
      {version, nullptr, title},
      {version + (sizeof(void*) == 8 ? L"\\0\\win64" : L"\\0\\win32"), nullptr, path},
      {version + L"\\FLAGS", nullptr, L"0"},
      {version + L"\\HELPDIR", nullptr, path.substr(0, path.find_last_of(L'\\'))},
  };
  for (const auto& [iid, text] :
       {std::pair{IID__TNW_MAVT, L"_TNW_MAVT"}, std::pair{DIID___TNW_MAVT, L"__TNW_MAVT"}}) {
    const std::wstring key = L"Interface\\" + guidText(iid);
    entries.insert(entries.end(), {{key, nullptr, text},
                                   {key + L"\\ProxyStubClsid", nullptr, marshaler},
                                   {key + L"\\ProxyStubClsid32", nullptr, marshaler},
                                   {key + L"\\TypeLib", nullptr, lib},
                                   {key + L"\\TypeLib", L"Version", L"1.0"}});
  }
  for (const auto& [key, valueName, value] : entries) {
    const HRESULT hr = setValue(kUser, key, valueName, value);
    if (FAILED(hr)) return hr;
  }
  return S_OK;
}

// Writes the type library's and the class's entries under root; the failures answer as
// DllRegisterServer does.
HRESULT writeEntries(const ClassesRoot& root) {
  const std::wstring path = ServerModule::modulePath();
  if (path.empty()) return SELFREG_E_CLASS;
  ITypeLib* typeLib = nullptr;
  HRESULT hr = ServerModule::loadTypeLib(&typeLib);
  if (FAILED(hr)) return SELFREG_E_TYPELIB;
  if (root.key == HKEY_CLASSES_ROOT)
    hr = RegisterTypeLib(typeLib, const_cast<LPOLESTR>(path.c_str()), nullptr);
  else
    hr = registerTypeLibForUser(*typeLib, path);
  typeLib->Release();
  if (FAILED(hr)) return SELFREG_E_TYPELIB;
  return FAILED(registerClass(root, path)) ? SELFREG_E_CLASS : S_OK;
}

// Removes the entries under root, unless they belong to another copy of the DLL.
HRESULT removeEntries(const ClassesRoot& root) {
  const std::wstring path = ServerModule::modulePath();
  if (path.empty()) return SELFREG_E_CLASS;
  if (!registeredHere(root, path)) return S_OK;
  HRESULT result = S_OK;
  for (const std::wstring& key :
       {L"CLSID\\" + guidText(CLSID_TNW_MAVT), std::wstring(ServerRegistration::kProgId)}) {
    if (FAILED(deleteTree(root, key))) result = SELFREG_E_CLASS;
  }
  if (FAILED(unregisterTypeLib(root))) result = SELFREG_E_TYPELIB;
  return result;
}

HRESULT registerAt(const ClassesRoot& root) noexcept {
  const HRESULT hr = comBoundary([&root] { return writeEntries(root); });
  if (FAILED(hr)) comBoundary([&root] { return removeEntries(root); });
  return hr;
}

HRESULT unregisterAt(const ClassesRoot& root) noexcept {
  return comBoundary([&root] { return removeEntries(root); });
}

}  // namespace

HRESULT ServerRegistration::registerServer() noexcept { return registerAt(kMachine); }

HRESULT ServerRegistration::unregisterServer() noexcept { return unregisterAt(kMachine); }

HRESULT ServerRegistration::install(bool install, const wchar_t* commandLine) noexcept {
  const ClassesRoot* root = nullptr;
  if (!commandLine || !*commandLine)
    root = &kMachine;
  else if (CompareStringOrdinal(commandLine, -1, L"user", -1, TRUE) == CSTR_EQUAL)
    root = &kUser;
  if (!root) return E_INVALIDARG;
  return install ? registerAt(*root) : unregisterAt(*root);
}

}  // namespace tnw
