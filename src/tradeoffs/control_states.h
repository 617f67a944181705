#pragma once

// Std
#include <string>
#include <vector>

namespace tnw {

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

}  // namespace tnw
