#include "tradeoffs/core/pair_generator.h"

#include "trade_off_fixtures.h"
#include "tradeoffs/core/clock_random_source.h"

// Std
#include <cmath>
#include <set>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

using testing::makeModel;
using testing::SequenceRandomSource;

TEST(PairGeneratorTest, RangeWithPEqualQAlwaysYieldsP) {
  for (float r : {0.0f, 0.25f, 0.5f, 0.999999f}) {
    EXPECT_EQ(PairGenerator::RandomScore(5.0f, 5.0f, r), Currency::fromTicks(50000)) << r;
    EXPECT_EQ(PairGenerator::RandomScore(-2.5f, -2.5f, r), Currency::fromTicks(-25000)) << r;
  }
  // t = r + P = 0 at r = 0: the fold-back 0 / t has no quotient, and P is kept.
  EXPECT_EQ(PairGenerator::RandomScore(0.0f, 0.0f, 0.0f), Currency());
}

TEST(PairGeneratorTest, ZeroToTenDrawsSevenPointTwoFiveTimesRAndNeverFolds) {
  for (float r : {0.0f, 0.1f, 0.5f, 0.8f, 0.999999f}) {
    const Currency c = PairGenerator::RandomScore(0.0f, 10.0f, r);
    EXPECT_EQ(c, *Currency::fromDouble((10.0 / 1.6 + 1.0) * r)) << r;
    EXPECT_LE(c.toDouble(), 7.25);  // only rounding to currency can reach the bound
  }
}

TEST(PairGeneratorTest, DrawBeyondTheTopIsFoldedBackByDivision) {
  // P = 0, Q = 1: t = 1.625 r; r = 0.8 gives t = 1.3 >= 1, folded to 1 - 1 / 1.3.
  const double t = (1.0 / 1.6 + 1.0) * 0.8f;
  EXPECT_EQ(PairGenerator::RandomScore(0.0f, 1.0f, 0.8f), *Currency::fromDouble(1.0 - 1.0 / t));
  // The reverse order folds at P.
  const double u = (1.0 / 1.6 + 1.0) * 0.8f + 1.0;
  EXPECT_EQ(PairGenerator::RandomScore(2.0f, 1.0f, 0.8f), *Currency::fromDouble(2.0 - 1.0 / u));
}

TEST(PairGeneratorTest, ReversedRangeDrawsUpFromTheLowerEnd) {
  const Currency c = PairGenerator::RandomScore(10.0f, 0.0f, 0.5f);
  EXPECT_EQ(c, *Currency::fromDouble(7.25 * 0.5));
}

TEST(PairGeneratorTest, BenefitPairAThreeFourBFiveSixIsExchangedToAFiveFourBThreeSix) {
  const AttributeModel m = makeModel(2);
  SequenceRandomSource src({3.0f / 7.25f, 5.0f / 7.25f, 4.0f / 7.25f, 6.0f / 7.25f});
  PairGenerator gen(src);
  const TradeOffScores s = gen.drawScores(m, 0, 1);
  EXPECT_EQ(src.taken(), 4u);
  EXPECT_EQ(s.A1, Currency::fromTicks(50000));
  EXPECT_EQ(s.A2, Currency::fromTicks(40000));
  EXPECT_EQ(s.B1, Currency::fromTicks(30000));
  EXPECT_EQ(s.B2, Currency::fromTicks(60000));
}

TEST(PairGeneratorTest, DifferentDirectionsExchangeWhenTheScoresMoveApart) {
  AttributeModel m = makeModel(2);
  m.AttOrientation[1] = "1";
  // A = (3, 6), B = (5, 4): with opposite directions B dominates, so A₁ and B₁ are exchanged.
  SequenceRandomSource src({3.0f / 7.25f, 5.0f / 7.25f, 6.0f / 7.25f, 4.0f / 7.25f});
  PairGenerator gen(src);
  const TradeOffScores s = gen.drawScores(m, 0, 1);
  EXPECT_EQ(s.A1, Currency::fromTicks(50000));
  EXPECT_EQ(s.B1, Currency::fromTicks(30000));
  // The same scores with equal directions are a proper trade-off and stay.
  m.AttOrientation[1] = "0";
  SequenceRandomSource again({3.0f / 7.25f, 5.0f / 7.25f, 6.0f / 7.25f, 4.0f / 7.25f});
  PairGenerator gen2(again);
  EXPECT_EQ(gen2.drawScores(m, 0, 1).A1, Currency::fromTicks(30000));
}

TEST(PairGeneratorTest, EqualScoresNeverCauseAnExchange) {
  TradeOffScores s;
  s.A1 = s.B1 = Currency::fromTicks(10000);
  s.A2 = Currency::fromTicks(10000);
  s.B2 = Currency::fromTicks(20000);
  EXPECT_FALSE(PairGenerator::dominated(s, true));
  EXPECT_FALSE(PairGenerator::dominated(s, false));
}

}  // namespace
}  // namespace tnw::tradeoffs

namespace tnw::tradeoffs {
namespace {

TEST(ClockRandomSourceTest, DrawsLieInZeroToOneAndVaryFromDrawToDraw) {
  ClockRandomSource src;
  std::set<float> seen;
  for (int i = 0; i < 1000; ++i) {
    const float r = src.next();
    ASSERT_GE(r, 0.0f);
    ASSERT_LT(r, 1.0f);
    seen.insert(r);
  }
  EXPECT_GT(seen.size(), 900u);
}

}  // namespace
}  // namespace tnw::tradeoffs
