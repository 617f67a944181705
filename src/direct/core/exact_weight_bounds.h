#pragma once

// Std
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tnw {
struct AttributeModel;
}  // namespace tnw

namespace tnw::direct {

// The tightest bounds of the normalised weights that the ratio intervals allow. Every attribute's
// weight is its ratio divided by the sum of all ratios; the ratios range over their intervals,
// the reference's ratio is 1, and attributes tied in one importance group share one ratio (they
// are equally important, so their weights move together). The bounds are the least and the
// greatest weight each attribute can take over all such ratios.
class ExactWeightBounds {
 public:
  // The title shown above the bounds on the results page.
  static constexpr const char* kTitle = "Exact weight ranges (the tightest your intervals allow)";
  // Number of columns of the bounds' table.
  static constexpr int kColumns = 4;
  // The header row of the bounds' table.
  static constexpr std::array<const char*, kColumns> kHeaders{"ID", "Attributes", "Lowest",
                                                              "Highest"};

  // The least and the greatest weight of one attribute.
  struct Bound {
    double low = 0.0;
    double high = 0.0;
  };

  // The interval of one group's shared ratio and how many attributes share it.
  struct GroupInterval {
    double low = 0.0;
    double high = 0.0;
    int members = 1;
  };

  // Why the bounds could not be computed.
  enum class Outcome {
    Computed,        // the bounds are in `bounds`
    NoAttributes,    // there is no attribute
    NotFinite,       // a ratio bound is not a finite number
    NegativeBound,   // a lower ratio bound is below 0
    GroupsDisagree,  // the intervals of one group's members have no ratio in common
    ZeroSum,         // every ratio may be 0, so no weight is defined
  };

  // What compute() found.
  struct Result {
    Outcome outcome = Outcome::NoAttributes;
    // One bound per attribute in model order, when computed.
    std::vector<Bound> bounds;
    // The attribute an outcome other than Computed is about (-1 when none).
    int attribute = -1;
  };

  // The bounds for the ratio intervals [lower(i), upper(i)] of the attributes, their final
  // groups (0 or less: the attribute is a group of its own) and the reference attribute.
  static Result compute(const std::vector<double>& lower, const std::vector<double>& upper,
                        const std::vector<std::int16_t>& group, int refAtt);
  // The bounds of one member's weight in each group, in the order given. Every interval must
  // satisfy 0 <= low <= high, members >= 1, and the sum of members × low must be positive.
  static std::vector<Bound> groupBounds(const std::vector<GroupInterval>& groups);
  // The line shown in place of the bounds when they could not be computed ("" when computed).
  static std::string message(const AttributeModel& model, const Result& result);
  // The rows of the bounds' table (ID, name, lowest and highest weight as "0.0000").
  static std::vector<std::array<std::string, kColumns>> rows(const AttributeModel& model,
                                                             const Result& result);
};

}  // namespace tnw::direct
