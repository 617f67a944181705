#include "direct_a_fixture.h"

// Std
#include <cmath>

namespace tnw::direct {
namespace {

// Four attributes ordered {1, 2, 2, 3}, reference attribute 1, on the judgment step.
class JudgmentFlowTest : public DirectAPresenterTest {
 protected:
  JudgmentFlowTest() : DirectAPresenterTest(4) {}
  DirectAPresenter& toJudgments(int ref = 1) {
    DirectAPresenter& p = toTiedJudgments(ref);
    ui.clearMessages();
    return p;
  }
  const std::string& lowerText() const { return presenter->judgment().box(Box::Lower).text; }
  const std::string& upperText() const { return presenter->judgment().box(Box::Upper).text; }
};

TEST_F(JudgmentFlowTest, EnteringTheJudgmentsListsTargetsAndStartsTheFirst) {
  DirectAPresenter& p = toJudgments();
  EXPECT_EQ(p.WizardStep(), 2);
  EXPECT_EQ(p.caption(), "Tarnel Wizard: Estimate intervals of the weight ratios");
  EXPECT_EQ(events.messages.back(),
            " Indicate a value reference region on the two selected attributes.");
  EXPECT_FALSE(ui.busy());
  EXPECT_GE(ui.busyCount(), 1);
  EXPECT_EQ(p.judgment().targets().currentTarget(), 0);
  EXPECT_EQ(p.lblRefAtt().caption, "Att2");
  EXPECT_EQ(p.judgment().lblTargetAtt().caption, "Att1");
  EXPECT_EQ(p.judgment().lblTarRangeHigh().caption, "10.0");
  EXPECT_EQ(lowerText(), "1.20");
  EXPECT_EQ(upperText(), "1.20");
  EXPECT_TRUE(p.cmdEnter().visible);
  EXPECT_TRUE(p.cmdEnter().enabled);
  EXPECT_FALSE(p.cmdReStart().enabled);
  EXPECT_FALSE(p.cmdNext().enabled);
  EXPECT_TRUE(p.judgment().orderTabVisible());
  EXPECT_EQ(p.judgment().orderGroup(2), (std::vector<int>{1, 2}));
}

TEST_F(JudgmentFlowTest, ChoosingTheReferenceShowsTheMessageAndKeepsTheTarget) {
  DirectAPresenter& p = toJudgments();
  p.imgcmbTargetAtt_Click(1);
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].text,
            "Please choose different attributes to make pairwise comparisons!");
  EXPECT_EQ(ui.messages()[0].title, "NORIX");
  EXPECT_EQ(ui.messages()[0].icon, MessageIcon::Exclamation);
  EXPECT_EQ(p.judgment().targets().currentTarget(), 0);
}

TEST_F(JudgmentFlowTest, ChoosingATiedAttributeShowsTheMessageAndTheSelectionReturns) {
  DirectAPresenter& p = toJudgments();
  p.imgcmbTargetAtt_Click(2);
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].text,
            "The selected attribute is in the same group with the reference attribute for the "
            "benefit-oriened ones. It is not necessary to make tradeoffs between them.");
  EXPECT_EQ(p.judgment().targets().currentTarget(), 0);
  EXPECT_EQ(p.judgment().targets().selectedIndex(), 0);
}

TEST_F(JudgmentFlowTest, EnterInTheUpperBoxValidatesTheLowerBound) {
  DirectAPresenter& p = toJudgments();
  p.imgcmbTargetAtt_Click(3);
  p.txtWR_SetText(Box::Lower, "2");
  p.txtWR_KeyPress(Box::Upper, wizard::TextBoxState{"", 0, 0}, '1');
  EXPECT_EQ(upperText(), "1");
  p.txtWR_KeyPress(Box::Upper, p.judgment().box(Box::Upper), 13);
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].text,
            "The weight ratio you entered should be greater than zero and less than or equal to "
            "1!");
  EXPECT_EQ(ui.beeps(), 1);
  EXPECT_EQ(p.judgment().focus(), "txtWRLower");
  EXPECT_EQ(p.judgment().box(Box::Lower).selLength, 1);
  EXPECT_EQ(p.judgment().validity(), 0);
}

TEST_F(JudgmentFlowTest, AFailedUpperCheckSelectsTheUpperBoxAndNamesTheLowerBound) {
  DirectAPresenter& p = toJudgments();
  p.txtWR_SetText(Box::Lower, "2");
  p.txtWR_SetText(Box::Upper, "1.5");
  p.txtWR_LostFocus(Box::Upper);
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].text,
            "The weight ratio you entered should be greater than or equal to 2!");
  EXPECT_EQ(p.judgment().focus(), "txtWRUpper");
  EXPECT_EQ(p.judgment().box(Box::Upper).selLength, 3);
}

TEST_F(JudgmentFlowTest, TypingPointThreeThreeThreeShowsPointThreeThree) {
  DirectAPresenter& p = toJudgments();
  p.imgcmbTargetAtt_Click(3);
  p.txtWR_SetText(Box::Lower, "0.333");
  p.txtWR_LostFocus(Box::Lower);
  EXPECT_EQ(lowerText(), "0.33");
  EXPECT_EQ(p.judgment().validity(), 1);
  EXPECT_EQ(p.lamps().state(), JudgmentState::Consistent);
  EXPECT_EQ(p.timerInterval(), 0);
}

