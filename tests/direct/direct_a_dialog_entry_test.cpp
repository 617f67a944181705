// The Enter button of frmDirectA's judgment step, pressed every way a user can press it, on the
// real widgets: nothing is recorded while a check fails, and no button is left drawn pressed; and
// the keys the ratio boxes drop.

#include "common/core/recording_ui_services.h"
#include "common/ui/widget_ui_services.h"
#include "direct/ui/direct_a_dialog.h"
#include "direct_a_dialog_helpers.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"

// Qt
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

// Std
#include <memory>

namespace tnw::direct {

using test::control;

class DirectADialogEntryTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void theMnemonicChecksALowerBoundAboveTheUpper();
  void theMnemonicChecksAZeroLowerBound();
  void theMnemonicChecksTheStatus();
  void theMnemonicRecordsAValidInterval();
  void aMouseClickChecksFirst();
  void spaceOnTheButtonChecksFirst();
  void enterIsNotLeftPressedAfterAFailedCheck();
  void keysHeldWithCtrlAltOrMetaTypeNothing();
  void theListAndTheCaptionFollowAtOnce();

 private:
  void reachJudgments() { reachJudgments(m_ui); }
  void reachJudgments(UiServices& ui);
  void typeInto(QLineEdit* box, const QString& text);
  void pressEnterByMnemonic();
  bool targetJudged() const { return m_dialog->presenter().judgment().judgments().judged(0); }
  QPushButton* enterButton() const { return control<QPushButton>(m_dialog.get(), "cmdEnter"); }
  QLineEdit* lowerBox() const { return control<QLineEdit>(m_dialog.get(), "txtWRLower"); }
  QLineEdit* upperBox() const { return control<QLineEdit>(m_dialog.get(), "txtWRUpper"); }

  WizardContext m_context;
  RecordingUiServices m_ui;
  WidgetUiServices m_realUi;
  test::RecordingDirectAEvents m_events;
  std::unique_ptr<DirectADialog> m_dialog;
};

void DirectADialogEntryTest::cleanup() {
  m_dialog.reset();
  m_events = {};
  m_ui.clearMessages();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
}

// Three attributes in three groups, the reference 1 in the middle: target 0 starts at 1.20.
void DirectADialogEntryTest::reachJudgments(UiServices& ui) {
  m_context = test::makeContext(3);
  m_dialog = std::make_unique<DirectADialog>(m_context, ui, m_events);
  m_dialog->show();
  QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
  m_dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
  // Two groups at the start; Add makes the third.
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAdd"), Qt::LeftButton);
  for (int j = 0; j < 3; ++j) {
    QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), j + 1), QStringLiteral("A%1").arg(j)));
  }
  auto* next = control<QPushButton>(m_dialog.get(), "cmdNext");
  QTest::mouseClick(next, Qt::LeftButton);
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAttButtons", 1), Qt::LeftButton);
  QTest::mouseClick(next, Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 2);
  QCOMPARE(m_dialog->presenter().judgment().targets().currentTarget(), 0);
  QCOMPARE(upperBox()->text(), QStringLiteral("1.20"));
  QVERIFY(enterButton()->isEnabled());
  m_ui.clearMessages();
}

void DirectADialogEntryTest::typeInto(QLineEdit* box, const QString& text) {
  box->setFocus(Qt::MouseFocusReason);
  QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(box, text);
}

// Alt+E with the focus in the lower box: the button is pressed, the focus does not move.
void DirectADialogEntryTest::pressEnterByMnemonic() {
  QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(lowerBox()));
  QTest::keyClick(lowerBox(), Qt::Key_E, Qt::AltModifier);
  // The mnemonic clicks the button a moment later, as the platform's click does.
  QTest::qWait(300);
}

void DirectADialogEntryTest::theMnemonicChecksALowerBoundAboveTheUpper() {
  reachJudgments();
  if (QTest::currentTestFailed()) return;
  typeInto(lowerBox(), QStringLiteral("5"));
  pressEnterByMnemonic();
  QVERIFY(!targetJudged());
  QCOMPARE(m_dialog->presenter().result().LowerWeights[0], 1.2);
  QCOMPARE(m_ui.messages().size(), std::size_t{1});
  QCOMPARE(m_ui.messages()[0].text,
           "The weight ratio you entered should be greater than zero and less than or equal to "
           "1.2!");
  QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(lowerBox()));
  QCOMPARE(lowerBox()->selectedText(), QStringLiteral("5"));
}

void DirectADialogEntryTest::theMnemonicChecksAZeroLowerBound() {
  reachJudgments();
  if (QTest::currentTestFailed()) return;
  typeInto(lowerBox(), QStringLiteral("0"));
  pressEnterByMnemonic();
  QVERIFY(!targetJudged());
  QCOMPARE(m_ui.messages().size(), std::size_t{1});
}

void DirectADialogEntryTest::theMnemonicChecksTheStatus() {
  reachJudgments();
  if (QTest::currentTestFailed()) return;
  // Below 1 contradicts the order: target 0 is more important than the reference.
  typeInto(lowerBox(), QStringLiteral("0.5"));
  pressEnterByMnemonic();
  QVERIFY(!targetJudged());
  QVERIFY(m_ui.messages().empty());
  QCOMPARE(m_dialog->presenter().lamps().state(), JudgmentState::Inconsistent);
  QVERIFY(!enterButton()->isEnabled());
}

