#include "common/ui/widget_ui_services.h"

// Qt
#include <QAbstractButton>
#include <QApplication>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTimer>
#include <QtTest>

// Std
#include <string>
#include <vector>

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

 private:
  // The help windows open now.
  static QList<QTextBrowser*> helpWindows() {
    QList<QTextBrowser*> found;
    for (QWidget* w : QApplication::topLevelWidgets()) {
      auto* browser = qobject_cast<QTextBrowser*>(w);
      if (browser != nullptr && w->objectName() == QLatin1String("helpBrowser")) {
        found.append(browser);
      }
    }
    return found;
  }

 private slots:
  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
  }

  void askYesNoReturnsTheButtonPressedAndDefaultsToNo() {
    WidgetUiServices ui;
    for (const QMessageBox::StandardButton press : {QMessageBox::Yes, QMessageBox::No}) {
      QString text;
      bool defaultIsNo = false;
      QTimer::singleShot(0, [&text, &defaultIsNo, press] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        text = box->text();
        defaultIsNo = box->defaultButton() == box->button(QMessageBox::No);
        box->button(press)->click();
      });
      const bool yes = ui.askYesNo("Discard 2 judgments?", "NORIX");
      QCOMPARE(yes, press == QMessageBox::Yes);
      QCOMPARE(text, QStringLiteral("Discard 2 judgments?"));
      QVERIFY(defaultIsNo);
    }
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

#ifdef _WIN32
  // Windows: where WinHelp cannot open the file, the user is told which file and topic.
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
#else
  // Elsewhere the component's own pages stand in for the host's help file, in one window.
  void helpWithoutAHandlerShowsTheComponentsPagesInOneWindow() {
    WidgetUiServices ui;
    ui.showHelp("C:\\NORIX\\NORIX.HLP", 4005025);
    QCOMPARE(helpWindows().size(), 1);
    QTextBrowser* browser = helpWindows().front();
    QCOMPARE(browser->source(), QUrl(QStringLiteral("qrc:/tnw/help/index.html")));
    QVERIFY(browser->toPlainText().contains(QStringLiteral("Choosing the elicitation method")));
    QVERIFY(browser->isVisible());
    QCOMPARE(browser->windowModality(), Qt::NonModal);
    QVERIFY(QApplication::activeModalWidget() == nullptr);

    ui.showHelpTopic("C:\\NORIX\\NORIX.HLP", 4005025, {"selmethod", "selection"});
    QCOMPARE(helpWindows().size(), 1);
    QCOMPARE(helpWindows().front(), browser);
    QCOMPARE(browser->source(), QUrl(QStringLiteral("qrc:/tnw/help/selmethod.html#selection")));
    QVERIFY(browser->toPlainText().contains(QStringLiteral("Direct")));

    // A page name that is not one of the shipped pages' shows the contents instead.
    ui.showHelpTopic("C:\\NORIX\\NORIX.HLP", 4005025, {"../selmethod", "selection"});
    QCOMPARE(browser->source(), QUrl(QStringLiteral("qrc:/tnw/help/index.html#selection")));
    delete browser;
  }

  void everyDialogsPageHasItsStepsAnchors() {
    WidgetUiServices ui;
    const std::vector<HelpTopic> topics = {{"selmethod", "selection"}, {"direct_a", "ordering"},
                                           {"direct_a", "reference"},  {"direct_a", "judgment"},
                                           {"direct_a", "results"},    {"tradeoffs_a", "judgment"},
                                           {"tradeoffs_a", "results"}};
    for (const HelpTopic& topic : topics) {
      ui.showHelpTopic("C:\\NORIX\\NORIX.HLP", 4005025, topic);
      QTextBrowser* browser = helpWindows().front();
      const QString anchor = QString::fromStdString(topic.anchor);
      QVERIFY2(browser->document()->toHtml().contains(QStringLiteral("name=\"%1\"").arg(anchor)),
               qPrintable(browser->source().toString()));
    }
    delete helpWindows().front();
  }
#endif

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
    file.clear();
    ui.showHelpTopic("/opt/norix\\NORIX.HLP", 4005025, {"direct_a", "judgment"});
    QCOMPARE(file, std::string("/opt/norix\\NORIX.HLP"));
    QVERIFY(helpWindows().isEmpty());
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
