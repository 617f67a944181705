#include "direct/ui/attribute_button_widget.h"

// Qt
#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QtTest>

// Std
#include <algorithm>
#include <cstdlib>

namespace tnw::direct {
namespace {

// The attribute button as a style sheet once drew it: a plain push button carrying this sheet is
// the reference the self-painted button is held to, in size and in every pixel.
QString referenceSheet(const QColor& face, bool marked) {
  return QStringLiteral(
             "QPushButton { background-color: %1; color: black;"
             " border: %2px solid %3; border-radius: 3px; padding: 2px 8px 2px %5px; }"
             "QPushButton:focus { border-color: #0050c0; }"
             "QPushButton:pressed { background-color: %4; }")
      .arg(face.name())
      .arg(marked ? 3 : 1)
      .arg(marked ? QStringLiteral("#c00000") : QStringLiteral("#707070"))
      .arg(face.darker(115).name())
      .arg(marked ? 22 : 8);
}

// The room the reference leaves its caption inside its frame and padding.
int referenceRoom(const QPushButton& button, bool marked) {
  return button.width() - 2 * (marked ? 3 : 1) - (marked ? 22 : 8) - 8;
}

// How a button looks in a given state: which states to put both buttons in.
struct Look {
  QString text;
  QColor face;
  bool marked = false;
  int extraWidth = 0;
  bool pressed = false;
  bool enabled = true;
  bool rightToLeft = false;
};

}  // namespace
}  // namespace tnw::direct

Q_DECLARE_METATYPE(tnw::direct::Look)

namespace tnw::direct {
namespace {

// Counts the style changes a widget goes through.
class StyleChanges : public QObject {
 public:
  // The style changes seen.
  int count = 0;
  // Counts a style change of the watched widget.
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::StyleChange) ++count;
    return false;
  }
};

// The pixels a widget paints at a device pixel ratio, on a ground colour: a button's own, without
// the window background a widget rendered on its own would get (it shows the parent's background in
// a dialog).
QImage pixels(QWidget& widget, int ratio, const QColor& ground = Qt::white) {
  QImage image(widget.size() * ratio, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(ground);
  widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
  return image;
}

// Whether device pixel (x, y) of an image of the given size lies in one of its four rounded
// corners: the squares of the corner radius at each end.
bool inCorner(int x, int y, const QSize& size, int ratio) {
  const int side = 3 * ratio;
  const bool atSide = x < side || x >= size.width() - side;
  const bool atEnd = y < side || y >= size.height() - side;
  return atSide && atEnd;
}

// The pixels in which two images differ by more than the rounding of their smooth corners. The
// button draws its corners from small kept pictures laid over the background, the style sheet
// drew them straight onto it; the two round apart by at most two steps of a colour channel, and
// only where a corner is partly covered. Anything else, anywhere else, counts.
int differingPixels(const QImage& a, const QImage& b, int ratio) {
  if (a.size() != b.size()) return a.width() * a.height() + 1;
  int count = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QRgb p = a.pixel(x, y);
      const QRgb q = b.pixel(x, y);
      if (p == q) continue;
      const int step = std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                                 std::abs(qBlue(p) - qBlue(q)), std::abs(qAlpha(p) - qAlpha(q))});
      if (step > 2 || !inCorner(x, y, a.size(), ratio)) ++count;
    }
  }
  return count;
}

// The same for two widgets of one size, at single and then at double scale, on light and dark
// grounds.
int differingPixels(QWidget& mine, QWidget& theirs) {
  const QColor grounds[] = {QColor(Qt::white), QColor(0xef, 0xef, 0xef), QColor(0x30, 0x40, 0x50)};
  int count = 0;
  for (const int ratio : {1, 2}) {
    for (const QColor& ground : grounds) {
      count += differingPixels(pixels(mine, ratio, ground), pixels(theirs, ratio, ground), ratio);
    }
  }
  return count;
}

}  // namespace

