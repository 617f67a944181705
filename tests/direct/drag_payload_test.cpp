#include "direct/core/drag_payload.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::direct {
namespace {

TEST(DragPayloadTest, EncodesTheLetterAndTheAttributeIndex) {
  EXPECT_EQ(encodeDragPayload({DragSource::AttributeList, 3}), "A3");
  EXPECT_EQ(encodeDragPayload({DragSource::PlacedAttribute, 30}), "B30");
}

TEST(DragPayloadTest, DecodesWhatItEncodes) {
  for (int j = 0; j < 31; ++j) {
    for (DragSource s : {DragSource::AttributeList, DragSource::PlacedAttribute}) {
      const DragPayload p{s, j};
      EXPECT_EQ(decodeDragPayload(encodeDragPayload(p)), std::optional<DragPayload>(p));
    }
  }
}

TEST(DragPayloadTest, OtherPayloadsAreIgnored) {
  EXPECT_FALSE(decodeDragPayload("").has_value());
  EXPECT_FALSE(decodeDragPayload("C1").has_value());
  EXPECT_FALSE(decodeDragPayload("a1").has_value());
  EXPECT_FALSE(decodeDragPayload("A").has_value());
  EXPECT_FALSE(decodeDragPayload("B-1").has_value());
  EXPECT_FALSE(decodeDragPayload("A123456789012").has_value());
  EXPECT_FALSE(decodeDragPayload("Ax").has_value());
}

TEST(DragPayloadTest, TheIndexIsTheLeadingNumberAfterTheLetter) {
  const auto p = decodeDragPayload("B12x");
  ASSERT_TRUE(p.has_value());
  EXPECT_EQ(p->source, DragSource::PlacedAttribute);
  EXPECT_EQ(p->attribute, 12);
}

}  // namespace
}  // namespace tnw::direct
