#include "selmethod/core/methods_page.h"

#include "model/attribute_model.h"

// Std
#include <array>

namespace tnw::selmethod {

namespace {

struct MethodDescription {
  const char* name;
  const char* text;
};

// The description routine knows five methods; the list offers only the first two. Index 1 is
// described as the rating technique although the list calls it "TradeOffs": kept as it is.
constexpr std::array<MethodDescription, 5> kDescriptions = {{
    {"Direct:", "Give attribute weights directly"},
    {"MAVT:", "Elict attribute weights by Simple Multiple Attribute Rating Technique"},
    {"SWING:", "Elict attribute weights by SWING"},
    {"Pairwise:", "Elict attribute weights by Pairwise Comparison Matrices"},
    {"TradeOffs_A:",
     "Elict attribute weights by numerical trade-off between two random alternatives. The "
     "weights will be infered by multi-linear regression."},
}};

}  // namespace

void MethodsPage::initializePage() {
  m_methods = {"Direct", "TradeOffs"};
  // "MAVT_DIRECT" and anything unknown select Direct; the match is exact and case-sensitive.
  m_selectedIndex = m_model.PrevTNType == "MAVT_TRADEOFFS" ? 1 : 0;
  ShowMethodDescription(m_selectedIndex);
}

void MethodsPage::lstMethods_Click(int index) {
  const bool inList = index >= 0 && index < static_cast<int>(m_methods.size());
  m_selectedIndex = inList ? index : -1;
}

void MethodsPage::ShowMethodDescription(int index) {
  if (index < 0 || index >= static_cast<int>(kDescriptions.size())) return;
  const MethodDescription& d = kDescriptions[static_cast<std::size_t>(index)];
  m_selectedMethodName = d.name;
  m_description = d.text;
}

}  // namespace tnw::selmethod