TEST_F(JudgmentFlowTest, CtrlVAndShiftInsertLeaveTheBoxUnchanged) {
  DirectAPresenter& p = toJudgments();
  const wizard::TextBoxState before = p.judgment().box(Box::Lower);
  p.txtWR_KeyPress(Box::Lower, before, 22);
  EXPECT_EQ(lowerText(), before.text);
  EXPECT_TRUE(p.txtWR_KeyDown(Box::Lower, 45, true));
  EXPECT_FALSE(p.txtWR_KeyDown(Box::Lower, 45, false));
}

TEST_F(JudgmentFlowTest, AnInconsistentJudgmentDisablesEnterAndBlinksFast) {
  DirectAPresenter& p = toJudgments();
  p.imgcmbTargetAtt_Click(3);
  p.txtWR_SetText(Box::Upper, "1.5");
  p.txtWR_LostFocus(Box::Upper);
  EXPECT_EQ(p.lamps().state(), JudgmentState::Inconsistent);
  EXPECT_FALSE(p.cmdEnter().enabled);
  EXPECT_EQ(p.timerInterval(), 100);
  p.Timer1_Timer();
  EXPECT_EQ(p.lamps().lampColor(2), StatusLamps::kOrange);
  p.cmdEnter_Click();
  EXPECT_FALSE(p.judgment().judgments().judged(3));
}

TEST_F(JudgmentFlowTest, DraggingAHandleToTheCornerIsInvalidAndKeepsTheBoxes) {
  DirectAPresenter& p = toJudgments();
  p.setConeArea(1000, 10);
  p.picHandle_Drag(0, 2, 998);
  EXPECT_EQ(p.lamps().state(), JudgmentState::Invalid);
  EXPECT_EQ(lowerText(), "1.20");
  EXPECT_EQ(p.timerInterval(), 300);
  EXPECT_FALSE(p.cmdEnter().enabled);
  p.picHandle_Drag(0, 700, 300);
  EXPECT_EQ(p.lamps().state(), JudgmentState::Consistent);
  EXPECT_EQ(lowerText(), "1.00");
  EXPECT_EQ(upperText(), "1.20");
  EXPECT_EQ(p.judgment().handleTopLeft(0), (IntPoint{695, 295}));
  EXPECT_EQ(p.judgment().coneTriangle()[0], (IntPoint{0, 998}));
}

TEST_F(JudgmentFlowTest, RecordingTiesAndCompletionEnableNextAndFinish) {
  DirectAPresenter& p = toJudgments();
  judge(0, "1.5", "2");
  EXPECT_TRUE(p.judgment().judgments().judged(0));
  EXPECT_FALSE(p.cmdEnter().enabled);
  EXPECT_TRUE(p.cmdReStart().enabled);
  EXPECT_FALSE(p.cmdNext().enabled);
  judge(3, "0.5", "0.5");
  EXPECT_TRUE(p.cmdNext().enabled);
  EXPECT_TRUE(p.cmdFinish().enabled);
  EXPECT_EQ(p.result().LowerWeights, (std::vector<double>{1.5, 1, 1, 0.5}));
  EXPECT_EQ(p.result().CloseWeights, (std::vector<double>{1.75, 1, 1, 0.5}));
}

TEST_F(JudgmentFlowTest, RestartClearsTheJudgmentsAndDisablesNextAndFinish) {
  DirectAPresenter& p = toJudgments();
  judge(0, "1.5", "2");
  judge(3, "0.5", "0.5");
  ASSERT_TRUE(p.cmdFinish().enabled);
  p.cmdReStart_Click();
  EXPECT_FALSE(p.judgment().judgments().judged(0));
  EXPECT_TRUE(p.cmdEnter().enabled);
  EXPECT_FALSE(p.cmdReStart().enabled);
  EXPECT_FALSE(p.cmdNext().enabled);
  EXPECT_FALSE(p.cmdFinish().enabled);
  EXPECT_EQ(p.result().LowerWeights[0], 1.2);
  EXPECT_EQ(p.judgment().targets().items()[0].text, "Att1");
}

TEST_F(JudgmentFlowTest, BackAndNextAgainStartFreshIntervalsWithFinishDisabled) {
  DirectAPresenter& p = toJudgments();
  judge(0, "1.5", "2");
  judge(3, "0.5", "0.5");
  ASSERT_TRUE(p.cmdFinish().enabled);
  p.cmdBack_Click();
  p.cmdNext_Click();
  EXPECT_EQ(p.WizardStep(), 2);
  EXPECT_FALSE(p.judgment().judgments().judged(0));
  EXPECT_FALSE(p.cmdNext().enabled);
  EXPECT_FALSE(p.cmdFinish().enabled);
}

