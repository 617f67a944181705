#pragma once

// The measuring half of the start-up probes (startup_probe, startup_probe_empty): it needs only
// Qt Widgets, so the empty-dialog baseline links nothing of the wizard.

// Qt
#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QString>
#include <QTimer>

// Std
#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace tnw {

// Watches the application for the first paint of one top-level window, then prints the time
// since process start and the peak memory as one JSON line and ends the event loop. Process
// start is the caller's clock reading in TNW_PROBE_T0 (CLOCK_REALTIME, nanoseconds), taken just
// before it started the process; without it the probe's own start is used.
class StartupProbe : public QObject {
 public:
  // A probe for the first paint of the window named windowName.
  explicit StartupProbe(QString windowName)
      : m_name(std::move(windowName)), m_t0(startOfProcess()) {}

  // Starts watching app's events; a window that never paints ends the run with status 3.
  void watch(QCoreApplication& app) {
    app.installEventFilter(this);
    QTimer::singleShot(20000, this, [] { QCoreApplication::exit(3); });
  }

  // The clock reading in nanoseconds, as the caller's TNW_PROBE_T0.
  static long long nowNs() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
  }

 protected:
  // Notes the first paint of the window and reports once that paint has been flushed.
  bool eventFilter(QObject* obj, QEvent* event) override {
    if (!m_seen && event->type() == QEvent::Paint && obj->objectName() == m_name) {
      m_seen = true;
      QTimer::singleShot(0, this, [this] { report(); });
    }
    return false;
  }

 private:
  static long long startOfProcess() {
    const char* t0 = std::getenv("TNW_PROBE_T0");
    return t0 != nullptr ? std::atoll(t0) : nowNs();
  }

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

}  // namespace tnw
