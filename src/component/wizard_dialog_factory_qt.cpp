#include "component/wizard_dialog_factory_qt.h"

#include "common/ui_services.h"
#include "component/wizard_dialog_qt.h"
#include "direct/direct_a_dialog.h"
#include "selmethod/sel_method_dialog.h"
#include "tradeoffs/trade_offs_a_dialog.h"

// Qt
#include <QApplication>
#include <QThread>
#include <QTimer>
#include <QtGlobal>

namespace tnw {

namespace {

// A new dialog with the size it is shown with, so that the component centres it by that size.
template <class Dialog>
std::unique_ptr<WizardDialog> settled(std::unique_ptr<Dialog> dialog) {
  dialog->settleSize();
  return dialog;
}

}  // namespace

WizardDialogFactoryQt::WizardDialogFactoryQt(UiServices& ui) : m_ui(ui) {}

bool WizardDialogFactoryQt::haveApplication() const {
  // Widgets made without a QApplication would abort the host's process.
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) return true;
  qWarning("TNW_MAVT: the wizard needs a QApplication; no dialog is shown");
  return false;
}

std::unique_ptr<WizardDialog> WizardDialogFactoryQt::createSelMethod(
    WizardContext& context, selmethod::SelMethodEvents& events) {
  if (!haveApplication()) return nullptr;
  return settled(std::make_unique<selmethod::SelMethodDialog>(context, m_ui, events));
}

std::unique_ptr<WizardDialog> WizardDialogFactoryQt::createDirectA(WizardContext& context,
                                                                   direct::DirectAEvents& events) {
  if (!haveApplication()) return nullptr;
  return settled(std::make_unique<direct::DirectADialog>(context, m_ui, events));
}

std::unique_ptr<WizardDialog> WizardDialogFactoryQt::createTradeOffsA(
    WizardContext& context, tradeoffs::TradeOffsAEvents& events) {
  if (!haveApplication()) return nullptr;
  return settled(std::make_unique<tradeoffs::TradeOffsADialog>(context, m_ui, events));
}

void WizardDialogFactoryQt::release(std::unique_ptr<WizardDialog> dialog) {
  if (!dialog) return;
  auto* widget = dynamic_cast<WizardDialogQt*>(dialog.get());
  if (widget == nullptr) return;  // not one of ours: destroyed here by the unique_ptr
  static_cast<void>(dialog.release());
  widget->deleteLater();
  // Without a running Qt event loop (an in-process server inside a Win32 host, or a host that
  // calls processEvents) a deferred delete posted outside every event is never delivered; a
  // queued call delivers it from the next event, where Qt's own rule lets it run, and still
  // keeps a dialog whose handler is on the stack.
  if (QThread::currentThread()->loopLevel() == 0) {
    runLater([] { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); });
  }
}

void WizardDialogFactoryQt::runLater(std::function<void()> work) {
  QCoreApplication* app = QCoreApplication::instance();
  if (app == nullptr) {
    work();
    return;
  }
  QTimer::singleShot(0, app, std::move(work));
}

}  // namespace tnw
