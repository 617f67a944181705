#include "tradeoffs/core/judgment_page.h"

#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"
#include "trade_off_fixtures.h"

// Std
#include <utility>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

using testing::makeModel;
using testing::SequenceRandomSource;

class JudgmentPageTest : public ::testing::Test {
 protected:
  void load(int numAtt, std::vector<float> draws = {0.5f}, double high = 10.0) {
    m_ctx.model = makeModel(numAtt, high);
    m_random = std::make_unique<SequenceRandomSource>(std::move(draws));
    m_page = std::make_unique<JudgmentPage>(m_ctx, m_ui, *m_random);
    m_page->reset();
  }
  void setScores(const char* a1, const char* a2, const char* b1, const char* b2) {
    m_page->setScoreText(0, a1);
    m_page->setScoreText(1, a2);
    m_page->setScoreText(2, b1);
    m_page->setScoreText(3, b2);
  }
  const JudgmentControls& c() const { return m_page->controls(); }

  WizardContext m_ctx;
  RecordingUiServices m_ui;
  std::unique_ptr<SequenceRandomSource> m_random;
  std::unique_ptr<JudgmentPage> m_page;
};

TEST_F(JudgmentPageTest, TwoAttributesNeedTwoTradeOffsAndFiveNeedTwenty) {
  load(2);
  EXPECT_EQ(m_page->TradeOffsNeeded(), 2);
  EXPECT_EQ(c().labPCNeccesaryNum.caption, "2");
  load(5);
  EXPECT_EQ(m_page->TradeOffsNeeded(), 20);
  EXPECT_EQ(c().labPCNeccesaryNum.caption, "20");
  load(4);
  EXPECT_EQ(m_page->TradeOffsNeeded(), 12);
}

TEST_F(JudgmentPageTest, LoadShowsTheFirstPairTrimmedNamesAndCounters) {
  load(3);
  EXPECT_EQ(m_page->FirstAttIndex(), 0);
  EXPECT_EQ(m_page->SecondAttIndex(), 1);
  EXPECT_EQ(c().lstTradeOffFirstC.items, (std::vector<std::string>{"Att1", "Att2", "Att3"}));
  EXPECT_EQ(c().lstTradeOffFirstC.listIndex, 0);
  EXPECT_EQ(c().lstTradeOffSecondC.listIndex, 1);
  EXPECT_EQ(c().labPCCriterion1.caption, "Att1");
  EXPECT_EQ(c().labPCCriterion2.caption, "Att2");
  EXPECT_EQ(c().labPCThisNum.caption, "1");
  EXPECT_TRUE(c().optPCAutomatic.value);
  // r = 0.5 on 0..10 gives 3.625, which the box shows as 3.63.
  EXPECT_EQ(c().scoreBoxes[0].text, "3.63");
}

TEST_F(JudgmentPageTest, AutomaticCycleWithThreeAttributesOffersSixNeighbouringPairs) {
  load(3);
  const std::pair<int, int> expected[] = {{0, 1}, {1, 2}, {2, 0}, {0, 1}, {1, 2}, {2, 0}};
  for (const auto& [first, second] : expected) {
    EXPECT_EQ(m_page->FirstAttIndex(), first);
    EXPECT_EQ(m_page->SecondAttIndex(), second);
    EXPECT_EQ(c().lstTradeOffFirstC.listIndex, first);
    EXPECT_EQ(c().lstTradeOffSecondC.listIndex, second);
    m_page->cmdTradeOffEnter_Click();
  }
  EXPECT_EQ(m_page->TradeOffNo(), 6);
  EXPECT_EQ(m_page->store().JudgmentCount, 6);
  EXPECT_TRUE(m_ui.messages().empty());
  EXPECT_EQ(c().labPCThisNum.caption, "7");
}

