#pragma once

#include "component/windows/com_event_relay.h"
#include "component/windows/event_connection_point.h"
#include "component/windows/message_window.h"
#include "component/windows/tnwizard_mavt_h.h"

// Windows
#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

// Std
#include <memory>

namespace tnw {

class DialogBackend;
class WizardComponent;

// The creatable class TNW_MAVT as an automation object: the dual interface _TNW_MAVT dispatched
// through the type library, the events of __TNW_MAVT through a connection point, and the class
// information script hosts use to bind events by name. Each object wraps its own
// WizardComponent. No C++ exception leaves a method; failures return an HRESULT with an error
// description that Invoke hands to script hosts as EXCEPINFO.
class ComTnwMavt final : public _TNW_MAVT,
                         public IConnectionPointContainer,
                         public IProvideClassInfo2,
                         public ISupportErrorInfo {
 public:
  // Makes a new object and asks it for iid.
  static HRESULT create(REFIID iid, void** object) noexcept;

  // IUnknown.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IDispatch: one type description, that of _TNW_MAVT.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID lcid, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID lcid,
                                          DISPID* dispIds) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID dispId, REFIID iid, LCID lcid, WORD flags,
                                   DISPPARAMS* params, VARIANT* result, EXCEPINFO* exception,
                                   UINT* argError) override;

  // _TNW_MAVT: shows the method-selection dialog.
  HRESULT STDMETHODCALLTYPE ShowTNWizard() override;
  // _TNW_MAVT: stores the host's values and reads the model file.
  HRESULT STDMETHODCALLTYPE GetCurFileData(VARIANT* NorixDir, short FileIndex,
                                           BSTR PathAndFileName) override;
  // _TNW_MAVT: hides and releases every dialog.
  HRESULT STDMETHODCALLTYPE UnloadTNWizard() override;

  // IConnectionPointContainer: the one connection point, that of __TNW_MAVT.
  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

  // IProvideClassInfo: the coclass TNW_MAVT.
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;
  // IProvideClassInfo2: the default source interface's IID.
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* guid) override;

  // ISupportErrorInfo: _TNW_MAVT's methods set error information.
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override;

 private:
  // Counts calls into the component on the stack while this object is in use.
  class BusyScope;

  ComTnwMavt();
  ~ComTnwMavt();
  HRESULT init() noexcept;
  void destroy() noexcept;
  template <class Call>
  HRESULT guarded(Call&& call) noexcept;
  static HRESULT fail(HRESULT hr, const wchar_t* description) noexcept;
  static HRESULT failUtf8(HRESULT hr, const char* description) noexcept;

  LONG m_refs = 1;
  ObjectLife m_life;
  MessageWindow m_window;
  EventConnectionPoint m_point;
  ComEventRelay m_relay;
  Microsoft::WRL::ComPtr<ITypeInfo> m_typeInfo;
  std::unique_ptr<DialogBackend> m_backend;
  std::unique_ptr<WizardComponent> m_component;
};

}  // namespace tnw
