#pragma once

#include "direct/attribute_drop_filter_qt.h"
#include "direct/group_box_widget.h"

// Qt
#include <QAbstractButton>
#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QStringList>
#include <QWidget>

namespace tnw::test {

// The control named `name` with control-array index `index` (any index when -1), or null.
template <typename T>
T* control(const QWidget* root, const char* name, int index = -1) {
  for (T* w : root->findChildren<T*>(QString::fromUtf8(name))) {
    if (index < 0 || w->property("index").toInt() == index) return w;
  }
  return nullptr;
}

// The shown group box of the ordering page whose tag is `group`. Found by name and tag only,
// so that it also finds the boxes of a dialog made inside the component's shared library.
inline QWidget* orderBox(const QWidget* root, int group) {
  for (QWidget* box : root->findChildren<QWidget*>(QStringLiteral("picOrder"))) {
    if (box->property("tag").toInt() == group && box->isVisibleTo(root)) return box;
  }
  return nullptr;
}

// Whether the group box of `group` carries the selection frame (dialogs of this binary only).
inline bool orderBoxSelected(const QWidget* root, int group) {
  const auto* box = qobject_cast<const GroupBoxWidget*>(orderBox(root, group));
  return box != nullptr && box->isSelected();
}

// Drags a button with `tag` onto target as the platform would deliver it: enter, move, drop.
// Returns whether the drop was accepted.
inline bool dragAndDrop(QWidget* target, const QString& tag) {
  if (target == nullptr) return false;
  QMimeData mime;
  mime.setData(AttributeDropFilter::mimeType(), tag.toUtf8());
  const QPoint pos = target->rect().center();
  QDragEnterEvent enter(pos, Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(target, &enter);
  if (!enter.isAccepted()) return false;
  QDragMoveEvent move(pos, Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(target, &move);
  QDropEvent drop(QPointF(pos), Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(target, &drop);
  return drop.isAccepted();
}

// Presses the left button on w at local point from, moves the mouse to local point to (both
// taken where w is when the drag starts, through `steps` points) and lets go. Each event's
// local position is taken where w is at that moment, as the platform does while w moves.
inline void mouseDrag(QWidget* w, QPoint from, QPoint to, int steps = 4) {
  const QPoint globalFrom = w->mapToGlobal(from);
  const QPoint globalTo = w->mapToGlobal(to);
  const auto send = [w](QEvent::Type type, QPoint global, Qt::MouseButton button,
                        Qt::MouseButtons buttons) {
    QMouseEvent e(type, QPointF(w->mapFromGlobal(global)), QPointF(global), button, buttons,
                  Qt::NoModifier);
    QApplication::sendEvent(w, &e);
  };
  send(QEvent::MouseButtonPress, globalFrom, Qt::LeftButton, Qt::LeftButton);
  for (int i = 1; i <= steps; ++i) {
    send(QEvent::MouseMove, globalFrom + (globalTo - globalFrom) * i / steps, Qt::NoButton,
         Qt::LeftButton);
  }
  send(QEvent::MouseButtonRelease, globalTo, Qt::LeftButton, Qt::NoButton);
}

// The visible labels and buttons under root whose text does not fit their width or height:
// each is named with its objectName and text.
inline QStringList clippedTexts(const QWidget* root) {
  QStringList clipped;
  const auto check = [&clipped](const QWidget* w, const QString& text, QSize needed) {
    if (!w->isVisibleTo(w->window()) || !w->isVisible() || text.isEmpty()) return;
    if (w->width() < needed.width() || w->height() < needed.height()) {
      clipped.append(QStringLiteral("%1 \"%2\" %3x%4 < %5x%6")
                         .arg(w->objectName(), text)
                         .arg(w->width())
                         .arg(w->height())
                         .arg(needed.width())
                         .arg(needed.height()));
    }
  };
  for (const QLabel* label : root->findChildren<QLabel*>()) {
    if (label->wordWrap() || !label->pixmap().isNull()) continue;
    const QSize text = label->fontMetrics().size(Qt::TextShowMnemonic, label->text());
    const QMargins m = label->contentsMargins();
    check(label, label->text(),
          text + QSize(m.left() + m.right() + 2 * label->margin(),
                       m.top() + m.bottom() + 2 * label->margin()));
  }
  for (const QAbstractButton* button : root->findChildren<QAbstractButton*>()) {
    const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
    check(button, button->text(), text);
  }
  return clipped;
}

}  // namespace tnw::test
