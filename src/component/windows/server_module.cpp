#include "component/windows/server_module.h"

#include "component/windows/com_boundary.h"
#include "component/windows/tnwizard_mavt_h.h"

// Std
#include <atomic>

namespace tnw {

namespace {

HINSTANCE g_instance = nullptr;
// COM may ask DllCanUnloadNow from any thread, so the counts are atomic.
std::atomic<long> g_objects{0};
std::atomic<long> g_locks{0};

}  // namespace

void ServerModule::setInstance(HINSTANCE instance) { g_instance = instance; }

HINSTANCE ServerModule::instance() { return g_instance; }

std::wstring ServerModule::modulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(g_instance, path.data(), DWORD(path.size()));
    if (length == 0) return {};
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    if (path.size() >= 32768) return {};
    path.resize(path.size() * 2);
  }
}

void ServerModule::objectCreated() { ++g_objects; }

void ServerModule::objectDestroyed() { --g_objects; }

void ServerModule::lock() { ++g_locks; }

void ServerModule::unlock() { --g_locks; }

bool ServerModule::canUnload() { return g_objects.load() == 0 && g_locks.load() == 0; }

HRESULT ServerModule::loadTypeLib(ITypeLib** typeLib) noexcept {
  if (!typeLib) return E_POINTER;
  *typeLib = nullptr;
  return comBoundary([typeLib]() -> HRESULT {
    const std::wstring path = modulePath();
    if (path.empty()) return HRESULT_FROM_WIN32(GetLastError());
    return LoadTypeLibEx(path.c_str(), REGKIND_NONE, typeLib);
  });
}

HRESULT ServerModule::typeInfo(REFGUID guid, ITypeInfo** info) noexcept {
  if (!info) return E_POINTER;
  *info = nullptr;
  ITypeLib* lib = nullptr;
  HRESULT hr = loadTypeLib(&lib);
  if (FAILED(hr)) return hr;
  hr = lib->GetTypeInfoOfGuid(guid, info);
  lib->Release();
  return hr;
}

}  // namespace tnw
