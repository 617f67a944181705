#pragma once

#include "wizard/core/control_states.h"

// Std
#include <optional>
#include <string>

namespace tnw::tradeoffs {

// The editing rules of the four score boxes: the key filter, the period guard, the range check
// and the toolbar step. Pure functions over a box's state.
class ScoreEntry {
 public:
  // The key code of Enter, and of the blank (the first printable key).
  static constexpr int kEnter = 13;
  static constexpr int kBlank = 32;
  static constexpr int kBackspace = 8;

  // Whether the box already holds a period outside its selection, so that a typed period would
  // be a second one (the selection, which the key replaces, is kept in range).
  static bool CheckPeriod(wizard::TextBoxState& box);
  // Filters one key below Enter's handling: a digit passes, a period passes unless CheckPeriod
  // finds one already, any other printable key is discarded (0); control keys pass unchanged.
  static int DoKeyPress(wizard::TextBoxState& box, int key);
  // Applies a key that passed the filter as a text box does: a printable key replaces the
  // selection, backspace deletes it or the character before the caret.
  static void applyKey(wizard::TextBoxState& box, int key);

  // The range message for a text outside the range between low and high (either order), ends
  // included, naming the ends as "[low, high]"; empty when inside.
  static std::optional<std::string> checkRange(const std::string& text, float low, float high);
  // The text after one toolbar step: the value ± |high - low| / 100, written "0.0#"; up always
  // adds.
  static std::string step(const std::string& text, float low, float high, bool up);
};

}  // namespace tnw::tradeoffs
