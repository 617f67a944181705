#include "direct/core/ratio_key_filter.h"

#include "model/attribute_names.h"

namespace tnw::direct {

RatioKeyFilter::KeyAction RatioKeyFilter::DoKeyPress(wizard::TextBoxState& box, int& keyAscii) {
  if (keyAscii == kCtrlV) {
    keyAscii = 0;
    return KeyAction::Discard;
  }
  if (keyAscii == kEnter) {
    const std::string kept = model::trimmed(box.text);
    keyAscii = kBackspace;
    box.setText("");
    box.setText(kept);
    return KeyAction::Enter;
  }
  if (keyAscii >= 32) {
    CheckPeriod(box);
    const bool digit = keyAscii >= '0' && keyAscii <= '9';
    if (!digit && keyAscii != '.') {
      keyAscii = 0;
      return KeyAction::Discard;
    }
  }
  return KeyAction::Pass;
}

void RatioKeyFilter::CheckPeriod(wizard::TextBoxState& box) {
  // The count is kept by the box's editing, so a key stroke does not look through the text.
  if (box.periods() < 2) return;
  box.clampSelection();
  if (box.selStart == 0) return;
  box.selStart -= 1;
  box.selLength = 1;
  box.backspace();
}

bool RatioKeyFilter::discardKeyDown(int keyCode, bool shift) {
  return keyCode == kInsertKeyCode && shift;
}

RatioKeyFilter::KeyAction RatioKeyFilter::typeKey(wizard::TextBoxState& box, int keyAscii) {
  int key = keyAscii;
  const KeyAction action = DoKeyPress(box, key);
  if (action == KeyAction::Pass) {
    if (key == kBackspace) {
      box.backspace();
    } else if (key >= 32 && key < 127) {
      box.typeCharacter(static_cast<char>(key));
    }
  }
  CheckPeriod(box);
  return action;
}

}  // namespace tnw::direct