void DirectADialogEntryTest::theMnemonicRecordsAValidInterval() {
  reachJudgments();
  if (QTest::currentTestFailed()) return;
  typeInto(lowerBox(), QStringLiteral("1.1"));
  pressEnterByMnemonic();
  QVERIFY(targetJudged());
  QCOMPARE(m_dialog->presenter().result().LowerWeights[0], 1.1);
  QCOMPARE(m_dialog->presenter().result().UpperWeights[0], 1.2);
  QVERIFY(m_ui.messages().empty());
}

void DirectADialogEntryTest::aMouseClickChecksFirst() {
  reachJudgments();
  if (QTest::currentTestFailed()) return;
  typeInto(lowerBox(), QStringLiteral("5"));
  QTest::mouseClick(enterButton(), Qt::LeftButton);
  QVERIFY(!targetJudged());
  QVERIFY(!m_ui.messages().empty());
  QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(lowerBox()));
}

void DirectADialogEntryTest::spaceOnTheButtonChecksFirst() {
  reachJudgments();
  if (QTest::currentTestFailed()) return;
  typeInto(lowerBox(), QStringLiteral("5"));
  // The focus reaches the button; Space comes before the focus is given back to the box.
  enterButton()->setFocus(Qt::TabFocusReason);
  QTest::keyClick(enterButton(), Qt::Key_Space);
  QVERIFY(!targetJudged());
  QCOMPARE(m_dialog->presenter().result().LowerWeights[0], 1.2);
}

void DirectADialogEntryTest::enterIsNotLeftPressedAfterAFailedCheck() {
  // The real message box: it is modal, so the release of the press that set off the check goes
  // nowhere while it is open.
  int closed = 0;
  QTimer closer;
  connect(&closer, &QTimer::timeout, this, [&closed] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      ++closed;
      QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    }
  });
  closer.start(20);
  reachJudgments(m_realUi);
  if (QTest::currentTestFailed()) return;
  typeInto(lowerBox(), QStringLiteral("5"));
  // The press takes the focus from the box, whose check fails and shows its message.
  QTest::mousePress(enterButton(), Qt::LeftButton);
  QCOMPARE(closed, 1);
  QTRY_VERIFY(!enterButton()->isDown());
  QVERIFY(!targetJudged());
}

void DirectADialogEntryTest::keysHeldWithCtrlAltOrMetaTypeNothing() {
  reachJudgments();
  if (QTest::currentTestFailed()) return;
  typeInto(lowerBox(), QStringLiteral("0.8"));
  QVERIFY(!control<QPushButton>(m_dialog.get(), "cmdNext")->isEnabled());
  // Alt+N while Next is disabled reaches the box, as any Alt+letter without a mnemonic does.
  for (const Qt::Key key : {Qt::Key_X, Qt::Key_Z, Qt::Key_N, Qt::Key_5, Qt::Key_Period}) {
    QTest::keyClick(lowerBox(), key, Qt::AltModifier);
    QTest::keyClick(lowerBox(), key, Qt::MetaModifier);
    QTest::keyClick(lowerBox(), key, Qt::ControlModifier | Qt::AltModifier);
  }
  QTest::keyClick(lowerBox(), Qt::Key_Q, Qt::ControlModifier);
  QTest::keyClick(lowerBox(), Qt::Key_5, Qt::ControlModifier);
  QCOMPARE(lowerBox()->text(), QStringLiteral("0.8"));
  QCOMPARE(m_dialog->presenter().judgment().box(JudgmentPage::Box::Lower).text, "0.8");
  // The box's own editing keys still work, and a digit from the keypad is typed.
  QTest::keyClick(lowerBox(), Qt::Key_A, Qt::ControlModifier);
  QCOMPARE(lowerBox()->selectedText(), QStringLiteral("0.8"));
  QTest::keyClick(lowerBox(), Qt::Key_7, Qt::KeypadModifier);
  QCOMPARE(lowerBox()->text(), QStringLiteral("7"));
  QTest::qWait(300);
  QVERIFY(!targetJudged());
}

void DirectADialogEntryTest::theListAndTheCaptionFollowAtOnce() {
  reachJudgments();
  if (QTest::currentTestFailed()) return;
  auto* targets = control<QComboBox>(m_dialog.get(), "imgcmbTargetAtt");
  QTest::mouseClick(enterButton(), Qt::LeftButton);
  QVERIFY(targetJudged());
  QCOMPARE(targets->itemText(0), QString::fromUtf8(TargetList::kJudgedPrefix) + "Att1");
  // The reference refused as the target: the list and the labels stay on target 0.
  targets->setCurrentIndex(1);
  emit targets->activated(1);
  QCOMPARE(m_ui.messages().size(), std::size_t{1});
  QCOMPARE(targets->currentIndex(), 0);
  QCOMPARE(control<QLabel>(m_dialog.get(), "lblTargetAtt")->text(), QStringLiteral("Att1"));
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdBack"), Qt::LeftButton);
  QCOMPARE(m_dialog->windowTitle(), QString::fromUtf8(DirectAPresenter::kCaptions[1]));
}

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::DirectADialogEntryTest)
#include "direct_a_dialog_entry_test.moc"
