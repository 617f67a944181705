#include "component/windows/scripted_ui_services.h"

namespace tnw {

namespace {

const char* iconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Information:
      return "information";
    case MessageIcon::Exclamation:
      return "exclamation";
    case MessageIcon::Critical:
      return "critical";
    case MessageIcon::Question:
      break;
  }
  return "question";
}

}  // namespace

void ScriptedUiServices::messageBox(const std::string& text, MessageIcon icon,
                                    const std::string& title) {
  m_trace.write(std::string("message ") + iconName(icon) + " " + title + ": " + text);
}

void ScriptedUiServices::beep() { m_trace.write("beep"); }

void ScriptedUiServices::setBusy(bool) {}

void ScriptedUiServices::showHelp(const std::string& helpFile, int context) {
  m_trace.write("help " + helpFile + " " + std::to_string(context));
}

}  // namespace tnw
