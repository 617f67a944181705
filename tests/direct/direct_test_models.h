#pragma once

#include "wizard/core/wizard_context.h"
#include "direct/core/direct_result.h"

// Std
#include <string>
#include <vector>

namespace tnw::test {

// A context whose model has one attribute per entry of `costOriented` (names "Att1", ...,
// definitions "Definition 1", ..., scores 0 to 10*(i+1)).
inline WizardContext makeContext(const std::vector<bool>& costOriented) {
  WizardContext context;
  context.NorixDir = "C:\\NORIX";
  context.FileIndex = 7;
  context.model.NumAtt = static_cast<std::int16_t>(costOriented.size());
  for (std::size_t i = 0; i < costOriented.size() && i < 31; ++i) {
    context.model.AttName[i] = "  Att" + std::to_string(i + 1) + " ";
    context.model.AttDefinition[i] = " Definition " + std::to_string(i + 1);
    context.model.AttOrientation[i] = costOriented[i] ? "1" : "0";
    context.model.AttScoreLow[i] = 0.0;
    context.model.AttScoreHigh[i] = 10.0 * static_cast<double>(i + 1);
  }
  return context;
}

// A context of n benefit-oriented attributes.
inline WizardContext makeContext(int n) { return makeContext(std::vector<bool>(n, false)); }

// Sets the final order of a direct result: group per attribute, FinalGroupCount the largest
// group.
inline void setOrder(direct::DirectResult& result, const std::vector<std::int16_t>& groups) {
  result.FinalAttGroup = groups;
  std::int16_t count = 0;
  result.FinalGroupSize.assign(groups.size() + 1, 0);
  for (auto g : groups) {
    if (g > count) count = g;
    if (g > 0) ++result.FinalGroupSize[static_cast<std::size_t>(g)];
  }
  result.FinalGroupCount = count;
}

}  // namespace tnw::test
