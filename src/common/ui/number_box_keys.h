#pragma once

// Qt
#include <QKeyEvent>
#include <QKeySequence>

namespace tnw {

// Whether a number box drops a key without typing it: a printable key held with Ctrl, Alt or
// Meta types nothing, just as a letter does. A key that reached the box with Alt was not taken
// by any mnemonic (Alt+N while Next is disabled, Alt+X with no X), and without this the box would
// type its letter. The box's own editing keys (select all, copy, cut, undo, redo) still work;
// Shift and the keypad are not modifiers here.
inline bool isDroppedModifiedKey(const QKeyEvent* event) {
  constexpr Qt::KeyboardModifiers kTyping =
      Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if (!(event->modifiers() & kTyping)) return false;
  const int key = event->key();
  if (key < Qt::Key_Space || key > Qt::Key_ydiaeresis) return false;
  for (const auto editing : {QKeySequence::SelectAll, QKeySequence::Copy, QKeySequence::Cut,
                             QKeySequence::Undo, QKeySequence::Redo}) {
    if (event->matches(editing)) return false;
  }
  return true;
}

}  // namespace tnw
