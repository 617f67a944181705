#include "component/windows/class_factory.h"

#include "component/windows/com_boundary.h"
#include "component/windows/com_tnw_mavt.h"
#include "component/windows/server_module.h"

namespace tnw {

ClassFactory& ClassFactory::instance() {
  static ClassFactory factory;
  return factory;
}

HRESULT STDMETHODCALLTYPE ClassFactory::QueryInterface(REFIID iid, void** object) {
  if (!object) return E_POINTER;
  if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IClassFactory)) {
    *object = static_cast<IClassFactory*>(this);
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

ULONG STDMETHODCALLTYPE ClassFactory::AddRef() { return 2; }

ULONG STDMETHODCALLTYPE ClassFactory::Release() { return 1; }

HRESULT STDMETHODCALLTYPE ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (outer) return CLASS_E_NOAGGREGATION;
  return comBoundary([iid, object] { return ComTnwMavt::create(iid, object); });
}

HRESULT STDMETHODCALLTYPE ClassFactory::LockServer(BOOL lock) {
  if (lock) {
    ServerModule::lock();
  } else {
    ServerModule::unlock();
  }
  return S_OK;
}

}  // namespace tnw
