// Both methods from their first page to Finish by keyboard alone, and the keys of the controls
// that are painted by the component: the cone's handles, the points A and B, the score boxes'
// steps and the chart buttons. No test here sends a mouse event; a filter on the application
// fails each test that sees one.

#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"
#include "direct/ui/direct_a_dialog.h"
#include "direct_a_dialog_helpers.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"
#include "trade_off_fixtures.h"
#include "tradeoffs/ui/tradeoffs_a_dialog.h"
#include "tradeoffs/core/tradeoffs_a_events.h"

// Qt
#include <QRegularExpression>
#include <QAccessible>
#include <QAccessibleValueInterface>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

// Std
#include <memory>

namespace tnw {
namespace {

using namespace tnw::direct;

using test::control;

// Counts the mouse events the application delivers.
class MouseEventCounter : public QObject {
 public:
  int count = 0;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::MouseMove:
        ++count;
        break;
      default:
        break;
    }
    return QObject::eventFilter(watched, event);
  }
};

// The trade-off dialog's events, with the exports kept.
class TradeOffEvents : public tradeoffs::TradeOffsAEvents {
 public:
  void UnloadTNWizard(std::int16_t, bool done) override { unloads.push_back(done); }
  void SendMasseges(const std::string&) override {}
  void ExportTradeOffsW(const std::string& type, std::vector<double>&, std::vector<double>&,
                        std::vector<double>&) override {
    exports.push_back(type);
  }
  void ShowTNWSelMethod() override {}

  std::vector<std::string> exports;
  std::vector<bool> unloads;
};

// Presses a key where the focus is, as the keyboard does.
void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWidget* target = QApplication::focusWidget();
  QVERIFY(target != nullptr);
  QTest::keyClick(target, static_cast<Qt::Key>(key), modifiers);
  QCoreApplication::processEvents();
}

// Presses Tab until the focus is on `name`, or on an element name_index of the control array
// `name` (at most `limit` times); whether it got there.
bool tabTo(const char* name, int limit = 60) {
  QStringList visited;
  const QRegularExpression element(QStringLiteral("^%1(_\\d+)?$").arg(QLatin1String(name)));
  for (int i = 0; i < limit; ++i) {
    const QWidget* w = QApplication::focusWidget();
    if (w != nullptr && element.match(w->objectName()).hasMatch()) return true;
    visited << (w != nullptr ? w->objectName() : QStringLiteral("(none)"));
    press(Qt::Key_Tab);
  }
  qWarning("Tab never reached %s; it went %s", name, qPrintable(visited.join(u' ')));
  return false;
}

void waitForWindow(QWidget* dialog) {
  QVERIFY(QTest::qWaitForWindowExposed(dialog));
  dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(dialog));
}

// The value of the accessible value interface of w.
double accessibleValue(QWidget* w) {
  QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(w);
  if (iface == nullptr || iface->valueInterface() == nullptr) return -1.0;
  return iface->valueInterface()->currentValue().toDouble();
}

}  // namespace

class KeyboardOnlyTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void theDirectMethodIsFinishedByKeyboardAlone();
  void theConeHandlesStepTheirRatioByKeyboard();
  void theTradeOffMethodIsFinishedByKeyboardAlone();
  void upAndDownInAScoreBoxStepTheScore();
  void theArrowKeysMoveThePointsAsADragDoes();
  void theChartButtonsTakeTheFocusAndHaveShortcuts();

 private:
  // Opens the direct dialog on three attributes and brings it to step 2 by keyboard.
  std::unique_ptr<DirectADialog> directAtJudgments(WizardContext& context,
                                                   test::RecordingDirectAEvents& events);

  RecordingUiServices m_ui;
  MouseEventCounter m_mouse;
};

void KeyboardOnlyTest::init() {
  m_mouse.count = 0;
  qApp->installEventFilter(&m_mouse);
}

