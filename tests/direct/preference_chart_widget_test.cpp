#include "direct/ui/preference_chart_widget.h"

#include "direct/ui/cone_area_widget.h"
#include "direct/core/preference_cone.h"
#include "common/ui/elided_label_widget.h"

// Qt
#include <QApplication>
#include <QFrame>
#include <QtTest>

namespace tnw::direct {

// The judgment chart at its smallest: the handles stay whole inside the square and the axis
// names keep their start.
class PreferenceChartWidgetTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

  void handlesOfExtremeRatiosStayInsideTheSquare() {
    PreferenceChartWidget chart;
    chart.resize(chart.minimumSizeHint());
    chart.show();
    QVERIFY(QTest::qWaitForWindowExposed(&chart));
    ConeAreaWidget* area = chart.coneArea();
    area->setAreaSide(1000.0);
    const PreferenceCone cone(1000.0F, 10.0F);
    for (const double ratio : {500.0, 0.002, 1.0}) {
      const HandlePoint p = cone.handleForRatio(ratio);
      area->setHandlePosition(0, QPointF(p.x, p.y));
      const QRect square =
          QRectF(area->toPixels(QPointF(0, 0)), area->toPixels(QPointF(1000, 1000))).toRect();
      const QRect handle = area->handle(0)->geometry();
      QVERIFY2(square.adjusted(0, 0, 1, 1).contains(handle),
               qPrintable(QStringLiteral("ratio %1: handle %2,%3 %4x%5 outside %6,%7 %8x%9")
                              .arg(ratio)
                              .arg(handle.x())
                              .arg(handle.y())
                              .arg(handle.width())
                              .arg(handle.height())
                              .arg(square.x())
                              .arg(square.y())
                              .arg(square.width())
                              .arg(square.height())));
    }
  }

  void longAxisNamesAreShortenedFromTheirEndWithTheWholeNameAsTooltip() {
    PreferenceChartWidget chart;
    chart.resize(chart.minimumSizeHint());
    chart.show();
    QVERIFY(QTest::qWaitForWindowExposed(&chart));
    const QString name =
        QStringLiteral("Annual maintenance cost of the building in euros per year");
    for (ElidedLabelWidget* axis : {chart.referenceAxis(), chart.targetAxis()}) {
      axis->setFullText(name);
      const QString shown = axis->shownText();
      QVERIFY2(shown.endsWith(QChar(0x2026)), qPrintable(shown));
      QVERIFY2(name.startsWith(shown.left(shown.size() - 1)), qPrintable(shown));
      QVERIFY(axis->fontMetrics().horizontalAdvance(shown) <= axis->contentsRect().width());
      QVERIFY(axis->geometry().left() >= 0);
      QVERIFY(axis->geometry().right() < chart.width());
      QVERIFY(axis->toolTip().contains(name));
    }
    // A short name is shown whole.
    chart.referenceAxis()->setFullText(QStringLiteral("Price"));
    QCOMPARE(chart.referenceAxis()->shownText(), QStringLiteral("Price"));
  }
};

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::PreferenceChartWidgetTest)
#include "preference_chart_widget_test.moc"
