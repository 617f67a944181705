#include "tradeoffs/score_entry.h"

#include "common/number_format.h"
#include "model/attribute_names.h"

// Std
#include <algorithm>
#include <cmath>
#include <string_view>

namespace tnw {

namespace {

// Keeps the caret and selection inside the text, as a text box does.
void clampSelection(TextBoxState& box) {
  const int len = static_cast<int>(box.text.size());
  box.selStart = std::clamp(box.selStart, 0, len);
  box.selLength = std::clamp(box.selLength, 0, len - box.selStart);
}

}  // namespace

bool ScoreEntry::CheckPeriod(TextBoxState& box) {
  clampSelection(box);
  // The typed key replaces the selection, so only a period outside it counts. Only a period key
  // asks, so digits are typed without looking through the text.
  const std::string_view text = box.text;
  const auto start = static_cast<std::size_t>(box.selStart);
  const auto end = start + static_cast<std::size_t>(box.selLength);
  return text.substr(0, start).find('.') != std::string_view::npos ||
         text.substr(end).find('.') != std::string_view::npos;
}

int ScoreEntry::DoKeyPress(TextBoxState& box, int key) {
  if (key < kBlank) return key;
  if (key >= '0' && key <= '9') return key;
  // A second period cannot accumulate: the period key is dropped while the box holds one.
  if (key == '.' && !CheckPeriod(box)) return key;
  return 0;
}

void ScoreEntry::applyKey(TextBoxState& box, int key) {
  clampSelection(box);
  const auto start = static_cast<std::size_t>(box.selStart);
  const auto length = static_cast<std::size_t>(box.selLength);
  if (key == kBackspace) {
    if (length > 0) {
      box.text.erase(start, length);
    } else if (start > 0) {
      box.text.erase(start - 1, 1);
      box.selStart -= 1;
    }
    box.selLength = 0;
    return;
  }
  if (key < kBlank || key > 126) return;
  box.text.replace(start, length, 1, static_cast<char>(key));
  box.selStart += 1;
  box.selLength = 0;
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

}  // namespace tnw