// The attribute button paints itself; it must take the room and show the pixels the style sheet
// it replaced gave it, so that no list, box or picture of the dialog moves or changes.
class AttributeButtonLookTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

  void sizeHintsAreTheStyleSheetButtonsForEveryTextAndFont() {
    const QStringList texts = {QString(),
                               QStringLiteral("A"),
                               QStringLiteral("Price"),
                               QStringLiteral("Fuel consumption in town"),
                               QStringLiteral("R&D cost"),
                               QStringLiteral("Noise && dust")};
    QFont bold = QApplication::font();
    bold.setBold(true);
    bold.setPointSize(14);
    QFont small = QApplication::font();
    small.setPointSize(7);
    for (const QFont& font : {QApplication::font(), bold, small}) {
      for (const bool marked : {false, true}) {
        for (const QString& text : texts) {
          AttributeButtonWidget button(QStringLiteral("cmdAttA"), 0);
          button.setFont(font);
          button.setMarked(marked);
          button.setText(text);
          QPushButton reference;
          reference.setFont(font);
          reference.setStyleSheet(referenceSheet(button.faceColour(), marked));
          reference.setText(text);
          const QSize hint = reference.sizeHint();
          const QString what =
              QStringLiteral("'%1' marked %2 font %3").arg(text).arg(marked).arg(font.toString());
          // The attribute button keeps ten average letters at least.
          QCOMPARE(button.sizeHint(),
                   QSize(std::max(hint.width(), reference.fontMetrics().averageCharWidth() * 10),
                         hint.height()));
          QVERIFY2(button.minimumSizeHint().height() == hint.height(), qPrintable(what));
        }
      }
    }
  }

  void aChangedMarkTextOrFontChangesTheSizeHint() {
    const auto fresh = [](bool marked, const QString& text, const QFont& font) {
      AttributeButtonWidget button(QStringLiteral("cmdAttA"), 1);
      button.setFont(font);
      button.setMarked(marked);
      button.setText(text);
      return button.sizeHint();
    };
    AttributeButtonWidget button(QStringLiteral("cmdAttA"), 0);
    button.setText(QStringLiteral("Fuel consumption in town"));
    const QSize plain = button.sizeHint();
    button.setMarked(true);
    QCOMPARE(button.sizeHint(), plain + QSize(2 * 2 + 14, 2 * 2));
    button.setText(QStringLiteral("Fuel consumption"));
    QCOMPARE(button.sizeHint(), fresh(true, button.text(), button.font()));
    QFont big = button.font();
    big.setPointSize(big.pointSize() + 6);
    button.setFont(big);
    QCOMPARE(button.sizeHint(), fresh(true, button.text(), big));
    button.setMarked(false);
    QCOMPARE(button.sizeHint(), fresh(false, button.text(), big));
  }

  void theButtonPaintsWhatTheStyleSheetPainted_data() {
    QTest::addColumn<Look>("look");
    const QColor benefit(255, 192, 192);
    const QColor cost(192, 192, 255);
    QTest::newRow("plain") << Look{QStringLiteral("Price"), benefit};
    QTest::newRow("cost") << Look{QStringLiteral("Running cost"), cost, false, 40};
    QTest::newRow("marked") << Look{QStringLiteral("Price"), benefit, true, 13};
    QTest::newRow("pressed") << Look{QStringLiteral("Price"), cost, false, 7, true};
    QTest::newRow("marked pressed") << Look{QStringLiteral("Safety"), benefit, true, 0, true};
    QTest::newRow("elided") << Look{QStringLiteral("Fuel consumption in town"), cost, false, -60};
    QTest::newRow("elided marked")
        << Look{QStringLiteral("Fuel consumption in town"), benefit, true, -45};
    QTest::newRow("mnemonic") << Look{QStringLiteral("R&D cost"), benefit, false, 11};
    QTest::newRow("ampersand") << Look{QStringLiteral("Noise && dust"), cost, true, 5};
    QTest::newRow("disabled") << Look{QStringLiteral("Price"), benefit, false, 9, false, false};
    QTest::newRow("empty") << Look{QString(), cost};
    QTest::newRow("right to left marked")
        << Look{QStringLiteral("Fuel consumption in town"), cost, true, -30, false, true, true};
  }

  void theButtonPaintsWhatTheStyleSheetPainted() {
    QFETCH(Look, look);
    AttributeButtonWidget button(QStringLiteral("cmdAttA"), 0);
    button.setText(look.text);
    button.setFaceColour(look.face);
    button.setMarked(look.marked);
    button.setEnabled(look.enabled);
    if (look.rightToLeft) button.setLayoutDirection(Qt::RightToLeft);
    button.resize(button.sizeHint() + QSize(look.extraWidth, 0));
    button.setDown(look.pressed);
    QPushButton reference;
    reference.setStyleSheet(referenceSheet(look.face, look.marked));
    reference.resize(button.size());
    reference.setText(reference.fontMetrics().elidedText(look.text, Qt::ElideRight,
                                                         referenceRoom(reference, look.marked)));
    reference.setEnabled(look.enabled);
    if (look.rightToLeft) reference.setLayoutDirection(Qt::RightToLeft);
    reference.setDown(look.pressed);
    QCOMPARE(button.shownText(), reference.text());
    QCOMPARE(differingPixels(button, reference), 0);
  }

  void aButtonPaintedAgainInAnotherStateShowsThatState() {
    AttributeButtonWidget button(QStringLiteral("cmdAttA"), 0);
    button.setText(QStringLiteral("Running cost"));
    button.resize(button.sizeHint() + QSize(30, 0));
    // The button, painted again after each change, against a push button with the old style
    // sheet in the same state.
    const auto check = [&button](bool marked, const char* state) {
      QPushButton reference;
      reference.setFont(button.font());
      reference.setStyleSheet(referenceSheet(button.faceColour(), marked));
      reference.resize(button.size());
      reference.setText(reference.fontMetrics().elidedText(button.text(), Qt::ElideRight,
                                                           referenceRoom(reference, marked)));
      reference.setDown(button.isDown());
      // First at the scale the last check ended with, where the button may keep a picture of its
      // inside from before the change.
      QVERIFY2(differingPixels(pixels(button, 2), pixels(reference, 2), 2) == 0, state);
      QVERIFY2(differingPixels(button, reference) == 0, state);
    };
    check(false, "plain");
    button.setDown(true);
    check(false, "pressed");
    button.setDown(false);
    button.setFaceColour(QColor(192, 192, 255));
    check(false, "another face");
    button.setMarked(true);
    check(true, "marked");
    button.setText(QStringLiteral("Fuel consumption in town"));
    check(true, "another text");
    button.resize(button.width() - 25, button.height());
    check(true, "narrower");
    QFont bold = button.font();
    bold.setBold(true);
    button.setFont(bold);
    check(true, "bold");
  }

  void aPaintAgainLaysNothingOutAndANewTextIsLaidOutOnce() {
    AttributeButtonWidget button(QStringLiteral("cmdAttA"), 0);
    button.setText(QStringLiteral("Running cost"));
    button.resize(button.sizeHint() + QSize(30, 0));
    const QImage first = pixels(button, 1);
    const int layouts = button.captionLayouts();
    QCOMPARE(layouts, 1);
    // Another scale or ground paints the kept picture again or draws from the kept layout.
    pixels(button, 2);
    pixels(button, 1, QColor(0x30, 0x40, 0x50));
    QCOMPARE(pixels(button, 1), first);
    QCOMPARE(button.captionLayouts(), layouts);
    button.setText(QStringLiteral("Comfort"));
    const QImage changed = pixels(button, 1);
    QVERIFY(changed != first);
    pixels(button, 1);
    QCOMPARE(button.captionLayouts(), layouts + 1);
  }

  void theFocusedButtonPaintsWhatTheStyleSheetPainted_data() {
    QTest::addColumn<bool>("marked");
    QTest::addColumn<int>("reason");
    QTest::newRow("clicked") << false << int(Qt::MouseFocusReason);
    QTest::newRow("tabbed") << false << int(Qt::TabFocusReason);
    QTest::newRow("marked tabbed") << true << int(Qt::TabFocusReason);
  }

  void theFocusedButtonPaintsWhatTheStyleSheetPainted() {
    QFETCH(bool, marked);
    QFETCH(int, reason);
    QWidget window;
    auto* button = new AttributeButtonWidget(QStringLiteral("cmdAttA"), 0, &window);
    button->setText(QStringLiteral("Comfort"));
    button->setMarked(marked);
    button->resize(button->sizeHint() + QSize(20, 0));
    auto* reference = new QPushButton(QStringLiteral("Comfort"), &window);
    reference->setStyleSheet(referenceSheet(button->faceColour(), marked));
    reference->setGeometry(0, 60, button->width(), button->height());
    window.resize(300, 120);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    button->setFocus(static_cast<Qt::FocusReason>(reason));
    QVERIFY(button->hasFocus());
    const QImage mine = pixels(*button, 1);
    reference->setFocus(static_cast<Qt::FocusReason>(reason));
    QVERIFY(reference->hasFocus());
    // The focus shows: without it the button looks otherwise.
    QVERIFY(differingPixels(mine, pixels(*button, 1), 1) > 0);
    QCOMPARE(differingPixels(mine, pixels(*reference, 1), 1), 0);
  }

  void aNewColourOrMarkRepaintsWithoutRestyling() {
    AttributeButtonWidget button(QStringLiteral("cmdAttButtons"), 0);
    button.setText(QStringLiteral("Price"));
    button.ensurePolished();
    StyleChanges changes;
    button.installEventFilter(&changes);
    button.setFaceColour(QColor(192, 192, 255));
    button.setMarked(true);
    button.setMarked(false);
    QCOMPARE(changes.count, 0);
    QVERIFY(button.styleSheet().isEmpty());
  }

  void theButtonIsStillAPushButtonToAssistiveTools() {
    AttributeButtonWidget button(QStringLiteral("cmdAttA"), 0);
    button.setText(QStringLiteral("Price"));
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&button);
    QVERIFY(face);
    QCOMPARE(face->role(), QAccessible::Button);
    QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Price"));
  }
};

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::AttributeButtonLookTest)
#include "attribute_button_look_test.moc"
