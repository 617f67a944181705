#include "common/ui/widget_ui_services.h"

// Qt
#include <QApplication>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QScreen>
#include <QWidget>

#ifdef _WIN32
#include "common/core/win_help.h"
#else
#include "common/ui/help_browser.h"
#endif

namespace tnw {

namespace {

QMessageBox::Icon toQtIcon(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Information:
      return QMessageBox::Information;
    case MessageIcon::Exclamation:
      return QMessageBox::Warning;
    case MessageIcon::Critical:
      return QMessageBox::Critical;
    case MessageIcon::Question:
      break;
  }
  return QMessageBox::Question;
}

}  // namespace

WidgetUiServices::~WidgetUiServices() {
  if (m_busy && QGuiApplication::instance() != nullptr) QGuiApplication::restoreOverrideCursor();
}

void WidgetUiServices::messageBox(const std::string& text, MessageIcon icon,
                                  const std::string& title) {
  QMessageBox box(toQtIcon(icon), QString::fromStdString(title), QString::fromStdString(text),
                  QMessageBox::Ok, QApplication::activeModalWidget());
  box.setObjectName(QStringLiteral("NorixMessageBox"));
  box.setTextFormat(Qt::PlainText);
  // A busy pointer must not hide that the box waits for the user.
  const bool busy = m_busy;
  if (busy) setBusy(false);
  box.exec();
  if (busy) setBusy(true);
}

void WidgetUiServices::beep() { QApplication::beep(); }

void WidgetUiServices::setBusy(bool busy) {
  if (busy == m_busy || QGuiApplication::instance() == nullptr) return;
  m_busy = busy;
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

void WidgetUiServices::showHelp(const std::string& helpFile, int context) {
  showHelpTopic(helpFile, context, HelpTopic{});
}

void WidgetUiServices::showHelpTopic(const std::string& helpFile, int context,
                                     [[maybe_unused]] const HelpTopic& topic) {
  if (m_helpHandler) {
    m_helpHandler(helpFile, context);
    return;
  }
#ifdef _WIN32
  // Windows: WinHelpA(owner, NorixDir + "\NORIX.HLP", HELP_CONTEXT, context), owned by the
  // dialog whose Help button was pressed. Where the call cannot be made the message below still
  // names the file and topic.
  const QWidget* owner = QApplication::activeModalWidget();
  if (owner == nullptr) owner = QApplication::activeWindow();
  const HWND ownerWindow = owner != nullptr ? reinterpret_cast<HWND>(owner->winId()) : nullptr;
  if (showWinHelp(ownerWindow, helpFile, context)) return;
  messageBox(defaultHelpText(helpFile, context), MessageIcon::Information, "NORIX");
#else
  // Elsewhere there is no WinHelp: the pages shipped with the component stand in for the file.
  HelpBrowser::show(topic.page, topic.anchor);
#endif
}

std::string WidgetUiServices::defaultHelpText(const std::string& helpFile, int context) {
  return "No help viewer is installed. The help file \"" + helpFile + "\" would open at topic " +
         std::to_string(context) + ".";
}

bool WidgetUiServices::askYesNo(const std::string& text, const std::string& title) {
  QMessageBox box(QMessageBox::Question, QString::fromStdString(title),
                  QString::fromStdString(text), QMessageBox::Yes | QMessageBox::No,
                  QApplication::activeModalWidget());
  box.setObjectName(QStringLiteral("NorixQuestionBox"));
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::No);
  const bool busy = m_busy;
  if (busy) setBusy(false);
  const bool yes = box.exec() == QMessageBox::Yes;
  if (busy) setBusy(true);
  return yes;
}

std::string WidgetUiServices::chooseOpenFile(const std::string& caption,
                                             const std::string& filter) {
  return QFileDialog::getOpenFileName(QApplication::activeModalWidget(),
                                      QString::fromStdString(caption), QString(),
                                      QString::fromStdString(filter))
      .toStdString();
}

std::string WidgetUiServices::chooseSaveFile(const std::string& caption, const std::string& filter,
                                             const std::string& suggestedName) {
  return QFileDialog::getSaveFileName(
             QApplication::activeModalWidget(), QString::fromStdString(caption),
             QString::fromStdString(suggestedName), QString::fromStdString(filter))
      .toStdString();
}

ScreenSize WidgetUiServices::screenSize() const {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {1024, 768};
  const QSize size = screen->geometry().size();
  return {size.width(), size.height()};
}

}  // namespace tnw