void KeyboardOnlyTest::cleanup() {
  qApp->removeEventFilter(&m_mouse);
  QCOMPARE(m_mouse.count, 0);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::unique_ptr<DirectADialog> KeyboardOnlyTest::directAtJudgments(
    WizardContext& context, test::RecordingDirectAEvents& events) {
  auto d = std::make_unique<DirectADialog>(context, m_ui, events);
  d->show();
  waitForWindow(d.get());
  // Step 0: Space places the focused attribute in the framed group; Insert adds a new group
  // before it, so the three attributes end in three groups. Buttons are pressed with Space.
  for (int j = 0; j < 3; ++j) {
    if (j > 0 && control<QWidget>(d.get(), "cmdInsert")->isEnabled() && tabTo("cmdInsert")) {
      press(Qt::Key_Space);
    }
    if (tabTo("cmdAttA")) press(Qt::Key_Space);
  }
  if (tabTo("cmdNext")) press(Qt::Key_Space);
  // Step 1: Space chooses the focused attribute as the reference.
  if (!tabTo("cmdAttButtons")) return d;
  press(Qt::Key_Space);
  if (tabTo("cmdNext")) press(Qt::Key_Space);
  return d;
}

void KeyboardOnlyTest::theDirectMethodIsFinishedByKeyboardAlone() {
  WizardContext context = test::makeContext(3);
  test::RecordingDirectAEvents events;
  auto d = directAtJudgments(context, events);
  QCOMPARE(d->presenter().WizardStep(), 2);
  // Every target: choose it in the list, move the first handle up a step on the cone, and
  // record the interval with the Enter button.
  for (int target = 0; target < 2; ++target) {
    QVERIFY(tabTo("imgcmbTargetAtt"));
    press(Qt::Key_Down);
    QVERIFY(tabTo("picHandle"));
    press(Qt::Key_Up);
    QVERIFY(tabTo("cmdEnter"));
    press(Qt::Key_Space);
  }
  QVERIFY(d->presenter().cmdNext().enabled);
  QVERIFY(tabTo("cmdNext"));
  press(Qt::Key_Space);
  QCOMPARE(d->presenter().WizardStep(), 3);
  QVERIFY(tabTo("cmdFinish"));
  press(Qt::Key_Space);
  QCOMPARE(events.exports.size(), std::size_t{1});
  QCOMPARE(events.exports.front().type, std::string("MAVT_DIRECT"));
  QCOMPARE(events.unloads.size(), std::size_t{1});
  QVERIFY(events.unloads.front().weightsDone);
}

void KeyboardOnlyTest::theConeHandlesStepTheirRatioByKeyboard() {
  WizardContext context = test::makeContext(3);
  test::RecordingDirectAEvents events;
  auto d = directAtJudgments(context, events);
  QVERIFY(tabTo("imgcmbTargetAtt"));
  press(Qt::Key_Down);
  QVERIFY(tabTo("picHandle"));
  QWidget* handle = QApplication::focusWidget();
  auto* lower = control<QLineEdit>(d.get(), "txtWRLower");
  auto* upper = control<QLineEdit>(d.get(), "txtWRUpper");
  const double before = accessibleValue(handle);
  QVERIFY(before > 0.0);
  const QString boxesBefore = lower->text() + QLatin1Char('/') + upper->text();
  // The handle's ratio is what one of the two boxes shows.
  QVERIFY2(lower->text().toDouble() == before || upper->text().toDouble() == before,
           qPrintable(boxesBefore));
  press(Qt::Key_Up);
  QCOMPARE(accessibleValue(handle), before + 0.01);
  press(Qt::Key_PageUp);
  QCOMPARE(accessibleValue(handle), before + 0.11);
  press(Qt::Key_PageDown);
  press(Qt::Key_Down);
  QCOMPARE(accessibleValue(handle), before);
  press(Qt::Key_PageUp);
  const QString moved = QString::number(before + 0.1, 'f', 2);
  QVERIFY2(lower->text() == moved || upper->text() == moved,
           qPrintable(lower->text() + QLatin1Char('/') + upper->text()));
  // The value interface moves the handle too.
  QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(handle);
  iface->valueInterface()->setCurrentValue(0.5);
  QCOMPARE(accessibleValue(handle), 0.5);
  QVERIFY2(lower->text() == QStringLiteral("0.50") || upper->text() == QStringLiteral("0.50"),
           qPrintable(lower->text() + QLatin1Char('/') + upper->text()));
}

void KeyboardOnlyTest::theTradeOffMethodIsFinishedByKeyboardAlone() {
  WizardContext context;
  context.model = testing::makeModel(3);
  testing::SequenceRandomSource random{{0.2f, 0.7f, 0.4f, 0.9f, 0.1f, 0.6f}};
  TradeOffEvents events;
  auto d = std::make_unique<tradeoffs::TradeOffsADialog>(context, m_ui, events, &random);
  d->showModal();
  waitForWindow(d.get());
  // Six trade-offs: each one with a score stepped up; Return in the box moves the focus to
  // the Enter button, and Space presses it.
  for (int i = 0; i < 6; ++i) {
    QVERIFY(tabTo("txtTradeOffAFirstScore"));
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("cmdTradeOffEnter"));
    press(Qt::Key_Space);
  }
  // The counter shows the seventh trade-off: all six needed are recorded.
  QCOMPARE(control<QLabel>(d.get(), "labPCThisNum")->text(), QStringLiteral("7"));
  QVERIFY(tabTo("cmdNext"));
  press(Qt::Key_Space);
  QVERIFY(control<QWidget>(d.get(), "gridWeights")->isVisible());
  QVERIFY(tabTo("cmdFinish"));
  press(Qt::Key_Space);
  QCOMPARE(events.exports, std::vector<std::string>{"MAVT_TRADEOFFS"});
  QCOMPARE(events.unloads, std::vector<bool>{true});
}

