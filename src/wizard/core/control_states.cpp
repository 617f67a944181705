#include "wizard/core/control_states.h"

// Std
#include <algorithm>
#include <cstddef>

namespace tnw::wizard {

void TextBoxState::clampSelection() {
  const int size = static_cast<int>(text.size());
  selStart = std::clamp(selStart, 0, size);
  selLength = std::clamp(selLength, 0, size - selStart);
}

int TextBoxState::periods() {
  if (periodCount < 0) periodCount = static_cast<int>(std::count(text.begin(), text.end(), '.'));
  return periodCount;
}

int TextBoxState::periodsIn(int start, int length) const {
  const auto first = text.begin() + start;
  return static_cast<int>(std::count(first, first + length, '.'));
}

void TextBoxState::typeCharacter(char c) {
  clampSelection();
  if (periodCount >= 0) periodCount += (c == '.' ? 1 : 0) - periodsIn(selStart, selLength);
  text.replace(static_cast<std::size_t>(selStart), static_cast<std::size_t>(selLength), 1, c);
  ++selStart;
  selLength = 0;
}

void TextBoxState::backspace() {
  clampSelection();
  if (periodCount >= 0 && selLength > 0) {
    periodCount -= periodsIn(selStart, selLength);
  } else if (periodCount >= 0 && selStart > 0) {
    periodCount -= periodsIn(selStart - 1, 1);
  }
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
  periodCount = -1;
  selStart = 0;
  selLength = 0;
}

void TextBoxState::selectAll() {
  selStart = 0;
  selLength = static_cast<int>(text.size());
}

std::string GridState::text(int row, int col) const {
  if (row < 0 || row >= rows() || col < 0) return {};
  const auto& cellsOfRow = cells[static_cast<std::size_t>(row)];
  if (col >= static_cast<int>(cellsOfRow.size())) return {};
  return cellsOfRow[static_cast<std::size_t>(col)];
}

}  // namespace tnw::wizard
