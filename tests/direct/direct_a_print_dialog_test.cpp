// The Print button of frmDirectA's results step and the print-out it makes, with the
// conventions of the trade-off print-out: the platform's print dialog opened without a nested
// event loop, a vector PDF when it is accepted, the model file, method, date and page count on
// every page, margins of 15 mm at least and every name printed whole.

#include "direct_results_fixture.h"

// Qt
#include <QComboBox>
#include <QDate>
#include <QDialogButtonBox>
#include <QFile>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

namespace tnw::direct {

namespace {

// The text of a PDF file as pdftotext reads it, pages separated by form feeds.
QString pdfText(const QString& path) {
  QProcess reader;
  reader.start(QString::fromLocal8Bit(TNW_PDFTOTEXT), {path, QStringLiteral("-")});
  if (!reader.waitForFinished(60000) || reader.exitCode() != 0) return {};
  return QString::fromUtf8(reader.readAllStandardOutput());
}

}  // namespace

class DirectAPrintDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }
  void printButtonOpensThePrintDialogAndPrintsVectorPdfWhenAccepted();
  void unloadingTheWizardWithThePrintDialogOpenLeavesNothingBehind();
  void everyPageNamesModelMethodDateAndPageAndPrintsTheGridsAndChart();
  void printIsShownOnlyOnTheResultsStep();

 private:
  QPrintDialog* openPrintDialog(test::DirectResultsFixture& f) {
    QTest::mouseClick(f.button("cmdPrint"), Qt::LeftButton);
    QPrintDialog* print = nullptr;
    [&] { QTRY_VERIFY((print = f.m_dialog->findChild<QPrintDialog*>()) && print->isVisible()); }();
    return print;
  }
};

void DirectAPrintDialogTest::printButtonOpensThePrintDialogAndPrintsVectorPdfWhenAccepted() {
  test::DirectResultsFixture f;
  QVERIFY(f.open(3));
  QPrintDialog* print = openPrintDialog(f);
  QVERIFY(print);
  QCOMPARE(print->objectName(), QStringLiteral("dlgPrint"));
  QCOMPARE(print->windowModality(), Qt::WindowModal);
  QVERIFY(print->testAttribute(Qt::WA_DeleteOnClose));
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("results.pdf"));
  auto* printers = print->findChild<QComboBox*>(QStringLiteral("printers"));
  QVERIFY(printers);
  const int pdf = printers->findText(QStringLiteral("PDF"), Qt::MatchContains);
  QVERIFY(pdf >= 0);
  printers->setCurrentIndex(pdf);
  auto* file = print->findChild<QLineEdit*>(QStringLiteral("filename"));
  QVERIFY(file);
  file->setText(path);
  auto* buttons = print->findChild<QDialogButtonBox*>();
  QVERIFY(buttons);
  QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
  QTRY_VERIFY(f.m_dialog->findChild<QPrintDialog*>() == nullptr);
  QFile out(path);
  QVERIFY(out.open(QIODevice::ReadOnly));
  const QByteArray bytes = out.readAll();
  QVERIFY(bytes.startsWith("%PDF"));
  QVERIFY(bytes.contains("/Font"));
  QVERIFY(!bytes.contains("/Subtype /Image"));
  QVERIFY(f.m_dialog->isVisible());
  QCOMPARE(f.m_dialog->presenter().WizardStep(), DirectAPresenter::kResultsStep);
  f.close();
}

void DirectAPrintDialogTest::unloadingTheWizardWithThePrintDialogOpenLeavesNothingBehind() {
  test::DirectResultsFixture f;
  QVERIFY(f.open(3));
  QPointer<QPrintDialog> print = openPrintDialog(f);
  QVERIFY(print);
  f.m_dialog.release()->deleteLater();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY(print.isNull());
}

void DirectAPrintDialogTest::everyPageNamesModelMethodDateAndPageAndPrintsTheGridsAndChart() {
  for (const int n : {3, 31}) {
    test::DirectResultsFixture f;
    QVERIFY(f.open(n, "/home/anna/models/family car.nrx"));
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("results.pdf"));
    {
      QPrinter printer(QPrinter::HighResolution);
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(path);
      f.m_dialog->printResults(printer);
      const QMarginsF margins = printer.pageLayout().margins(QPageLayout::Millimeter);
      QVERIFY(margins.left() >= 15.0 - 1e-6 && margins.top() >= 15.0 - 1e-6);
      QVERIFY(margins.right() >= 15.0 - 1e-6 && margins.bottom() >= 15.0 - 1e-6);
    }
    const QString text = pdfText(path);
    const QStringList pages = text.split(QLatin1Char('\f'), Qt::SkipEmptyParts);
    // 31 rows of both grids and the chart do not fit one page.
    QVERIFY2(n == 3 ? pages.size() == 1 : pages.size() >= 2, qPrintable(text));
    const QString date = QDate::currentDate().toString(Qt::ISODate);
    for (int i = 0; i < pages.size(); ++i) {
      const QString page = pages[i].simplified();
      QVERIFY2(page.contains(QStringLiteral("Model: family car.nrx Method: Direct ") + date),
               qPrintable(page));
      QVERIFY2(page.contains(QStringLiteral("Page %1 of %2").arg(i + 1).arg(pages.size())),
               qPrintable(page));
    }
    const QString all = text.simplified();
    QVERIFY(all.contains(QStringLiteral("Tarnel Wizard: Results of the value judgments")));
    QVERIFY(all.contains(QStringLiteral("Middle Points")));
    QVERIFY(all.contains(QStringLiteral("Exact weight ranges")));
    QVERIFY(all.contains(QStringLiteral("Attribute Weights and Their Ranges")));
    for (int i = 0; i < n; ++i) {
      const QString name = QStringLiteral("Att%1").arg(i + 1);
      QVERIFY2(all.contains(name), qPrintable(name));
    }
    f.close();
  }
}

void DirectAPrintDialogTest::printIsShownOnlyOnTheResultsStep() {
  test::DirectResultsFixture f;
  QVERIFY(f.open(3));
  QVERIFY(f.button("cmdPrint")->isVisible());
  QVERIFY(f.button("cmdPrint")->isEnabled());
  for (int step = 2; step >= 0; --step) {
    QTest::mouseClick(f.button("cmdBack"), Qt::LeftButton);
    QCOMPARE(f.m_dialog->presenter().WizardStep(), step);
    QVERIFY(!f.button("cmdPrint")->isVisible());
  }
  f.close();
}

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::DirectAPrintDialogTest)
#include "direct_a_print_dialog_test.moc"
