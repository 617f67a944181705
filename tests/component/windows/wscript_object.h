#pragma once

#include "dispatch_object.h"

namespace tnw::testing {

class ScriptHost;

// The script's WScript object: Echo, CreateObject(progID[, prefix]), DisconnectObject(object)
// and Sleep(milliseconds), as Windows Script Host offers them.
class WScriptObject : public DispatchObject {
 public:
  // The WScript object of host, which outlives it.
  explicit WScriptObject(ScriptHost& host);

 protected:
  // Runs Echo, CreateObject, DisconnectObject or Sleep.
  HRESULT call(int index, const std::vector<VARIANT*>& args, VARIANT* result) override;

 private:
  ScriptHost& m_host;
};

}  // namespace tnw::testing
