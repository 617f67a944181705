#include "direct/ui/indicator_widget.h"

// Qt
#include <QPainter>

namespace tnw::direct {

IndicatorWidget::IndicatorWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picIndicator"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFixedSize(sizeHint());
}

void IndicatorWidget::setFillColour(const QColor& colour) {
  if (m_colour == colour) return;
  m_colour = colour;
  update();
}

QSize IndicatorWidget::sizeHint() const { return {12, 12}; }

void IndicatorWidget::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(Qt::black, 1));
  p.setBrush(m_colour);
  p.drawEllipse(QRectF(rect()).adjusted(1, 1, -1, -1));
}

}  // namespace tnw::direct
