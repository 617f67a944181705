// Undo and redo on frmDirectA through its real widgets: the buttons cmdUndo and cmdRedo, the
// keys Ctrl+Z, Ctrl+Shift+Z and Ctrl+Y, and Cancel's question before judgments go.

#include "common/core/recording_ui_services.h"
#include "direct/ui/direct_a_dialog.h"
#include "direct/ui/status_lights_widget.h"
#include "direct_a_dialog_helpers.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"

// Qt
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

// Std
#include <memory>

namespace tnw::direct {

using test::control;

class DirectAUndoDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void theButtonsAreNamedFocusableAndExplained();
  void theButtonsTakeBackAndMakeAgainEnterAndReStartAll();
  void theKeysUndoAndRedoOutsideTheRatioBoxes();
  void cancelWithNoKeepsTheDialogAndYesCancels();

 private:
  void openOnJudgments();
  void judge(int target, const QString& lower, const QString& upper);
  QPushButton* button(const char* name) const { return control<QPushButton>(m_dialog.get(), name); }
  QComboBox* targets() const { return control<QComboBox>(m_dialog.get(), "imgcmbTargetAtt"); }
  QString lowerText() const { return control<QLineEdit>(m_dialog.get(), "txtWRLower")->text(); }
  void pressKeys(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }

  WizardContext m_context;
  RecordingUiServices m_ui;
  test::RecordingDirectAEvents m_events;
  std::unique_ptr<DirectADialog> m_dialog;
};

void DirectAUndoDialogTest::cleanup() {
  m_dialog.reset();
  m_events = {};
  m_ui = RecordingUiServices{};
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
}

// Four attributes ordered {1, 2, 2, 3} with attribute 1 the reference, on step 2.
void DirectAUndoDialogTest::openOnJudgments() {
  m_context = test::makeContext(4);
  m_dialog = std::make_unique<DirectADialog>(m_context, m_ui, m_events);
  m_dialog->show();
  QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
  m_dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
  const int groups[] = {1, 2, 2, 3};
  for (int j = 0; j < 4; ++j) {
    while (m_dialog->presenter().ordering().order().GroupCount() < groups[j]) {
      QTest::mouseClick(button("cmdAdd"), Qt::LeftButton);
    }
    QVERIFY(
        test::dragAndDrop(test::orderBox(m_dialog.get(), groups[j]), QStringLiteral("A%1").arg(j)));
  }
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAttButtons", 1), Qt::LeftButton);
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 2);
}

void DirectAUndoDialogTest::judge(int target, const QString& lower, const QString& upper) {
  targets()->setCurrentIndex(target);
  emit targets()->activated(target);
  auto* txtLower = control<QLineEdit>(m_dialog.get(), "txtWRLower");
  auto* txtUpper = control<QLineEdit>(m_dialog.get(), "txtWRUpper");
  for (QLineEdit* box : {txtUpper, txtLower}) {
    box->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, box == txtLower ? lower : upper);
  }
  QTest::keyClick(txtLower, Qt::Key_Return);
  QTest::mouseClick(button("cmdEnter"), Qt::LeftButton);
}

void DirectAUndoDialogTest::theButtonsAreNamedFocusableAndExplained() {
  openOnJudgments();
  for (const char* name : {"cmdUndo", "cmdRedo"}) {
    QPushButton* b = button(name);
    QVERIFY(b->isVisible());
    QVERIFY(!b->isEnabled());
    QVERIFY(b->focusPolicy() & Qt::TabFocus);
    QVERIFY(!b->toolTip().isEmpty());
  }
  QCOMPARE(button("cmdUndo")->text(), QStringLiteral("Undo (&Z)"));
  QCOMPARE(button("cmdRedo")->text(), QStringLiteral("Redo (&Y)"));
  QVERIFY(button("cmdUndo")->toolTip().contains(QStringLiteral("Re-start All")));
  // Undo and Redo belong to step 2 only.
  QTest::mouseClick(button("cmdBack"), Qt::LeftButton);
  QVERIFY(!button("cmdUndo")->isVisible());
  QVERIFY(!button("cmdRedo")->isVisible());
}

