#include "direct/core/exact_weight_bounds.h"

#include "model/attribute_model.h"

// Std
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <random>
#include <vector>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::direct {
namespace {

using Bound = ExactWeightBounds::Bound;
using Outcome = ExactWeightBounds::Outcome;

// The problem as the test states it on its own: one shared ratio per group (the reference fixed
// at 1), each within every member's interval.
struct Problem {
  std::vector<double> lower;
  std::vector<double> upper;
  std::vector<std::int16_t> group;
  int refAtt = 0;
};

// The bounds by brute force: a weight x_g / sum_h n_h x_h is linear-fractional with a positive
// denominator, so over the box of ratios its least and greatest values are taken at vertices.
// Every vertex of the groups' box is visited and every attribute's weight evaluated there.
std::vector<Bound> vertexBounds(const Problem& p) {
  const int n = static_cast<int>(p.lower.size());
  std::map<int, int> index;
  std::vector<int> groupOf(static_cast<std::size_t>(n));
  std::vector<double> lo;
  std::vector<double> hi;
  std::vector<int> members;
  for (int i = 0; i < n; ++i) {
    const auto u = static_cast<std::size_t>(i);
    const int key = p.group[u] > 0 ? p.group[u] : 1000 + i;
    const double l = i == p.refAtt ? 1.0 : p.lower[u];
    const double h = i == p.refAtt ? 1.0 : p.upper[u];
    auto [it, fresh] = index.emplace(key, static_cast<int>(lo.size()));
    if (fresh) {
      lo.push_back(l);
      hi.push_back(h);
      members.push_back(0);
    }
    const auto g = static_cast<std::size_t>(it->second);
    lo[g] = std::max(lo[g], l);
    hi[g] = std::min(hi[g], h);
    ++members[g];
    groupOf[u] = it->second;
  }
  const int groups = static_cast<int>(lo.size());
  std::vector<Bound> out(static_cast<std::size_t>(n),
                         {std::numeric_limits<double>::infinity(), -1.0});
  for (unsigned mask = 0; mask < (1u << groups); ++mask) {
    std::vector<double> x(static_cast<std::size_t>(groups));
    double sum = 0.0;
    for (int g = 0; g < groups; ++g) {
      const auto u = static_cast<std::size_t>(g);
      x[u] = (mask >> g) & 1u ? hi[u] : lo[u];
      sum += members[u] * x[u];
    }
    for (int i = 0; i < n; ++i) {
      const auto u = static_cast<std::size_t>(i);
      const double w = x[static_cast<std::size_t>(groupOf[u])] / sum;
      out[u].low = std::min(out[u].low, w);
      out[u].high = std::max(out[u].high, w);
    }
  }
  return out;
}

ExactWeightBounds::Result computeFor(const Problem& p) {
  return ExactWeightBounds::compute(p.lower, p.upper, p.group, p.refAtt);
}

TEST(ExactWeightBoundsTest, ThreeAttributeExampleGivesTheClosedFormBounds) {
  // Reference [1, 1], a less important attribute [0.5, 1], a more important one [1, 2].
  const Problem p{{1.0, 0.5, 1.0}, {1.0, 1.0, 2.0}, {2, 3, 1}, 0};
  const auto r = computeFor(p);
  ASSERT_EQ(r.outcome, Outcome::Computed);
  ASSERT_EQ(r.bounds.size(), 3u);
  EXPECT_DOUBLE_EQ(r.bounds[0].low, 0.25);
  EXPECT_DOUBLE_EQ(r.bounds[0].high, 0.40);
  EXPECT_DOUBLE_EQ(r.bounds[1].low, 1.0 / 7.0);
  EXPECT_DOUBLE_EQ(r.bounds[1].high, 1.0 / 3.0);
  EXPECT_DOUBLE_EQ(r.bounds[2].low, 1.0 / 3.0);
  EXPECT_DOUBLE_EQ(r.bounds[2].high, 4.0 / 7.0);
  EXPECT_EQ(ExactWeightBounds::rows(AttributeModel{}, r)[1][2], "0.1429");
  EXPECT_EQ(ExactWeightBounds::rows(AttributeModel{}, r)[2][3], "0.5714");
}

TEST(ExactWeightBoundsTest, TiedAttributesMoveTogetherSoTheirBoundsAreTighter) {
  // Two attributes tied in group 2 with [0.5, 1]; the reference alone in group 1. Moving
  // together, each weighs x / (1 + 2x): 0.25 to 1/3. Taken one by one, the per-attribute form
  // would give 0.5 / (0.5 + 1 + 1) = 0.2 and 1 / (1 + 1 + 0.5) = 0.4.
  const Problem p{{1.0, 0.5, 0.5}, {1.0, 1.0, 1.0}, {1, 2, 2}, 0};
  const auto r = computeFor(p);
  ASSERT_EQ(r.outcome, Outcome::Computed);
  EXPECT_DOUBLE_EQ(r.bounds[1].low, 0.25);
  EXPECT_DOUBLE_EQ(r.bounds[1].high, 1.0 / 3.0);
  EXPECT_EQ(r.bounds[2].low, r.bounds[1].low);
  EXPECT_EQ(r.bounds[2].high, r.bounds[1].high);
  EXPECT_DOUBLE_EQ(r.bounds[0].low, 1.0 / 3.0);
  EXPECT_DOUBLE_EQ(r.bounds[0].high, 0.5);
  const auto v = vertexBounds(p);
  EXPECT_DOUBLE_EQ(v[1].low, 0.25);
  EXPECT_DOUBLE_EQ(v[1].high, 1.0 / 3.0);
}

TEST(ExactWeightBoundsTest, ReferenceCountsAsOneWhateverItsTablesHold) {
  const Problem p{{0.4, 0.5}, {0.25, 1.0}, {1, 2}, 0};
  const auto r = computeFor(p);
  ASSERT_EQ(r.outcome, Outcome::Computed);
  EXPECT_DOUBLE_EQ(r.bounds[0].low, 0.5);
  EXPECT_DOUBLE_EQ(r.bounds[0].high, 1.0 / 1.5);
}

TEST(ExactWeightBoundsTest, ClosedFormAgreesWithVertexEnumerationOnRandomTiedIntervals) {
  std::mt19937 random(20261124);
  std::uniform_real_distribution<double> ratio(0.0, 3.0);
  int checked = 0;
  for (int trial = 0; trial < 2000; ++trial) {
    const int n = 1 + static_cast<int>(random() % 7);
    const int groups = 1 + static_cast<int>(random() % static_cast<unsigned>(n));
    Problem p;
    p.refAtt = static_cast<int>(random() % static_cast<unsigned>(n));
    std::vector<double> groupLow(static_cast<std::size_t>(groups + 1));
    std::vector<double> groupHigh(static_cast<std::size_t>(groups + 1));
    for (int g = 1; g <= groups; ++g) {
      const double a = ratio(random);
      const double b = ratio(random);
      groupLow[static_cast<std::size_t>(g)] = std::min(a, b);
      groupHigh[static_cast<std::size_t>(g)] = std::max(a, b);
    }
    for (int i = 0; i < n; ++i) {
      p.group.push_back(static_cast<std::int16_t>(1 + random() % static_cast<unsigned>(groups)));
    }
    // The reference's group must allow the reference's ratio 1.
    const auto refGroup = static_cast<std::size_t>(p.group[static_cast<std::size_t>(p.refAtt)]);
    groupLow[refGroup] = std::min(groupLow[refGroup], 1.0);
    groupHigh[refGroup] = std::max(groupHigh[refGroup], 1.0);
    for (int i = 0; i < n; ++i) {
      const std::int16_t g = p.group[static_cast<std::size_t>(i)];
      // Members mostly share their group's interval; some are given a wider one.
      const double widen = random() % 4 == 0 ? 0.25 : 0.0;
      p.lower.push_back(std::max(0.0, groupLow[static_cast<std::size_t>(g)] - widen));
      p.upper.push_back(groupHigh[static_cast<std::size_t>(g)] + widen);
    }
    const auto r = computeFor(p);
    ASSERT_EQ(r.outcome, Outcome::Computed) << "trial " << trial;
    const auto v = vertexBounds(p);
    for (int i = 0; i < n; ++i) {
      const auto u = static_cast<std::size_t>(i);
      EXPECT_NEAR(r.bounds[u].low, v[u].low, 1e-13) << "trial " << trial << " attribute " << i;
      EXPECT_NEAR(r.bounds[u].high, v[u].high, 1e-13) << "trial " << trial << " attribute " << i;
      ++checked;
    }
  }
  EXPECT_GT(checked, 4000);
}

TEST(ExactWeightBoundsTest, WeightsAtRandomRatiosInsideTheIntervalsStayWithinTheBounds) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  const Problem p{{1.0, 0.5, 0.5, 1.2, 0.1}, {1.0, 0.9, 0.9, 2.5, 0.3}, {2, 3, 3, 1, 4}, 0};
  const auto r = computeFor(p);
  ASSERT_EQ(r.outcome, Outcome::Computed);
  for (int draw = 0; draw < 1000; ++draw) {
    const double x3 = 0.5 + 0.4 * unit(random);  // the shared ratio of the tied pair
    const double x[5] = {1.0, x3, x3, 1.2 + 1.3 * unit(random), 0.1 + 0.2 * unit(random)};
    const double sum = x[0] + x[1] + x[2] + x[3] + x[4];
    for (std::size_t i = 0; i < 5; ++i) {
      EXPECT_GE(x[i] / sum, r.bounds[i].low - 1e-15);
      EXPECT_LE(x[i] / sum, r.bounds[i].high + 1e-15);
    }
  }
}

