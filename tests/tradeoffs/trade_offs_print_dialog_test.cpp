// The Print button of frmTradeOffsA and the print-out it makes: the platform's print dialog
// opened without a nested event loop, printing to a PDF file when it is accepted, and the
// print-out read as a printer would take it at 3, 6 and 31 attributes.

#include "graphs/ui/painter_surface.h"
#include "trade_off_dialog_fixture.h"
#include "tradeoffs/ui/tradeoffs_printout.h"

// Qt
#include <QComboBox>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPaintEngine>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTableWidget>
#include <QTemporaryDir>

// Std
#include <cmath>

namespace tnw::tradeoffs {

using namespace tnw::testing;

namespace {

// A page of a 1200-dpi printer that keeps every text drawn on it with its size in points.
class TextRecorder : public QPaintDevice {
 public:
  struct Text {
    QString text;
    double points;
  };

  QPaintEngine* paintEngine() const override { return &m_engine; }
  // The texts drawn so far.
  const std::vector<Text>& texts() const { return m_engine.texts; }
  void clear() { m_engine.texts.clear(); }

 protected:
  int metric(PaintDeviceMetric m) const override {
    switch (m) {
      case PdmWidth:
        return 9000;  // about A4 less its margins, at 1200 dpi
      case PdmHeight:
        return 13000;
      case PdmWidthMM:
        return 190;
      case PdmHeightMM:
        return 275;
      case PdmDpiX:
      case PdmDpiY:
      case PdmPhysicalDpiX:
      case PdmPhysicalDpiY:
        return 1200;
      case PdmDepth:
        return 32;
      case PdmNumColors:
        return 1 << 24;
      case PdmDevicePixelRatio:
        return 1;
      case PdmDevicePixelRatioScaled:
        return static_cast<int>(QPaintDevice::devicePixelRatioFScale());
    }
    return 0;
  }

 private:
  class Engine : public QPaintEngine {
   public:
    Engine() : QPaintEngine(QPaintEngine::AllFeatures) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    // Lines, boxes and paths end here; only the texts are kept.
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawPath(const QPainterPath&) override {}
    void drawTextItem(const QPointF&, const QTextItem& item) override {
      const QFont f = item.font();
      // A size given in pixels is in pixels of this 1200-dpi page; a scaled painter scales it.
      const double size = f.pointSizeF() > 0 ? f.pointSizeF() : f.pixelSize() * 72.0 / 1200.0;
      const QTransform t = painter()->transform();
      texts.push_back({item.text(), size * std::sqrt(std::abs(t.determinant()))});
    }
    Type type() const override { return QPaintEngine::User; }

    std::vector<Text> texts;
  };
  mutable Engine m_engine;
};

// A model of n attributes with names long enough to need room, the last one very long.
AttributeModel namedModel(int n) {
  AttributeModel m = makeModel(n);
  for (int i = 0; i < n; ++i) {
    m.AttName[static_cast<std::size_t>(i)] = "Attribute number " + std::to_string(i + 1);
  }
  m.AttName[static_cast<std::size_t>(n - 1)] =
      "The running cost of the vehicle over its first ten years, in euros per year";
  return m;
}

}  // namespace

class TradeOffsPrintDialogTest : public QObject, TradeOffDialogParts {
  Q_OBJECT

 private:
  // A shown dialog on its results page after every trade-off of the automatic cycle.
  std::unique_ptr<TradeOffsADialog> resultsOf(int numAtt) {
    auto d = showDialog(namedModel(numAtt));
    enterEveryTradeOffAndGoNext(d.get());
    return d;
  }
  static QPrintDialog* openPrintDialog(TradeOffsADialog* d) {
    clickButton(d, "cmdPrint");
    QPrintDialog* print = nullptr;
    [&] { QTRY_VERIFY((print = d->findChild<QPrintDialog*>()) && print->isVisible()); }();
    return print;
  }


 private slots:
  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }

  void printButtonOpensThePrintDialogAndPrintsVectorPdfWhenAccepted();
  void unloadingTheWizardWithThePrintDialogOpenLeavesNothingBehind();
  void printOutKeepsEveryTextReadableAtThreeSixAndThirtyOneAttributes();
  void everyPageNamesModelMethodDateAndPageWithinTheMargins();
  void longNamesAreElidedInWholeRowsOfTheListsAndOnOneLineInTheGrid();
};

