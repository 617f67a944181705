#pragma once

// Std
#include <string>

namespace tnw {

// The icon a message box shows.
enum class MessageIcon { Information, Exclamation, Critical, Question };

// A screen or dialog size in the screen's units.
struct ScreenSize {
  int width = 0;
  int height = 0;
};

// Where in the wizard a help request comes from: the dialog's help page and the step's anchor on
// it, for help viewers that show one page per dialog.
struct HelpTopic {
  // The dialog's page: "selmethod", "direct_a" or "tradeoffs_a".
  std::string page;
  // The step's anchor on that page, e.g. "ordering".
  std::string anchor;
};

// What the wizard asks of its user-interface layer; the Qt layer and tests implement it.
class UiServices {
 public:
  virtual ~UiServices() = default;

  // Shows a modal message box with one OK button.
  virtual void messageBox(const std::string& text, MessageIcon icon, const std::string& title) = 0;
  // Sounds the system beep.
  virtual void beep() = 0;
  // Shows the busy pointer (true) or the default pointer (false).
  virtual void setBusy(bool busy) = 0;
  // Opens the help file at a context number.
  virtual void showHelp(const std::string& helpFile, int context) = 0;
  // Opens help for a step of a dialog: the help file at a context number, or a viewer that
  // knows the dialog's page and the step's anchor. By default the same as showHelp.
  virtual void showHelpTopic(const std::string& helpFile, int context, const HelpTopic& topic) {
    static_cast<void>(topic);
    showHelp(helpFile, context);
  }
  // The size of the screen dialogs are centred on.
  virtual ScreenSize screenSize() const = 0;
  // Asks a question with Yes and No buttons; true for Yes. Where nobody can answer, Yes.
  virtual bool askYesNo(const std::string& text, const std::string& title) {
    static_cast<void>(text);
    static_cast<void>(title);
    return true;
  }
  // Asks for a file to read, e.g. with the filter "JSON files (*.json)"; empty when cancelled
  // or where nobody can choose.
  virtual std::string chooseOpenFile(const std::string& caption, const std::string& filter) {
    static_cast<void>(caption);
    static_cast<void>(filter);
    return {};
  }
  // Asks for a file to write, offering a suggested name; empty when cancelled or where nobody
  // can choose.
  virtual std::string chooseSaveFile(const std::string& caption, const std::string& filter,
                                     const std::string& suggestedName) {
    static_cast<void>(caption);
    static_cast<void>(filter);
    static_cast<void>(suggestedName);
    return {};
  }
};

}  // namespace tnw
