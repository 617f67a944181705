#include "direct_a_fixture.h"

// Std
#include <cmath>
#include <numeric>

namespace tnw::direct {
namespace {

// 31 attributes: attribute 0 alone in group 1, the others over groups 2 to 10.
int groupOf(int j) { return j == 0 ? 1 : 2 + (j - 1) % 9; }

class ScenarioTest : public DirectAPresenterTest {
 protected:
  ScenarioTest() : DirectAPresenterTest(31) {}
};

TEST_F(ScenarioTest, TheWholeMethodRunsFromAnEmptyOrderToFinishAtThirtyOneAttributes) {
  DirectAPresenter& p = load();
  for (int j = 0; j < 31; ++j) place(j, groupOf(j));
  EXPECT_EQ(p.ordering().order().GroupCount(), 10);
  EXPECT_TRUE(p.cmdAdd().enabled);
  ASSERT_TRUE(p.cmdNext().enabled);
  p.cmdNext_Click();
  EXPECT_EQ(p.result().FinalGroupCount, 10);
  p.cmdAttButtons_Click(0);
  p.cmdNext_Click();
  for (int j = 1; j < 31; ++j) {
    const double lower = 1.0 - 0.09 * groupOf(j);
    judge(j, std::to_string(lower), std::to_string(lower + 0.04));
    ASSERT_TRUE(ui.messages().empty()) << j << ": " << ui.messages()[0].text;
    ASSERT_TRUE(p.judgment().judgments().judged(j)) << j;
  }
  ASSERT_TRUE(p.cmdNext().enabled);
  p.cmdNext_Click();
  EXPECT_EQ(p.grid().rows(), 32);
  EXPECT_EQ(p.grid().cell(31, 2), "W31");
  const auto& middle = p.grid().middlePoints();
  EXPECT_NEAR(std::accumulate(middle.begin(), middle.end(), 0.0), 1.0, 1e-12);
  events.log.clear();
  p.cmdFinish_Click();
  EXPECT_EQ(events.log, (std::vector<std::string>{"ExportDirectAW", "UnloadTNWizard"}));
  ASSERT_EQ(events.exports.size(), 1u);
  const auto& e = events.exports[0];
  ASSERT_EQ(e.weights.size(), 31u);
  for (std::size_t i = 0; i < 31; ++i) {
    EXPECT_TRUE(std::isfinite(e.weights[i]));
    EXPECT_LE(e.weightsL[i], e.weights[i]);
    EXPECT_LE(e.weights[i], e.weightsH[i]);
  }
  // Group 2's interval [0.82, 0.86] against the reference's 1.
  EXPECT_DOUBLE_EQ(p.result().LowerWeights[1], 0.82);
  EXPECT_DOUBLE_EQ(p.result().UpperWeights[1], 0.86);
  EXPECT_EQ(e.refAtt, 0);
}

}  // namespace
}  // namespace tnw::direct
