#include "common/ui/elided_label_widget.h"
#include "common/ui/kept_list_widget.h"
#include "common/ui/kept_look_widgets.h"
#include "common/ui/kept_text_label.h"

// Qt
#include <QApplication>
#include <QBackingStore>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QtTest>

// Std
#include <functional>
#include <memory>

namespace tnw {

namespace {

// A parent that paints a gradient under its child, so that the child's rounded corners and
// translucent edges are blended over pixels that differ from place to place. The gradient is
// drawn once into an image that each paint copies: a gradient drawn afresh takes its steps from
// the start of each span, so its pixels depend on the paint's clip.
class Backdrop : public QWidget {
 public:
  Backdrop() {
    resize(260, 140);
    setEnd(QColor(40, 90, 160));
  }
  // The gradient's second colour: a new one changes every pixel under the child.
  void setEnd(QColor c) {
    m_image = QImage(size() * 2, QImage::Format_ARGB32_Premultiplied);
    QPainter p(&m_image);
    QLinearGradient g(0, 0, m_image.width(), m_image.height());
    g.setColorAt(0, QColor(250, 240, 200));
    g.setColorAt(1, c);
    p.fillRect(m_image.rect(), g);
    p.end();
    m_image.setDevicePixelRatio(2);
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.drawImage(QPointF(0, 0), m_image);
  }

 private:
  QImage m_image;
};

// A stock widget and its keeping twin, each on a backdrop of its own, at the same place.
template <typename Stock, typename Kept>
struct Twins {
  Twins() : Twins([](QWidget* host) { return new Kept(host); }) {}
  explicit Twins(const std::function<Kept*(QWidget*)>& make) {
    stock = new Stock(&stockHost);
    kept = make(&keptHost);
    for (QWidget* w : {static_cast<QWidget*>(stock), static_cast<QWidget*>(kept)}) {
      w->setGeometry(23, 17, 150, 90);
    }
  }
  // Applies a change to both, then brings the stock widget in line with the twin.
  void change(const std::function<void(Stock&)>& f) {
    f(*stock);
    f(*kept);
    if (sync) sync(*stock, *kept);
  }
  // Shows both hosts (their paints go to their windows' backing stores).
  void show() {
    for (QWidget* host : {static_cast<QWidget*>(&stockHost), static_cast<QWidget*>(&keptHost)}) {
      host->show();
      QVERIFY(QTest::qWaitForWindowExposed(host));
    }
  }
  // The pixels of the host's backing store.
  static QImage store(QWidget& host) {
    QPaintDevice* device = host.backingStore()->paintDevice();
    return device->devType() == QInternal::Pixmap ? static_cast<QPixmap*>(device)->toImage().copy()
                                                  : static_cast<QImage*>(device)->copy();
  }
  // The host painted again, whole.
  static QImage repainted(QWidget& host) {
    host.repaint();
    return store(host);
  }
  // Paints both hosts again, compares them and says whether the twin copied its kept look.
  bool sameAndCopied() {
    const int before = kept->keptLook().copied();
    const QImage a = repainted(stockHost);
    const QImage b = repainted(keptHost);
    if (a != b) {
      qWarning("the kept look differs from the stock paint");
      ok = false;
    }
    return kept->keptLook().copied() > before;
  }

