#include "wizard/core/control_states.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::wizard {
namespace {

TEST(TextBoxStateTest, TypingReplacesTheSelectionAndKeepsThePeriodCount) {
  TextBoxState box;
  box.setText("1.25");
  EXPECT_EQ(box.periods(), 1);
  box.selStart = 1;
  box.selLength = 2;  // ".2"
  box.typeCharacter('7');
  EXPECT_EQ(box.text, "175");
  EXPECT_EQ(box.selStart, 2);
  EXPECT_EQ(box.periods(), 0);
  box.typeCharacter('.');
  EXPECT_EQ(box.periods(), 1);
  box.backspace();
  EXPECT_EQ(box.text, "175");
  EXPECT_EQ(box.periods(), 0);
}

TEST(TextBoxStateTest, ASelectionOutsideTheTextIsClampedBeforeEditing) {
  TextBoxState box;
  box.setText("12");
  box.selStart = 9;
  box.selLength = 4;
  box.backspace();
  EXPECT_EQ(box.text, "1");
  EXPECT_EQ(box.selStart, 1);
  box.selectAll();
  EXPECT_EQ(box.selLength, 1);
}

TEST(GridStateTest, CellsOutsideTheGridAreEmpty) {
  GridState grid{{{"Attribute", "Low"}, {"Price", "0.25"}}};
  EXPECT_EQ(grid.rows(), 2);
  EXPECT_EQ(grid.cols(), 2);
  EXPECT_EQ(grid.text(1, 1), "0.25");
  EXPECT_EQ(grid.text(2, 0), "");
  EXPECT_EQ(grid.text(0, -1), "");
  EXPECT_EQ(grid.text(-1, 0), "");
}

}  // namespace
}  // namespace tnw::wizard
