#include "direct/core/preference_cone.h"

#include "common/core/number_format.h"

// Std
#include <cmath>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::direct {
namespace {

constexpr float kSide = 1000.0F;

TEST(PreferenceConeTest, RatioOnePlacesTheHandleOnTheDiagonalByEitherRule) {
  const PreferenceCone cone(kSide, 10);
  const HandlePoint p = cone.handleForRatio(1.0);
  EXPECT_FLOAT_EQ(p.x, 700.0F);
  EXPECT_FLOAT_EQ(p.y, 300.0F);
  const HandlePoint below = cone.handleForRatio(0.99999999);
  EXPECT_NEAR(below.x, 700.0F, 1e-3);
  EXPECT_NEAR(below.y, 300.0F, 1e-3);
}

TEST(PreferenceConeTest, HalfAndTwoGiveTheirPoints) {
  const PreferenceCone cone(kSide, 10);
  const HandlePoint half = cone.handleForRatio(0.5);
  EXPECT_FLOAT_EQ(half.x, 700.0F);
  EXPECT_FLOAT_EQ(half.y, 650.0F);
  const HandlePoint two = cone.handleForRatio(2.0);
  EXPECT_FLOAT_EQ(two.x, 350.0F);
  EXPECT_FLOAT_EQ(two.y, 300.0F);
}

TEST(PreferenceConeTest, TheRatioReadBackFromAHandleIsTheRatioAgain) {
  const PreferenceCone cone(kSide, 10);
  for (double r : {0.1, 0.25, 0.5, 0.8, 1.0, 1.2, 2.0, 5.0, 20.0}) {
    EXPECT_NEAR(cone.ratioFromHandle(cone.handleForRatio(r)), r, r * 1e-6) << r;
  }
}

TEST(PreferenceConeTest, EqualRatiosMakeTheHandlesCoincideAndTheConeALine) {
  const PreferenceCone cone(kSide, 10);
  const HandlePoint a = cone.handleForRatio(0.6);
  const HandlePoint b = cone.handleForRatio(0.6);
  EXPECT_EQ(a, b);
  const auto tri = cone.triangle(a, b);
  EXPECT_EQ(tri[1], tri[2]);
  EXPECT_EQ(tri[0], (IntPoint{0, 998}));
  EXPECT_EQ(tri[1], (IntPoint{700, 580}));
}

TEST(PreferenceConeTest, TypingPointThreeThreeThreeShowsPointThreeThreeAfterTheCheck) {
  const PreferenceCone cone(kSide, 10);
  const float r = cone.ratioFromHandle(cone.handleForRatio(0.333));
  EXPECT_EQ(formatNumber(r, "0.00"), "0.33");
}

TEST(PreferenceConeTest, TheTriangleRoundsToWholePixelsTiesToEven) {
  const PreferenceCone cone(101, 10);
  const auto tri = cone.triangle({2.5F, 3.5F}, {70.7F, 30.3F});
  EXPECT_EQ(tri[0], (IntPoint{0, 99}));
  EXPECT_EQ(tri[1], (IntPoint{2, 4}));
  EXPECT_EQ(tri[2], (IntPoint{71, 30}));
}

TEST(PreferenceConeTest, TheHandleControlIsCentredOnItsPoint) {
  const PreferenceCone cone(kSide, 8);
  EXPECT_EQ(cone.handleTopLeft({700, 300}), (IntPoint{696, 296}));
}

TEST(PreferenceConeTest, AHandleNearAnEdgeIsDrawnWhollyInsideTheArea) {
  const PreferenceCone cone(kSide, 10);
  // A ratio of 500 puts the point 1.4 from the left edge: the control starts at the edge.
  const HandlePoint steep = cone.handleForRatio(500.0);
  EXPECT_EQ(cone.handleTopLeft(steep), (IntPoint{0, 295}));
  // A ratio of 0.001 puts it 0.7 above the bottom edge: the control ends at the edge.
  EXPECT_EQ(cone.handleTopLeft(cone.handleForRatio(0.001)), (IntPoint{695, 990}));
  for (const double r : {1e-6, 0.001, 0.01, 0.5, 1.0, 2.0, 100.0, 500.0, 1e6}) {
    const IntPoint at = cone.handleTopLeft(cone.handleForRatio(r));
    EXPECT_GE(at.x, 0) << r;
    EXPECT_GE(at.y, 0) << r;
    EXPECT_LE(at.x + 10, 1000) << r;
    EXPECT_LE(at.y + 10, 1000) << r;
  }
  // The point itself, and so the ratio it stands for, is not moved.
  EXPECT_NEAR(cone.ratioFromHandle(steep), 500.0F, 0.01F);
}

TEST(PreferenceConeTest, HandlesNearTheCornerOrOutsideTheAreaAreInvalid) {
  const PreferenceCone cone(kSide, 10);
  EXPECT_TRUE(cone.validHandle({700, 300}));
  EXPECT_TRUE(cone.validHandle({10, 990}));
  EXPECT_FALSE(cone.validHandle({9, 300}));
  EXPECT_FALSE(cone.validHandle({700, 991}));
  EXPECT_FALSE(cone.validHandle({1001, 300}));
  EXPECT_FALSE(cone.validHandle({700, -1}));
}

TEST(PreferenceConeTest, RatiosThatAreNotPositiveLieOnTheBottomEdge) {
  const PreferenceCone cone(kSide, 10);
  EXPECT_FALSE(cone.validHandle(cone.handleForRatio(0.0)));
  EXPECT_FALSE(cone.validHandle(cone.handleForRatio(-1.0)));
  EXPECT_FALSE(cone.validHandle(cone.handleForRatio(std::nan(""))));
  EXPECT_EQ(cone.ratioFromHandle({0, 10}), 0.0F);
}

TEST(PreferenceConeTest, DraggingIsKeptInsideTheArea) {
  const PreferenceCone cone(kSide, 10);
  EXPECT_EQ(cone.clampToArea({-5, 1200}), (HandlePoint{0, 1000}));
  EXPECT_EQ(cone.clampToArea({500, 20}), (HandlePoint{500, 20}));
}

}  // namespace
}  // namespace tnw::direct
