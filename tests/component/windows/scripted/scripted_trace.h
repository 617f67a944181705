#pragma once

// Std
#include <string>

namespace tnw {

// The log of the scripted test dialogs: what each dialog was asked to do and what it did, one
// line each, appended to the file named by TNW_SCRIPTED_TRACE (nothing is written without it).
// The conformance tests compare it with what the host saw through the events.
class ScriptedTrace {
 public:
  // A trace writing to the file TNW_SCRIPTED_TRACE names, if any.
  ScriptedTrace();

  // Appends one line; never throws, as dialogs trace from their destructors.
  void write(const std::string& line) const noexcept;

 private:
  std::wstring m_path;
};

}  // namespace tnw
