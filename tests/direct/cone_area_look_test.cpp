#include "direct/ui/cone_area_widget.h"

// Qt
#include <QApplication>
#include <QBackingStore>
#include <QFrame>
#include <QImage>
#include <QMouseEvent>
#include <QtTest>

namespace tnw::direct {
namespace {

// Presses or lets go of a handle with the left mouse button.
void mouse(QFrame* handle, QEvent::Type type) {
  const QPointF at(handle->rect().center());
  QMouseEvent event(type, at, handle->mapToGlobal(at), Qt::LeftButton,
                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                    Qt::NoModifier);
  QApplication::sendEvent(handle, &event);
}

// The area painted straight away, as it is while a handle is held.
QImage painted(ConeAreaWidget& area) {
  mouse(area.handle(0), QEvent::MouseButtonPress);
  const QImage image = area.grab().toImage();
  mouse(area.handle(0), QEvent::MouseButtonRelease);
  return image;
}

}  // namespace

// The cone area keeps its drawing between paints; what it shows must be what it would paint
// afresh, whatever changed since: the cone, the side, the size or the colours.
class ConeAreaLookTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

  void theKeptDrawingIsTheFreshOneAfterEveryChange() {
    ConeAreaWidget area;
    area.setAreaSide(100);
    area.setCone(QPolygonF({QPointF(0, 100), QPointF(40, 20), QPointF(60, 35)}));
    area.resize(240, 240);
    QImage before = painted(area);
    QCOMPARE(area.grab().toImage(), before);
    // Each change is shown from the kept drawing first, then painted afresh to compare.
    const auto shownAfter = [&](const char* change) {
      const QImage shown = area.grab().toImage();
      const QImage fresh = painted(area);
      QVERIFY2(fresh != before, change);
      QVERIFY2(shown == fresh, change);
      QCOMPARE(area.grab().toImage(), fresh);
      before = fresh;
    };
    area.setCone(QPolygonF({QPointF(0, 100), QPointF(70, 30), QPointF(80, 45)}));
    shownAfter("another cone");
    area.setAreaSide(80);
    shownAfter("another side");
    area.resize(200, 200);
    shownAfter("another size");
    QPalette palette = area.palette();
    palette.setColor(QPalette::Base, QColor(250, 250, 230));
    area.setPalette(palette);
    shownAfter("other colours");
    area.setCone(QPolygonF());
    shownAfter("no cone");
  }

  // Painted into the window's backing store, the kept drawing is copied there row by row: the
  // store then holds what the area paints afresh, around the handles, after every change.
  void theDrawingCopiedIntoTheStoreIsTheFreshOne() {
    QWidget window;
    window.resize(300, 280);
    auto* area = new ConeAreaWidget(&window);
    area->setGeometry(17, 9, 240, 240);
    area->setAreaSide(100);
    area->setHandlePosition(0, QPointF(40, 20));
    area->setHandlePosition(1, QPointF(60, 35));
    area->setCone(QPolygonF({QPointF(0, 100), QPointF(40, 20), QPointF(60, 35)}));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto check = [&](const char* change) {
      const int copies = area->storeCopies();
      area->repaint();
      QVERIFY2(area->storeCopies() > copies, change);
      const QImage fresh = painted(*area).convertToFormat(QImage::Format_ARGB32);
      QPaintDevice* device = window.backingStore()->paintDevice();
      QCOMPARE(device->devType(), int(QInternal::Image));
      const auto& store = *static_cast<QImage*>(device);
      const qreal ratio = store.devicePixelRatio();
      QImage shown = store.copy(QRect(area->geometry().topLeft() * ratio, fresh.size()))
                         .convertToFormat(QImage::Format_ARGB32);
      shown.setDevicePixelRatio(fresh.devicePixelRatio());
      QVERIFY2(shown == fresh, change);
    };
    check("shown");
    check("shown again");
    area->setCone(QPolygonF({QPointF(0, 100), QPointF(70, 30), QPointF(80, 45)}));
    check("another cone");
    area->resize(200, 200);
    check("another size");
  }
};

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::ConeAreaLookTest)
#include "cone_area_look_test.moc"
