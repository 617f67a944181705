#include "graphs/core/graphs.h"
#include "graphs/ui/painter_surface.h"
#include "graphs/ui/text_cache.h"

// Qt
#include <QApplication>
#include <QFontMetricsF>
#include <QtTest>

// Std
#include <string>
#include <vector>

namespace tnw {

namespace {

// The names of an item row too crowded for upright names.
std::vector<std::string> crowdedNames() {
  std::vector<std::string> names;
  for (int i = 1; i <= 31; ++i) names.push_back("Attribute " + std::to_string(i));
  return names;
}

// Prints the turned item names of `names` under a chart frame, then draws `after` (which may
// cross them); on an image filled with `background` and, when `under`, a grey box under part of
// the names first.
QImage turnedNames(const std::vector<std::string>& names, QColor background, bool under,
                   const std::function<void(PainterSurface&)>& after) {
  QImage image(620, 600, QImage::Format_RGB32);
  image.fill(background);
  QPainter p(&image);
  PainterSurface s(p, QRectF(image.rect()));
  s.setScale(-15, 120, 140, -30);
  if (under) s.fillBox(20.0, -3.0, 60.0, -20.0, 7);
  s.setItemTexts(names, 100.0 / 31 * 0.95, 27.0);
  const int n = static_cast<int>(names.size());
  for (int j = 1; j <= n; ++j) {
    s.setCurrentY(-2.0);
    s.setCurrentX(j * 100.0 / n - 50.0 / n - s.textWidth(names[j - 1]) / 2.0);
    s.print(names[j - 1]);
  }
  if (after) after(s);
  return image;
}

// The picture that drawing each name with drawText makes, and the kept one twice (the first
// time drawn and kept, the second taken from what was kept).
void compareWithDrawText(QColor background, bool under,
                         const std::function<void(PainterSurface&)>& after) {
  PainterSurface::setTextLayoutsKept(false);
  const QImage reference = turnedNames(crowdedNames(), background, under, after);
  PainterSurface::setTextLayoutsKept(true);
  QCOMPARE(turnedNames(crowdedNames(), background, under, after), reference);
  QCOMPARE(turnedNames(crowdedNames(), background, under, after), reference);
}

// What decides how the item names are laid out: the names, the picture's width and resolution,
// the painter's font size and the room under the row.
struct ItemSetting {
  // The names: "Attribute 1" and so on, numbers only, or "Other 1" and so on.
  std::string prefix = "Attribute ";
  int width = 620;
  int dpi = 96;
  double points = 9.0;
  double room = 27.0;
};

// How a new surface lays the names out in a setting: the names' font size, whether they are
// turned, and the widths of the first and last names.
std::vector<double> itemLayout(const ItemSetting& setting) {
  std::vector<std::string> names;
  for (int i = 1; i <= 31; ++i) names.push_back(setting.prefix + std::to_string(i));
  QImage image(setting.width, 450, QImage::Format_RGB32);
  image.setDotsPerMeterX(qRound(setting.dpi / 0.0254));
  image.setDotsPerMeterY(qRound(setting.dpi / 0.0254));
  QPainter p(&image);
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPointSizeF(setting.points);
  p.setFont(font);
  PainterSurface s(p, QRectF(image.rect()));
  s.setScale(-15, 120, 140, -30);
  s.setItemTexts(names, 100.0 / 31 * 0.95, setting.room);
  s.setCurrentY(-2.0);
  return {s.itemFont().pointSizeF(), s.itemTextsTurned() ? 1.0 : 0.0, s.textWidth(names.front()),
          s.textWidth(names.back())};
}

}  // namespace

class ChartTextQtTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { PainterSurface::setTextLayoutsKept(true); }

  // A text is kept per font: fonts that differ in size, weight or family each get their own
  // measures, whatever was measured before in another.
  void keptTextsAreKeptApartPerFont() {
    QImage image(10, 10, QImage::Format_RGB32);
    QFont base(QStringLiteral("DejaVu Sans"));
    base.setPointSizeF(10.0);
    QFont larger = base;
    larger.setPointSizeF(14.0);
    QFont bold = base;
    bold.setBold(true);
    QFont serif = base;
    serif.setFamily(QStringLiteral("DejaVu Serif"));
    const std::string text = "Attribute 12";
    TextCache& cache = TextCache::instance();
    std::vector<const TextCache::Bucket*> buckets;
    std::vector<double> advances;
    for (const QFont& font : {base, larger, bold, serif}) {
      TextCache::Bucket& bucket = cache.bucket(font, &image);
      buckets.push_back(&bucket);
      const double advance = cache.measured(bucket, &image, text).advance;
      QCOMPARE(advance,
               QFontMetricsF(font, &image).horizontalAdvance(QString::fromStdString(text)));
      QCOMPARE(cache.line(bucket, &image).height, QFontMetricsF(font, &image).height());
      advances.push_back(advance);
    }
    for (std::size_t i = 0; i < buckets.size(); ++i) {
      for (std::size_t j = i + 1; j < buckets.size(); ++j) {
        QVERIFY(buckets[i] != buckets[j]);
        QVERIFY(advances[i] != advances[j]);
      }
    }
    // An equal font finds the same texts.
    QCOMPARE(&cache.bucket(QFont(larger), &image), buckets[1]);
  }

