#pragma once

// Std
#include <string>

namespace tnw {

// The editable state of a one-line text box: its text, the caret and the selection.
struct TextBoxState {
  std::string text;
  int selStart = 0;   // caret position, 0..text length
  int selLength = 0;  // characters selected after selStart
  // The number of periods in text, kept by the editing functions below so that a key stroke
  // never looks through the whole text; -1 when not known (after setText, or when text was
  // assigned directly, which must then set it to -1), and then counted once by periods().
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

}  // namespace tnw
