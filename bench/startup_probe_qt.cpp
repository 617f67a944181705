// Start-up probe: the time from process start to the first painted selection dialog, and the
// peak memory at that moment. `startup_probe wizard MODEL` shows the wizard as a host does;
// `startup_probe empty` shows an empty QDialog, for comparison. The caller passes its clock
// reading just before starting the process in TNW_PROBE_T0 (CLOCK_REALTIME, nanoseconds); the
// probe prints one JSON line and exits.

#include "common/recording_ui_services.h"
#include "component/tnw_mavt.h"

// Qt
#include <QApplication>
#include <QDialog>
#include <QTimer>

// Std
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include <sys/resource.h>

namespace {

long long nowNs() {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(
             std::chrono::system_clock::now().time_since_epoch())
      .count();
}

// Reports once, after the first paint of the named top-level window has been flushed.
class FirstPaint : public QObject {
 public:
  FirstPaint(QString name, long long t0) : m_name(std::move(name)), m_t0(t0) {}

 protected:
  bool eventFilter(QObject* obj, QEvent* event) override {
    if (!m_seen && event->type() == QEvent::Paint && obj->objectName() == m_name) {
      m_seen = true;
      QTimer::singleShot(0, [this] { report(); });
    }
    return false;
  }

 private:
  void report() {
    const long long elapsed = nowNs() - m_t0;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("{\"firstPaintMs\":%.3f,\"peakRssKiB\":%ld}\n", static_cast<double>(elapsed) / 1e6,
                usage.ru_maxrss);
    std::fflush(stdout);
    QCoreApplication::exit(0);
  }

  QString m_name;
  long long m_t0;
  bool m_seen = false;
};

}  // namespace

int main(int argc, char** argv) {
  const char* t0Text = std::getenv("TNW_PROBE_T0");
  const long long t0 = t0Text != nullptr ? std::atoll(t0Text) : nowNs();
  const std::string mode = argc > 1 ? argv[1] : "";
  if (mode != "empty" && !(mode == "wizard" && argc == 3)) {
    std::fputs("usage: startup_probe wizard MODEL | startup_probe empty\n", stderr);
    return 1;
  }
  QApplication app(argc, argv);
  FirstPaint probe(mode == "wizard" ? QStringLiteral("frmTNWSelMethod") : QStringLiteral("empty"),
                   t0);
  app.installEventFilter(&probe);
  QTimer::singleShot(20000, [] { QCoreApplication::exit(3); });

  tnw::RecordingUiServices ui;
  std::unique_ptr<tnw::TNW_MAVT> wizard;
  std::unique_ptr<QDialog> empty;
  if (mode == "wizard") {
    wizard = std::make_unique<tnw::TNW_MAVT>(ui);
    std::string dir = QCoreApplication::applicationDirPath().toStdString();
    wizard->GetCurFileData(dir, 1, argv[2]);
    wizard->ShowTNWizard();
  } else {
    empty = std::make_unique<QDialog>();
    empty->setObjectName(QStringLiteral("empty"));
    empty->show();
  }
  const int status = QApplication::exec();
  if (wizard) wizard->UnloadTNWizard();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return status;
}
