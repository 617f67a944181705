// The Qt backend as an in-process server uses it: in a process that has no QApplication yet
// (the default mode, "no-application"), in one whose host made its own ("host-application"),
// and in one whose application cannot show widgets ("core-application"). The mode is the first
// argument; this file has its own main so that the first case really starts without one.
// Events are driven with QCoreApplication::processEvents only, as a host's own loop would.

#include "component/ui/wizard_backend.h"

#include "common/core/recording_ui_services.h"
#include "common/ui/widget_ui_services.h"
#include "component/core/tnw_mavt_events.h"
#include "component/core/wizard_component.h"

// Qt
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QThread>
#include <QWindow>
#include <QtTest>

// Std
#include <algorithm>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace tnw {
namespace {

// A host that records the events as text and may act on UnloadTNWizard.
class RecordingHost : public TnwMavtEvents {
 public:
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    log.push_back("UnloadTNWizard " + std::to_string(fIndex) + (WeightsDone ? " true" : " false"));
    if (onUnload) onUnload();
  }
  void SendMasseges(const std::string& Msg) override { log.push_back("SendMasseges " + Msg); }

  std::vector<std::string> log;
  std::function<void()> onUnload;
};

// Runs events as a host's message loop does until done() holds: processEvents, never exec(),
// and never QTest::qWait, which also delivers deferred deletes that a host's loop would not.
bool pumpUntil(const std::function<bool()>& done) {
  QElapsedTimer timer;
  timer.start();
  while (!done()) {
    if (timer.elapsed() > 5000) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  }
  return true;
}

QWidget* selMethod() {
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (w->objectName() == QLatin1String("frmTNWSelMethod")) return w;
  }
  return nullptr;
}

// A component made from the backend's parts that read the sample model and showed the wizard,
// with a recording host.
class ShownWizard {
 public:
  explicit ShownWizard(WizardBackend& backend)
      : component(backend.factory(), backend.ui(), backend.modelReader()) {
    component.setEvents(&host);
    std::string dir = "/opt/norix";
    component.GetCurFileData(dir, 3, TNW_SAMPLE_MODEL);
    component.ShowTNWizard();
  }

  RecordingHost host;
  WizardComponent component;
};

// Shows the wizard, presses Cancel on the selection dialog, and checks the event and that the
// dialogs are gone once the host called UnloadTNWizard (from inside the event, or after it).
void cancelThenUnload(WizardBackend& backend, bool unloadInsideTheEvent) {
  ShownWizard wizard(backend);
  QCOMPARE(wizard.component.context().model.NumAtt, 6);
  QPointer<QWidget> dialog = selMethod();
  QVERIFY(dialog != nullptr);
  QVERIFY(dialog->isVisible());
  QVERIFY(pumpUntil([&] { return dialog->windowHandle() && dialog->windowHandle()->isExposed(); }));
  if (unloadInsideTheEvent) wizard.host.onUnload = [&] { wizard.component.UnloadTNWizard(); };
  auto* cancel = dialog->findChild<QPushButton*>(QStringLiteral("cmdCancel"));
  QVERIFY(cancel != nullptr);
  // Clicked through the dialog's window, the way the platform delivers a user's click (the
  // widget overload would call the widget's handler outside every event).
  QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {},
                    cancel->mapTo(dialog.data(), cancel->rect().center()));
  QCOMPARE(wizard.host.log,
           (std::vector<std::string>{
               "SendMasseges Select a method to make value judgments between the attributes.",
               "UnloadTNWizard 3 false"}));
  if (!unloadInsideTheEvent) wizard.component.UnloadTNWizard();
  QVERIFY(dialog.isNull() || !dialog->isVisible());
  QVERIFY2(pumpUntil([&] { return dialog.isNull(); }), "the released dialog was never deleted");
  QVERIFY(wizard.component.selMethod() == nullptr);
}

// The application a test needs when it runs without the first test of its process.
bool haveApplication() { return WizardBackend::ensureApplication(QString()) != nullptr; }

