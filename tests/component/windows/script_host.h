#pragma once

#include "event_binding.h"

// Windows
#include <activscp.h>
#include <windows.h>
#include <wrl/client.h>

// Std
#include <string>
#include <vector>

namespace tnw::testing {

// A minimal Windows Script Host for the conformance tests: it runs a VBScript file in the
// system's VBScript engine with the named items WScript (Echo, CreateObject with event binding,
// DisconnectObject, Sleep) and Host (the test's own helpers), and prints script errors.
class ScriptHost {
 public:
  // A host whose Host.Argument(i) returns arguments[i].
  explicit ScriptHost(std::vector<std::wstring> arguments);
  // Disconnects every event binding and closes the engine.
  ~ScriptHost();
  ScriptHost(const ScriptHost&) = delete;
  ScriptHost& operator=(const ScriptHost&) = delete;

  // Runs the script text; false if the engine could not be started or the script failed.
  bool run(const std::wstring& script);

  // WScript.Echo: one line on standard output (UTF-8).
  void echo(const std::wstring& line);
  // WScript.CreateObject: a new object of progId; with a prefix its events go to the subs
  // prefix + event name.
  HRESULT createObject(const std::wstring& progId, const std::wstring& prefix, VARIANT* result);
  // WScript.DisconnectObject: drops object's event binding and the host's reference.
  void disconnectObject(IUnknown* object);
  // WScript.Sleep: runs the message loop for the given milliseconds.
  void sleep(DWORD milliseconds);
  // Host.Argument(i).
  std::wstring argument(std::size_t index) const;

  // The named items for the script site.
  IUnknown* namedItem(const std::wstring& name) const;
  // Reports a script error on standard output.
  void scriptError(IActiveScriptError* error);

 private:
  std::vector<std::wstring> m_arguments;
  Microsoft::WRL::ComPtr<IActiveScript> m_engine;
  Microsoft::WRL::ComPtr<IDispatch> m_wscript;
  Microsoft::WRL::ComPtr<IDispatch> m_host;
  std::vector<Microsoft::WRL::ComPtr<EventBinding>> m_bindings;
  bool m_failed = false;
};

}  // namespace tnw::testing
