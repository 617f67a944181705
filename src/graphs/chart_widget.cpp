#include "graphs/chart_widget.h"

// Qt
#include <QPainter>

namespace tnw {

ChartWidget::ChartWidget(QWidget* parent) : QWidget(parent) {
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartWidget::setPainter(Painter painter) {
  m_painter = std::move(painter);
  update();
}

QSize ChartWidget::sizeHint() const {
  const int em = fontMetrics().height();
  return {em * 24, em * 16};
}

QSize ChartWidget::minimumSizeHint() const {
  const int em = fontMetrics().height();
  return {em * 16, em * 11};
}

void ChartWidget::paintEvent(QPaintEvent*) {
  if (!m_painter) return;
  // The charts are axis-parallel lines and boxes: drawn without antialiasing they stay crisp
  // and keep their palette colours exactly.
  QPainter p(this);
  m_painter(p, QRectF(rect()));
  ++m_paintCount;
}

}  // namespace tnw
