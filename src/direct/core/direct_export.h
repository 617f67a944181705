#pragma once

// Std
#include <string>
#include <vector>

namespace tnw::direct {

// The weights Finish hands to the host: each bound divided by the sum of the opposite bounds
// (intended: the exported range is wider than the grid's), the weight the midpoint of the two.
class DirectExport {
 public:
  // Whether the export could be computed.
  enum class Outcome { Exported, ZeroSum, NotFinite };

  // The three export arrays, index 0..NumAtt-1.
  struct Weights {
    std::vector<double> Weights;
    std::vector<double> WeightsH;
    std::vector<double> WeightsL;
  };

  // Computes the export for the first n ratios; on any outcome but Exported the arrays are left
  // empty, so that nothing is handed on.
  static Outcome compute(const std::vector<double>& lower, const std::vector<double>& upper, int n,
                         Weights& out);
  // The message shown when the weights cannot be exported ("" for Exported).
  static std::string message(Outcome outcome);
};

}  // namespace tnw::direct