void TradeOffsPrintDialogTest::printButtonOpensThePrintDialogAndPrintsVectorPdfWhenAccepted() {
  auto d = resultsOf(3);
  QPrintDialog* print = openPrintDialog(d.get());
  QVERIFY(print);
  // The wizard goes on running its own event loop: the print dialog is window-modal over it.
  QCOMPARE(print->windowModality(), Qt::WindowModal);
  QVERIFY(print->testAttribute(Qt::WA_DeleteOnClose));
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("results.pdf"));
  // The user chooses the PDF printer, names the file and presses OK.
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
  QTRY_VERIFY(d->findChild<QPrintDialog*>() == nullptr);
  QFile out(path);
  QVERIFY(out.open(QIODevice::ReadOnly));
  const QByteArray bytes = out.readAll();
  QVERIFY(bytes.startsWith("%PDF"));
  // Texts and lines are vectors: the print-out holds fonts and no image.
  QVERIFY(bytes.contains("/Font"));
  QVERIFY(!bytes.contains("/Subtype /Image"));
  QVERIFY(d->isVisible());
}

void TradeOffsPrintDialogTest::unloadingTheWizardWithThePrintDialogOpenLeavesNothingBehind() {
  auto d = resultsOf(3);
  QPointer<QPrintDialog> print = openPrintDialog(d.get());
  QVERIFY(print);
  // The host unloads the wizard as the component does, while the print dialog is still open.
  d.release()->deleteLater();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY(print.isNull());
}

