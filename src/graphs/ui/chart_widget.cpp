#include "graphs/ui/chart_widget.h"

#include "graphs/ui/kept_frames.h"

// Qt
#include <QPainter>

namespace tnw {

namespace {

// The chart areas alive, all on the GUI thread.
int g_areas = 0;

}  // namespace

ChartWidget::ChartWidget(QWidget* parent) : QWidget(parent) {
  ++g_areas;
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

ChartWidget::~ChartWidget() {
  // The frames are kept for charts shown again and again; with no chart area left there is
  // none to show.
  if (--g_areas == 0) KeptFrames::clear();
}

void ChartWidget::setPainter(Painter painter) {
  m_painter = std::move(painter);
  redraw();
}

void ChartWidget::redraw() {
  m_stale = true;
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
  ++m_paintCount;
  if (!m_painter) return;
  const qreal ratio = devicePixelRatioF();
  const QSize pixels(qRound(width() * ratio), qRound(height() * ratio));
  if (m_stale || m_picture.size() != pixels || m_picture.devicePixelRatio() != ratio) {
    // A picture of the same size is drawn over, not made again.
    if (m_picture.size() != pixels) m_picture = QImage(pixels, QImage::Format_RGB32);
    m_picture.setDevicePixelRatio(ratio);
    // The picture measures texts as the widget would.
    m_picture.setDotsPerMeterX(qRound(logicalDpiX() / 0.0254));
    m_picture.setDotsPerMeterY(qRound(logicalDpiY() / 0.0254));
    m_picture.fill(palette().color(QPalette::Base));
    QPainter picture(&m_picture);
    picture.setFont(font());
    m_painter(picture, QRectF(rect()));
    ++m_drawCount;
    m_stale = false;
  }
  QPainter p(this);
  p.drawImage(QPointF(0, 0), m_picture);
}

}  // namespace tnw
