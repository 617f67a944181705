#include "common/ui/kept_list_widget.h"

// Qt
#include <QEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QStyleOptionFrame>

namespace tnw {

bool KeptListWidget::paintsFrameAlone() const {
  return !(horizontalScrollBar()->isVisible() && verticalScrollBar()->isVisible());
}

bool KeptListWidget::event(QEvent* event) {
  if (event->type() != QEvent::Paint || !paintsFrameAlone()) return QListWidget::event(event);
  // QAbstractScrollArea paints the list itself as QFrame does: its frame.
  QStyleOptionFrame option;
  initStyleOption(&option);
  KeptLookInputs in = KeptLook::commonInputs(*this, option);
  in.details = {static_cast<int>(option.frameShape),
                static_cast<int>(option.features),
                option.lineWidth,
                option.midLineWidth,
                option.rect.width(),
                option.rect.height()};
  bool handled = true;
  paintKept(static_cast<QPaintEvent*>(event), in,
            [this, event, &handled] { handled = QListWidget::event(event); });
  return handled;
}

}  // namespace tnw
