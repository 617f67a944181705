#pragma once

#include "wizard/core/wizard_dialog.h"

// Std
#include <memory>
#include <string>

namespace tnw {

class MessageWindow;
class ScriptedTrace;

// A dialog of the scripted test build: it draws nothing, traces what the component does with it,
// and acts on its scenario from the message loop whenever it has been made visible, as a user
// would once the dialog appeared.
class ScriptedDialog : public WizardDialog {
 public:
  // A dialog called name (for the trace) of the given size, acting from window.
  ScriptedDialog(std::string name, ScreenSize size, MessageWindow& window,
                 const ScriptedTrace& trace);
  // Traces "<name> destroyed".
  ~ScriptedDialog() override;
  ScriptedDialog(const ScriptedDialog&) = delete;
  ScriptedDialog& operator=(const ScriptedDialog&) = delete;

  // Traces the show and acts from the message loop.
  void showModeless() override;
  // Traces the modal show and acts from the message loop.
  void showModal() override;
  // Traces a change of visibility; becoming visible acts from the message loop.
  void setDialogVisible(bool visible) override;
  // Whether the dialog is visible now.
  bool dialogVisible() const override { return m_visible; }
  // The size given at construction.
  ScreenSize dialogSize() const override { return m_size; }
  // Traces "<name> moved to left,top".
  void moveDialog(int left, int top) override;

  // The dialog's name with its creation number, e.g. "frmDirectA#2".
  const std::string& name() const { return m_name; }

 protected:
  // Takes the next step of the scenario; runs from the message loop while the dialog is visible.
  virtual void act() = 0;
  // Asks for act() to run again from the message loop, as long as the dialog stays visible.
  void actLater();
  // Appends a line to the trace.
  void trace(const std::string& line) const;

 private:
  void becameVisible();

  std::string m_name;
  ScreenSize m_size;
  MessageWindow& m_window;
  const ScriptedTrace& m_trace;
  bool m_visible = false;
  bool m_actPending = false;
  // Lets a queued act() find out that the dialog was destroyed meanwhile.
  std::shared_ptr<ScriptedDialog*> m_self;
};

}  // namespace tnw
