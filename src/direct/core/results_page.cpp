#include "direct/core/results_page.h"

// Std
#include <algorithm>
#include <cstddef>
#include <vector>

namespace tnw::direct {

ResultsPage::ResultsPage(DirectAShared& shared, const OrderingPage& ordering)
    : m_shared(shared), m_ordering(ordering) {}

void ResultsPage::initializePage() {
  wizard::WizardButtons& b = m_shared.buttons;
  b.cmdBack.enabled = true;
  b.cmdFinish.enabled = true;
  b.cmdNext.enabled = false;
  const DirectResult& result = m_shared.result;
  const int n = m_ordering.order().numAtt();
  m_grid.SetNTTable(n);
  m_grid.Fill_gridTN(m_shared.context.model, result.LowerWeights, result.UpperWeights);
  // The bounds cover the model's attributes only, as the grid does.
  const auto count = static_cast<std::size_t>(n);
  const auto firstN = [count](const std::vector<double>& v) {
    return std::vector<double>(v.begin(),
                               v.begin() + static_cast<std::ptrdiff_t>(std::min(count, v.size())));
  };
  m_exactBounds =
      ExactWeightBounds::compute(firstN(result.LowerWeights), firstN(result.UpperWeights),
                                 result.FinalAttGroup, result.RefAtt);
}

}  // namespace tnw::direct
