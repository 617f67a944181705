// What the judgment step shows follows the judgments at once: the caption when going back, the
// mark of a recorded target, the list and labels after the reference is refused as a target.

#include "direct_a_fixture.h"

namespace tnw::direct {
namespace {

// Three attributes in three groups, the reference 1 in the middle; target 0 starts at 1.2.
class JudgmentDisplayTest : public DirectAPresenterTest {
 protected:
  JudgmentDisplayTest() : DirectAPresenterTest(3) {}
  DirectAPresenter& toJudgments() {
    DirectAPresenter& p = load();
    place(0, 1);
    place(1, 2);
    place(2, 3);
    p.cmdNext_Click();
    p.cmdAttButtons_Click(1);
    p.cmdNext_Click();
    ui.clearMessages();
    return p;
  }
};

TEST_F(JudgmentDisplayTest, BackToTheReferenceShowsTheReferenceStepsCaption) {
  DirectAPresenter& p = toJudgments();
  ASSERT_EQ(p.caption(), DirectAPresenter::kCaptions[2]);
  p.cmdBack_Click();
  EXPECT_EQ(p.caption(), DirectAPresenter::kCaptions[1]);
}

TEST_F(JudgmentDisplayTest, ARecordedTargetIsMarkedAtOnce) {
  DirectAPresenter& p = toJudgments();
  ASSERT_EQ(p.judgment().targets().items()[0].text, "Att1");
  ASSERT_TRUE(p.cmdEnter_Click());
  EXPECT_EQ(p.judgment().targets().items()[0].text,
            std::string(TargetList::kJudgedPrefix) + "Att1");
  EXPECT_EQ(p.judgment().targets().items()[2].text, "Att3");
}

TEST_F(JudgmentDisplayTest, RefusingTheReferenceLeavesListAndLabelsOnTheTarget) {
  DirectAPresenter& p = toJudgments();
  p.imgcmbTargetAtt_Click(2);
  p.imgcmbTargetAtt_Click(1);
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(p.judgment().targets().currentTarget(), 2);
  EXPECT_EQ(p.judgment().targets().selectedIndex(), 2);
  EXPECT_EQ(p.judgment().lblTargetAtt().caption, "Att3");
}

}  // namespace
}  // namespace tnw::direct
