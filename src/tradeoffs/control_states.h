#pragma once

// Std
#include <string>
#include <vector>

namespace tnw {
// The direct method has classes of the same names (TextBoxState, JudgmentPage) in the same
// library; the inline namespace keeps the two apart for the linker.
inline namespace tradeoffs {

// The state of a command button as a view shows it.
struct ButtonState {
  std::string caption;
  bool enabled = true;
  bool visible = true;
};

// The state of a label.
struct LabelState {
  std::string caption;
  bool visible = true;
};

// The state of a text box: its text, caret (selStart) and selection.
struct TextBoxState {
  std::string text;
  int selStart = 0;
  int selLength = 0;
  bool enabled = true;
};

// The state of a list box: its items and the selected index (-1 for none).
struct ListState {
  std::string caption;
  std::vector<std::string> items;
  int listIndex = -1;
  bool enabled = true;
};

// The state of an option button.
struct OptionState {
  std::string caption;
  bool value = false;
  bool enabled = true;
};

// A point of the two-dimensional panel, in panel fractions: x from the left, y from the bottom.
struct PanelPoint {
  double x = 0.0;
  double y = 0.0;
};

}  // namespace tradeoffs
}  // namespace tnw

namespace tnw {

// The cells of a grid, row 0 holding the column headings.
struct GridState {
  std::vector<std::vector<std::string>> cells;

  // The number of rows and columns.
  int rows() const { return static_cast<int>(cells.size()); }
  int cols() const { return cells.empty() ? 0 : static_cast<int>(cells.front().size()); }
  // The text of a cell (empty outside the grid).
  std::string text(int row, int col) const {
    if (row < 0 || row >= rows() || col < 0 ||
        col >= static_cast<int>(cells[static_cast<std::size_t>(row)].size()))
      return {};
    return cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
  }
};

}  // namespace tnw
