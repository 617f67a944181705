#pragma once

// Std
#include <cstdint>
#include <vector>

namespace tnw::direct {

// What the direct method works out: the importance order its ordering step ends with, the
// reference attribute and the weight-ratio tables of the judgments. The presenter owns one and
// hands it to its pages; the export hands the weights from it to the component.
struct DirectResult {
  // The importance order the ordering step is left with (groups are 1-based).
  std::int16_t FinalGroupCount = 0;
  std::vector<std::int16_t> FinalGroupSize;  // index 0..NumAtt
  std::vector<std::int16_t> FinalAttGroup;   // index 0..NumAtt-1

  // The reference attribute (0-based).
  std::int16_t RefAtt = 0;

  // The weight-ratio intervals to the reference, written by the judgments, index 0..NumAtt-1.
  std::vector<double> LowerWeights;
  std::vector<double> CloseWeights;
  std::vector<double> UpperWeights;
};

}  // namespace tnw::direct
