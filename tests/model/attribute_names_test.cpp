#include "model/attribute_names.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

TEST(AttributeNamesTest, TrimmedDropsLeadingAndTrailingBlanksOnly) {
  EXPECT_EQ(model::trimmed("  Price  "), "Price");
  EXPECT_EQ(model::trimmed("Top speed"), "Top speed");
  EXPECT_EQ(model::trimmed("   "), "");
  EXPECT_EQ(model::trimmed(""), "");
  // Tabs are not blanks: the model's texts are padded with spaces.
  EXPECT_EQ(model::trimmed("\tA "), "\tA");
}

TEST(AttributeNamesTest, NameAndDefinitionAreTrimmedAndEmptyOutsideTheModel) {
  AttributeModel m;
  m.AttName[0] = " Cost ";
  m.AttDefinition[0] = "Purchase price   ";
  m.AttName[kMaxAttributes - 1] = "Last";
  EXPECT_EQ(model::attributeName(m, 0), "Cost");
  EXPECT_EQ(model::attributeDefinition(m, 0), "Purchase price");
  EXPECT_EQ(model::attributeName(m, kMaxAttributes - 1), "Last");
  EXPECT_EQ(model::attributeName(m, -1), "");
  EXPECT_EQ(model::attributeName(m, kMaxAttributes), "");
  EXPECT_EQ(model::attributeDefinition(m, kMaxAttributes), "");
}

}  // namespace
}  // namespace tnw
