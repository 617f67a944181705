// A handler of the wizard's dialogs that fails with an exception, in a host that owns the
// QApplication: the exception never leaves Qt's event delivery, the user is told in a "NORIX"
// message box, the wizard ends with UnloadTNWizard(FileIndex, False) and the host goes on.

#include "common/core/recording_ui_services.h"
#include "component/tnw_mavt.h"

// Qt
#include <QApplication>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

// Std
#include <algorithm>
#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace tnw {
namespace {

// UI services whose help fails, as a broken help viewer or a full memory would.
class FailingHelpUi : public RecordingUiServices {
 public:
  void showHelp(const std::string& helpFile, int context) override {
    RecordingUiServices::showHelp(helpFile, context);
    if (failWith) failWith();
  }

  std::function<void()> failWith;
};

// A host that records the events as text; its handlers may fail or act.
class Host : public TnwMavtEvents {
 public:
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    log.push_back("UnloadTNWizard " + std::to_string(fIndex) + (WeightsDone ? " true" : " false"));
    if (onUnload) onUnload();
  }
  void SendMasseges(const std::string& Msg) override {
    log.push_back("SendMasseges " + Msg);
    if (onMessage) onMessage();
  }

  // How often UnloadTNWizard arrived with these arguments.
  long unloads(const std::string& args) const {
    return std::count(log.begin(), log.end(), "UnloadTNWizard " + args);
  }

  std::vector<std::string> log;
  std::function<void()> onUnload;
  std::function<void()> onMessage;
};

QWidget* topLevel(const char* name) {
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (w->objectName() == QLatin1String(name) && w->isVisible()) return w;
  }
  return nullptr;
}

QPushButton* button(QWidget* dialog, const char* name) {
  return dialog->findChild<QPushButton*>(QLatin1String(name));
}

// Clicks a button through QTest's event delivery; false when an exception came out of it.
bool clickReturns(QPushButton* b) {
  try {
    QTest::mouseClick(b, Qt::LeftButton);
  } catch (...) {
    return false;
  }
  return true;
}

}  // namespace

class EventFailureTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<TNW_MAVT> showWizard() {
    auto wizard = std::make_unique<TNW_MAVT>(m_ui);
    wizard->setEvents(&m_host);
    std::string dir = "/opt/norix";
    wizard->GetCurFileData(dir, 3, TNW_SAMPLE_MODEL);
    wizard->ShowTNWizard();
    return wizard;
  }

  // The wizard's only message is the failure's, titled "NORIX" with the exclamation icon.
  void verifyFailureShown(const std::string& text) {
    QCOMPARE(m_ui.messages().size(), std::size_t{1});
    QCOMPARE(m_ui.messages()[0].text, text);
    QCOMPARE(m_ui.messages()[0].title, std::string("NORIX"));
    QVERIFY(m_ui.messages()[0].icon == MessageIcon::Exclamation);
  }

  // Every dialog of the wizard is gone once control is back in the event loop.
  static void verifyDialogsGone() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(QApplication::activeModalWidget() == nullptr);
  }

  // The host carries on: the same object shows a fresh wizard, which works.
  void verifyShowsAgain(TNW_MAVT& wizard) {
    m_ui.failWith = nullptr;
    wizard.ShowTNWizard();
    QWidget* d = topLevel("frmTNWSelMethod");
    QVERIFY(d != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(d));
    QVERIFY(clickReturns(button(d, "cmdHelp")));
    QCOMPARE(m_ui.helpContext(), 4005025);
    wizard.UnloadTNWizard();
  }

  FailingHelpUi m_ui;
  Host m_host;

 private slots:
  void init() {
    m_ui = FailingHelpUi{};
    m_ui.setScreenSize({1280, 1024});
    m_host = Host{};
  }

  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }

  void aFailingButtonHandlerEndsTheWizard() {
    auto wizard = showWizard();
    QWidget* d = topLevel("frmTNWSelMethod");
    QVERIFY(QTest::qWaitForWindowExposed(d));
    m_ui.failWith = [] { throw std::runtime_error("The help viewer failed."); };
    QVERIFY2(clickReturns(button(d, "cmdHelp")), "the exception escaped the event");
    verifyFailureShown("The help viewer failed.");
    QCOMPARE(m_host.unloads("3 false"), 1L);
    QCOMPARE(m_host.log.back(), std::string("UnloadTNWizard 3 false"));
    verifyDialogsGone();
    verifyShowsAgain(*wizard);
  }

  void runningOutOfMemoryInAHandlerEndsTheWizard() {
    auto wizard = showWizard();
    m_host.onUnload = [&] { wizard->UnloadTNWizard(); };
    QWidget* d = topLevel("frmTNWSelMethod");
    QVERIFY(QTest::qWaitForWindowExposed(d));
    m_ui.failWith = [] { throw std::bad_alloc(); };
    QVERIFY2(clickReturns(button(d, "cmdHelp")), "the exception escaped the event");
    verifyFailureShown("Out of memory.");
    QCOMPARE(m_host.unloads("3 false"), 1L);
    verifyDialogsGone();
    verifyShowsAgain(*wizard);
  }

  void aFailureInAModalMethodDialogEndsTheWholeWizard() {
    auto wizard = showWizard();
    QWidget* d = topLevel("frmTNWSelMethod");
    QVERIFY(QTest::qWaitForWindowExposed(d));
    d->findChild<QListWidget*>(QStringLiteral("lstMethods"))->setCurrentRow(0);
    QVERIFY(clickReturns(button(d, "cmdNext")));
    QWidget* direct = topLevel("frmDirectA");
    QVERIFY(direct != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(direct));
    QVERIFY(QApplication::activeModalWidget() == direct);
    m_ui.failWith = [] { throw 42; };
    QVERIFY2(clickReturns(button(direct, "cmdHelp")), "the exception escaped the event");
    verifyFailureShown("Unexpected error.");
    QCOMPARE(m_host.unloads("3 false"), 1L);
    QCOMPARE(m_host.unloads("3 true"), 0L);
    // Nothing of the wizard blocks the host's windows any more.
    verifyDialogsGone();
    verifyShowsAgain(*wizard);
  }

  // The host's own handler fails inside an event the dialog raises from its close box.
  void aFailingHostHandlerInsideTheCloseBoxEndsTheWizard() {
    auto wizard = showWizard();
    QWidget* d = topLevel("frmTNWSelMethod");
    QVERIFY(QTest::qWaitForWindowExposed(d));
    m_host.onUnload = [&] {
      m_host.onUnload = nullptr;
      throw std::runtime_error("The host could not store the result.");
    };
    bool returned = true;
    try {
      d->close();
    } catch (...) {
      returned = false;
    }
    QVERIFY2(returned, "the exception escaped the close event");
    verifyFailureShown("The host could not store the result.");
    // The close box's UnloadTNWizard, whose handler failed, then the end of the wizard.
    QCOMPARE(m_host.unloads("3 false"), 2L);
    verifyDialogsGone();
    verifyShowsAgain(*wizard);
  }

  void aFailureWhileTheNextDialogLoadsKeepsTheHostRunning() {
    auto wizard = showWizard();
    QWidget* d = topLevel("frmTNWSelMethod");
    QVERIFY(QTest::qWaitForWindowExposed(d));
    d->findChild<QListWidget*>(QStringLiteral("lstMethods"))->setCurrentRow(0);
    m_host.onMessage = [] { throw std::runtime_error("The status line failed."); };
    QVERIFY2(clickReturns(button(d, "cmdNext")), "the exception escaped the event");
    m_host.onMessage = nullptr;
    verifyFailureShown("The status line failed.");
    QCOMPARE(m_host.unloads("3 false"), 1L);
    verifyDialogsGone();
    verifyShowsAgain(*wizard);
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::EventFailureTest)
#include "event_failure_test.moc"
