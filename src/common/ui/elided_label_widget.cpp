#include "common/ui/elided_label_widget.h"

// Qt
#include <QPainter>
#include <QStyle>

namespace tnw {

ElidedLabelWidget::ElidedLabelWidget(const QString& text, QWidget* parent) : KeptLooks(parent) {
  setFullText(text);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabelWidget::setFullText(const QString& text) {
  if (this->text() == text) return;
  setText(text);
  updateToolTip();
}

void ElidedLabelWidget::setToolTipHeading(const QString& heading) {
  m_heading = heading;
  updateToolTip();
}

void ElidedLabelWidget::updateToolTip() {
  if (m_heading.isEmpty()) {
    setToolTip(text());
  } else {
    setToolTip(text().isEmpty() ? m_heading : m_heading + QLatin1Char('\n') + text());
  }
}

QString ElidedLabelWidget::shownText() const {
  return m_shortened.of(text(), *this, contentsRect().width());
}

QSize ElidedLabelWidget::minimumSizeHint() const { return sizeHint(); }

QSize ElidedLabelWidget::sizeHint() const {
  // The width is ignored by the size policy; the height is one line, as QLabel gives it.
  const QMargins m = contentsMargins();
  const int extra = 2 * margin();
  return {
      fontMetrics().horizontalAdvance(QStringLiteral("Mmmm\u2026")) + m.left() + m.right() + extra,
      fontMetrics().height() + m.top() + m.bottom() + extra};
}

void ElidedLabelWidget::paintEvent(QPaintEvent* event) {
  const QRect r = contentsRect();
  const QString shown = shownText();
  const int flags = static_cast<int>(alignment());
  if (shown.isEmpty() || !KeptText::drawsPlainItemText(style())) {
    QPainter p(this);
    style()->drawItemText(&p, r, flags, palette(), isEnabled(), shown, foregroundRole());
    return;
  }
  // The style's drawItemText, with the text drawn from its kept layout.
  paintKept(event, KeptLook::itemTextInputs(*this, shown, flags, r), [&] {
    QPainter p(this);
    p.setPen(QPen(palette().brush(foregroundRole()), p.pen().widthF()));
    m_kept.draw(p, r, flags, shown);
  });
}

}  // namespace tnw