  Backdrop stockHost;
  Backdrop keptHost;
  std::function<void(Stock&, Kept&)> sync;
  Stock* stock;
  Kept* kept;
  bool ok = true;
};

// A change of a widget, and the paints it takes until the look is copied: 3 for a new look
// (drawn, drawn and kept, copied), 2 for the same look at a new place (its inputs known, it is
// kept at once), 1 for the look the widget had just before the one changed (still kept).
template <typename W>
struct Change {
  std::function<void(W&)> apply;
  int paintsToCopy = 3;
};

// Every kind of change a widget's paint depends on, each painted until the look is copied: the
// first paint after it paints as the stock widget, the second too and keeps the look, the third
// copies it; a change that brings back a kept look copies it at once.
template <typename Stock, typename Kept>
void checkEveryChange(Twins<Stock, Kept>& t, const std::vector<Change<Stock>>& changes) {
  // Showing the windows painted them once.
  t.show();
  QVERIFY(!t.sameAndCopied());
  QVERIFY(t.sameAndCopied());
  for (std::size_t i = 0; i < changes.size(); ++i) {
    const QString name = QStringLiteral("change %1").arg(i);
    t.change(changes[i].apply);
    for (int paint = 1; paint < changes[i].paintsToCopy; ++paint) {
      QVERIFY2(!t.sameAndCopied(), qPrintable(name));
    }
    QVERIFY2(t.sameAndCopied(), qPrintable(name));
    QVERIFY2(t.ok, qPrintable(name));
  }
  // What lies under the widget is an input too: the first paint over new pixels draws (and
  // keeps, the inputs being known), the second copies.
  t.stockHost.setEnd(QColor(200, 30, 60));
  t.keptHost.setEnd(QColor(200, 30, 60));
  QVERIFY(!t.sameAndCopied());
  QVERIFY(t.sameAndCopied());
  QVERIFY(t.ok);
}

// The changes any widget's look follows. A widget that had the focus loses it when disabled, so
// enabling it again does not bring back its look before.
template <typename W>
std::vector<Change<W>> widgetChanges(bool focused) {
  return {
      {[](W& w) { w.resize(131, 70); }},
      {[](W& w) { w.setEnabled(false); }},
      {[](W& w) { w.setEnabled(true); }, focused ? 3 : 1},
      {[](W& w) {
        QFont f = w.font();
        f.setBold(true);
        w.setFont(f);
      }},
      {[](W& w) {
        QPalette p = w.palette();
        p.setColor(QPalette::Button, QColor(120, 200, 120));
        p.setColor(QPalette::ButtonText, QColor(150, 0, 0));
        p.setColor(QPalette::WindowText, QColor(0, 0, 150));
        w.setPalette(p);
      }},
      {[](W& w) { w.setLayoutDirection(Qt::RightToLeft); }},
      {[](W& w) { w.move(40, 30); }, 2},
  };
}

template <typename W>
std::vector<Change<W>> buttonChanges() {
  std::vector<Change<W>> changes = widgetChanges<W>(true);
  changes.push_back({[](W& w) { w.setText(QStringLiteral("&Next >")); }});
  changes.push_back({[](W& w) { w.setDown(true); }});
  changes.push_back({[](W& w) { w.setDown(false); }, 1});
  changes.push_back({[](W& w) {
    QPixmap icon(16, 16);
    icon.fill(Qt::darkGreen);
    w.setIcon(QIcon(icon));
  }});
  changes.push_back({[](W& w) { w.setIconSize(QSize(10, 10)); }});
  return changes;
}

}  // namespace

class KeptLookTest : public QObject {
  Q_OBJECT

 private slots:
  // A kept push button paints as QPushButton after each change, and copies its look when
  // nothing changed; at single and double scale.
  void pushButtonsPaintAsQPushButton() {
    Twins<QPushButton, KeptPushButton> t;
    t.change([](QPushButton& b) { b.setText(QStringLiteral("< &Back")); });
    auto changes = buttonChanges<QPushButton>();
    changes.push_back({[](QPushButton& b) { b.setDefault(true); }});
    changes.push_back({[](QPushButton& b) { b.setFlat(true); }});
    checkEveryChange(t, changes);
  }

  void radioButtonsPaintAsQRadioButton() {
    Twins<QRadioButton, KeptRadioButton> t;
    t.change([](QRadioButton& b) { b.setText(QStringLiteral("Automatic")); });
    auto changes = buttonChanges<QRadioButton>();
    changes.push_back({[](QRadioButton& b) { b.setChecked(true); }});
    changes.push_back({[](QRadioButton& b) { b.setChecked(false); }, 1});
    checkEveryChange(t, changes);
  }

  void groupBoxesPaintAsQGroupBox() {
    Twins<QGroupBox, KeptGroupBox> t;
    // An opaque child takes its rectangle out of the box's paints.
    t.change([](QGroupBox& b) {
      auto* child = new QWidget(&b);
      child->setAutoFillBackground(true);
      child->setGeometry(30, 30, 40, 20);
    });
    auto changes = widgetChanges<QGroupBox>(false);
    changes.push_back({[](QGroupBox& b) { b.setTitle(QStringLiteral("Select two attributes")); }});
    changes.push_back({[](QGroupBox& b) { b.setAlignment(Qt::AlignHCenter); }});
    changes.push_back({[](QGroupBox& b) { b.setFlat(true); }});
    changes.push_back({[](QGroupBox& b) { b.setCheckable(true); }});
    changes.push_back({[](QGroupBox& b) { b.setChecked(false); }});
    checkEveryChange(t, changes);
  }

