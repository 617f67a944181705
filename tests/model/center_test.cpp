#include "model/center.h"

// Std
#include <climits>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

struct CenterCase {
  ScreenSize screen;
  ScreenSize dialog;
  DialogPosition position;
};

class CenterTest : public ::testing::TestWithParam<CenterCase> {};

TEST_P(CenterTest, PlacesTheDialogInTheMiddleOfTheScreen) {
  EXPECT_EQ(Center(GetParam().screen, GetParam().dialog), GetParam().position);
}

INSTANTIATE_TEST_SUITE_P(
    Table, CenterTest,
    ::testing::Values(CenterCase{{1024, 768}, {400, 300}, {312, 234}},
                      CenterCase{{1920, 1080}, {1920, 1080}, {0, 0}},
                      CenterCase{{1025, 769}, {400, 300}, {312, 234}},
                      CenterCase{{800, 600}, {1001, 700}, {-101, -50}},
                      CenterCase{{0, 0}, {0, 0}, {0, 0}},
                      CenterCase{{INT_MAX, INT_MAX}, {INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}}));

}  // namespace
}  // namespace tnw
