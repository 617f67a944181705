#include "direct/core/results_grid.h"

#include "common/core/number_format.h"
#include "direct/core/attribute_texts.h"
#include "model/attribute_model.h"

// Std
#include <algorithm>
#include <cmath>

namespace tnw::direct {

namespace {

const std::string kEmpty;

std::string weightText(double w) { return std::isfinite(w) ? formatNumber(w, "0.0000") : ""; }

double sumOf(const std::vector<double>& v, std::size_t n) {
  double sum = 0.0;
  for (std::size_t i = 0; i < n && i < v.size(); ++i) sum += v[i];
  return sum;
}

double share(double value, double sum) {
  if (sum == 0.0) return std::nan("");
  return value / sum;
}

}  // namespace

void ResultsGrid::SetNTTable(int numAtt) {
  const int n = std::clamp(numAtt, 0, kMaxAttributes);
  m_cells.assign(static_cast<std::size_t>(n + 1), {});
  for (std::size_t c = 0; c < kColumns; ++c) m_cells[0][c] = kHeaders[c];
}

void ResultsGrid::Fill_gridTN(const AttributeModel& model, const std::vector<double>& lower,
                              const std::vector<double>& upper) {
  const std::size_t n = m_cells.empty() ? 0 : m_cells.size() - 1;
  const double sumL = sumOf(lower, n);
  const double sumU = sumOf(upper, n);
  m_low.assign(n, 0.0);
  m_high.assign(n, 0.0);
  m_middle.assign(n, 0.0);
  for (std::size_t i = 0; i < n; ++i) {
    m_low[i] = share(i < lower.size() ? lower[i] : 0.0, sumL);
    m_high[i] = share(i < upper.size() ? upper[i] : 0.0, sumU);
    m_middle[i] = (m_low[i] + m_high[i]) / 2.0;
    auto& row = m_cells[i + 1];
    const int id = static_cast<int>(i) + 1;
    row[0] = std::to_string(id);
    row[1] = AttributeTexts::name(model, static_cast<int>(i));
    row[2] = "W" + std::to_string(id);
    row[3] = weightText(m_middle[i]);
    const bool bothShown = std::isfinite(m_low[i]) && std::isfinite(m_high[i]);
    row[4] = bothShown ? weightText(m_low[i]) + kRangeSeparator + weightText(m_high[i]) : "";
  }
}

std::array<int, ResultsGrid::kColumns> ResultsGrid::columnWidths(int weightsWidth,
                                                                 int likelihoodWidth,
                                                                 int gridWidth) {
  const int third = gridWidth / 3;
  const int id = weightsWidth / 2;
  const int rest = gridWidth - id - weightsWidth - likelihoodWidth - third;
  return {id, std::max(rest, weightsWidth), weightsWidth, likelihoodWidth, third};
}

const std::string& ResultsGrid::cell(int row, int column) const {
  if (row < 0 || row >= rows() || column < 0 || column >= kColumns) return kEmpty;
  return m_cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

}  // namespace tnw::direct