  // The same font on a device of another resolution is measured anew.
  void keptTextsAreKeptApartPerResolution() {
    QImage screen(10, 10, QImage::Format_RGB32);
    QImage fine = screen;
    fine.setDotsPerMeterX(screen.dotsPerMeterX() * 2);
    fine.setDotsPerMeterY(screen.dotsPerMeterY() * 2);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSizeF(10.0);
    TextCache& cache = TextCache::instance();
    TextCache::Bucket& a = cache.bucket(font, &screen);
    const double wide = cache.measured(a, &screen, "Price").advance;
    TextCache::Bucket& b = cache.bucket(font, &fine);
    QVERIFY(&a != &b);
    QCOMPARE(cache.measured(b, &fine, "Price").advance,
             QFontMetricsF(font, &fine).horizontalAdvance(QStringLiteral("Price")));
    QVERIFY(cache.measured(b, &fine, "Price").advance > wide * 1.5);
  }

  // Names turned upwards are drawn together as a kept strip on an image: the pixels are those
  // of drawText, on any background.
  void turnedNameStripDrawsThePixelsOfDrawText() {
    compareWithDrawText(Qt::white, false, {});
    compareWithDrawText(QColor(255, 255, 224), false, {});
  }

  // The strip is kept with the pixels it was drawn over: other pixels under it get it drawn
  // again, not the kept one.
  void turnedNameStripIsDrawnAgainOverOtherPixels() {
    PainterSurface::setTextLayoutsKept(true);
    const QImage plain = turnedNames(crowdedNames(), Qt::white, false, {});
    PainterSurface::setTextLayoutsKept(false);
    const QImage reference = turnedNames(crowdedNames(), Qt::white, true, {});
    PainterSurface::setTextLayoutsKept(true);
    QVERIFY(reference != plain);
    QCOMPARE(turnedNames(crowdedNames(), Qt::white, true, {}), reference);
  }

  // A line that crosses the waiting names and a text printed after them are drawn after the
  // names, as they were asked for.
  void turnedNamesAreDrawnBeforeWhatCrossesThem() {
    compareWithDrawText(Qt::white, false, [](PainterSurface& s) {
      s.setLineWidth(2);
      s.line(0.0, -5.0, 100.0, -15.0, 12);
      s.line(50.0, 2.0, 50.0, -25.0, 9);
    });
    compareWithDrawText(Qt::white, false, [](PainterSurface& s) {
      s.fillBox(10.0, -4.0, 30.0, -10.0, 10);
      s.setCurrentX(40.0);
      s.setCurrentY(-6.0);
      s.print("Over the names");
    });
  }

  // Each surface lays the names out as its own names, picture, font and room say, whatever the
  // surface before it laid out: each setting differs from the one before it in one of them, and
  // is laid out after it, and after the one after it, as it is after other names.
  void itemNamesAreLaidOutForTheirOwnSetting() {
    std::vector<ItemSetting> settings(6);
    settings[1].room = 12.0;
    settings[2] = settings[1];
    settings[2].prefix = "";
    settings[3] = settings[2];
    settings[3].width = 1240;
    settings[4] = settings[3];
    settings[4].points = 12.0;
    settings[5] = settings[4];
    settings[5].dpi = 192;
    ItemSetting other;
    other.prefix = "Other ";
    std::vector<std::vector<double>> alone;
    for (const ItemSetting& setting : settings) {
      itemLayout(other);
      alone.push_back(itemLayout(setting));
    }
    for (std::size_t i = 1; i < settings.size(); ++i) {
      QVERIFY(alone[i] != alone[i - 1]);
      itemLayout(settings[i - 1]);
      QCOMPARE(itemLayout(settings[i]), alone[i]);
      QCOMPARE(itemLayout(settings[i - 1]), alone[i - 1]);
    }
  }

  // Other names make another strip.
  void otherNamesMakeAnotherStrip() {
    std::vector<std::string> other = crowdedNames();
    other[3] = "Comfort";
    PainterSurface::setTextLayoutsKept(false);
    const QImage reference = turnedNames(other, Qt::white, false, {});
    PainterSurface::setTextLayoutsKept(true);
    const QImage first = turnedNames(crowdedNames(), Qt::white, false, {});
    QVERIFY(first != reference);
    QCOMPARE(turnedNames(other, Qt::white, false, {}), reference);
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::ChartTextQtTest)
#include "chart_text_qt_test.moc"
