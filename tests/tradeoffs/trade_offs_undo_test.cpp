// Undo and redo of the trade-off judgments, and the question Cancel asks before judgments go:
// the presenter without widgets.

#include "common/core/recording_ui_services.h"
#include "trade_off_fixtures.h"
#include "tradeoffs/core/score_entry.h"
#include "tradeoffs/core/tradeoffs_a_events.h"
#include "tradeoffs/core/tradeoffs_a_presenter.h"
#include "wizard/core/wizard_context.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace tnw::tradeoffs {
namespace {

class RecordingEvents : public TradeOffsAEvents {
 public:
  void ExportTradeOffsW(const std::string&, std::vector<double>&, std::vector<double>&,
                        std::vector<double>&) override {
    ++exports;
  }
  void SendMasseges(const std::string&) override {}
  void ShowTNWSelMethod() override {}
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    unloads.push_back({fIndex, WeightsDone});
  }

  int exports = 0;
  std::vector<std::pair<std::int16_t, bool>> unloads;
};

// Everything the judgment page shows and records, as one text: two equal texts are two equal
// states.
std::string describe(const JudgmentPage& page) {
  std::ostringstream out;
  const JudgmentControls& c = page.controls();
  out << "no " << page.TradeOffNo() << " pair " << page.FirstAttIndex() << ","
      << page.SecondAttIndex() << " this " << c.labPCThisNum.caption << " lists "
      << c.lstTradeOffFirstC.listIndex << "," << c.lstTradeOffSecondC.listIndex << " "
      << c.lstTradeOffFirstC.enabled << " auto " << c.optPCAutomatic.value << " enter "
      << c.cmdTradeOffEnter.enabled << " diffs " << c.labTradeOffDiff1.caption << "/"
      << c.labTradeOffDiff2.caption << " tab " << c.tsComparisonApproaches << " A " << c.shpPCA.x
      << "," << c.shpPCA.y << " B " << c.shpPCB.x << "," << c.shpPCB.y << " focus " << page.focus()
      << " boxes";
  for (const auto& b : c.scoreBoxes) out << " [" << b.text << "]";
  out << " verbal";
  for (const auto& o : c.optPCVerbal) out << o.value;
  const JudgmentStore& s = page.store();
  out << " count " << s.JudgmentCount << " size " << s.ScoreAFirst.size();
  for (int k = 0; k < static_cast<int>(s.ScoreAFirst.size()); ++k) {
    const JudgmentStore::Entry e = s.entry(k);
    out << " (" << e.scoreAFirst << " " << e.scoreBFirst << " " << e.scoreASecond << " "
        << e.scoreBSecond << " " << e.prefResponse << " " << e.firstAtt << "," << e.secondAtt;
    for (double d : e.valueDiff) out << " " << d;
    out << ")";
  }
  return out.str();
}

// Every control of the judgment page, each with all it shows (fixed captions and list items
// too), and all the page records: two equal texts are two equal pages.
std::string describeWhole(const JudgmentPage& page) {
  std::ostringstream out;
  const JudgmentControls& c = page.controls();
  const auto option = [&out](const wizard::OptionState& o) {
    out << " {" << o.caption << " " << o.value << o.enabled << "}";
  };
  const auto label = [&out](const wizard::LabelState& l) {
    out << " {" << l.caption << " " << l.visible << "}";
  };
  for (const wizard::ListState* l : {&c.lstTradeOffFirstC, &c.lstTradeOffSecondC}) {
    out << " {" << l->caption << " " << l->listIndex << l->enabled;
    for (const std::string& item : l->items) out << " " << item;
    out << "}";
  }
  option(c.optPCAutomatic);
  option(c.optPCManual);
  for (const auto& o : c.optPCVerbal) option(o);
  for (const auto* l : {&c.labPCThisNum, &c.labPCNeccesaryNum, &c.labPCCriterion1,
                        &c.labPCCriterion2, &c.labTradeOffDiff1, &c.labTradeOffDiff2}) {
    label(*l);
  }
  for (const auto& b : c.scoreBoxes) {
    out << " {" << b.text << " " << b.selStart << "," << b.selLength << b.enabled << "}";
  }
  for (const auto* b : {&c.cmdTradeOffClearAll, &c.cmdTradeOffEnter}) {
    out << " {" << b->caption << " " << b->enabled << b->visible << "}";
  }
  out << " needed " << page.TradeOffsNeeded() << " error " << page.entryError() << " toolbar "
      << page.changedByToolbar() << " " << describe(page);
  return out.str();
}