TEST(ExactWeightBoundsTest, UngroupedAttributesAreGroupsOfTheirOwn) {
  const Problem p{{1.0, 0.5, 0.5}, {1.0, 1.0, 1.0}, {0, 0, 0}, 0};
  const auto r = computeFor(p);
  ASSERT_EQ(r.outcome, Outcome::Computed);
  EXPECT_DOUBLE_EQ(r.bounds[1].low, 0.5 / 2.5);
  EXPECT_DOUBLE_EQ(r.bounds[1].high, 1.0 / 2.5);
}

TEST(ExactWeightBoundsTest, FaultyIntervalsNameTheAttributeInsteadOfGivingBounds) {
  AttributeModel model;
  model.NumAtt = 3;
  model.AttName[1] = "Price ";
  model.AttName[2] = "Safety";

  auto r = computeFor({{1.0, -0.5, 1.0}, {1.0, 1.0, 2.0}, {2, 3, 1}, 0});
  EXPECT_EQ(r.outcome, Outcome::NegativeBound);
  EXPECT_TRUE(r.bounds.empty());
  EXPECT_EQ(ExactWeightBounds::message(model, r),
            "No exact weight ranges: a lower weight ratio (Price) is below zero.");

  r = computeFor({{1.0, 0.5, 2.0}, {1.0, 1.0, 3.0}, {1, 2, 2}, 0});
  EXPECT_EQ(r.outcome, Outcome::GroupsDisagree);
  EXPECT_EQ(ExactWeightBounds::message(model, r),
            "No exact weight ranges: the attributes tied with (Price) have intervals without a "
            "ratio in common.");

  r = computeFor({{1.0, std::nan(""), 1.0}, {1.0, 1.0, 2.0}, {2, 3, 1}, 0});
  EXPECT_EQ(r.outcome, Outcome::NotFinite);
  EXPECT_EQ(r.attribute, 1);

  r = computeFor({{0.0, 0.0}, {1.0, 1.0}, {1, 2}, -1});
  EXPECT_EQ(r.outcome, Outcome::ZeroSum);
  EXPECT_EQ(ExactWeightBounds::message(model, r),
            "No exact weight ranges: every weight ratio may be zero.");

  r = computeFor({});
  EXPECT_EQ(r.outcome, Outcome::NoAttributes);
  EXPECT_TRUE(ExactWeightBounds::rows(model, r).empty());
}

}  // namespace
}  // namespace tnw::direct
