#include "common/core/recording_ui_services.h"
#include "component/tnw_mavt.h"
#include "component/ui/widget_dialog_factory.h"
#include "wizard/core/wizard_context.h"

// Qt
#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QTextBrowser>
#include <QtTest>

// Std
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tnw {
namespace {

// A host that records the events as text and may act on them.
class Host : public TnwMavtEvents {
 public:
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    log.push_back("UnloadTNWizard " + std::to_string(fIndex) + (WeightsDone ? " true" : " false"));
    if (onUnload) onUnload();
  }
  void SendMasseges(const std::string& Msg) override { log.push_back("SendMasseges " + Msg); }
  void ExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                        std::vector<double>&, std::vector<double>&) override {
    log.push_back("ExportTradeOffsW " + TNType);
    exports.push_back(Weights);
  }

  std::vector<std::string> log;
  std::vector<std::vector<double>> exports;
  std::function<void()> onUnload;
};

QWidget* topLevel(const char* name) {
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (w->objectName() == QLatin1String(name)) return w;
  }
  return nullptr;
}

int countTopLevel(const char* name) {
  int n = 0;
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (w->objectName() == QLatin1String(name)) ++n;
  }
  return n;
}

}  // namespace

class TnwMavtDialogTest : public QObject {
  Q_OBJECT

 private:
  // A wizard on the sample model, shown.
  std::unique_ptr<TNW_MAVT> showWizard() {
    auto wizard = std::make_unique<TNW_MAVT>(m_ui);
    wizard->setEvents(&m_host);
    std::string dir = "/opt/norix";
    wizard->GetCurFileData(dir, 3, TNW_SAMPLE_MODEL);
    wizard->ShowTNWizard();
    return wizard;
  }
  static QWidget* selMethod() { return topLevel("frmTNWSelMethod"); }
  static QPushButton* button(QWidget* dialog, const char* name) {
    return dialog->findChild<QPushButton*>(QLatin1String(name));
  }

  static void verifyCentred(QWidget* dialog, int screenWidth, int screenHeight) {
    const auto centred = [=] {
      const QRect frame = dialog->frameGeometry();
      return QPoint((screenWidth - frame.width()) / 2, (screenHeight - frame.height()) / 2);
    };
    QTRY_COMPARE(dialog->frameGeometry().topLeft(), centred());
  }

  RecordingUiServices m_ui;
  Host m_host;

