// The exports of frmDirectA's results step through the real widgets: Copy puts gridTN as
// tab-separated text and the chart as a picture on the clipboard, Save as CSV and Save chart as
// SVG write the files chosen through the UI services, and a cancelled choice writes nothing.

#include "direct_results_fixture.h"
#include "graphs/ui/chart_widget.h"
#include "graphs/ui/results_export.h"

// Qt
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QLocale>
#include <QMimeData>
#include <QTemporaryDir>

namespace tnw::direct {

using test::control;

namespace {

// The grid as the user sees it: the header row, then each row's cells.
QList<QStringList> shownCells(const QTableWidget& grid) {
  QList<QStringList> rows;
  QStringList header;
  for (int c = 0; c < grid.columnCount(); ++c) header << grid.horizontalHeaderItem(c)->text();
  rows << header;
  for (int r = 0; r < grid.rowCount(); ++r) {
    QStringList row;
    for (int c = 0; c < grid.columnCount(); ++c) row << grid.item(r, c)->text();
    rows << row;
  }
  return rows;
}

QByteArray readAll(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Whether the image has a pixel that is neither white nor transparent.
bool hasDrawing(const QImage& image) {
  for (int y = 0; y < image.height(); y += 2) {
    for (int x = 0; x < image.width(); x += 2) {
      if (image.pixel(x, y) != qRgb(255, 255, 255)) return true;
    }
  }
  return false;
}

}  // namespace

class DirectAExportsDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_f = std::make_unique<test::DirectResultsFixture>();
    QVERIFY(m_f->open(4));
  }
  void cleanup() {
    m_f->close();
    m_f.reset();
    QLocale::setDefault(QLocale::c());
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }
  void exportButtonsAreOnTheResultsStepWithTheirCaptions();
  void copyPutsTheGridAsTextAndTheChartAsAPicture();
  void saveAsCsvWritesTheGridWithDecimalPointsInAnyLocale();
  void cancellingTheCsvFileWritesNothingAndSaysNothing();
  void aCsvFileThatCannotBeWrittenIsReportedAndChangesNothing();
  void saveChartAsSvgWritesTheChartOrSaysWhyItCannot();
  void cancellingTheSvgFileWritesNothing();
  void tabReachesTheExportButtonsAfterTheGridsAndChart();
  void ctrlCOnTheGridCopiesTheWholeGridAndTheChart();

 private:
  QPushButton* button(const char* name) const { return m_f->button(name); }

  std::unique_ptr<test::DirectResultsFixture> m_f;
};

void DirectAExportsDialogTest::exportButtonsAreOnTheResultsStepWithTheirCaptions() {
  QCOMPARE(button("cmdCopy")->text(), QStringLiteral("Cop&y"));
  QCOMPARE(button("cmdSaveCsv")->text(), QStringLiteral("Save as CS&V"));
  QCOMPARE(button("cmdSaveSvg")->text(), QStringLiteral("Save chart as SV&G"));
  QCOMPARE(button("cmdPrint")->text(), QStringLiteral("&Print"));
  for (const char* name : {"cmdCopy", "cmdSaveCsv", "cmdPrint"}) {
    QVERIFY2(button(name)->isVisible() && button(name)->isEnabled(), name);
  }
  auto* chart = control<ChartWidget>(m_f->m_dialog.get(), "picWeightGraph");
  QVERIFY(chart->isVisible());
  QVERIFY(chart->hasChart());
  // Back to the judgments: the page and its buttons go, and Print with them.
  QTest::mouseClick(button("cmdBack"), Qt::LeftButton);
  QVERIFY(!button("cmdCopy")->isVisible());
  QVERIFY(!button("cmdPrint")->isVisible());
}

