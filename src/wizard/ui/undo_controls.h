#pragma once

// Qt
#include <QString>

// Std
#include <functional>

class QPushButton;
class QWidget;

namespace tnw {

// The Undo and Redo buttons of a judgment page.
struct UndoButtons {
  QPushButton* cmdUndo = nullptr;
  QPushButton* cmdRedo = nullptr;
};

// Makes the Undo and Redo buttons (cmdUndo, cmdRedo) of a page, with their tool tips; undoTip
// names what Undo takes back. Their captions and states come from the presenter on each render.
UndoButtons makeUndoButtons(QWidget* page, const QString& undoTip);

// Wires undo and redo in a dialog: the buttons' clicks, and the keys anywhere in the dialog
// (Ctrl+Z undoes, Ctrl+Shift+Z and Ctrl+Y redo; in a text box Ctrl+Z and Ctrl+Shift+Z undo and
// redo its typing first, as in every text box). The handlers run guarded, as every handler of
// the dialog does.
void connectUndo(QWidget* dialog, const UndoButtons& buttons, const std::function<void()>& undo,
                 const std::function<void()>& redo);

}  // namespace tnw
