// The trade-off results page's list of the judgments that lower the consistency index most,
// driven through the real widgets.

#include "trade_off_dialog_fixture.h"
#include "tradeoffs/core/leave_one_out.h"

// Qt
#include <QLabel>
#include <QListWidget>
#include <QStackedWidget>
#include <QTabBar>

namespace tnw::tradeoffs {

using namespace tnw::testing;

class TradeOffsAnalysisDialogTest : public QObject, TradeOffDialogParts {
  Q_OBJECT

 private slots:
  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }
  void theRegressionStatusTabListsTheJudgmentThatHurtsMost();

 private:
};

void TradeOffsAnalysisDialogTest::theRegressionStatusTabListsTheJudgmentThatHurtsMost() {
  auto d = showDialog(makeModel(3));
  QVERIFY(QTest::qWaitForWindowExposed(d.get()));
  QApplication::setActiveWindow(d.get());
  QVERIFY(QTest::qWaitForWindowActive(d.get()));
  // The automatic cycle offers (1, 2), (2, 3), (3, 1) twice. Five judgments agree with the
  // weights (0.5, 0.3, 0.2); the sixth trades 5 of Att3 for 5 of Att1. Whole scores only: the
  // boxes' period guard takes a period out again when a digit follows it.
  const char* scores[6][4] = {{"6", "2", "3", "7"},  {"5", "1", "3", "4"}, {"7", "3", "2", "5"},
                              {"8", "0", "2", "10"}, {"6", "2", "2", "8"}, {"8", "1", "3", "6"}};
  for (const auto& s : scores) {
    typeScores(d.get(), s[0], s[1], s[2], s[3]);
    clickButton(d.get(), "cmdTradeOffEnter");
  }
  QCOMPARE(d->presenter().judgmentPage().store().JudgmentCount, 6);
  clickButton(d.get(), "cmdNext");

  auto* tabs = child<QTabBar>(d.get(), "tsTabsW");
  QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
  auto* list = child<QListWidget>(d.get(), "lstWorstJudgments");
  auto* caption = child<QLabel>(d.get(), "lblWorstJudgments");
  QTRY_VERIFY(list->isVisible());
  QVERIFY(caption->isVisible());
  QCOMPARE(caption->buddy(), static_cast<QWidget*>(list));
  QVERIFY(list->count() >= 1 && list->count() <= LeaveOneOut::kShown);
  QVERIFY2(list->item(0)->text().startsWith(
               QStringLiteral("Judgment 6 (Att3, Att1): A 8 / 1, B 3 / 6; index without it "
                              "1.0000 (+")),
           qPrintable(list->item(0)->text()));
  QVERIFY(list->item(0)->text().contains(QStringLiteral("B fitting the weights: Att1 ")));
  // The caption's mnemonic takes the keyboard to the list.
  QTest::keyClick(d.get(), Qt::Key_J, Qt::AltModifier);
  QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(list));
  d.reset();
}

}  // namespace tnw::tradeoffs

QTEST_MAIN(tnw::tradeoffs::TradeOffsAnalysisDialogTest)
#include "trade_offs_analysis_dialog_test.moc"