void DirectAExportsDialogTest::copyPutsTheGridAsTextAndTheChartAsAPicture() {
  QGuiApplication::clipboard()->clear();
  QTest::mouseClick(button("cmdCopy"), Qt::LeftButton);
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  QVERIFY(data != nullptr);
  QVERIFY(data->hasText());
  QStringList lines;
  for (const QStringList& row : shownCells(*m_f->gridTN())) lines << row.join(QLatin1Char('\t'));
  QCOMPARE(data->text(), lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"));
  QVERIFY(data->text().startsWith(
      QStringLiteral("ID\tAttributes\tWeights\tMiddle Points\tWeight ranges\r\n1\tAtt1\tW1\t")));
  QVERIFY(data->hasImage());
  const QImage image = qvariant_cast<QImage>(data->imageData());
  auto* chart = control<ChartWidget>(m_f->m_dialog.get(), "picWeightGraph");
  QCOMPARE(image.size(), ResultsExport::chartSize(*chart));
  QVERIFY(hasDrawing(image));
  QVERIFY(m_f->m_ui.fileRequests().empty());
  QVERIFY(m_f->m_ui.messages().empty());
}

void DirectAExportsDialogTest::saveAsCsvWritesTheGridWithDecimalPointsInAnyLocale() {
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("weights.csv"));
  m_f->m_ui.setSaveFile(path.toStdString());
  QTest::mouseClick(button("cmdSaveCsv"), Qt::LeftButton);
  QCOMPARE(m_f->m_ui.fileRequests().size(), std::size_t{1});
  QCOMPARE(m_f->m_ui.fileRequests().back().filter, std::string("CSV files (*.csv)"));
  QCOMPARE(m_f->m_ui.fileRequests().back().suggestedName, std::string("family_car_weights.csv"));
  QStringList lines;
  for (const QStringList& row : shownCells(*m_f->gridTN())) {
    QStringList fields;
    for (const QString& cell : row) {
      fields << (cell.contains(QLatin1Char(',')) ? QLatin1Char('"') + cell + QLatin1Char('"')
                                                 : cell);
    }
    lines << fields.join(QLatin1Char(','));
  }
  const QByteArray csv = readAll(path);
  QCOMPARE(QString::fromUtf8(csv), lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"));
  // The weights keep their decimal point; the range column is quoted for its comma.
  const QString row1 = QString::fromUtf8(csv).split(QStringLiteral("\r\n")).at(1);
  QVERIFY2(row1.startsWith(QStringLiteral("1,Att1,W1,0.")), qPrintable(row1));
  QVERIFY2(row1.contains(QStringLiteral(",\"0.")), qPrintable(row1));
  QVERIFY(m_f->m_ui.messages().empty());
}

void DirectAExportsDialogTest::cancellingTheCsvFileWritesNothingAndSaysNothing() {
  QTemporaryDir dir;
  m_f->m_ui.setSaveFile("");
  QTest::mouseClick(button("cmdSaveCsv"), Qt::LeftButton);
  QCOMPARE(m_f->m_ui.fileRequests().size(), std::size_t{1});
  QVERIFY(QDir(dir.path()).entryList(QDir::Files).isEmpty());
  QVERIFY(m_f->m_ui.messages().empty());
  QCOMPARE(m_f->m_dialog->presenter().WizardStep(), DirectAPresenter::kResultsStep);
}

void DirectAExportsDialogTest::aCsvFileThatCannotBeWrittenIsReportedAndChangesNothing() {
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("no such folder/weights.csv"));
  m_f->m_ui.setSaveFile(path.toStdString());
  const auto eventsBefore = m_f->m_events.log;
  QTest::mouseClick(button("cmdSaveCsv"), Qt::LeftButton);
  QCOMPARE(m_f->m_ui.messages().size(), std::size_t{1});
  const auto& message = m_f->m_ui.messages().back();
  QCOMPARE(message.title, std::string("NORIX"));
  QVERIFY(message.icon == MessageIcon::Exclamation);
  QCOMPARE(
      QString::fromStdString(message.text),
      QStringLiteral("The file \"%1\" could not be written.").arg(QDir::toNativeSeparators(path)));
  QVERIFY(!QFile::exists(path));
  QCOMPARE(m_f->m_events.log, eventsBefore);
  QCOMPARE(m_f->m_dialog->presenter().WizardStep(), DirectAPresenter::kResultsStep);
  QVERIFY(button("cmdFinish")->isEnabled());
}

