#include "component/ui/widget_dialog_factory.h"

#include "common/core/ui_services.h"
#include "wizard/ui/dialog_window.h"
#include "direct/ui/direct_a_dialog.h"
#include "selmethod/ui/selmethod_dialog.h"
#include "tradeoffs/ui/tradeoffs_a_dialog.h"

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

WidgetDialogFactory::WidgetDialogFactory(UiServices& ui, JudgmentFiles files)
    : m_ui(ui), m_files(files) {}

bool WidgetDialogFactory::haveApplication() const {
  // Widgets made without a QApplication would abort the host's process.
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) return true;
  qWarning("TNW_MAVT: the wizard needs a QApplication; no dialog is shown");
  return false;
}

std::unique_ptr<WizardDialog> WidgetDialogFactory::createSelMethod(
    WizardContext& context, selmethod::SelMethodEvents& events) {
  if (!haveApplication()) return nullptr;
  return settled(std::make_unique<selmethod::SelMethodDialog>(context, m_ui, events));
}

std::unique_ptr<WizardDialog> WidgetDialogFactory::createDirectA(WizardContext& context,
                                                                 direct::DirectAEvents& events) {
  if (!haveApplication()) return nullptr;
  return settled(
      std::make_unique<direct::DirectADialog>(context, m_ui, events, nullptr, m_files.direct));
}

std::unique_ptr<WizardDialog> WidgetDialogFactory::createTradeOffsA(
    WizardContext& context, tradeoffs::TradeOffsAEvents& events) {
  if (!haveApplication()) return nullptr;
  return settled(std::make_unique<tradeoffs::TradeOffsADialog>(context, m_ui, events, nullptr,
                                                               m_files.tradeOffs));
}

void WidgetDialogFactory::release(std::unique_ptr<WizardDialog> dialog) {
  if (!dialog) return;
  auto* widget = dynamic_cast<DialogWindow*>(dialog.get());
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

void WidgetDialogFactory::runLater(std::function<void()> work) {
  QCoreApplication* app = QCoreApplication::instance();
  if (app == nullptr) {
    work();
    return;
  }
  QTimer::singleShot(0, app, std::move(work));
}

}  // namespace tnw
