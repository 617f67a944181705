// The score boxes of the trade-off judgment page, typed into key by key on the real dialog.

#include "trade_off_dialog_fixture.h"

namespace tnw::tradeoffs {

using namespace tnw::testing;

class TradeOffsScoreBoxTest : public QObject, TradeOffDialogParts {
  Q_OBJECT

 private slots:
  void cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
  }
  void keysHeldWithCtrlAltOrMetaTypeNothing();
  void aDecimalCanBeTypedAndASecondPeriodIsDropped();

 private:
  std::unique_ptr<TradeOffsADialog> open() {
    auto d = showDialog(makeModel(3));
    [&] {
      QVERIFY(QTest::qWaitForWindowExposed(d.get()));
      d->activateWindow();
      QVERIFY(QTest::qWaitForWindowActive(d.get()));
    }();
    return d;
  }

};

void TradeOffsScoreBoxTest::keysHeldWithCtrlAltOrMetaTypeNothing() {
  auto d = open();
  typeScore(d.get(), "txtTradeOffBFirstScore", "21");
  auto* box = child<QLineEdit>(d.get(), QStringLiteral("txtTradeOffBFirstScore"));
  // No mnemonic of the page uses these letters, so the keys reach the box.
  for (const Qt::Key key : {Qt::Key_X, Qt::Key_Z, Qt::Key_Q, Qt::Key_7, Qt::Key_Period}) {
    QTest::keyClick(box, key, Qt::AltModifier);
    QTest::keyClick(box, key, Qt::MetaModifier);
    QTest::keyClick(box, key, Qt::ControlModifier | Qt::AltModifier);
    QTest::keyClick(box, key, Qt::ControlModifier);
  }
  QCOMPARE(box->text(), QStringLiteral("21"));
  // The box's own editing keys still work, and a digit from the keypad is typed.
  QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
  QCOMPARE(box->selectedText(), QStringLiteral("21"));
  QTest::keyClick(box, Qt::Key_7, Qt::KeypadModifier);
  QCOMPARE(box->text(), QStringLiteral("7"));
  QVERIFY(m_ui.messages().empty());
}

void TradeOffsScoreBoxTest::aDecimalCanBeTypedAndASecondPeriodIsDropped() {
  auto d = open();
  typeScore(d.get(), "txtTradeOffAFirstScore", "30.5");
  auto* box = child<QLineEdit>(d.get(), QStringLiteral("txtTradeOffAFirstScore"));
  QCOMPARE(box->text(), QStringLiteral("30.5"));
  QTest::keyClicks(box, QStringLiteral(".2."));
  QCOMPARE(box->text(), QStringLiteral("30.52"));
  box->setCursorPosition(1);
  QTest::keyClicks(box, QStringLiteral(".1"));
  QCOMPARE(box->text(), QStringLiteral("310.52"));
}

}  // namespace tnw::tradeoffs

QTEST_MAIN(tnw::tradeoffs::TradeOffsScoreBoxTest)
#include "trade_offs_score_box_test.moc"