TEST_F(JudgmentPageTest, EnterAfterTheLastTradeOffShowsTheFinishedMessageAndRecordsNothing) {
  load(2);
  m_page->cmdTradeOffEnter_Click();
  m_page->cmdTradeOffEnter_Click();
  ASSERT_TRUE(m_ui.messages().empty());
  m_page->cmdTradeOffEnter_Click();
  ASSERT_EQ(m_ui.messages().size(), 1u);
  EXPECT_EQ(m_ui.messages()[0].text,
            "You have finished all tradeoffs.\r The next step is to process multiple linear "
            "regression analysis.");
  EXPECT_EQ(m_ui.messages()[0].icon, MessageIcon::Information);
  EXPECT_EQ(m_ui.messages()[0].title, "NORIX");
  EXPECT_EQ(m_ui.beeps(), 1);
  EXPECT_FALSE(c().cmdTradeOffEnter.enabled);
  EXPECT_EQ(m_page->store().JudgmentCount, 2);
  EXPECT_FALSE(m_ui.busy());
}

TEST_F(JudgmentPageTest, DominatedDrawIsShownExchangedAsAFiveFourBThreeSix) {
  load(2, {3.0f / 7.25f, 5.0f / 7.25f, 4.0f / 7.25f, 6.0f / 7.25f});
  EXPECT_EQ(c().scoreBoxes[0].text, "5.0");
  EXPECT_EQ(c().scoreBoxes[1].text, "4.0");
  EXPECT_EQ(c().scoreBoxes[2].text, "3.0");
  EXPECT_EQ(c().scoreBoxes[3].text, "6.0");
  EXPECT_DOUBLE_EQ(c().shpPCA.x, 0.5);
  EXPECT_DOUBLE_EQ(c().shpPCB.y, 0.6);
}

TEST_F(JudgmentPageTest, ListsRefuseTheOtherListsAttributeWithTheirOwnWording) {
  load(3);
  m_page->optPCManual_Click();
  m_page->lstTradeOffFirstC_Click(1);
  m_page->lstTradeOffSecondC_Click(0);
  ASSERT_EQ(m_ui.messages().size(), 2u);
  EXPECT_EQ(m_ui.messages()[0].text,
            "Please choose different criteria to make pairwise comparisons!");
  EXPECT_EQ(m_ui.messages()[1].text, "Please choose different attributes to compare!");
  EXPECT_EQ(m_ui.messages()[1].title, "NORIX");
  EXPECT_EQ(m_page->FirstAttIndex(), 0);
  EXPECT_EQ(m_page->SecondAttIndex(), 1);
  EXPECT_EQ(c().lstTradeOffFirstC.listIndex, 0);
  m_page->lstTradeOffSecondC_Click(2);
  EXPECT_EQ(m_page->SecondAttIndex(), 2);
  EXPECT_EQ(c().labPCCriterion2.caption, "Att3");
}

TEST_F(JudgmentPageTest, AutomaticResetsThePairToTheFirstTwoAttributes) {
  load(3);
  m_page->optPCManual_Click();
  m_page->lstTradeOffSecondC_Click(2);
  m_page->lstTradeOffFirstC_Click(1);
  EXPECT_EQ(m_page->FirstAttIndex(), 1);
  m_page->optPCAutomatic_Click();
  EXPECT_EQ(m_page->FirstAttIndex(), 0);
  EXPECT_EQ(m_page->SecondAttIndex(), 1);
  EXPECT_FALSE(c().lstTradeOffFirstC.enabled);
}

TEST_F(JudgmentPageTest, ManualModeKeepsThePairAfterEnter) {
  load(3);
  m_page->optPCManual_Click();
  m_page->lstTradeOffSecondC_Click(2);
  m_page->cmdTradeOffEnter_Click();
  EXPECT_EQ(m_page->FirstAttIndex(), 0);
  EXPECT_EQ(m_page->SecondAttIndex(), 2);
}

