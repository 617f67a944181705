#pragma once

// Std
#include <cstdint>
#include <vector>

namespace tnw::direct {

// The compacted importance order the ordering step ends with: groups numbered 1 to
// FinalGroupCount without gaps, 1 the most important.
struct FinalOrder {
  // Number of non-empty groups.
  std::int16_t FinalGroupCount = 0;
  // Size of final group k (index 0..NumAtt; index 0 holds no group).
  std::vector<std::int16_t> FinalGroupSize;
  // Final group of attribute j (index 0..NumAtt-1); 0 for an attribute never placed.
  std::vector<std::int16_t> FinalAttGroup;
};

}  // namespace tnw::direct
