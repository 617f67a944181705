// Enter records a judgment only after the lower, upper and status checks have passed, whether
// or not the focus has left the boxes.

#include "direct_a_fixture.h"

namespace tnw::direct {
namespace {

constexpr const char* kLowerMessageTo12 =
    "The weight ratio you entered should be greater than zero and less than or equal to 1.2!";

// Four attributes ordered {1, 2, 2, 3}, reference attribute 1, on the judgment step with
// target 0 (group 1, starting at [1.2, 1.2]).
class EnterChecksTest : public DirectAPresenterTest {
 protected:
  EnterChecksTest() : DirectAPresenterTest(4) {}
  DirectAPresenter& toJudgments() {
    DirectAPresenter& p = toTiedJudgments();
    ui.clearMessages();
    return p;
  }
  // Types both boxes without leaving them (the focus stays in the upper box) and presses Enter.
  bool typeAndEnter(const std::string& lower, const std::string& upper) {
    presenter->txtWR_SetText(Box::Lower, lower);
    presenter->txtWR_SetText(Box::Upper, upper);
    return presenter->cmdEnter_Click();
  }
  const WeightRatioJudgments& judgments() const { return presenter->judgment().judgments(); }
};

TEST_F(EnterChecksTest, ALowerBoundAboveTheUpperIsNotRecorded) {
  DirectAPresenter& p = toJudgments();
  EXPECT_FALSE(typeAndEnter("5", "1.2"));
  EXPECT_FALSE(judgments().judged(0));
  EXPECT_DOUBLE_EQ(judgments().lower(0), 1.2);
  EXPECT_DOUBLE_EQ(judgments().upper(0), 1.2);
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].text, kLowerMessageTo12);
  EXPECT_EQ(ui.beeps(), 1);
  // The focus goes back to the lower box with its text selected, as after leaving it.
  EXPECT_EQ(p.judgment().focus(), "txtWRLower");
  EXPECT_EQ(p.judgment().box(Box::Lower).selLength, 1);
  EXPECT_EQ(p.judgment().validity(), 0);
}

TEST_F(EnterChecksTest, AZeroLowerBoundIsNotRecorded) {
  toJudgments();
  EXPECT_FALSE(typeAndEnter("0", "1.2"));
  EXPECT_FALSE(judgments().judged(0));
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].text, kLowerMessageTo12);
}

TEST_F(EnterChecksTest, AnInconsistentIntervalIsNotRecorded) {
  DirectAPresenter& p = toJudgments();
  // Target 0 is more important than the reference: below 1 contradicts the order.
  EXPECT_FALSE(typeAndEnter("0.5", "1.2"));
  EXPECT_FALSE(judgments().judged(0));
  EXPECT_DOUBLE_EQ(judgments().lower(0), 1.2);
  EXPECT_TRUE(ui.messages().empty());
  EXPECT_EQ(p.lamps().state(), JudgmentState::Inconsistent);
  EXPECT_FALSE(p.cmdEnter().enabled);
}

TEST_F(EnterChecksTest, AValidIntervalTypedWithoutLeavingTheBoxesIsRecorded) {
  DirectAPresenter& p = toJudgments();
  EXPECT_TRUE(typeAndEnter("1.3", "1.5"));
  EXPECT_TRUE(judgments().judged(0));
  EXPECT_DOUBLE_EQ(judgments().lower(0), 1.3);
  EXPECT_DOUBLE_EQ(judgments().upper(0), 1.5);
  EXPECT_TRUE(ui.messages().empty());
  EXPECT_FALSE(p.cmdEnter().enabled);
  EXPECT_TRUE(p.cmdReStart().enabled);
}

TEST_F(EnterChecksTest, AJudgmentMadeByDraggingKeepsItsHandles) {
  DirectAPresenter& p = toJudgments();
  p.setConeArea(1000, 10);
  p.picHandle_Drag(1, 400, 300);  // ratio 700 / 400 = 1.75
  ASSERT_EQ(p.lamps().state(), JudgmentState::Consistent);
  const RegionHandles dragged = p.judgment().handles();
  EXPECT_TRUE(p.cmdEnter_Click());
  const RegionHandles* stored = judgments().handles(0);
  ASSERT_NE(stored, nullptr);
  EXPECT_FLOAT_EQ(stored->second.x, dragged.second.x);
  EXPECT_FLOAT_EQ(stored->second.y, dragged.second.y);
  EXPECT_DOUBLE_EQ(judgments().upper(0), 1.75);
}

TEST_F(EnterChecksTest, TheExportNeverHasALowWeightAboveItsHighWeight) {
  DirectAPresenter& p = toJudgments();
  for (const auto& [lower, upper] : std::vector<std::pair<std::string, std::string>>{
           {"0.5", "1.2"}, {"5", "1.2"}, {"0", "1.2"}}) {
    EXPECT_FALSE(typeAndEnter(lower, upper)) << lower << " to " << upper;
  }
  p.imgcmbTargetAtt_Click(0);
  EXPECT_TRUE(typeAndEnter("1.2", "2"));
  p.imgcmbTargetAtt_Click(3);
  EXPECT_TRUE(typeAndEnter("0.5", "0.9"));
  ASSERT_TRUE(judgments().isComplete());
  p.cmdNext_Click();
  p.cmdFinish_Click();
  ASSERT_EQ(events.exports.size(), 1u);
  const auto& e = events.exports[0];
  for (std::size_t i = 0; i < e.weights.size(); ++i) {
    EXPECT_LE(e.weightsL[i], e.weightsH[i]) << "attribute " << i;
  }
}

}  // namespace
}  // namespace tnw::direct
