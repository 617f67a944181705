#include "builtin_sample.h"
#include "direct_a_fixture.h"
#include "model/model_file_reader.h"

// Std
#include <cmath>

namespace tnw::direct {
namespace {

// Attributes of the sample: 0 Purchase price, 1 Fuel consumption, 2 Safety rating,
// 3 Boot volume, 4 Comfort, 5 Running costs.
class SampleScenarioTest : public DirectAPresenterTest {
 protected:
  void readBuiltIn() {
    context = WizardContext{};
    context.FileIndex = 3;
    ASSERT_TRUE(ModelFileReader::read(builtInSampleModel(), context.model).complete);
  }
  void readPrevious() {
    context = WizardContext{};
    context.FileIndex = 3;
    ASSERT_TRUE(OpenRelatedFileForTNW(TNW_SAMPLE_MODEL_PREVIOUS, context.model, ui).complete);
  }
};

TEST_F(SampleScenarioTest, TheBuiltInSampleRunsFromAnEmptyOrderToFinish) {
  readBuiltIn();
  DirectAPresenter& p = load();
  ASSERT_FALSE(p.resuming());
  const int groups[] = {1, 2, 1, 3, 3, 2};
  for (int j = 0; j < 6; ++j) place(j, groups[j]);
  p.cmdNext_Click();
  p.cmdAttButtons_Click(2);
  EXPECT_EQ(p.lblRefAtt().caption, "Safety rating");
  p.cmdNext_Click();
  EXPECT_EQ(p.judgment().targets().currentTarget(), 1);
  p.imgcmbTargetAtt_Click(0);
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].text, JudgmentPage::kSameGroupMessage);
  ui.clearMessages();
  judge(1, "0.6", "0.8");
  EXPECT_TRUE(p.judgment().judgments().judged(5));
  EXPECT_EQ(p.judgment().targets().items()[5].text, " \xC2\xA4 Running costs");
  EXPECT_DOUBLE_EQ(p.result().UpperWeights[3], 0.6);
  judge(3, "0.3", "0.5");
  EXPECT_TRUE(ui.messages().empty());
  ASSERT_TRUE(p.cmdNext().enabled);
  p.cmdNext_Click();
  EXPECT_EQ(p.grid().cell(3, 1), "Safety rating");
  EXPECT_EQ(p.grid().cell(3, 4), "0.2632,     0.2174");
  p.cmdFinish_Click();
  ASSERT_EQ(events.exports.size(), 1u);
  const auto& e = events.exports[0];
  EXPECT_EQ(e.type, "MAVT_DIRECT");
  EXPECT_EQ(e.refAtt, 2);
  EXPECT_DOUBLE_EQ(e.weightsL[1], 0.6 / 4.6);
  EXPECT_DOUBLE_EQ(e.weightsH[1], 0.8 / 3.8);
  EXPECT_DOUBLE_EQ(e.weights[2], (1 / 4.6 + 1 / 3.8) / 2);
  ASSERT_EQ(events.unloads.size(), 1u);
  EXPECT_EQ(events.unloads[0].fIndex, 3);
  EXPECT_TRUE(events.unloads[0].weightsDone);
}

TEST_F(SampleScenarioTest, TheSampleWithAnEarlierResultResumesAndFinishesWithAChange) {
  readPrevious();
  DirectAPresenter& p = load();
  ASSERT_TRUE(p.resuming());
  EXPECT_EQ(p.ordering().order().GroupCount(), 6);
  EXPECT_EQ(p.ordering().order().AttGroup(0), 1);
  EXPECT_EQ(p.ordering().order().AttGroup(1), 6);
  p.cmdNext_Click();
  EXPECT_EQ(p.lblRefAtt().caption, "Safety rating");
  p.cmdNext_Click();
  EXPECT_TRUE(p.cmdFinish().enabled);
  EXPECT_NEAR(p.result().CloseWeights[0], 0.26 / 0.23, 1e-12);
  p.imgcmbTargetAtt_Click(1);
  EXPECT_EQ(p.judgment().box(Box::Lower).text, "0.40");
  EXPECT_EQ(p.judgment().box(Box::Upper).text, "0.46");
  EXPECT_EQ(p.lamps().state(), JudgmentState::Consistent);
  judge(1, "0.35", "0.45");
  EXPECT_TRUE(ui.messages().empty());
  EXPECT_DOUBLE_EQ(p.result().LowerWeights[1], 0.35);
  p.cmdFinish_Click();
  ASSERT_EQ(events.exports.size(), 1u);
  for (double w : events.exports[0].weights) EXPECT_TRUE(std::isfinite(w));
  EXPECT_EQ(events.exports[0].refAtt, 2);
}

}  // namespace
}  // namespace tnw::direct
