#include "common/ui/widget_ui_services.h"
#include "direct/ui/direct_a_dialog.h"
#include "direct_a_dialog_helpers.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"

// Qt
#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>

// Std
#include <memory>
#include <string>

namespace tnw::direct {

using test::control;

// Help on the direct dialog with the Qt UI services: the component's own help window on each step,
// or the host's handler when one is installed.
class DirectAHelpTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void helpShowsTheDialogsPageAtEachStepsAnchorInOneWindow();
  void anInstalledHandlerIsCalledInsteadOfTheHelpWindow();

 private:
  void open();
  void pressHelp() { QTest::mouseClick(button("cmdHelp"), Qt::LeftButton); }
  QPushButton* button(const char* name) const { return control<QPushButton>(m_dialog.get(), name); }
  // The help windows open now.
  static QList<QTextBrowser*> helpWindows();

  WizardContext m_context = test::makeContext(2);
  WidgetUiServices m_ui;
  test::RecordingDirectAEvents m_events;
  std::unique_ptr<DirectADialog> m_dialog;
};

void DirectAHelpTest::cleanup() {
  for (QTextBrowser* browser : helpWindows()) delete browser;
  m_dialog.reset();
  m_ui.setHelpHandler({});
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
}

void DirectAHelpTest::open() {
  m_dialog = std::make_unique<DirectADialog>(m_context, m_ui, m_events);
  m_dialog->show();
  QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
}

QList<QTextBrowser*> DirectAHelpTest::helpWindows() {
  QList<QTextBrowser*> found;
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (w->objectName() == QLatin1String("helpBrowser")) {
      if (auto* browser = qobject_cast<QTextBrowser*>(w)) found.append(browser);
    }
  }
  return found;
}

void DirectAHelpTest::helpShowsTheDialogsPageAtEachStepsAnchorInOneWindow() {
  open();
  QVERIFY(helpWindows().isEmpty());
  pressHelp();
  QCOMPARE(helpWindows().size(), 1);
  const QPointer<QTextBrowser> browser = helpWindows().front();
  QVERIFY(browser->isVisible());
  QCOMPARE(browser->source(), QUrl(QStringLiteral("qrc:/tnw/help/direct_a.html#ordering")));
  QCOMPARE(browser->windowTitle(), QStringLiteral("TNWizard MAVT Help"));
  QCOMPARE(browser->windowModality(), Qt::NonModal);
  QVERIFY(browser->isWindow());
  // The page itself is shipped with the component and tells what to do on each step.
  QVERIFY(browser->toPlainText().contains(QStringLiteral("Step 0: the importance order")));
  QVERIFY(browser->toPlainText().contains(QStringLiteral("Step 3: the results")));

  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 1), QStringLiteral("A0")));
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 2), QStringLiteral("A1")));
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 1);
  browser->close();
  pressHelp();
  // The same window, shown again at the reference step.
  QCOMPARE(helpWindows().size(), 1);
  QCOMPARE(helpWindows().front(), browser.data());
  QVERIFY(browser->isVisible());
  QCOMPARE(browser->source(), QUrl(QStringLiteral("qrc:/tnw/help/direct_a.html#reference")));

  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAttButtons", 0), Qt::LeftButton);
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 2);
  pressHelp();
  QCOMPARE(helpWindows().size(), 1);
  QCOMPARE(browser->source(), QUrl(QStringLiteral("qrc:/tnw/help/direct_a.html#judgment")));
  // The dialog goes on working while the help window is open.
  QVERIFY(m_dialog->isVisible());
  QVERIFY(button("cmdBack")->isEnabled());
}

void DirectAHelpTest::anInstalledHandlerIsCalledInsteadOfTheHelpWindow() {
  std::string file;
  int context = 0;
  int calls = 0;
  m_ui.setHelpHandler([&](const std::string& f, int c) {
    file = f;
    context = c;
    ++calls;
  });
  open();
  pressHelp();
  QCOMPARE(calls, 1);
  QCOMPARE(file, std::string("C:\\NORIX\\NORIX.HLP"));
  QCOMPARE(context, 4005025);
  QCoreApplication::processEvents();
  QVERIFY(helpWindows().isEmpty());
}

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::DirectAHelpTest)
#include "direct_a_help_test.moc"
