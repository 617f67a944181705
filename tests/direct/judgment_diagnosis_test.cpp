#include "direct/core/judgment_diagnosis.h"

#include "direct/core/judgment_status_check.h"
#include "direct_a_fixture.h"
#include "direct_test_models.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::direct {
namespace {

using Bound = JudgmentDiagnosis::Bound;

// Five attributes ordered {1, 2, 3, 4, 3}, reference attribute 1 (group 2), on a cone of side
// 1000 with handles of 10.
class JudgmentDiagnosisTest : public ::testing::Test {
 protected:
  JudgmentDiagnosisTest()
      : context(test::makeContext(5)), judgments((setUp(), context.model), result) {
    judgments.CalcIniWeightRatios();
  }
  void setUp() {
    test::setOrder(result, {1, 2, 3, 4, 3});
    result.RefAtt = 1;
  }
  RegionHandles handlesFor(double lower, double upper) const {
    return {cone.handleForRatio(lower), cone.handleForRatio(upper)};
  }
  JudgmentDiagnosis::Result diagnose(const RegionHandles& h, int t = 2) const {
    return JudgmentDiagnosis::diagnose(cone, h, judgments, t, context.model);
  }
  // Whether the nearest interval, placed as the boxes would place it, is consistent.
  bool nearestIsConsistent(const JudgmentDiagnosis::Result& d, int t = 2) const {
    if (!d.nearestLower || !d.nearestUpper) return false;
    const auto r = JudgmentStatusCheck::check(cone, handlesFor(*d.nearestLower, *d.nearestUpper),
                                              judgments, t);
    return r.state == JudgmentState::Consistent;
  }

