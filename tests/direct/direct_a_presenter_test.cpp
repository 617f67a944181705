#include "direct/core/direct_a_presenter.h"

#include "direct_a_fixture.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::direct {
namespace {

TEST_F(DirectAPresenterTest, LoadShowsStepZeroAndSendsTheOrderMessage) {
  DirectAPresenter& p = load();
  EXPECT_EQ(p.WizardStep(), 0);
  EXPECT_EQ(p.caption(), "Tarnel Wizard: Give an importantce order of the attirbutes");
  EXPECT_FALSE(p.cmdNext().enabled);
  EXPECT_FALSE(p.cmdFinish().enabled);
  EXPECT_TRUE(p.cmdBack().enabled);
  EXPECT_FALSE(p.cmdEnter().visible);
  EXPECT_EQ(events.messages, std::vector<std::string>{
                                 "Order the attributes according to their relative importance."});
  EXPECT_EQ(p.ordering().order().GroupCount(), 2);
  EXPECT_EQ(p.ordering().attributeButtons().size(), 3u);
  EXPECT_EQ(p.ordering().labAttName().caption, "Att1");
  EXPECT_EQ(p.ordering().labAttProperty().caption, "Benefit-oriented");
  EXPECT_EQ(p.ordering().txtAttDefinition().caption, "Definition 1");
  EXPECT_EQ(p.ordering().lblNotice3().caption.substr(0, 17), "    Notice that: ");
  EXPECT_GT(changes, 0);
}

TEST_F(DirectAPresenterTest, NextIsEnabledOnceEveryAttributeIsPlaced) {
  DirectAPresenter& p = load();
  place(0, 1);
  place(1, 2);
  EXPECT_FALSE(p.cmdNext().enabled);
  p.picOrder_DragDrop(1, "B1");
  EXPECT_FALSE(p.cmdNext().enabled);
  place(2, 2);
  EXPECT_TRUE(p.cmdNext().enabled);
  EXPECT_FALSE(p.ordering().attributeButtons()[2].visible);
  p.picOrder_DragDrop(1, "C2");
  EXPECT_EQ(p.ordering().order().PlacedCount(), 3);
}

TEST_F(DirectAPresenterTest, StepOneWaitsForAReferenceAndStartsTheTimer) {
  DirectAPresenter& p = load();
  place(0, 1);
  place(1, 2);
  place(2, 2);
  p.cmdNext_Click();
  EXPECT_EQ(p.WizardStep(), 1);
  EXPECT_EQ(p.caption(), "Tarnel Wizard: Select reference attributes for pairwise comparisons");
  EXPECT_FALSE(p.cmdNext().enabled);
  EXPECT_EQ(p.lblRefAtt().caption, "");
  EXPECT_EQ(p.timerInterval(), 300);
  EXPECT_EQ(p.finalGroup(2), (std::vector<int>{1, 2}));
  p.cmdAttButtons_Click(1);
  EXPECT_EQ(p.lblRefAtt().caption, "Att2");
  EXPECT_EQ(p.result().RefAtt, 1);
  EXPECT_EQ(p.indicatorAttribute(), 1);
  EXPECT_TRUE(p.cmdNext().enabled);
  p.Timer1_Timer();
  EXPECT_EQ(p.lamps().indicatorColor(), StatusLamps::kBlue);
}

TEST_F(DirectAPresenterTest, BackFromStepOneKeepsTheOrderAndNextRecomputesTheFinalOrder) {
  DirectAPresenter& p = load();
  place(0, 1);
  place(1, 2);
  place(2, 2);
  p.cmdNext_Click();
  EXPECT_EQ(p.result().FinalAttGroup, (std::vector<std::int16_t>{1, 2, 2}));
  p.cmdBack_Click();
  EXPECT_EQ(p.WizardStep(), 0);
  EXPECT_EQ(p.caption(), DirectAPresenter::kCaptions[0]);
  EXPECT_EQ(p.timerInterval(), 0);
  EXPECT_TRUE(p.cmdNext().enabled);
  EXPECT_EQ(p.ordering().order().AttGroup(2), 2);
  p.picOrder_DragDrop(1, "B2");
  p.cmdNext_Click();
  EXPECT_EQ(p.result().FinalAttGroup, (std::vector<std::int16_t>{1, 2, 1}));
}

TEST_F(DirectAPresenterTest, BackOnStepZeroReturnsToMethodSelection) {
  DirectAPresenter& p = load();
  events.log.clear();
  p.cmdBack_Click();
  EXPECT_EQ(events.log, (std::vector<std::string>{"ShowTNWSelMethod", "UnloadDirectA"}));
}

TEST_F(DirectAPresenterTest, HelpOpensTheHostsHelpFileAtItsContext) {
  DirectAPresenter& p = load();
  p.cmdHelp_Click();
  EXPECT_EQ(ui.helpFile(), "C:\\NORIX\\NORIX.HLP");
  EXPECT_EQ(ui.helpContext(), 4005025);
  EXPECT_EQ(ui.helpTopic().page, "direct_a");
  EXPECT_EQ(ui.helpTopic().anchor, "ordering");
}

TEST_F(DirectAPresenterTest, CancelOnAnyStepExportsNothingAndUnloadsWithWeightsDoneFalse) {
  for (int step = 0; step <= 3; ++step) {
    events = {};
    DirectAPresenter& p = load();
    place(0, 1);
    place(1, 2);
    place(2, 2);
    if (step >= 1) p.cmdNext_Click();
    if (step >= 2) {
      p.cmdAttButtons_Click(0);
      p.cmdNext_Click();
    }
    if (step >= 3) {
      judge(1, "0.5", "0.7");
      p.cmdNext_Click();
    }
    ASSERT_EQ(p.WizardStep(), step);
    p.cmdCancel_Click();
    EXPECT_TRUE(events.exports.empty()) << step;
    ASSERT_EQ(events.unloads.size(), 1u) << step;
    EXPECT_EQ(events.unloads[0].fIndex, 7);
    EXPECT_FALSE(events.unloads[0].weightsDone);
  }
}

TEST_F(DirectAPresenterTest, AModelWithoutAttributesIsReportedAndCannotGoOn) {
  context.model.NumAtt = 0;
  DirectAPresenter& p = load();
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].title, "NORIX");
  EXPECT_EQ(ui.messages()[0].icon, MessageIcon::Exclamation);
  EXPECT_FALSE(p.usable());
  p.picOrder_DragDrop(1, "A0");
  p.cmdNext_Click();
  p.cmdFinish_Click();
  EXPECT_EQ(p.WizardStep(), 0);
  EXPECT_TRUE(events.exports.empty());
}

TEST_F(DirectAPresenterTest, AModelWithMoreThanThirtyOneAttributesIsReported) {
  context.model.NumAtt = 32;
  DirectAPresenter& p = load();
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].text,
            "The current model has 32 attributes. The wizard can only weigh from 1 to 31 "
            "attributes.");
  EXPECT_FALSE(p.cmdNext().enabled);
  EXPECT_FALSE(p.cmdAdd().enabled);
  p.cmdCancel_Click();
  EXPECT_EQ(events.unloads.size(), 1u);
}

}  // namespace
}  // namespace tnw::direct
