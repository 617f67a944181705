#include "dispatch_object.h"

// Std
#include <utility>

namespace tnw::testing {

DispatchObject::DispatchObject(std::vector<std::wstring> methods) : m_methods(std::move(methods)) {}

HRESULT STDMETHODCALLTYPE DispatchObject::QueryInterface(REFIID iid, void** object) {
  if (!object) return E_POINTER;
  if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch)) {
    *object = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

ULONG STDMETHODCALLTYPE DispatchObject::AddRef() { return ULONG(InterlockedIncrement(&m_refs)); }

ULONG STDMETHODCALLTYPE DispatchObject::Release() {
  const LONG refs = InterlockedDecrement(&m_refs);
  if (refs == 0) delete this;
  return ULONG(refs);
}

HRESULT STDMETHODCALLTYPE DispatchObject::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT STDMETHODCALLTYPE DispatchObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info) *info = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT STDMETHODCALLTYPE DispatchObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                                        DISPID* dispIds) {
  if (!names || !dispIds || count == 0) return E_INVALIDARG;
  HRESULT hr = S_OK;
  for (UINT i = 0; i < count; ++i) dispIds[i] = DISPID_UNKNOWN;
  for (std::size_t m = 0; m < m_methods.size(); ++m) {
    if (_wcsicmp(names[0], m_methods[m].c_str()) == 0) dispIds[0] = DISPID(m + 1);
  }
  if (dispIds[0] == DISPID_UNKNOWN || count > 1) hr = DISP_E_UNKNOWNNAME;
  return hr;
}

HRESULT STDMETHODCALLTYPE DispatchObject::Invoke(DISPID dispId, REFIID, LCID, WORD,
                                                 DISPPARAMS* params, VARIANT* result, EXCEPINFO*,
                                                 UINT*) {
  if (dispId < 1 || std::size_t(dispId) > m_methods.size()) return DISP_E_MEMBERNOTFOUND;
  std::vector<VARIANT*> args;
  if (params) {
    for (UINT i = params->cArgs; i > 0; --i) args.push_back(&params->rgvarg[i - 1]);
  }
  if (result) VariantInit(result);
  return call(int(dispId - 1), args, result);
}

std::wstring variantText(const VARIANT* value) {
  VARIANT plain;
  VariantInit(&plain);
  if (FAILED(VariantCopyInd(&plain, const_cast<VARIANT*>(value)))) return L"?";
  std::wstring text;
  if (V_VT(&plain) == VT_NULL) {
    text = L"Null";
  } else if (V_VT(&plain) == VT_EMPTY) {
    text = L"";
  } else {
    VARIANT converted;
    VariantInit(&converted);
    if (SUCCEEDED(VariantChangeType(&converted, &plain, VARIANT_ALPHABOOL, VT_BSTR))) {
      text.assign(V_BSTR(&converted), SysStringLen(V_BSTR(&converted)));
      VariantClear(&converted);
    } else {
      text = L"?";
    }
  }
  VariantClear(&plain);
  return text;
}

}  // namespace tnw::testing
