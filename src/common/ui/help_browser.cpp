#include "common/ui/help_browser.h"

// Qt
#include <QApplication>
#include <QCoreApplication>
#include <QPointer>
#include <QTextBrowser>

// The help pages live in the static ui library; registering them here keeps them linked in.
static void initHelpResources() { Q_INIT_RESOURCE(tnw_help); }

namespace tnw {

namespace {

// The one help window of the application.
QPointer<QTextBrowser>& helpWindow() {
  static QPointer<QTextBrowser> window;
  return window;
}

// A page name the help folder can hold: letters, digits and underscores only.
bool isPageName(const std::string& page) {
  if (page.empty()) return false;
  for (const char c : page) {
    const bool ok =
        (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
    if (!ok) return false;
  }
  return true;
}

QTextBrowser* createWindow() {
  initHelpResources();
  auto* browser = new QTextBrowser;
  browser->setObjectName(QString::fromLatin1(HelpBrowser::kObjectName));
  browser->setWindowTitle(QStringLiteral("TNWizard MAVT Help"));
  browser->setAccessibleName(QStringLiteral("TNWizard MAVT Help"));
  browser->setWindowModality(Qt::NonModal);
  browser->setOpenLinks(true);
  browser->setOpenExternalLinks(false);
  browser->resize(640, 560);
  // The window outlives the dialogs and goes when the application quits.
  if (QCoreApplication* app = QCoreApplication::instance()) {
    QObject::connect(app, &QCoreApplication::aboutToQuit, browser, &QObject::deleteLater);
  }
  return browser;
}

// A modal dialog blocks every window but its own; while one is open, the help window becomes
// one of its windows so that the user can scroll and follow links in it.
void keepUsable(QTextBrowser& browser) {
  QWidget* modal = QApplication::activeModalWidget();
  if (modal == &browser || browser.parentWidget() == modal) return;
  const QRect geometry = browser.geometry();
  const bool visible = browser.isVisible();
  browser.setParent(modal, Qt::Window);
  browser.setGeometry(geometry);
  if (visible) browser.show();
}

}  // namespace

QUrl HelpBrowser::pageUrl(const std::string& page, const std::string& anchor) {
  const QString name = isPageName(page) ? QString::fromStdString(page) : QStringLiteral("index");
  QUrl url(QStringLiteral("qrc:/tnw/help/%1.html").arg(name));
  if (!anchor.empty()) url.setFragment(QString::fromStdString(anchor));
  return url;
}

QTextBrowser* HelpBrowser::show(const std::string& page, const std::string& anchor) {
  QPointer<QTextBrowser>& window = helpWindow();
  if (window.isNull()) window = createWindow();
  keepUsable(*window);
  window->setSource(pageUrl(page, anchor));
  window->show();
  window->raise();
  window->activateWindow();
  return window.data();
}

QTextBrowser* HelpBrowser::window() { return helpWindow().data(); }

}  // namespace tnw
