#include "event_binding.h"

// Std
#include <vector>

namespace tnw::testing {

namespace {

// The default source interface of the object's class: its IID and its type description.
HRESULT findEventInterface(IDispatch* object, IID& iid, ITypeInfo** info) {
  Microsoft::WRL::ComPtr<IProvideClassInfo> classInfo;
  HRESULT hr = object->QueryInterface(IID_IProvideClassInfo,
                                      reinterpret_cast<void**>(classInfo.GetAddressOf()));
  if (FAILED(hr)) return hr;
  Microsoft::WRL::ComPtr<ITypeInfo> coclass;
  hr = classInfo->GetClassInfo(coclass.GetAddressOf());
  if (FAILED(hr)) return hr;
  TYPEATTR* attr = nullptr;
  hr = coclass->GetTypeAttr(&attr);
  if (FAILED(hr)) return hr;
  const WORD count = attr->cImplTypes;
  coclass->ReleaseTypeAttr(attr);
  for (UINT i = 0; i < count; ++i) {
    INT flags = 0;
    if (FAILED(coclass->GetImplTypeFlags(i, &flags))) continue;
    if ((flags & (IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE)) !=
        (IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE))
      continue;
    HREFTYPE ref = 0;
    if (FAILED(coclass->GetRefTypeOfImplType(i, &ref))) continue;
    hr = coclass->GetRefTypeInfo(ref, info);
    if (FAILED(hr)) return hr;
    TYPEATTR* eventAttr = nullptr;
    hr = (*info)->GetTypeAttr(&eventAttr);
    if (FAILED(hr)) return hr;
    iid = eventAttr->guid;
    (*info)->ReleaseTypeAttr(eventAttr);
    return S_OK;
  }
  return E_NOINTERFACE;
}

}  // namespace

HRESULT EventBinding::bind(IDispatch* object, IDispatch* script, const std::wstring& prefix,
                           EventBinding** binding) {
  *binding = nullptr;
  Microsoft::WRL::ComPtr<EventBinding> self;
  self.Attach(new EventBinding());
  self->m_prefix = prefix;
  self->m_script = script;
  HRESULT hr = object->QueryInterface(IID_IUnknown,
                                      reinterpret_cast<void**>(self->m_identity.GetAddressOf()));
  if (FAILED(hr)) return hr;
  hr = findEventInterface(object, self->m_eventIid, self->m_eventInfo.GetAddressOf());
  if (FAILED(hr)) return hr;
  Microsoft::WRL::ComPtr<IConnectionPointContainer> container;
  hr = object->QueryInterface(IID_IConnectionPointContainer,
                              reinterpret_cast<void**>(container.GetAddressOf()));
  if (FAILED(hr)) return hr;
  hr = container->FindConnectionPoint(self->m_eventIid, self->m_point.GetAddressOf());
  if (FAILED(hr)) return hr;
  hr = self->m_point->Advise(static_cast<IDispatch*>(self.Get()), &self->m_cookie);
  if (FAILED(hr)) return hr;
  *binding = self.Detach();
  return S_OK;
}

void EventBinding::disconnect() {
  if (m_point && m_cookie) m_point->Unadvise(m_cookie);
  m_cookie = 0;
  m_point.Reset();
  m_identity.Reset();
}

bool EventBinding::bindsTo(IUnknown* object) const {
  Microsoft::WRL::ComPtr<IUnknown> identity;
  if (!object || FAILED(object->QueryInterface(IID_IUnknown,
                                               reinterpret_cast<void**>(identity.GetAddressOf()))))
    return false;
  return identity.Get() == m_identity.Get();
}

HRESULT STDMETHODCALLTYPE EventBinding::QueryInterface(REFIID iid, void** object) {
  if (!object) return E_POINTER;
  if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) ||
      IsEqualIID(iid, m_eventIid)) {
    *object = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
  }
  *object = nullptr;
  return E_NOINTERFACE;
}

