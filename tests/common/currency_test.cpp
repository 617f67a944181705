#include "common/core/currency.h"

// Std
#include <cmath>
#include <iomanip>
#include <ostream>
#include <limits>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

struct RoundCase {
  double input;
  std::int64_t ticks;
};

std::ostream& operator<<(std::ostream& os, const RoundCase& c) {
  return os << std::setprecision(17) << c.input << " to " << c.ticks << " ten-thousandths";
}

class CurrencyRoundTest : public ::testing::TestWithParam<RoundCase> {};

TEST_P(CurrencyRoundTest, RoundsToNearestTenThousandthTiesToEven) {
  const auto c = Currency::fromDouble(GetParam().input);
  ASSERT_TRUE(c.has_value());
  EXPECT_EQ(c->ticks(), GetParam().ticks);
}

INSTANTIATE_TEST_SUITE_P(Table, CurrencyRoundTest,
                         ::testing::Values(RoundCase{0.0, 0}, RoundCase{1.0, 10000},
                                           RoundCase{0.123456, 1235}, RoundCase{-0.123456, -1235},
                                           RoundCase{0.03125, 312}, RoundCase{0.09375, 938},
                                           RoundCase{-0.03125, -312}, RoundCase{-0.09375, -938},
                                           RoundCase{12345678.98766, 123456789877},
                                           RoundCase{1e-12, 0}));

TEST(CurrencyTest, NonFiniteAndOutOfRangeHaveNoValue) {
  EXPECT_FALSE(Currency::fromDouble(std::numeric_limits<double>::quiet_NaN()).has_value());
  EXPECT_FALSE(Currency::fromDouble(std::numeric_limits<double>::infinity()).has_value());
  EXPECT_FALSE(Currency::fromDouble(1e15).has_value());
  EXPECT_TRUE(Currency::fromDouble(9e14).has_value());
}

TEST(CurrencyTest, ConvertsBackToDouble) {
  EXPECT_DOUBLE_EQ(Currency::fromTicks(1235).toDouble(), 0.1235);
}

}  // namespace
}  // namespace tnw