void TradeOffsPrintDialogTest::printOutKeepsEveryTextReadableAtThreeSixAndThirtyOneAttributes() {
  for (const int n : {3, 6, 31}) {
    auto d = resultsOf(n);
    const TradeOffsPrintout printout = d->printout();
    TextRecorder page;
    QPainter painter(&page);
    const QRectF rect(0, 0, page.width(), page.height());
    const int pages = printout.pageCount(painter, rect);
    // Short results keep the chart under the grids; 31 rows leave it a page of its own.
    QCOMPARE(pages, n == 31 ? 2 : 1);
    QString all;
    for (int i = 0; i < pages; ++i) {
      page.clear();
      printout.renderPage(painter, rect, i);
      QVERIFY(!page.texts().empty());
      for (const auto& t : page.texts()) {
        QVERIFY2(t.points >= PainterSurface::kMinimumPoints - 1e-9,
                 qPrintable(QStringLiteral("%1 at %2 pt").arg(t.text).arg(t.points)));
        all += t.text + QLatin1Char(' ');
      }
    }
    all = all.simplified();
    // Every name is printed whole in the grid (wrapped, never cut), the longest too.
    for (int i = 0; i < n; ++i) {
      const QString name = QString::fromStdString(m_context.model.AttName[std::size_t(i)]);
      QVERIFY2(all.contains(name), qPrintable(name));
    }
    QVERIFY(all.contains(QStringLiteral("Attribute Weights and Their Ranges")));
    QVERIFY(all.contains(QStringLiteral("Close Est.")));
    painter.end();
    d.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

// The words of a PDF file page by page, with their boxes in points, as pdftotext reads them.
struct PdfPage {
  double width = 0;
  double height = 0;
  QStringList words;
  QVector<QRectF> boxes;
};

QVector<PdfPage> readPdf(const QString& path) {
  QProcess reader;
  reader.start(QString::fromLocal8Bit(TNW_PDFTOTEXT),
               {QStringLiteral("-bbox"), path, QStringLiteral("-")});
  if (!reader.waitForFinished(60000) || reader.exitCode() != 0) return {};
  const QString html = QString::fromUtf8(reader.readAllStandardOutput());
  static const QRegularExpression pageRe(
      QString::fromLatin1("<page width=\"([\\d.]+)\" height=\"([\\d.]+)\">"));
  static const QRegularExpression wordRe(
      QString::fromLatin1("<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" "
                          "yMax=\"([\\d.]+)\">([^<]*)</word>"));
  QVector<PdfPage> pages;
  for (const QString& part : html.split(QStringLiteral("<page "), Qt::SkipEmptyParts)) {
    const auto page = pageRe.match(QStringLiteral("<page ") + part);
    if (!page.hasMatch()) continue;
    PdfPage p;
    p.width = page.captured(1).toDouble();
    p.height = page.captured(2).toDouble();
    for (auto it = wordRe.globalMatch(part); it.hasNext();) {
      const auto w = it.next();
      p.words << w.captured(5);
      p.boxes << QRectF(QPointF(w.captured(1).toDouble(), w.captured(2).toDouble()),
                        QPointF(w.captured(3).toDouble(), w.captured(4).toDouble()));
    }
    pages << p;
  }
  return pages;
}

void TradeOffsPrintDialogTest::everyPageNamesModelMethodDateAndPageWithinTheMargins() {
  m_context.PathAndFileName = "/home/anna/models/Office site.nrx";
  // 31 attributes take two pages.
  auto d = resultsOf(31);
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("results.pdf"));
  {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    d->printResults(printer);
  }
  const QVector<PdfPage> pages = readPdf(path);
  QCOMPARE(pages.size(), 2);
  const QString date = QDate::currentDate().toString(Qt::ISODate);
  // 15 mm in points, less a little for the side bearing of the glyphs.
  const double margin = 15.0 / 25.4 * 72.0 - 0.5;
  for (int i = 0; i < pages.size(); ++i) {
    const PdfPage& p = pages[i];
    // The reader gives ligatures ("ffi") as one character; compatibility form spells them out.
    const QString text = p.words.join(QLatin1Char(' ')).normalized(QString::NormalizationForm_KC);
    for (const QString& part :
         {QStringLiteral("Model: Office site.nrx"), QStringLiteral("Method: TradeOffs"), date,
          QStringLiteral("Page %1 of 2").arg(i + 1)}) {
      QVERIFY2(text.contains(part),
               qPrintable(QStringLiteral("page %1 lacks %2: %3").arg(i + 1).arg(part, text)));
    }
    QVERIFY(!p.boxes.isEmpty());
    for (int w = 0; w < p.boxes.size(); ++w) {
      const QRectF& b = p.boxes[w];
      QVERIFY2(b.left() >= margin && b.top() >= margin && b.right() <= p.width - margin &&
                   b.bottom() <= p.height - margin,
               qPrintable(QStringLiteral("page %1: \"%2\" at %3,%4-%5,%6 of %7x%8")
                              .arg(i + 1)
                              .arg(p.words[w])
                              .arg(b.left())
                              .arg(b.top())
                              .arg(b.right())
                              .arg(b.bottom())
                              .arg(p.width)
                              .arg(p.height)));
    }
  }
}

void TradeOffsPrintDialogTest::longNamesAreElidedInWholeRowsOfTheListsAndOnOneLineInTheGrid() {
  auto d = resultsOf(6);
  const QString longest = QString::fromStdString(m_context.model.AttName[5]);
  for (const char* name : {"lstTradeOffFirstC", "lstTradeOffSecondC"}) {
    auto* list = d->findChild<QListWidget*>(QLatin1String(name));
    QVERIFY(list);
    QCOMPARE(list->count(), 6);
    // Exactly four whole rows, none cut at the bottom.
    QCOMPARE(list->height(), 4 * list->sizeHintForRow(0) + 2 * list->frameWidth());
    // The long name's row is no wider than the view (its text is elided there), and the list
    // does not scroll sideways.
    QVERIFY(list->visualItemRect(list->item(5)).width() <= list->viewport()->width());
    QCOMPARE(list->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(list->item(5)->toolTip(), longest);
  }
  auto* grid = d->findChild<QTableWidget*>(QStringLiteral("gridWeights"));
  QVERIFY(grid);
  // One line per name, elided, never wrapped over the cell's borders.
  QVERIFY(!grid->wordWrap());
  QCOMPARE(grid->textElideMode(), Qt::ElideRight);
  QCOMPARE(grid->item(5, 0)->text(), longest);
  QCOMPARE(grid->item(5, 0)->toolTip(), longest);
}

}  // namespace tnw::tradeoffs

QTEST_MAIN(tnw::tradeoffs::TradeOffsPrintDialogTest)
#include "trade_offs_print_dialog_test.moc"
