// Without its printing module (an installation that lost the file) the wizard still runs: Print
// says that printing is not available and why, and Save as SVG writes nothing and says it failed.

#include "graphs/ui/chart_export.h"
#include "graphs/ui/print_support.h"
#include "graphs/ui/results_printout.h"

// Qt
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

namespace tnw {

class PrintModuleMissingTest : public QObject {
  Q_OBJECT

 private slots:
  // Runs first, before anything has loaded the module in this process.
  void initTestCase() { setPrintModuleFile("libtnwizard_mavt_print_missing.so"); }

  void theModuleIsReportedMissing() {
    QString error;
    QVERIFY(printSupport(&error) == nullptr);
    QVERIFY2(error.contains(QLatin1String("libtnwizard_mavt_print_missing.so")), qPrintable(error));
  }

  void svgWritesNothingAndFails() {
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("chart.svg"));
    const ChartWidget::Painter chart = [](QPainter& p, const QRectF& area) {
      p.drawLine(area.topLeft(), area.bottomRight());
    };
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^TNW_MAVT: no SVG is written: ")));
    QVERIFY(!ChartExport::toSvg(chart, path, QSize(200, 100), QStringLiteral("Line")));
    QVERIFY(!QFile::exists(path));
  }

  void printSaysItIsNotAvailable() {
    QWidget parent;
    parent.show();
    bool printed = false;
    ResultsPrintout::openPrintDialog(&parent, QStringLiteral("Weights"),
                                     [&printed](QPagedPaintDevice&) { printed = true; });
    auto* box = parent.findChild<QMessageBox*>();
    QVERIFY(box != nullptr);
    QTRY_VERIFY(box->isVisible());
    QCOMPARE(box->windowTitle(), QStringLiteral("Weights"));
    QVERIFY2(box->text().startsWith(QLatin1String("Printing is not available: ")),
             qPrintable(box->text()));
    QVERIFY(box->text().contains(QLatin1String("libtnwizard_mavt_print_missing.so")));
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_VERIFY(parent.findChild<QMessageBox*>() == nullptr);
    QVERIFY(!printed);
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::PrintModuleMissingTest)
#include "print_module_missing_test.moc"
