#include "direct/ui/group_box_widget.h"

// Qt
#include <QApplication>
#include <QFrame>
#include <QImage>
#include <QtTest>

namespace tnw::direct {
namespace {

// The pixels a widget paints at the screen's scale (the test also runs at twice the scale), its
// own background included.
QImage pixels(QWidget& widget) { return widget.grab().toImage(); }

}  // namespace

// The group box draws its own plain frame; it must show the pixels the frame drew for it.
class GroupBoxLookTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

  void thePlainBoxIsTheFramesBox_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("lineWidth");
    QTest::newRow("a wide box") << QSize(780, 36) << 1;
    QTest::newRow("a small box") << QSize(40, 12) << 1;
    QTest::newRow("a heavy frame") << QSize(120, 40) << 3;
  }

  void thePlainBoxIsTheFramesBox() {
    QFETCH(QSize, size);
    QFETCH(int, lineWidth);
    GroupBoxWidget box(QStringLiteral("picOrder"), 0);
    box.setLineWidth(lineWidth);
    box.resize(size);
    QFrame reference;
    reference.setFrameShape(QFrame::Box);
    reference.setLineWidth(lineWidth);
    reference.setAutoFillBackground(true);
    reference.setPalette(box.palette());
    reference.resize(box.size());
    const QImage mine = pixels(box);
    QCOMPARE(mine, pixels(reference));
    // The frame is there: a box without it looks otherwise.
    reference.setFrameShape(QFrame::NoFrame);
    QVERIFY(mine != pixels(reference));
  }
};

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::GroupBoxLookTest)
#include "group_box_look_test.moc"
