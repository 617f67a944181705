// Creates, shows and unloads the wizard many times in one process. Run with LeakSanitizer linked
// in: any dialog, presenter or relay object left behind is reported at exit and fails the test.

#include "common/recording_ui_services.h"
#include "component/tnw_mavt.h"

// Qt
#include <QApplication>
#include <QListWidget>
#include <QPushButton>

// Std
#include <cstdio>
#include <string>

namespace {

// Unloads the wizard when it asks to be ended, as a host does.
class Host : public tnw::TnwMavtEvents {
 public:
  explicit Host(tnw::TNW_MAVT& wizard) : m_wizard(wizard) {}
  void UnloadTNWizard(std::int16_t, bool) override {
    ++unloads;
    m_wizard.UnloadTNWizard();
  }
  int unloads = 0;

 private:
  tnw::TNW_MAVT& m_wizard;
};

// The visible wizard dialog of the given name, or null.
QWidget* visibleDialog(const char* name) {
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (w->objectName() == QLatin1String(name) && w->isVisible()) return w;
  }
  return nullptr;
}

// The wizard dialog the user sees now.
QWidget* currentDialog() {
  for (const char* name : {"frmDirectA", "frmTradeOffsA", "frmTNWSelMethod"}) {
    if (QWidget* w = visibleDialog(name)) return w;
  }
  return nullptr;
}

// One run of the wizard: shown, a method chosen (method alternates between the two), cancelled
// on whatever dialog is then showing, unloaded, destroyed.
bool runOnce(tnw::RecordingUiServices& ui, const char* model, int method) {
  tnw::TNW_MAVT wizard(ui);
  Host host(wizard);
  wizard.setEvents(&host);
  std::string dir = "/opt/norix";
  wizard.GetCurFileData(dir, 1, model);
  wizard.ShowTNWizard();
  wizard.ShowTNWizard();
  QWidget* d = visibleDialog("frmTNWSelMethod");
  if (d == nullptr) return false;
  d->findChild<QListWidget*>(QStringLiteral("lstMethods"))->setCurrentRow(method);
  d->findChild<QPushButton*>(QStringLiteral("cmdNext"))->click();
  QWidget* now = currentDialog();
  auto* cancel = now ? now->findChild<QPushButton*>(QStringLiteral("cmdCancel")) : nullptr;
  if (cancel == nullptr) return false;
  cancel->click();
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return host.unloads == 1;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  if (argc != 3) {
    std::fputs("usage: wizard_leak_test MODEL RUNS\n", stderr);
    return 2;
  }
  const int runs = std::stoi(argv[2]);
  tnw::RecordingUiServices ui;
  for (int i = 0; i < runs; ++i) {
    if (!runOnce(ui, argv[1], i % 2)) {
      std::fprintf(stderr, "run %d: the wizard did not show or did not unload\n", i);
      return 1;
    }
    ui.clearMessages();
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  const auto left = QApplication::topLevelWidgets().size();
  if (left != 0) {
    std::fprintf(stderr, "%lld top-level widgets left after %d runs\n",
                 static_cast<long long>(left), runs);
    return 1;
  }
  std::printf("%d runs: created, shown and unloaded; no widget left\n", runs);
  return 0;
}
