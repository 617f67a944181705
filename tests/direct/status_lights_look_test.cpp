#include "direct/ui/status_lights_widget.h"

// Qt
#include <QApplication>
#include <QBackingStore>
#include <QImage>
#include <QtTest>

// Std
#include <cstdlib>

namespace tnw::direct {
namespace {

// The window's backing store as it is now, in one format.
QImage store(QWidget& window) {
  QPaintDevice* device = window.backingStore()->paintDevice();
  if (device->devType() != QInternal::Image) return {};
  return static_cast<QImage*>(device)->convertToFormat(QImage::Format_ARGB32);
}

// The colour at a point of a widget (in its own pixels) in the window's store.
QColor colourAt(const QImage& image, const QWidget& w, QPoint at) {
  const QPoint p = w.mapTo(w.window(), at) * image.devicePixelRatio();
  return image.pixelColor(p);
}

// How many of the lamp's pixels have the colour c or one within a few steps of it (the text's
// edges are blended with the face).
int pixelsOf(const QImage& image, const QWidget& lamp, const QColor& c) {
  const qreal ratio = image.devicePixelRatio();
  const QRect r(lamp.mapTo(lamp.window(), QPoint(0, 0)) * ratio, lamp.size() * ratio);
  int n = 0;
  for (int y = r.top(); y <= r.bottom(); ++y) {
    for (int x = r.left(); x <= r.right(); ++x) {
      const QColor p = image.pixelColor(x, y);
      const int distance = std::abs(p.red() - c.red()) + std::abs(p.green() - c.green()) +
                           std::abs(p.blue() - c.blue());
      n += distance <= 24 ? 1 : 0;
    }
  }
  return n;
}

}  // namespace

// The status lamps draw themselves: each shows its face colour inside a dark line with its text
// in its text colour, follows every change of them, and copies its look when painted again
// unchanged (a page shown again, a lamp blinking back).
class StatusLightsLookTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

  void aLampShowsItsColoursAndCopiesItsLookWhenUnchanged() {
    StatusLightsWidget lights;
    lights.resize(420, 60);
    lights.show();
    QVERIFY(QTest::qWaitForWindowExposed(&lights));
    StatusLamp* lamp = lights.lamp(1);
    const QColor yellow(Qt::yellow);
    const QColor red(200, 0, 0);
    lights.setLamp(1, yellow, true, red);
    const auto shows = [&](const QColor& face, const QColor& text, const char* what) {
      lights.repaint();
      const QImage image = store(lights);
      QVERIFY2(!image.isNull(), what);
      const QPoint middleLeft(0, lamp->height() / 2);
      QVERIFY2(colourAt(image, *lamp, middleLeft) == QColor(0x40, 0x40, 0x40), what);
      QVERIFY2(colourAt(image, *lamp, middleLeft + QPoint(3, 0)) == face, what);
      QVERIFY2(pixelsOf(image, *lamp, text) > 10, what);
    };
    shows(yellow, red, "lit");
    shows(yellow, red, "lit again");
    const int copied = lamp->keptLook().copied();
    shows(yellow, red, "lit once more");
    QVERIFY(lamp->keptLook().copied() > copied);
    lights.setLamp(1, QColor(Qt::white), true, red);
    shows(QColor(Qt::white), red, "blinking");
    lights.setLamp(1, yellow, true, red);
    shows(yellow, red, "blinking back");
    lights.setLamp(1, QColor(128, 128, 128), false, QColor(Qt::black));
    shows(QColor(128, 128, 128), QColor(Qt::black), "out");
  }

  // A lit lamp's text is bold: it covers more pixels than the same text unlit.
  void aLitLampsTextIsBold() {
    StatusLightsWidget lights;
    lights.resize(420, 60);
    lights.show();
    QVERIFY(QTest::qWaitForWindowExposed(&lights));
    const QColor text(0, 0, 160);
    lights.setLamp(2, QColor(Qt::white), false, text);
    lights.repaint();
    const int plain = pixelsOf(store(lights), *lights.lamp(2), text);
    lights.setLamp(2, QColor(Qt::white), true, text);
    lights.repaint();
    QVERIFY(pixelsOf(store(lights), *lights.lamp(2), text) > plain);
  }
};

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::StatusLightsLookTest)
#include "status_lights_look_test.moc"
