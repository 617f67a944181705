#include "direct/ratio_key_filter.h"

#include "direct/attribute_texts.h"

namespace tnw {

RatioKeyFilter::KeyAction RatioKeyFilter::DoKeyPress(TextBoxState& box, int& keyAscii) {
  if (keyAscii == kCtrlV) {
    keyAscii = 0;
    return KeyAction::Discard;
  }
  const std::string kept = AttributeTexts::trim(box.text);
  if (keyAscii == kEnter) {
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

void RatioKeyFilter::CheckPeriod(TextBoxState& box) {
  const auto first = box.text.find('.');
  if (first == std::string::npos || box.text.find('.', first + 1) == std::string::npos) return;
  box.clampSelection();
  if (box.selStart == 0) return;
  box.selStart -= 1;
  box.selLength = 1;
  box.text.erase(static_cast<std::size_t>(box.selStart), 1);
  box.selLength = 0;
}

bool RatioKeyFilter::discardKeyDown(int keyCode, bool shift) {
  return keyCode == kInsertKeyCode && shift;
}

RatioKeyFilter::KeyAction RatioKeyFilter::typeKey(TextBoxState& box, int keyAscii) {
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

}  // namespace tnw
