#pragma once

// Std
#include <string>
#include <vector>

namespace tnw::wizard {

// What a view shows of a command button: its caption, and whether it is enabled and visible.
struct ButtonState {
  std::string caption;
  bool enabled = true;
  bool visible = true;
};

// What a view shows of a label or frame: its caption and whether it is visible.
struct LabelState {
  std::string caption;
  bool visible = true;
};

// The state of a one-line text box: its text, the caret and the selection, and whether it takes
// input. The editing functions keep a count of the periods in the text, so that a key stroke
// never looks through the whole text.
struct TextBoxState {
  std::string text;
  int selStart = 0;   // caret position, 0..text length
  int selLength = 0;  // characters selected after selStart
  bool enabled = true;
  // The number of periods in text, kept by the editing functions below; -1 when not known
  // (after setText, or when text was assigned directly, which must then set it to -1), and then
  // counted once by periods().
  int periodCount = -1;

  // The number of periods in the text.
  int periods();
  // Keeps the caret and selection inside the text.
  void clampSelection();
  // Types a printable character: it replaces the selection, or goes in at the caret.
  void typeCharacter(char c);
  // Backspace: deletes the selection, or the character before the caret.
  void backspace();
  // Replaces the text; the caret goes to the start, as setting a box's text does.
  void setText(const std::string& value);
  // Selects the whole text.
  void selectAll();

 private:
  int periodsIn(int start, int length) const;
};

// The state of a list box: its caption, items and selected index (-1 for none).
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

// The cells of a grid, row 0 holding the column headings.
struct GridState {
  std::vector<std::vector<std::string>> cells;

  // The number of rows and columns.
  int rows() const { return static_cast<int>(cells.size()); }
  int cols() const { return cells.empty() ? 0 : static_cast<int>(cells.front().size()); }
  // The text of a cell (empty outside the grid).
  std::string text(int row, int col) const;
};

// The buttons of a wizard's frame, as every dialog of the wizard has them.
struct WizardButtons {
  ButtonState cmdBack{"< &Back"};
  ButtonState cmdNext{"&Next >"};
  ButtonState cmdFinish{"&Finish"};
  ButtonState cmdCancel{"&Cancel"};
  ButtonState cmdHelp{"&Help"};
};

}  // namespace tnw::wizard
