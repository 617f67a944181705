#include "component/windows/server_registration.h"

#include "component/windows/com_boundary.h"
#include "component/windows/server_module.h"
#include "component/windows/tnwizard_mavt_h.h"

// Windows
#include <oleauto.h>
#include <olectl.h>

// Std
#include <string>

namespace tnw {

namespace {

std::wstring guidText(REFGUID guid) {
  wchar_t text[40] = {};
  StringFromGUID2(guid, text, 40);
  return text;
}

HRESULT setValue(const std::wstring& keyPath, const wchar_t* name, const std::wstring& value) {
  HKEY key = nullptr;
  LSTATUS status = RegCreateKeyExW(HKEY_CLASSES_ROOT, keyPath.c_str(), 0, nullptr,
                                   REG_OPTION_NON_VOLATILE, KEY_SET_VALUE, nullptr, &key, nullptr);
  if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(status);
  const auto bytes = DWORD((value.size() + 1) * sizeof(wchar_t));
  status =
      RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), bytes);
  RegCloseKey(key);
  return HRESULT_FROM_WIN32(status);
}

HRESULT deleteTree(const std::wstring& keyPath) {
  const LSTATUS status = RegDeleteTreeW(HKEY_CLASSES_ROOT, keyPath.c_str());
  if (status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND) {
    // RegDeleteTree empties the key; the key itself goes separately.
    const LSTATUS removed = RegDeleteKeyW(HKEY_CLASSES_ROOT, keyPath.c_str());
    if (removed == ERROR_SUCCESS || removed == ERROR_FILE_NOT_FOUND) return S_OK;
    return HRESULT_FROM_WIN32(removed);
  }
  return HRESULT_FROM_WIN32(status);
}

bool keyExists(const std::wstring& keyPath) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_CLASSES_ROOT, keyPath.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
    return false;
  RegCloseKey(key);
  return true;
}

HRESULT registerClass(const std::wstring& path) {
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
    const HRESULT hr = setValue(key, value.first, value.second);
    if (FAILED(hr)) return hr;
  }
  return S_OK;
}

constexpr SYSKIND kSysKind = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;

HRESULT unregisterTypeLib() {
  const std::wstring version = L"TypeLib\\" + guidText(LIBID_TNWizard_MAVT) + L"\\1.0";
  if (keyExists(version)) {
    const HRESULT hr = UnRegisterTypeLib(LIBID_TNWizard_MAVT, 1, 0, LOCALE_NEUTRAL, kSysKind);
    if (FAILED(hr) && keyExists(version)) return hr;
  }
  // The interfaces go with the library; removed here too in case the library's entry was
  // already gone while they were not.
  for (REFIID iid : {IID__TNW_MAVT, DIID___TNW_MAVT}) {
    const HRESULT hr = deleteTree(L"Interface\\" + guidText(iid));
    if (FAILED(hr)) return hr;
  }
  const std::wstring library = L"TypeLib\\" + guidText(LIBID_TNWizard_MAVT);
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_CLASSES_ROOT, library.c_str(), 0, KEY_READ, &key) == ERROR_SUCCESS) {
    DWORD subKeys = 0;
    RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &subKeys, nullptr, nullptr, nullptr, nullptr,
                     nullptr, nullptr, nullptr);
    RegCloseKey(key);
    // Another version of the library may still be registered; only an empty key goes.
    if (subKeys == 0) RegDeleteKeyW(HKEY_CLASSES_ROOT, library.c_str());
  }
  return S_OK;
}

// Writes the type library's and the class's entries; the failures answer as DllRegisterServer
// does.
HRESULT writeEntries() {
  const std::wstring path = ServerModule::modulePath();
  if (path.empty()) return SELFREG_E_CLASS;
  ITypeLib* typeLib = nullptr;
  HRESULT hr = ServerModule::loadTypeLib(&typeLib);
  if (FAILED(hr)) return SELFREG_E_TYPELIB;
  hr = RegisterTypeLib(typeLib, const_cast<LPOLESTR>(path.c_str()), nullptr);
  typeLib->Release();
  if (FAILED(hr)) return SELFREG_E_TYPELIB;
  return FAILED(registerClass(path)) ? SELFREG_E_CLASS : S_OK;
}

HRESULT removeEntries() {
  HRESULT result = S_OK;
  for (const std::wstring& key :
       {L"CLSID\\" + guidText(CLSID_TNW_MAVT), std::wstring(ServerRegistration::kProgId)}) {
    if (FAILED(deleteTree(key))) result = SELFREG_E_CLASS;
  }
  if (FAILED(unregisterTypeLib())) result = SELFREG_E_TYPELIB;
  return result;
}

}  // namespace

HRESULT ServerRegistration::registerServer() noexcept {
  const HRESULT hr = comBoundary(writeEntries);
  if (FAILED(hr)) unregisterServer();
  return hr;
}

HRESULT ServerRegistration::unregisterServer() noexcept { return comBoundary(removeEntries); }

}  // namespace tnw
