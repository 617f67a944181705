#pragma once

// Windows
#include <activscp.h>
#include <windows.h>

namespace tnw::testing {

class ScriptHost;

// The script engine's site: hands out the host's named items and passes errors to the host.
class ScriptSite : public IActiveScriptSite {
 public:
  // A site of host, which outlives it.
  explicit ScriptSite(ScriptHost& host) : m_host(host) {}
  virtual ~ScriptSite() = default;

  // IUnknown.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;

  // IActiveScriptSite: the user's locale.
  HRESULT STDMETHODCALLTYPE GetLCID(LCID* lcid) override;
  // IActiveScriptSite: the objects named WScript and Host.
  HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** item,
                                        ITypeInfo** info) override;
  // IActiveScriptSite: no document version.
  HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR* version) override;
  // IActiveScriptSite: nothing to do.
  HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT* result,
                                              const EXCEPINFO* exception) override;
  HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE state) override;
  // IActiveScriptSite: prints the error through the host.
  HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* error) override;
  HRESULT STDMETHODCALLTYPE OnEnterScript() override;
  HRESULT STDMETHODCALLTYPE OnLeaveScript() override;

 private:
  LONG m_refs = 1;
  ScriptHost& m_host;
};

}  // namespace tnw::testing