TEST_F(JudgmentPageTest, OutOfRangeScoreIsReportedSelectedAndNothingIsRecorded) {
  load(2);
  setScores("5", "4", "12.5", "-1");
  m_page->cmdTradeOffEnter_Click();
  ASSERT_EQ(m_ui.messages().size(), 1u);
  EXPECT_EQ(m_ui.messages()[0].text,
            "The data you entered should be in the relevant score range [0, 10]!");
  EXPECT_EQ(m_ui.messages()[0].icon, MessageIcon::Exclamation);
  EXPECT_EQ(m_ui.beeps(), 1);
  // B's first-attribute box is checked before A's second-attribute box.
  EXPECT_EQ(m_page->focus(), "txtTradeOffBFirstScore");
  EXPECT_EQ(c().scoreBoxes[2].selStart, 0);
  EXPECT_EQ(c().scoreBoxes[2].selLength, 4);
  EXPECT_TRUE(m_page->entryError());
  EXPECT_EQ(m_page->TradeOffNo(), 0);
  EXPECT_EQ(m_page->store().JudgmentCount, 0);
}

TEST_F(JudgmentPageTest, CheckEnteredDataFAndSCheckAgainstTheFirstAndTheSecondAttribute) {
  load(2);
  m_ctx.model.AttScoreHigh[1] = 100.0;
  m_page->optPCAutomatic_Click();  // the page reads the ranges again
  setScores("5", "50", "7", "60");
  // "50" lies in the second attribute's range but not in the first's.
  EXPECT_TRUE(m_page->CheckEnteredDataS(JudgmentPage::kBoxASecond));
  EXPECT_TRUE(m_ui.messages().empty());
  EXPECT_FALSE(m_page->CheckEnteredDataF(JudgmentPage::kBoxASecond));
  ASSERT_EQ(m_ui.messages().size(), 1u);
  EXPECT_EQ(m_ui.messages()[0].text,
            "The data you entered should be in the relevant score range [0, 10]!");
  EXPECT_EQ(m_page->focus(), "txtTradeOffASecondScore");
  EXPECT_TRUE(m_page->entryError());
  EXPECT_TRUE(m_page->CheckEnteredDataF(JudgmentPage::kBoxBFirst));
  setScores("5", "150", "7", "60");
  EXPECT_FALSE(m_page->CheckEnteredDataS(JudgmentPage::kBoxASecond));
  EXPECT_EQ(m_ui.messages().back().text,
            "The data you entered should be in the relevant score range [0, 100]!");
}

TEST_F(JudgmentPageTest, CheckDataChecksAOneBOneATwoBTwoAndStopsAtTheFirstFailure) {
  load(2);
  // Every box out of range: each run of CheckData reports one box, then that box is put right.
  setScores("11", "12", "13", "14");
  const std::pair<int, const char*> order[] = {{0, "txtTradeOffAFirstScore"},
                                               {2, "txtTradeOffBFirstScore"},
                                               {1, "txtTradeOffASecondScore"},
                                               {3, "txtTradeOffBSecondScore"}};
  std::size_t shown = 0;
  for (const auto& [box, name] : order) {
    EXPECT_FALSE(m_page->CheckData());
    EXPECT_EQ(m_ui.messages().size(), ++shown);
    EXPECT_EQ(m_page->focus(), name);
    EXPECT_TRUE(m_page->entryError());
    m_page->setScoreText(box, "5");
  }
  EXPECT_TRUE(m_page->CheckData());
  EXPECT_FALSE(m_page->entryError());
  EXPECT_EQ(m_ui.messages().size(), shown);
}

