#include "direct/text_box_state.h"

// Std
#include <algorithm>

namespace tnw {

void TextBoxState::clampSelection() {
  const int size = static_cast<int>(text.size());
  selStart = std::clamp(selStart, 0, size);
  selLength = std::clamp(selLength, 0, size - selStart);
}

void TextBoxState::typeCharacter(char c) {
  clampSelection();
  text.replace(static_cast<std::size_t>(selStart), static_cast<std::size_t>(selLength), 1, c);
  ++selStart;
  selLength = 0;
}

void TextBoxState::backspace() {
  clampSelection();
  if (selLength > 0) {
    text.erase(static_cast<std::size_t>(selStart), static_cast<std::size_t>(selLength));
  } else if (selStart > 0) {
    text.erase(static_cast<std::size_t>(selStart - 1), 1);
    --selStart;
  }
  selLength = 0;
}

void TextBoxState::setText(const std::string& value) {
  text = value;
  selStart = 0;
  selLength = 0;
}

void TextBoxState::selectAll() {
  selStart = 0;
  selLength = static_cast<int>(text.size());
}

}  // namespace tnw
