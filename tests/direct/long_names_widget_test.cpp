#include "direct/ui/attribute_button_widget.h"
#include "direct/ui/clickable_label_widget.h"
#include "direct/ui/direct_order_page_widget.h"

// Qt
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QtTest>

namespace tnw::direct {

// Attribute names far longer than the attribute list is wide: each is shortened with an
// ellipsis, says its whole self in a tooltip, and never widens the list past its view.
class LongNamesWidgetTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

  void theStepZeroListElidesNamesAndNeverScrollsSideways() {
    DirectOrderPageWidget page;
    QVector<DirectOrderPageWidget::AttributeFace> faces;
    for (int j = 0; j < 6; ++j) {
      faces.append({QStringLiteral("Attribute %1 with a name much longer than the list is wide, "
                                   "as a careful model builder writes it")
                        .arg(j + 1),
                    QColor(255, 192, 192)});
    }
    page.setAttributes(faces);
    page.resize(860, 400);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    auto* list = page.findChild<QWidget*>(QStringLiteral("picAttList"));
    QVERIFY(list);
    QScrollArea* area = nullptr;
    for (QWidget* w = list->parentWidget(); w && !area; w = w->parentWidget()) {
      area = qobject_cast<QScrollArea*>(w);
    }
    QVERIFY(area);
    // Listed: the buttons elide their names.
    for (int j = 0; j < 6; ++j) {
      auto* button = findIndexed<AttributeButtonWidget>(page, "cmdAttA", j);
      QVERIFY(button);
      QVERIFY2(button->shownText().endsWith(QChar(0x2026)), qPrintable(button->shownText()));
      QVERIFY(button->toolTip().contains(faces[j].name));
    }
    QVERIFY(list->width() <= area->viewport()->width());
    // All placed: the plain names take their place, elided too, and the list stays as wide.
    for (int j = 0; j < 6; ++j) page.setAttributeListed(j, false);
    QApplication::processEvents();
    QVERIFY2(
        list->width() <= area->viewport()->width(),
        qPrintable(QStringLiteral("%1 > %2").arg(list->width()).arg(area->viewport()->width())));
    QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
    for (int j = 0; j < 6; ++j) {
      auto* label = findIndexed<ClickableLabelWidget>(page, "lblAttName", j);
      QVERIFY(label);
      QVERIFY2(label->shownText().endsWith(QChar(0x2026)), qPrintable(label->shownText()));
      QVERIFY(faces[j].name.startsWith(label->shownText().chopped(1)));
      QVERIFY(label->fontMetrics().horizontalAdvance(label->shownText()) <=
              label->contentsRect().width());
      QVERIFY(label->geometry().right() < label->parentWidget()->width());
      QVERIFY(label->toolTip().contains(faces[j].name));
    }
  }

 private:
  template <class W>
  static W* findIndexed(const QWidget& parent, const char* name, int index) {
    return parent.findChild<W*>(QLatin1String(name) + QLatin1Char('_') + QString::number(index));
  }
};

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::LongNamesWidgetTest)
#include "long_names_widget_test.moc"
