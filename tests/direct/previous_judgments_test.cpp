#include "direct/core/previous_judgments.h"

#include "direct_test_models.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <cmath>
#include <limits>

namespace tnw::direct {
namespace {

WizardContext earlierResult(const std::vector<double>& weights, std::optional<double> ref) {
  WizardContext context = test::makeContext(static_cast<int>(weights.size()));
  context.model.PrevTNType = "MAVT_DIRECT";
  context.model.PrevRefAtt = ref;
  for (std::size_t i = 0; i < weights.size(); ++i) {
    context.model.PrevWeight[i] = weights[i];
    context.model.PrevWeightH[i] = weights[i];
    context.model.PrevWeightL[i] = weights[i];
  }
  return context;
}

TEST(PreviousJudgmentsTest, OnlyDirectAndTradeOffResultsAreResumed) {
  AttributeModel model;
  EXPECT_FALSE(PreviousJudgments::hasPreviousResult(model));
  model.PrevTNType = "MAVT_DIRECT";
  EXPECT_TRUE(PreviousJudgments::hasPreviousResult(model));
  model.PrevTNType = "MAVT_TRADEOFFS";
  EXPECT_TRUE(PreviousJudgments::hasPreviousResult(model));
  model.PrevTNType = "mavt_direct";
  EXPECT_FALSE(PreviousJudgments::hasPreviousResult(model));
}

TEST(PreviousJudgmentsTest, MiddleRatiosOnePointFiveOneOnePointFiveHalfGiveThreeGroups) {
  WizardContext context = earlierResult({1.5, 1, 1.5, 0.5}, 1.0);
  DirectResult result;
  WeightRatioJudgments judgments(context.model, result);
  PreviousJudgments::Order order;
  ASSERT_EQ(PreviousJudgments::GetPreviousOrder(context.model, result, judgments, order),
            PreviousJudgments::Outcome::Resumed);
  EXPECT_EQ(order.AttGroup, (std::vector<std::int16_t>{1, 2, 1, 3}));
  EXPECT_EQ(order.GroupCount, 3);
  EXPECT_EQ(order.GroupSize[1], 2);
  EXPECT_EQ(order.GroupSize[2], 1);
  EXPECT_EQ(order.GroupSize[3], 1);
  EXPECT_EQ(result.RefAtt, 1);
  EXPECT_TRUE(judgments.isComplete());
}

TEST(PreviousJudgmentsTest, AZeroMiddleRatioJoinsTheLastGroupAndANegativeOneIsNeverPlaced) {
  const auto order = PreviousJudgments::orderFromMiddleRatios({2, 0, -0.5, 1, 0});
  EXPECT_EQ(order.AttGroup, (std::vector<std::int16_t>{1, 3, 0, 2, 3}));
  EXPECT_EQ(order.GroupCount, 3);
  EXPECT_EQ(order.GroupSize[3], 2);
}

TEST(PreviousJudgmentsTest, RatiosDifferingInTheLastBitLandInDifferentGroups) {
  const double a = 0.1 + 0.2;
  const auto order = PreviousJudgments::orderFromMiddleRatios({a, 0.3});
  EXPECT_NE(a, 0.3);
  EXPECT_EQ(order.GroupCount, 2);
  EXPECT_NE(order.AttGroup[0], order.AttGroup[1]);
}

TEST(PreviousJudgmentsTest, WithoutAStoredReferenceTheLastAttributeNearerThanTheFirstWins) {
  WizardContext context = earlierResult({0.32, 0.2, 0.24, 0.1, 0.14}, std::nullopt);
  DirectResult result;
  EXPECT_EQ(PreviousJudgments::chooseReference(context.model, 5), 4);
  WeightRatioJudgments judgments(context.model, result);
  ASSERT_EQ(PreviousJudgments::GetPreviousWeightRatios(context.model, result, judgments),
            PreviousJudgments::Outcome::Resumed);
  EXPECT_EQ(result.RefAtt, 4);
  const std::vector<double> expected{2.2857, 1.4286, 1.7143, 0.7143, 1};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_NEAR(result.LowerWeights[i], expected[i], 5e-5) << i;
    EXPECT_NEAR(result.CloseWeights[i], expected[i], 5e-5) << i;
    EXPECT_NEAR(result.UpperWeights[i], expected[i], 5e-5) << i;
  }
  EXPECT_EQ(result.CloseWeights[4], 1.0);
}

TEST(PreviousJudgmentsTest, AStoredReferenceIsUsedAsItStands) {
  WizardContext context = earlierResult({0.32, 0.2, 0.24, 0.1, 0.14}, 0.0);
  DirectResult result;
  WeightRatioJudgments judgments(context.model, result);
  ASSERT_EQ(PreviousJudgments::GetPreviousWeightRatios(context.model, result, judgments),
            PreviousJudgments::Outcome::Resumed);
  EXPECT_EQ(result.RefAtt, 0);
  EXPECT_DOUBLE_EQ(result.CloseWeights[3], 0.1 / 0.32);
  EXPECT_EQ(result.CloseWeights[0], 1.0);
}

TEST(PreviousJudgmentsTest, EachBoundIsDividedByTheReferencesOwnBound) {
  WizardContext context = earlierResult({0.5, 0.25}, 1.0);
  DirectResult result;
  context.model.PrevWeightL[1] = 0.2;
  context.model.PrevWeightH[1] = 0.4;
  context.model.PrevWeightL[0] = 0.4;
  context.model.PrevWeightH[0] = 0.6;
  WeightRatioJudgments judgments(context.model, result);
  ASSERT_EQ(PreviousJudgments::GetPreviousWeightRatios(context.model, result, judgments),
            PreviousJudgments::Outcome::Resumed);
  EXPECT_DOUBLE_EQ(result.LowerWeights[0], 2.0);
  EXPECT_DOUBLE_EQ(result.CloseWeights[0], 2.0);
  EXPECT_DOUBLE_EQ(result.UpperWeights[0], 1.5);
  EXPECT_EQ(result.LowerWeights[1], 1.0);
  EXPECT_EQ(result.UpperWeights[1], 1.0);
}

TEST(PreviousJudgmentsTest, AZeroEarlierWeightOfTheReferenceChangesNothing) {
  WizardContext context = earlierResult({0.5, 0.0, 0.5}, 1.0);
  DirectResult result;
  test::setOrder(result, {1, 2, 3});
  WeightRatioJudgments judgments(context.model, result);
  judgments.CalcIniWeightRatios();
  const auto before = result.LowerWeights;
  PreviousJudgments::Order order;
  EXPECT_EQ(PreviousJudgments::GetPreviousOrder(context.model, result, judgments, order),
            PreviousJudgments::Outcome::ZeroReferenceWeight);
  EXPECT_EQ(result.LowerWeights, before);
  EXPECT_EQ(result.RefAtt, 0);
  EXPECT_FALSE(judgments.isComplete());
  EXPECT_EQ(order.GroupCount, 0);
  EXPECT_FALSE(PreviousJudgments::message(PreviousJudgments::Outcome::ZeroReferenceWeight).empty());
}

TEST(PreviousJudgmentsTest, AStoredReferenceOutsideTheAttributesIsRefused) {
  WizardContext context = earlierResult({0.5, 0.5}, 2.0);
  DirectResult result;
  WeightRatioJudgments judgments(context.model, result);
  EXPECT_EQ(PreviousJudgments::GetPreviousWeightRatios(context.model, result, judgments),
            PreviousJudgments::Outcome::BadReference);
  context.model.PrevRefAtt = -1.0;
  EXPECT_EQ(PreviousJudgments::GetPreviousWeightRatios(context.model, result, judgments),
            PreviousJudgments::Outcome::BadReference);
  context.model.PrevRefAtt = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(PreviousJudgments::GetPreviousWeightRatios(context.model, result, judgments),
            PreviousJudgments::Outcome::BadReference);
}

TEST(PreviousJudgmentsTest, NonFiniteEarlierWeightsAreRefused) {
  WizardContext context = earlierResult({0.5, 0.5}, 0.0);
  DirectResult result;
  context.model.PrevWeight[1] = std::numeric_limits<double>::infinity();
  WeightRatioJudgments judgments(context.model, result);
  EXPECT_EQ(PreviousJudgments::GetPreviousWeightRatios(context.model, result, judgments),
            PreviousJudgments::Outcome::NotFinite);
  EXPECT_FALSE(judgments.judged(0));
}

}  // namespace
}  // namespace tnw::direct
