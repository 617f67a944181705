#include "graphs/core/graphs.h"
#include "graphs/core/palette.h"
#include "graphs/ui/chart_export.h"
#include "graphs/ui/chart_widget.h"
#include "graphs/ui/painter_surface.h"

// Qt
#include <QApplication>
#include <QFontMetricsF>
#include <QPrinter>
#include <QTemporaryDir>
#include <QtTest>

// Std
#include <cmath>
#include <limits>

namespace tnw {

namespace {

// The chart frame's user coordinates.
void chartScale(DrawingSurface& s) { s.setScale(-15, 120, 140, -30); }

ChartData threeItems() {
  ChartData d;
  d.title = "Attribute Weights and Their Ranges";
  d.n = 3;
  d.names = {"Price", "Comfort", "Safety"};
  d.seriesCount = 3;
  d.data = {{0.5, 0.3, 0.4}, {0.3, 0.1, 0.2}, {0.45, 0.35, 0.4}};
  d.legend = {"High Est.", "Low Est.", "Close Est."};
  return d;
}

int countColour(const QImage& image, QRgb colour) {
  int n = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) n += image.pixel(x, y) == colour ? 1 : 0;
  }
  return n;
}

}  // namespace

class DrawingSurfaceQtTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

  void paletteIsTheClassicSixteenColours() {
    QCOMPARE(PainterSurface::paletteColour(0), QColor(0, 0, 0));
    QCOMPARE(PainterSurface::paletteColour(9), QColor(0, 0, 255));
    QCOMPARE(PainterSurface::paletteColour(10), QColor(0, 255, 0));
    QCOMPARE(PainterSurface::paletteColour(12), QColor(255, 0, 0));
    QCOMPARE(PainterSurface::paletteColour(13), QColor(255, 0, 255));
    QCOMPARE(PainterSurface::paletteColour(15), QColor(255, 255, 255));
    QCOMPARE(PainterSurface::paletteColour(16), QColor(0, 0, 0));
  }

  void scaleMapsTheCornersOntoTheArea() {
    QImage image(310, 300, QImage::Format_RGB32);
    QPainter p(&image);
    PainterSurface s(p, QRectF(10, 0, 310, 300));
    chartScale(s);
    QCOMPARE(s.toDevice(-15, 120), QPointF(10, 0));
    QCOMPARE(s.toDevice(140, -30), QPointF(320, 300));
    QCOMPARE(s.toDevice(0, 0), QPointF(40, 240));
  }

  void textIsMeasuredInUserUnitsWithTheHeightSignedAsTheAxis() {
    QImage image(310, 300, QImage::Format_RGB32);
    QPainter p(&image);
    PainterSurface s(p, QRectF(0, 0, 310, 300));
    chartScale(s);
    const QFontMetricsF fm(p.font(), &image);
    QCOMPARE(s.textWidth("0.0000"), fm.horizontalAdvance(QStringLiteral("0.0000")) / 2.0);
    QCOMPARE(s.textHeight("X"), -fm.height() / 2.0);
    // Print goes to the start of the next line: y moves down by one text height.
    s.setCurrentX(50);
    s.setCurrentY(105);
    s.print("Title");
    s.setCurrentX(50);
    s.print("Next");
    QVERIFY(countColour(image, qRgb(0, 0, 0)) > 0);
  }

  void dottedLinesLeaveGapsAndWidthsFollowTheSetting() {
    QImage image(310, 300, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
      QPainter p(&image);
      PainterSurface s(p, QRectF(0, 0, 310, 300));
      chartScale(s);
      s.setLineStyle(LineStyle::Dot);
      s.line(0, 50, 100, 50, 9);
      s.setLineStyle(LineStyle::Solid);
      s.setLineWidth(2);
      s.line(0, 20, 100, 20, 12);
    }
    const int blue = countColour(image, qRgb(0, 0, 255));
    QVERIFY(blue > 40);
    QVERIFY(blue < 200);  // a solid 1-pixel line of 200 pixels would fill the row
    QVERIFY(countColour(image, qRgb(255, 0, 0)) >= 2 * 190);
  }

  void itemNamesShrinkToTheirSlotOnlyOnTheRowUnderThePlot() {
    QImage image(620, 600, QImage::Format_RGB32);
    QPainter p(&image);
    QFont base;
    base.setPixelSize(20);
    p.setFont(base);
    PainterSurface s(p, QRectF(0, 0, 620, 600));
    chartScale(s);
    const std::string name = "Fuel consumption";
    s.setItemTexts({name, "Price"}, 25.0, 27.0);
    const double full = s.textWidth(name);
    s.setCurrentY(-2.0);
    const double onRow = s.textWidth(name);
    QVERIFY(full > 25.0);
    QVERIFY(onRow <= 25.0);
    QVERIFY(onRow > 12.0);
    QVERIFY(!s.itemTextsTurned());
    QVERIFY(s.itemFont().pointSizeF() >= PainterSurface::kMinimumPoints);
    QVERIFY(s.itemFont().pointSizeF() < 15.0);
    // Other texts on the row, and the names elsewhere, keep the painter's font.
    QCOMPARE(s.textWidth("0.2500"),
             QFontMetricsF(base, &image).horizontalAdvance(QStringLiteral("0.2500")) / 4.0);
  }

  void itemNamesThatCannotFitTheirSlotsReadUpwards() {
    QImage image(620, 600, QImage::Format_RGB32);
    image.fill(Qt::white);
    std::vector<std::string> names;
    for (int i = 1; i <= 31; ++i) names.push_back("Attribute " + std::to_string(i));
    {
      QPainter p(&image);
      PainterSurface s(p, QRectF(0, 0, 620, 600));
      chartScale(s);
      s.setItemTexts(names, 100.0 / 31 * 0.95, 27.0);
      s.setCurrentY(-2.0);
      QVERIFY(s.itemTextsTurned());
      // Upright, a name takes one line of its slot.
      const double line = QFontMetricsF(s.itemFont(), &image).height() / 4.0;
      QCOMPARE(s.textWidth(names[0]), line);
      QVERIFY(line <= 100.0 / 31);
      s.setCurrentX(10.0);
      s.print(names[0]);
    }
    // The printed name stands taller than it is wide, under the row.
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) != qRgb(255, 255, 255)) ink |= QRect(x, y, 1, 1);
      }
    }
    QVERIFY(!ink.isEmpty());
    QVERIFY(ink.height() > 2 * ink.width());
    QVERIFY(ink.top() >= 488);  // y = -2 is 488 pixels down
  }

  // On an image the chart's texts are drawn from glyphs laid out once and kept; they must make
  // the very pixels that drawText makes. Names that read upwards are included.
  void keptTextLayoutsDrawThePixelsOfDrawText() {
    ChartData d;
    d.title = "Attribute Weights and Their Ranges";
    d.n = 31;
    for (int i = 1; i <= d.n; ++i) {
      d.names.push_back("Attribute " + std::to_string(i));
      d.data.push_back({0.04 + 0.001 * i, 0.01, 0.03});
    }
    d.legend = {"High Est.", "Low Est.", "Close Est."};
    bool turned = false;
    const auto draw = [&d, &turned] {
      QImage image(620, 600, QImage::Format_RGB32);
      image.fill(Qt::white);
      QPainter p(&image);
      PainterSurface s(p, QRectF(image.rect()));
      s.setItemTexts(d.names, 100.0 / d.n * 0.95, 27.0);
      Graphs().Display_HLCGraphAMain(s, d);
      turned = s.itemTextsTurned();
      p.end();
      return image;
    };
    PainterSurface::setTextLayoutsKept(false);
    const QImage reference = draw();
    PainterSurface::setTextLayoutsKept(true);
    QVERIFY(turned);
    // The first drawing lays the texts out, the second takes them from what was kept.
    QCOMPARE(draw(), reference);
    QCOMPARE(draw(), reference);
  }

  void fontSizesAreInPointsAndNeverBelowTheMinimumOnAnyDevice() {
    const std::vector<std::string> names = {"Short", "Fuel consumption"};
    for (const int dpi : {96, 1200}) {
      QImage image(10, 10, QImage::Format_RGB32);
      image.setDotsPerMeterX(qRound(dpi / 0.0254));
      image.setDotsPerMeterY(qRound(dpi / 0.0254));
      QFont base;
      base.setPointSizeF(10.0);
      // Room for a fraction of a name, or of a scale label: the minimum size, in points.
      const QFont tiny = PainterSurface::fontFitting(base, &image, names, dpi / 20.0);
      QCOMPARE(tiny.pointSizeF(), PainterSurface::kMinimumPoints);
      QCOMPARE(PainterSurface::fittedFont(base, &image, dpi / 10.0).pointSizeF(),
               PainterSurface::kMinimumPoints);
      // Room enough: the font stays.
      QCOMPARE(PainterSurface::fontFitting(base, &image, names, dpi * 10.0), base);
      const QFont some = PainterSurface::fontFitting(base, &image, names, dpi * 1.0);
      QVERIFY(some.pointSizeF() < 10.0 && some.pointSizeF() > PainterSurface::kMinimumPoints);
    }
  }

  void nonFiniteCoordinatesDrawNothing() {
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
      QPainter p(&image);
      PainterSurface s(p, QRectF(0, 0, 100, 100));
      chartScale(s);
      const double nan = std::numeric_limits<double>::quiet_NaN();
      s.line(0, nan, 100, 0, 0);
      s.fillBox(0, 0, std::numeric_limits<double>::infinity(), 10, 0);
      s.setCurrentY(nan);
      s.print("x");
    }
    QCOMPARE(countColour(image, qRgb(0, 0, 0)), 0);
  }

  void chartsDrawIntoAnImageInTheirColours() {
    const ChartData d = threeItems();
    Graphs g;
    g.GridColour = 9;
    g.DrawFrame = true;
    const auto draw = [&](void (Graphs::*routine)(DrawingSurface&, const ChartData&) const) {
      return ChartExport::toImage(
          [&](QPainter& p, const QRectF& area) {
            PainterSurface s(p, area);
            (g.*routine)(s, d);
          },
          QSize(465, 450));
    };
    const QImage a = draw(&Graphs::Display_HLCGraphAMain);
    const QImage b = draw(&Graphs::Display_HLCGraphBMain);
    QVERIFY(countColour(a, qRgb(255, 0, 255)) > 0);
    QVERIFY(countColour(a, qRgb(255, 0, 0)) > 0);
    QCOMPARE(countColour(b, qRgb(255, 0, 255)), 0);
    QVERIFY(countColour(b, qRgb(0, 255, 0)) > 0);
  }

  // Scale labels with two integer digits stay inside the chart's area, and a negative low
  // estimate stays in the plot instead of running over the item names below it.
  void labelsFitTheAreaAndNegativeMarksStayInThePlot() {
    ChartData d = threeItems();
    d.data = {{35.654, -4.0, 12.0}, {20.0, 3.0, 9.0}, {30.0, 10.0, 20.0}};
    Graphs g;
    g.GridColour = 9;
    QImage image(600, 500, QImage::Format_RGB32);
    image.fill(Qt::white);
    const QRectF area(60, 20, 465, 450);
    QPainter painter(&image);
    painter.setFont(PainterSurface::fittedFont(painter.font(), &image, area.width()));
    PainterSurface s(painter, area);
    g.Display_HLCGraphAMain(s, d);
    const QFont font = painter.font();
    painter.end();
    const QPointF origin = s.toDevice(0.0, 0.0);
    const QPointF plotEnd = s.toDevice(100.0, 0.0);
    int leftOfArea = 0;
    int blueBelowPlot = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QRgb c = image.pixel(x, y);
        if (x < area.left() && c != qRgb(255, 255, 255)) ++leftOfArea;
        if (c == qRgb(0, 0, 255) && y > origin.y() + 2 && x > origin.x() && x < plotEnd.x()) {
          ++blueBelowPlot;
        }
      }
    }
    QCOMPARE(leftOfArea, 0);
    QCOMPARE(blueBelowPlot, 0);
    // The top label starts inside the area.
    const QFontMetricsF fm(font, &image);
    const double labelWidth = fm.horizontalAdvance(QStringLiteral("39.2194"));
    QVERIFY(origin.x() - labelWidth >= area.left());
  }

  void chartsWriteSvgWithTextAndLinesAsVectors() {
    const ChartData d = threeItems();
    Graphs g;
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("chart.svg"));
    QVERIFY(ChartExport::toSvg(
        [&](QPainter& p, const QRectF& area) {
          PainterSurface s(p, area);
          g.Display_VBarGraphMain(s, d);
        },
        path, QSize(465, 450), QStringLiteral("Weights")));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray svg = file.readAll();
    QVERIFY(svg.contains("<svg"));
    QVERIFY(svg.contains("Comfort"));
    QVERIFY(svg.contains("<polyline") || svg.contains("<path") || svg.contains("<line"));
    QVERIFY(!svg.contains("<image"));
  }

  void svgExportReportsWhetherTheFileWasWritten() {
    const ChartData d = threeItems();
    Graphs g;
    const ChartWidget::Painter chart = [&](QPainter& p, const QRectF& area) {
      PainterSurface s(p, area);
      g.Display_HLCGraphBMain(s, d);
    };
    QTemporaryDir dir;
    // An old file at the path is replaced, not taken for the new one.
    const QString path = dir.filePath(QStringLiteral("chart.svg"));
    {
      QFile old(path);
      QVERIFY(old.open(QIODevice::WriteOnly));
      old.write("old picture");
    }
    QVERIFY(ChartExport::toSvg(chart, path, QSize(465, 450), QStringLiteral("Ranges")));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray svg = file.readAll();
    QVERIFY(svg.contains("<svg"));
    QVERIFY(!svg.contains("old picture"));
    // A path that cannot be written fails: a folder that does not exist, or a folder itself.
    const QString missing = dir.filePath(QStringLiteral("no such folder/chart.svg"));
    QVERIFY(!ChartExport::toSvg(chart, missing, QSize(465, 450), QStringLiteral("Ranges")));
    QVERIFY(!QFile::exists(missing));
    QVERIFY(!ChartExport::toSvg(chart, dir.path(), QSize(465, 450), QStringLiteral("Ranges")));
    QVERIFY(QFileInfo(dir.path()).isDir());
  }

  void chartWidgetDrawsAgainOnlyWhenTheChartOrItsSizeChanges() {
    ChartWidget w;
    int runs = 0;
    w.setPainter([&runs](QPainter& p, const QRectF& area) {
      ++runs;
      p.fillRect(area, Qt::red);
    });
    w.resize(200, 150);
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    QTRY_COMPARE(w.drawCount(), 1);
    // Shown again, or painted over, the widget copies the picture it has.
    const int paints = w.paintCount();
    w.hide();
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    w.repaint();
    QTRY_VERIFY(w.paintCount() > paints);
    QCOMPARE(w.drawCount(), 1);
    QCOMPARE(runs, 1);
    QCOMPARE(w.grab().toImage().pixelColor(100, 75), QColor(Qt::red));
    w.redraw();
    w.repaint();
    QCOMPARE(w.drawCount(), 2);
    w.resize(300, 150);
    w.repaint();
    QCOMPARE(w.drawCount(), 3);
    QCOMPARE(runs, 3);
  }

  void chartsPrintOnAPdfPage() {
    const ChartData d = threeItems();
    Graphs g;
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("chart.pdf"));
    {
      QPrinter printer(QPrinter::HighResolution);
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(path);
      ChartExport::toPage(
          [&](QPainter& p, const QRectF& area) {
            PainterSurface s(p, area);
            g.Display_HLCGraphAMain(s, d);
          },
          printer);
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray pdf = file.readAll();
    QVERIFY(pdf.startsWith("%PDF"));
    QVERIFY(pdf.contains("/Font"));
    QVERIFY(!pdf.contains("/Subtype /Image"));
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::DrawingSurfaceQtTest)
#include "drawing_surface_qt_test.moc"
