// Walks every page and step of the three dialogs, in every state that changes which controls
// are shown or enabled, and checks what a screen reader and a keyboard user need: every
// interactive control has an accessible name and description, every custom-painted control
// exposes its content through an accessible interface and takes the focus, Tab leaves every
// control, and no two enabled controls share a mnemonic.

#include "accessibility_checks.h"
#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"
#include "direct/ui/direct_a_dialog.h"
#include "direct_a_dialog_helpers.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"
#include "selmethod/ui/selmethod_dialog.h"
#include "trade_off_fixtures.h"
#include "tradeoffs/ui/tradeoffs_a_dialog.h"
#include "tradeoffs/core/tradeoffs_a_events.h"
#include "model_json/judgment_files.h"

// Qt
#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

// Std
#include <memory>

namespace tnw {
namespace {

// The file forms the component hands the dialogs, so that Save and Load are walked too.
const JsonJudgmentsFile kJudgmentsFile;
const JsonIntervalsFile kIntervalsFile;

using namespace tnw::direct;

using test::control;

// The selection dialog's and the trade-off dialog's events, which the walk does not look at.
class IgnoredEvents : public selmethod::SelMethodEvents, public tradeoffs::TradeOffsAEvents {
 public:
  void ShowTNWDirect() override {}
  void ShowTNWTradeOffsA() override {}
  void UnloadTNWizard(std::int16_t, bool) override {}
  void SendMasseges(const std::string&) override {}
  void ExportTradeOffsW(const std::string&, std::vector<double>&, std::vector<double>&,
                        std::vector<double>&) override {}
  void ShowTNWSelMethod() override {}
};

// Runs every check on the dialog's present state and fails with the list of what is missing.
void verifyAccessible(QWidget* dialog, const char* state) {
  QCoreApplication::processEvents();
  const QStringList problems = test::accessibilityProblems(dialog);
  // The whole list, which the failure message would cut short.
  for (const QString& problem : problems) qWarning("%s: %s", state, qPrintable(problem));
  const QString why = QStringLiteral("%1:\n  %2")
                          .arg(QString::fromUtf8(state), problems.join(QStringLiteral("\n  ")));
  QVERIFY2(problems.isEmpty(), qPrintable(why));
}

void waitForWindow(QWidget* dialog) {
  QVERIFY(QTest::qWaitForWindowExposed(dialog));
  dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(dialog));
}

}  // namespace

class AccessibilityWalkTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void theSelectionDialogIsAccessible();
  void everyStepOfTheDirectDialogIsAccessible();
  void everyPageOfTheTradeOffDialogIsAccessible();
  void theScoreBoxesNameTheirAlternativeAndAttribute();

 private:
  RecordingUiServices m_ui;
  IgnoredEvents m_events;
};

void AccessibilityWalkTest::cleanup() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
}

void AccessibilityWalkTest::theSelectionDialogIsAccessible() {
  WizardContext context;
  auto d = std::make_unique<selmethod::SelMethodDialog>(context, m_ui, m_events);
  d->showModeless();
  waitForWindow(d.get());
  verifyAccessible(d.get(), "selection");
}

void AccessibilityWalkTest::everyStepOfTheDirectDialogIsAccessible() {
  WizardContext context = test::makeContext(3);
  test::RecordingDirectAEvents events;
  auto d = std::make_unique<DirectADialog>(context, m_ui, events, nullptr, &kIntervalsFile);
  d->show();
  waitForWindow(d.get());
  const auto click = [&d](const char* name, int index = -1) {
    QTest::mouseClick(control<QAbstractButton>(d.get(), name, index), Qt::LeftButton);
  };
  verifyAccessible(d.get(), "step 0, nothing placed");
  click("cmdAdd");
  for (int j = 0; j < 3; ++j) {
    QVERIFY(test::dragAndDrop(test::orderBox(d.get(), j + 1), QStringLiteral("A%1").arg(j)));
  }
  verifyAccessible(d.get(), "step 0, every attribute placed");
  click("cmdNext");
  verifyAccessible(d.get(), "step 1, no reference");
  click("cmdAttButtons", 1);
  verifyAccessible(d.get(), "step 1, reference chosen");
  click("cmdNext");
  QCOMPARE(d->presenter().WizardStep(), 2);
  auto* tabs = control<QTabWidget>(d.get(), "tsTab");
  verifyAccessible(d.get(), "step 2, first target");
  tabs->setCurrentIndex(1);
  verifyAccessible(d.get(), "step 2, order tab");
  tabs->setCurrentIndex(0);
  click("cmdEnter");
  verifyAccessible(d.get(), "step 2, one judgment recorded");
  click("cmdUndo");
  verifyAccessible(d.get(), "step 2, judgment undone, Undo and Redo enabled");
  click("cmdRedo");
  auto* targets = control<QComboBox>(d.get(), "imgcmbTargetAtt");
  targets->setCurrentIndex(2);
  emit targets->activated(2);
  click("cmdEnter");
  QVERIFY(d->presenter().cmdFinish().enabled);
  verifyAccessible(d.get(), "step 2, complete");
  tabs->setCurrentIndex(1);
  verifyAccessible(d.get(), "step 2, complete, order tab");
  click("cmdNext");
  QCOMPARE(d->presenter().WizardStep(), 3);
  verifyAccessible(d.get(), "step 3");
  click("cmdBack");
  verifyAccessible(d.get(), "step 2 again");
}

