#include "tradeoffs/ui/item_text_delegate.h"

// Qt
#include <QApplication>
#include <QListWidget>
#include <QScreen>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QtTest>

namespace tnw::tradeoffs {

namespace {

// The style's own painting, with the item widths ItemTextDelegate asks for in a list that does
// not wrap.
class NarrowStyledDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    const auto* list = qobject_cast<const QListView*>(option.widget);
    if (list != nullptr && !list->wordWrap()) size.setWidth(1);
    return size;
  }
};

// Two lists alike but for their delegates.
struct ListPair {
  QListWidget ours;
  QListWidget styled;

  ListPair(bool wrap, const QStringList& items) {
    for (QListWidget* list : {&ours, &styled}) {
      list->setWordWrap(wrap);
      list->setTextElideMode(Qt::ElideRight);
      list->resize(170, 220);
      list->addItems(items);
    }
    ours.setItemDelegate(new ItemTextDelegate(&ours));
    styled.setItemDelegate(new NarrowStyledDelegate(&styled));
    ours.show();
    styled.show();
    QApplication::processEvents();
  }

  ItemTextDelegate& delegate() { return *static_cast<ItemTextDelegate*>(ours.itemDelegate()); }
  bool samePixels() {
    return ours.viewport()->grab().toImage() == styled.viewport()->grab().toImage();
  }
};

// Two shown grids of 8 × 3 numbers with alternating row colours and no current cell, as the
// results grids are: one drawn by ItemTextDelegate, the other by QStyledItemDelegate.
struct AlternateRowGrids {
  AlternateRowGrids() {
    ours.setItemDelegate(delegate);
    styled.setItemDelegate(new QStyledItemDelegate(&styled));
    for (QTableWidget* grid : {&ours, &styled}) {
      grid->setAlternatingRowColors(true);
      grid->setWordWrap(false);
      for (int r = 0; r < 8; ++r)
        for (int c = 0; c < 3; ++c)
          grid->setItem(r, c, new QTableWidgetItem(QStringLiteral("%1.%2").arg(r).arg(c * 7)));
      grid->setCurrentCell(-1, -1);
      grid->clearFocus();
      grid->resize(360, 320);
      grid->show();
    }
    QApplication::processEvents();
  }

  QTableWidget ours{8, 3};
  QTableWidget styled{8, 3};
  ItemTextDelegate* delegate = new ItemTextDelegate(&ours);
};

const QStringList kLongLines = {
    QStringLiteral("A short line"),
    QStringLiteral("A judgment line long enough to be wrapped over several lines in a narrow list"),
    QStringLiteral("Another judgment line, also much longer than the list is wide")};

}  // namespace

class ItemTextDelegateTest : public QObject {
  Q_OBJECT

 private slots:
  // A word-wrapped list asks for its items' sizes whenever it is laid out; the style is asked
  // once per item, and the kept answers are the style's own.
  void keptSizesAreTheStylesAndMeasuredOnce() {
    QListWidget list;
    list.setWordWrap(true);
    list.resize(160, 200);
    auto* kept = new KeptSizeDelegate(&list);
    list.setItemDelegate(kept);
    list.addItems({QStringLiteral("A short line"),
                   QStringLiteral("A judgment line long enough to be wrapped over several lines "
                                  "in a narrow list")});
    list.show();
    QApplication::processEvents();
    QStyledItemDelegate plain;
    QStyleOptionViewItem option;
    option.initFrom(list.viewport());
    option.widget = &list;
    option.features = QStyleOptionViewItem::WrapText;
    option.rect = QRect(0, 0, 150, 20);
    const int before = kept->measured();
    for (int row = 0; row < list.count(); ++row) {
      const QModelIndex index = list.model()->index(row, 0);
      const QSize first = kept->sizeHint(option, index);
      QCOMPARE(first, plain.sizeHint(option, index));
      QCOMPARE(kept->sizeHint(option, index), first);
    }
    QCOMPARE(kept->measured(), before + 2);
    // Another width is measured anew.
    option.rect = QRect(0, 0, 60, 20);
    const QModelIndex longLine = list.model()->index(1, 0);
    QCOMPARE(kept->sizeHint(option, longLine), plain.sizeHint(option, longLine));
    QCOMPARE(kept->measured(), before + 3);
    // Another font is measured anew, and so is a changed text.
    QFont bigger = list.font();
    bigger.setPointSizeF(bigger.pointSizeF() * 2);
    list.item(1)->setFont(bigger);
    QCOMPARE(kept->sizeHint(option, longLine), plain.sizeHint(option, longLine));
    QCOMPARE(kept->measured(), before + 4);
    list.item(1)->setText(QStringLiteral("Shorter"));
    QCOMPARE(kept->sizeHint(option, longLine), plain.sizeHint(option, longLine));
    QCOMPARE(kept->measured(), before + 5);
  }

