#include "model/value_function.h"

// Std
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

using Points = std::vector<std::pair<double, double>>;

// A model whose attribute att has the given value-function points.
AttributeModel modelWith(int att, const Points& points) {
  AttributeModel m;
  m.NumAtt = static_cast<std::int16_t>(att + 1);
  m.AttName[static_cast<std::size_t>(att)] = "Price";
  m.NumPoints[static_cast<std::size_t>(att)] = static_cast<std::int16_t>(points.size());
  for (std::size_t k = 0; k < points.size() && k < kMaxPoints; ++k) {
    m.PointScore[static_cast<std::size_t>(att)][k] = points[k].first;
    m.PointValue[static_cast<std::size_t>(att)][k] = points[k].second;
  }
  return m;
}

Points reversed(Points p) { return Points(p.rbegin(), p.rend()); }

std::int64_t ticksOf(const AttributeModel& m, int att, double score) {
  const AttValueResult r = SingleAttValue(m, att, score);
  EXPECT_EQ(r.failure, ValueFailure::None);
  return r.value ? r.value->ticks() : -1;
}

const Points kFourPoints = {{0, 0}, {1, 0.5}, {2, 0.6}, {3, 1.0}};

struct SplineCase {
  double score;
  std::int64_t ticks;
};

class AkimaTableTest : public ::testing::TestWithParam<SplineCase> {};

// Values worked out by hand from Akima's rule for the points of kFourPoints.
TEST_P(AkimaTableTest, InterpolatesByAkimasRuleInRisingAndFallingOrder) {
  EXPECT_EQ(ticksOf(modelWith(0, kFourPoints), 0, GetParam().score), GetParam().ticks);
  EXPECT_EQ(ticksOf(modelWith(3, reversed(kFourPoints)), 3, GetParam().score), GetParam().ticks);
}

INSTANTIATE_TEST_SUITE_P(FourPoints, AkimaTableTest,
                         ::testing::Values(SplineCase{0.5, 3036}, SplineCase{1.25, 5411},
                                           SplineCase{1.5, 5500}, SplineCase{0, 0},
                                           SplineCase{1, 5000}, SplineCase{2, 6000},
                                           SplineCase{3, 10000}));

TEST(ValueFunctionTest, EqualNeighbourSlopesTakeTheMeanAndTiesRoundToEven) {
  // Interval 2 has w1 = w2 = 0 at its left point, so the slope there is the mean 0.25; the
  // cubic gives exactly 0.21875 at 2.5, which rounds to the even 0.2188.
  const AttributeModel m = modelWith(0, {{0, 0}, {1, 0}, {2, 0}, {3, 0.5}, {4, 1}});
  const auto R = gnspl(m.PointScore[0], m.PointValue[0], 5, true, 2.5);
  ASSERT_TRUE(R.has_value());
  EXPECT_DOUBLE_EQ(*(*R)[1], 0.25);
  EXPECT_DOUBLE_EQ(*(*R)[4], 0.21875);
  EXPECT_EQ(ticksOf(m, 0, 2.5), 2188);
}

TEST(ValueFunctionTest, SplineResultAboveOneReturnsExactlyOne) {
  const AttributeModel m = modelWith(0, {{0, 0}, {5, 0.5}, {10, 1}});
  EXPECT_EQ(ticksOf(m, 0, 20), 10000);
  EXPECT_EQ(SingleAttValue(m, 0, 20).value, Currency::fromTicks(10000));
}

TEST(ValueFunctionTest, SplineResultBelowZeroReturnsExactlyZero) {
  const AttributeModel m = modelWith(0, {{0, 0}, {5, 0.5}, {10, 1}});
  EXPECT_EQ(ticksOf(m, 0, -10), 0);
  const AttributeModel falling = modelWith(0, {{0, 1}, {5, 0.5}, {10, 0}});
  EXPECT_EQ(ticksOf(falling, 0, 30), 0);
}

TEST(ValueFunctionTest, ResultAlwaysHasAtMostFourDecimals) {
  const AttributeModel m =
      modelWith(0, {{10, 0}, {13, 0.21}, {17, 0.33}, {20, 0.62}, {26, 0.8}, {30, 1}});
  for (double score = 8.0; score <= 32.0; score += 0.37) {
    const auto R = gnspl(m.PointScore[0], m.PointValue[0], 6, true, score);
    ASSERT_TRUE(R.has_value());
    const double raw = std::clamp(*(*R)[4], 0.0, 1.0);
    const AttValueResult r = SingleAttValue(m, 0, score);
    ASSERT_TRUE(r.value.has_value());
    EXPECT_EQ(r.value->ticks(), static_cast<std::int64_t>(std::nearbyint(raw * 10000.0))) << score;
    EXPECT_DOUBLE_EQ(r.value->toDouble() * 10000.0, std::round(r.value->toDouble() * 10000.0));
  }
}

