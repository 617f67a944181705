// Ratio entry, pasting, help, keyboard use, layout and resumption on the real frmDirectA.

#include "common/core/recording_ui_services.h"
#include "direct/ui/attribute_button_widget.h"
#include "direct/ui/direct_a_dialog.h"
#include "direct_a_dialog_helpers.h"
#include "direct_test_models.h"
#include "model/model_file_reader.h"
#include "recording_direct_a_events.h"

// Qt
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

// Std
#include <memory>

namespace tnw::direct {

using test::control;

class DirectADialogInputTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void failedLowerBoundShowsTheMessageBeepsAndSelectsTheText();
  void failedUpperBoundShowsItsOwnMessage();
  void enterInTheUpperBoxChecksTheLowerBound();
  void onlyDigitsAndOnePeriodReachTheBox();
  void ctrlVAndShiftInsertChangeNothing();
  void refusedTargetsShowTheirMessages();
  void mnemonicsPressTheWizardButtons();
  void theWholeMethodCanBeDoneWithTheKeyboard();
  void tabVisitsTheControlsInTheOrderShown();
  void helpOpensTheHostsHelpFileAtItsContext();
  void helpNamesTheStepItIsPressedOn();
  void closeBoxCancels();
  void aModelWithoutUsableAttributesStillCancels();
  void noTextIsClippedOnAnyStep();
  void resumesFromTheSampleWithAnEarlierResult();
  void aZeroEarlierReferenceWeightIsToldAndNothingIsResumedOrExported();

 private:
  void open(WizardContext context);
  void reachJudgments();
  void typeInto(QLineEdit* box, const QString& text);
  QPushButton* button(const char* name) const { return control<QPushButton>(m_dialog.get(), name); }
  QLineEdit* lowerBox() const { return control<QLineEdit>(m_dialog.get(), "txtWRLower"); }
  QLineEdit* upperBox() const { return control<QLineEdit>(m_dialog.get(), "txtWRUpper"); }

  WizardContext m_context;
  RecordingUiServices m_ui;
  test::RecordingDirectAEvents m_events;
  std::unique_ptr<DirectADialog> m_dialog;
};

void DirectADialogInputTest::cleanup() {
  m_dialog.reset();
  m_events = {};
  m_ui.clearMessages();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
}

void DirectADialogInputTest::open(WizardContext context) {
  m_context = std::move(context);
  m_dialog = std::make_unique<DirectADialog>(m_context, m_ui, m_events);
  m_dialog->show();
  QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
  m_dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

// Two attributes: the reference 0 in group 1, the target 1 in group 2 (starting at 0.80).
void DirectADialogInputTest::reachJudgments() {
  open(test::makeContext(2));
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 1), QStringLiteral("A0")));
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 2), QStringLiteral("A1")));
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAttButtons", 0), Qt::LeftButton);
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 2);
  QCOMPARE(lowerBox()->text(), QStringLiteral("0.80"));
}

void DirectADialogInputTest::typeInto(QLineEdit* box, const QString& text) {
  box->setFocus(Qt::MouseFocusReason);
  QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(box, text);
}

void DirectADialogInputTest::failedLowerBoundShowsTheMessageBeepsAndSelectsTheText() {
  reachJudgments();
  typeInto(upperBox(), QStringLiteral("1"));
  typeInto(lowerBox(), QStringLiteral("2"));
  const int beeps = m_ui.beeps();
  m_ui.clearMessages();
  QTest::keyClick(lowerBox(), Qt::Key_Tab);
  QCOMPARE(m_ui.messages().size(), std::size_t{1});
  QCOMPARE(m_ui.messages()[0].text,
           "The weight ratio you entered should be greater than zero and less than or equal to "
           "1!");
  QCOMPARE(m_ui.messages()[0].title, "NORIX");
  QVERIFY(m_ui.messages()[0].icon == MessageIcon::Exclamation);
  QCOMPARE(m_ui.beeps(), beeps + 1);
  QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(lowerBox()));
  QCOMPARE(lowerBox()->selectedText(), QStringLiteral("2"));
  QVERIFY(!control<QPushButton>(m_dialog.get(), "cmdEnter")->isEnabled() ||
          m_dialog->presenter().judgment().validity() == 0);
}

