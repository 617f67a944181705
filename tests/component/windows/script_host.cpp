#include "script_host.h"

#include "host_object.h"
#include "script_site.h"
#include "wscript_object.h"

// Std
#include <cstdio>
#include <utility>

namespace tnw::testing {

namespace {

std::string utf8(const std::wstring& text) {
  if (text.empty()) return {};
  const int size =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), nullptr, 0, nullptr, nullptr);
  std::string result(std::size_t(size > 0 ? size : 0), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), result.data(), size, nullptr,
                      nullptr);
  return result;
}

}  // namespace

ScriptHost::ScriptHost(std::vector<std::wstring> arguments) : m_arguments(std::move(arguments)) {
  m_wscript.Attach(new WScriptObject(*this));
  m_host.Attach(new HostObject(*this));
}

ScriptHost::~ScriptHost() {
  for (auto& binding : m_bindings) binding->disconnect();
  m_bindings.clear();
  if (m_engine) m_engine->Close();
}

bool ScriptHost::run(const std::wstring& script) {
  CLSID clsid;
  if (FAILED(CLSIDFromProgID(L"VBScript", &clsid))) return false;
  if (FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IActiveScript,
                              reinterpret_cast<void**>(m_engine.GetAddressOf()))))
    return false;
  Microsoft::WRL::ComPtr<IActiveScriptParse> parse;
  if (FAILED(m_engine.As(&parse))) return false;
  Microsoft::WRL::ComPtr<IActiveScriptSite> site;
  site.Attach(new ScriptSite(*this));
  if (FAILED(m_engine->SetScriptSite(site.Get())) || FAILED(parse->InitNew())) return false;
  m_engine->AddNamedItem(L"WScript", SCRIPTITEM_ISVISIBLE);
  m_engine->AddNamedItem(L"Host", SCRIPTITEM_ISVISIBLE);
  EXCEPINFO exception{};
  const HRESULT hr = parse->ParseScriptText(script.c_str(), nullptr, nullptr, nullptr, 0, 1, 0,
                                            nullptr, &exception);
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrHelpFile);
  if (FAILED(hr)) m_failed = true;
  if (SUCCEEDED(hr)) m_engine->SetScriptState(SCRIPTSTATE_CONNECTED);
  for (auto& binding : m_bindings) binding->disconnect();
  m_bindings.clear();
  m_engine->Close();
  m_engine.Reset();
  return !m_failed;
}

void ScriptHost::echo(const std::wstring& line) {
  const std::string text = utf8(line) + "\n";
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fflush(stdout);
}

HRESULT ScriptHost::createObject(const std::wstring& progId, const std::wstring& prefix,
                                 VARIANT* result) {
  CLSID clsid;
  HRESULT hr = CLSIDFromProgID(progId.c_str(), &clsid);
  if (FAILED(hr)) return hr;
  Microsoft::WRL::ComPtr<IDispatch> object;
  hr = CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                        reinterpret_cast<void**>(object.GetAddressOf()));
  if (FAILED(hr)) return hr;
  if (!prefix.empty()) {
    Microsoft::WRL::ComPtr<IDispatch> script;
    hr = m_engine->GetScriptDispatch(nullptr, script.GetAddressOf());
    if (FAILED(hr)) return hr;
    Microsoft::WRL::ComPtr<EventBinding> binding;
    hr = EventBinding::bind(object.Get(), script.Get(), prefix, binding.GetAddressOf());
    if (FAILED(hr)) return hr;
    m_bindings.push_back(binding);
  }
  V_VT(result) = VT_DISPATCH;
  V_DISPATCH(result) = object.Detach();
  return S_OK;
}

void ScriptHost::disconnectObject(IUnknown* object) {
  for (auto it = m_bindings.begin(); it != m_bindings.end();) {
    if ((*it)->bindsTo(object)) {
      Microsoft::WRL::ComPtr<EventBinding> binding = std::move(*it);
      it = m_bindings.erase(it);
      binding->disconnect();
    } else {
      ++it;
    }
  }
}

void ScriptHost::sleep(DWORD milliseconds) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  for (;;) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    const ULONGLONG now = GetTickCount64();
    if (now >= end) return;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, DWORD(end - now), QS_ALLINPUT);
  }
}

std::wstring ScriptHost::argument(std::size_t index) const {
  return index < m_arguments.size() ? m_arguments[index] : std::wstring();
}

IUnknown* ScriptHost::namedItem(const std::wstring& name) const {
  if (_wcsicmp(name.c_str(), L"WScript") == 0) return m_wscript.Get();
  if (_wcsicmp(name.c_str(), L"Host") == 0) return m_host.Get();
  return nullptr;
}

void ScriptHost::scriptError(IActiveScriptError* error) {
  m_failed = true;
  EXCEPINFO exception{};
  error->GetExceptionInfo(&exception);
  DWORD context = 0;
  ULONG line = 0;
  LONG column = 0;
  error->GetSourcePosition(&context, &line, &column);
  std::wstring description =
      exception.bstrDescription
          ? std::wstring(exception.bstrDescription, SysStringLen(exception.bstrDescription))
          : L"";
  wchar_t code[16];
  swprintf(code, 16, L"%08lX", static_cast<unsigned long>(exception.scode));
  echo(L"script error at line " + std::to_wstring(line + 1) + L": " + description + L" (" + code +
       L")");
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrHelpFile);
}

}  // namespace tnw::testing