TEST_F(JudgmentPageTest, ReversedRangeKeepsItsStoredEndsInTheMessageAndStepsByItsWidth) {
  load(2);
  // As the sample's "Purchase price": low end 42000, high end 18000.
  AttributeModel& m = m_ctx.model;
  m.AttScoreLow[0] = 42000.0;
  m.AttScoreHigh[0] = 18000.0;
  m.PointScore[0][0] = 18000.0;
  m.PointValue[0][0] = 1.0;
  m.PointScore[0][1] = 42000.0;
  m.PointValue[0][1] = 0.0;
  m_page->optPCAutomatic_Click();
  setScores("50000", "4", "30000", "6");
  m_page->cmdTradeOffEnter_Click();
  ASSERT_EQ(m_ui.messages().size(), 1u);
  EXPECT_EQ(m_ui.messages()[0].text,
            "The data you entered should be in the relevant score range [42000, 18000]!");
  EXPECT_EQ(m_page->store().JudgmentCount, 0);
  setScores("10000", "4", "30000", "6");
  EXPECT_FALSE(m_page->CheckData());
  EXPECT_EQ(m_ui.messages().back().text,
            "The data you entered should be in the relevant score range [42000, 18000]!");
  // Scores between the two ends, and the ends themselves, are inside the range.
  setScores("42000", "4", "18000", "6");
  EXPECT_TRUE(m_page->CheckData());
  setScores("30000", "4", "24000", "6");
  m_page->cmdTradeOffEnter_Click();
  ASSERT_EQ(m_page->store().JudgmentCount, 1);
  EXPECT_EQ(m_page->store().ScoreAFirst[0], 30000.0);
  // The step is a hundredth of the width, 240, and "Up" raises the score.
  m_page->optPCAutomatic_Click();
  setScores("30000", "4", "24000", "6");
  m_page->tbScoreChanger_ButtonClick(0, true);
  EXPECT_EQ(c().scoreBoxes[0].text, "30240.0");
  m_page->tbScoreChanger_ButtonClick(2, false);
  EXPECT_EQ(c().scoreBoxes[2].text, "23760.0");
  // The second attribute's range runs the usual way: its step is +0.1.
  m_page->tbScoreChanger_ButtonClick(1, true);
  EXPECT_EQ(c().scoreBoxes[1].text, "4.1");
}

TEST_F(JudgmentPageTest, NumericalJudgmentRecordsScoresResponseZeroAndValueDifferences) {
  load(3);
  setScores("8", "2.5", "3", "7.5");
  m_page->cmdTradeOffEnter_Click();
  JudgmentStore& s = m_page->store();
  ASSERT_EQ(s.JudgmentCount, 1);
  EXPECT_EQ(s.ScoreAFirst[0], 8.0);
  EXPECT_EQ(s.ScoreBFirst[0], 3.0);
  EXPECT_EQ(s.ScoreASecond[0], 2.5);
  EXPECT_EQ(s.ScoreBSecond[0], 7.5);
  EXPECT_EQ(s.PrefResponse[0], 0);
  EXPECT_EQ(s.ValueDiff[0], (std::vector<double>{0.5, -0.5, 0.0}));
}

TEST_F(JudgmentPageTest, VerbalResponseIsTheOptionIndexMinusThree) {
  load(3);
  m_page->tsComparisonApproaches_Click(2);
  m_page->optPCVerbal_Click(0);
  m_page->cmdTradeOffEnter_Click();
  m_page->optPCVerbal_Click(6);
  m_page->cmdTradeOffEnter_Click();
  m_page->optPCVerbal_Click(3);
  m_page->cmdTradeOffEnter_Click();
  m_page->tsComparisonApproaches_Click(1);
  m_page->optPCVerbal_Click(6);
  m_page->cmdTradeOffEnter_Click();
  const auto& r = m_page->store().PrefResponse;
  EXPECT_EQ(r[0], -3);  // "Strongly"
  EXPECT_EQ(r[1], 3);   // "Strongly the opposite"
  EXPECT_EQ(r[2], 0);   // "Indifference"
  EXPECT_EQ(r[3], 0);   // numerical tab
}

TEST_F(JudgmentPageTest, AutomaticStepShowsTheDifferencesOfTheNewPair) {
  load(3, {0.2f, 0.6f, 0.8f, 0.4f});
  m_page->cmdTradeOffEnter_Click();
  // Draws 5 to 8 repeat 0.4: A = B on both attributes of the new pair.
  EXPECT_EQ(c().labTradeOffDiff1.caption, "0.0");
  EXPECT_EQ(c().labTradeOffDiff2.caption, "0.0");
}

TEST_F(JudgmentPageTest, ScoresOfAThousandAndMoreShowGroupSeparatorsAndReadBack) {
  load(2, {1234.5f / 6251.0f}, 10000.0);  // t = (10000 / 1.6 + 1) r
  EXPECT_EQ(c().scoreBoxes[0].text, "1,234.5");
  m_page->cmdTradeOffEnter_Click();
  ASSERT_EQ(m_page->store().JudgmentCount, 1);
  EXPECT_EQ(m_page->store().ScoreAFirst[0], 1234.5);
}