void DirectADialogInputTest::failedUpperBoundShowsItsOwnMessage() {
  reachJudgments();
  typeInto(lowerBox(), QStringLiteral("0.5"));
  typeInto(upperBox(), QStringLiteral("0.25"));
  m_ui.clearMessages();
  QTest::keyClick(upperBox(), Qt::Key_Tab);
  QCOMPARE(m_ui.messages().size(), std::size_t{1});
  QCOMPARE(m_ui.messages()[0].text,
           "The weight ratio you entered should be greater than or equal to 0.5!");
  QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(upperBox()));
  QCOMPARE(upperBox()->selectedText(), QStringLiteral("0.25"));
}

void DirectADialogInputTest::enterInTheUpperBoxChecksTheLowerBound() {
  reachJudgments();
  typeInto(upperBox(), QStringLiteral("0"));
  m_ui.clearMessages();
  QTest::keyClick(upperBox(), Qt::Key_Return);
  // The lower bound 0.80 is now above the upper bound 0: the lower check fails.
  QCOMPARE(m_ui.messages().size(), std::size_t{1});
  QCOMPARE(m_ui.messages()[0].text,
           "The weight ratio you entered should be greater than zero and less than or equal to "
           "0!");
  QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(lowerBox()));
}

void DirectADialogInputTest::onlyDigitsAndOnePeriodReachTheBox() {
  reachJudgments();
  typeInto(lowerBox(), QStringLiteral("a1-.5x."));
  QCOMPARE(lowerBox()->text(), QStringLiteral("1.5"));
  QTest::keyClick(lowerBox(), Qt::Key_Backspace);
  QCOMPARE(lowerBox()->text(), QStringLiteral("1."));
}

void DirectADialogInputTest::ctrlVAndShiftInsertChangeNothing() {
  reachJudgments();
  QGuiApplication::clipboard()->setText(QStringLiteral("9"));
  lowerBox()->setFocus(Qt::MouseFocusReason);
  lowerBox()->setCursorPosition(0);
  QTest::keyClick(lowerBox(), Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(lowerBox()->text(), QStringLiteral("0.80"));
  QTest::keyClick(lowerBox(), Qt::Key_Insert, Qt::ShiftModifier);
  QCOMPARE(lowerBox()->text(), QStringLiteral("0.80"));
  QTest::mouseClick(lowerBox(), Qt::MiddleButton);
  QCOMPARE(lowerBox()->text(), QStringLiteral("0.80"));
  QCOMPARE(lowerBox()->contextMenuPolicy(), Qt::NoContextMenu);
  QVERIFY(!lowerBox()->acceptDrops());
}

void DirectADialogInputTest::refusedTargetsShowTheirMessages() {
  open(test::makeContext(3));
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 1), QStringLiteral("A0")));
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 1), QStringLiteral("A1")));
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 2), QStringLiteral("A2")));
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAttButtons", 0), Qt::LeftButton);
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  auto* combo = control<QComboBox>(m_dialog.get(), "imgcmbTargetAtt");
  QCOMPARE(combo->currentIndex(), 2);
  m_ui.clearMessages();
  // A tie of the reference: the message, and the list goes back to the current target.
  combo->setCurrentIndex(1);
  emit combo->activated(1);
  QCOMPARE(m_ui.messages().size(), std::size_t{1});
  QCOMPARE(m_ui.messages()[0].text,
           "The selected attribute is in the same group with the reference attribute for the "
           "benefit-oriened ones. It is not necessary to make tradeoffs between them.");
  QCOMPARE(combo->currentIndex(), 2);
  // The reference itself: the message; the target stays, and the list shows it again.
  combo->setCurrentIndex(0);
  emit combo->activated(0);
  QCOMPARE(m_ui.messages().size(), std::size_t{2});
  QCOMPARE(m_ui.messages()[1].text,
           "Please choose different attributes to make pairwise comparisons!");
  QCOMPARE(combo->currentIndex(), 2);
  QCOMPARE(m_dialog->presenter().judgment().targets().currentTarget(), 2);
  QCOMPARE(control<QLabel>(m_dialog.get(), "lblTargetAtt")->text(), QStringLiteral("Att3"));
}

void DirectADialogInputTest::mnemonicsPressTheWizardButtons() {
  open(test::makeContext(3));
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 1), QStringLiteral("A0")));
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 1), QStringLiteral("A1")));
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 2), QStringLiteral("A2")));
  // A mnemonic presses its button as a click of the platform does, a moment later.
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::AltModifier);
  QTRY_COMPARE(m_dialog->presenter().ordering().order().GroupCount(), 3);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::AltModifier);
  QTRY_COMPARE(m_dialog->presenter().WizardStep(), 1);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_B, Qt::AltModifier);
  QTRY_COMPARE(m_dialog->presenter().WizardStep(), 0);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::AltModifier);
  QTRY_COMPARE(m_events.log.back(), std::string("UnloadTNWizard"));
}