TEST(ValueFunctionTest, EvaluatingAtAPointsOwnScoreReturnsThatPointsValue) {
  const Points points = {{100, 1},      {120, 0.9},  {135, 0.77}, {150, 0.61},
                         {160, 0.5},    {175, 0.4},  {190, 0.3},  {205, 0.18},
                         {220, 0.1234}, {240, 0.05}, {260, 0}};
  for (const Points& p : {points, reversed(points)}) {
    const AttributeModel m = modelWith(7, p);
    for (const auto& [score, value] : p) {
      EXPECT_EQ(ticksOf(m, 7, score), static_cast<std::int64_t>(std::nearbyint(value * 10000)))
          << score;
    }
  }
}

TEST(ValueFunctionTest, PointsOnALineGiveTheLine) {
  Points line;
  for (int k = 0; k <= 10; ++k) line.push_back({k * 3.0, k / 10.0});
  const AttributeModel m = modelWith(0, line);
  EXPECT_EQ(ticksOf(m, 0, 11.1), 3700);
  EXPECT_EQ(ticksOf(m, 0, 0.3), 100);
  EXPECT_EQ(ticksOf(m, 0, 29.7), 9900);
}

TEST(ValueFunctionTest, ScoresBeyondTheEndsUseTheFirstOrLastInterval) {
  const Points p = {{0, 0}, {2, 0.3}, {5, 0.45}, {7, 0.8}, {10, 1}};
  for (const Points& order : {p, reversed(p)}) {
    const AttributeModel m = modelWith(0, order);
    const std::size_t first = order.front().first < order.back().first ? 0 : 3;
    const double lowInside = first == 0 ? 1.0 : 8.5;
    const double lowOutside = first == 0 ? -3.0 : 12.0;
    const double highInside = first == 0 ? 8.5 : 1.0;
    const double highOutside = first == 0 ? 14.0 : -2.0;
    for (auto [inside, outside] :
         {std::pair{lowInside, lowOutside}, std::pair{highInside, highOutside}}) {
      const auto a = gnspl(m.PointScore[0], m.PointValue[0], 5, true, inside);
      const auto b = gnspl(m.PointScore[0], m.PointValue[0], 5, true, outside);
      ASSERT_TRUE(a && b);
      // The same cubic, written about the same point, serves both scores.
      for (int i = 0; i < 4; ++i) EXPECT_DOUBLE_EQ(*(*a)[i], *(*b)[i]);
    }
  }
}

TEST(ValueFunctionTest, OnePointGivesItsValueAtEveryScore) {
  const AttributeModel m = modelWith(0, {{5, 0.42}});
  EXPECT_EQ(ticksOf(m, 0, -100), 4200);
  EXPECT_EQ(ticksOf(m, 0, 5), 4200);
  EXPECT_EQ(ticksOf(m, 0, 1e9), 4200);
}

TEST(ValueFunctionTest, TwoPointsInterpolateLinearly) {
  const AttributeModel m = modelWith(0, {{10, 1}, {20, 0}});
  EXPECT_EQ(ticksOf(m, 0, 12.5), 7500);
  EXPECT_EQ(ticksOf(m, 0, 10), 10000);
  EXPECT_EQ(ticksOf(m, 0, 20), 0);
  EXPECT_EQ(ticksOf(m, 0, 25), 0);
}

TEST(ValueFunctionTest, ThreePointsUseOnlyTheTwoRealSlopesAndTheirExtrapolations) {
  // Slopes 0.1 and 0.05; extrapolated 0.15, 0.2 before and 0, -0.05 after.
  const AttributeModel m = modelWith(0, {{0, 0}, {5, 0.5}, {10, 0.75}});
  const auto R = gnspl(m.PointScore[0], m.PointValue[0], 3, true, 7.5);
  ASSERT_TRUE(R.has_value());
  // Left point of interval 1: w1 = |0 - 0.05|, w2 = |0.1 - 0.15|, so the mean of 0.1 and 0.05.
  EXPECT_DOUBLE_EQ(*(*R)[1], 0.075);
  // Right point: the mean of 0.05 and 0, so the cubic is 0.5 + 0.075 d - 0.005 d^2 = 0.65625.
  EXPECT_NEAR(*(*R)[4], 0.65625, 1e-12);
  EXPECT_EQ(ticksOf(m, 0, 7.5), 6562);
}

