#include "direct/ui/cone_area_widget.h"

#include "common/ui/whole_device_pixels.h"
#include "direct/core/preference_cone.h"

// Qt
#include <QFrame>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

// Std
#include <algorithm>
#include <cmath>
#include <cstring>

namespace tnw::direct {
namespace {

constexpr int kHandlePixels = 11;
// The cone's fill: light peach, 0xC0E0FF in the system's BGR notation.
const QColor kConeFill(255, 224, 192);

}  // namespace

ConeAreaWidget::ConeAreaWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picTradeOffsRange"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  for (int i = 0; i < 2; ++i) {
    auto* h = new QFrame(this);
    h->setObjectName(QStringLiteral("picHandle_%1").arg(i));
    h->setFixedSize(kHandlePixels, kHandlePixels);
    h->setFrameShape(QFrame::Box);
    h->setAutoFillBackground(true);
    QPalette pal = h->palette();
    pal.setColor(QPalette::Window, i == 0 ? QColor(0, 0, 160) : QColor(160, 0, 0));
    h->setPalette(pal);
    h->setCursor(Qt::SizeAllCursor);
    h->setToolTip(i == 0 ? tr("Drag to set one end of the interval")
                         : tr("Drag to set the other end of the interval"));
    h->installEventFilter(this);
    m_handles[static_cast<std::size_t>(i)] = h;
  }
  m_handlePos = {QPointF(0, m_side), QPointF(0, m_side)};
  layoutHandles();
}

void ConeAreaWidget::setAreaSide(double side) {
  if (side <= 0.0 || side == m_side) return;
  m_side = side;
  layoutHandles();
  update();
}

void ConeAreaWidget::setHandlePosition(int index, QPointF areaPoint) {
  if (index < 0 || index > 1) return;
  m_handlePos[static_cast<std::size_t>(index)] = areaPoint;
  layoutHandles();
}

QPointF ConeAreaWidget::handlePosition(int index) const {
  if (index < 0 || index > 1) return {};
  return m_handlePos[static_cast<std::size_t>(index)];
}

void ConeAreaWidget::setCone(const QPolygonF& areaPolygon) {
  m_cone = areaPolygon;
  update();
}

void ConeAreaWidget::setHandlesVisible(bool visible) {
  for (QFrame* h : m_handles) h->setVisible(visible);
}

QFrame* ConeAreaWidget::handle(int index) const {
  if (index < 0 || index > 1) return nullptr;
  return m_handles[static_cast<std::size_t>(index)];
}

QRectF ConeAreaWidget::squareRect() const {
  const int side = std::min(width(), height());
  return QRectF(0, height() - side, side, side);
}

double ConeAreaWidget::scale() const { return squareRect().width() / m_side; }

QPointF ConeAreaWidget::toPixels(QPointF areaPoint) const {
  const QRectF sq = squareRect();
  return sq.topLeft() + areaPoint * scale();
}

QPointF ConeAreaWidget::toArea(QPointF pixelPoint) const {
  const double s = scale();
  if (s <= 0.0) return {};
  return (pixelPoint - squareRect().topLeft()) / s;
}

QSize ConeAreaWidget::sizeHint() const { return {240, 240}; }

QSize ConeAreaWidget::minimumSizeHint() const { return {160, 160}; }

void ConeAreaWidget::layoutHandles() {
  // The handles are placed on the square in pixels, kept whole inside it by the cone geometry.
  const QRectF sq = squareRect();
  const PreferenceCone pixels(static_cast<float>(sq.width()), static_cast<float>(kHandlePixels));
  for (std::size_t i = 0; i < m_handles.size(); ++i) {
    const QPointF c = toPixels(m_handlePos[i]) - sq.topLeft();
    const IntPoint at =
        pixels.handleTopLeft({static_cast<float>(c.x()), static_cast<float>(c.y())});
    m_handles[i]->move(qRound(sq.left()) + at.x, qRound(sq.top()) + at.y);
  }
}

void ConeAreaWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  layoutHandles();
}

void ConeAreaWidget::paintEvent(QPaintEvent* event) {
  // The drawing is kept as a picture until the cone, the side, the size, the scale or the colours
  // change: the page is often shown again with the same cone. While a handle is dragged the cone
  // changes at every step, and a picture fitting whole device pixels only is kept.
  if (m_dragging < 0 && copyIntoStore(*event)) return;
  QPainter p(this);
  const int ratio = wholeDeviceRatio(p);
  if (m_dragging >= 0 || ratio == 0) {
    m_picture = QImage();
    paintArea(p);
    return;
  }
  p.drawImage(QPoint(0, 0), picture(ratio, QImage::Format_ARGB32_Premultiplied));
}

const QImage& ConeAreaWidget::picture(int ratio, QImage::Format format) {
  if (m_picture.isNull() || m_picture.devicePixelRatio() != ratio || m_picture.format() != format ||
      m_picture.deviceIndependentSize() != QSizeF(size()) || m_pictureCone != m_cone ||
      m_pictureSide != m_side || m_picturePalette != palette().cacheKey()) {
    m_picture = QImage(size() * ratio, format);
    m_picture.setDevicePixelRatio(ratio);
    QPainter picture(&m_picture);
    paintArea(picture);
    m_pictureCone = m_cone;
    m_pictureSide = m_side;
    m_picturePalette = palette().cacheKey();
  }
  return m_picture;
}