void DirectADialogInputTest::theWholeMethodCanBeDoneWithTheKeyboard() {
  open(test::makeContext(4));
  const auto key = [](Qt::Key k, Qt::KeyboardModifiers m = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), k, m);
  };
  // Step 0: the first attribute has the focus and its information shows.
  QCOMPARE(QApplication::focusWidget(), control<QWidget>(m_dialog.get(), "cmdAttA", 0));
  QCOMPARE(control<QLabel>(m_dialog.get(), "labAttName")->text(), QStringLiteral("Att1"));
  // Space puts the focused attribute in the framed group and moves on to the next one.
  key(Qt::Key_Space);
  QCOMPARE(QApplication::focusWidget(), control<QWidget>(m_dialog.get(), "cmdAttA", 1));
  QCOMPARE(control<QLabel>(m_dialog.get(), "labAttName")->text(), QStringLiteral("Att2"));
  key(Qt::Key_Space);
  // Insert puts an empty group above the framed one; the next two go there.
  key(Qt::Key_I, Qt::AltModifier);
  QTRY_COMPARE(m_dialog->presenter().ordering().order().GroupCount(), 3);
  QCOMPARE(QApplication::focusWidget(), control<QWidget>(m_dialog.get(), "cmdAttA", 2));
  key(Qt::Key_Space);
  key(Qt::Key_Space);
  QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(button("cmdNext")));
  const ImportanceOrder& order = m_dialog->presenter().ordering().order();
  // Down moves a placed attribute to the next group, Up back.
  auto* placed = test::orderBox(m_dialog.get(), 1)->findChildren<AttributeButtonWidget*>()[0];
  placed->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Down);
  QCOMPARE(order.AttGroup(placed->attribute()), 2);
  QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(placed));
  QCOMPARE(control<QLabel>(m_dialog.get(), "labAttName")->text(),
           QStringLiteral("Att%1").arg(placed->attribute() + 1));
  key(Qt::Key_Up);
  QCOMPARE(order.AttGroup(placed->attribute()), 1);
  QCOMPARE(order.AttGroup(0), 2);
  QCOMPARE(order.AttGroup(1), 2);
  QCOMPARE(order.AttGroup(2), 1);
  QCOMPARE(order.AttGroup(3), 1);
  key(Qt::Key_N, Qt::AltModifier);
  QTRY_COMPARE(m_dialog->presenter().WizardStep(), 1);
  // Step 1: the most important group's first button has the focus.
  QCOMPARE(QApplication::focusWidget(), control<QWidget>(m_dialog.get(), "cmdAttButtons", 2));
  key(Qt::Key_Space);
  QCOMPARE(control<QLabel>(m_dialog.get(), "lblRefAtt")->text(), QStringLiteral("Att3"));
  key(Qt::Key_N, Qt::AltModifier);
  QTRY_COMPARE(m_dialog->presenter().WizardStep(), 2);
  // Step 2: the target list has the focus; Tab leads through both boxes to Enter.
  QCOMPARE(QApplication::focusWidget(), control<QWidget>(m_dialog.get(), "imgcmbTargetAtt"));
  key(Qt::Key_Tab);
  QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(lowerBox()));
  QTest::keyClicks(lowerBox(), QStringLiteral("0.5"));
  key(Qt::Key_Tab);
  QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(upperBox()));
  QTest::keyClicks(upperBox(), QStringLiteral("0.7"));
  key(Qt::Key_Tab);
  QCOMPARE(QApplication::focusWidget(), control<QWidget>(m_dialog.get(), "cmdEnter"));
  QCOMPARE(lowerBox()->text(), QStringLiteral("0.50"));
  QCOMPARE(upperBox()->text(), QStringLiteral("0.70"));
  key(Qt::Key_Space);
  QVERIFY(button("cmdNext")->isEnabled());
  key(Qt::Key_N, Qt::AltModifier);
  QTRY_COMPARE(m_dialog->presenter().WizardStep(), 3);
  key(Qt::Key_F, Qt::AltModifier);
  QTRY_COMPARE(m_events.log.back(), std::string("UnloadTNWizard"));
  QCOMPARE(m_events.exports.size(), std::size_t{1});
  QVERIFY(m_events.unloads.back().weightsDone);
}

