#include "component/ui/wizard_backend.h"

#include "common/ui/widget_ui_services.h"
#include "wizard/ui/dialog_window.h"
#include "model/model_file_reader.h"

// Qt
#include <QApplication>
#include <QString>
#include <QThread>

// Std
#include <exception>
#include <mutex>

namespace tnw {

namespace {

// COM may make objects on several apartment threads at the same time.
std::mutex g_applicationMutex;
QApplication* g_madeApplication = nullptr;

// The application made for a host without one. Every event of the process passes its notify:
// an exception thrown by any handler, a widget's own paint or mouse handler included, ends the
// wizard it belongs to there and never reaches the host's message loop.
class GuardedApplication : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (...) {
      DialogWindow::handlerFailed(receiver, std::current_exception());
      return true;
    }
  }
};

}  // namespace

WizardBackend::WizardBackend(UiServices* hostUi, JudgmentFiles files)
    : m_ownUi(hostUi == nullptr ? std::make_unique<WidgetUiServices>() : nullptr),
      m_ui(hostUi == nullptr ? *m_ownUi : *hostUi),
      m_factory(m_ui, files) {}

WizardBackend::~WizardBackend() = default;

QApplication* WizardBackend::ensureApplication(const QString& libraryDir) {
  std::lock_guard lock(g_applicationMutex);
  if (QCoreApplication* existing = QCoreApplication::instance()) {
    auto* app = qobject_cast<QApplication*>(existing);
    // Widgets can only be made on the thread of a QApplication.
    if (app == nullptr || app->thread() != QThread::currentThread()) return nullptr;
    return app;
  }
  // Paths added before the application exists are kept when it is made; Qt then finds the
  // platform plugin beside the DLL rather than beside the host's executable.
  if (!libraryDir.isEmpty()) QCoreApplication::addLibraryPath(libraryDir);
  // QApplication keeps argc and argv for its whole life.
  static int argc = 1;
  static char name[] = "TNWizard_MAVT";
  static char* argv[] = {name, nullptr};
  // The application made here is never deleted: it lives until the process ends, on purpose.
  // Dialogs released with deleteLater and queued calls of the component may still be pending
  // after the last component object is gone, and widgets must not outlive their application;
  // Qt supports one QApplication at a time, and making a new one for the host's next object
  // would set up the platform, fonts and style again; and deleting it when the DLL is detached
  // would destroy windows under the loader lock, which Windows forbids. The server keeps its
  // DLL, and with it Qt's, loaded for the same reason. It is never run with exec(): on Windows
  // the host's own message loop dispatches the messages of Qt's windows and of its internal
  // message window, which delivers Qt's posted events and timers (as Qt's ActiveQt in-process
  // servers work).
  g_madeApplication = new GuardedApplication(argc, argv);
  // The host, not the last of our windows, decides when the process ends.
  g_madeApplication->setQuitOnLastWindowClosed(false);
  return g_madeApplication;
}

bool WizardBackend::madeApplication() {
  std::lock_guard lock(g_applicationMutex);
  return g_madeApplication != nullptr;
}

WizardComponent::ModelReader WizardBackend::modelReader() const {
  return [](const std::string& PathAndFileName, AttributeModel& model, UiServices& ui) {
    OpenRelatedFileForTNW(PathAndFileName, model, ui);
  };
}

}  // namespace tnw