  // In a shown window the paints go to its backing store; a repaint with nothing changed copies
  // the kept look there, and the store holds the stock paint's pixels.
  void aRepaintInTheBackingStoreCopiesTheStockPixels() {
    Twins<QPushButton, KeptPushButton> t;
    t.change([](QPushButton& b) { b.setText(QStringLiteral("&Finish")); });
    t.show();
    const int copied = t.kept->keptLook().copied();
    for (int i = 0; i < 2; ++i) {
      t.stock->repaint();
      t.kept->repaint();
    }
    QCOMPARE(t.kept->keptLook().copied(), copied + 1);
    const auto store = [](QWidget& host) {
      return Twins<QPushButton, KeptPushButton>::store(host);
    };
    QCOMPARE(store(t.keptHost), store(t.stockHost));
    // A part of the button is a region of its own: painted by the style the first time, copied
    // the second.
    for (int i = 0; i < 2; ++i) {
      t.kept->repaint(QRect(2, 2, 30, 10));
      t.stock->repaint(QRect(2, 2, 30, 10));
      QCOMPARE(t.kept->keptLook().copied(), copied + 1 + i);
      QCOMPARE(store(t.keptHost), store(t.stockHost));
    }
  }

  // A frame paints as QFrame, and copies its look when nothing changed.
  void framesPaintAsQFrame() {
    Twins<QFrame, KeptFrame> t;
    t.change([](QFrame& f) { f.setFrameShape(QFrame::StyledPanel); });
    auto changes = widgetChanges<QFrame>(false);
    changes.push_back({[](QFrame& f) { f.setFrameShape(QFrame::Panel); }});
    changes.push_back({[](QFrame& f) { f.setFrameShadow(QFrame::Sunken); }});
    changes.push_back({[](QFrame& f) { f.setLineWidth(3); }});
    changes.push_back({[](QFrame& f) { f.setFrameShape(QFrame::Box); }});
    changes.push_back({[](QFrame& f) { f.setMidLineWidth(2); }});
    changes.push_back({[](QFrame& f) { f.setFrameShape(QFrame::HLine); }});
    checkEveryChange(t, changes);
  }

  // A line edit without cursor or selection, whose text fits, paints as QLineEdit and copies its
  // look when nothing changed.
  void lineEditsPaintAsQLineEdit() {
    Twins<QLineEdit, KeptLineEdit> t;
    t.change([](QLineEdit& e) {
      e.setFocusPolicy(Qt::NoFocus);
      e.setText(QStringLiteral("50"));
    });
    auto changes = widgetChanges<QLineEdit>(false);
    changes.push_back({[](QLineEdit& e) { e.setText(QStringLiteral("62.5")); }});
    changes.push_back({[](QLineEdit& e) { e.setAlignment(Qt::AlignRight); }});
    changes.push_back({[](QLineEdit& e) { e.setAlignment(Qt::AlignHCenter); }});
    changes.push_back({[](QLineEdit& e) { e.setTextMargins(6, 2, 9, 1); }});
    changes.push_back({[](QLineEdit& e) { e.setReadOnly(true); }});
    changes.push_back({[](QLineEdit& e) { e.setFrame(false); }});
    changes.push_back({[](QLineEdit& e) { e.setEchoMode(QLineEdit::Password); }});
    changes.push_back({[](QLineEdit& e) {
      e.setPlaceholderText(QStringLiteral("score"));
      e.clear();
    }});
    changes.push_back({[](QLineEdit& e) { e.setPlaceholderText(QStringLiteral("value")); }});
    checkEveryChange(t, changes);
  }

