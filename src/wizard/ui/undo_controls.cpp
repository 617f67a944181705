#include "wizard/ui/undo_controls.h"

#include "common/ui/kept_look_widgets.h"
#include "wizard/core/command_stack.h"
#include "wizard/ui/dialog_window.h"

// Qt
#include <QKeySequence>
#include <QPushButton>
#include <QShortcut>

namespace tnw {

namespace {

QPushButton* undoButton(QWidget* page, const char* name, const char* caption, const QString& tip) {
  auto* button = new KeptPushButton(QString::fromUtf8(caption), page);
  button->setObjectName(QString::fromUtf8(name));
  button->setToolTip(tip);
  button->setAutoDefault(false);
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

}  // namespace

UndoButtons makeUndoButtons(QWidget* page, const QString& undoTip) {
  return {undoButton(page, "cmdUndo", wizard::UndoTexts::kUndoCaption, undoTip),
          undoButton(page, "cmdRedo", wizard::UndoTexts::kRedoCaption,
                     QObject::tr("Make again what Undo took back (Ctrl+Shift+Z or Ctrl+Y)"))};
}

void connectUndo(QWidget* dialog, const UndoButtons& buttons, const std::function<void()>& undo,
                 const std::function<void()>& redo) {
  QObject::connect(buttons.cmdUndo, &QPushButton::clicked, dialog, guarded(dialog, undo));
  QObject::connect(buttons.cmdRedo, &QPushButton::clicked, dialog, guarded(dialog, redo));
  auto* undoKey = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z), dialog);
  undoKey->setObjectName(QStringLiteral("keyUndo"));
  QObject::connect(undoKey, &QShortcut::activated, dialog, guarded(dialog, undo));
  for (const QKeySequence& keys :
       {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)}) {
    auto* redoKey = new QShortcut(keys, dialog);
    redoKey->setObjectName(QStringLiteral("keyRedo"));
    QObject::connect(redoKey, &QShortcut::activated, dialog, guarded(dialog, redo));
  }
}

}  // namespace tnw