class TradeOffsUndoTest : public ::testing::Test {
 protected:
  void load(int numAtt) {
    m_ctx.model = testing::makeModel(numAtt);
    m_ctx.FileIndex = 4;
    m_p = std::make_unique<TradeOffsAPresenter>(m_ctx, m_ui, m_events, m_random);
    m_p->setChangeListener([this] { ++m_changes; });
    m_p->Form_Load();
  }
  // Records one verbal judgment with A's first score `a1`.
  void enter(int a1, int verbal = 2) {
    m_p->tsComparisonApproaches_Click(2);
    m_p->optPCVerbal_Click(verbal);
    m_p->setScoreText(0, std::to_string(a1));
    m_p->cmdTradeOffEnter_Click();
  }
  std::string state() const { return describe(m_p->judgmentPage()); }

  WizardContext m_ctx;
  RecordingUiServices m_ui;
  RecordingEvents m_events;
  testing::SequenceRandomSource m_random{{0.1f, 0.7f, 0.4f, 0.3f, 0.9f, 0.2f, 0.5f, 0.8f}};
  std::unique_ptr<TradeOffsAPresenter> m_p;
  int m_changes = 0;
};

TEST_F(TradeOffsUndoTest, UndoPutsBackTheStateBeforeEachEnterAndRedoTheStateAfterIt) {
  load(3);
  EXPECT_FALSE(m_p->cmdUndo().enabled);
  EXPECT_FALSE(m_p->cmdRedo().enabled);
  m_p->tsComparisonApproaches_Click(2);
  m_p->optPCVerbal_Click(1);
  m_p->setScoreText(0, "4");
  const std::string beforeFirst = state();
  m_p->cmdTradeOffEnter_Click();
  const std::string afterFirst = state();
  m_p->optPCVerbal_Click(5);
  m_p->setScoreText(0, "6");
  const std::string beforeSecond = state();
  m_p->cmdTradeOffEnter_Click();
  const std::string afterSecond = state();
  ASSERT_EQ(m_p->judgmentPage().TradeOffNo(), 2);
  EXPECT_EQ(m_p->commands().undoCount(), 2u);
  EXPECT_TRUE(m_p->cmdUndo().enabled);

  const int changes = m_changes;
  m_p->cmdUndo_Click();
  EXPECT_EQ(m_changes, changes + 1);
  EXPECT_EQ(state(), beforeSecond);
  EXPECT_EQ(m_p->judgmentPage().store().JudgmentCount, 1);
  EXPECT_EQ(m_p->judgmentPage().controls().labPCThisNum.caption, "2");
  EXPECT_TRUE(m_p->cmdRedo().enabled);
  m_p->cmdUndo_Click();
  EXPECT_EQ(state(), beforeFirst);
  EXPECT_EQ(m_p->judgmentPage().store().JudgmentCount, 0);
  EXPECT_EQ(m_p->judgmentPage().FirstAttIndex(), 0);
  EXPECT_EQ(m_p->judgmentPage().SecondAttIndex(), 1);
  EXPECT_FALSE(m_p->cmdUndo().enabled);

  // Redo gives back the very scores Enter drew for the next pair, not new ones.
  const std::size_t draws = m_random.taken();
  m_p->cmdRedo_Click();
  EXPECT_EQ(state(), afterFirst);
  m_p->cmdRedo_Click();
  EXPECT_EQ(state(), afterSecond);
  EXPECT_EQ(m_random.taken(), draws);
  EXPECT_FALSE(m_p->cmdRedo().enabled);
}

