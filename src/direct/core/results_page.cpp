#include "direct/core/results_page.h"

#include "graphs/core/graphs.h"
#include "model/attribute_names.h"

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
  m_chart = weightChart(m_shared.context.model, m_grid, n);
}

ChartData ResultsPage::weightChart(const AttributeModel& model, const ResultsGrid& grid, int n) {
  ChartData d;
  d.title = kChartTitle;
  // The legend of this chart lists its entries in the colours of the low marks, the middle
  // marks and the high marks, in that order.
  d.legend = {"Low weight", "Middle point", "High weight"};
  const auto at = [](const std::vector<double>& v, int i) {
    return i < static_cast<int>(v.size()) ? v[static_cast<std::size_t>(i)] : 0.0;
  };
  d.n = std::max(0, n);
  for (int i = 0; i < d.n; ++i) {
    d.names.push_back(model::attributeName(model, i));
    d.data.push_back(
        {at(grid.highWeights(), i), at(grid.lowWeights(), i), at(grid.middlePoints(), i)});
  }
  return d;
}

void ResultsPage::drawChart(DrawingSurface& surface) const {
  if (m_chart.n <= 0) return;
  Graphs g;
  g.GridColour = 9;
  g.DrawFrame = true;
  g.Display_HLCGraphAMain(surface, m_chart);
}

TextTable ResultsPage::tableText() const {
  TextTable t;
  for (int r = 0; r < m_grid.rows(); ++r) {
    std::vector<std::string> row;
    for (int c = 0; c < ResultsGrid::kColumns; ++c) row.push_back(m_grid.cell(r, c));
    t.push_back(std::move(row));
  }
  return t;
}

}  // namespace tnw::direct
