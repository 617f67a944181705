#include "component/windows/com_tnw_mavt.h"

#include "component/windows/automation_values.h"
#include "component/windows/com_boundary.h"
#include "component/windows/connection_point_enumerator.h"
#include "component/windows/dialog_backend.h"
#include "component/windows/server_module.h"
#include "component/windows/server_registration.h"
#include "component/core/wizard_component.h"

// Windows
#include <olectl.h>

// Std
#include <cstring>
#include <exception>
#include <new>
#include <string>

namespace tnw {

class ComTnwMavt::BusyScope {
 public:
  explicit BusyScope(ComTnwMavt& object) : m_object(object) {
    m_object.AddRef();
    ++m_object.m_life.busy;
  }
  ~BusyScope() {
    --m_object.m_life.busy;
    m_object.Release();
  }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

 private:
  ComTnwMavt& m_object;
};

HRESULT ComTnwMavt::create(REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  ComTnwMavt* created = nullptr;
  HRESULT hr = comBoundary([&created] {
    created = new ComTnwMavt();
    return S_OK;
  });
  if (FAILED(hr)) return hr;
  hr = created->init();
  if (SUCCEEDED(hr)) hr = created->QueryInterface(iid, object);
  created->Release();
  return hr;
}

ComTnwMavt::ComTnwMavt()
    : m_point(*this), m_relay(m_point, *static_cast<_TNW_MAVT*>(this), m_life) {
  ServerModule::objectCreated();
}

ComTnwMavt::~ComTnwMavt() {
  // The component releases its dialogs through the backend's factory, so it goes first.
  m_component.reset();
  m_backend.reset();
  ServerModule::objectDestroyed();
}

HRESULT ComTnwMavt::init() noexcept {
  return comBoundary([this]() -> HRESULT {
    HRESULT hr = ServerModule::typeInfo(IID__TNW_MAVT, m_typeInfo.GetAddressOf());
    if (FAILED(hr)) return hr;
    if (!m_window.valid()) return HRESULT_FROM_WIN32(GetLastError());
    m_backend = makeDialogBackend(m_window);
    if (!m_backend) return E_FAIL;
    m_component = std::make_unique<WizardComponent>(m_backend->factory(), m_backend->ui(),
                                                    m_backend->modelReader());
    m_component->setEvents(&m_relay);
    return S_OK;
  });
}

void ComTnwMavt::destroy() noexcept {
  if (m_life.busy == 0) {
    delete this;
    return;
  }
  // The host let go inside an event: the component's frames are still on the stack, so the
  // object is deleted from the message loop once they are gone. If that cannot be arranged the
  // object is kept (the DLL then stays loaded), which is safe.
  if (m_life.dying) return;
  m_life.dying = true;
  try {
    m_window.post([this] { delete this; });
  } catch (...) {
    // Making the task may allocate; without it the object stays.
  }
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::QueryInterface(REFIID iid, void** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) ||
      IsEqualIID(iid, IID__TNW_MAVT)) {
    *object = static_cast<_TNW_MAVT*>(this);
  } else if (IsEqualIID(iid, IID_IConnectionPointContainer)) {
    *object = static_cast<IConnectionPointContainer*>(this);
  } else if (IsEqualIID(iid, IID_IProvideClassInfo) || IsEqualIID(iid, IID_IProvideClassInfo2)) {
    *object = static_cast<IProvideClassInfo2*>(this);
  } else if (IsEqualIID(iid, IID_ISupportErrorInfo)) {
    *object = static_cast<ISupportErrorInfo*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG STDMETHODCALLTYPE ComTnwMavt::AddRef() { return ULONG(InterlockedIncrement(&m_refs)); }

ULONG STDMETHODCALLTYPE ComTnwMavt::Release() {
  const LONG refs = InterlockedDecrement(&m_refs);
  if (refs == 0) destroy();
  return ULONG(refs);
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
  if (!info) return E_POINTER;
  *info = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  *info = m_typeInfo.Get();
  (*info)->AddRef();
  return S_OK;
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID,
                                                    DISPID* dispIds) {
  if (!IsEqualIID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  return DispGetIDsOfNames(m_typeInfo.Get(), names, count, dispIds);
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::Invoke(DISPID dispId, REFIID iid, LCID, WORD flags,
                                             DISPPARAMS* params, VARIANT* result,
                                             EXCEPINFO* exception, UINT* argError) {
  if (!IsEqualIID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  // The type library's Invoke calls the vtable method and, when it fails, fills EXCEPINFO from
  // the error information the method set and answers DISP_E_EXCEPTION.
  SetErrorInfo(0, nullptr);
  return DispInvoke(static_cast<_TNW_MAVT*>(this), m_typeInfo.Get(), dispId, flags, params, result,
                    exception, argError);
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::ShowTNWizard() {
  return guarded([this] {
    m_component->ShowTNWizard();
    return S_OK;
  });
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::GetCurFileData(VARIANT* NorixDir, short FileIndex,
                                                     BSTR PathAndFileName) {
  return guarded([&]() -> HRESULT {
    CurFileDataArgs args;
    const wchar_t* problem = nullptr;
    const HRESULT hr = readCurFileDataArgs(NorixDir, FileIndex, PathAndFileName, args, problem);
    if (FAILED(hr)) return fail(hr, problem);
    m_component->GetCurFileData(args.NorixDir, args.FileIndex, args.PathAndFileName);
    // NorixDir is [in, out]: the text the wizard keeps goes back to the host's Variant when it
    // differs from what the host passed.
    const std::string& kept = m_component->context().NorixDir;
    if (kept == args.NorixDir) return S_OK;
    const HRESULT written = setVariantText(*NorixDir, kept);
    if (written == E_OUTOFMEMORY) return fail(written, L"Out of memory.");
    if (FAILED(written)) return fail(written, L"NorixDir cannot be changed.");
    return S_OK;
  });
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::UnloadTNWizard() {
  return guarded([this] {
    m_component->UnloadTNWizard();
    return S_OK;
  });
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::EnumConnectionPoints(IEnumConnectionPoints** points) {
  if (!points) return E_POINTER;
  *points = new (std::nothrow) ConnectionPointEnumerator(&m_point, 0);
  return *points ? S_OK : E_OUTOFMEMORY;
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::FindConnectionPoint(REFIID iid, IConnectionPoint** point) {
  if (!point) return E_POINTER;
  *point = nullptr;
  if (!IsEqualIID(iid, DIID___TNW_MAVT)) return CONNECT_E_NOCONNECTION;
  *point = &m_point;
  m_point.AddRef();
  return S_OK;
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::GetClassInfo(ITypeInfo** info) {
  return ServerModule::typeInfo(CLSID_TNW_MAVT, info);
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::GetGUID(DWORD kind, GUID* guid) {
  if (!guid) return E_POINTER;
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) {
    *guid = GUID_NULL;
    return E_INVALIDARG;
  }
  *guid = DIID___TNW_MAVT;
  return S_OK;
}

HRESULT STDMETHODCALLTYPE ComTnwMavt::InterfaceSupportsErrorInfo(REFIID iid) {
  return IsEqualIID(iid, IID__TNW_MAVT) ? S_OK : S_FALSE;
}

template <class Call>
HRESULT ComTnwMavt::guarded(Call&& call) noexcept {
  if (m_life.dying || !m_component) return fail(E_UNEXPECTED, L"The object has been released.");
  BusyScope busy(*this);
  try {
    return call();
  } catch (const std::bad_alloc&) {
    return fail(E_OUTOFMEMORY, L"Out of memory.");
  } catch (const std::exception& error) {
    return failUtf8(E_UNEXPECTED, error.what());
  } catch (...) {
    return fail(E_UNEXPECTED, L"Unexpected error.");
  }
}

HRESULT ComTnwMavt::fail(HRESULT hr, const wchar_t* description) noexcept {
  Microsoft::WRL::ComPtr<ICreateErrorInfo> create;
  if (SUCCEEDED(CreateErrorInfo(create.GetAddressOf()))) {
    create->SetGUID(IID__TNW_MAVT);
    create->SetSource(const_cast<LPOLESTR>(ServerRegistration::kProgId));
    create->SetDescription(const_cast<LPOLESTR>(description));
    Microsoft::WRL::ComPtr<IErrorInfo> info;
    if (SUCCEEDED(create.As(&info))) SetErrorInfo(0, info.Get());
  }
  return hr;
}

HRESULT ComTnwMavt::failUtf8(HRESULT hr, const char* description) noexcept {
  // Converted without the C++ library, which could throw again while memory is short.
  const int size = description ? int(std::strlen(description)) : 0;
  const int wide = size > 0 ? MultiByteToWideChar(CP_UTF8, 0, description, size, nullptr, 0) : 0;
  BSTR text = wide > 0 ? SysAllocStringLen(nullptr, UINT(wide)) : nullptr;
  if (!text) return fail(hr, L"Unexpected error.");
  MultiByteToWideChar(CP_UTF8, 0, description, size, text, wide);
  fail(hr, text);
  SysFreeString(text);
  return hr;
}

}  // namespace tnw