  // The wrapped lines of a list are painted by the style once, into kept images: the pixels are
  // the style's own, and painting again copies them.
  void wrappedItemsArePaintedOnceWithTheStylesPixels() {
    ListPair lists(true, kLongLines);
    QVERIFY(lists.samePixels());
    // Each item at least once (the window's activation may paint them again in its new state).
    const int painted = lists.delegate().imagesPainted();
    QVERIFY(painted >= 3);
    QVERIFY(lists.samePixels());
    QCOMPARE(lists.delegate().imagesPainted(), painted);
    // A changed text is painted anew.
    for (QListWidget* list : {&lists.ours, &lists.styled})
      list->item(1)->setText(QStringLiteral("A changed line that still wraps in this narrow list"));
    QApplication::processEvents();
    QVERIFY(lists.samePixels());
    QCOMPARE(lists.delegate().imagesPainted(), painted + 1);
    // A selected item is left to the style at every paint.
    for (QListWidget* list : {&lists.ours, &lists.styled}) list->setCurrentRow(2);
    QApplication::processEvents();
    QVERIFY(lists.samePixels());
    QCOMPARE(lists.delegate().imagesPainted(), painted + 1);
  }

  // A grid's plain cells are drawn once into kept images: painting the grid again copies them,
  // and a changed cell alone is drawn anew.
  void gridCellsAreDrawnOnceAndCopiedAfter() {
    QTableWidget grid(8, 3);
    // As the results grids: one line per cell, the delegate's own grid lines.
    grid.setWordWrap(false);
    grid.setShowGrid(false);
    auto* delegate = new ItemTextDelegate(&grid, true);
    grid.setItemDelegate(delegate);
    for (int r = 0; r < 8; ++r)
      for (int c = 0; c < 3; ++c)
        grid.setItem(r, c, new QTableWidgetItem(QStringLiteral("%1.%2").arg(r).arg(c * 7)));
    grid.setCurrentCell(-1, -1);
    grid.clearFocus();
    grid.resize(360, 320);
    grid.show();
    QApplication::processEvents();
    const QImage first = grid.viewport()->grab().toImage();
    const int painted = delegate->imagesPainted();
    QVERIFY(painted >= 24);
    const QImage again = grid.viewport()->grab().toImage();
    QCOMPARE(delegate->imagesPainted(), painted);
    QVERIFY(again == first);
    grid.item(2, 1)->setText(QStringLiteral("99.5"));
    QApplication::processEvents();
    const QImage changed = grid.viewport()->grab().toImage();
    QCOMPARE(delegate->imagesPainted(), painted + 1);
    QVERIFY(changed != first);
    // Only the changed cell's pixels differ.
    const QRect cell = grid.visualItemRect(grid.item(2, 1));
    for (int y = 0; y < first.height(); ++y) {
      for (int x = 0; x < first.width(); ++x) {
        if (!cell.contains(x, y)) QCOMPARE(changed.pixel(x, y), first.pixel(x, y));
      }
    }
  }

  // The cells of a grid with alternating row colours, as the results grids are, are kept too,
  // each on its row's colour: the grid shows the style's pixels, and painting it again copies
  // every cell instead of drawing it.
  void alternateRowsAreKeptWithTheStylesPixels() {
    AlternateRowGrids grids;
    QTableWidget& ours = grids.ours;
    QTableWidget& styled = grids.styled;
    ItemTextDelegate* delegate = grids.delegate;
    QVERIFY(ours.palette().color(QPalette::AlternateBase) != ours.palette().color(QPalette::Base));
    const QImage first = ours.viewport()->grab().toImage();
    QVERIFY(first == styled.viewport()->grab().toImage());
    const int drawn = delegate->itemsDrawn();
    QVERIFY(ours.viewport()->grab().toImage() == first);
    QCOMPARE(delegate->itemsDrawn(), drawn);
  }