  WizardContext context;
  DirectResult result;
  WeightRatioJudgments judgments;
  PreferenceCone cone{1000.0F, 10.0F};
};

TEST_F(JudgmentDiagnosisTest, AConsistentJudgmentHasNothingToDiagnose) {
  const auto d = diagnose(handlesFor(0.5, 0.9));
  EXPECT_EQ(d.state, JudgmentState::Consistent);
  EXPECT_EQ(d.bound, Bound::None);
  EXPECT_TRUE(d.text.empty());
  EXPECT_FALSE(d.nearestLower.has_value());
}

TEST_F(JudgmentDiagnosisTest, AnUpperBoundAboveAMoreImportantJudgedAttributeIsNamed) {
  const auto d = diagnose(handlesFor(0.5, 1.3));
  EXPECT_EQ(d.state, JudgmentState::Inconsistent);
  EXPECT_EQ(d.bound, Bound::Upper);
  EXPECT_EQ(d.upperLimitAttribute, 1);
  EXPECT_EQ(d.lowerLimitAttribute, -1);
  ASSERT_TRUE(d.nearestLower && d.nearestUpper);
  EXPECT_EQ(*d.nearestLower, 0.5);
  EXPECT_EQ(*d.nearestUpper, 1.0);
  EXPECT_EQ(d.text,
            "Conflict: the upper bound 1.30 is above 1.00, the lower ratio of \"Att2\" (more "
            "important). Nearest consistent interval: 0.50 to 1.00.");
  EXPECT_TRUE(nearestIsConsistent(d));
}

TEST_F(JudgmentDiagnosisTest, ALowerBoundBelowALessImportantJudgedAttributeIsNamed) {
  judgments.RecordWeightRatios(3, 0.3, 0.4, {});
  const auto d = diagnose(handlesFor(0.35, 0.8));
  EXPECT_EQ(d.bound, Bound::Lower);
  EXPECT_EQ(d.lowerLimitAttribute, 3);
  EXPECT_EQ(d.text,
            "Conflict: the lower bound 0.35 is below 0.40, the upper ratio of \"Att4\" (less "
            "important). Nearest consistent interval: 0.40 to 0.80.");
  EXPECT_TRUE(nearestIsConsistent(d));
}

TEST_F(JudgmentDiagnosisTest, BothBoundsConflictingAreNamedAndTheIntervalPulledInside) {
  judgments.RecordWeightRatios(3, 0.3, 0.4, {});
  const auto d = diagnose(handlesFor(0.2, 1.5));
  EXPECT_EQ(d.bound, Bound::Both);
  EXPECT_EQ(*d.nearestLower, 0.4);
  EXPECT_EQ(*d.nearestUpper, 1.0);
  EXPECT_TRUE(nearestIsConsistent(d));
}

TEST_F(JudgmentDiagnosisTest, ALimitWithMoreThanTwoDecimalsIsMetByTheNextBoxValue) {
  judgments.RecordWeightRatios(3, 0.3, 1.0 / 3.0, {});
  const auto d = diagnose(handlesFor(0.3, 0.8));
  EXPECT_EQ(d.bound, Bound::Lower);
  EXPECT_EQ(*d.nearestLower, 0.34);
  EXPECT_NE(d.text.find("is below 0.3333,"), std::string::npos) << d.text;
  EXPECT_TRUE(nearestIsConsistent(d));
}

TEST_F(JudgmentDiagnosisTest, AHandleOutsideTheUsableAreaNamesItsBound) {
  // The first handle is too near the left edge; moved inside it stands for 1.00, above the
  // other handle's 0.50, so it is the upper bound's.
  const RegionHandles h{{5.0F, 995.0F}, cone.handleForRatio(0.5)};
  const auto d = diagnose(h);
  EXPECT_EQ(d.state, JudgmentState::Invalid);
  EXPECT_EQ(d.bound, Bound::Upper);
  EXPECT_EQ(d.text,
            "Conflict: the handle of the upper bound lies outside the usable area, which takes "
            "ratios from 0.02 to 70.00. Nearest consistent interval: 0.50 to 1.00.");
  EXPECT_TRUE(nearestIsConsistent(d));
}

TEST_F(JudgmentDiagnosisTest, LimitsThatCrossLeaveNoConsistentInterval) {
  // A less important attribute judged above the reference's ratio leaves target 2 no room.
  judgments.RecordWeightRatios(3, 1.2, 1.5, {});
  const auto d = diagnose(handlesFor(0.5, 0.9));
  EXPECT_EQ(d.bound, Bound::Lower);
  EXPECT_FALSE(d.nearestLower.has_value());
  EXPECT_NE(d.text.find("No interval is consistent: the judged attributes of the other groups "
                        "leave no room between 1.50 and 1.00."),
            std::string::npos)
      << d.text;
}

TEST_F(JudgmentDiagnosisTest, TypeableRatiosFollowTheConeAndTheHandleSize) {
  EXPECT_EQ(JudgmentDiagnosis::smallestTypeable(cone), 0.02);
  EXPECT_EQ(JudgmentDiagnosis::largestTypeable(cone), 70.0);
  const PreferenceCone small(200.0F, 8.0F);
  EXPECT_EQ(JudgmentDiagnosis::smallestTypeable(small), 0.06);
  EXPECT_EQ(JudgmentDiagnosis::largestTypeable(small), 17.5);
}

// Through the presenter, as a user types: the diagnosis appears while the lamp is lit and the
// nearest interval, typed in, is consistent.
class DiagnosisFlowTest : public DirectAPresenterTest {};

TEST_F(DiagnosisFlowTest, TypingTheNearestIntervalMakesTheJudgmentConsistent) {
  DirectAPresenter& p = load();
  place(0, 1);
  place(1, 2);
  place(2, 3);
  p.cmdNext_Click();
  p.cmdAttButtons_Click(1);
  p.cmdNext_Click();
  p.imgcmbTargetAtt_Click(2);
  EXPECT_TRUE(p.judgment().diagnosis().text.empty());
  p.txtWR_SetText(Box::Lower, "0.5");
  p.txtWR_SetText(Box::Upper, "1.5");
  p.txtWR_LostFocus(Box::Lower);
  p.txtWR_LostFocus(Box::Upper);
  ASSERT_EQ(p.lamps().state(), JudgmentState::Inconsistent);
  const auto d = p.judgment().diagnosis();
  EXPECT_EQ(d.bound, Bound::Upper);
  EXPECT_EQ(d.text,
            "Conflict: the upper bound 1.50 is above 1.00, the lower ratio of \"Att2\" (more "
            "important). Nearest consistent interval: 0.50 to 1.00.");
  p.txtWR_SetText(Box::Upper, "1.00");
  p.txtWR_LostFocus(Box::Upper);
  EXPECT_EQ(p.lamps().state(), JudgmentState::Consistent);
  EXPECT_TRUE(p.cmdEnter().enabled);
  EXPECT_TRUE(p.judgment().diagnosis().text.empty());
}

}  // namespace
}  // namespace tnw::direct