bool ConeAreaWidget::copyIntoStore(const QPaintEvent& event) {
  // A paint into an image (a backing store) at a whole device pixel ratio, through no painter of
  // anyone else's, takes the picture's rows as they are: the drawing is opaque. A painter would
  // draw the picture span by span through the clip that leaves out the handles.
  QPoint offset;
  QPaintDevice* device = redirected(&offset);
  if (device == nullptr || sharedPainter() != nullptr || device->paintingActive() ||
      device->devType() != QInternal::Image) {
    return false;
  }
  auto& store = *static_cast<QImage*>(device);
  const qreal dpr = store.devicePixelRatio();
  const int ratio = static_cast<int>(std::lround(dpr));
  if (store.depth() != 32 || ratio < 1 || static_cast<qreal>(ratio) != dpr) return false;
  const QPoint origin = -offset * ratio;
  if (!store.rect().contains(QRect(origin, size() * ratio))) return false;
  const QImage& drawing = picture(ratio, store.format());
  constexpr std::size_t kPixelBytes = 4;
  const qsizetype stride = store.bytesPerLine();
  uchar* const bits = store.bits();
  for (const QRect& r : event.region() & rect()) {
    const QRect d(r.topLeft() * ratio, r.size() * ratio);
    const std::size_t bytes = static_cast<std::size_t>(d.width()) * kPixelBytes;
    for (int y = d.top(); y <= d.bottom(); ++y) {
      std::memcpy(bits + (origin.y() + y) * stride +
                      static_cast<std::size_t>(origin.x() + d.x()) * kPixelBytes,
                  drawing.constScanLine(y) + static_cast<std::size_t>(d.x()) * kPixelBytes, bytes);
    }
  }
  ++m_storeCopies;
  return true;
}

void ConeAreaWidget::paintArea(QPainter& p) const {
  p.fillRect(rect(), palette().color(QPalette::Window));
  const QRectF sq = squareRect();
  p.fillRect(sq, palette().color(QPalette::Base));
  p.setRenderHint(QPainter::Antialiasing);
  // Grid lines at the reach of the handles: a ratio of 1 lies on their crossing.
  p.setPen(QPen(palette().color(QPalette::Mid), 1, Qt::DotLine));
  const QPointF reach = toPixels(QPointF(0.7 * m_side, 0.3 * m_side));
  p.drawLine(QPointF(reach.x(), sq.top()), QPointF(reach.x(), sq.bottom()));
  p.drawLine(QPointF(sq.left(), reach.y()), QPointF(sq.right(), reach.y()));
  p.drawLine(sq.bottomLeft(), toPixels(QPointF(m_side, 0)));
  if (m_cone.size() >= 3) {
    QPolygonF px;
    for (const QPointF& pt : m_cone) px << toPixels(pt);
    p.setPen(QPen(palette().color(QPalette::Base), 1));
    p.setBrush(kConeFill);
    p.drawPolygon(px, Qt::WindingFill);
    p.setPen(QPen(QColor(200, 120, 40), 1.5));
    p.drawLine(px[0], px[1]);
    p.drawLine(px[0], px[2]);
  }
  p.setRenderHint(QPainter::Antialiasing, false);
  p.setPen(palette().color(QPalette::Dark));
  p.setBrush(Qt::NoBrush);
  p.drawRect(sq.adjusted(0, 0, -1, -1));
}

bool ConeAreaWidget::eventFilter(QObject* watched, QEvent* event) {
  const auto it = std::find(m_handles.begin(), m_handles.end(), watched);
  if (it == m_handles.end()) return QWidget::eventFilter(watched, event);
  const int index = static_cast<int>(it - m_handles.begin());
  switch (event->type()) {
    case QEvent::MouseButtonPress: {
      auto* me = static_cast<QMouseEvent*>(event);
      if (me->button() != Qt::LeftButton) return false;
      m_dragging = index;
      // Measured from the handle's centre: the point goes where the handle is dragged, also for
      // a handle kept inside the square beside its point.
      m_grabOffset = me->position() - QPointF(kHandlePixels / 2.0, kHandlePixels / 2.0);
      return true;
    }
    case QEvent::MouseMove: {
      if (m_dragging != index) return false;
      auto* me = static_cast<QMouseEvent*>(event);
      const QPointF centre = (*it)->mapTo(this, me->position()) - m_grabOffset;
      QPointF area = toArea(centre);
      area.setX(std::clamp(area.x(), 0.0, m_side));
      area.setY(std::clamp(area.y(), 0.0, m_side));
      emit handleDragged(index, area);
      return true;
    }
    case QEvent::MouseButtonRelease:
      if (m_dragging != index) return false;
      m_dragging = -1;
      emit handleReleased(index);
      return true;
    default:
      return false;
  }
}

}  // namespace tnw::direct
