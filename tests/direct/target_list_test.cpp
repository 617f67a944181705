#include "direct/core/target_list.h"

#include "direct_test_models.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::direct {
namespace {

TEST(TargetListTest, ItemsCarryKeysAndImagesByOrientationAndRole) {
  WizardContext context = test::makeContext(std::vector<bool>{false, true, false, true});
  DirectResult result;
  test::setOrder(result, {1, 2, 2, 3});
  result.RefAtt = 1;
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  TargetList list;
  list.ListAtt(context.model, j, result.RefAtt);
  ASSERT_EQ(list.items().size(), 4u);
  EXPECT_EQ(list.items()[0].key, "Benefit1");
  EXPECT_EQ(list.items()[1].key, "Cost1");
  EXPECT_EQ(list.items()[2].key, "Benefit2");
  EXPECT_EQ(list.items()[3].key, "Cost2");
  EXPECT_EQ(list.items()[0].image, "Smiling");
  EXPECT_EQ(list.items()[0].selectedImage, "Smiling1");
  EXPECT_EQ(list.items()[1].image, "Crying2");
  EXPECT_EQ(list.items()[1].selectedImage, "Crying2");
  EXPECT_EQ(list.items()[3].image, "Crying");
  EXPECT_EQ(list.items()[3].selectedImage, "Crying1");
  EXPECT_EQ(list.benefitCount(), 2);
  EXPECT_EQ(list.costCount(), 2);
  EXPECT_EQ(list.items()[0].text, "Att1");
  // Attribute 2 is tied with the reference and so judged: its item carries the mark.
  EXPECT_EQ(list.items()[2].text, " \xC2\xA4 Att3");
  EXPECT_EQ(list.items()[1].text, "Att2");
  EXPECT_EQ(list.currentTarget(), 0);
}

TEST(TargetListTest, TheReferenceOfABenefitAttributeShowsSmiling2) {
  WizardContext context = test::makeContext(2);
  DirectResult result;
  test::setOrder(result, {1, 2});
  result.RefAtt = 0;
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  TargetList list;
  list.ListAtt(context.model, j, 0);
  EXPECT_EQ(list.items()[0].image, "Smiling2");
  EXPECT_EQ(list.items()[0].selectedImage, "Smiling2");
  EXPECT_EQ(list.currentTarget(), 1);
}

TEST(TargetListTest, ChoosingTheReferenceIsRefusedAndKeepsTheTarget) {
  WizardContext context = test::makeContext(3);
  DirectResult result;
  test::setOrder(result, {1, 2, 1});
  result.RefAtt = 0;
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  TargetList list;
  list.ListAtt(context.model, j, 0);
  ASSERT_EQ(list.currentTarget(), 1);
  EXPECT_EQ(list.choose(0, j, 0), TargetList::Choice::ReferenceItself);
  EXPECT_EQ(list.currentTarget(), 1);
  // The list shows the current target again, as the target labels do.
  EXPECT_EQ(list.selectedIndex(), 1);
}

TEST(TargetListTest, ChoosingATiedAttributeIsRefusedAndTheSelectionReturns) {
  WizardContext context = test::makeContext(3);
  DirectResult result;
  test::setOrder(result, {1, 2, 1});
  result.RefAtt = 0;
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  TargetList list;
  list.ListAtt(context.model, j, 0);
  EXPECT_EQ(list.choose(2, j, 0), TargetList::Choice::SameGroup);
  EXPECT_EQ(list.currentTarget(), 1);
  EXPECT_EQ(list.selectedIndex(), 1);
  EXPECT_EQ(list.choose(5, j, 0), TargetList::Choice::Ignored);
}

TEST(TargetListTest, NoTargetWhenEveryAttributeIsTiedWithTheReference) {
  WizardContext context = test::makeContext(2);
  DirectResult result;
  test::setOrder(result, {1, 1});
  WeightRatioJudgments j(context.model, result);
  j.CalcIniWeightRatios();
  TargetList list;
  list.ListAtt(context.model, j, 0);
  EXPECT_EQ(list.currentTarget(), -1);
  EXPECT_EQ(list.selectedIndex(), -1);
}

}  // namespace
}  // namespace tnw::direct
