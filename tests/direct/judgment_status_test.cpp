#include "direct/core/judgment_status_check.h"
#include "direct/core/status_lamps.h"
#include "direct_test_models.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tnw::direct {
namespace {

class JudgmentStatusTest : public ::testing::Test {
 protected:
  JudgmentStatusTest()
      : context(test::makeContext(5)), judgments((setUp(), context.model), result) {}
  void setUp() {
    test::setOrder(result, {1, 2, 3, 4, 3});
    result.RefAtt = 1;
  }
  RegionHandles handlesFor(double lower, double upper) const {
    return {cone.handleForRatio(lower), cone.handleForRatio(upper)};
  }

  WizardContext context;
  DirectResult result;
  WeightRatioJudgments judgments;
  PreferenceCone cone{1000.0F, 10.0F};
};

TEST_F(JudgmentStatusTest, WithoutJudgedNeighboursTheUpperLimitIsOneHundred) {
  judgments.CalcIniWeightRatios();
  // Target 3 (group 4): no less important group; group 3 holds no judged attribute, group 2
  // holds the reference with lower ratio 1.
  EXPECT_EQ(JudgmentStatusCheck::upperLimit(judgments, 3), 1.0);
  EXPECT_FALSE(JudgmentStatusCheck::lowerLimit(judgments, 3, 4).has_value());
  EXPECT_EQ(JudgmentStatusCheck::upperLimit(judgments, 0), JudgmentStatusCheck::kNoUpperLimit);
  EXPECT_EQ(JudgmentStatusCheck::lowerLimit(judgments, 0, 4), 1.0);
}

TEST_F(JudgmentStatusTest, HandlesGiveBothRatiosSmallerFirst) {
  judgments.CalcIniWeightRatios();
  const auto r = JudgmentStatusCheck::check(cone, handlesFor(0.7, 0.4), judgments, 2);
  EXPECT_EQ(r.state, JudgmentState::Consistent);
  EXPECT_NEAR(r.lowerRatio, 0.4F, 1e-6);
  EXPECT_NEAR(r.upperRatio, 0.7F, 1e-6);
}

TEST_F(JudgmentStatusTest, AnIntervalAboveAJudgedMoreImportantAttributeIsInconsistent) {
  judgments.CalcIniWeightRatios();
  const auto r = JudgmentStatusCheck::check(cone, handlesFor(0.5, 1.3), judgments, 2);
  EXPECT_EQ(r.state, JudgmentState::Inconsistent);
  EXPECT_EQ(r.upperLimit, 1.0);
}

TEST_F(JudgmentStatusTest, AnIntervalBelowAJudgedLessImportantAttributeIsInconsistent) {
  judgments.CalcIniWeightRatios();
  judgments.RecordWeightRatios(3, 0.3, 0.4, {});
  const auto low = JudgmentStatusCheck::check(cone, handlesFor(0.35, 0.8), judgments, 2);
  EXPECT_EQ(low.lowerLimit, 0.4);
  EXPECT_EQ(low.state, JudgmentState::Inconsistent);
  const auto ok = JudgmentStatusCheck::check(cone, handlesFor(0.4, 1.0), judgments, 2);
  EXPECT_EQ(ok.state, JudgmentState::Consistent);
}

TEST_F(JudgmentStatusTest, AHandleNearTheCornerIsInvalid) {
  judgments.CalcIniWeightRatios();
  const RegionHandles h{{5, 995}, cone.handleForRatio(0.5)};
  EXPECT_EQ(JudgmentStatusCheck::check(cone, h, judgments, 2).state, JudgmentState::Invalid);
}

TEST(StatusLampsTest, EachStateLightsItsLampAndSetsTheTimer) {
  StatusLamps lamps;
  lamps.show(JudgmentState::Consistent);
  EXPECT_EQ(lamps.lampColor(0), StatusLamps::kGreen);
  EXPECT_EQ(lamps.lampColor(1), StatusLamps::kGrey);
  EXPECT_TRUE(lamps.labelHighlighted(0));
  EXPECT_FALSE(lamps.labelHighlighted(1));
  EXPECT_EQ(lamps.timerInterval(), 0);
  lamps.show(JudgmentState::Invalid);
  EXPECT_EQ(lamps.lampColor(0), StatusLamps::kGrey);
  EXPECT_EQ(lamps.lampColor(1), 0x000808u);
  EXPECT_EQ(lamps.timerInterval(), 300);
  lamps.show(JudgmentState::Inconsistent);
  EXPECT_EQ(lamps.lampColor(2), 0x004080u);
  EXPECT_TRUE(lamps.labelHighlighted(2));
  EXPECT_EQ(lamps.timerInterval(), 100);
}

TEST(StatusLampsTest, TicksBlinkTheLitLampOfAFaultyJudgment) {
  StatusLamps lamps;
  lamps.show(JudgmentState::Invalid);
  lamps.tick();
  EXPECT_EQ(lamps.lampColor(1), StatusLamps::kYellow);
  lamps.tick();
  EXPECT_EQ(lamps.lampColor(1), StatusLamps::kWhite);
  lamps.tick();
  EXPECT_EQ(lamps.lampColor(1), StatusLamps::kYellow);
  lamps.show(JudgmentState::Inconsistent);
  lamps.tick();
  EXPECT_EQ(lamps.lampColor(2), StatusLamps::kOrange);
  lamps.tick();
  EXPECT_EQ(lamps.lampColor(2), StatusLamps::kWhite);
  EXPECT_EQ(lamps.lampColor(0), StatusLamps::kGrey);
  lamps.show(JudgmentState::Consistent);
  lamps.tick();
  EXPECT_EQ(lamps.lampColor(0), StatusLamps::kGreen);
}

TEST(StatusLampsTest, TheIndicatorTurnsFromRedToBlueAndStays) {
  StatusLamps lamps;
  EXPECT_EQ(lamps.indicatorColor(), StatusLamps::kRed);
  lamps.tick();
  EXPECT_EQ(lamps.indicatorColor(), StatusLamps::kBlue);
  lamps.tick();
  EXPECT_EQ(lamps.indicatorColor(), StatusLamps::kBlue);
}

TEST(StatusLampsTest, ClearingLeavesEveryLampGreyAndStatusZero) {
  StatusLamps lamps;
  lamps.show(JudgmentState::Inconsistent);
  lamps.clear();
  EXPECT_EQ(lamps.state(), JudgmentState::None);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(lamps.lampColor(i), StatusLamps::kGrey);
    EXPECT_FALSE(lamps.labelHighlighted(i));
  }
  lamps.tick();
  EXPECT_EQ(lamps.lampColor(1), StatusLamps::kGrey);
}