  // On the screen a new cell is drawn once, in place, and its pixels are kept from there; a cell
  // painted only in part is not kept from the screen, whose pixels outside the part are old.
  void cellsOnTheScreenAreKeptFromItsPixels() {
    AlternateRowGrids grids;
    QTableWidget& ours = grids.ours;
    QTableWidget& styled = grids.styled;
    ItemTextDelegate* delegate = grids.delegate;
    QVERIFY(delegate->imagesPainted() >= 24);
    QCOMPARE(delegate->imagesDrawnApart(), 0);
    // The screen shows the style's pixels, and painting it again copies the kept cells.
    const auto screen = [](QTableWidget& grid) {
      return QApplication::primaryScreen()->grabWindow(grid.winId()).toImage();
    };
    QVERIFY(screen(ours) == screen(styled));
    // (The first paint came before the window was active, which items are drawn with.)
    ours.viewport()->repaint();
    QCOMPARE(delegate->imagesDrawnApart(), 0);
    const int drawn = delegate->itemsDrawn();
    ours.viewport()->repaint();
    QCOMPARE(delegate->itemsDrawn(), drawn);
    QVERIFY(screen(ours) == screen(styled));
    // A new text whose cell is repainted only in its left half: that half shows it, and the
    // whole cell, painted later, is the style's.
    for (QTableWidget* grid : {&ours, &styled}) {
      const QSignalBlocker quiet(grid->model());
      grid->item(3, 1)->setText(QStringLiteral("1234.5"));
    }
    const QRect cell = ours.visualItemRect(ours.item(3, 1));
    const int apart = delegate->imagesDrawnApart();
    ours.viewport()->repaint(cell.adjusted(0, 0, -cell.width() / 2, 0));
    QCOMPARE(delegate->imagesDrawnApart(), apart + 1);
    ours.viewport()->repaint();
    styled.viewport()->repaint();
    QVERIFY(screen(ours) == screen(styled));
  }

  // Over a translucent base the screen's pixels hold what lies under the view: the cells are
  // drawn into images of their own.
  void cellsOverATranslucentBaseAreDrawnApart() {
    QTableWidget grid(4, 2);
    auto* delegate = new ItemTextDelegate(&grid);
    grid.setItemDelegate(delegate);
    QPalette palette = grid.palette();
    palette.setColor(QPalette::Base, QColor(255, 255, 255, 128));
    grid.setPalette(palette);
    grid.setWordWrap(false);
    for (int r = 0; r < 4; ++r)
      for (int c = 0; c < 2; ++c)
        grid.setItem(r, c, new QTableWidgetItem(QStringLiteral("%1.%2").arg(r).arg(c)));
    grid.setCurrentCell(-1, -1);
    grid.clearFocus();
    grid.resize(240, 200);
    grid.show();
    QApplication::processEvents();
    QVERIFY(delegate->imagesPainted() >= 8);
    QCOMPARE(delegate->imagesDrawnApart(), delegate->imagesPainted());
  }

  // A text too long for a list that does not wrap is elided by the style, once.
  void elidedItemsAreTheStyles() {
    ListPair lists(false, kLongLines);
    QVERIFY(lists.samePixels());
    // The short line fits and is drawn from its kept layout; the two long ones are elided.
    const int painted = lists.delegate().imagesPainted();
    QVERIFY(painted >= 2);
    QVERIFY(lists.samePixels());
    QCOMPARE(lists.delegate().imagesPainted(), painted);
    lists.ours.item(0)->setText(kLongLines[1]);
    lists.styled.item(0)->setText(kLongLines[1]);
    QApplication::processEvents();
    QVERIFY(lists.samePixels());
    QCOMPARE(lists.delegate().imagesPainted(), painted);
  }
};

}  // namespace tnw::tradeoffs

QTEST_MAIN(tnw::tradeoffs::ItemTextDelegateTest)
#include "item_text_delegate_test.moc"