void KeyboardOnlyTest::upAndDownInAScoreBoxStepTheScore() {
  WizardContext context;
  context.model = testing::makeModel(3);
  testing::SequenceRandomSource random{{0.2f, 0.7f, 0.4f, 0.9f, 0.1f, 0.6f}};
  TradeOffEvents events;
  auto d = std::make_unique<tradeoffs::TradeOffsADialog>(context, m_ui, events, &random);
  d->showModal();
  waitForWindow(d.get());
  auto* box = control<QLineEdit>(d.get(), "txtTradeOffBSecondScore");
  box->setFocus(Qt::TabFocusReason);
  const double before = box->text().toDouble();
  // The step is a hundredth of the range 0 to 10.
  press(Qt::Key_Up);
  QCOMPARE(box->text().toDouble(), before + 0.1);
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  QCOMPARE(box->text().toDouble(), before - 0.1);
  // The step buttons are stops of the Tab chain and step their box with Up and Down too.
  auto* bar = control<QToolBar>(d.get(), "tbScoreChanger_3");
  QWidget* up = bar->widgetForAction(bar->actions().front());
  QVERIFY(up->focusPolicy() & Qt::TabFocus);
  up->setFocus(Qt::TabFocusReason);
  QCOMPARE(QApplication::focusWidget(), up);
  press(Qt::Key_Space);
  QCOMPARE(box->text().toDouble(), before);
}

void KeyboardOnlyTest::theArrowKeysMoveThePointsAsADragDoes() {
  WizardContext context;
  context.model = testing::makeModel(3);
  testing::SequenceRandomSource random{{0.2f, 0.7f, 0.4f, 0.9f, 0.1f, 0.6f}};
  TradeOffEvents events;
  auto d = std::make_unique<tradeoffs::TradeOffsADialog>(context, m_ui, events, &random);
  d->showModal();
  waitForWindow(d.get());
  auto* first = control<QLineEdit>(d.get(), "txtTradeOffAFirstScore");
  auto* second = control<QLineEdit>(d.get(), "txtTradeOffASecondScore");
  QVERIFY(tabTo("shpPCA"));
  const QString firstBefore = first->text();
  const QString secondBefore = second->text();
  press(Qt::Key_Right, Qt::ShiftModifier);
  QVERIFY2(first->text().toDouble() > firstBefore.toDouble(), qPrintable(first->text()));
  QCOMPARE(second->text(), secondBefore);
  press(Qt::Key_Up, Qt::ShiftModifier);
  QVERIFY2(second->text().toDouble() > secondBefore.toDouble(), qPrintable(second->text()));
  // The point reads out the alternative's scores.
  QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
  QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("A"));
  QVERIFY2(iface->text(QAccessible::Value).contains(second->text()),
           qPrintable(iface->text(QAccessible::Value)));
}

void KeyboardOnlyTest::theChartButtonsTakeTheFocusAndHaveShortcuts() {
  WizardContext context;
  context.model = testing::makeModel(3);
  testing::SequenceRandomSource random{{0.2f, 0.7f, 0.4f, 0.9f, 0.1f, 0.6f}};
  TradeOffEvents events;
  auto d = std::make_unique<tradeoffs::TradeOffsADialog>(context, m_ui, events, &random);
  d->showModal();
  waitForWindow(d.get());
  QVERIFY(tabTo("cmdNext"));
  press(Qt::Key_Space);
  QVERIFY(control<QWidget>(d.get(), "gridWeights")->isVisible());
  auto* bar = control<QToolBar>(d.get(), "tbWeightCharts");
  for (QAction* a : bar->actions()) {
    QVERIFY(bar->widgetForAction(a)->focusPolicy() & Qt::TabFocus);
  }
  press(Qt::Key_1, Qt::ControlModifier);
  QVERIFY(bar->actions().at(0)->isChecked());
  press(Qt::Key_3, Qt::ControlModifier);
  QVERIFY(bar->actions().at(2)->isChecked());
  // The chart reads out as a table: a row per attribute, the name and the two series.
  QAccessibleInterface* chart =
      QAccessible::queryAccessibleInterface(control<QWidget>(d.get(), "picWeightGraph"));
  QVERIFY(chart->tableInterface() != nullptr);
  QCOMPARE(chart->tableInterface()->rowCount(), 3);
  QCOMPARE(chart->tableInterface()->columnCount(), 4);
  QCOMPARE(chart->tableInterface()->cellAt(1, 0)->text(QAccessible::Name), QStringLiteral("Att2"));
  QCOMPARE(chart->tableInterface()->columnDescription(1), QStringLiteral("Ranges high"));
  QCOMPARE(chart->tableInterface()->columnDescription(3), QStringLiteral("Close Est."));
}

}  // namespace tnw

QTEST_MAIN(tnw::KeyboardOnlyTest)
#include "keyboard_only_test.moc"
