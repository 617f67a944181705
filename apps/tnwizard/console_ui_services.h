#pragma once

#include "common/core/ui_services.h"

// Std
#include <cstdio>

namespace tnw {

// UI services for the headless commands: message texts go to standard error, one per line; the
// beep, the busy pointer and help do nothing.
class ConsoleUiServices : public UiServices {
 public:
  // Writes the message text to standard error.
  void messageBox(const std::string& text, MessageIcon, const std::string&) override {
    std::fprintf(stderr, "%s\n", text.c_str());
    ++m_messages;
  }
  // Nothing to sound on a console.
  void beep() override {}
  // No pointer on a console.
  void setBusy(bool) override {}
  // Names the help topic that would open.
  void showHelp(const std::string& helpFile, int context) override {
    std::fprintf(stderr, "help: %s, topic %d\n", helpFile.c_str(), context);
  }
  // A common screen size, for centring computations.
  ScreenSize screenSize() const override { return {1024, 768}; }

  // How many messages were written.
  int messageCount() const { return m_messages; }

 private:
  int m_messages = 0;
};

}  // namespace tnw
