#include "direct/ui/button_frame.h"

#include "common/ui/whole_device_pixels.h"

// Qt
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

// Std
#include <map>
#include <tuple>

namespace tnw::direct {
namespace {

constexpr int kRadius = ButtonFrame::kRadius;
// The side of the small frame whose corners are kept: room for the corners and for the square
// ends of their arcs, which reach past the corner into the straight sides.
constexpr int kCornerSource = 2 * kRadius + 4;

// The outline of the face: a rounded rectangle through the middle of a frame b pixels wide.
QPainterPath facePath(const QRectF& r, qreal b) {
  const qreal d = 2 * kRadius - b;
  QPainterPath path;
  qreal y = r.y() + b / 2;
  path.moveTo(r.x() + kRadius, y);
  path.lineTo(r.right() - kRadius, y);
  qreal x = r.right() - b / 2;
  path.arcTo(x - 2 * kRadius + b, y, d, d, 90, -90);
  path.lineTo(x, r.bottom() - kRadius);
  y = r.bottom() - b / 2;
  path.arcTo(x - 2 * kRadius + b, y - 2 * kRadius + b, d, d, 0, -90);
  path.lineTo(r.x() + kRadius, y);
  x = r.left() + b / 2;
  path.arcTo(x, r.bottom() - 2 * kRadius + b / 2, d, d, 270, -90);
  path.lineTo(x, r.top() + kRadius);
  path.arcTo(x, r.top() + b / 2, d, d, 180, -90);
  path.closeSubpath();
  return path;
}

// The quarter arcs of the four corners, each side drawing its halves of the two corners it
// meets: bottom, right, left, top.
void strokeCorners(QPainter& painter, const QRectF& r, const QColor& border, qreal b) {
  const qreal d = 2 * kRadius - b;
  const qreal half = b / 2;
  const qreal left = r.x() + half;
  const qreal top = r.y() + half;
  const qreal right = r.x() + r.width() - 2 * kRadius + half;
  const qreal bottom = r.y() + r.height() - 2 * kRadius + half;
  painter.setPen(QPen(border, b, Qt::SolidLine, Qt::SquareCap));
  painter.setBrush(Qt::NoBrush);
  painter.drawArc(QRectF(left, bottom, d, d), -90 * 16, -45 * 16);
  painter.drawArc(QRectF(right, bottom, d, d), -90 * 16, 45 * 16);
  painter.drawArc(QRectF(right, top, d, d), 45 * 16, -45 * 16);
  painter.drawArc(QRectF(right, bottom, d, d), 315 * 16, 45 * 16);
  painter.drawArc(QRectF(left, top, d, d), 135 * 16, 45 * 16);
  painter.drawArc(QRectF(left, bottom, d, d), 180 * 16, 45 * 16);
  painter.drawArc(QRectF(left, top, d, d), 135 * 16, -45 * 16);
  painter.drawArc(QRectF(right, top, d, d), 45 * 16, 45 * 16);
}

// A small frame on a transparent ground, its corners to be copied to frames of any size.
const QImage& cornerSource(const QColor& face, const QColor& border, int width, int ratio) {
  using Key = std::tuple<QRgb, QRgb, int, int>;
  static std::map<Key, QImage> kept;
  const Key key{face.rgba(), border.rgba(), width, ratio};
  auto it = kept.find(key);
  if (it != kept.end()) return it->second;
  // Faces and frames come in a handful of colours; a long-lived host never piles them up.
  if (kept.size() >= 64) kept.clear();
  QImage image(kCornerSource * ratio, kCornerSource * ratio, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  ButtonFrame::paintSmooth(painter, QRect(0, 0, kCornerSource, kCornerSource), face, border, width);
  painter.end();
  return kept.emplace(key, std::move(image)).first->second;
}

}  // namespace

void ButtonFrame::paintSmooth(QPainter& painter, const QRect& rect, const QColor& face,
                              const QColor& border, int width) {
  const QRectF r(rect);
  const qreal b = width;
  const bool rounded = 2 * kRadius <= rect.width() && 2 * kRadius <= rect.height();
  const qreal radius = rounded ? kRadius : 0;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (rounded) {
    painter.fillPath(facePath(r, b), face);
  } else {
    painter.fillRect(r, face);
  }
  const qreal left = r.x();
  const qreal top = r.y();
  const qreal right = r.x() + r.width();
  const qreal bottom = r.y() + r.height();
  painter.setPen(Qt::NoPen);
  painter.setBrush(border);
  painter.drawRect(QRectF(left + radius, bottom - b, right - left - 2 * radius, b));
  painter.drawRect(QRectF(right - b, top + radius, b, bottom - top - 2 * radius));
  painter.drawRect(QRectF(left, top + radius, b, bottom - top - 2 * radius));
  painter.drawRect(QRectF(left + radius, top, right - left - 2 * radius, b));
  if (rounded) strokeCorners(painter, r, border, b);
  painter.restore();
}

void ButtonFrame::paint(QPainter& painter, const QRect& rect, const QColor& face,
                        const QColor& border, int width) {
  // The kept corners fit whole device pixels only: a small, fractionally scaled or transformed
  // frame is stroked.
  const int whole = wholeDeviceRatio(painter);
  if (whole == 0 || width > kRadius || rect.width() < kCornerSource ||
      rect.height() < kCornerSource) {
    paintSmooth(painter, rect, face, border, width);
    return;
  }
  const int x = rect.x();
  const int y = rect.y();
  const int w = rect.width();
  const int h = rect.height();
  const int r = kRadius;
  // The face between the corners, then the four sides.
  painter.fillRect(QRect(x + r, y + width, w - 2 * r, h - 2 * width), face);
  painter.fillRect(QRect(x + width, y + r, r - width, h - 2 * r), face);
  painter.fillRect(QRect(x + w - r, y + r, r - width, h - 2 * r), face);
  painter.fillRect(QRect(x + r, y, w - 2 * r, width), border);
  painter.fillRect(QRect(x + r, y + h - width, w - 2 * r, width), border);
  painter.fillRect(QRect(x, y + r, width, h - 2 * r), border);
  painter.fillRect(QRect(x + w - width, y + r, width, h - 2 * r), border);
  const QImage& corners = cornerSource(face, border, width, whole);
  const int far = kCornerSource - r;
  const QPoint to[] = {{x, y}, {x + w - r, y}, {x, y + h - r}, {x + w - r, y + h - r}};
  const QPoint from[] = {{0, 0}, {far, 0}, {0, far}, {far, far}};
  for (int i = 0; i < 4; ++i) {
    painter.drawImage(QRect(to[i], QSize(r, r)), corners,
                      QRect(from[i] * whole, QSize(r, r) * whole));
  }
}

}  // namespace tnw::direct