  // A line edit whose text changes at every paint draws the new text over a copy of its panel,
  // kept apart from the text, with the stock paint's pixels; a change of the panel's inputs
  // draws the panel again.
  void lineEditPanelsAreKeptUnderNewTexts() {
    Twins<QLineEdit, KeptLineEdit> t;
    t.change([](QLineEdit& e) {
      e.setFocusPolicy(Qt::NoFocus);
      e.setAlignment(Qt::AlignRight);
    });
    t.show();
    int text = 0;
    bool wholeCopied = false;
    const auto paintNewTexts = [&t, &text, &wholeCopied](int paints) {
      const int before = t.kept->panelLook().copied();
      for (int i = 0; i < paints; ++i) {
        const QString shown = QString::number(12.5 + 7 * ++text);
        t.change([&shown](QLineEdit& e) { e.setText(shown); });
        wholeCopied = t.sameAndCopied() || wholeCopied;
      }
      return t.kept->panelLook().copied() - before;
    };
    // Drawn (when shown), drawn and kept, then copied under each new text.
    QCOMPARE(paintNewTexts(5), 4);
    QVERIFY(t.ok);
    t.change([](QLineEdit& e) { e.setEnabled(false); });
    QCOMPARE(paintNewTexts(3), 1);
    t.change([](QLineEdit& e) {
      e.setEnabled(true);
      QPalette p = e.palette();
      p.setColor(QPalette::Base, QColor(255, 250, 210));
      e.setPalette(p);
    });
    QCOMPARE(paintNewTexts(3), 1);
    t.change([](QLineEdit& e) { e.resize(97, 26); });
    QCOMPARE(paintNewTexts(3), 1);
    // A text too long for the line is scrolled by QLineEdit, over the same panel.
    t.change([](QLineEdit& e) { e.setText(QStringLiteral("A text far too long for this line")); });
    QVERIFY(!t.sameAndCopied());
    QVERIFY(!wholeCopied);
    QVERIFY(t.ok);
    QCOMPARE(t.kept->style()->metaObject()->className(), "tnw::KeptPanelStyle");
  }

  // QLineEdit places a click's cursor by the scroll its last paint worked out for the text then
  // shown. A right-aligned box that shows a kept look after another text was painted paints
  // again, so that a click lands where it lands in the stock line edit.
  void aClickPutsTheCursorWhereItPutsItInQLineEditAfterAKeptLook() {
    for (const Qt::Alignment alignment : {Qt::AlignRight, Qt::AlignHCenter, Qt::AlignLeft}) {
      for (int x = 30; x <= 140; x += 10) {
        Twins<QLineEdit, KeptLineEdit> t;
        t.change([alignment](QLineEdit& e) {
          e.setFocusPolicy(Qt::NoFocus);
          e.setAlignment(alignment);
          e.setText(QStringLiteral("7"));
        });
        t.show();
        t.sameAndCopied();
        t.sameAndCopied();
        t.change([](QLineEdit& e) { e.setText(QStringLiteral("123456789")); });
        t.sameAndCopied();
        t.change([](QLineEdit& e) { e.setText(QStringLiteral("7")); });
        t.sameAndCopied();
        QVERIFY(t.ok);
        for (QLineEdit* e : {static_cast<QLineEdit*>(t.stock), static_cast<QLineEdit*>(t.kept)}) {
          QTest::mouseClick(e, Qt::LeftButton, {}, QPoint(x, e->height() / 2));
        }
        QVERIFY2(t.kept->cursorPosition() == t.stock->cursorPosition(),
                 qPrintable(QStringLiteral("alignment %1, x %2: %3 against %4")
                                .arg(int(alignment))
                                .arg(x)
                                .arg(t.kept->cursorPosition())
                                .arg(t.stock->cursorPosition())));
      }
    }
  }

  // The line edits share one panel style, which goes with the last of them: nothing of theirs
  // is left for the application to delete.
  void thePanelStyleGoesWithTheLastLineEdit() {
    QPointer<QStyle> shared;
    {
      auto first = std::make_unique<KeptLineEdit>();
      auto second = std::make_unique<KeptLineEdit>();
      shared = first->style();
      QCOMPARE(shared->metaObject()->className(), "tnw::KeptPanelStyle");
      QCOMPARE(second->style(), shared.data());
      first.reset();
      QVERIFY(!shared.isNull());
      QCOMPARE(second->style(), shared.data());
    }
    QVERIFY(shared.isNull());
    // A new line edit makes it again.
    KeptLineEdit again;
    QCOMPARE(again.style()->metaObject()->className(), "tnw::KeptPanelStyle");
  }

