#include "direct/core/reference_page.h"

#include "common/core/recording_ui_services.h"
#include "direct/core/ordering_page.h"
#include "direct/core/status_lamps.h"
#include "direct_a_fixture.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <vector>

namespace tnw::direct {
namespace {

// The reference choice as a page of its own, over an order of three attributes: 0 in group 1,
// 1 and 2 in group 2.
class ReferencePageTest : public ::testing::Test {
 protected:
  ReferencePageTest() : context(test::makeContext(3)) {
    ordering.initializePage();
    ordering.dropOnGroup("A0", 1);
    ordering.dropOnGroup("A1", 2);
    ordering.dropOnGroup("A2", 2);
  }

  WizardContext context;
  DirectResult result;
  RecordingUiServices ui;
  test::RecordingDirectAEvents events;
  wizard::WizardButtons buttons;
  DirectAShared shared{context, result, ui, events, buttons};
  StatusLamps lamps;
  OrderingPage ordering{shared, 3};
  ReferencePage page{shared, ordering, lamps};
};

TEST_F(ReferencePageTest, EnteringTakesTheFinalOrderAndWaitsForAChoice) {
  ASSERT_TRUE(buttons.cmdNext.enabled);  // every attribute placed
  page.initializePage();
  EXPECT_EQ(result.FinalGroupCount, 2);
  EXPECT_EQ(page.finalGroup(1), (std::vector<int>{0}));
  EXPECT_EQ(page.finalGroup(2), (std::vector<int>{1, 2}));
  EXPECT_FALSE(buttons.cmdNext.enabled);
  EXPECT_FALSE(page.isComplete());
  EXPECT_FALSE(page.picIndicator().visible);
  EXPECT_EQ(page.indicatorAttribute(), -1);
  EXPECT_EQ(lamps.timerInterval(), StatusLamps::kTimerSlow);
  EXPECT_EQ(page.nextId(), JudgmentPage::kStep);
}

TEST_F(ReferencePageTest, AChoiceShowsItsNameAndTheIndicatorAndCompletesThePage) {
  page.initializePage();
  page.chooseReference(2);
  EXPECT_EQ(shared.lblRefAtt.caption, "Att3");
  EXPECT_EQ(result.RefAtt, 2);
  EXPECT_EQ(page.indicatorAttribute(), 2);
  EXPECT_TRUE(page.picIndicator().visible);
  EXPECT_EQ(lamps.indicatorColor(), StatusLamps::kRed);
  EXPECT_TRUE(page.isComplete());
}

TEST_F(ReferencePageTest, AChoiceOutsideTheModelChangesNothing) {
  page.initializePage();
  page.chooseReference(3);
  page.chooseReference(-1);
  EXPECT_EQ(page.indicatorAttribute(), -1);
  EXPECT_EQ(shared.lblRefAtt.caption, "");
  EXPECT_FALSE(page.isComplete());
}

TEST_F(ReferencePageTest, LeavingByBackForgetsTheChoiceAndStopsTheTimer) {
  page.initializePage();
  page.chooseReference(1);
  page.cleanupPage();
  EXPECT_EQ(page.indicatorAttribute(), -1);
  EXPECT_FALSE(page.picIndicator().visible);
  EXPECT_EQ(shared.lblRefAtt.caption, "");
  EXPECT_EQ(lamps.timerInterval(), StatusLamps::kTimerStopped);
}

TEST_F(ReferencePageTest, AResumedResultChoosesItsEarlierReferenceAgain) {
  shared.resume = true;
  result.RefAtt = 1;
  page.initializePage();
  EXPECT_EQ(page.indicatorAttribute(), 1);
  EXPECT_EQ(shared.lblRefAtt.caption, "Att2");
  EXPECT_TRUE(buttons.cmdNext.enabled);
  EXPECT_TRUE(page.isComplete());
}

TEST_F(DirectAPresenterTest, TheStepsArePagesAndWizardStepIsTheStep) {
  DirectAPresenter& p = load();
  EXPECT_EQ(p.stepCount(), 4);
  EXPECT_EQ(p.step(), DirectAPresenter::kOrderStep);
  place(0, 1);
  place(1, 2);
  place(2, 2);
  p.cmdNext_Click();
  EXPECT_EQ(p.step(), DirectAPresenter::kReferenceStep);
  EXPECT_EQ(p.WizardStep(), p.step());
  p.cmdAttButtons_Click(0);
  EXPECT_TRUE(p.picIndicator().visible);
  EXPECT_EQ(p.lblRefAtt().caption, "Att1");
  p.cmdNext_Click();
  EXPECT_EQ(p.step(), DirectAPresenter::kJudgmentStep);
  EXPECT_TRUE(p.cmdEnter().visible);
  EXPECT_FALSE(p.cmdAdd().visible);
  EXPECT_EQ(p.judgment().lblChartRefAtt().caption, "Att1");
  p.cmdBack_Click();
  EXPECT_EQ(p.step(), DirectAPresenter::kReferenceStep);
  EXPECT_FALSE(p.cmdEnter().visible);
  p.cmdBack_Click();
  EXPECT_EQ(p.step(), DirectAPresenter::kOrderStep);
  EXPECT_TRUE(p.cmdAdd().visible);
  EXPECT_FALSE(p.picIndicator().visible);
}

}  // namespace
}  // namespace tnw::direct