// An event filter that fails on every mouse release it sees, as a widget's own handler that
// nothing of the wizard wraps would.
class FailingFilter : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonRelease) throw std::runtime_error("The widget failed.");
    return QObject::eventFilter(watched, event);
  }
};

bool noTopLevelWidgetLeft() {
  return pumpUntil([] { return QApplication::topLevelWidgets().isEmpty(); });
}

}  // namespace

// Starts in a process without a QApplication.
class WizardBackendQtMadeApplicationTest : public QObject {
  Q_OBJECT

 private slots:
  // Runs first, before anything has made an application.
  void makesTheApplicationWhenTheProcessHasNone() {
    QVERIFY(QCoreApplication::instance() == nullptr);
    QVERIFY(!WizardBackend::madeApplication());
    QTemporaryDir plugins;
    QVERIFY(plugins.isValid());
    QApplication* app = WizardBackend::ensureApplication(plugins.path());
    QVERIFY(app != nullptr);
    QCOMPARE(QCoreApplication::instance(), app);
    QVERIFY(WizardBackend::madeApplication());
    QVERIFY(!QApplication::quitOnLastWindowClosed());
    QCOMPARE(QCoreApplication::libraryPaths().value(0), QDir(plugins.path()).canonicalPath());
    QCOMPARE(WizardBackend::ensureApplication(QString()), app);
  }

  void cleanup() { QVERIFY2(noTopLevelWidgetLeft(), "a top-level widget leaked"); }

  void cancelRaisesUnloadTNWizardAndUnloadTNWizardReleasesTheDialogs() {
    QVERIFY(haveApplication());
    WizardBackend backend;
    cancelThenUnload(backend, false);
  }

  void unloadTNWizardFromInsideTheEventReleasesTheDialogs() {
    QVERIFY(haveApplication());
    WizardBackend backend;
    cancelThenUnload(backend, true);
  }

  void destroyingTheComponentReleasesTheShownDialog() {
    QVERIFY(haveApplication());
    WizardBackend backend;
    QPointer<QWidget> dialog;
    {
      ShownWizard wizard(backend);
      dialog = selMethod();
      QVERIFY(dialog != nullptr);
      QVERIFY(dialog->isVisible());
    }
    QVERIFY2(pumpUntil([&] { return dialog.isNull(); }), "the released dialog was never deleted");
  }

  // The application made here catches what no handler of the wizard caught, on every widget.
  void aFailureAnywhereInADialogEndsTheWizardInTheMadeApplication() {
    QVERIFY(haveApplication());
    RecordingUiServices ui;
    WizardBackend backend(&ui);
    ShownWizard wizard(backend);
    QPointer<QWidget> dialog = selMethod();
    QVERIFY(dialog != nullptr);
    QVERIFY(
        pumpUntil([&] { return dialog->windowHandle() && dialog->windowHandle()->isExposed(); }));
    auto* cancel = dialog->findChild<QPushButton*>(QStringLiteral("cmdCancel"));
    FailingFilter failing;
    cancel->installEventFilter(&failing);
    bool returned = true;
    try {
      QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {},
                        cancel->mapTo(dialog.data(), cancel->rect().center()));
    } catch (...) {
      returned = false;
    }
    QVERIFY2(returned, "the exception escaped the application");
    QCOMPARE(ui.messages().size(), std::size_t{1});
    QCOMPARE(ui.messages()[0].text, std::string("The widget failed."));
    QCOMPARE(ui.messages()[0].title, std::string("NORIX"));
    QVERIFY(ui.messages()[0].icon == MessageIcon::Exclamation);
    // The failing release never reached Cancel: the only UnloadTNWizard is the failure's.
    QCOMPARE(wizard.host.log.back(), std::string("UnloadTNWizard 3 false"));
    QCOMPARE(std::count(wizard.host.log.begin(), wizard.host.log.end(), "UnloadTNWizard 3 false"),
             1L);
    QVERIFY(wizard.component.selMethod() == nullptr);
    QVERIFY2(pumpUntil([&] { return dialog.isNull(); }), "the released dialog was never deleted");
    wizard.component.ShowTNWizard();
    QVERIFY(selMethod() != nullptr);
    wizard.component.UnloadTNWizard();
  }

  void aSecondBackendUsesTheSameApplication() {
    QApplication* app = WizardBackend::ensureApplication(QString());
    QVERIFY(app != nullptr);
    QCOMPARE(WizardBackend::ensureApplication(QString()), app);
    QVERIFY(WizardBackend::madeApplication());
    WizardBackend backend;
    cancelThenUnload(backend, true);
    QCOMPARE(QCoreApplication::instance(), app);
  }
};