  // A list's own paint, its frame, paints as QListWidget and copies its look when nothing
  // changed; its items and scroll bar paint themselves.
  void listFramesPaintAsQListWidget() {
    Twins<QListWidget, KeptListWidget> t;
    t.change([](QListWidget& l) {
      for (int i = 1; i <= 12; ++i) l.addItem(QStringLiteral("Attribute %1").arg(i));
      l.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
      // The active window's focused list would mark its current item.
      l.setFocusPolicy(Qt::NoFocus);
    });
    auto changes = widgetChanges<QListWidget>(false);
    changes.push_back({[](QListWidget& l) { l.setFrameShape(QFrame::Panel); }});
    changes.push_back({[](QListWidget& l) { l.setFrameShadow(QFrame::Raised); }});
    changes.push_back({[](QListWidget& l) { l.setLineWidth(3); }});
    checkEveryChange(t, changes);
  }

  // A scroll bar paints as QScrollBar after each change of its range, position, steps or
  // orientation, and copies its look when nothing changed.
  void scrollBarsPaintAsQScrollBar() {
    Twins<QScrollBar, KeptScrollBar> t;
    t.change([](QScrollBar& b) {
      b.setRange(0, 27);
      b.setPageStep(4);
    });
    auto changes = widgetChanges<QScrollBar>(false);
    changes.push_back({[](QScrollBar& b) { b.setValue(9); }});
    changes.push_back({[](QScrollBar& b) { b.setValue(0); }, 1});
    changes.push_back({[](QScrollBar& b) { b.setPageStep(12); }});
    changes.push_back({[](QScrollBar& b) { b.setMaximum(5); }});
    changes.push_back({[](QScrollBar& b) { b.setInvertedAppearance(true); }});
    changes.push_back({[](QScrollBar& b) { b.setOrientation(Qt::Horizontal); }});
    checkEveryChange(t, changes);
  }

