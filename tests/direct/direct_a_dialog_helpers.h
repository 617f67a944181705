#pragma once

#include "direct/ui/attribute_drop_filter.h"
#include "direct/ui/group_box_widget.h"

// Qt
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QStringList>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QWidget>

// Std
#include <algorithm>

namespace tnw::test {

// The elements of the control array `name` (each named name_index), in child order.
template <typename T>
QList<T*> elements(const QWidget* root, const char* name) {
  const QString pattern = QStringLiteral("^%1_\\d+$").arg(QString::fromUtf8(name));
  return root->findChildren<T*>(QRegularExpression(pattern));
}

// The control named `name`, or the element `index` of the control array `name` (named
// name_index; any element when -1), or null.
template <typename T>
T* control(const QWidget* root, const char* name, int index = -1) {
  const QString n = QString::fromUtf8(name);
  if (index >= 0) return root->findChild<T*>(n + QLatin1Char('_') + QString::number(index));
  if (T* w = root->findChild<T*>(n)) return w;
  const QList<T*> all = elements<T>(root, name);
  return all.isEmpty() ? nullptr : all.front();
}

// The shown group box of the ordering page whose tag is `group`. Found by name and tag only,
// so that it also finds the boxes of a dialog made inside the component's shared library.
inline QWidget* orderBox(const QWidget* root, int group) {
  for (QWidget* box : elements<QWidget>(root, "picOrder")) {
    if (box->property("tag").toInt() == group && box->isVisibleTo(root)) return box;
  }
  return nullptr;
}

// Whether the group box of `group` carries the selection frame (dialogs of this binary only).
inline bool orderBoxSelected(const QWidget* root, int group) {
  const auto* box = qobject_cast<const direct::GroupBoxWidget*>(orderBox(root, group));
  return box != nullptr && box->isSelected();
}

// Drags a button with `tag` onto target as the platform would deliver it: enter, move, drop.
// Returns whether the drop was accepted.
inline bool dragAndDrop(QWidget* target, const QString& tag) {
  if (target == nullptr) return false;
  QMimeData mime;
  mime.setData(direct::AttributeDropFilter::mimeType(), tag.toUtf8());
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

// Whether w is shown on the page the user sees (its window shows it and it is on screen).
inline bool shown(const QWidget* w) { return w->isVisible() && w->isVisibleTo(w->window()); }

// One line naming a control whose text does not fit: objectName, text, size and size needed.
inline QString clippedLine(const QWidget* w, const QString& text, QSize needed) {
  return QStringLiteral("%1 \"%2\" %3x%4 < %5x%6")
      .arg(w->objectName(), text)
      .arg(w->width())
      .arg(w->height())
      .arg(needed.width())
      .arg(needed.height());
}

// The space a line edit needs to show its whole text: the frame, Qt's 2-pixel margins, the
// text margins and the cursor, and at least its minimum height.
inline QSize lineEditNeeds(const QLineEdit* box) {
  const QMargins tm = box->textMargins();
  const QMargins cm = box->contentsMargins();
  QStyleOptionFrame opt;
  opt.initFrom(box);
  opt.lineWidth = box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &opt, box);
  const int text = box->fontMetrics().horizontalAdvance(box->text()) + 1;
  const QSize inner(text + 4 + tm.left() + tm.right() + cm.left() + cm.right(),
                    box->fontMetrics().height());
  const QSize outer = box->style()->sizeFromContents(QStyle::CT_LineEdit, &opt, inner, box);
  return {outer.width(), box->minimumSizeHint().height()};
}

// The space a combo box needs to show its current text and icon beside the arrow.
inline QSize comboNeeds(const QComboBox* combo) {
  QStyleOptionComboBox opt;
  opt.initFrom(combo);
  opt.editable = combo->isEditable();
  opt.currentText = combo->currentText();
  opt.currentIcon = combo->itemIcon(combo->currentIndex());
  opt.iconSize = combo->iconSize();
  const QFontMetrics fm = combo->fontMetrics();
  int width = fm.horizontalAdvance(combo->currentText());
  int height = fm.height();
  if (!opt.currentIcon.isNull()) {
    width += combo->iconSize().width() + 4;
    height = std::max(height, combo->iconSize().height());
  }
  return combo->style()->sizeFromContents(QStyle::CT_ComboBox, &opt, QSize(width, height), combo);
}

// Whether a group box's title lies wholly inside the box and is as wide as its text.
inline bool groupTitleFits(const QGroupBox* box) {
  QStyleOptionGroupBox opt;
  opt.initFrom(box);
  opt.text = box->title();
  opt.lineWidth = 1;
  opt.midLineWidth = 0;
  opt.textAlignment = box->alignment();
  opt.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
  if (box->isFlat()) opt.features |= QStyleOptionFrame::Flat;
  const QRect label =
      box->style()->subControlRect(QStyle::CC_GroupBox, &opt, QStyle::SC_GroupBoxLabel, box);
  const QSize text = box->fontMetrics().size(Qt::TextShowMnemonic, box->title());
  return box->rect().contains(label) && label.width() >= text.width() &&
         label.height() >= text.height();
}

// The visible labels, buttons, line edits, combo boxes, tabs and group-box titles under root
// whose text does not fit. A word-wrapped label must be as high as its text at its width.
inline QStringList clippedTexts(const QWidget* root) {
  QStringList clipped;
  const auto check = [&clipped](const QWidget* w, const QString& text, QSize needed) {
    if (!shown(w) || text.isEmpty()) return;
    if (w->width() < needed.width() || w->height() < needed.height()) {
      clipped.append(clippedLine(w, text, needed));
    }
  };
  for (const QLabel* label : root->findChildren<QLabel*>()) {
    if (!label->pixmap().isNull()) continue;
    if (label->wordWrap()) {
      check(label, label->text(), QSize(0, label->heightForWidth(label->width())));
      continue;
    }
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
  for (const QLineEdit* box : root->findChildren<QLineEdit*>()) {
    if (qobject_cast<const QComboBox*>(box->parentWidget()) == nullptr) {
      check(box, box->text(), lineEditNeeds(box));
    }
  }
  for (const QComboBox* combo : root->findChildren<QComboBox*>()) {
    check(combo, combo->currentText(), comboNeeds(combo));
  }
  for (const QTabBar* bar : root->findChildren<QTabBar*>()) {
    for (int i = 0; shown(bar) && i < bar->count(); ++i) {
      if (!bar->rect().contains(bar->tabRect(i))) {
        const QRect tab = bar->tabRect(i);
        clipped.append(QStringLiteral("%1 tab \"%2\" spans %3..%4 of %5")
                           .arg(bar->objectName(), bar->tabText(i))
                           .arg(tab.left())
                           .arg(tab.right())
                           .arg(bar->width()));
      }
    }
  }
  for (const QGroupBox* box : root->findChildren<QGroupBox*>()) {
    if (shown(box) && !box->title().isEmpty() && !groupTitleFits(box)) {
      clipped.append(clippedLine(box, box->title(), box->minimumSizeHint()));
    }
  }
  return clipped;
}

// Whether layout, or a layout nested in it, places w.
inline bool layoutPlaces(const QLayout* layout, const QWidget* w) {
  if (layout == nullptr) return false;
  for (int i = 0; i < layout->count(); ++i) {
    QLayoutItem* item = layout->itemAt(i);
    if (item->widget() == w || layoutPlaces(item->layout(), w)) return true;
  }
  return false;
}

// The pairs of visible sibling widgets under root whose rectangles overlap, where at least one
// of the two is placed by its parent's layout. Widgets placed by hand on a drawing (the cone's
// two handles) may meet: both handles lie on one point when the interval is a single ratio.
inline QStringList overlappingSiblings(const QWidget* root) {
  QStringList overlaps;
  const auto name = [](const QWidget* w) {
    return QStringLiteral("%1(%2)").arg(w->objectName(),
                                        QString::fromLatin1(w->metaObject()->className()));
  };
  QList<QWidget*> all = root->findChildren<QWidget*>();
  all.prepend(const_cast<QWidget*>(root));
  for (const QWidget* parent : all) {
    QList<const QWidget*> children;
    for (const QObject* o : parent->children()) {
      const auto* w = qobject_cast<const QWidget*>(o);
      if (w != nullptr && !w->isWindow() && shown(w)) children.append(w);
    }
    for (int i = 0; i < children.size(); ++i) {
      for (int j = i + 1; j < children.size(); ++j) {
        const QWidget* a = children[i];
        const QWidget* b = children[j];
        if (!layoutPlaces(parent->layout(), a) && !layoutPlaces(parent->layout(), b)) continue;
        if (a->geometry().intersects(b->geometry())) {
          overlaps.append(name(a) + QStringLiteral(" overlaps ") + name(b));
        }
      }
    }
  }
  return overlaps;
}

// Every layout problem under root: clipped texts, then overlapping siblings.
inline QStringList layoutProblems(const QWidget* root) {
  return clippedTexts(root) + overlappingSiblings(root);
}

}  // namespace tnw::test
