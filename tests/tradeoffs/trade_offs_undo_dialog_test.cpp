// Undo and redo on frmTradeOffsA through its real widgets: the buttons cmdUndo and cmdRedo, the
// keys Ctrl+Z, Ctrl+Shift+Z and Ctrl+Y, and Cancel's question before judgments go.

#include "trade_off_dialog_fixture.h"

// Qt
#include <QLabel>
#include <QListWidget>
#include <QPointer>

namespace tnw::testing {

class TradeOffsUndoDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void theButtonsAreNamedFocusableAndExplained();
  void theButtonsTakeBackAndMakeAgainEnterAndClearAll();
  void theKeysUndoAndRedoOutsideTheScoreBoxes();
  void cancelWithNoKeepsTheDialogAndYesCancels();

 private:
  void open();
  void enterJudgment(const char* a1);
  QPushButton* button(const char* name) const {
    return child<QPushButton>(m_dialog.get(), QString::fromLatin1(name));
  }
  QString shown(const char* label) const {
    return child<QLabel>(m_dialog.get(), QString::fromLatin1(label))->text();
  }
  QString box(const char* name) const {
    return child<QLineEdit>(m_dialog.get(), QString::fromLatin1(name))->text();
  }
  void pressKeys(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }

  WizardContext m_context;
  RecordingUiServices m_ui;
  RecordingTradeOffsEvents m_events;
  SequenceRandomSource m_random{{0.2f, 0.7f, 0.4f, 0.9f, 0.1f, 0.6f, 0.3f, 0.8f}};
  std::unique_ptr<tradeoffs::TradeOffsADialog> m_dialog;
};

void TradeOffsUndoDialogTest::cleanup() {
  m_dialog.reset();
  m_events = {};
  m_ui = RecordingUiServices{};
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
}