 private slots:
  void init() {
    m_ui = RecordingUiServices{};
    m_ui.setScreenSize({1280, 1024});
    m_host = Host{};
  }

  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }

  void getCurFileDataReadsTheModelFile() {
    TNW_MAVT wizard(m_ui);
    std::string dir = "/opt/norix";
    wizard.GetCurFileData(dir, 3, TNW_SAMPLE_MODEL);
    QCOMPARE(wizard.context().model.NumAtt, 6);
    QCOMPARE(wizard.context().NorixDir, std::string("/opt/norix"));
    QCOMPARE(wizard.context().FileIndex, 3);
    QVERIFY(m_ui.messages().empty());
  }

  void aModelThatCannotBeOpenedIsReportedOnce() {
    TNW_MAVT wizard(m_ui);
    std::string dir = "/opt/norix";
    wizard.GetCurFileData(dir, 3, "/nonexistent/model.nrx");
    QCOMPARE(m_ui.messages().size(), std::size_t{1});
    QCOMPARE(m_ui.messages()[0].text,
             std::string("There are problems in accessing the relevant data."));
    QCOMPARE(m_ui.messages()[0].title, std::string("NORIX"));
    QVERIFY(m_ui.messages()[0].icon == MessageIcon::Information);
  }

  void showTNWizardShowsTheSelectionDialogCentred() {
    auto wizard = showWizard();
    QWidget* d = selMethod();
    QVERIFY(d != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(d));
    QVERIFY(!d->isModal());
    // Centred with its frame, which the window gets when it is shown.
    verifyCentred(d, 1280, 1024);
    QCOMPARE(m_host.log, (std::vector<std::string>{
                             "SendMasseges Select a method to make value judgments between the "
                             "attributes."}));
  }

  // Every dialog stands in the middle of the screen with the size and frame it is shown with,
  // not the size it had before its layout ran.
  void everyDialogIsCentredByItsFinalFrame() {
    m_ui.setScreenSize({1600, 1200});
    for (int method = 0; method < 2; ++method) {
      auto wizard = showWizard();
      QWidget* d = selMethod();
      QVERIFY(QTest::qWaitForWindowExposed(d));
      verifyCentred(d, 1600, 1200);
      d->findChild<QListWidget*>(QStringLiteral("lstMethods"))->setCurrentRow(method);
      QTest::mouseClick(button(d, "cmdNext"), Qt::LeftButton);
      QWidget* m = topLevel(method == 0 ? "frmDirectA" : "frmTradeOffsA");
      QVERIFY(m != nullptr);
      QVERIFY(QTest::qWaitForWindowExposed(m));
      verifyCentred(m, 1600, 1200);
      wizard.reset();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }

  void showTNWizardTwiceShowsOneDialog() {
    auto wizard = showWizard();
    selMethod()->hide();
    wizard->ShowTNWizard();
    QCOMPARE(countTopLevel("frmTNWSelMethod"), 1);
    QVERIFY(selMethod()->isVisible());
    QCOMPARE(m_host.log.size(), std::size_t{1});
  }

  void cancelReachesTheHostWhichUnloadsTheWizard() {
    auto wizard = showWizard();
    m_host.onUnload = [&] { wizard->UnloadTNWizard(); };
    QWidget* d = selMethod();
    QVERIFY(QTest::qWaitForWindowExposed(d));
    QTest::mouseClick(button(d, "cmdCancel"), Qt::LeftButton);
    QCOMPARE(m_host.log.back(), std::string("UnloadTNWizard 3 false"));
    QVERIFY(!d->isVisible());
    QPointer<QWidget> guard(d);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(guard.isNull());
  }

  void unloadTNWizardWithNothingShownDoesNothing() {
    TNW_MAVT wizard(m_ui);
    wizard.UnloadTNWizard();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(m_ui.messages().empty());
  }

  void showAfterUnloadMakesAFreshSelectionDialog() {
    auto wizard = showWizard();
    QPointer<QWidget> first(selMethod());
    wizard->UnloadTNWizard();
    wizard->ShowTNWizard();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(first.isNull());
    QVERIFY(selMethod() != nullptr);
    QVERIFY(selMethod()->isVisible());
  }

  void tradeOffsRunsToTheExportTheHostReceives() {
    auto wizard = showWizard();
    m_host.onUnload = [&] { wizard->UnloadTNWizard(); };
    QWidget* d = selMethod();
    auto* list = d->findChild<QListWidget*>(QStringLiteral("lstMethods"));
    list->setCurrentRow(1);
    QTest::mouseClick(button(d, "cmdNext"), Qt::LeftButton);
    QWidget* t = topLevel("frmTradeOffsA");
    QVERIFY(t != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(t));
    QVERIFY(t->isModal());
    QVERIFY(!d->isVisible());
    QVERIFY(m_ui.messages().empty());
    QCOMPARE(m_host.log.back(), std::string("SendMasseges  Give your preference between the two "
                                            "selected criteria."));
    // Six attributes: thirty trade-offs on the random alternatives as drawn, then the results.
    auto* enter = button(t, "cmdTradeOffEnter");
    for (int i = 0; i < 30; ++i) QTest::mouseClick(enter, Qt::LeftButton);
    QTest::mouseClick(button(t, "cmdNext"), Qt::LeftButton);
    QVERIFY(button(t, "cmdFinish")->isEnabled());
    m_host.log.clear();
    QTest::mouseClick(button(t, "cmdFinish"), Qt::LeftButton);
    QCOMPARE(m_host.log.size(), std::size_t{2});
    QCOMPARE(m_host.log[0], std::string("ExportTradeOffsW MAVT_TRADEOFFS"));
    QCOMPARE(m_host.log[1], std::string("UnloadTNWizard 3 true"));
    QCOMPARE(m_host.exports.size(), std::size_t{1});
    QCOMPARE(m_host.exports[0].size(), std::size_t{6});
    QVERIFY(!t->isVisible());
  }

  void helpGoesToTheHostsHelpHandler() {
    TNW_MAVT wizard;
    std::string file;
    int context = 0;
    wizard.setHelpHandler([&](const std::string& f, int c) {
      file = f;
      context = c;
    });
    std::string dir = "C:\\NORIX";
    wizard.GetCurFileData(dir, 1, TNW_SAMPLE_MODEL);
    wizard.ShowTNWizard();
    QTest::mouseClick(button(selMethod(), "cmdHelp"), Qt::LeftButton);
    QCOMPARE(file, std::string("C:\\NORIX\\NORIX.HLP"));
    QCOMPARE(context, 4005025);
    QCOMPARE(countTopLevel("helpBrowser"), 0);
    wizard.UnloadTNWizard();
  }

  void helpWithoutAHandlerShowsTheSelectionPageInTheHelpWindow() {
    TNW_MAVT wizard;
    std::string dir = "C:\\NORIX";
    wizard.GetCurFileData(dir, 1, TNW_SAMPLE_MODEL);
    wizard.ShowTNWizard();
    QVERIFY(selMethod() != nullptr);
    QTest::mouseClick(button(selMethod(), "cmdHelp"), Qt::LeftButton);
    QCOMPARE(countTopLevel("helpBrowser"), 1);
    auto* browser = qobject_cast<QTextBrowser*>(topLevel("helpBrowser"));
    QVERIFY(browser != nullptr);
    QVERIFY(browser->isVisible());
    QCOMPARE(browser->source(), QUrl(QStringLiteral("qrc:/tnw/help/selmethod.html#selection")));
    QVERIFY(browser->toPlainText().contains(QStringLiteral("Choosing the elicitation method")));
    QVERIFY(!browser->windowTitle().isEmpty());
    // Not blocked by a modal dialog: either none is open or the help window is one of its.
    QWidget* modal = QApplication::activeModalWidget();
    QVERIFY(modal == nullptr || browser->parentWidget() == modal);
    // Pressed again, the same window comes back.
    QTest::mouseClick(button(selMethod(), "cmdHelp"), Qt::LeftButton);
    QCOMPARE(countTopLevel("helpBrowser"), 1);
    QCOMPARE(topLevel("helpBrowser"), static_cast<QWidget*>(browser));
    delete browser;
    wizard.UnloadTNWizard();
  }

  void withTheHostsUiServicesHelpGoesThroughThem() {
    TNW_MAVT wizard(m_ui);
    bool handlerCalled = false;
    wizard.setHelpHandler([&](const std::string&, int) { handlerCalled = true; });
    std::string dir = "C:\\NORIX";
    wizard.GetCurFileData(dir, 1, TNW_SAMPLE_MODEL);
    wizard.ShowTNWizard();
    QTest::mouseClick(button(selMethod(), "cmdHelp"), Qt::LeftButton);
    QVERIFY(!handlerCalled);
    QCOMPARE(m_ui.helpFile(), std::string("C:\\NORIX\\NORIX.HLP"));
    QCOMPARE(m_ui.helpContext(), 4005025);
    wizard.UnloadTNWizard();
  }

  void aMethodDialogBlocksTheHostsOtherWindows() {
    QWidget hostWindow;
    auto* hostButton = new QPushButton(QStringLiteral("Host"), &hostWindow);
    int hostClicks = 0;
    connect(hostButton, &QPushButton::clicked, [&hostClicks] { ++hostClicks; });
    hostWindow.show();
    QVERIFY(QTest::qWaitForWindowExposed(&hostWindow));
    // Clicks reach the host's window as the window system delivers them, where modality acts.
    const auto clickHost = [&] {
      QTest::mouseClick(hostWindow.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                        hostButton->geometry().center());
    };
    clickHost();
    QCOMPARE(hostClicks, 1);
    auto wizard = showWizard();
    m_host.onUnload = [&] { wizard->UnloadTNWizard(); };
    // The selection dialog is modeless: the host's window still takes input.
    clickHost();
    QCOMPARE(hostClicks, 2);
    QTest::mouseClick(button(selMethod(), "cmdNext"), Qt::LeftButton);
    QWidget* direct = topLevel("frmDirectA");
    QVERIFY(direct != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(direct));
    QCOMPARE(direct->windowModality(), Qt::ApplicationModal);
    QCOMPARE(QApplication::activeModalWidget(), direct);
    clickHost();
    QCOMPARE(hostClicks, 2);
    // Once the wizard is unloaded the host's window takes input again.
    QTest::mouseClick(button(direct, "cmdCancel"), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    clickHost();
    QCOMPARE(hostClicks, 3);
  }

  void twoWizardsKeepTheirOwnDialogs() {
    auto a = showWizard();
    auto b = showWizard();
    QCOMPARE(countTopLevel("frmTNWSelMethod"), 2);
    a->UnloadTNWizard();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(countTopLevel("frmTNWSelMethod"), 1);
    QVERIFY(selMethod()->isVisible());
  }

  void destroyingTheWizardFromInsideItsOwnEventIsSafe() {
    auto* wizard = new TNW_MAVT(m_ui);
    wizard->setEvents(&m_host);
    std::string dir = "/opt/norix";
    wizard->GetCurFileData(dir, 3, TNW_SAMPLE_MODEL);
    wizard->ShowTNWizard();
    m_host.onUnload = [&wizard] {
      delete wizard;
      wizard = nullptr;
    };
    QTest::mouseClick(button(selMethod(), "cmdCancel"), Qt::LeftButton);
    QCOMPARE(wizard, nullptr);
    QCOMPARE(m_host.log.back(), std::string("UnloadTNWizard 3 false"));
    // The object's data and dialogs go once control is back in the event loop.
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
  }

  void destroyingTheWizardReleasesItsDialogs() {
    showWizard().reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(selMethod(), nullptr);
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::TnwMavtDialogTest)
#include "tnw_mavt_dialog_test.moc"
