#pragma once

#include "wizard/core/wizard_dialog.h"

// Qt
#include <QDialog>
#include <QPoint>
#include <QSize>

// Std
#include <exception>
#include <optional>
#include <type_traits>
#include <utility>

namespace tnw {

// The base of the wizard's Qt dialogs: a QDialog that the component can show modeless or modal
// (without a nested event loop), hide, measure and move. The close box and Escape do what the
// dialog's Cancel does; the dialog never closes itself.
class DialogWindow : public QDialog, public WizardDialog {
  Q_OBJECT

 public:
  // A top-level dialog without an owner, as the component shows its dialogs.
  explicit DialogWindow(QWidget* parent = nullptr);

  // Shows the dialog modeless and brings it to the front.
  void showModeless() override;
  // Shows the dialog application-modal and returns at once.
  void showModal() override;
  // Shows or hides the dialog, keeping its modality.
  void setDialogVisible(bool visible) override;
  // Whether the dialog is visible.
  bool dialogVisible() const override;
  // The outer size, window frame included once the dialog has one.
  ScreenSize dialogSize() const override;
  // Moves the outer top-left corner.
  void moveDialog(int left, int top) override;

  // Gives the dialog, before it is first shown, the size that showing it would give: its layout
  // run and, unless it was sized already, the size the layout asks for.
  void settleSize();

  // Escape: the same as the close box.
  void reject() override;

  // Sets what ends the wizard when an event handler of this dialog fails.
  void setFailureHandler(FailureHandler handler) override;
  // Ends the wizard of the dialog that holds inside (a widget of it, or the dialog itself) after
  // one of its handlers failed with error: the failure handler gets the message that says what
  // went wrong. Outside a wizard dialog, or once the dialog is released, the error is dropped.
  static void handlerFailed(QObject* inside, std::exception_ptr error) noexcept;

 protected:
  // Every event of the dialog itself, its own handlers and the queued calls made for it: an
  // exception they throw ends the wizard and never reaches Qt's event loop.
  bool event(QEvent* event) override;

  // Deletes the dialog's widgets and helper objects at once. A dialog calls it first in its
  // destructor, so that no view, painter or accessible interface outlives the presenter it reads.
  void deleteViews();

  // What the close box and Escape do; the dialogs run their Cancel handler.
  virtual void closeRequested() = 0;
  // Runs each time the dialog becomes the active window.
  virtual void activated() {}

  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // Where moveDialog put the dialog and the outer size it had then.
  struct Placement {
    QPoint topLeft;
    QSize size;
  };

  void showWithModality(Qt::WindowModality modality);
  void keepCentreWithFrame();

  std::optional<Placement> m_placement;
  FailureHandler m_failureHandler;
};

// Runs fn, a handler of an event of inside (a widget of one of the wizard's dialogs); an
// exception it throws ends the wizard (DialogWindow::handlerFailed) and goes no further.
template <class Fn>
void runGuarded(QObject* inside, Fn&& fn) noexcept {
  try {
    std::forward<Fn>(fn)();
  } catch (...) {
    DialogWindow::handlerFailed(inside, std::current_exception());
  }
}

// A slot that runs fn guarded by runGuarded. It is callable with exactly the arguments fn takes,
// so QObject::connect hands it as many of the signal's arguments as fn wants.
template <class Fn>
struct GuardedSlot {
  QObject* inside;
  Fn fn;

  // Runs fn(args...) guarded.
  template <class... Args>
  auto operator()(Args&&... args) const -> decltype(fn(std::forward<Args>(args)...), void()) {
    runGuarded(inside, [&] { fn(std::forward<Args>(args)...); });
  }
};

// fn wrapped for QObject::connect: the slot runs fn guarded by runGuarded.
template <class Fn>
GuardedSlot<Fn> guarded(QObject* inside, Fn fn) {
  return GuardedSlot<Fn>{inside, std::move(fn)};
}

}  // namespace tnw
