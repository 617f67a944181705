#include "direct/core/results_grid.h"

#include "direct_test_models.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::direct {
namespace {

TEST(ResultsGridTest, TheHeaderRowNamesTheFiveColumns) {
  ResultsGrid grid;
  grid.SetNTTable(3);
  EXPECT_EQ(grid.rows(), 4);
  EXPECT_EQ(grid.cell(0, 0), "ID");
  EXPECT_EQ(grid.cell(0, 1), "Attributes");
  EXPECT_EQ(grid.cell(0, 2), "Weights");
  EXPECT_EQ(grid.cell(0, 3), "Middle Points");
  EXPECT_EQ(grid.cell(0, 4), "Weight ranges");
  EXPECT_EQ(grid.cell(0, 5), "");
}

TEST(ResultsGridTest, TwoAttributesWithATargetJudgedTwoToTwo) {
  const WizardContext context = test::makeContext(2);
  ResultsGrid grid;
  grid.SetNTTable(2);
  grid.Fill_gridTN(context.model, {1, 2}, {1, 2});
  EXPECT_EQ(grid.cell(1, 3), "0.3333");
  EXPECT_EQ(grid.cell(2, 3), "0.6667");
  EXPECT_EQ(grid.cell(1, 4), "0.3333,     0.3333");
  EXPECT_EQ(grid.cell(2, 4), "0.6667,     0.6667");
}

TEST(ResultsGridTest, ThreeAttributesShowColumnNormalisedRangesAndMiddlePoints) {
  const WizardContext context = test::makeContext(3);
  ResultsGrid grid;
  grid.SetNTTable(3);
  grid.Fill_gridTN(context.model, {1, 0.5, 1}, {1, 1, 2});
  EXPECT_EQ(grid.cell(2, 4), "0.2000,     0.2500");
  EXPECT_EQ(grid.cell(3, 4), "0.4000,     0.5000");
  EXPECT_EQ(grid.cell(1, 3), "0.3250");
  EXPECT_EQ(grid.cell(2, 3), "0.2250");
  EXPECT_EQ(grid.cell(3, 3), "0.4500");
  // The reference's low weight lies above its high weight and is shown as it falls.
  EXPECT_EQ(grid.cell(1, 4), "0.4000,     0.2500");
  double sum = 0;
  for (double m : grid.middlePoints()) sum += m;
  EXPECT_DOUBLE_EQ(sum, 1.0);
}

TEST(ResultsGridTest, TheWeightColumnShowsOnlyTheSymbols) {
  const WizardContext context = test::makeContext(3);
  ResultsGrid grid;
  grid.SetNTTable(3);
  grid.Fill_gridTN(context.model, {1, 1, 1}, {1, 1, 1});
  EXPECT_EQ(grid.cell(1, 2), "W1");
  EXPECT_EQ(grid.cell(2, 2), "W2");
  EXPECT_EQ(grid.cell(3, 2), "W3");
  EXPECT_EQ(grid.cell(2, 0), "2");
  EXPECT_EQ(grid.cell(2, 1), "Att2");
}

TEST(ResultsGridTest, AZeroSumLeavesTheWeightCellsEmpty) {
  const WizardContext context = test::makeContext(2);
  ResultsGrid grid;
  grid.SetNTTable(2);
  grid.Fill_gridTN(context.model, {1, -1}, {1, 1});
  EXPECT_EQ(grid.cell(1, 3), "");
  EXPECT_EQ(grid.cell(1, 4), "");
  EXPECT_EQ(grid.cell(1, 2), "W1");
}

TEST(ResultsGridTest, ColumnWidthsGiveTheRangesAThirdOfTheGrid) {
  const auto w = ResultsGrid::columnWidths(60, 70, 900);
  EXPECT_EQ(w[4], 300);
  EXPECT_EQ(w[2], 60);
  EXPECT_EQ(w[3], 70);
  EXPECT_EQ(w[0] + w[1] + w[2] + w[3] + w[4], 900);
}

}  // namespace
}  // namespace tnw::direct
