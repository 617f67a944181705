#include "common/ui/kept_text_label.h"

#include "common/ui/elided_label_widget.h"
#include "common/ui/kept_text.h"
#include "common/ui/wrapped_label.h"

// Qt
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QtTest>

// Std
#include <functional>

namespace tnw {

namespace {

const QString kLong = QStringLiteral(
    "Move the points A and B until the two alternatives are equally preferred, then click Enter.");

// The label as painted, on its own background.
QImage painted(QWidget& w) { return w.grab().toImage(); }

}  // namespace

class KeptTextLabelTest : public QObject {
  Q_OBJECT

 private slots:
  void paintsAsQLabel_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<std::function<void(QLabel&)>>("setUp");
    const auto none = [](QLabel&) {};
    QTest::newRow("default") << QStringLiteral("Current Tradeoff:") << QSize(120, 20)
                             << std::function<void(QLabel&)>(none);
    QTest::newRow("centred") << QStringLiteral("(0, 100)") << QSize(97, 23)
                             << std::function<void(QLabel&)>(
                                    [](QLabel& l) { l.setAlignment(Qt::AlignCenter); });
    QTest::newRow("right bottom") << QStringLiteral("12.5") << QSize(61, 31)
                                  << std::function<void(QLabel&)>([](QLabel& l) {
                                       l.setAlignment(Qt::AlignRight | Qt::AlignBottom);
                                     });
    QTest::newRow("cut by a narrow width")
        << kLong << QSize(90, 17) << std::function<void(QLabel&)>(none);
    QTest::newRow("cut by a low height")
        << kLong << QSize(600, 7) << std::function<void(QLabel&)>(none);
    QTest::newRow("wrapped") << kLong << QSize(150, 80)
                             << std::function<void(QLabel&)>(
                                    [](QLabel& l) { l.setWordWrap(true); });
    QTest::newRow("wrapped and cut")
        << kLong << QSize(150, 30)
        << std::function<void(QLabel&)>([](QLabel& l) { l.setWordWrap(true); });
    QTest::newRow("bold with a margin")
        << QStringLiteral("Diff.") << QSize(70, 30) << std::function<void(QLabel&)>([](QLabel& l) {
             QFont f = l.font();
             f.setBold(true);
             f.setPointSizeF(f.pointSizeF() * 1.5);
             l.setFont(f);
             l.setMargin(4);
           });
    QTest::newRow("disabled") << QStringLiteral("Tradeoffs needed:") << QSize(130, 20)
                              << std::function<void(QLabel&)>(
                                     [](QLabel& l) { l.setEnabled(false); });
    QTest::newRow("coloured") << QStringLiteral("B") << QSize(20, 20)
                              << std::function<void(QLabel&)>([](QLabel& l) {
                                   QPalette p = l.palette();
                                   p.setColor(QPalette::WindowText, QColor(176, 0, 0));
                                   l.setPalette(p);
                                 });
  }

  // A plain text is painted from the kept layout, pixel for pixel as QLabel paints it.
  void paintsAsQLabel() {
    QFETCH(QString, text);
    QFETCH(QSize, size);
    QFETCH(std::function<void(QLabel&)>, setUp);
    QLabel stock(text);
    KeptTextLabel kept(text);
    for (QLabel* l : {&stock, static_cast<QLabel*>(&kept)}) {
      setUp(*l);
      l->resize(size);
    }
    QVERIFY(kept.paintsKept());
    QCOMPARE(painted(kept), painted(stock));
    QCOMPARE(kept.laidOut(), 1);
  }

  // A mnemonic is underlined, or its '&' is shown as it is without a buddy, as QLabel does.
  void mnemonicsArePaintedAsQLabel() {
    QLineEdit buddy;
    for (const QString& text : {QStringLiteral("The fi&rst:"), QStringLiteral("(&1):"),
                                QStringLiteral("Save && &Load"), QStringLiteral("End&")}) {
      for (const bool withBuddy : {true, false}) {
        QLabel stock(text);
        KeptTextLabel kept(text);
        for (QLabel* l : {&stock, static_cast<QLabel*>(&kept)}) {
          if (withBuddy) l->setBuddy(&buddy);
          l->resize(110, 22);
        }
        QVERIFY(kept.paintsKept());
        QCOMPARE(painted(kept), painted(stock));
      }
    }
  }

