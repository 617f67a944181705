#pragma once

#include "dispatch_object.h"

namespace tnw::testing {

class ScriptHost;

// The script's Host object, the test's own helpers: Argument(i) (the script's command-line
// arguments) and DllCanUnloadNow(dllName) (the HRESULT of that DLL's entry point: 0 for S_OK,
// 1 for S_FALSE, -1 when the DLL is not loaded).
class HostObject : public DispatchObject {
 public:
  // The Host object of host, which outlives it.
  explicit HostObject(ScriptHost& host);

 protected:
  // Runs Argument or DllCanUnloadNow.
  HRESULT call(int index, const std::vector<VARIANT*>& args, VARIANT* result) override;

 private:
  ScriptHost& m_host;
};

}  // namespace tnw::testing