void AccessibilityWalkTest::everyPageOfTheTradeOffDialogIsAccessible() {
  WizardContext context;
  context.model = testing::makeModel(3);
  testing::SequenceRandomSource random{{0.2f, 0.7f, 0.4f, 0.9f, 0.1f, 0.6f}};
  auto d = std::make_unique<tradeoffs::TradeOffsADialog>(context, m_ui, m_events, &random,
                                                         &kJudgmentsFile);
  d->showModal();
  waitForWindow(d.get());
  const auto click = [&d](const char* name) {
    QTest::mouseClick(control<QAbstractButton>(d.get(), name), Qt::LeftButton);
  };
  auto* approaches = control<QTabBar>(d.get(), "tsComparisonApproaches");
  verifyAccessible(d.get(), "judgments, automatic");
  click("cmdTradeOffEnter");
  click("cmdTradeOffEnter");
  click("cmdUndo");
  verifyAccessible(d.get(), "judgments, Undo and Redo enabled");
  click("cmdUndo");
  click("optPCManual");
  verifyAccessible(d.get(), "judgments, manual");
  approaches->setCurrentIndex(1);
  verifyAccessible(d.get(), "judgments, verbal");
  approaches->setCurrentIndex(0);
  click("cmdNext");
  auto* resultTabs = control<QTabBar>(d.get(), "tsTabsW");
  for (int i = 0; i < resultTabs->count(); ++i) {
    resultTabs->setCurrentIndex(i);
    verifyAccessible(d.get(), qPrintable(QStringLiteral("results, tab %1").arg(i)));
  }
  click("cmdBack");
  verifyAccessible(d.get(), "judgments again, Finish enabled");
}

void AccessibilityWalkTest::theScoreBoxesNameTheirAlternativeAndAttribute() {
  WizardContext context;
  context.model = testing::makeModel(3);
  testing::SequenceRandomSource random{{0.2f, 0.7f, 0.4f, 0.9f, 0.1f, 0.6f}};
  auto d = std::make_unique<tradeoffs::TradeOffsADialog>(context, m_ui, m_events, &random,
                                                         &kJudgmentsFile);
  d->showModal();
  waitForWindow(d.get());
  const auto name = [&d](const char* box) {
    return test::accessibleText(control<QLineEdit>(d.get(), box), QAccessible::Name);
  };
  QCOMPARE(name("txtTradeOffAFirstScore"), QStringLiteral("A, Att1"));
  QCOMPARE(name("txtTradeOffASecondScore"), QStringLiteral("A, Att2"));
  QCOMPARE(name("txtTradeOffBFirstScore"), QStringLiteral("B, Att1"));
  QCOMPARE(name("txtTradeOffBSecondScore"), QStringLiteral("B, Att2"));
  // The names follow the pair: Enter in automatic mode moves it on to (Att2, Att3).
  QTest::mouseClick(control<QAbstractButton>(d.get(), "cmdTradeOffEnter"), Qt::LeftButton);
  QCOMPARE(name("txtTradeOffAFirstScore"), QStringLiteral("A, Att2"));
  QCOMPARE(name("txtTradeOffBSecondScore"), QStringLiteral("B, Att3"));
}

}  // namespace tnw

QTEST_MAIN(tnw::AccessibilityWalkTest)
#include "accessibility_walk_test.moc"
