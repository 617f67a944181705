#pragma once

// Windows
#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

// Std
#include <string>

namespace tnw::testing {

// Binds an object's default event interface to the script's subs named prefix + event name, as
// Windows Script Host's CreateObject(progID, prefix) does: it finds the event interface through
// IProvideClassInfo(2), connects itself as its sink and forwards each event to the script.
// Arguments passed by reference reach the sub by reference, so a sub that changes them changes
// the caller's values.
class EventBinding final : public IDispatch {
 public:
  // Connects to object's default source; script is the script's global dispatch.
  static HRESULT bind(IDispatch* object, IDispatch* script, const std::wstring& prefix,
                      EventBinding** binding);

  // Disconnects from the object.
  void disconnect();
  // Whether this binding belongs to object (same identity).
  bool bindsTo(IUnknown* object) const;

  // IUnknown: answers for IDispatch and for the event interface.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IDispatch.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID lcid, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID lcid,
                                          DISPID* dispIds) override;
  // IDispatch: forwards event dispId to the script's sub prefix + its name.
  HRESULT STDMETHODCALLTYPE Invoke(DISPID dispId, REFIID iid, LCID lcid, WORD flags,
                                   DISPPARAMS* params, VARIANT* result, EXCEPINFO* exception,
                                   UINT* argError) override;

 private:
  EventBinding() = default;
  ~EventBinding() = default;

  LONG m_refs = 1;
  IID m_eventIid{};
  std::wstring m_prefix;
  Microsoft::WRL::ComPtr<IUnknown> m_identity;
  Microsoft::WRL::ComPtr<ITypeInfo> m_eventInfo;
  Microsoft::WRL::ComPtr<IDispatch> m_script;
  Microsoft::WRL::ComPtr<IConnectionPoint> m_point;
  DWORD m_cookie = 0;
};

}  // namespace tnw::testing
