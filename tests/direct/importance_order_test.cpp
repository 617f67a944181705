#include "direct/core/importance_order.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::direct {
namespace {

DragPayload fromList(int j) { return {DragSource::AttributeList, j}; }
DragPayload placed(int j) { return {DragSource::PlacedAttribute, j}; }

TEST(ImportanceOrderTest, StartsWithTwoEmptyGroupsAndNothingPlaced) {
  ImportanceOrder order(4);
  EXPECT_EQ(order.GroupCount(), 2);
  EXPECT_EQ(order.PlacedCount(), 0);
  EXPECT_EQ(order.SelectedGroup(), 1);
  EXPECT_EQ(order.GroupSize(1), 0);
  EXPECT_FALSE(order.allPlaced());
  EXPECT_TRUE(order.canAddGroup());
}

TEST(ImportanceOrderTest, PlacingSetsGroupSizeSelectionAndCount) {
  ImportanceOrder order(3);
  EXPECT_EQ(order.dropOnGroup(fromList(2), 2), ImportanceOrder::DropResult::Placed);
  EXPECT_EQ(order.AttGroup(2), 2);
  EXPECT_EQ(order.GroupSize(2), 1);
  EXPECT_EQ(order.PlacedCount(), 1);
  EXPECT_EQ(order.SelectedGroup(), 2);
  EXPECT_EQ(order.framedGroup(), 2);
  EXPECT_EQ(order.placements(), std::vector<int>{2});
}

TEST(ImportanceOrderTest, AllAttributesInOneGroupGiveOneFinalGroup) {
  ImportanceOrder order(4);
  for (int j = 0; j < 4; ++j) order.dropOnGroup(fromList(j), 2);
  const FinalOrder f = order.GetFinalOrder();
  EXPECT_EQ(f.FinalGroupCount, 1);
  EXPECT_EQ(f.FinalGroupSize[1], 4);
  for (int j = 0; j < 4; ++j) EXPECT_EQ(f.FinalAttGroup[j], 1) << j;
}

TEST(ImportanceOrderTest, EmptyMiddleGroupIsRemovedAndLaterGroupsMoveUp) {
  ImportanceOrder order(3);
  ASSERT_TRUE(order.add());
  order.dropOnGroup(fromList(0), 1);
  order.dropOnGroup(fromList(1), 3);
  order.dropOnGroup(fromList(2), 3);
  const FinalOrder f = order.GetFinalOrder();
  EXPECT_EQ(f.FinalGroupCount, 2);
  EXPECT_EQ(f.FinalAttGroup, (std::vector<std::int16_t>{1, 2, 2}));
  EXPECT_EQ(f.FinalGroupSize[1], 1);
  EXPECT_EQ(f.FinalGroupSize[2], 2);
}

TEST(ImportanceOrderTest, TwoAdjacentEmptyGroupsAreBothRemoved) {
  ImportanceOrder order(5);
  ASSERT_TRUE(order.add());
  ASSERT_TRUE(order.add());
  order.dropOnGroup(fromList(0), 1);
  order.dropOnGroup(fromList(1), 4);
  order.dropOnGroup(fromList(2), 4);
  order.dropOnGroup(fromList(3), 1);
  order.dropOnGroup(fromList(4), 4);
  const FinalOrder f = order.GetFinalOrder();
  EXPECT_EQ(f.FinalGroupCount, 2);
  EXPECT_EQ(f.FinalAttGroup, (std::vector<std::int16_t>{1, 2, 2, 1, 2}));
  EXPECT_EQ(f.FinalGroupSize[1], 2);
  EXPECT_EQ(f.FinalGroupSize[2], 3);
  EXPECT_EQ(f.FinalGroupSize[3], 0);
}

TEST(ImportanceOrderTest, MovingOntoItsOwnGroupChangesNothing) {
  ImportanceOrder order(2);
  order.dropOnGroup(fromList(0), 1);
  order.dropOnGroup(fromList(1), 2);
  EXPECT_EQ(order.dropOnGroup(placed(0), 1), ImportanceOrder::DropResult::Unchanged);
  EXPECT_EQ(order.AttGroup(0), 1);
  EXPECT_EQ(order.GroupSize(1), 1);
  EXPECT_EQ(order.SelectedGroup(), 2);
  EXPECT_EQ(order.dropOnPlacedAttribute(placed(1), 1), ImportanceOrder::DropResult::Unchanged);
}

TEST(ImportanceOrderTest, MovingTheOnlyAttributeOfAGroupLeavesItEmpty) {
  ImportanceOrder order(2);
  order.dropOnGroup(fromList(0), 1);
  order.dropOnGroup(fromList(1), 2);
  EXPECT_EQ(order.dropOnGroup(placed(0), 2), ImportanceOrder::DropResult::Moved);
  EXPECT_EQ(order.GroupCount(), 2);
  EXPECT_EQ(order.GroupSize(1), 0);
  EXPECT_EQ(order.GroupSize(2), 2);
  EXPECT_EQ(order.attributesInGroup(2), (std::vector<int>{1, 0}));
  EXPECT_EQ(order.GetFinalOrder().FinalGroupCount, 1);
}

TEST(ImportanceOrderTest, NextWaitsUntilEveryAttributeIsPlacedAndMovingKeepsTheCount) {
  ImportanceOrder order(3);
  order.dropOnGroup(fromList(0), 1);
  order.dropOnGroup(fromList(1), 1);
  EXPECT_FALSE(order.allPlaced());
  order.dropOnGroup(placed(1), 2);
  EXPECT_EQ(order.PlacedCount(), 2);
  EXPECT_FALSE(order.allPlaced());
  order.dropOnGroup(fromList(2), 2);
  EXPECT_EQ(order.PlacedCount(), 3);
  EXPECT_TRUE(order.allPlaced());
}

TEST(ImportanceOrderTest, ADropOfAnAlreadyPlacedListAttributeIsIgnored) {
  ImportanceOrder order(3);
  order.dropOnGroup(fromList(0), 1);
  EXPECT_EQ(order.dropOnGroup(fromList(0), 2), ImportanceOrder::DropResult::Ignored);
  EXPECT_EQ(order.PlacedCount(), 1);
  EXPECT_EQ(order.AttGroup(0), 1);
}

TEST(ImportanceOrderTest, DropsOfUnknownAttributesOrGroupsAreIgnored) {
  ImportanceOrder order(3);
  EXPECT_EQ(order.dropOnGroup(fromList(3), 1), ImportanceOrder::DropResult::Ignored);
  EXPECT_EQ(order.dropOnGroup(fromList(31), 1), ImportanceOrder::DropResult::Ignored);
  EXPECT_EQ(order.dropOnGroup(fromList(0), 3), ImportanceOrder::DropResult::Ignored);
  EXPECT_EQ(order.dropOnGroup(fromList(0), 0), ImportanceOrder::DropResult::Ignored);
  EXPECT_EQ(order.dropOnGroup(placed(1), 1), ImportanceOrder::DropResult::Ignored);
  EXPECT_EQ(order.dropOnPlacedAttribute(fromList(0), 2), ImportanceOrder::DropResult::Ignored);
  EXPECT_EQ(order.PlacedCount(), 0);
}

TEST(ImportanceOrderTest, ADropOnAPlacedButtonGoesToItsGroup) {
  ImportanceOrder order(3);
  order.dropOnGroup(fromList(0), 2);
  EXPECT_EQ(order.dropOnPlacedAttribute(fromList(1), 0), ImportanceOrder::DropResult::Placed);
  EXPECT_EQ(order.AttGroup(1), 2);
}

TEST(ImportanceOrderTest, WithThreeAttributesOneAddIsAcceptedThenAddAndInsertAreDisabled) {
  ImportanceOrder order(3);
  EXPECT_TRUE(order.canAddGroup());
  EXPECT_TRUE(order.add());
  EXPECT_EQ(order.GroupCount(), 3);
  EXPECT_FALSE(order.canAddGroup());
  EXPECT_FALSE(order.add());
  EXPECT_FALSE(order.insert());
  EXPECT_EQ(order.GroupCount(), 3);
}

TEST(ImportanceOrderTest, WithThreeAttributesOneInsertIsAcceptedThenBothAreDisabled) {
  ImportanceOrder order(3);
  EXPECT_TRUE(order.insert());
  EXPECT_FALSE(order.canAddGroup());
  EXPECT_FALSE(order.add());
  EXPECT_EQ(order.GroupCount(), 3);
}

TEST(ImportanceOrderTest, AddAndInsertAreDisabledExactlyWhenGroupCountReachesNumAtt) {
  ImportanceOrder order(6);
  for (int expected = 3; expected <= 6; ++expected) {
    ASSERT_TRUE(order.canAddGroup());
    ASSERT_TRUE(expected % 2 == 0 ? order.insert() : order.add());
    EXPECT_EQ(order.GroupCount(), expected);
    EXPECT_EQ(order.canAddGroup(), expected < 6);
  }
}

TEST(ImportanceOrderTest, InsertAtGroupOneRenumbersEveryPlacedAttribute) {
  ImportanceOrder order(4);
  order.dropOnGroup(fromList(0), 1);
  order.dropOnGroup(fromList(1), 2);
  order.dropOnGroup(fromList(2), 1);
  ASSERT_TRUE(order.selectGroup(1));
  ASSERT_TRUE(order.insert());
  EXPECT_EQ(order.GroupCount(), 3);
  EXPECT_EQ(order.AttGroup(0), 2);
  EXPECT_EQ(order.AttGroup(1), 3);
  EXPECT_EQ(order.AttGroup(2), 2);
  EXPECT_EQ(order.AttGroup(3), 0);
  EXPECT_EQ(order.GroupSize(1), 0);
  EXPECT_EQ(order.GroupSize(2), 2);
  EXPECT_EQ(order.GroupSize(3), 1);
}

TEST(ImportanceOrderTest, InsertInTheMiddleKeepsEarlierGroups) {
  ImportanceOrder order(4);
  order.dropOnGroup(fromList(0), 1);
  order.dropOnGroup(fromList(1), 2);
  ASSERT_TRUE(order.selectGroup(2));
  ASSERT_TRUE(order.insert());
  EXPECT_EQ(order.AttGroup(0), 1);
  EXPECT_EQ(order.AttGroup(1), 3);
  EXPECT_EQ(order.GroupSize(2), 0);
  EXPECT_EQ(order.SelectedGroup(), 2);
}

TEST(ImportanceOrderTest, SelectingAGroupOutsideTheBoxesIsRefused) {
  ImportanceOrder order(4);
  EXPECT_FALSE(order.selectGroup(3));
  EXPECT_FALSE(order.selectGroup(0));
  EXPECT_EQ(order.SelectedGroup(), 1);
}

TEST(ImportanceOrderTest, RestoreShowsAnEarlierOrder) {
  ImportanceOrder order(4);
  order.restore(3, {1, 2, 1, 3});
  EXPECT_EQ(order.GroupCount(), 3);
  EXPECT_EQ(order.PlacedCount(), 4);
  EXPECT_TRUE(order.allPlaced());
  EXPECT_EQ(order.GroupSize(1), 2);
  EXPECT_EQ(order.attributesInGroup(1), (std::vector<int>{0, 2}));
  EXPECT_TRUE(order.canAddGroup());
}

TEST(ImportanceOrderTest, ASingleAttributeStillGetsTwoBoxesWithoutAddOrInsert) {
  ImportanceOrder order(1);
  EXPECT_EQ(order.GroupCount(), 2);
  EXPECT_FALSE(order.canAddGroup());
  EXPECT_EQ(order.dropOnGroup(fromList(0), 2), ImportanceOrder::DropResult::Placed);
  const FinalOrder f = order.GetFinalOrder();
  EXPECT_EQ(f.FinalGroupCount, 1);
  EXPECT_EQ(f.FinalAttGroup[0], 1);
}

}  // namespace
}  // namespace tnw::direct
