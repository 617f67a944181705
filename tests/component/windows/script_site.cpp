#include "script_site.h"

#include "script_host.h"

namespace tnw::testing {

HRESULT STDMETHODCALLTYPE ScriptSite::QueryInterface(REFIID iid, void** object) {
  if (!object) return E_POINTER;
  if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IActiveScriptSite)) {
    *object = static_cast<IActiveScriptSite*>(this);
    AddRef();
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

ULONG STDMETHODCALLTYPE ScriptSite::AddRef() { return ULONG(InterlockedIncrement(&m_refs)); }

ULONG STDMETHODCALLTYPE ScriptSite::Release() {
  const LONG refs = InterlockedDecrement(&m_refs);
  if (refs == 0) delete this;
  return ULONG(refs);
}

HRESULT STDMETHODCALLTYPE ScriptSite::GetLCID(LCID* lcid) {
  if (!lcid) return E_POINTER;
  *lcid = GetUserDefaultLCID();
  return S_OK;
}

HRESULT STDMETHODCALLTYPE ScriptSite::GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** item,
                                                  ITypeInfo** info) {
  if (info) *info = nullptr;
  if (item) *item = nullptr;
  IUnknown* found = m_host.namedItem(name);
  if (!found) return TYPE_E_ELEMENTNOTFOUND;
  if (mask & SCRIPTINFO_IUNKNOWN) {
    if (!item) return E_POINTER;
    *item = found;
    found->AddRef();
  }
  return S_OK;
}

HRESULT STDMETHODCALLTYPE ScriptSite::GetDocVersionString(BSTR* version) {
  if (version) *version = nullptr;
  return E_NOTIMPL;
}

HRESULT STDMETHODCALLTYPE ScriptSite::OnScriptTerminate(const VARIANT*, const EXCEPINFO*) {
  return S_OK;
}

HRESULT STDMETHODCALLTYPE ScriptSite::OnStateChange(SCRIPTSTATE) { return S_OK; }

HRESULT STDMETHODCALLTYPE ScriptSite::OnScriptError(IActiveScriptError* error) {
  m_host.scriptError(error);
  return S_OK;
}

HRESULT STDMETHODCALLTYPE ScriptSite::OnEnterScript() { return S_OK; }

HRESULT STDMETHODCALLTYPE ScriptSite::OnLeaveScript() { return S_OK; }

}  // namespace tnw::testing