TEST_F(JudgmentFlowTest, ResultsShowTheGridAndFinishExportsWithTheCrossedSums) {
  DirectAPresenter& p = toJudgments();
  judge(0, "2", "2");
  judge(3, "0.5", "1");
  p.cmdNext_Click();
  EXPECT_EQ(p.WizardStep(), 3);
  EXPECT_EQ(p.caption(), "Tarnel Wizard: Results of the value judgments");
  EXPECT_FALSE(p.cmdNext().enabled);
  EXPECT_TRUE(p.cmdFinish().enabled);
  EXPECT_EQ(p.grid().cell(1, 3), "0.4222");
  EXPECT_EQ(p.grid().cell(1, 4), "0.4444,     0.4000");
  p.cmdBack_Click();
  EXPECT_EQ(p.WizardStep(), 2);
  EXPECT_TRUE(p.cmdNext().enabled);
  p.cmdNext_Click();
  events.log.clear();
  p.cmdFinish_Click();
  EXPECT_EQ(events.log, (std::vector<std::string>{"ExportDirectAW", "UnloadTNWizard"}));
  ASSERT_EQ(events.exports.size(), 1u);
  EXPECT_EQ(events.exports[0].type, "MAVT_DIRECT");
  EXPECT_EQ(events.exports[0].refAtt, 1);
  // L = (2, 1, 1, 0.5), U = (2, 1, 1, 1): sums 4.5 and 5.
  EXPECT_DOUBLE_EQ(events.exports[0].weightsL[0], 2.0 / 5.0);
  EXPECT_DOUBLE_EQ(events.exports[0].weightsH[3], 1.0 / 4.5);
  EXPECT_DOUBLE_EQ(events.exports[0].weights[3], (0.5 / 5.0 + 1.0 / 4.5) / 2.0);
  EXPECT_TRUE(events.unloads[0].weightsDone);
  EXPECT_EQ(events.unloads[0].fIndex, 7);
}

TEST_F(DirectAPresenterTest, LowerOneOneUpperTwoTwoExportAQuarterOneAndFiveEighths) {
  context = test::makeContext(2);
  DirectAPresenter& p = load();
  place(0, 1);
  place(1, 2);
  p.cmdNext_Click();
  p.cmdAttButtons_Click(1);
  p.cmdNext_Click();
  judge(0, "2", "2");
  p.cmdNext_Click();
  ASSERT_EQ(p.WizardStep(), 3);
  p.mutableResult().LowerWeights = {1, 1};
  p.mutableResult().UpperWeights = {2, 2};
  p.cmdFinish_Click();
  ASSERT_EQ(events.exports.size(), 1u);
  EXPECT_EQ(events.exports[0].weightsL, (std::vector<double>{0.25, 0.25}));
  EXPECT_EQ(events.exports[0].weightsH, (std::vector<double>{1, 1}));
  EXPECT_EQ(events.exports[0].weights, (std::vector<double>{0.625, 0.625}));
  EXPECT_EQ(p.exported().Weights, events.exports[0].weights);
}

TEST_F(JudgmentFlowTest, AZeroSumInTheExportIsReportedAndNothingIsExported) {
  DirectAPresenter& p = toJudgments();
  judge(0, "2", "2");
  judge(3, "0.5", "1");
  p.cmdNext_Click();
  p.mutableResult().LowerWeights = {1, -1, 0, 0};
  p.cmdFinish_Click();
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].title, "NORIX");
  EXPECT_EQ(ui.messages()[0].text,
            "The weights cannot be exported: the lower or the upper weight ratios add up to "
            "zero.");
  EXPECT_TRUE(events.exports.empty());
  EXPECT_TRUE(events.unloads.empty());
  EXPECT_TRUE(p.exported().Weights.empty());
}

TEST_F(JudgmentFlowTest, BackToTheReferenceShowsItsCaptionAndHidesTheOrderTab) {
  DirectAPresenter& p = toJudgments();
  p.cmdBack_Click();
  EXPECT_EQ(p.WizardStep(), 1);
  EXPECT_EQ(p.caption(), DirectAPresenter::kCaptions[1]);
  EXPECT_FALSE(p.judgment().orderTabVisible());
  EXPECT_TRUE(p.judgment().targets().items().empty());
  EXPECT_FALSE(p.cmdEnter().visible);
}

TEST_F(JudgmentFlowTest, EveryAttributeTiedWithTheReferenceCompletesThePageAtOnce) {
  DirectAPresenter& p = load();
  for (int j = 0; j < 4; ++j) place(j, 1);
  p.cmdNext_Click();
  p.cmdAttButtons_Click(0);
  p.cmdNext_Click();
  EXPECT_EQ(p.judgment().targets().currentTarget(), -1);
  EXPECT_FALSE(p.cmdEnter().enabled);
  EXPECT_TRUE(p.cmdNext().enabled);
  p.cmdNext_Click();
  p.cmdFinish_Click();
  ASSERT_EQ(events.exports.size(), 1u);
  EXPECT_EQ(events.exports[0].weights, (std::vector<double>{0.25, 0.25, 0.25, 0.25}));
}

}  // namespace
}  // namespace tnw::direct
