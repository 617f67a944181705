#include "common/ui/wrapped_label.h"

// Qt
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>
#include <QtTest>

namespace tnw {

class WrappedLabelTest : public QObject {
  Q_OBJECT

 private slots:
  // The height for a width is QLabel's own, measured once per width while nothing that shapes
  // the text changes.
  void heightIsQLabelsAndMeasuredOncePerWidth() {
    const QString text = QStringLiteral(
        "Order relative importance of the attributes by dragging the attribute name buttons on "
        "the left to the yellow boxes on the right.");
    WrappedLabel wrapped(text);
    QLabel plain(text);
    plain.setWordWrap(true);
    QVERIFY(wrapped.wordWrap());
    for (int width : {80, 160, 320, 80, 160}) {
      QCOMPARE(wrapped.heightForWidth(width), plain.heightForWidth(width));
    }
    QCOMPARE(wrapped.measured(), 3);
    QVERIFY(wrapped.heightForWidth(80) > wrapped.heightForWidth(320));
    QCOMPARE(wrapped.measured(), 3);
  }

  // A new text, font, margin, indent or format is measured anew, and the answers stay QLabel's.
  void changesThatShapeTheTextAreMeasuredAnew() {
    WrappedLabel wrapped(QStringLiteral("A short text"));
    QLabel plain(QStringLiteral("A short text"));
    plain.setWordWrap(true);
    const auto same = [&](int expectedMeasured) {
      QCOMPARE(wrapped.heightForWidth(60), plain.heightForWidth(60));
      QCOMPARE(wrapped.measured(), expectedMeasured);
    };
    same(1);
    const QString longer = QStringLiteral("A text long enough to take several lines at sixty");
    wrapped.setText(longer);
    plain.setText(longer);
    same(2);
    QFont bigger = wrapped.font();
    bigger.setPointSizeF(bigger.pointSizeF() * 2);
    wrapped.setFont(bigger);
    plain.setFont(bigger);
    same(3);
    wrapped.setMargin(6);
    plain.setMargin(6);
    same(4);
    wrapped.setIndent(12);
    plain.setIndent(12);
    same(5);
    wrapped.setContentsMargins(3, 3, 3, 3);
    plain.setContentsMargins(3, 3, 3, 3);
    same(6);
    wrapped.setTextFormat(Qt::RichText);
    plain.setTextFormat(Qt::RichText);
    wrapped.setText(QStringLiteral("<b>Bold</b> words wrapped in a narrow label"));
    plain.setText(QStringLiteral("<b>Bold</b> words wrapped in a narrow label"));
    same(7);
    same(7);
  }

  // In a layout, a page shown again does not lay the label's text out again.
  void aLayoutShownAgainAsksNoNewMeasure() {
    QWidget page;
    auto* layout = new QVBoxLayout(&page);
    auto* label = new WrappedLabel(
        QStringLiteral("Click the attribute that the other attributes are to be compared with."));
    layout->addWidget(label);
    page.resize(200, 120);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    const int measured = label->measured();
    QVERIFY(measured > 0);
    for (int i = 0; i < 3; ++i) {
      page.hide();
      page.show();
      layout->invalidate();
      layout->activate();
    }
    QCOMPARE(label->measured(), measured);
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::WrappedLabelTest)
#include "wrapped_label_test.moc"
