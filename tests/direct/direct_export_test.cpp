#include "direct/core/direct_export.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <limits>

namespace tnw::direct {
namespace {

TEST(DirectExportTest, EqualBoundsExportTheBoundsDividedByTheirSum) {
  DirectExport::Weights w;
  ASSERT_EQ(DirectExport::compute({1, 2, 1}, {1, 2, 1}, 3, w), DirectExport::Outcome::Exported);
  EXPECT_EQ(w.Weights, (std::vector<double>{0.25, 0.5, 0.25}));
  EXPECT_EQ(w.WeightsL, w.Weights);
  EXPECT_EQ(w.WeightsH, w.Weights);
}

TEST(DirectExportTest, LowerOneOneUpperTwoTwoExportAQuarterOneAndFiveEighths) {
  DirectExport::Weights w;
  ASSERT_EQ(DirectExport::compute({1, 1}, {2, 2}, 2, w), DirectExport::Outcome::Exported);
  EXPECT_EQ(w.WeightsL, (std::vector<double>{0.25, 0.25}));
  EXPECT_EQ(w.WeightsH, (std::vector<double>{1, 1}));
  EXPECT_EQ(w.Weights, (std::vector<double>{0.625, 0.625}));
}

TEST(DirectExportTest, EachBoundIsDividedByTheSumOfTheOppositeBounds) {
  DirectExport::Weights w;
  ASSERT_EQ(DirectExport::compute({1, 0.5, 1}, {1, 1, 2}, 3, w), DirectExport::Outcome::Exported);
  EXPECT_DOUBLE_EQ(w.WeightsL[1], 0.5 / 4.0);
  EXPECT_DOUBLE_EQ(w.WeightsH[2], 2.0 / 2.5);
  EXPECT_DOUBLE_EQ(w.Weights[1], (0.5 / 4.0 + 1.0 / 2.5) / 2.0);
}

TEST(DirectExportTest, AZeroSumExportsNothingAndSaysWhy) {
  DirectExport::Weights w;
  EXPECT_EQ(DirectExport::compute({1, -1}, {1, 1}, 2, w), DirectExport::Outcome::ZeroSum);
  EXPECT_TRUE(w.Weights.empty());
  EXPECT_TRUE(w.WeightsH.empty());
  EXPECT_TRUE(w.WeightsL.empty());
  EXPECT_FALSE(DirectExport::message(DirectExport::Outcome::ZeroSum).empty());
}

TEST(DirectExportTest, WeightsThatAreNotFiniteAreNeverHandedOn) {
  DirectExport::Weights w;
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(DirectExport::compute({nan, 1}, {1, 1}, 2, w), DirectExport::Outcome::NotFinite);
  EXPECT_TRUE(w.Weights.empty());
  EXPECT_FALSE(DirectExport::message(DirectExport::Outcome::NotFinite).empty());
  EXPECT_TRUE(DirectExport::message(DirectExport::Outcome::Exported).empty());
}

}  // namespace
}  // namespace tnw::direct
