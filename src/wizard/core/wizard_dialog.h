#pragma once

#include "common/core/ui_services.h"

// Std
#include <functional>
#include <string>

namespace tnw {

// What the component asks of each of its three dialogs, whatever draws them (Qt widgets, a
// scripted dialog in a headless host, a fake in tests). A dialog never hides or destroys itself:
// its close box asks to end the wizard as Cancel does, and the component decides the rest.
class WizardDialog {
 public:
  virtual ~WizardDialog() = default;

  // Shows the dialog modeless and without an owner.
  virtual void showModeless() = 0;
  // Shows the dialog modally: the other windows are blocked, but the call returns at once.
  virtual void showModal() = 0;
  // Makes the dialog visible or invisible; neither loads nor unloads it.
  virtual void setDialogVisible(bool visible) = 0;
  // Whether the dialog is visible now.
  virtual bool dialogVisible() const = 0;
  // The dialog's outer size in the screen's units.
  virtual ScreenSize dialogSize() const = 0;
  // Moves the dialog's outer top-left corner to (left, top) in the screen's units.
  virtual void moveDialog(int left, int top) = 0;

  // What ends the wizard when one of the dialog's event handlers fails with an exception: it is
  // given the message to show. Dialogs whose handlers cannot fail keep the default and ignore it.
  using FailureHandler = std::function<void(const std::string& message)>;
  // Sets (or, with null, removes) the handler of failed event handlers.
  virtual void setFailureHandler(FailureHandler handler) { static_cast<void>(handler); }
};

}  // namespace tnw
