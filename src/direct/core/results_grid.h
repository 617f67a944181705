#pragma once

// Std
#include <array>
#include <string>
#include <vector>

namespace tnw {
struct AttributeModel;
}  // namespace tnw

namespace tnw::direct {

// The results grid gridTN of the last page: one row per attribute with its low, middle and high
// weight. The low and high weights are each normalised over their own column (unlike the
// export, which uses the crossed sums).
class ResultsGrid {
 public:
  // Number of columns.
  static constexpr int kColumns = 5;
  // The header row, columns 0 to 4.
  static constexpr std::array<const char*, kColumns> kHeaders{"ID", "Attributes", "Weights",
                                                              "Middle Points", "Weight ranges"};
  // Between the low and the high weight in column 4: a comma and five blanks.
  static constexpr const char* kRangeSeparator = ",     ";

  // Lays the grid out for numAtt attributes (SetNTTable): header row plus one row each.
  void SetNTTable(int numAtt);
  // Computes the weights from the lower and upper ratios and fills the rows (Fill_gridTN).
  // A weight that cannot be computed (a zero sum) is shown as an empty cell.
  void Fill_gridTN(const AttributeModel& model, const std::vector<double>& lower,
                   const std::vector<double>& upper);
  // Column widths from the display widths of "Weights" and "Likelihood" in the page's font and
  // from the grid's width: narrow ID, a wide name column, a third of the grid for the ranges.
  static std::array<int, kColumns> columnWidths(int weightsWidth, int likelihoodWidth,
                                                int gridWidth);

  // Number of rows, the header row included.
  int rows() const { return static_cast<int>(m_cells.size()); }
  // The text of a cell ("" outside the grid).
  const std::string& cell(int row, int column) const;
  // The low, middle and high weights of the last fill, in model order.
  const std::vector<double>& lowWeights() const { return m_low; }
  const std::vector<double>& middlePoints() const { return m_middle; }
  const std::vector<double>& highWeights() const { return m_high; }

 private:
  std::vector<std::array<std::string, kColumns>> m_cells;
  std::vector<double> m_low;
  std::vector<double> m_middle;
  std::vector<double> m_high;
};

}  // namespace tnw::direct