TEST_F(JudgmentPageTest, EnterKeyInABoxPlacesTheTwoPointsAndMovesTheFocusToEnter) {
  load(2);
  setScores("10", "0", "0", "10");
  m_page->scoreBoxKeyPress(0, 13, 2, 0);
  EXPECT_EQ(m_page->focus(), "cmdTradeOffEnter");
  EXPECT_DOUBLE_EQ(c().shpPCA.x, 1.0);
  EXPECT_DOUBLE_EQ(c().shpPCA.y, 0.0);
  EXPECT_DOUBLE_EQ(c().shpPCB.x, 0.0);
  EXPECT_DOUBLE_EQ(c().shpPCB.y, 1.0);
}

TEST_F(JudgmentPageTest, TypedLetterIsDiscardedAndDigitIsInserted) {
  load(2);
  setScores("12", "1", "1", "1");
  m_page->scoreBoxKeyPress(0, 'x', 2, 0);
  EXPECT_EQ(c().scoreBoxes[0].text, "12");
  m_page->scoreBoxKeyPress(0, '5', 1, 0);
  EXPECT_EQ(c().scoreBoxes[0].text, "152");
}

TEST_F(JudgmentPageTest, ToolbarStepsTheBoxByOneHundredthOfItsAttributesRange) {
  load(2, {0.5f}, 20.0);
  setScores("3.0", "4", "5", "6");
  m_page->tbScoreChanger_ButtonClick(0, true);
  m_page->tbScoreChanger_ButtonClick(3, false);
  EXPECT_EQ(c().scoreBoxes[0].text, "3.2");
  EXPECT_EQ(c().scoreBoxes[3].text, "5.8");
  EXPECT_TRUE(m_page->changedByToolbar());
}

TEST_F(JudgmentPageTest, DraggingAPointWritesItsScoresFromThePanel) {
  load(2);
  m_page->dragPoint(true, 0.25, 0.755);
  EXPECT_EQ(c().scoreBoxes[0].text, "2.5");
  EXPECT_EQ(c().scoreBoxes[1].text, "7.55");
  m_page->dragPoint(false, 1.5, -0.2);
  EXPECT_EQ(c().scoreBoxes[2].text, "10.");
  EXPECT_EQ(c().scoreBoxes[3].text, "0.");
}

TEST_F(JudgmentPageTest, ClearAllRestartsFromTheFirstTradeOff) {
  load(2);
  m_page->cmdTradeOffEnter_Click();
  m_page->cmdTradeOffEnter_Click();
  m_page->cmdTradeOffEnter_Click();
  EXPECT_FALSE(c().cmdTradeOffEnter.enabled);
  m_page->cmdTradeOffClearAll_Click();
  EXPECT_EQ(m_page->TradeOffNo(), 0);
  EXPECT_EQ(c().labPCThisNum.caption, "1");
  EXPECT_TRUE(c().cmdTradeOffEnter.enabled);
  m_page->cmdTradeOffEnter_Click();
  EXPECT_EQ(m_page->store().JudgmentCount, 1);
}

TEST_F(JudgmentPageTest, AbsoluteWeightIsTheRatioOfValueDifferences) {
  load(2);
  setScores("8", "2", "4", "6");
  // order 2: first-attribute boxes belong to p = 0: (0.8 - 0.4) / (0.2 - 0.6) = -1.
  EXPECT_EQ(m_page->AbsoluteWeight(0, 1, 2), Currency::fromTicks(-10000));
  // order 1: p = 0 reads the second-attribute boxes: (0.2 - 0.6) / (0.8 - 0.4) = -1.
  EXPECT_EQ(m_page->AbsoluteWeight(0, 1, 1), Currency::fromTicks(-10000));
  setScores("8", "5", "4", "5");
  EXPECT_EQ(m_page->AbsoluteWeight(0, 1, 2), Currency());
}

}  // namespace
}  // namespace tnw::tradeoffs