// The contrast ratio of two 0x00BBGGRR colours as the accessibility guidelines define it,
// worked out here on its own so that the lamps' choice is checked against it.
double wcagContrast(std::uint32_t a, std::uint32_t b) {
  const auto luminance = [](std::uint32_t bgr) {
    double l = 0.0;
    const double weights[3] = {0.2126, 0.7152, 0.0722};  // red, green, blue
    for (int c = 0; c < 3; ++c) {
      const double v = static_cast<double>((bgr >> (8 * c)) & 0xFFu) / 255.0;
      l += weights[c] * (v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4));
    }
    return l;
  };
  const double la = luminance(a);
  const double lb = luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

TEST(StatusLampsTest, EveryLabelReadsOnItsLampInEveryPhaseOfTheBlink) {
  for (const JudgmentState state : {JudgmentState::None, JudgmentState::Consistent,
                                    JudgmentState::Invalid, JudgmentState::Inconsistent}) {
    StatusLamps lamps;
    lamps.show(state);
    // Four ticks see both phases of a blinking lamp twice.
    for (int tick = 0; tick <= 4; ++tick) {
      for (int i = 0; i < 3; ++i) {
        const double ratio = wcagContrast(lamps.lampColor(i), lamps.labelTextColor(i));
        EXPECT_GE(ratio, 4.5) << "state " << static_cast<int>(state) << " tick " << tick << " lamp "
                              << i;
      }
      lamps.tick();
    }
  }
}

TEST(StatusLampsTest, ContrastRatioRunsFromOneToTwentyOne) {
  EXPECT_DOUBLE_EQ(StatusLamps::contrastRatio(StatusLamps::kWhite, StatusLamps::kBlack), 21.0);
  EXPECT_DOUBLE_EQ(StatusLamps::contrastRatio(StatusLamps::kGreen, StatusLamps::kGreen), 1.0);
  // White text on the green lamp: what a lit "Consistent" showed before.
  EXPECT_NEAR(StatusLamps::contrastRatio(StatusLamps::kGreen, StatusLamps::kWhite), 1.37, 0.01);
  EXPECT_EQ(StatusLamps::readableOn(StatusLamps::kYellow), StatusLamps::kBlack);
  EXPECT_EQ(StatusLamps::readableOn(StatusLamps::kInvalidLit), StatusLamps::kWhite);
}

}  // namespace
}  // namespace tnw::direct
