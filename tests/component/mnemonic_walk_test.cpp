// Walks every page and step of the three dialogs, in every state that changes which controls
// are shown or enabled, and checks that no two visible, enabled controls share a mnemonic: a
// shared Alt+letter only moves the focus between them and presses neither.

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
#include <QGroupBox>
#include <QLabel>
#include <QMap>
#include <QPushButton>
#include <QRadioButton>
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

// The mnemonic letter of a caption ("&&" is a plain ampersand), or a null character.
QChar mnemonicOf(const QString& text) {
  for (qsizetype i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != QLatin1Char('&')) continue;
    if (text[i + 1] != QLatin1Char('&')) return text[i + 1].toLower();
    ++i;
  }
  return {};
}

// Every mnemonic of the visible, enabled controls of a dialog, with the controls that carry it:
// buttons, labels whose buddy is enabled, group boxes and the tabs of tab bars.
QMap<QChar, QStringList> mnemonics(const QWidget* dialog) {
  QMap<QChar, QStringList> keys;
  const auto add = [&keys](const QString& text, const QString& who) {
    const QChar key = mnemonicOf(text);
    if (!key.isNull()) keys[key] << who + QStringLiteral(" \"") + text + QLatin1Char('"');
  };
  for (const auto* b : dialog->findChildren<QAbstractButton*>()) {
    if (b->isVisible() && b->isEnabled()) add(b->text(), b->objectName());
  }
  for (const auto* l : dialog->findChildren<QLabel*>()) {
    const QWidget* buddy = l->buddy();
    if (l->isVisible() && buddy != nullptr && buddy->isVisible() && buddy->isEnabled()) {
      add(l->text(), buddy->objectName());
    }
  }
  for (const auto* g : dialog->findChildren<QGroupBox*>()) {
    if (g->isVisible() && g->isEnabled()) add(g->title(), g->objectName());
  }
  for (const auto* bar : dialog->findChildren<QTabBar*>()) {
    if (!bar->isVisible() || !bar->isEnabled()) continue;
    for (int i = 0; i < bar->count(); ++i) {
      if (bar->isTabEnabled(i) && bar->isTabVisible(i)) add(bar->tabText(i), bar->objectName());
    }
  }
  return keys;
}

// Fails, naming the controls, when two of them share a mnemonic in the dialog's present state.
void verifyUnique(const QWidget* dialog, const char* state) {
  QCoreApplication::processEvents();
  const QMap<QChar, QStringList> keys = mnemonics(dialog);
  QVERIFY2(!keys.isEmpty(), state);
  for (auto it = keys.begin(); it != keys.end(); ++it) {
    const QString why = QStringLiteral("%1: Alt+%2 is shared by %3")
                            .arg(QString::fromUtf8(state), it.key(), it.value().join(u", "));
    QVERIFY2(it.value().size() == 1, qPrintable(why));
  }
}

void waitForWindow(QWidget* dialog) {
  QVERIFY(QTest::qWaitForWindowExposed(dialog));
  dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(dialog));
}

}  // namespace

class MnemonicWalkTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void theSelectionDialogHasNoSharedMnemonic();
  void noStepOfTheDirectDialogHasASharedMnemonic();
  void noPageOfTheTradeOffDialogHasASharedMnemonic();

 private:
  RecordingUiServices m_ui;
  IgnoredEvents m_events;
};

void MnemonicWalkTest::cleanup() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a top-level widget leaked");
}

void MnemonicWalkTest::theSelectionDialogHasNoSharedMnemonic() {
  WizardContext context;
  auto d = std::make_unique<selmethod::SelMethodDialog>(context, m_ui, m_events);
  d->showModeless();
  waitForWindow(d.get());
  verifyUnique(d.get(), "selection");
}