TEST_F(TradeOffsUndoTest, SnapshotsLeaveTheAttributeListsOutAndUndoKeepsThem) {
  load(4);
  const std::vector<std::string> names = m_p->judgmentPage().controls().lstTradeOffFirstC.items;
  ASSERT_EQ(names.size(), 4u);
  // A long undo history keeps no copy of the names per judgment: of a list, a snapshot keeps
  // the selection and whether it takes clicks.
  const JudgmentPage::Snapshot s = m_p->judgmentPage().snapshot(-1);
  EXPECT_EQ(s.lstTradeOffFirstC.listIndex, 0);
  EXPECT_EQ(s.lstTradeOffSecondC.listIndex, 1);
  EXPECT_FALSE(s.lstTradeOffFirstC.enabled);
  enter(4);
  enter(6);
  m_p->cmdUndo_Click();
  m_p->cmdUndo_Click();
  EXPECT_EQ(m_p->judgmentPage().controls().lstTradeOffFirstC.items, names);
  EXPECT_EQ(m_p->judgmentPage().controls().lstTradeOffSecondC.items, names);
  m_p->cmdRedo_Click();
  EXPECT_EQ(m_p->judgmentPage().controls().lstTradeOffFirstC.items, names);
  EXPECT_EQ(m_p->judgmentPage().controls().lstTradeOffSecondC.items, names);
}

TEST_F(TradeOffsUndoTest, UndoAndRedoPutBackTheWholePageWithItsFixedCaptions) {
  load(4);
  // Names too long to be kept inside a string, on the lists and the axis captions.
  for (std::size_t i = 0; i < 4; ++i) {
    m_ctx.model.AttName[i] = "An attribute with a long name, number " + std::to_string(i + 1);
  }
  m_p->Form_Load();
  // The page just before and just after each command.
  std::vector<std::string> before;
  std::vector<std::string> after;
  const auto command = [&](const auto& click) {
    before.push_back(describeWhole(m_p->judgmentPage()));
    click();
    after.push_back(describeWhole(m_p->judgmentPage()));
  };
  const auto enter = [this] { m_p->cmdTradeOffEnter_Click(); };
  m_p->optPCManual_Click();
  m_p->lstTradeOffSecondC_Click(3);
  m_p->lstTradeOffFirstC_Click(2);
  m_p->tsComparisonApproaches_Click(2);
  m_p->optPCVerbal_Click(6);
  m_p->setScoreText(0, "4");
  command(enter);
  m_p->tbScoreChanger_ButtonClick(1, true);
  m_p->scoreBoxKeyPress(0, ScoreEntry::kEnter, 0, 0);
  ASSERT_EQ(m_p->judgmentPage().focus(), "cmdTradeOffEnter");
  command(enter);
  command([this] { m_p->cmdTradeOffClearAll_Click(); });
  m_p->optPCAutomatic_Click();
  m_p->tsComparisonApproaches_Click(1);
  m_p->setScoreText(0, "9");
  command(enter);
  ASSERT_EQ(m_p->commands().undoCount(), before.size());
  for (std::size_t i = before.size(); i > 0; --i) {
    m_p->cmdUndo_Click();
    EXPECT_EQ(describeWhole(m_p->judgmentPage()), before[i - 1]) << "undo " << i;
  }
  for (std::size_t i = 0; i < after.size(); ++i) {
    m_p->cmdRedo_Click();
    EXPECT_EQ(describeWhole(m_p->judgmentPage()), after[i]) << "redo " << i + 1;
  }
}

TEST_F(TradeOffsUndoTest, ClearAllIsUndoneWithTheJudgmentsItCleared) {
  load(3);
  enter(3);
  enter(5);
  const std::string beforeClear = state();
  m_p->cmdTradeOffClearAll_Click();
  ASSERT_EQ(m_p->judgmentPage().store().JudgmentCount, 0);
  const std::string afterClear = state();
  // A judgment after Clear All writes over the first slot; undoing both brings back what it held.
  m_p->optPCVerbal_Click(6);
  m_p->setScoreText(0, "7");
  const std::string beforeEnter = state();
  m_p->cmdTradeOffEnter_Click();
  ASSERT_EQ(m_p->judgmentPage().store().JudgmentCount, 1);
  EXPECT_EQ(m_p->judgmentPage().store().ScoreAFirst[0], 7.0);
  m_p->cmdUndo_Click();
  EXPECT_EQ(state(), beforeEnter);
  m_p->cmdUndo_Click();
  EXPECT_EQ(state(), beforeClear);
  EXPECT_EQ(m_p->judgmentPage().store().JudgmentCount, 2);
  EXPECT_EQ(m_p->judgmentPage().store().ScoreAFirst[0], 3.0);
  EXPECT_EQ(m_p->judgmentPage().store().ScoreAFirst[1], 5.0);
  m_p->cmdRedo_Click();
  EXPECT_EQ(state(), afterClear);
}