// Runs in a process whose host made its own QApplication.
class WizardBackendQtHostApplicationTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { QVERIFY2(noTopLevelWidgetLeft(), "a top-level widget leaked"); }

  void usesTheHostsApplication() {
    QCoreApplication* hosts = QCoreApplication::instance();
    QVERIFY(hosts != nullptr);
    QCOMPARE(static_cast<QCoreApplication*>(WizardBackend::ensureApplication(QString())), hosts);
    QVERIFY(!WizardBackend::madeApplication());
    WizardBackend backend;
    cancelThenUnload(backend, false);
    QCOMPARE(QCoreApplication::instance(), hosts);
    QVERIFY(!WizardBackend::madeApplication());
  }

  void refusesTheApplicationOfAnotherThread() {
    QApplication* fromThread = qApp;
    std::thread other([&fromThread] { fromThread = WizardBackend::ensureApplication({}); });
    other.join();
    QVERIFY(fromThread == nullptr);
    QVERIFY(!WizardBackend::madeApplication());
  }

  void usesTheHostsUiServicesWhenGiven() {
    RecordingUiServices hostUi;
    WizardBackend withHostUi(&hostUi);
    QCOMPARE(&withHostUi.ui(), static_cast<UiServices*>(&hostUi));
    QVERIFY(withHostUi.qtUi() == nullptr);
    WizardBackend withQtUi;
    QVERIFY(withQtUi.qtUi() != nullptr);
    QCOMPARE(&withQtUi.ui(), static_cast<UiServices*>(withQtUi.qtUi()));
  }
};

// Runs in a process whose application is a QCoreApplication, which cannot show widgets.
class WizardBackendQtCoreApplicationTest : public QObject {
  Q_OBJECT

 private slots:
  void refusesAnApplicationWithoutWidgets() {
    QVERIFY(QCoreApplication::instance() != nullptr);
    QVERIFY(WizardBackend::ensureApplication(QString()) == nullptr);
    QVERIFY(!WizardBackend::madeApplication());
    QVERIFY(qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr);
  }
};

}  // namespace tnw

int main(int argc, char** argv) {
  const std::string mode = argc > 1 ? argv[1] : "no-application";
  // QtTest and the application see the program name and what follows the mode.
  std::vector<char*> args{argv[0]};
  for (int i = 2; i < argc; ++i) args.push_back(argv[i]);
  int count = int(args.size());
  args.push_back(nullptr);
  if (mode == "no-application") {
    tnw::WizardBackendQtMadeApplicationTest test;
    return QTest::qExec(&test, count, args.data());
  }
  if (mode == "host-application") {
    QApplication app(count, args.data());
    tnw::WizardBackendQtHostApplicationTest test;
    return QTest::qExec(&test, count, args.data());
  }
  if (mode == "core-application") {
    QCoreApplication app(count, args.data());
    tnw::WizardBackendQtCoreApplicationTest test;
    return QTest::qExec(&test, count, args.data());
  }
  std::fprintf(stderr, "usage: %s [no-application|host-application|core-application] ...\n",
               argv[0]);
  return 2;
}

#include "wizard_backend_qt_test.moc"