void MnemonicWalkTest::noStepOfTheDirectDialogHasASharedMnemonic() {
  WizardContext context = test::makeContext(3);
  test::RecordingDirectAEvents events;
  auto d = std::make_unique<direct::DirectADialog>(context, m_ui, events, nullptr, &kIntervalsFile);
  d->show();
  waitForWindow(d.get());
  const auto click = [&d](const char* name, int index = -1) {
    QTest::mouseClick(control<QAbstractButton>(d.get(), name, index), Qt::LeftButton);
  };
  verifyUnique(d.get(), "step 0, nothing placed");
  click("cmdAdd");  // a third group
  for (int j = 0; j < 3; ++j) {
    QVERIFY(test::dragAndDrop(test::orderBox(d.get(), j + 1), QStringLiteral("A%1").arg(j)));
  }
  verifyUnique(d.get(), "step 0, every attribute placed");
  click("cmdNext");
  verifyUnique(d.get(), "step 1, no reference");
  click("cmdAttButtons", 1);
  verifyUnique(d.get(), "step 1, reference chosen");
  click("cmdNext");
  QCOMPARE(d->presenter().WizardStep(), 2);
  auto* tabs = control<QTabWidget>(d.get(), "tsTab");
  verifyUnique(d.get(), "step 2, first target");
  tabs->setCurrentIndex(1);
  verifyUnique(d.get(), "step 2, order tab");
  tabs->setCurrentIndex(0);
  // Target 0 and then target 2 recorded as they start: the judgments are complete.
  click("cmdEnter");
  verifyUnique(d.get(), "step 2, one judgment recorded");
  click("cmdUndo");
  verifyUnique(d.get(), "step 2, judgment undone, Undo and Redo enabled");
  click("cmdRedo");
  auto* targets = control<QComboBox>(d.get(), "imgcmbTargetAtt");
  targets->setCurrentIndex(2);
  emit targets->activated(2);
  click("cmdEnter");
  QVERIFY(d->presenter().cmdFinish().enabled);
  verifyUnique(d.get(), "step 2, complete, Next and Finish enabled");
  tabs->setCurrentIndex(1);
  verifyUnique(d.get(), "step 2, complete, order tab");
  click("cmdNext");
  QCOMPARE(d->presenter().WizardStep(), 3);
  verifyUnique(d.get(), "step 3");
  click("cmdBack");
  verifyUnique(d.get(), "step 2 again");
}

void MnemonicWalkTest::noPageOfTheTradeOffDialogHasASharedMnemonic() {
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
  verifyUnique(d.get(), "judgments, automatic");
  click("cmdTradeOffEnter");
  click("cmdTradeOffEnter");
  click("cmdUndo");
  QVERIFY(control<QPushButton>(d.get(), "cmdUndo")->isEnabled());
  QVERIFY(control<QPushButton>(d.get(), "cmdRedo")->isEnabled());
  verifyUnique(d.get(), "judgments, Undo and Redo enabled");
  click("cmdUndo");
  click("optPCManual");
  verifyUnique(d.get(), "judgments, manual");
  approaches->setCurrentIndex(1);
  verifyUnique(d.get(), "judgments, verbal");
  approaches->setCurrentIndex(0);
  click("cmdNext");
  auto* resultTabs = control<QTabBar>(d.get(), "tsTabsW");
  for (int i = 0; i < resultTabs->count(); ++i) {
    resultTabs->setCurrentIndex(i);
    verifyUnique(d.get(), qPrintable(QStringLiteral("results, tab %1").arg(i)));
  }
  // Back keeps Finish enabled on the judgment page.
  click("cmdBack");
  QVERIFY(control<QPushButton>(d.get(), "cmdFinish")->isEnabled());
  verifyUnique(d.get(), "judgments again, Finish enabled, automatic");
  click("optPCManual");
  verifyUnique(d.get(), "judgments again, Finish enabled, manual");
  approaches->setCurrentIndex(1);
  verifyUnique(d.get(), "judgments again, Finish enabled, verbal");
  // A recorded judgment enables Save judgments.
  click("cmdTradeOffEnter");
  QVERIFY(control<QPushButton>(d.get(), "cmdSaveJudgments")->isEnabled());
  verifyUnique(d.get(), "judgments again, one recorded, Save enabled");
}

}  // namespace tnw

QTEST_MAIN(tnw::MnemonicWalkTest)
#include "mnemonic_walk_test.moc"
