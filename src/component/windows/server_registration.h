#pragma once

// Windows
#include <windows.h>

namespace tnw {

// The registry entries of the server: the class TNW_MAVT under CLSID with its in-process server
// (apartment-threaded), the ProgID "TNWizard_MAVT.TNW_MAVT", and the type library with its
// interfaces, for every user (HKEY_CLASSES_ROOT) or for the current user only. Both directions are
// idempotent: registering again rewrites the same entries, unregistering what is not there
// succeeds, and unregistering leaves alone the entries of another copy of the DLL.
class ServerRegistration {
 public:
  // The ProgID hosts create the component by; also the source of its error information.
  static constexpr const wchar_t* kProgId = L"TNWizard_MAVT.TNW_MAVT";
  // The class's display name.
  static constexpr const wchar_t* kClassName = L"TNW_MAVT";

  // DllRegisterServer: writes every entry; on failure removes what it wrote.
  static HRESULT registerServer() noexcept;
  // DllUnregisterServer: removes every entry, unless they name another copy of the DLL.
  static HRESULT unregisterServer() noexcept;
  // DllInstall: registers (install) or unregisters for the current user when commandLine is
  // "user" (regsvr32 /n /i:user), for every user when it is empty; E_INVALIDARG otherwise.
  static HRESULT install(bool install, const wchar_t* commandLine) noexcept;
};

}  // namespace tnw
