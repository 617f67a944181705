// Start-up probe: the time from process start to the first painted selection dialog, and the
// peak memory at that moment. `startup_probe MODEL` shows the wizard as a host does and prints
// one JSON line, {"firstPaintMs":…,"peakRssKiB":…}; startup_probe_empty is the baseline.

#include "startup_probe_qt.h"

#include "common/core/recording_ui_services.h"
#include "component/tnw_mavt.h"

// Qt
#include <QApplication>

// Std
#include <cstdio>
#include <string>

int main(int argc, char** argv) {
  tnw::StartupProbe probe(QStringLiteral("frmTNWSelMethod"));
  if (argc != 2) {
    std::fputs("usage: startup_probe MODEL\n", stderr);
    return 1;
  }
  QApplication app(argc, argv);
  probe.watch(app);
  int status = 0;
  {
    tnw::RecordingUiServices ui;
    tnw::TNW_MAVT wizard(ui);
    std::string dir = QCoreApplication::applicationDirPath().toStdString();
    wizard.GetCurFileData(dir, 1, argv[1]);
    wizard.ShowTNWizard();
    status = QApplication::exec();
    wizard.UnloadTNWizard();
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return status;
}
