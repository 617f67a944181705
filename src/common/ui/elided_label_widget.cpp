#include "common/ui/elided_label_widget.h"

// Qt
#include <QPainter>
#include <QStyle>

namespace tnw {

ElidedLabelWidget::ElidedLabelWidget(const QString& text, QWidget* parent) : QLabel(parent) {
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
  return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
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

void ElidedLabelWidget::paintEvent(QPaintEvent*) {
  QPainter p(this);
  const QRect r = contentsRect();
  const QString shown = shownText();
  style()->drawItemText(&p, r, static_cast<int>(alignment()), palette(), isEnabled(), shown,
                        foregroundRole());
}

}  // namespace tnw
