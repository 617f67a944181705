#include "tradeoffs/ui/item_text_delegate.h"

// Qt
#include <QApplication>
#include <QListWidget>
#include <QStyledItemDelegate>
#include <QtTest>

namespace tnw::tradeoffs {

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
};

}  // namespace tnw::tradeoffs

QTEST_MAIN(tnw::tradeoffs::ItemTextDelegateTest)
#include "item_text_delegate_test.moc"