TEST_F(TradeOffsUndoTest, ClearAllWithNothingToClearIsNoCommandAndKeepsTheRedoHistory) {
  load(3);
  m_p->cmdTradeOffClearAll_Click();
  EXPECT_FALSE(m_p->cmdUndo().enabled);
  enter(3);
  m_p->cmdUndo_Click();
  ASSERT_TRUE(m_p->cmdRedo().enabled);
  m_p->cmdTradeOffClearAll_Click();
  EXPECT_TRUE(m_p->cmdRedo().enabled);
  EXPECT_FALSE(m_p->cmdUndo().enabled);
}

TEST_F(TradeOffsUndoTest, ANewJudgmentClearsWhatCouldBeRedone) {
  load(3);
  enter(3);
  enter(5);
  m_p->cmdUndo_Click();
  ASSERT_TRUE(m_p->cmdRedo().enabled);
  enter(8);
  EXPECT_FALSE(m_p->cmdRedo().enabled);
  EXPECT_EQ(m_p->commands().undoCount(), 2u);
  m_p->cmdRedo_Click();
  EXPECT_EQ(m_p->judgmentPage().store().ScoreAFirst[1], 8.0);
}

TEST_F(TradeOffsUndoTest, AnEnterThatRecordsNothingIsNoCommand) {
  load(2);
  // An A score outside the range is refused with its message.
  m_p->setScoreText(0, "11");
  m_p->cmdTradeOffEnter_Click();
  EXPECT_EQ(m_p->judgmentPage().TradeOffNo(), 0);
  EXPECT_FALSE(m_p->cmdUndo().enabled);
  // Two attributes need two judgments; the third Enter only says that all are done.
  enter(3);
  enter(4);
  m_p->cmdTradeOffEnter_Click();
  EXPECT_FALSE(m_p->judgmentPage().controls().cmdTradeOffEnter.enabled);
  EXPECT_EQ(m_p->commands().undoCount(), 2u);
  // Undo brings back Enter and the second judgment in hand.
  m_p->cmdUndo_Click();
  EXPECT_TRUE(m_p->judgmentPage().controls().cmdTradeOffEnter.enabled);
  EXPECT_EQ(m_p->judgmentPage().TradeOffNo(), 1);
}

TEST_F(TradeOffsUndoTest, TheFitAfterUndoAndRedoIsTheFitWithoutThem) {
  // The same judgments on a second dialog with the same draws, without undo.
  testing::SequenceRandomSource random{{0.1f, 0.7f, 0.4f, 0.3f, 0.9f, 0.2f, 0.5f, 0.8f}};
  m_ctx.model = testing::makeModel(3);
  TradeOffsAPresenter straight(m_ctx, m_ui, m_events, random);
  straight.Form_Load();
  for (int i = 0; i < 6; ++i) {
    straight.tsComparisonApproaches_Click(2);
    straight.optPCVerbal_Click(i % 7);
    straight.setScoreText(0, std::to_string(2 + i % 5));
    straight.cmdTradeOffEnter_Click();
  }
  straight.cmdNext_Click();

  load(3);
  for (int i = 0; i < 6; ++i) enter(2 + i % 5, i % 7);
  for (int i = 0; i < 3; ++i) m_p->cmdUndo_Click();
  for (int i = 0; i < 3; ++i) m_p->cmdRedo_Click();
  EXPECT_EQ(m_random.taken(), random.taken());
  m_p->cmdNext_Click();
  ASSERT_FALSE(m_p->fitError().has_value());
  EXPECT_EQ(m_p->record().NumObs, 6);
  EXPECT_EQ(m_p->record().ConsistencyIndex, straight.record().ConsistencyIndex);
  EXPECT_EQ(m_p->record().RSquared, straight.record().RSquared);
  EXPECT_EQ(m_p->weights().CloseWeights, straight.weights().CloseWeights);
  // Back starts the judgments afresh, and nothing of before can be undone.
  m_p->cmdBack_Click();
  EXPECT_FALSE(m_p->cmdUndo().enabled);
  EXPECT_FALSE(m_p->cmdRedo().enabled);
}

