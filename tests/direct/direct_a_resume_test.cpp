#include "direct_a_fixture.h"

namespace tnw::direct {
namespace {

class ResumeFlowTest : public DirectAPresenterTest {
 protected:
  ResumeFlowTest() : DirectAPresenterTest(4) {}
  void storeEarlier(const std::vector<double>& w, std::optional<double> ref,
                    const std::string& type = "MAVT_DIRECT") {
    context = test::makeContext(static_cast<int>(w.size()));
    context.model.PrevTNType = type;
    context.model.PrevRefAtt = ref;
    for (std::size_t i = 0; i < w.size(); ++i) {
      context.model.PrevWeight[i] = w[i];
      context.model.PrevWeightL[i] = w[i] * 0.8;
      context.model.PrevWeightH[i] = w[i] * 1.2;
    }
  }
};

TEST_F(ResumeFlowTest, AnEarlierResultRestoresTheOrderAndEnablesNext) {
  storeEarlier({1.5, 1, 1.5, 0.5}, 1.0);
  DirectAPresenter& p = load();
  EXPECT_TRUE(p.resuming());
  EXPECT_TRUE(p.cmdNext().enabled);
  EXPECT_EQ(p.ordering().order().GroupCount(), 3);
  EXPECT_EQ(p.ordering().order().AttGroup(0), 1);
  EXPECT_EQ(p.ordering().order().AttGroup(1), 2);
  EXPECT_EQ(p.ordering().order().AttGroup(3), 3);
  EXPECT_EQ(p.ordering().order().PlacedCount(), 4);
  EXPECT_FALSE(p.ordering().attributeButtons()[0].visible);
  EXPECT_TRUE(ui.messages().empty());
}

TEST_F(ResumeFlowTest, NextReselectsTheEarlierReferenceAndTheJudgmentsAreComplete) {
  storeEarlier({1.5, 1, 1.5, 0.5}, 1.0);
  DirectAPresenter& p = load();
  p.cmdNext_Click();
  EXPECT_EQ(p.WizardStep(), 1);
  EXPECT_EQ(p.lblRefAtt().caption, "Att2");
  EXPECT_EQ(p.indicatorAttribute(), 1);
  EXPECT_TRUE(p.cmdNext().enabled);
  p.cmdNext_Click();
  EXPECT_EQ(p.WizardStep(), 2);
  EXPECT_TRUE(p.judgment().judgments().isComplete());
  EXPECT_TRUE(p.cmdNext().enabled);
  EXPECT_TRUE(p.cmdFinish().enabled);
  EXPECT_TRUE(p.cmdReStart().enabled);
  EXPECT_EQ(p.judgment().targets().items()[0].text, " \xC2\xA4 Att1");
  EXPECT_EQ(p.judgment().targets().items()[1].text, "Att2");
  EXPECT_NE(p.judgment().judgments().handles(3), nullptr);
  EXPECT_DOUBLE_EQ(p.result().LowerWeights[0], 1.5);
  EXPECT_DOUBLE_EQ(p.result().UpperWeights[3], 0.5);
}

TEST_F(ResumeFlowTest, AResumedRunCanFinishAtOnce) {
  storeEarlier({1.5, 1, 1.5, 0.5}, 1.0);
  DirectAPresenter& p = load();
  p.cmdNext_Click();
  p.cmdNext_Click();
  p.cmdFinish_Click();
  ASSERT_EQ(events.exports.size(), 1u);
  EXPECT_EQ(events.exports[0].refAtt, 1);
  EXPECT_DOUBLE_EQ(events.exports[0].weightsL[1], 1.0 / 4.5);
  EXPECT_TRUE(events.unloads[0].weightsDone);
}

TEST_F(ResumeFlowTest, AResumedTargetShowsItsRecordedInterval) {
  storeEarlier({1.5, 1, 1.5, 0.5}, 1.0);
  DirectAPresenter& p = load();
  p.cmdNext_Click();
  p.cmdNext_Click();
  p.imgcmbTargetAtt_Click(3);
  EXPECT_EQ(p.judgment().box(Box::Lower).text, "0.50");
  EXPECT_EQ(p.lamps().state(), JudgmentState::Consistent);
  EXPECT_TRUE(p.cmdEnter().enabled);
}

TEST_F(ResumeFlowTest, WithoutAStoredReferenceTheIntendedRuleChoosesIt) {
  storeEarlier({0.32, 0.2, 0.24, 0.1, 0.14}, std::nullopt, "MAVT_TRADEOFFS");
  DirectAPresenter& p = load();
  EXPECT_EQ(p.result().RefAtt, 4);
  p.cmdNext_Click();
  EXPECT_EQ(p.lblRefAtt().caption, "Att5");
  p.cmdNext_Click();
  EXPECT_NEAR(p.result().CloseWeights[0], 2.2857, 5e-5);
  EXPECT_NEAR(p.result().CloseWeights[3], 0.7143, 5e-5);
}

TEST_F(ResumeFlowTest, AZeroEarlierWeightOfTheReferenceIsReportedAndTheOrderStartsEmpty) {
  storeEarlier({0.5, 0.0, 0.5}, 1.0);
  DirectAPresenter& p = load();
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].title, "NORIX");
  EXPECT_EQ(ui.messages()[0].text,
            "The earlier weights cannot be resumed: the earlier weight of the reference "
            "attribute is zero. The judgments start afresh.");
  EXPECT_FALSE(p.resuming());
  EXPECT_FALSE(p.cmdNext().enabled);
  EXPECT_EQ(p.ordering().order().PlacedCount(), 0);
  place(0, 1);
  place(1, 2);
  place(2, 2);
  p.cmdNext_Click();
  p.cmdAttButtons_Click(1);
  p.cmdNext_Click();
  EXPECT_EQ(p.result().LowerWeights, (std::vector<double>{1.2, 1, 1}));
  EXPECT_FALSE(p.cmdFinish().enabled);
}

TEST_F(ResumeFlowTest, AnotherResultKindStartsAfresh) {
  storeEarlier({1.5, 1, 1.5, 0.5}, 1.0, "MAVT_OTHER");
  DirectAPresenter& p = load();
  EXPECT_FALSE(p.resuming());
  EXPECT_FALSE(p.cmdNext().enabled);
  EXPECT_EQ(p.ordering().order().PlacedCount(), 0);
}

}  // namespace
}  // namespace tnw::direct
