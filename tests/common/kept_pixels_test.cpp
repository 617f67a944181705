#include "common/ui/kept_pixels.h"

// Qt
#include <QPainter>
#include <QtTest>

namespace tnw {

namespace {

// An image whose rows come in kinds a widget's pixels have: rows that differ from their
// neighbours (a gradient, an edge), long runs of equal rows (a panel's inside, a plain
// background) with an edge pixel in each, and short runs.
QImage sample() {
  QImage image(64, 48, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      QRgb pixel = qRgba(x * 3, y * 5, 90, 255);
      if (y >= 6 && y < 40) pixel = x == 9 ? qRgba(10, 20, 30, 255) : qRgba(200, 190, 120, 255);
      if (y >= 41 && y < 43) pixel = qRgba(0, 0, 0, 128);
      image.setPixel(x, y, pixel);
    }
  }
  return image;
}

// The widget's place in the image and the region it paints there (less an opaque child).
const QPoint kOrigin(4, 2);
QRegion region() { return QRegion(0, 0, 50, 44) - QRegion(12, 10, 30, 20); }

// Whether the two images have the same pixels in the region from the origin.
bool sameInRegion(const QImage& a, const QImage& b) {
  for (const QRect& r : region()) {
    for (int y = r.top(); y <= r.bottom(); ++y) {
      for (int x = r.left(); x <= r.right(); ++x) {
        if (a.pixel(kOrigin + QPoint(x, y)) != b.pixel(kOrigin + QPoint(x, y))) return false;
      }
    }
  }
  return true;
}

}  // namespace

class KeptPixelsTest : public QObject {
  Q_OBJECT

 private slots:
  // The kept pixels are those of the region, and only those: a pixel changed inside the region
  // makes them differ, one outside it does not.
  void keptPixelsAreTheRegionsPixels() {
    const QImage image = sample();
    const KeptPixels kept(image, kOrigin, region());
    QVERIFY(!kept.isNull());
    QVERIFY(kept.sameAs(image, kOrigin));
    QVERIFY(!kept.sameAs(image, kOrigin + QPoint(1, 0)));
    for (const QPoint p : {QPoint(0, 0), QPoint(9, 20), QPoint(30, 8), QPoint(49, 43),
                           QPoint(5, 40), QPoint(45, 20)}) {
      QImage changed = image;
      changed.setPixel(kOrigin + p, qRgba(1, 2, 3, 255));
      QVERIFY2(!kept.sameAs(changed, kOrigin),
               qPrintable(QStringLiteral("%1,%2").arg(p.x()).arg(p.y())));
    }
    QImage outside = image;
    outside.setPixel(kOrigin + QPoint(20, 15), qRgba(1, 2, 3, 255));  // the child's rectangle
    outside.setPixel(QPoint(60, 47), qRgba(1, 2, 3, 255));            // beside the widget
    QVERIFY(kept.sameAs(outside, kOrigin));
    QImage otherFormat = image.convertToFormat(QImage::Format_RGB32);
    QVERIFY(!kept.sameAs(otherFormat, kOrigin));
  }

  // Runs of equal rows are kept once: far fewer bytes than the region's pixels.
  void equalRowsAreKeptOnce() {
    const QImage image = sample();
    const KeptPixels kept(image, kOrigin, region());
    qint64 pixels = 0;
    for (const QRect& r : region()) pixels += static_cast<qint64>(r.width()) * r.height();
    QVERIFY(kept.bytes() > 0);
    QVERIFY2(kept.bytes() < pixels * 4 / 2, qPrintable(QString::number(kept.bytes())));
  }

  // Written into an image or drawn by a painter (at single and double scale), the kept pixels
  // replace the region's pixels with the ones kept and leave every other pixel as it was.
  void writtenAndDrawnPixelsAreTheKeptOnes() {
    const QImage image = sample();
    const KeptPixels kept(image, kOrigin, region());
    QImage written(image.size(), image.format());
    written.fill(qRgba(7, 70, 170, 255));
    const QImage blank = written;
    QVERIFY(kept.writeTo(written, kOrigin));
    QVERIFY(sameInRegion(written, image));
    QCOMPARE(written.pixel(kOrigin + QPoint(20, 15)), blank.pixel(kOrigin + QPoint(20, 15)));
    QCOMPARE(written.pixel(QPoint(60, 47)), blank.pixel(QPoint(60, 47)));
    for (const int ratio : {1, 2}) {
      QImage drawn = blank;
      drawn.setDevicePixelRatio(ratio);
      QPainter painter(&drawn);
      painter.setCompositionMode(QPainter::CompositionMode_Source);
      painter.translate(QPointF(kOrigin) / ratio);
      kept.draw(painter, ratio);
      painter.end();
      drawn.setDevicePixelRatio(1);
      QCOMPARE(drawn, written);
    }
  }

  // An image without room for the pixels at that place, or of another format, is left alone.
  void anImageWithoutRoomIsLeftAlone() {
    const KeptPixels kept(sample(), kOrigin, region());
    QImage small(40, 40, QImage::Format_ARGB32_Premultiplied);
    small.fill(Qt::white);
    const QImage before = small;
    QVERIFY(!kept.writeTo(small, kOrigin));
    QCOMPARE(small, before);
    QImage other(64, 48, QImage::Format_RGB32);
    QVERIFY(!kept.writeTo(other, kOrigin));
    // A region that leaves the image keeps nothing.
    QVERIFY(KeptPixels(sample(), QPoint(30, 30), region()).isNull());
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::KeptPixelsTest)
#include "kept_pixels_test.moc"