void DirectADialogInputTest::tabVisitsTheControlsInTheOrderShown() {
  open(test::makeContext(3));
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 2), QStringLiteral("A1")));
  const auto tab = [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); };
  control<QWidget>(m_dialog.get(), "cmdAttA", 0)->setFocus(Qt::TabFocusReason);
  tab();
  QCOMPARE(QApplication::focusWidget(), control<QWidget>(m_dialog.get(), "cmdAttA", 2));
  tab();
  QCOMPARE(QApplication::focusWidget(), test::orderBox(m_dialog.get(), 1));
  tab();
  QCOMPARE(QApplication::focusWidget(), test::orderBox(m_dialog.get(), 2));
  tab();
  QCOMPARE(QApplication::focusWidget(), control<QWidget>(m_dialog.get(), "cmdAttB", 0));
  tab();
  QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(button("cmdAdd")));
  // The frame's buttons in the order shown (Next and Finish are disabled here).
  control<QWidget>(m_dialog.get(), "txtAttDefinition")->setFocus(Qt::TabFocusReason);
  tab();
  QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(button("cmdBack")));
  tab();
  QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(button("cmdCancel")));
  tab();
  QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(button("cmdHelp")));
}

void DirectADialogInputTest::helpOpensTheHostsHelpFileAtItsContext() {
  open(test::makeContext(2));
  QTest::mouseClick(button("cmdHelp"), Qt::LeftButton);
  QCOMPARE(m_ui.helpFile(), std::string("C:\\NORIX\\NORIX.HLP"));
  QCOMPARE(m_ui.helpContext(), 4005025);
  QCOMPARE(m_ui.helpTopic().page, std::string("direct_a"));
  QCOMPARE(m_ui.helpTopic().anchor, std::string("ordering"));
}

void DirectADialogInputTest::helpNamesTheStepItIsPressedOn() {
  // Presses Help and gives the page and anchor it asked for, as "page#anchor".
  const auto helpAnchor = [this] {
    QTest::mouseClick(button("cmdHelp"), Qt::LeftButton);
    return m_ui.helpTopic().page + "#" + m_ui.helpTopic().anchor;
  };
  open(test::makeContext(2));
  QCOMPARE(helpAnchor(), std::string("direct_a#ordering"));
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 1), QStringLiteral("A0")));
  QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), 2), QStringLiteral("A1")));
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 1);
  QCOMPARE(helpAnchor(), std::string("direct_a#reference"));
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAttButtons", 0), Qt::LeftButton);
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 2);
  QCOMPARE(helpAnchor(), std::string("direct_a#judgment"));
  typeInto(lowerBox(), QStringLiteral("0.5"));
  typeInto(upperBox(), QStringLiteral("0.8"));
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdEnter"), Qt::LeftButton);
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 3);
  QCOMPARE(helpAnchor(), std::string("direct_a#results"));
}

void DirectADialogInputTest::closeBoxCancels() {
  open(test::makeContext(2));
  m_dialog->close();
  QCOMPARE(m_events.log.back(), std::string("UnloadTNWizard"));
  QVERIFY(!m_events.unloads.back().weightsDone);
  QVERIFY(m_events.exports.empty());
  QVERIFY(m_dialog->isVisible());
}

void DirectADialogInputTest::aModelWithoutUsableAttributesStillCancels() {
  for (const int numAtt : {0, 40}) {
    WizardContext context = test::makeContext(0);
    context.model.NumAtt = static_cast<std::int16_t>(numAtt);
    open(std::move(context));
    QVERIFY(!m_ui.messages().empty());
    QCOMPARE(m_ui.messages().back().text,
             "The current model has " + std::to_string(numAtt) +
                 " attributes. The wizard can only weigh from 1 to 31 attributes.");
    QVERIFY(!button("cmdNext")->isEnabled());
    QVERIFY(test::elements<AttributeButtonWidget>(m_dialog.get(), "cmdAttA").isEmpty());
    QTest::mouseClick(button("cmdCancel"), Qt::LeftButton);
    QCOMPARE(m_events.log.back(), std::string("UnloadTNWizard"));
    QVERIFY(m_events.exports.empty());
    cleanup();
  }
}

