#include "wizard/ui/dialog_window.h"

// Qt
#include <QCloseEvent>
#include <QEvent>
#include <QLayout>
#include <QMetaObject>
#include <QShowEvent>

// Std
#include <new>
#include <string>

namespace tnw {

DialogWindow::DialogWindow(QWidget* parent) : QDialog(parent) {
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setSizeGripEnabled(false);
}

void DialogWindow::showModeless() { showWithModality(Qt::NonModal); }

// Application-modal on purpose: the dialogs have no owner window (the host hands none over), and
// a window-modal dialog without one blocks nothing. Blocking every other window of the process,
// the host's included, is what a modal form of the host does as well.
void DialogWindow::showModal() { showWithModality(Qt::ApplicationModal); }

void DialogWindow::showWithModality(Qt::WindowModality modality) {
  // Qt applies a modality change only when the window is shown again.
  if (isVisible() && windowModality() != modality) hide();
  setWindowModality(modality);
  show();
  activateWindow();
}

void DialogWindow::setDialogVisible(bool visible) {
  setVisible(visible);
  if (visible) activateWindow();
}

bool DialogWindow::dialogVisible() const { return isVisible(); }

ScreenSize DialogWindow::dialogSize() const {
  const QSize size = frameGeometry().size();
  return {size.width(), size.height()};
}

void DialogWindow::moveDialog(int left, int top) {
  move(left, top);
  m_placement = Placement{QPoint(left, top), frameGeometry().size()};
}

void DialogWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // The window's frame is known once the window is shown, after the events now pending.
  if (m_placement)
    QMetaObject::invokeMethod(
        this, [this] { keepCentreWithFrame(); }, Qt::QueuedConnection);
}

void DialogWindow::keepCentreWithFrame() {
  if (!m_placement || !isVisible()) return;
  // Placed before it had a frame, the dialog grew by the frame around it: it moves back by half
  // of that, so that the whole window keeps the centre it was given. This happens once.
  const Placement placed = *m_placement;
  m_placement.reset();
  const QRect frame = frameGeometry();
  const QSize grown = frame.size() - placed.size;
  if (grown.isNull()) return;
  move(placed.topLeft.x() - grown.width() / 2, placed.topLeft.y() - grown.height() / 2);
}

void DialogWindow::settleSize() {
  // What showing a window does first; measured before that, a dialog whose layout asks for more
  // than its initial size would be centred for a size it never has.
  ensurePolished();
  if (QLayout* l = layout()) l->activate();
  if (!testAttribute(Qt::WA_Resized)) adjustSize();
}

void DialogWindow::deleteViews() {
  while (!children().isEmpty()) delete children().constFirst();
}

void DialogWindow::reject() { closeRequested(); }

void DialogWindow::setFailureHandler(FailureHandler handler) {
  m_failureHandler = std::move(handler);
}

bool DialogWindow::event(QEvent* event) {
  try {
    return QDialog::event(event);
  } catch (...) {
    handlerFailed(this, std::current_exception());
    return true;
  }
}

namespace {

// What the user is told about an exception that ended the wizard.
std::string failureMessage(const std::exception_ptr& error) {
  try {
    std::rethrow_exception(error);
  } catch (const std::bad_alloc&) {
    return "Out of memory.";
  } catch (const std::exception& e) {
    const std::string what = e.what();
    return what.empty() ? "Unexpected error." : what;
  } catch (...) {
    return "Unexpected error.";
  }
}

}  // namespace

void DialogWindow::handlerFailed(QObject* inside, std::exception_ptr error) noexcept {
  DialogWindow* dialog = nullptr;
  for (QObject* o = inside; o != nullptr && dialog == nullptr; o = o->parent())
    dialog = qobject_cast<DialogWindow*>(o);
  if (dialog == nullptr || !dialog->m_failureHandler) return;
  try {
    // A copy: ending the wizard releases the dialog, and with it the handler it holds.
    const FailureHandler end = dialog->m_failureHandler;
    end(failureMessage(error));
  } catch (...) {
    // Not even the message could be made (memory is short): the error stops here.
  }
}

void DialogWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  closeRequested();
}

void DialogWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) activated();
}

}  // namespace tnw

// The meta-object code is compiled here, beside the class's own, so that it is laid out with
// the code that shows the first dialog (component/startup_code.ld).
#include "moc_dialog_window.cpp"
