#pragma once

#include "common/core/ui_services.h"
#include "scripted/scripted_trace.h"

namespace tnw {

// The UI services of the scripted test dialogs: nothing is shown; every message box, beep and
// help call goes to the trace, and the screen is 1024 x 768.
class ScriptedUiServices : public UiServices {
 public:
  // Services writing to trace, which outlives them.
  explicit ScriptedUiServices(const ScriptedTrace& trace) : m_trace(trace) {}

  // Traces "message <icon> <title>: <text>".
  void messageBox(const std::string& text, MessageIcon icon, const std::string& title) override;
  // Traces "beep".
  void beep() override;
  // Nothing to show; not traced, as it says nothing about the result.
  void setBusy(bool busy) override;
  // Makes the help call of the Windows builds with a tracing call in WinHelpA's place:
  // "WinHelpA <file> HELP_CONTEXT <context>".
  void showHelp(const std::string& helpFile, int context) override;
  // A screen of 1024 x 768.
  ScreenSize screenSize() const override { return {1024, 768}; }

 private:
  const ScriptedTrace& m_trace;
};

}  // namespace tnw
