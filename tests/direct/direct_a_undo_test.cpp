// Undo and redo of the direct method's judgments, and the question Cancel asks before judgments
// go: the presenter without widgets.

#include "direct_a_fixture.h"

// Std
#include <sstream>

namespace tnw::direct {
namespace {

// Everything step 2 shows and records, as one text: two equal texts are two equal states.
std::string describe(const DirectAPresenter& p) {
  std::ostringstream out;
  const JudgmentPage& page = p.judgment();
  const TargetList& targets = page.targets();
  out << "target " << targets.currentTarget() << " selected " << targets.selectedIndex()
      << " items";
  for (const auto& item : targets.items()) out << " [" << item.text << "|" << item.image << "]";
  for (const auto box : {Box::Lower, Box::Upper}) {
    const wizard::TextBoxState& b = page.box(box);
    out << " box " << b.text << "@" << b.selStart << "+" << b.selLength;
  }
  const RegionHandles& h = page.handles();
  out << " handles " << h.first.x << "," << h.first.y << " " << h.second.x << "," << h.second.y
      << " focus " << page.focus() << " valid " << page.validity() << " lamps "
      << static_cast<int>(p.lamps().state()) << " " << p.timerInterval();
  for (int i = 0; i < 3; ++i) out << " " << p.lamps().lampColor(i);
  out << " enter " << p.cmdEnter().enabled << " restart " << p.cmdReStart().enabled << " next "
      << p.cmdNext().enabled << " finish " << p.cmdFinish().enabled << " labels "
      << page.lblTargetAtt().caption << "|" << page.lblTarRangeLow().caption << "|"
      << page.imgTargetAtt().caption << "|" << page.lblChartTarAtt().caption << " judged";
  for (int i = 0; i < page.judgments().count(); ++i) {
    out << " " << page.judgments().judged(i) << ":" << page.judgments().lower(i) << "-"
        << page.judgments().middle(i) << "-" << page.judgments().upper(i)
        << (page.judgments().handles(i) != nullptr ? "h" : "");
  }
  out << " recorded " << p.judgmentsToDiscard();
  return out.str();
}

// Four attributes ordered {1, 2, 2, 3}, reference attribute 1 (tied with attribute 2), on step 2.
class DirectUndoTest : public DirectAPresenterTest {
 protected:
  DirectUndoTest() : DirectAPresenterTest(4) {}
  DirectAPresenter& toJudgments() { return toTiedJudgments(); }
  std::string state() const { return describe(*presenter); }
};

TEST_F(DirectUndoTest, UndoPutsBackTheStateBeforeEachEnterAndRedoTheStateAfterIt) {
  DirectAPresenter& p = toJudgments();
  EXPECT_TRUE(p.cmdUndo().visible);
  EXPECT_FALSE(p.cmdUndo().enabled);
  EXPECT_FALSE(p.cmdRedo().enabled);
  EXPECT_EQ(p.cmdUndo().caption, "Undo (&Z)");
  EXPECT_EQ(p.cmdRedo().caption, "Redo (&Y)");
  p.imgcmbTargetAtt_Click(0);
  p.txtWR_SetText(Box::Lower, "1.5");
  p.txtWR_SetText(Box::Upper, "2");
  p.txtWR_LostFocus(Box::Lower);
  p.txtWR_LostFocus(Box::Upper);
  const std::string beforeFirst = state();
  ASSERT_TRUE(p.cmdEnter_Click());
  const std::string afterFirst = state();
  judge(3, "0.5", "0.8");
  ASSERT_TRUE(p.cmdFinish().enabled);
  const std::string afterSecond = state();
  EXPECT_EQ(p.commands().undoCount(), 2u);
  EXPECT_EQ(p.judgmentsToDiscard(), 2);

  const int before = changes;
  p.cmdUndo_Click();
  EXPECT_EQ(changes, before + 1);
  EXPECT_FALSE(p.judgment().judgments().judged(3));
  EXPECT_FALSE(p.cmdFinish().enabled);
  EXPECT_EQ(p.judgmentsToDiscard(), 1);
  EXPECT_EQ(p.judgment().targets().currentTarget(), 3);
  EXPECT_EQ(p.judgment().box(Box::Lower).text, "0.50");
  EXPECT_EQ(p.lamps().state(), JudgmentState::Consistent);
  EXPECT_TRUE(p.cmdEnter().enabled);
  p.cmdUndo_Click();
  EXPECT_EQ(state(), beforeFirst);
  EXPECT_EQ(p.result().LowerWeights, (std::vector<double>{1.2, 1, 1, 0.8}));
  EXPECT_FALSE(p.cmdUndo().enabled);
  EXPECT_TRUE(p.cmdRedo().enabled);
  p.cmdRedo_Click();
  EXPECT_EQ(state(), afterFirst);
  p.cmdRedo_Click();
  EXPECT_EQ(state(), afterSecond);
  EXPECT_EQ(p.result().LowerWeights, (std::vector<double>{1.5, 1, 1, 0.5}));
  EXPECT_FALSE(p.cmdRedo().enabled);
}

TEST_F(DirectUndoTest, ReStartAllIsUndoneWithEveryJudgmentItCleared) {
  DirectAPresenter& p = toJudgments();
  judge(0, "1.5", "2");
  judge(3, "0.5", "0.5");
  const std::string beforeRestart = state();
  p.cmdReStart_Click();
  const std::string afterRestart = state();
  ASSERT_FALSE(p.judgment().judgments().judged(0));
  EXPECT_EQ(p.judgmentsToDiscard(), 0);
  EXPECT_EQ(p.commands().undoCount(), 3u);
  p.cmdUndo_Click();
  EXPECT_EQ(state(), beforeRestart);
  EXPECT_TRUE(p.cmdFinish().enabled);
  EXPECT_TRUE(p.cmdNext().enabled);
  EXPECT_EQ(p.judgment().targets().items()[0].text, " \xC2\xA4 Att1");
  EXPECT_EQ(p.result().CloseWeights, (std::vector<double>{1.75, 1, 1, 0.5}));
  p.cmdRedo_Click();
  EXPECT_EQ(state(), afterRestart);
  EXPECT_FALSE(p.cmdFinish().enabled);
}

TEST_F(DirectUndoTest, ANewJudgmentClearsWhatCouldBeRedone) {
  DirectAPresenter& p = toJudgments();
  judge(0, "1.5", "2");
  p.cmdUndo_Click();
  ASSERT_TRUE(p.cmdRedo().enabled);
  judge(0, "1.2", "1.6");
  EXPECT_FALSE(p.cmdRedo().enabled);
  EXPECT_EQ(p.commands().undoCount(), 1u);
  EXPECT_EQ(p.result().UpperWeights[0], 1.6);
}

TEST_F(DirectUndoTest, AnEnterThatRecordsNothingIsNoCommand) {
  DirectAPresenter& p = toJudgments();
  p.txtWR_SetText(Box::Lower, "3");
  p.txtWR_SetText(Box::Upper, "2");
  EXPECT_FALSE(p.cmdEnter_Click());
  EXPECT_FALSE(p.cmdUndo().enabled);
  EXPECT_EQ(p.judgmentsToDiscard(), 0);
}

TEST_F(DirectUndoTest, HandlesPutBackOnAnAreaOfAnotherSizeAreScaledToIt) {
  DirectAPresenter& p = toJudgments();
  p.setConeArea(200.0F, 8.0F);
  judge(0, "1.5", "2");
  p.imgcmbTargetAtt_Click(3);
  const RegionHandles small = p.judgment().handles();
  judge(3, "0.5", "0.8");
  p.setConeArea(400.0F, 8.0F);
  p.cmdUndo_Click();
  EXPECT_FLOAT_EQ(p.judgment().handles().first.x, 2.0F * small.first.x);
  EXPECT_FLOAT_EQ(p.judgment().handles().second.y, 2.0F * small.second.y);
  EXPECT_EQ(p.judgment().box(Box::Lower).text, "0.50");
}

TEST_F(DirectUndoTest, UndoWorksOnlyOnStep2AndLeavingItForStep1ForgetsTheHistory) {
  DirectAPresenter& p = toJudgments();
  judge(0, "1.5", "2");
  judge(3, "0.5", "0.5");
  p.cmdNext_Click();
  ASSERT_EQ(p.WizardStep(), 3);
  EXPECT_FALSE(p.cmdUndo().visible);
  EXPECT_FALSE(p.cmdUndo().enabled);
  p.cmdUndo_Click();
  EXPECT_TRUE(p.judgment().judgments().judged(3));
  // Back from the results keeps the judgments, and what can be undone with them.
  p.cmdBack_Click();
  EXPECT_TRUE(p.cmdUndo().enabled);
  p.cmdUndo_Click();
  EXPECT_FALSE(p.judgment().judgments().judged(3));
  // Back to step 1 drops the judgments; entering step 2 again starts afresh.
  p.cmdBack_Click();
  EXPECT_FALSE(p.cmdUndo().visible);
  EXPECT_EQ(p.judgmentsToDiscard(), 0);
  p.cmdAttButtons_Click(1);
  p.cmdNext_Click();
  ASSERT_EQ(p.WizardStep(), 2);
  EXPECT_FALSE(p.cmdUndo().enabled);
  EXPECT_FALSE(p.cmdRedo().enabled);
}

TEST_F(DirectUndoTest, CancelAsksBeforeJudgmentsGoAndNoKeepsEverything) {
  DirectAPresenter& p = toJudgments();
  judge(0, "1.5", "2");
  judge(3, "0.5", "0.5");
  // Entering a target again is one judgment of it, not two.
  judge(0, "1.5", "1.8");
  ui.clearMessages();
  const std::string before = state();
  const int changed = changes;
  ui.setAnswer(false);
  p.cmdCancel_Click();
  ASSERT_EQ(ui.questions().size(), 1u);
  EXPECT_EQ(ui.questions()[0].text, "Discard 2 judgments?");
  EXPECT_EQ(ui.questions()[0].title, "NORIX");
  EXPECT_TRUE(events.unloads.empty());
  EXPECT_EQ(state(), before);
  EXPECT_EQ(changes, changed);
  EXPECT_TRUE(ui.messages().empty());
  p.cmdUndo_Click();
  p.cmdUndo_Click();
  p.cmdCancel_Click();
  ASSERT_EQ(ui.questions().size(), 2u);
  EXPECT_EQ(ui.questions()[1].text, "Discard 1 judgment?");
  ui.setAnswer(true);
  p.cmdCancel_Click();
  ASSERT_EQ(events.unloads.size(), 1u);
  EXPECT_FALSE(events.unloads[0].weightsDone);
  EXPECT_TRUE(events.exports.empty());
}

TEST_F(DirectUndoTest, NothingIsAskedWithoutAJudgmentRecordedSinceThePageWasEntered) {
  DirectAPresenter& p = toJudgments();
  ui.setAnswer(false);
  p.cmdCancel_Click();
  EXPECT_TRUE(ui.questions().empty());
  EXPECT_EQ(events.unloads.size(), 1u);
  judge(0, "1.5", "2");
  p.cmdReStart_Click();
  p.cmdCancel_Click();
  EXPECT_TRUE(ui.questions().empty());
  EXPECT_EQ(events.unloads.size(), 2u);
}

class DirectUndoResumeTest : public DirectAPresenterTest {
 protected:
  DirectUndoResumeTest() : DirectAPresenterTest(3) {
    context.model.PrevTNType = "MAVT_DIRECT";
    context.model.PrevRefAtt = 1.0;
    const double w[3] = {1.5, 1, 0.5};
    for (std::size_t i = 0; i < 3; ++i) {
      context.model.PrevWeight[i] = w[i];
      context.model.PrevWeightL[i] = w[i] * 0.8;
      context.model.PrevWeightH[i] = w[i] * 1.2;
    }
  }
};

TEST_F(DirectUndoResumeTest, ResumedJudgmentsAreNotAskedAboutButNewOnesAre) {
  DirectAPresenter& p = load();
  p.cmdNext_Click();
  p.cmdNext_Click();
  ASSERT_EQ(p.WizardStep(), 2);
  ASSERT_TRUE(p.judgment().judgments().isComplete());
  ui.setAnswer(false);
  p.cmdCancel_Click();
  EXPECT_TRUE(ui.questions().empty());
  EXPECT_EQ(events.unloads.size(), 1u);
  judge(2, "0.4", "0.6");
  p.cmdCancel_Click();
  ASSERT_EQ(ui.questions().size(), 1u);
  EXPECT_EQ(ui.questions()[0].text, "Discard 1 judgment?");
  EXPECT_EQ(events.unloads.size(), 1u);
}

}  // namespace
}  // namespace tnw::direct
