#include "tradeoffs/core/score_entry.h"

#include "common/core/number_format.h"
#include "model/attribute_names.h"

// Std
#include <algorithm>
#include <cmath>
#include <string_view>

namespace tnw::tradeoffs {

bool ScoreEntry::CheckPeriod(wizard::TextBoxState& box) {
  box.clampSelection();
  // The typed key replaces the selection, so only a period outside it counts. Only a period key
  // asks, so digits are typed without looking through the text.
  const std::string_view text = box.text;
  const auto start = static_cast<std::size_t>(box.selStart);
  const auto end = start + static_cast<std::size_t>(box.selLength);
  return text.substr(0, start).find('.') != std::string_view::npos ||
         text.substr(end).find('.') != std::string_view::npos;
}

int ScoreEntry::DoKeyPress(wizard::TextBoxState& box, int key) {
  if (key < kBlank) return key;
  if (key >= '0' && key <= '9') return key;
  // A second period cannot accumulate: the period key is dropped while the box holds one.
  if (key == '.' && !CheckPeriod(box)) return key;
  return 0;
}

void ScoreEntry::applyKey(wizard::TextBoxState& box, int key) {
  box.clampSelection();
  if (key == kBackspace) {
    box.backspace();
  } else if (key >= kBlank && key <= 126) {
    box.typeCharacter(static_cast<char>(key));
  }
}

std::optional<std::string> ScoreEntry::checkRange(const std::string& text, float low, float high) {
  const double v = leadingNumber(model::trimmed(text));
  // The ends may come in either order; the message names them as they were given.
  if (v >= std::min(low, high) && v <= std::max(low, high)) return std::nullopt;
  return "The data you entered should be in the relevant score range [" + generalTextSingle(low) +
         ", " + generalTextSingle(high) + "]!";
}

std::string ScoreEntry::step(const std::string& text, float low, float high, bool up) {
  // A hundredth of the range's width, whichever way the stored ends run, so that the up arrow
  // always raises the number it stands beside.
  const float stepSize = std::fabs(high - low) / 100.0f;
  const double v = leadingNumber(text);
  return formatNumber(up ? v + stepSize : v - stepSize, "0.0#");
}

}  // namespace tnw::tradeoffs
