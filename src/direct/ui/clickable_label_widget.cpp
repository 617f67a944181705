#include "direct/ui/clickable_label_widget.h"

// Qt
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

// Std
#include <algorithm>

namespace tnw::direct {

ClickableLabelWidget::ClickableLabelWidget(const QString& arrayName, int index, QWidget* parent)
    : QLabel(parent), m_index(index) {
  setObjectName(arrayName + QLatin1Char('_') + QString::number(index));
}

void ClickableLabelWidget::setElided(bool elided) {
  m_elided = elided;
  updateGeometry();
  update();
}

QString ClickableLabelWidget::shownText() const {
  if (!m_elided) return text();
  return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

QSize ClickableLabelWidget::minimumSizeHint() const {
  const QSize size = QLabel::minimumSizeHint();
  if (!m_elided) return size;
  return {std::min(size.width(), fontMetrics().horizontalAdvance(QStringLiteral("Mmmm\u2026"))),
          size.height()};
}

void ClickableLabelWidget::paintEvent(QPaintEvent* event) {
  if (!m_elided) {
    QLabel::paintEvent(event);
    return;
  }
  QPainter p(this);
  style()->drawItemText(&p, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                        shownText(), foregroundRole());
}

void ClickableLabelWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    emit clicked();
  }
  QLabel::mouseReleaseEvent(event);
}

}  // namespace tnw::direct