void DirectADialogInputTest::noTextIsClippedOnAnyStep() {
  WizardContext context;
  QVERIFY(OpenRelatedFileForTNW(TNW_SAMPLE_MODEL, context.model, m_ui).complete);
  open(std::move(context));
  const auto check = [this](const char* where) {
    const QStringList problems = test::layoutProblems(m_dialog.get());
    QVERIFY2(problems.isEmpty(), qPrintable(QString::fromLatin1(where) + QLatin1Char('\n') +
                                            problems.join(QLatin1Char('\n'))));
  };
  check("step 0, nothing placed");
  for (int j = 0; j < 6; ++j) {
    QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), j < 2 ? 1 : 2),
                              QStringLiteral("A%1").arg(j)));
  }
  check("step 0, every attribute placed");
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdAttButtons", 0), Qt::LeftButton);
  check("step 1");
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  check("step 2, the first target");
  // One interval for the less important group judges all of it; the list marks the judged.
  QTest::mouseClick(control<QPushButton>(m_dialog.get(), "cmdEnter"), Qt::LeftButton);
  auto* tabs = control<QTabWidget>(m_dialog.get(), "tsTab");
  tabs->setCurrentIndex(1);
  check("step 2, the importance order tab");
  tabs->setCurrentIndex(0);
  check("step 2, every target judged");
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 3);
  check("step 3");
}

void DirectADialogInputTest::resumesFromTheSampleWithAnEarlierResult() {
  WizardContext context;
  context.FileIndex = 3;
  QVERIFY(OpenRelatedFileForTNW(TNW_SAMPLE_MODEL_PREVIOUS, context.model, m_ui).complete);
  QCOMPARE(context.model.PrevTNType, std::string("MAVT_DIRECT"));
  open(std::move(context));
  // The earlier order is shown at once and Next may be pressed.
  QVERIFY(button("cmdNext")->isEnabled());
  for (int j = 0; j < 6; ++j) {
    QVERIFY(!control<AttributeButtonWidget>(m_dialog.get(), "cmdAttA", j)->isVisible());
  }
  QCOMPARE(test::elements<AttributeButtonWidget>(m_dialog.get(), "cmdAttB").size(), 6);
  // The earlier reference is chosen again.
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(control<QLabel>(m_dialog.get(), "lblRefAtt")->text(), QStringLiteral("Safety rating"));
  QCOMPARE(control<QWidget>(m_dialog.get(), "picIndicator")->parentWidget(),
           control<QWidget>(m_dialog.get(), "cmdAttButtons", 2));
  QVERIFY(button("cmdNext")->isEnabled());
  // Every target is judged already: Next and Finish are enabled on entry.
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 2);
  QVERIFY(button("cmdNext")->isEnabled());
  QVERIFY(button("cmdFinish")->isEnabled());
  auto* combo = control<QComboBox>(m_dialog.get(), "imgcmbTargetAtt");
  QCOMPARE(combo->itemText(0), QStringLiteral(" \u00A4 Purchase price"));
  QCOMPARE(combo->itemText(2), QStringLiteral("Safety rating"));
  m_events.log.clear();
  QTest::mouseClick(button("cmdFinish"), Qt::LeftButton);
  QCOMPARE(m_events.log, (std::vector<std::string>{"ExportDirectAW", "UnloadTNWizard"}));
  QCOMPARE(m_events.exports.back().refAtt, std::int16_t{2});
  QCOMPARE(m_events.unloads.back().fIndex, std::int16_t{3});
  // The earlier intervals against the reference: 0.22 / 0.20 low, 0.30 / 0.26 high.
  QCOMPARE(m_dialog->presenter().result().LowerWeights[0], 0.22 / 0.2);
  QCOMPARE(m_dialog->presenter().result().UpperWeights[0], 0.3 / 0.26);
}

void DirectADialogInputTest::aZeroEarlierReferenceWeightIsToldAndNothingIsResumedOrExported() {
  WizardContext context = test::makeContext(3);
  context.model.PrevTNType = "MAVT_DIRECT";
  context.model.PrevRefAtt = 1.0;
  context.model.PrevWeight = {0.5, 0.0, 0.5};
  context.model.PrevWeightL = {0.5, 0.0, 0.5};
  context.model.PrevWeightH = {0.5, 0.0, 0.5};
  open(std::move(context));
  QVERIFY(!m_ui.messages().empty());
  QCOMPARE(m_ui.messages().back().text,
           std::string("The earlier weights cannot be resumed: the earlier weight of the "
                       "reference attribute is zero. The judgments start afresh."));
  // Nothing was placed from the earlier result: Next and Finish stay disabled.
  QVERIFY(!button("cmdNext")->isEnabled());
  QVERIFY(!button("cmdFinish")->isEnabled());
  QTest::mouseClick(button("cmdNext"), Qt::LeftButton);
  QTest::mouseClick(button("cmdFinish"), Qt::LeftButton);
  QCOMPARE(m_dialog->presenter().WizardStep(), 0);
  QVERIFY(m_events.exports.empty());
}

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::DirectADialogInputTest)
#include "direct_a_dialog_input_test.moc"
