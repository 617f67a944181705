#pragma once

#include "wizard/core/control_states.h"

class QAbstractButton;
class QLabel;

namespace tnw::direct {

// Shows a button's state: its caption, and whether it is visible and enabled.
void renderButton(QAbstractButton* button, const wizard::ButtonState& state);
// Shows a label's caption (an eliding label keeps the whole text for its tool tip).
void renderLabel(QLabel* label, const wizard::LabelState& state);
// Shows an orientation picture whose name is the state's caption, 32 pixels high.
void renderImage(QLabel* label, const wizard::LabelState& state);

}  // namespace tnw::direct
