// The start-up probe's baseline: an empty QDialog in a program that links Qt Widgets and nothing
// of the wizard, built with the same flags as startup_probe. `startup_probe_empty` prints one
// JSON line, {"firstPaintMs":…,"peakRssKiB":…}, once the dialog's first paint is flushed.

#include "startup_probe_qt.h"

// Qt
#include <QApplication>
#include <QDialog>

int main(int argc, char** argv) {
  tnw::StartupProbe probe(QStringLiteral("empty"));
  QApplication app(argc, argv);
  probe.watch(app);
  QDialog empty;
  empty.setObjectName(QStringLiteral("empty"));
  empty.show();
  return QApplication::exec();
}
