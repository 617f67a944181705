#pragma once

// Windows
#include <unknwn.h>
#include <windows.h>

namespace tnw {

// The class factory of TNW_MAVT that DllGetClassObject hands out. One static instance serves
// every caller; it does not keep the DLL loaded by itself, only LockServer does.
class ClassFactory : public IClassFactory {
 public:
  // The factory (no reference is added).
  static ClassFactory& instance();

  // IUnknown; the factory is never deleted.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IClassFactory: a new TNW_MAVT object (no aggregation).
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
  // IClassFactory: keeps the DLL loaded while locked.
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

 private:
  ClassFactory() = default;
};

}  // namespace tnw