TEST_F(TradeOffsUndoTest, UndoAndRedoAreShownAndWorkOnlyOnTheJudgmentPage) {
  load(3);
  EXPECT_TRUE(m_p->cmdUndo().visible);
  EXPECT_EQ(m_p->cmdUndo().caption, "Undo (&Z)");
  EXPECT_EQ(m_p->cmdRedo().caption, "Redo (&Y)");
  for (int i = 0; i < 6; ++i) enter(2 + i % 5, i % 7);
  m_p->cmdNext_Click();
  ASSERT_EQ(m_p->step(), TradeOffsAPresenter::kResultsStep);
  EXPECT_FALSE(m_p->cmdUndo().visible);
  EXPECT_FALSE(m_p->cmdUndo().enabled);
  EXPECT_FALSE(m_p->cmdRedo().visible);
  m_p->cmdUndo_Click();
  EXPECT_EQ(m_p->judgmentPage().store().JudgmentCount, 6);
}

TEST_F(TradeOffsUndoTest, CancelAsksBeforeJudgmentsGoAndNoKeepsEverything) {
  load(3);
  enter(3);
  enter(5);
  const std::string before = state();
  const int changes = m_changes;
  m_ui.setAnswer(false);
  m_p->cmdCancel_Click();
  ASSERT_EQ(m_ui.questions().size(), 1u);
  EXPECT_EQ(m_ui.questions()[0].text, "Discard 2 judgments?");
  EXPECT_EQ(m_ui.questions()[0].title, "NORIX");
  EXPECT_TRUE(m_events.unloads.empty());
  EXPECT_EQ(state(), before);
  EXPECT_EQ(m_changes, changes);
  EXPECT_TRUE(m_p->cmdUndo().enabled);
  EXPECT_TRUE(m_ui.messages().empty());
  m_ui.setAnswer(true);
  m_p->cmdCancel_Click();
  ASSERT_EQ(m_ui.questions().size(), 2u);
  ASSERT_EQ(m_events.unloads.size(), 1u);
  EXPECT_EQ(m_events.unloads[0], (std::pair<std::int16_t, bool>{4, false}));
  EXPECT_EQ(m_events.exports, 0);
}

TEST_F(TradeOffsUndoTest, TheQuestionCountsTheJudgmentsHeldNow) {
  load(3);
  m_ui.setAnswer(false);
  m_p->cmdCancel_Click();
  EXPECT_TRUE(m_ui.questions().empty());
  EXPECT_EQ(m_events.unloads.size(), 1u);
  enter(3);
  m_p->cmdCancel_Click();
  ASSERT_EQ(m_ui.questions().size(), 1u);
  EXPECT_EQ(m_ui.questions()[0].text, "Discard 1 judgment?");
  enter(4);
  enter(5);
  m_p->cmdUndo_Click();
  m_p->cmdCancel_Click();
  ASSERT_EQ(m_ui.questions().size(), 2u);
  EXPECT_EQ(m_ui.questions()[1].text, "Discard 2 judgments?");
  // Cleared judgments are gone already: nothing to ask about.
  m_p->cmdTradeOffClearAll_Click();
  m_p->cmdCancel_Click();
  EXPECT_EQ(m_ui.questions().size(), 2u);
  EXPECT_EQ(m_events.unloads.size(), 2u);
}

TEST_F(TradeOffsUndoTest, CancelOnTheResultsPageAsksToo) {
  load(3);
  for (int i = 0; i < 6; ++i) enter(2 + i % 5, i % 7);
  m_p->cmdNext_Click();
  m_ui.setAnswer(false);
  m_p->cmdCancel_Click();
  ASSERT_EQ(m_ui.questions().size(), 1u);
  EXPECT_EQ(m_ui.questions()[0].text, "Discard 6 judgments?");
  EXPECT_TRUE(m_events.unloads.empty());
  EXPECT_EQ(m_p->step(), TradeOffsAPresenter::kResultsStep);
}

}  // namespace
}  // namespace tnw::tradeoffs
