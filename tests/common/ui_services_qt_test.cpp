#include "common/ui/widget_ui_services.h"

// Qt
#include <QAbstractButton>
#include <QApplication>
#include <QGuiApplication>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <QtTest>

namespace tnw {

class UiServicesQtTest : public QObject {
  Q_OBJECT

 private:
  struct Seen {
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    bool cursorWasBusy = false;
  };

  // Shows a message box through the services, reads it while it waits and presses OK.
  static Seen showAndRead(WidgetUiServices& ui, const std::string& text, MessageIcon icon) {
    Seen seen;
    QTimer::singleShot(0, [&seen] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      seen.title = box->windowTitle();
      seen.text = box->text();
      seen.icon = box->icon();
      seen.cursorWasBusy = QGuiApplication::overrideCursor() != nullptr;
      box->button(QMessageBox::Ok)->click();
    });
    ui.messageBox(text, icon, "NORIX");
    return seen;
  }

 private slots:
  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
  }

  void messageBoxShowsTitleTextAndIcon() {
    WidgetUiServices ui;
    const Seen seen = showAndRead(ui, "Some text.", MessageIcon::Exclamation);
    QCOMPARE(seen.title, QStringLiteral("NORIX"));
    QCOMPARE(seen.text, QStringLiteral("Some text."));
    QCOMPARE(seen.icon, QMessageBox::Warning);
    QCOMPARE(showAndRead(ui, "i", MessageIcon::Information).icon, QMessageBox::Information);
    QCOMPARE(showAndRead(ui, "c", MessageIcon::Critical).icon, QMessageBox::Critical);
  }

  void messageBoxLiftsTheBusyPointerWhileItWaits() {
    WidgetUiServices ui;
    ui.setBusy(true);
    const Seen seen = showAndRead(ui, "x", MessageIcon::Information);
    QVERIFY(!seen.cursorWasBusy);
    QVERIFY(QGuiApplication::overrideCursor() != nullptr);
    ui.setBusy(false);
  }

  void busyPointerIsTheWaitCursorAndIsRestoredOnce() {
    WidgetUiServices ui;
    ui.setBusy(true);
    ui.setBusy(true);
    QVERIFY(QGuiApplication::overrideCursor() != nullptr);
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    ui.setBusy(false);
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    ui.setBusy(false);
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
  }

  void destroyingTheServicesRestoresThePointer() {
    {
      WidgetUiServices ui;
      ui.setBusy(true);
    }
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
  }

  void helpWithoutAHandlerTellsTheUserWhichFileAndTopic() {
    WidgetUiServices ui;
    Seen seen;
    QTimer::singleShot(0, [&seen] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      seen.text = box->text();
      seen.title = box->windowTitle();
      box->button(QMessageBox::Ok)->click();
    });
    ui.showHelp("C:\\NORIX\\NORIX.HLP", 4005025);
    QCOMPARE(seen.title, QStringLiteral("NORIX"));
    QVERIFY(seen.text.contains(QStringLiteral("C:\\NORIX\\NORIX.HLP")));
    QVERIFY(seen.text.contains(QStringLiteral("4005025")));
  }

  void helpGoesToAnInstalledHandler() {
    WidgetUiServices ui;
    std::string file;
    int context = 0;
    ui.setHelpHandler([&](const std::string& f, int c) {
      file = f;
      context = c;
    });
    ui.showHelp("/opt/norix\\NORIX.HLP", 4005025);
    QCOMPARE(file, std::string("/opt/norix\\NORIX.HLP"));
    QCOMPARE(context, 4005025);
  }

  void screenSizeIsThePrimaryScreens() {
    WidgetUiServices ui;
    const QSize expected = QGuiApplication::primaryScreen()->geometry().size();
    QCOMPARE(ui.screenSize().width, expected.width());
    QCOMPARE(ui.screenSize().height, expected.height());
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::UiServicesQtTest)
#include "ui_services_qt_test.moc"