void DirectAExportsDialogTest::saveChartAsSvgWritesTheChartOrSaysWhyItCannot() {
  QPushButton* svg = button("cmdSaveSvg");
  if (!ResultsExport::svgAvailable()) {
    // A build whose Qt has no Svg module: the button says why it is disabled.
    QVERIFY(!svg->isEnabled());
    QCOMPARE(svg->toolTip(), ResultsExport::svgUnavailableTip());
    return;
  }
  QVERIFY(svg->isEnabled());
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("chart.svg"));
  m_f->m_ui.setSaveFile(path.toStdString());
  QTest::mouseClick(svg, Qt::LeftButton);
  QCOMPARE(m_f->m_ui.fileRequests().back().filter, std::string("SVG images (*.svg)"));
  QCOMPARE(m_f->m_ui.fileRequests().back().suggestedName, std::string("family_car_chart.svg"));
  const QByteArray bytes = readAll(path);
  QVERIFY(bytes.contains("<svg"));
  QVERIFY(bytes.contains("<title>Attribute Weights and Their Ranges</title>"));
  // The texts stay texts: the attribute names are in the file.
  QVERIFY(bytes.contains(">Att4<"));
  QVERIFY(m_f->m_ui.messages().empty());
}

void DirectAExportsDialogTest::cancellingTheSvgFileWritesNothing() {
  if (!ResultsExport::svgAvailable()) {
    // Nothing to cancel: the button cannot be pressed in a build without SVG.
    QVERIFY(!button("cmdSaveSvg")->isEnabled());
    return;
  }
  QTemporaryDir dir;
  m_f->m_ui.setSaveFile("");
  QTest::mouseClick(button("cmdSaveSvg"), Qt::LeftButton);
  QCOMPARE(m_f->m_ui.fileRequests().size(), std::size_t{1});
  QVERIFY(QDir(dir.path()).entryList(QDir::Files).isEmpty());
  QVERIFY(m_f->m_ui.messages().empty());
}

void DirectAExportsDialogTest::tabReachesTheExportButtonsAfterTheGridsAndChart() {
  m_f->m_dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(m_f->m_dialog.get()));
  // The buttons follow the grids and the chart in the Tab order, and come before the frame's.
  button("cmdCopy")->setFocus(Qt::TabFocusReason);
  QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(button("cmdCopy")));
  QTest::keyClick(button("cmdCopy"), Qt::Key_Backtab);
  QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("picWeightGraph"));
  button("cmdCopy")->setFocus(Qt::TabFocusReason);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(button("cmdSaveCsv")));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  if (button("cmdSaveSvg")->isEnabled()) {
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(button("cmdSaveSvg")));
  }
  // Space on the focused Copy button copies too.
  button("cmdCopy")->setFocus(Qt::TabFocusReason);
  QGuiApplication::clipboard()->clear();
  QTest::keyClick(button("cmdCopy"), Qt::Key_Space);
  QVERIFY(QGuiApplication::clipboard()->mimeData()->hasText());
  QVERIFY(QGuiApplication::clipboard()->mimeData()->text().startsWith(QStringLiteral("ID\t")));
}

void DirectAExportsDialogTest::ctrlCOnTheGridCopiesTheWholeGridAndTheChart() {
  m_f->m_dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(m_f->m_dialog.get()));
  QTableWidget* grid = m_f->gridTN();
  grid->setFocus(Qt::TabFocusReason);
  QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(grid));
  QGuiApplication::clipboard()->clear();
  QTest::keyClick(grid, Qt::Key_C, Qt::ControlModifier);
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  QVERIFY(data != nullptr);
  QVERIFY2(data->text().startsWith(QStringLiteral("ID\tAttributes\tWeights\t")),
           qPrintable(data->text()));
  QCOMPARE(data->text().count(QStringLiteral("\r\n")), grid->rowCount() + 1);
  QVERIFY(data->hasImage());
}

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::DirectAExportsDialogTest)
#include "direct_a_exports_dialog_test.moc"