ULONG STDMETHODCALLTYPE EventBinding::AddRef() { return ULONG(InterlockedIncrement(&m_refs)); }

ULONG STDMETHODCALLTYPE EventBinding::Release() {
  const LONG refs = InterlockedDecrement(&m_refs);
  if (refs == 0) delete this;
  return ULONG(refs);
}

HRESULT STDMETHODCALLTYPE EventBinding::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT STDMETHODCALLTYPE EventBinding::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info) *info = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT STDMETHODCALLTYPE EventBinding::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) {
  return DISP_E_UNKNOWNNAME;
}

HRESULT STDMETHODCALLTYPE EventBinding::Invoke(DISPID dispId, REFIID, LCID lcid, WORD,
                                               DISPPARAMS* params, VARIANT*, EXCEPINFO*, UINT*) {
  BSTR name = nullptr;
  UINT names = 0;
  if (FAILED(m_eventInfo->GetNames(dispId, &name, 1, &names)) || names == 0) return S_OK;
  std::wstring sub = m_prefix + std::wstring(name, SysStringLen(name));
  SysFreeString(name);
  LPOLESTR subName = sub.data();
  DISPID subId = DISPID_UNKNOWN;
  // An event the script has no sub for is dropped, as Windows Script Host does.
  if (FAILED(m_script->GetIDsOfNames(IID_NULL, &subName, 1, lcid, &subId))) return S_OK;

  // Wine's VBScript copies a VT_BYREF | VT_ARRAY | VT_VARIANT argument: a sub's changes are lost.
  // Only VT_BYREF | VT_VARIANT stays a reference there, so each array passed by reference reaches
  // the sub as a reference to a Variant holding the caller's very array. The array is locked
  // meanwhile, so a sub cannot destroy it under the caller.
  const UINT count = params ? params->cArgs : 0;
  std::vector<VARIANT> holders(count);
  std::vector<VARIANT> args(count);
  for (UINT i = 0; i < count; ++i) {
    const VARIANT& arg = params->rgvarg[i];
    args[i] = arg;
    if (V_VT(&arg) != (VT_BYREF | VT_ARRAY | VT_VARIANT) || !*V_ARRAYREF(&arg)) continue;
    VariantInit(&holders[i]);
    V_VT(&holders[i]) = VT_ARRAY | VT_VARIANT;
    V_ARRAY(&holders[i]) = *V_ARRAYREF(&arg);
    SafeArrayLock(V_ARRAY(&holders[i]));
    VariantInit(&args[i]);
    V_VT(&args[i]) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&args[i]) = &holders[i];
  }
  DISPPARAMS forwarded{args.data(), nullptr, count, 0};
  EXCEPINFO exception{};
  UINT argError = 0;
  m_script->Invoke(subId, IID_NULL, lcid, DISPATCH_METHOD, &forwarded, nullptr, &exception,
                   &argError);
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrHelpFile);

  for (UINT i = 0; i < count; ++i) {
    if (V_VT(&args[i]) != (VT_BYREF | VT_VARIANT) || V_VARIANTREF(&args[i]) != &holders[i])
      continue;
    SAFEARRAY* original = *V_ARRAYREF(&params->rgvarg[i]);
    SafeArrayUnlock(original);
    VARIANT& holder = holders[i];
    if (V_VT(&holder) == (VT_ARRAY | VT_VARIANT) && V_ARRAY(&holder) == original) continue;
    // The sub assigned something else to the argument: a new array of Variants replaces the
    // caller's, anything else is dropped.
    if (V_VT(&holder) == (VT_ARRAY | VT_VARIANT)) {
      SafeArrayDestroy(original);
      *V_ARRAYREF(&params->rgvarg[i]) = V_ARRAY(&holder);
    } else {
      VariantClear(&holder);
    }
  }
  return S_OK;
}

}  // namespace tnw::testing
