#pragma once

#include "wizard/core/control_states.h"

namespace tnw::direct {

// The key filter of the two ratio boxes txtWRLower and txtWRUpper: digits, one period and
// control keys only; pasting is blocked.
class RatioKeyFilter {
 public:
  // What the box does with a key after DoKeyPress.
  enum class KeyAction {
    Pass,     // the key reaches the text
    Discard,  // the key is dropped
    Enter     // Enter: the text is reset, the focus goes to cmdReStart, the lower bound is checked
  };

  // Key codes the filter knows.
  static constexpr int kBackspace = 8;
  static constexpr int kEnter = 13;
  static constexpr int kCtrlV = 22;
  static constexpr int kInsertKeyCode = 45;

  // The KeyPress filter of a box: Ctrl+V is dropped; Enter resets the box to its trimmed text
  // with the caret at the start (keyAscii becomes Backspace, which then deletes nothing);
  // printable keys run CheckPeriod first and pass only as digits or ".".
  static KeyAction DoKeyPress(wizard::TextBoxState& box, int& keyAscii);
  // At key-up: a second "." is removed (the character before the caret).
  static void CheckPeriod(wizard::TextBoxState& box);
  // KeyDown: whether the key is dropped (Shift+Insert).
  static bool discardKeyDown(int keyCode, bool shift);
  // One whole key stroke as a box sees it: key-down, key-press, the box's own editing, key-up.
  static KeyAction typeKey(wizard::TextBoxState& box, int keyAscii);
};

}  // namespace tnw::direct
