#include "common/ui/kept_list_widget.h"

// Qt
#include <QEvent>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QScrollBar>
#include <QStyleOptionFrame>
#include <QStyleOptionSlider>

namespace tnw {

void KeptScrollBar::paintEvent(QPaintEvent* event) {
  // A hovered or pressed part is drawn from state the option does not carry.
  if (underMouse() || isSliderDown() || QGuiApplication::mouseButtons() != Qt::NoButton) {
    QScrollBar::paintEvent(event);
    return;
  }
  QStyleOptionSlider option;
  initStyleOption(&option);
  KeptLookInputs in = KeptLook::commonInputs(*this, option);
  in.details = {static_cast<int>(option.orientation),
                option.minimum,
                option.maximum,
                option.sliderPosition,
                option.sliderValue,
                option.singleStep,
                option.pageStep,
                option.upsideDown ? 1 : 0,
                static_cast<int>(option.tickPosition),
                option.rect.width(),
                option.rect.height()};
  in.parts = {option.rect.x(), option.rect.y(), static_cast<int>(option.subControls),
              static_cast<int>(option.activeSubControls), option.tickInterval};
  paintKept(event, in, [this, event] { QScrollBar::paintEvent(event); });
}

KeptListWidget::KeptListWidget(QWidget* parent) : KeptLooks(parent) {
  setVerticalScrollBar(new KeptScrollBar(Qt::Vertical, this));
}

bool KeptListWidget::paintsFrameAlone() const {
  return !(horizontalScrollBar()->isVisible() && verticalScrollBar()->isVisible());
}

bool KeptListWidget::event(QEvent* event) {
  if (event->type() != QEvent::Paint || !paintsFrameAlone()) return QListWidget::event(event);
  // QAbstractScrollArea paints the list itself as QFrame does: its frame.
  QStyleOptionFrame option;
  initStyleOption(&option);
  const KeptLookInputs in = KeptLook::frameInputs(*this, option);
  bool handled = true;
  paintKept(static_cast<QPaintEvent*>(event), in,
            [this, event, &handled] { handled = QListWidget::event(event); });
  return handled;
}

}  // namespace tnw
