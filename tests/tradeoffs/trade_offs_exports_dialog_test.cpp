// The exports of frmTradeOffsA's results page through the real widgets: Copy puts gridWeights
// as tab-separated text and the chart as a picture on the clipboard, Save as CSV and Save chart
// as SVG write the files chosen through the UI services, and a cancelled choice writes nothing.

#include "graphs/ui/chart_widget.h"
#include "graphs/ui/results_export.h"
#include "trade_off_dialog_fixture.h"

// Qt
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QLocale>
#include <QMimeData>
#include <QTableWidget>
#include <QTemporaryDir>

namespace tnw::tradeoffs {

using namespace tnw::testing;

namespace {

// The grid as the user sees it, the headings first, each row joined by `separator`.
QStringList shownLines(const QTableWidget& grid, QChar separator) {
  QStringList lines;
  QStringList header;
  for (int c = 0; c < grid.columnCount(); ++c) header << grid.horizontalHeaderItem(c)->text();
  lines << header.join(separator);
  for (int r = 0; r < grid.rowCount(); ++r) {
    QStringList row;
    for (int c = 0; c < grid.columnCount(); ++c) row << grid.item(r, c)->text();
    lines << row.join(separator);
  }
  return lines;
}

QByteArray readAll(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

}  // namespace

class TradeOffsExportsDialogTest : public QObject, TradeOffDialogParts {
  Q_OBJECT

 private slots:
  void init() {
    renewParts();
    m_context.PathAndFileName = "/home/anna/models/Office site.nrx";
    m_dialog = showDialog(makeModel(3));
    enterEveryTradeOffAndGoNext(m_dialog.get());
    QCOMPARE(m_dialog->presenter().step(), TradeOffsAPresenter::kResultsStep);
    // What the fit said on the way is no concern of these tests.
    m_ui.clearMessages();
  }
  void cleanup() {
    m_dialog.reset();
    QLocale::setDefault(QLocale::c());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }
  void exportButtonsAreBesideTheChartToolbar();
  void copyPutsTheWeightGridAsTextAndTheChartAsAPicture();
  void saveAsCsvWritesTheWeightGridWithDecimalPointsInAnyLocale();
  void cancellingTheCsvFileWritesNothingAndSaysNothing();
  void aCsvFileThatCannotBeWrittenIsReportedAndChangesNothing();
  void saveChartAsSvgWritesTheChartInView();
  void cancellingTheSvgFileWritesNothing();
  void printStaysAsItWas();
  void ctrlCOnTheWeightEstimatesCopiesTheGridAndTheChart();

 private:
  QPushButton* button(const char* name) const {
    return child<QPushButton>(m_dialog.get(), QString::fromLatin1(name));
  }
  QTableWidget* grid() const {
    return child<QTableWidget>(m_dialog.get(), QStringLiteral("gridWeights"));
  }

