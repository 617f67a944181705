#include "tradeoffs/ui/pc_graph_widget.h"

#include "tradeoffs/ui/pc_point_widget.h"

// Qt
#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionFrame>

// Std
#include <algorithm>
#include <cmath>

namespace tnw::tradeoffs {

namespace {

// Free space between the frame and the plot, so a point at a range end stays whole.
constexpr int kMargin = 16;

double clampUnit(double f) { return std::isfinite(f) ? std::clamp(f, 0.0, 1.0) : 0.0; }

}  // namespace

PcGraphWidget::PcGraphWidget(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("framePCGraph"));
  setFrameShape(QFrame::StyledPanel);
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  m_points[PointA] = new PcPointWidget(QStringLiteral("A"), QColor(0, 0, 160), this);
  m_points[PointA]->setObjectName(QStringLiteral("shpPCA"));
  m_points[PointB] = new PcPointWidget(QStringLiteral("B"), QColor(176, 0, 0), this);
  m_points[PointB]->setObjectName(QStringLiteral("shpPCB"));
}

void PcGraphWidget::setPoint(Point which, QPointF fraction) {
  const QPointF f(clampUnit(fraction.x()), clampUnit(fraction.y()));
  if (f == m_fractions[which]) return;
  m_fractions[which] = f;
  placePoints();
  update();
}

QPointF PcGraphWidget::point(Point which) const { return m_fractions[which]; }

void PcGraphWidget::setDragCursor(Point which, const QCursor& cursor) {
  m_points[which]->setDragCursor(cursor);
}

QRectF PcGraphWidget::plotRect() const {
  return QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
}

QPointF PcGraphWidget::toWidget(QPointF fraction) const {
  const QRectF r = plotRect();
  return {r.left() + clampUnit(fraction.x()) * r.width(),
          r.bottom() - clampUnit(fraction.y()) * r.height()};
}

QPointF PcGraphWidget::toFraction(QPointF widgetPos) const {
  const QRectF r = plotRect();
  const double fx = r.width() > 0 ? clampUnit((widgetPos.x() - r.left()) / r.width()) : 0.0;
  const double fy = r.height() > 0 ? clampUnit((r.bottom() - widgetPos.y()) / r.height()) : 0.0;
  return {fx, fy};
}

QSize PcGraphWidget::sizeHint() const { return {260, 220}; }

QSize PcGraphWidget::minimumSizeHint() const { return {140, 120}; }

void PcGraphWidget::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  placePoints();
}

void PcGraphWidget::placePoints() {
  const int d = PcPointWidget::diameter();
  for (int i = 0; i < 2; ++i) {
    if (m_points[i]->dragging()) continue;
    const QPointF c = toWidget(m_fractions[i]);
    m_points[i]->move(qRound(c.x() - d / 2.0), qRound(c.y() - d / 2.0));
  }
}

void PcGraphWidget::dragPointTo(PcPointWidget* shape, QPointF widgetPos, bool final) {
  const int which = shape == m_points[PointA] ? PointA : PointB;
  const QPointF fraction = toFraction(widgetPos);
  const QPointF snapped = toWidget(fraction);
  const int d = PcPointWidget::diameter();
  shape->move(qRound(snapped.x() - d / 2.0), qRound(snapped.y() - d / 2.0));
  m_fractions[which] = fraction;
  update();
  emit pointDragged(which, fraction, final);
}

void PcGraphWidget::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) m_grid = QPixmap();
  QFrame::changeEvent(event);
}

PcGraphWidget::GridColours PcGraphWidget::gridColours() const {
  // The colours of the palette's current group, which follows the enabled and active states.
  GridColours colours;
  colours.background = palette().brush(backgroundRole());
  colours.grid = palette().color(QPalette::Mid);
  colours.axes = palette().color(QPalette::WindowText);
  if (colours.background.isOpaque()) {
    QStyleOptionFrame option;
    initStyleOption(&option);
    colours.style = style();
    colours.framePalette = option.palette;
    colours.frame = {static_cast<int>(option.state),
                     static_cast<int>(option.direction),
                     static_cast<int>(option.frameShape),
                     static_cast<int>(option.features),
                     option.lineWidth,
                     option.midLineWidth,
                     static_cast<int>(option.palette.currentColorGroup())};
  }
  return colours;
}

void PcGraphWidget::paintEvent(QPaintEvent* event) {
  const QRectF r = plotRect();
  const qreal ratio = devicePixelRatioF();
  const GridColours colours = gridColours();
  // Over an opaque background the frame is kept with the grid; the style draws it the same over
  // the same background.
  const bool keptFrame = colours.style != nullptr;
  if (!keptFrame) QFrame::paintEvent(event);
  if (m_grid.isNull() || m_grid.size() != size() * ratio || m_grid.devicePixelRatio() != ratio ||
      colours != m_gridColours) {
    m_gridColours = colours;
    // The grid is drawn once over the background, so that a paint copies it as an opaque
    // picture instead of blending a transparent one; its lines are not antialiased, so the pixels
    // are the same either way.
    m_grid = QPixmap(size() * ratio);
    m_grid.setDevicePixelRatio(ratio);
    QPainter g(&m_grid);
    if (keptFrame) {
      g.fillRect(rect(), colours.background);
      drawFrame(&g);
    } else {
      // A see-through background is the widget's own fill; the grid goes over it.
      g.setCompositionMode(QPainter::CompositionMode_Source);
      g.fillRect(rect(), Qt::transparent);
      g.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    QPen dotted(colours.grid, 1, Qt::DotLine);
    g.setPen(dotted);
    for (int i = 1; i < 4; ++i) {
      const double x = r.left() + r.width() * i / 4.0;
      const double y = r.top() + r.height() * i / 4.0;
      g.drawLine(QPointF(x, r.top()), QPointF(x, r.bottom()));
      g.drawLine(QPointF(r.left(), y), QPointF(r.right(), y));
    }
    g.setPen(QPen(colours.axes, 1.5));
    g.drawLine(r.bottomLeft(), r.topLeft());
    g.drawLine(r.bottomLeft(), r.bottomRight());
  }
  QPainter p(this);
  // Without a kept frame, inside the frame only: the frame is the style's.
  const QRect shown = keptFrame ? rect() : contentsRect();
  p.drawPixmap(shown, m_grid,
               QRectF(QPointF(shown.topLeft()) * ratio, QSizeF(shown.size()) * ratio));
  // The projections of A and B onto the axes make the two score differences visible.
  const QColor pointColours[2] = {QColor(0, 0, 160), QColor(176, 0, 0)};
  for (int i = 0; i < 2; ++i) {
    const QPointF c = toWidget(m_fractions[i]);
    p.setPen(QPen(pointColours[i], 1, Qt::DashLine));
    p.drawLine(c, QPointF(c.x(), r.bottom()));
    p.drawLine(c, QPointF(r.left(), c.y()));
  }
}

}  // namespace tnw::tradeoffs
