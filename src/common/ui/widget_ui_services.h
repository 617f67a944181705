#pragma once

#include "common/core/ui_services.h"

// Std
#include <functional>
#include <string>

namespace tnw {

// The UI services on Qt: message boxes, the beep, the busy pointer, help and the screen size.
class WidgetUiServices : public UiServices {
 public:
  // Opens a help file at a context number; hosts install one for their own help viewer.
  using HelpHandler = std::function<void(const std::string& helpFile, int context)>;

  WidgetUiServices() = default;
  // Restores the default pointer if it is still busy.
  ~WidgetUiServices() override;
  WidgetUiServices(const WidgetUiServices&) = delete;
  WidgetUiServices& operator=(const WidgetUiServices&) = delete;

  // Shows a modal QMessageBox with the icon, title and text and one OK button.
  void messageBox(const std::string& text, MessageIcon icon, const std::string& title) override;
  // Sounds the desktop's beep.
  void beep() override;
  // Shows the wait cursor over the whole application, or restores the previous one.
  void setBusy(bool busy) override;
  // Calls the installed help handler; without one, opens the file with WinHelp on Windows and
  // elsewhere shows the contents of the component's help pages.
  void showHelp(const std::string& helpFile, int context) override;
  // Calls the installed help handler; without one, opens the file with WinHelp on Windows and
  // elsewhere shows the dialog's help page at the step's anchor in the help window.
  void showHelpTopic(const std::string& helpFile, int context, const HelpTopic& topic) override;
  // The size of the primary screen in device-independent pixels.
  ScreenSize screenSize() const override;
  // Asks with a QMessageBox that has Yes and No buttons.
  bool askYesNo(const std::string& text, const std::string& title) override;
  // Asks with the platform's file dialog for an existing file.
  std::string chooseOpenFile(const std::string& caption, const std::string& filter) override;
  // Asks with the platform's file dialog for a file to write; confirms overwriting.
  std::string chooseSaveFile(const std::string& caption, const std::string& filter,
                             const std::string& suggestedName) override;

  // Installs the handler for help requests; an empty handler restores the default.
  void setHelpHandler(HelpHandler handler) { m_helpHandler = std::move(handler); }
  // The text shown on Windows when WinHelp cannot open the help file at the context.
  static std::string defaultHelpText(const std::string& helpFile, int context);

 private:
  HelpHandler m_helpHandler;
  bool m_busy = false;
};

}  // namespace tnw
