#pragma once

// Windows
#include <oaidl.h>
#include <windows.h>

// Std
#include <string>

namespace tnw {

// The state the whole DLL shares: its instance handle, the live objects and server locks that
// keep it loaded, and access to the type library it carries as a resource.
class ServerModule {
 public:
  // Remembers the DLL's instance handle (called from DllMain).
  static void setInstance(HINSTANCE instance);
  // The DLL's instance handle.
  static HINSTANCE instance();
  // The full path of the DLL file; empty if it cannot be found.
  static std::wstring modulePath();

  // Counts an object (a component or anything that must keep the DLL loaded) into existence.
  static void objectCreated();
  // Counts an object out again.
  static void objectDestroyed();
  // IClassFactory::LockServer(TRUE).
  static void lock();
  // IClassFactory::LockServer(FALSE).
  static void unlock();
  // Whether no object is alive and no lock is held (DllCanUnloadNow).
  static bool canUnload();

  // Loads the type library from this DLL's resources, without registering it.
  static HRESULT loadTypeLib(ITypeLib** typeLib) noexcept;
  // The type description of guid from the type library.
  static HRESULT typeInfo(REFGUID guid, ITypeInfo** info) noexcept;
};

}  // namespace tnw
