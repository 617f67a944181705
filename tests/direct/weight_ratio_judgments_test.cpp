#include "direct/core/weight_ratio_judgments.h"

#include "direct_test_models.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::direct {
namespace {

TEST(WeightRatioJudgmentsTest, InitialIntervalsFollowTheOrder) {
  WizardContext context = test::makeContext(5);
  DirectResult result;
  test::setOrder(result, {1, 2, 2, 3, 1});
  result.RefAtt = 1;
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  EXPECT_EQ(result.LowerWeights, (std::vector<double>{1.2, 1, 1, 0.8, 1.2}));
  EXPECT_EQ(result.CloseWeights, (std::vector<double>{1.2, 1, 1, 0.8, 1.2}));
  EXPECT_EQ(result.UpperWeights, (std::vector<double>{1.2, 1, 1, 0.8, 1.2}));
  EXPECT_EQ(j.judgedFlags(), (std::vector<bool>{false, true, true, false, false}));
  EXPECT_FALSE(j.isComplete());
}

TEST(WeightRatioJudgmentsTest, DifferentBoundsGiveTheMiddleAsMiddleRatio) {
  WizardContext context = test::makeContext(2);
  DirectResult result;
  test::setOrder(result, {1, 2});
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  j.RecordWeightRatios(1, 0.5, 0.7, {});
  EXPECT_DOUBLE_EQ(j.lower(1), 0.5);
  EXPECT_DOUBLE_EQ(j.middle(1), 0.6);
  EXPECT_DOUBLE_EQ(j.upper(1), 0.7);
  EXPECT_TRUE(j.isComplete());
}

TEST(WeightRatioJudgmentsTest, LowerEqualToUpperRecordsAPointInterval) {
  WizardContext context = test::makeContext(2);
  DirectResult result;
  test::setOrder(result, {1, 2});
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  j.RecordWeightRatios(1, 0.4, 0.4, {});
  EXPECT_EQ(j.lower(1), 0.4);
  EXPECT_EQ(j.middle(1), 0.4);
  EXPECT_EQ(j.upper(1), 0.4);
  EXPECT_TRUE(j.judged(1));
}

TEST(WeightRatioJudgmentsTest, ThreeGroupsTiesTakeTheIntervalAndUpwardStopsAtTheReferenceGroup) {
  WizardContext context = test::makeContext(6);
  DirectResult result;
  test::setOrder(result, {1, 2, 3, 3, 2, 3});
  result.RefAtt = 1;
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  const RegionHandles h{{10, 20}, {30, 40}};
  const std::vector<int> ties = j.RecordWeightRatios(2, 0.5, 0.7, h);
  EXPECT_EQ(ties, (std::vector<int>{3, 5}));
  for (int k : {2, 3, 5}) {
    EXPECT_TRUE(j.judged(k)) << k;
    EXPECT_DOUBLE_EQ(j.lower(k), 0.5) << k;
    EXPECT_DOUBLE_EQ(j.middle(k), 0.6) << k;
    EXPECT_DOUBLE_EQ(j.upper(k), 0.7) << k;
    ASSERT_NE(j.handles(k), nullptr);
    EXPECT_EQ(*j.handles(k), h);
  }
  EXPECT_EQ(j.lower(0), 1.2);
  EXPECT_EQ(j.upper(0), 1.2);
  EXPECT_FALSE(j.judged(0));
  EXPECT_EQ(j.handles(0), nullptr);
}

TEST(WeightRatioJudgmentsTest, FourGroupsDownwardPropagationCollapsesLessImportantIntervals) {
  WizardContext context = test::makeContext(6);
  DirectResult result;
  test::setOrder(result, {1, 2, 3, 4, 3, 2});
  result.RefAtt = 0;
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  j.RecordWeightRatios(1, 0.5, 0.7, {});
  for (int k : {2, 3, 4}) {
    EXPECT_DOUBLE_EQ(j.lower(k), 0.5) << k;
    EXPECT_DOUBLE_EQ(j.middle(k), 0.5) << k;
    EXPECT_DOUBLE_EQ(j.upper(k), 0.5) << k;
    EXPECT_FALSE(j.judged(k)) << k;
  }
  EXPECT_TRUE(j.judged(5));
  EXPECT_EQ(j.lower(0), 1.0);
}

TEST(WeightRatioJudgmentsTest, FourGroupsDownwardPropagationStopsAtTheFirstJudgedAttribute) {
  WizardContext context = test::makeContext(5);
  DirectResult result;
  test::setOrder(result, {1, 2, 3, 4, 3});
  result.RefAtt = 0;
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  j.RecordWeightRatios(2, 0.6, 0.7, {});  // group 3 with its tie 4
  EXPECT_DOUBLE_EQ(j.upper(3), 0.6);      // group 4 pushed below 0.6
  EXPECT_DOUBLE_EQ(j.lower(3), 0.6);
  j.RecordWeightRatios(1, 0.5, 0.9, {});  // group 2: group 3 is judged, group 4 left alone
  EXPECT_DOUBLE_EQ(j.lower(2), 0.6);
  EXPECT_DOUBLE_EQ(j.upper(2), 0.7);
  EXPECT_DOUBLE_EQ(j.upper(3), 0.6);
}

TEST(WeightRatioJudgmentsTest, UpwardPropagationPushesMoreImportantAttributesAbove) {
  WizardContext context = test::makeContext(4);
  DirectResult result;
  test::setOrder(result, {1, 2, 3, 4});
  result.RefAtt = 3;
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  j.RecordWeightRatios(2, 1.1, 1.5, {});
  for (int k : {0, 1}) {  // 1.2 raised to 1.5: interval collapses at 1.5
    EXPECT_DOUBLE_EQ(j.lower(k), 1.5) << k;
    EXPECT_DOUBLE_EQ(j.middle(k), 1.5) << k;
    EXPECT_DOUBLE_EQ(j.upper(k), 1.5) << k;
  }
}

TEST(WeightRatioJudgmentsTest, UpwardPropagationResetsAPassedMiddle) {
  WizardContext context = test::makeContext(3);
  DirectResult result;
  test::setOrder(result, {1, 2, 3});
  result.RefAtt = 2;
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  result.LowerWeights[0] = 1.0;
  result.CloseWeights[0] = 1.5;
  result.UpperWeights[0] = 4.0;
  j.RecordWeightRatios(1, 1.2, 2.0, {});
  EXPECT_DOUBLE_EQ(j.lower(0), 2.0);
  EXPECT_DOUBLE_EQ(j.middle(0), 3.0);
  EXPECT_DOUBLE_EQ(j.upper(0), 4.0);
}

TEST(WeightRatioJudgmentsTest, DownwardPropagationResetsAMiddleAboveTheNewUpper) {
  WizardContext context = test::makeContext(3);
  DirectResult result;
  test::setOrder(result, {1, 2, 3});
  result.RefAtt = 0;
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  result.LowerWeights[2] = 0.1;
  result.CloseWeights[2] = 0.7;
  result.UpperWeights[2] = 0.8;
  j.RecordWeightRatios(1, 0.5, 0.9, {});
  EXPECT_DOUBLE_EQ(j.upper(2), 0.5);
  EXPECT_DOUBLE_EQ(j.middle(2), 0.3);
  EXPECT_DOUBLE_EQ(j.lower(2), 0.1);
}

TEST(WeightRatioJudgmentsTest, RestartClearsEveryJudgmentAndSetsTheInitialIntervals) {
  WizardContext context = test::makeContext(3);
  DirectResult result;
  test::setOrder(result, {1, 2, 3});
  result.RefAtt = 1;
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  j.RecordWeightRatios(0, 2, 3, {});
  j.RecordWeightRatios(2, 0.2, 0.3, {});
  ASSERT_TRUE(j.isComplete());
  j.ReStartJudgments();
  EXPECT_EQ(j.judgedFlags(), (std::vector<bool>{false, true, false}));
  EXPECT_EQ(result.LowerWeights, (std::vector<double>{1.2, 1, 0.8}));
  EXPECT_EQ(result.UpperWeights, (std::vector<double>{1.2, 1, 0.8}));
}

TEST(WeightRatioJudgmentsTest, RecordingOutsideTheAttributesDoesNothing) {
  WizardContext context = test::makeContext(2);
  DirectResult result;
  test::setOrder(result, {1, 2});
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  EXPECT_TRUE(j.RecordWeightRatios(2, 1, 1, {}).empty());
  EXPECT_TRUE(j.RecordWeightRatios(-1, 1, 1, {}).empty());
  EXPECT_EQ(j.judgedCount(), 1);
}

}  // namespace
}  // namespace tnw::direct
