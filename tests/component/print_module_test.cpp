// Printing and SVG writing live in a module of their own that is loaded on first use: showing
// the wizard loads neither Qt PrintSupport nor Qt Svg, and the first SVG written loads them.

#include "common/core/recording_ui_services.h"
#include "component/tnw_mavt.h"
#include "graphs/ui/chart_export.h"

// Qt
#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

// Std
#include <string>

namespace tnw {
namespace {

// The files mapped into this process, one line each, as /proc/self/maps lists them.
QByteArray mappedFiles() {
  QFile maps(QStringLiteral("/proc/self/maps"));
  if (!maps.open(QIODevice::ReadOnly)) return {};
  return maps.readAll();
}

QWidget* topLevel(const char* name) {
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (w->objectName() == QLatin1String(name) && w->isVisible()) return w;
  }
  return nullptr;
}

}  // namespace

class PrintModuleTest : public QObject {
  Q_OBJECT

 private slots:
  // Runs first: nothing has printed or written an SVG file in this process yet.
  void showingTheWizardLoadsNeitherPrintingNorSvg() {
    RecordingUiServices ui;
    TNW_MAVT wizard(ui);
    std::string dir = "/opt/norix";
    wizard.GetCurFileData(dir, 1, TNW_SAMPLE_MODEL);
    wizard.ShowTNWizard();
    QVERIFY(topLevel("frmTNWSelMethod") != nullptr);
    QCoreApplication::processEvents();
    const QByteArray maps = mappedFiles();
    QVERIFY(maps.contains("libQt6Widgets"));
    QVERIFY2(!maps.contains("libQt6PrintSupport"), "Qt PrintSupport is loaded");
    QVERIFY2(!maps.contains("libQt6Svg"), "Qt Svg is loaded");
    QVERIFY2(!maps.contains("libtnwizard_mavt_print"), "the printing module is loaded");
    wizard.UnloadTNWizard();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void writingAnSvgFileLoadsTheModule() {
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("chart.svg"));
    const ChartWidget::Painter chart = [](QPainter& p, const QRectF& area) {
      p.drawLine(area.topLeft(), area.bottomRight());
    };
    QVERIFY(ChartExport::toSvg(chart, path, QSize(200, 100), QStringLiteral("Line")));
    QFile svg(path);
    QVERIFY(svg.open(QIODevice::ReadOnly));
    QVERIFY(svg.readAll().contains("<svg"));
    const QByteArray maps = mappedFiles();
    QVERIFY(maps.contains("libtnwizard_mavt_print"));
    QVERIFY(maps.contains("libQt6Svg"));
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::PrintModuleTest)
#include "print_module_test.moc"