  std::unique_ptr<TradeOffsADialog> m_dialog;
};

void TradeOffsExportsDialogTest::exportButtonsAreBesideTheChartToolbar() {
  QCOMPARE(button("cmdCopy")->text(), QStringLiteral("Cop&y"));
  QCOMPARE(button("cmdSaveCsv")->text(), QStringLiteral("Save as CS&V"));
  QCOMPARE(button("cmdSaveSvg")->text(), QStringLiteral("Save chart as SV&G"));
  for (const char* name : {"cmdCopy", "cmdSaveCsv", "cmdSaveSvg"}) {
    QVERIFY2(button(name)->isVisible(), name);
    QVERIFY2(button(name)->focusPolicy() & Qt::TabFocus, name);
    QVERIFY2(!button(name)->toolTip().isEmpty(), name);
  }
  QVERIFY(button("cmdCopy")->isEnabled());
  QVERIFY(button("cmdSaveCsv")->isEnabled());
  QCOMPARE(button("cmdSaveSvg")->isEnabled(), ResultsExport::svgAvailable());
  if (!ResultsExport::svgAvailable()) {
    QCOMPARE(button("cmdSaveSvg")->toolTip(), ResultsExport::svgUnavailableTip());
  }
}

void TradeOffsExportsDialogTest::copyPutsTheWeightGridAsTextAndTheChartAsAPicture() {
  QGuiApplication::clipboard()->clear();
  clickButton(m_dialog.get(), "cmdCopy");
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  QVERIFY(data != nullptr);
  QCOMPARE(data->text(), shownLines(*grid(), QLatin1Char('\t')).join(QStringLiteral("\r\n")) +
                             QStringLiteral("\r\n"));
  QVERIFY(data->text().startsWith(QStringLiteral("Attributes\tWeights\tEst.High\tEst.Low\r\n")));
  QVERIFY(data->hasImage());
  const QImage image = qvariant_cast<QImage>(data->imageData());
  auto* chart = child<ChartWidget>(m_dialog.get(), QStringLiteral("picWeightGraph"));
  QCOMPARE(image.size(), ResultsExport::chartSize(*chart));
  // The chart's marks are coloured: some pixel is neither white nor grey.
  bool coloured = false;
  for (int y = 0; y < image.height() && !coloured; ++y) {
    for (int x = 0; x < image.width() && !coloured; ++x) {
      const QColor c = image.pixelColor(x, y);
      coloured = c.red() != c.green() || c.green() != c.blue();
    }
  }
  QVERIFY(coloured);
  QVERIFY(m_ui.fileRequests().empty());
}

void TradeOffsExportsDialogTest::saveAsCsvWritesTheWeightGridWithDecimalPointsInAnyLocale() {
  QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("weights.csv"));
  m_ui.setSaveFile(path.toStdString());
  clickButton(m_dialog.get(), "cmdSaveCsv");
  QCOMPARE(m_ui.fileRequests().size(), std::size_t{1});
  QCOMPARE(m_ui.fileRequests().back().filter, std::string("CSV files (*.csv)"));
  QCOMPARE(m_ui.fileRequests().back().suggestedName, std::string("Office site_weights.csv"));
  const QString csv = QString::fromUtf8(readAll(path));
  QCOMPARE(csv, shownLines(*grid(), QLatin1Char(',')).join(QStringLiteral("\r\n")) +
                    QStringLiteral("\r\n"));
  QVERIFY2(csv.contains(QRegularExpression(QStringLiteral("\\r\\nAtt1,-?\\d+\\.\\d{4},"))),
           qPrintable(csv));
  QVERIFY(m_ui.messages().empty());
}

void TradeOffsExportsDialogTest::cancellingTheCsvFileWritesNothingAndSaysNothing() {
  QTemporaryDir dir;
  m_ui.setSaveFile("");
  clickButton(m_dialog.get(), "cmdSaveCsv");
  QCOMPARE(m_ui.fileRequests().size(), std::size_t{1});
  QVERIFY(QDir(dir.path()).entryList(QDir::Files).isEmpty());
  QVERIFY(m_ui.messages().empty());
}

void TradeOffsExportsDialogTest::aCsvFileThatCannotBeWrittenIsReportedAndChangesNothing() {
  QTemporaryDir dir;
  // The chosen name is taken by a folder, which no file can replace.
  const QString path = dir.filePath(QStringLiteral("weights.csv"));
  QVERIFY(QDir().mkdir(path));
  m_ui.setSaveFile(path.toStdString());
  const auto eventsBefore = m_events.log;
  clickButton(m_dialog.get(), "cmdSaveCsv");
  QCOMPARE(m_ui.messages().size(), std::size_t{1});
  QCOMPARE(m_ui.messages().back().title, std::string("NORIX"));
  QVERIFY(m_ui.messages().back().icon == MessageIcon::Exclamation);
  QCOMPARE(QString::fromStdString(m_ui.messages().back().text), ResultsExport::writeError(path));
  QVERIFY(QFileInfo(path).isDir());
  QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList());
  QCOMPARE(m_events.log, eventsBefore);
  QCOMPARE(m_dialog->presenter().step(), TradeOffsAPresenter::kResultsStep);
}

void TradeOffsExportsDialogTest::saveChartAsSvgWritesTheChartInView() {
  if (!ResultsExport::svgAvailable()) {
    QVERIFY(!button("cmdSaveSvg")->isEnabled());
    return;
  }
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("chart.svg"));
  m_ui.setSaveFile(path.toStdString());
  clickButton(m_dialog.get(), "cmdSaveSvg");
  QCOMPARE(m_ui.fileRequests().back().filter, std::string("SVG images (*.svg)"));
  QCOMPARE(m_ui.fileRequests().back().suggestedName, std::string("Office site_chart.svg"));
  const QByteArray bytes = readAll(path);
  QVERIFY(bytes.contains("<svg"));
  QVERIFY(bytes.contains("<title>Attribute Weights and Their Ranges</title>"));
  // The chart in view is the first high-low-close kind, with its legend.
  QVERIFY(bytes.contains(">Close Est.<"));
  QVERIFY(m_ui.messages().empty());
}

void TradeOffsExportsDialogTest::cancellingTheSvgFileWritesNothing() {
  if (!ResultsExport::svgAvailable()) {
    QVERIFY(!button("cmdSaveSvg")->isEnabled());
    return;
  }
  QTemporaryDir dir;
  m_ui.setSaveFile("");
  clickButton(m_dialog.get(), "cmdSaveSvg");
  QCOMPARE(m_ui.fileRequests().size(), std::size_t{1});
  QVERIFY(QDir(dir.path()).entryList(QDir::Files).isEmpty());
  QVERIFY(m_ui.messages().empty());
}

void TradeOffsExportsDialogTest::printStaysAsItWas() {
  QCOMPARE(button("cmdPrint")->text(), QStringLiteral("&Print"));
  QVERIFY(button("cmdPrint")->isEnabled());
  // The exports ask for no file and show no message on their own.
  QVERIFY(m_ui.fileRequests().empty());
  QVERIFY(m_ui.messages().empty());
}

void TradeOffsExportsDialogTest::ctrlCOnTheWeightEstimatesCopiesTheGridAndTheChart() {
  m_dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
  grid()->setFocus(Qt::TabFocusReason);
  QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(grid()));
  QGuiApplication::clipboard()->clear();
  QTest::keyClick(grid(), Qt::Key_C, Qt::ControlModifier);
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  QVERIFY(data != nullptr);
  QCOMPARE(data->text(), shownLines(*grid(), QLatin1Char('\t')).join(QStringLiteral("\r\n")) +
                             QStringLiteral("\r\n"));
  QVERIFY(data->hasImage());
}

}  // namespace tnw::tradeoffs

QTEST_MAIN(tnw::tradeoffs::TradeOffsExportsDialogTest)
#include "trade_offs_exports_dialog_test.moc"