  // What a kept layout does not cover is painted by QLabel itself, and looks the same.
  void otherLabelsArePaintedByQLabel() {
    const QString rich = QStringLiteral("<b>Bold</b> and plain");
    const std::function<void(QLabel&)> setUps[] = {
        [&](QLabel& l) { l.setText(rich); },
        [&](QLabel& l) {
          l.setText(QStringLiteral("Selectable"));
          l.setTextInteractionFlags(Qt::TextSelectableByMouse);
        },
        [&](QLabel& l) {
          l.setText(QStringLiteral("Framed"));
          l.setFrameShape(QFrame::Box);
        },
    };
    for (const auto& setUp : setUps) {
      QLabel stock;
      KeptTextLabel kept;
      for (QLabel* l : {&stock, static_cast<QLabel*>(&kept)}) {
        setUp(*l);
        l->resize(120, 24);
      }
      QVERIFY(!kept.paintsKept());
      QCOMPARE(painted(kept), painted(stock));
      QCOMPARE(kept.laidOut(), 0);
    }
  }

  // Paints of an unchanged label reuse its layout; a new text, font or wrapping width makes it
  // again, a new width of an unwrapped text does not.
  void theLayoutIsMadeAgainOnlyWhenTheTextsShapeChanges() {
    KeptTextLabel label(QStringLiteral("Tradeoffs needed:"));
    label.resize(140, 20);
    for (int i = 0; i < 3; ++i) painted(label);
    QCOMPARE(label.laidOut(), 1);
    label.resize(200, 20);
    painted(label);
    QCOMPARE(label.laidOut(), 1);
    label.setText(QStringLiteral("Current Tradeoff:"));
    painted(label);
    QCOMPARE(label.laidOut(), 2);
    QFont f = label.font();
    f.setItalic(true);
    label.setFont(f);
    painted(label);
    QCOMPARE(label.laidOut(), 3);

    WrappedLabel wrapped(kLong);
    wrapped.resize(150, 80);
    painted(wrapped);
    painted(wrapped);
    QCOMPARE(wrapped.laidOut(), 1);
    wrapped.resize(180, 80);
    QLabel stock(kLong);
    stock.setWordWrap(true);
    stock.resize(180, 80);
    QCOMPARE(painted(wrapped), painted(stock));
    QCOMPARE(wrapped.laidOut(), 2);
  }

  // A painter on an image lays text out in the text's own direction (Auto) unless told one:
  // the kept text draws what drawText draws in each, from its layout when the line runs left to
  // right.
  void keptTextDrawsAsDrawTextInEveryPainterDirection() {
    const QString text = QStringLiteral("Fuel &consumption in town");
    const int flags = Qt::AlignCenter | Qt::TextShowMnemonic;
    const auto draw = [&](Qt::LayoutDirection direction, const std::function<void(QPainter&)>& f) {
      QImage image(220, 30, QImage::Format_ARGB32_Premultiplied);
      image.fill(Qt::white);
      QPainter p(&image);
      if (direction != Qt::LayoutDirectionAuto) p.setLayoutDirection(direction);
      f(p);
      return image;
    };
    {
      QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
      QCOMPARE(QPainter(&image).layoutDirection(), Qt::LayoutDirectionAuto);
    }
    const QRect room(0, 0, 220, 30);
    KeptText kept;
    int layouts = 0;
    for (const auto direction : {Qt::LayoutDirectionAuto, Qt::LeftToRight, Qt::RightToLeft}) {
      const QImage mine = draw(direction, [&](QPainter& p) { kept.draw(p, room, flags, text); });
      const QImage theirs = draw(direction, [&](QPainter& p) { p.drawText(room, flags, text); });
      QCOMPARE(mine, theirs);
      // Auto and left to right share one layout; right to left is drawText's own.
      QCOMPARE(kept.laidOut(), direction == Qt::RightToLeft ? layouts : 1);
      layouts = kept.laidOut();
    }
  }

  // The shortened name is painted as a QLabel showing the shortened text paints it.
  void anElidedLabelPaintsAsQLabel() {
    for (const int width : {400, 120, 40}) {
      ElidedLabelWidget elided(kLong);
      elided.resize(width, 20);
      const QString shown = elided.shownText();
      QCOMPARE(shown, elided.fontMetrics().elidedText(kLong, Qt::ElideRight, width));
      QLabel stock(shown);
      stock.resize(width, 20);
      QCOMPARE(painted(elided), painted(stock));
    }
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::KeptTextLabelTest)
#include "kept_text_label_test.moc"