void DirectAUndoDialogTest::theButtonsTakeBackAndMakeAgainEnterAndReStartAll() {
  openOnJudgments();
  judge(0, QStringLiteral("1.5"), QStringLiteral("2"));
  judge(3, QStringLiteral("0.5"), QStringLiteral("0.8"));
  QVERIFY(button("cmdNext")->isEnabled());
  QCOMPARE(targets()->itemText(3), QStringLiteral(" \u00A4 Att4"));
  QVERIFY(button("cmdUndo")->isEnabled());

  QTest::mouseClick(button("cmdUndo"), Qt::LeftButton);
  QCOMPARE(targets()->itemText(3), QStringLiteral("Att4"));
  QCOMPARE(targets()->currentIndex(), 3);
  QCOMPARE(lowerText(), QStringLiteral("0.50"));
  QVERIFY(button("cmdEnter")->isEnabled());
  QVERIFY(!button("cmdNext")->isEnabled());
  QVERIFY(!button("cmdFinish")->isEnabled());
  auto* lights = m_dialog->findChild<StatusLightsWidget*>(QStringLiteral("picJudgmentState"));
  QVERIFY(lights->lampLit(0));
  QVERIFY(button("cmdRedo")->isEnabled());

  QTest::mouseClick(button("cmdRedo"), Qt::LeftButton);
  QCOMPARE(targets()->itemText(3), QStringLiteral(" \u00A4 Att4"));
  QVERIFY(!button("cmdEnter")->isEnabled());
  QVERIFY(button("cmdNext")->isEnabled());
  QVERIFY(!button("cmdRedo")->isEnabled());

  QTest::mouseClick(button("cmdReStart"), Qt::LeftButton);
  QCOMPARE(targets()->itemText(0), QStringLiteral("Att1"));
  QVERIFY(!button("cmdNext")->isEnabled());
  QTest::mouseClick(button("cmdUndo"), Qt::LeftButton);
  QCOMPARE(targets()->itemText(0), QStringLiteral(" \u00A4 Att1"));
  QCOMPARE(targets()->itemText(3), QStringLiteral(" \u00A4 Att4"));
  QVERIFY(button("cmdNext")->isEnabled());
  QVERIFY(button("cmdFinish")->isEnabled());
  QCOMPARE(m_dialog->presenter().result().UpperWeights, (std::vector<double>{2, 1, 1, 0.8}));
}

void DirectAUndoDialogTest::theKeysUndoAndRedoOutsideTheRatioBoxes() {
  openOnJudgments();
  judge(0, QStringLiteral("1.5"), QStringLiteral("2"));
  judge(3, QStringLiteral("0.5"), QStringLiteral("0.8"));
  targets()->setFocus(Qt::OtherFocusReason);
  pressKeys(Qt::Key_Z, Qt::ControlModifier);
  QVERIFY(!m_dialog->presenter().judgment().judgments().judged(3));
  pressKeys(Qt::Key_Z, Qt::ControlModifier);
  QVERIFY(!m_dialog->presenter().judgment().judgments().judged(0));
  QVERIFY(!button("cmdUndo")->isEnabled());
  pressKeys(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  QVERIFY(m_dialog->presenter().judgment().judgments().judged(0));
  pressKeys(Qt::Key_Y, Qt::ControlModifier);
  QVERIFY(m_dialog->presenter().judgment().judgments().judged(3));
  QVERIFY(!button("cmdRedo")->isEnabled());
  // The mnemonics press the buttons.
  pressKeys(Qt::Key_Z, Qt::AltModifier);
  QTRY_VERIFY(!m_dialog->presenter().judgment().judgments().judged(3));
  pressKeys(Qt::Key_Y, Qt::AltModifier);
  QTRY_VERIFY(m_dialog->presenter().judgment().judgments().judged(3));
  // In a ratio box Ctrl+Z undoes the typing, not a judgment.
  auto* upper = control<QLineEdit>(m_dialog.get(), "txtWRUpper");
  upper->setFocus(Qt::OtherFocusReason);
  QTest::keyClick(upper, Qt::Key_Z, Qt::ControlModifier);
  QVERIFY(m_dialog->presenter().judgment().judgments().judged(3));
  QCOMPARE(m_dialog->presenter().commands().undoCount(), std::size_t{2});
}

void DirectAUndoDialogTest::cancelWithNoKeepsTheDialogAndYesCancels() {
  openOnJudgments();
  judge(0, QStringLiteral("1.5"), QStringLiteral("2"));
  m_events = {};
  m_ui.setAnswer(false);
  QTest::mouseClick(button("cmdCancel"), Qt::LeftButton);
  QCOMPARE(m_ui.questions().size(), std::size_t{1});
  QCOMPARE(m_ui.questions()[0].text, std::string("Discard 1 judgment?"));
  QCOMPARE(m_ui.questions()[0].title, std::string("NORIX"));
  QVERIFY(m_events.unloads.empty());
  QVERIFY(m_dialog->isVisible());
  QCOMPARE(targets()->itemText(0), QStringLiteral(" \u00A4 Att1"));
  QVERIFY(button("cmdUndo")->isEnabled());
  // The close box is Cancel, and asks the same.
  m_dialog->close();
  QCOMPARE(m_ui.questions().size(), std::size_t{2});
  QVERIFY(m_events.unloads.empty());
  QVERIFY(m_dialog->isVisible());
  m_ui.setAnswer(true);
  QTest::mouseClick(button("cmdCancel"), Qt::LeftButton);
  QCOMPARE(m_events.unloads.size(), std::size_t{1});
  QVERIFY(!m_events.unloads[0].weightsDone);
  QVERIFY(m_events.exports.empty());
}

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::DirectAUndoDialogTest)
#include "direct_a_undo_dialog_test.moc"