TEST(ValueFunctionTest, EmptyPointVariantsCountAsZero) {
  AttributeModel m = modelWith(0, {{0, 0}, {10, 1}});
  m.PointScore[0][0].reset();
  m.PointValue[0][0].reset();
  EXPECT_EQ(ticksOf(m, 0, 5), 5000);
}

TEST(ValueFunctionTest, AttributeOutsideTheModelIsAFailureNotACrash) {
  const AttributeModel m = modelWith(0, {{0, 0}, {1, 1}});
  for (int att : {-1, 31, 32767, -32768}) {
    const AttValueResult r = SingleAttValue(m, att, 0.5);
    EXPECT_FALSE(r.value.has_value());
    EXPECT_EQ(r.failure, ValueFailure::AttributeOutOfRange);
  }
  EXPECT_EQ(valueFailureMessage(m, 31, ValueFailure::AttributeOutOfRange),
            "Attribute 31 does not exist in the model (attributes are numbered from 0 to 30).");
}

TEST(ValueFunctionTest, MoreThanElevenPointsIsAFailureNotACrash) {
  AttributeModel m = modelWith(0, {{0, 0}, {1, 1}});
  for (std::int16_t n : {12, 300, 32767}) {
    m.NumPoints[0] = n;
    EXPECT_EQ(SingleAttValue(m, 0, 0.5).failure, ValueFailure::TooManyPoints);
  }
  EXPECT_EQ(valueFailureMessage(m, 0, ValueFailure::TooManyPoints),
            "The value function of the attribute \"Price\" has more than 11 points.");
}

TEST(ValueFunctionTest, NoPointsIsAFailureNotACrash) {
  AttributeModel m = modelWith(0, {{0, 0}, {1, 1}});
  for (std::int16_t n : {0, -1, -32768}) {
    m.NumPoints[0] = n;
    EXPECT_EQ(SingleAttValue(m, 0, 0.5).failure, ValueFailure::NoPoints);
  }
  EXPECT_EQ(valueFailureMessage(m, 0, ValueFailure::NoPoints),
            "The value function of the attribute \"Price\" has no points.");
}

TEST(ValueFunctionTest, PointsSharingAScoreAreAFailureNotACrash) {
  EXPECT_EQ(SingleAttValue(modelWith(0, {{1, 0}, {1, 1}}), 0, 1).failure,
            ValueFailure::NotComputable);
  EXPECT_EQ(SingleAttValue(modelWith(0, {{0, 0}, {4, 0.4}, {4, 0.6}, {9, 1}}), 0, 2).failure,
            ValueFailure::NotComputable);
}

TEST(ValueFunctionTest, OverflowAndNonFiniteInputsAreFailuresNotNaN) {
  const AttributeModel m = modelWith(0, {{0, 0}, {5, 0.5}, {10, 1}});
  EXPECT_EQ(SingleAttValue(m, 0, 1e300).failure, ValueFailure::NotComputable);
  EXPECT_EQ(SingleAttValue(m, 0, std::numeric_limits<double>::quiet_NaN()).failure,
            ValueFailure::NotComputable);
  AttributeModel bad = m;
  bad.PointValue[0][1] = std::numeric_limits<double>::infinity();
  EXPECT_EQ(SingleAttValue(bad, 0, 2).failure, ValueFailure::NotComputable);
}

TEST(GnsplTest, FewerThanOnePointLeavesEveryResultEmpty) {
  const std::vector<std::optional<double>> x = {1.0};
  for (int n : {0, -5}) {
    const auto R = gnspl(x, x, n, true, 1.0);
    ASSERT_TRUE(R.has_value());
    for (const auto& r : *R) EXPECT_FALSE(r.has_value());
  }
}

TEST(GnsplTest, NeverReadsPastItsArrays) {
  const std::vector<std::optional<double>> x = {0.0, 10.0};
  const std::vector<std::optional<double>> y = {0.0, 1.0};
  const auto R = gnspl(x, y, 11, false, 5.0);
  ASSERT_TRUE(R.has_value());
  EXPECT_DOUBLE_EQ(*(*R)[4], 0.5);
  EXPECT_FALSE((*R)[0].has_value());
}

TEST(GnsplTest, ChangesNoModelData) {
  const AttributeModel m = modelWith(2, kFourPoints);
  const AttributeModel copy = m;
  SingleAttValue(m, 2, 1.7);
  EXPECT_EQ(m.PointScore, copy.PointScore);
  EXPECT_EQ(m.PointValue, copy.PointValue);
  EXPECT_EQ(m.NumPoints, copy.NumPoints);
}

}  // namespace
}  // namespace tnw
