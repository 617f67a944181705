#include "component/wizard_dialog_qt.h"

// Qt
#include <QCloseEvent>
#include <QEvent>

namespace tnw {

WizardDialogQt::WizardDialogQt(QWidget* parent) : QDialog(parent) {
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setSizeGripEnabled(false);
}

void WizardDialogQt::showModeless() { showWithModality(Qt::NonModal); }

// Application-modal on purpose: the dialogs have no owner window (the host hands none over), and
// a window-modal dialog without one blocks nothing. Blocking every other window of the process,
// the host's included, is what a modal form of the host does as well.
void WizardDialogQt::showModal() { showWithModality(Qt::ApplicationModal); }

void WizardDialogQt::showWithModality(Qt::WindowModality modality) {
  // Qt applies a modality change only when the window is shown again.
  if (isVisible() && windowModality() != modality) hide();
  setWindowModality(modality);
  show();
  activateWindow();
}

void WizardDialogQt::setDialogVisible(bool visible) {
  setVisible(visible);
  if (visible) activateWindow();
}

bool WizardDialogQt::dialogVisible() const { return isVisible(); }

ScreenSize WizardDialogQt::dialogSize() const {
  const QSize size = frameGeometry().size();
  return {size.width(), size.height()};
}

void WizardDialogQt::moveDialog(int left, int top) { move(left, top); }

void WizardDialogQt::reject() { closeRequested(); }

void WizardDialogQt::closeEvent(QCloseEvent* event) {
  event->ignore();
  closeRequested();
}

void WizardDialogQt::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) activated();
}

}  // namespace tnw
