#include "graphs/core/graphs.h"
#include "graphs/ui/chart_widget.h"
#include "graphs/ui/kept_frames.h"
#include "graphs/ui/painter_surface.h"

// Qt
#include <QApplication>
#include <QtTest>

// Std
#include <string>
#include <vector>

namespace tnw {

namespace {

// The chart kinds a results page shows.
enum class Kind { HLCa, HLCb, Bars };

// A chart of `n` items ("Attribute 1" and so on) whose values are set by `seed`, as each fit
// gives its own.
ChartData chart(int n, int seed) {
  ChartData d;
  d.title = "Attribute Weights and Their Ranges";
  d.n = n;
  d.seriesCount = 3;
  for (int i = 1; i <= n; ++i) {
    d.names.push_back("Attribute " + std::to_string(i));
    const double close = 0.02 + 0.9 * ((i * 37 + seed * 11) % 97) / 97.0 / n;
    d.data.push_back({close * 1.3, close * 0.7 - (i == 2 ? 0.2 : 0.0), close});
  }
  d.legend = {"High Est.", "Low Est.", "Close Est."};
  return d;
}

// What a picture is drawn in: its size in pixels, device pixel ratio and font.
struct Setting {
  QSize pixels;
  qreal ratio = 1.0;
  QFont font;
};

// Draws the chart as the results pages do, on an image as the chart widget makes it.
QImage draw(const Setting& setting, Kind kind, const ChartData& d) {
  QImage image(setting.pixels, QImage::Format_RGB32);
  image.setDevicePixelRatio(setting.ratio);
  image.setDotsPerMeterX(qRound(96 / 0.0254));
  image.setDotsPerMeterY(qRound(96 / 0.0254));
  image.fill(QColor(250, 250, 240));
  QPainter painter(&image);
  painter.setFont(setting.font);
  const QRectF area(QPointF(0, 0), QSizeF(setting.pixels) / setting.ratio);
  painter.setFont(PainterSurface::fittedFont(painter.font(), painter.device(), area.width()));
  PainterSurface surface(painter, area);
  surface.setItemTexts(d.names, 100.0 / d.n * 0.95, 27.0);
  Graphs g;
  g.GridColour = 9;
  g.DrawFrame = true;
  if (kind == Kind::HLCa) g.Display_HLCGraphAMain(surface, d);
  if (kind == Kind::HLCb) g.Display_HLCGraphBMain(surface, d);
  if (kind == Kind::Bars) g.Display_VBarGraphMain(surface, d);
  return image;
}

// The chart drawn whole, in order, one line at a time (its texts as ever, see chart_text tests).
QImage plain(const Setting& setting, Kind kind, const ChartData& d) {
  PainterSurface::setLinesBatched(false);
  PainterSurface::setFramesKept(false);
  QImage image = draw(setting, kind, d);
  PainterSurface::setLinesBatched(true);
  PainterSurface::setFramesKept(true);
  return image;
}

QFont font(const char* family, double points, bool bold = false) {
  QFont f{QString::fromLatin1(family)};
  f.setPointSizeF(points);
  f.setBold(bold);
  return f;
}

// Where two pictures differ, for the failure message; empty when they are the same.
QByteArray difference(const QImage& a, const QImage& b) {
  if (a.size() != b.size()) return "sizes differ";
  int count = 0;
  QPoint first;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      if (a.pixel(x, y) != b.pixel(x, y) && count++ == 0) first = QPoint(x, y);
    }
  }
  if (count == 0) return {};
  return QByteArray::number(count) + " pixels differ, first at " + QByteArray::number(first.x()) +
         "," + QByteArray::number(first.y());
}

std::vector<Setting> settings() {
  return {{{620, 450}, 1.0, font("DejaVu Sans", 9)},
          {{400, 300}, 1.0, font("DejaVu Serif", 12)},
          {{900, 560}, 1.0, font("DejaVu Sans", 8, true)},
          {{1240, 900}, 2.0, font("DejaVu Sans", 9)},
          {{700, 520}, 2.0, font("DejaVu Serif", 10, true)}};
}

}  // namespace

class KeptDrawingQtTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() {
    PainterSurface::setLinesBatched(true);
    PainterSurface::setFramesKept(true);
  }

  // Each chart kind, in each size, font and scale, is drawn with its lines batched and its frame
  // kept as it is drawn whole: the first time, when the frame is drawn and kept, and again with
  // other values over the kept frame.
  void keptDrawingMakesThePixelsOfPlainDrawing() {
    for (const Setting& setting : settings()) {
      for (Kind kind : {Kind::HLCa, Kind::HLCb, Kind::Bars}) {
        for (int n : {3, 31}) {
          const QByteArray where = QByteArray::number(setting.pixels.width()) + " pixels wide, " +
                                   setting.font.family().toUtf8() + ", kind " +
                                   QByteArray::number(static_cast<int>(kind)) + ", " +
                                   QByteArray::number(n) + " items: ";
          QByteArray diff =
              difference(draw(setting, kind, chart(n, 1)), plain(setting, kind, chart(n, 1)));
          QVERIFY2(diff.isEmpty(), (where + diff).constData());
          const int drawn = KeptFrames::drawnCount();
          diff = difference(draw(setting, kind, chart(n, 2)), plain(setting, kind, chart(n, 2)));
          QVERIFY2(diff.isEmpty(), (where + diff).constData());
          // The second chart's frame was the first one's, laid back.
          QCOMPARE(KeptFrames::drawnCount(), drawn);
        }
      }
    }
  }

  // The frames are kept while a chart area lives: the last one to go lets them all go.
  void theFramesGoWithTheLastChartWidget() {
    const Setting setting = settings().front();
    {
      ChartWidget shown;
      draw(setting, Kind::HLCa, chart(31, 1));
      QVERIFY(KeptFrames::keptCount() > 0);
      { ChartWidget closed; }
      QVERIFY(KeptFrames::keptCount() > 0);
    }
    QCOMPARE(KeptFrames::keptCount(), std::size_t{0});
  }

  // Another fit's values make other marks and other numbers on the scale over the same frame.
  void valuesAreDrawnAnewOverTheKeptFrame() {
    const Setting setting = settings().front();
    const QImage first = draw(setting, Kind::HLCa, chart(31, 1));
    const QImage second = draw(setting, Kind::HLCa, chart(31, 5));
    QVERIFY(first != second);
    QCOMPARE(second, plain(setting, Kind::HLCa, chart(31, 5)));
  }

  // In a picture too small for its texts the scale's numbers run into the frame: the chart is
  // then drawn whole, in order, and still gives the pixels of plain drawing.
  void crowdedValuesAreDrawnInOrder() {
    const Setting tiny{{90, 70}, 1.0, font("DejaVu Sans", 14)};
    const int drawn = KeptFrames::drawnCount();
    for (Kind kind : {Kind::HLCa, Kind::Bars}) {
      QCOMPARE(draw(tiny, kind, chart(31, 3)), plain(tiny, kind, chart(31, 3)));
      QCOMPARE(draw(tiny, kind, chart(31, 4)), plain(tiny, kind, chart(31, 4)));
    }
    // No frame was drawn to be kept.
    QCOMPARE(KeptFrames::drawnCount(), drawn);
  }

  // A frame is laid back only for the very same frame: another title, other names, another
  // legend or another picture size each get a frame of their own.
  void frameIsDrawnAgainWhenWhatItShowsChanges() {
    const Setting setting = settings().front();
    const ChartData base = chart(31, 1);
    std::vector<ChartData> others(3, base);
    others[0].title = "Attribute Weights";
    others[1].names[30] = "Attribute 32";
    others[2].legend[1] = "Low";
    QCOMPARE(draw(setting, Kind::HLCa, base), plain(setting, Kind::HLCa, base));
    for (const ChartData& other : others) {
      const int drawn = KeptFrames::drawnCount();
      QCOMPARE(draw(setting, Kind::HLCa, other), plain(setting, Kind::HLCa, other));
      QCOMPARE(KeptFrames::drawnCount(), drawn + 1);
    }
    Setting wider = setting;
    wider.pixels.rwidth() += 1;
    const int drawn = KeptFrames::drawnCount();
    QCOMPARE(draw(wider, Kind::HLCa, base), plain(wider, Kind::HLCa, base));
    QCOMPARE(KeptFrames::drawnCount(), drawn + 1);
  }

  // Lines batched by pen give the pixels of lines drawn one by one, also where lines of other
  // pens cross them and where texts are drawn between them.
  void batchedLinesMakeThePixelsOfSingleLines() {
    const auto picture = [](bool batched, qreal ratio) {
      PainterSurface::setLinesBatched(batched);
      PainterSurface::setFramesKept(false);
      QImage image(QSize(300, 200) * ratio, QImage::Format_RGB32);
      image.setDevicePixelRatio(ratio);
      image.fill(Qt::white);
      QPainter p(&image);
      PainterSurface s(p, QRectF(0, 0, 300, 200));
      s.setScale(0, 100, 100, 0);
      for (int i = 0; i < 10; ++i) {
        s.setLineStyle(i % 2 == 0 ? LineStyle::Dot : LineStyle::Solid);
        s.setLineWidth(1 + i % 3);
        s.line(5.0 * i, 10, 100 - 5.0 * i, 90, i % 4);
        s.line(0, 10.0 * i, 100, 50, 9 + i % 3);
        s.setCurrentX(10.0 * i);
        s.setCurrentY(12.0 * i);
        s.print("Text " + std::to_string(i));
      }
      s.fillBox(40, 40, 60, 60, 14);
      s.line(0, 0, 100, 100, 12);
      return image;
    };
    for (qreal ratio : {1.0, 2.0}) QCOMPARE(picture(true, ratio), picture(false, ratio));
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::KeptDrawingQtTest)
#include "kept_drawing_qt_test.moc"
