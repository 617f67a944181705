// The entry points of an in-process COM server (with DllInstall for per-user registration), and
// DllMain. Each is a boundary that no C++ exception may cross.
#include "component/windows/class_factory.h"
#include "component/windows/com_boundary.h"
#include "component/windows/server_module.h"
#include "component/windows/server_registration.h"
#include "component/windows/tnwizard_mavt_h.h"

// Windows
#include <windows.h>

// Thread notifications stay on: the statically linked C and C++ runtime needs them for its
// thread-local data (its TLS callbacks and the cleanup when a thread ends).
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) tnw::ServerModule::setInstance(instance);
  return TRUE;
}

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID iid, void** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (!IsEqualCLSID(clsid, CLSID_TNW_MAVT)) return CLASS_E_CLASSNOTAVAILABLE;
  return tnw::comBoundary(
      [iid, object] { return tnw::ClassFactory::instance().QueryInterface(iid, object); });
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow() {
  return tnw::ServerModule::canUnload() ? S_OK : S_FALSE;
}

// Both let no exception out themselves.
extern "C" HRESULT STDAPICALLTYPE DllRegisterServer() {
  return tnw::ServerRegistration::registerServer();
}

extern "C" HRESULT STDAPICALLTYPE DllUnregisterServer() {
  return tnw::ServerRegistration::unregisterServer();
}

extern "C" HRESULT STDAPICALLTYPE DllInstall(BOOL install, LPCWSTR commandLine) {
  return tnw::ServerRegistration::install(install != FALSE, commandLine);
}
