#pragma once

// Windows
#include <oaidl.h>
#include <windows.h>

// Std
#include <string>
#include <vector>

namespace tnw::testing {

// A small late-bound automation object without a type library: a table of method names, looked
// up case-insensitively as VBScript does, and one virtual call that runs the method with its
// arguments in the order the script wrote them.
class DispatchObject : public IDispatch {
 public:
  // An object offering methods; method i gets DISPID i + 1.
  explicit DispatchObject(std::vector<std::wstring> methods);
  virtual ~DispatchObject() = default;
  DispatchObject(const DispatchObject&) = delete;
  DispatchObject& operator=(const DispatchObject&) = delete;

  // IUnknown.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IDispatch: no type information.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID lcid, ITypeInfo** info) override;
  // IDispatch: the DISPIDs of the method names.
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID lcid,
                                          DISPID* dispIds) override;
  // IDispatch: runs call() with the arguments in script order.
  HRESULT STDMETHODCALLTYPE Invoke(DISPID dispId, REFIID iid, LCID lcid, WORD flags,
                                   DISPPARAMS* params, VARIANT* result, EXCEPINFO* exception,
                                   UINT* argError) override;

 protected:
  // Runs method index (0-based) with args (script order, by reference where the script passed
  // a variable); result may be null.
  virtual HRESULT call(int index, const std::vector<VARIANT*>& args, VARIANT* result) = 0;

 private:
  LONG m_refs = 1;
  std::vector<std::wstring> m_methods;
};

// The text of a Variant (following references), as Echo prints it.
std::wstring variantText(const VARIANT* value);

}  // namespace tnw::testing