  // A text wider than its line, a cursor, a selection or a button inside: QLineEdit paints, every
  // time.
  void scrolledOrEditedLineEditsPaintAsQLineEdit() {
    Twins<QLineEdit, KeptLineEdit> t;
    t.change([](QLineEdit& e) {
      e.setFocusPolicy(Qt::NoFocus);
      e.setText(QStringLiteral("A text far too long for the width of this line edit"));
    });
    t.show();
    const std::function<void(QLineEdit&)> changes[] = {
        [](QLineEdit& e) { e.setCursorPosition(3); },
        [](QLineEdit& e) {
          e.setText(QStringLiteral("50"));
          e.setSelection(0, 1);
        },
        [](QLineEdit& e) {
          e.deselect();
          e.setClearButtonEnabled(true);
        },
    };
    for (const auto& change : changes) {
      t.change(change);
      for (int i = 0; i < 3; ++i) QVERIFY(!t.sameAndCopied());
      QVERIFY(t.ok);
    }
    // With the focus, a blinking cursor is shown (only the active window has it, so the twin is
    // not compared with the other window's line edit here).
    t.change([](QLineEdit& e) {
      e.setClearButtonEnabled(false);
      e.setFocusPolicy(Qt::StrongFocus);
    });
    t.keptHost.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&t.keptHost));
    t.kept->setFocus();
    QVERIFY(t.kept->hasFocus());
    const int kept = t.kept->keptLook().kept();
    const int copied = t.kept->keptLook().copied();
    for (int i = 0; i < 3; ++i) t.kept->repaint();
    QCOMPARE(t.kept->keptLook().kept(), kept);
    QCOMPARE(t.kept->keptLook().copied(), copied);
  }

  // A label paints its plain text as QLabel, and copies it when nothing changed.
  void labelsPaintAsQLabel() {
    Twins<QLabel, KeptTextLabel> t;
    t.change([](QLabel& l) { l.setText(QStringLiteral("Tradeoffs needed:")); });
    auto changes = widgetChanges<QLabel>(false);
    changes.push_back({[](QLabel& l) { l.setText(QStringLiteral("Current Tradeoff:")); }});
    changes.push_back({[](QLabel& l) { l.setAlignment(Qt::AlignRight | Qt::AlignBottom); }});
    changes.push_back({[](QLabel& l) { l.setMargin(5); }});
    changes.push_back({[](QLabel& l) {
      l.setText(QStringLiteral("Move the points A and B until the two alternatives are equal."));
    }});
    changes.push_back({[](QLabel& l) { l.setWordWrap(true); }});
    changes.push_back({[](QLabel& l) { l.setForegroundRole(QPalette::Highlight); }});
    checkEveryChange(t, changes);
  }

  // A panel over a plain background keeps its edges' rows and one of each run of equal rows, and
  // none of its opaque child's pixels: little more than its outline, where it kept 8 bytes a
  // device pixel of its whole rectangle. The copy is the stock paint's pixels.
  void aPanelKeepsLittleMoreThanItsOutline() {
    Twins<QFrame, KeptFrame> t;
    for (Backdrop* host : {&t.stockHost, &t.keptHost}) host->setEnd(QColor(250, 240, 200));
    t.change([](QFrame& f) {
      f.setFrameShape(QFrame::StyledPanel);
      f.setGeometry(5, 5, 250, 130);
      auto* child = new QWidget(&f);
      child->setAutoFillBackground(true);
      child->setGeometry(20, 20, 200, 80);
    });
    t.show();
    // The window may become active after its first paint, which changes the panel's state.
    bool copied = false;
    for (int paint = 0; paint < 3 && !copied; ++paint) copied = t.sameAndCopied();
    QVERIFY(copied);
    QVERIFY(t.ok);
    const qreal ratio = t.kept->devicePixelRatioF();
    const qint64 devicePixels = qRound64(250 * 130 * ratio * ratio);
    QVERIFY2(t.kept->keptLook().keptBytes() * 20 < devicePixels * 8,
             qPrintable(QString::number(t.kept->keptLook().keptBytes())));
  }

  // A tab bar paints as QTabBar after each change of the bar or of a tab, and copies its look
  // when nothing changed.
  void tabBarsPaintAsQTabBar() {
    Twins<QTabBar, KeptTabBar> t;
    t.change([](QTabBar& b) {
      for (const char* text : {"A1", "B2", "C3"}) b.addTab(QString::fromUtf8(text));
    });
    auto changes = widgetChanges<QTabBar>(true);
    changes.push_back({[](QTabBar& b) { b.setCurrentIndex(1); }});
    changes.push_back({[](QTabBar& b) { b.setCurrentIndex(0); }, 1});
    changes.push_back({[](QTabBar& b) { b.setTabText(2, QStringLiteral("D4")); }});
    changes.push_back({[](QTabBar& b) { b.setTabEnabled(1, false); }});
    changes.push_back({[](QTabBar& b) { b.setTabVisible(1, false); }});
    changes.push_back({[](QTabBar& b) { b.setShape(QTabBar::RoundedSouth); }});
    changes.push_back({[](QTabBar& b) { b.setDocumentMode(true); }});
    changes.push_back({[](QTabBar& b) { b.setDrawBase(false); }});
    changes.push_back({[](QTabBar& b) { b.setExpanding(false); }});
    changes.push_back({[](QTabBar& b) {
      QPixmap icon(12, 12);
      icon.fill(Qt::darkRed);
      b.setTabIcon(0, QIcon(icon));
    }});
    checkEveryChange(t, changes);
  }

  // A tab of a colour of its own, scroll buttons, or a bar whose tabs can be dragged: QTabBar
  // paints every time.
  void tabBarsOfMoreThanTheirOptionsPaintAsQTabBar() {
    Twins<QTabBar, KeptTabBar> t;
    t.change([](QTabBar& b) {
      for (const char* text : {"A1", "B2", "C3"}) b.addTab(QString::fromUtf8(text));
    });
    t.show();
    const std::function<void(QTabBar&)> changes[] = {
        [](QTabBar& b) { b.setTabTextColor(1, QColor(160, 0, 0)); },
        [](QTabBar& b) {
          b.setTabTextColor(1, QColor());
          b.setMovable(true);
        },
        [](QTabBar& b) {
          b.setMovable(false);
          for (int i = 0; i < 12; ++i) b.addTab(QStringLiteral("A rather long tab %1").arg(i));
        },
    };
    for (const auto& change : changes) {
      t.change(change);
      for (int i = 0; i < 3; ++i) QVERIFY(!t.sameAndCopied());
      QVERIFY(t.ok);
    }
  }

  // A tab widget paints its pane as QTabWidget after each change of the widget, its tabs or its
  // pages, and copies its look when nothing changed.
  void tabWidgetsPaintAsQTabWidget() {
    Twins<QTabWidget, KeptTabWidget> t;
    t.change([](QTabWidget& w) {
      for (const char* text : {"A1", "B2"}) w.addTab(new QWidget, QString::fromUtf8(text));
    });
    // The tab widget has the focus while its bar, its focus proxy, has it.
    auto changes = widgetChanges<QTabWidget>(true);
    changes.push_back({[](QTabWidget& w) { w.setCurrentIndex(1); }});
    changes.push_back({[](QTabWidget& w) { w.setCurrentIndex(0); }, 1});
    changes.push_back({[](QTabWidget& w) { w.setTabText(0, QStringLiteral("A longer one")); }});
    changes.push_back({[](QTabWidget& w) { w.addTab(new QWidget, QStringLiteral("C3")); }});
    changes.push_back({[](QTabWidget& w) { w.setTabPosition(QTabWidget::South); }});
    changes.push_back({[](QTabWidget& w) { w.setTabPosition(QTabWidget::West); }});
    changes.push_back({[](QTabWidget& w) { w.setTabShape(QTabWidget::Triangular); }});
    checkEveryChange(t, changes);
  }

  // In document mode the pane has no frame and the bar's base is drawn instead: QTabWidget
  // paints every time.
  void tabWidgetsInDocumentModePaintAsQTabWidget() {
    Twins<QTabWidget, KeptTabWidget> t;
    t.change([](QTabWidget& w) {
      for (const char* text : {"A1", "B2"}) w.addTab(new QWidget, QString::fromUtf8(text));
      w.setDocumentMode(true);
    });
    t.show();
    for (int i = 0; i < 3; ++i) QVERIFY(!t.sameAndCopied());
    QVERIFY(t.ok);
    QCOMPARE(t.kept->keptLook().kept(), 0);
  }

  // A shortened name paints as a QLabel showing the shortened text, and copies it when nothing
  // changed.
  void elidedLabelsPaintAsQLabel() {
    Twins<QLabel, ElidedLabelWidget> t([](QWidget* host) {
      return new ElidedLabelWidget(QStringLiteral("Attribute 31 of a long name"), host);
    });
    t.sync = [](QLabel& stock, ElidedLabelWidget& kept) { stock.setText(kept.shownText()); };
    t.change([](QLabel& l) { l.setAlignment(Qt::AlignLeft | Qt::AlignVCenter); });
    auto changes = widgetChanges<QLabel>(false);
    changes.push_back({[](QLabel& l) { l.resize(70, 20); }});
    changes.push_back({[](QLabel& l) { l.setAlignment(Qt::AlignCenter); }});
    checkEveryChange(t, changes);
  }

  // Under a style sheet the style draws from more than the option: the stock paint runs.
  void aStyleSheetPaintsAsTheStockWidget() {
    Twins<QPushButton, KeptPushButton> t;
    t.change([](QPushButton& b) {
      b.setText(QStringLiteral("Styled"));
      b.setStyleSheet(QStringLiteral("QPushButton { border: 2px solid #a00; padding: 3px; }"));
    });
    t.show();
    QVERIFY(!t.sameAndCopied());
    QVERIFY(!t.sameAndCopied());
    QVERIFY(t.ok);
    QCOMPARE(t.kept->keptLook().kept(), 0);
  }

  // grab() and render() paint through a painter of their own: the stock paint runs, and what
  // it draws is not kept.
  void aGrabPaintsAsTheStockWidget() {
    Twins<QPushButton, KeptPushButton> t;
    t.change([](QPushButton& b) { b.setText(QStringLiteral("&Help")); });
    t.show();
    QVERIFY(!t.sameAndCopied());
    const int kept = t.kept->keptLook().kept();
    for (int i = 0; i < 2; ++i) QCOMPARE(t.keptHost.grab().toImage(), t.stockHost.grab().toImage());
    QCOMPARE(t.kept->keptLook().kept(), kept);
    QVERIFY(t.sameAndCopied());
    QVERIFY(t.ok);
  }

  // The screen's ratio (QT_SCALE_FACTOR) is the one this run was started for.
  void theDevicePixelRatioIsTheOneAskedFor() {
    const QByteArray asked = qgetenv("TNW_EXPECTED_RATIO");
    Backdrop host;
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    QCOMPARE(host.backingStore()->paintDevice()->devicePixelRatio(),
             asked.isEmpty() ? 1.0 : asked.toDouble());
  }
};

}  // namespace tnw

QTEST_MAIN(tnw::KeptLookTest)
#include "kept_look_test.moc"