void TradeOffsUndoDialogTest::open() {
  m_context.model = makeModel(3);
  m_context.FileIndex = 2;
  m_dialog = std::make_unique<tradeoffs::TradeOffsADialog>(m_context, m_ui, m_events, &m_random);
  m_dialog->show();
  QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
  m_dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void TradeOffsUndoDialogTest::enterJudgment(const char* a1) {
  typeScore(m_dialog.get(), "txtTradeOffAFirstScore", a1);
  clickButton(m_dialog.get(), "cmdTradeOffEnter");
}

void TradeOffsUndoDialogTest::theButtonsAreNamedFocusableAndExplained() {
  open();
  for (const char* name : {"cmdUndo", "cmdRedo"}) {
    QPushButton* b = button(name);
    QVERIFY(b->isVisible());
    QVERIFY(!b->isEnabled());
    QVERIFY(b->focusPolicy() & Qt::TabFocus);
    QVERIFY(!b->toolTip().isEmpty());
  }
  QCOMPARE(button("cmdUndo")->text(), QStringLiteral("Undo (&Z)"));
  QCOMPARE(button("cmdRedo")->text(), QStringLiteral("Redo (&Y)"));
  QVERIFY(button("cmdUndo")->toolTip().contains(QStringLiteral("Ctrl+Z")));
  QVERIFY(button("cmdRedo")->toolTip().contains(QStringLiteral("Ctrl+Y")));
  // On the results page there is nothing to undo.
  enterJudgment("3");
  clickButton(m_dialog.get(), "cmdNext");
  QCOMPARE(m_dialog->presenter().step(), tradeoffs::TradeOffsAPresenter::kResultsStep);
  QVERIFY(!button("cmdUndo")->isVisible());
  QVERIFY(!button("cmdRedo")->isVisible());
}

void TradeOffsUndoDialogTest::theButtonsTakeBackAndMakeAgainEnterAndClearAll() {
  open();
  const QString firstA2 = box("txtTradeOffASecondScore");
  enterJudgment("3");
  const QString secondA2 = box("txtTradeOffASecondScore");
  enterJudgment("5");
  QCOMPARE(shown("labPCThisNum"), QStringLiteral("3"));
  QVERIFY(button("cmdUndo")->isEnabled());
  QVERIFY(!button("cmdRedo")->isEnabled());

  clickButton(m_dialog.get(), "cmdUndo");
  QCOMPARE(shown("labPCThisNum"), QStringLiteral("2"));
  QCOMPARE(box("txtTradeOffAFirstScore"), QStringLiteral("5"));
  QCOMPARE(box("txtTradeOffASecondScore"), secondA2);
  QCOMPARE(child<QListWidget>(m_dialog.get(), QStringLiteral("lstTradeOffFirstC"))->currentRow(),
           1);
  QVERIFY(button("cmdRedo")->isEnabled());
  clickButton(m_dialog.get(), "cmdUndo");
  QCOMPARE(shown("labPCThisNum"), QStringLiteral("1"));
  QCOMPARE(box("txtTradeOffAFirstScore"), QStringLiteral("3"));
  QCOMPARE(box("txtTradeOffASecondScore"), firstA2);
  QCOMPARE(m_dialog->presenter().judgmentPage().store().JudgmentCount, 0);
  QVERIFY(!button("cmdUndo")->isEnabled());

  clickButton(m_dialog.get(), "cmdRedo");
  clickButton(m_dialog.get(), "cmdRedo");
  QCOMPARE(shown("labPCThisNum"), QStringLiteral("3"));
  QCOMPARE(m_dialog->presenter().judgmentPage().store().JudgmentCount, 2);
  QVERIFY(!button("cmdRedo")->isEnabled());

  clickButton(m_dialog.get(), "cmdTradeOffClearAll");
  QCOMPARE(shown("labPCThisNum"), QStringLiteral("1"));
  clickButton(m_dialog.get(), "cmdUndo");
  QCOMPARE(shown("labPCThisNum"), QStringLiteral("3"));
  QCOMPARE(m_dialog->presenter().judgmentPage().store().JudgmentCount, 2);
  QCOMPARE(m_dialog->presenter().judgmentPage().store().ScoreAFirst[1], 5.0);
}

void TradeOffsUndoDialogTest::theKeysUndoAndRedoOutsideTheScoreBoxes() {
  open();
  enterJudgment("3");
  enterJudgment("5");
  button("cmdTradeOffEnter")->setFocus(Qt::OtherFocusReason);
  pressKeys(Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(shown("labPCThisNum"), QStringLiteral("2"));
  pressKeys(Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(shown("labPCThisNum"), QStringLiteral("1"));
  QVERIFY(!button("cmdUndo")->isEnabled());
  pressKeys(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  QCOMPARE(shown("labPCThisNum"), QStringLiteral("2"));
  pressKeys(Qt::Key_Y, Qt::ControlModifier);
  QCOMPARE(shown("labPCThisNum"), QStringLiteral("3"));
  QVERIFY(!button("cmdRedo")->isEnabled());
  // The mnemonics press the buttons.
  pressKeys(Qt::Key_Z, Qt::AltModifier);
  QTRY_COMPARE(shown("labPCThisNum"), QStringLiteral("2"));
  pressKeys(Qt::Key_Y, Qt::AltModifier);
  QTRY_COMPARE(shown("labPCThisNum"), QStringLiteral("3"));
  // In a score box Ctrl+Z undoes the typing, not a judgment.
  auto* a1 = child<QLineEdit>(m_dialog.get(), QStringLiteral("txtTradeOffAFirstScore"));
  a1->setFocus(Qt::OtherFocusReason);
  QTest::keyClick(a1, Qt::Key_End);
  QTest::keyClick(a1, Qt::Key_1);
  QTest::keyClick(a1, Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(shown("labPCThisNum"), QStringLiteral("3"));
  QCOMPARE(m_dialog->presenter().judgmentPage().store().JudgmentCount, 2);
}

void TradeOffsUndoDialogTest::cancelWithNoKeepsTheDialogAndYesCancels() {
  open();
  enterJudgment("3");
  enterJudgment("5");
  m_events.log.clear();
  m_ui.setAnswer(false);
  clickButton(m_dialog.get(), "cmdCancel");
  QCOMPARE(m_ui.questions().size(), std::size_t{1});
  QCOMPARE(m_ui.questions()[0].text, std::string("Discard 2 judgments?"));
  QCOMPARE(m_ui.questions()[0].title, std::string("NORIX"));
  QVERIFY(m_events.log.empty());
  QVERIFY(m_dialog->isVisible());
  QCOMPARE(shown("labPCThisNum"), QStringLiteral("3"));
  QVERIFY(button("cmdUndo")->isEnabled());
  // Escape is Cancel, and asks the same.
  QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
  QCOMPARE(m_ui.questions().size(), std::size_t{2});
  QVERIFY(m_events.log.empty());
  m_ui.setAnswer(true);
  clickButton(m_dialog.get(), "cmdCancel");
  QCOMPARE(m_events.log, (std::vector<std::string>{"UnloadTNWizard 2 false"}));
  QVERIFY(m_events.exports.empty());
}

}  // namespace tnw::testing

QTEST_MAIN(tnw::testing::TradeOffsUndoDialogTest)
#include "trade_offs_undo_dialog_test.moc"
