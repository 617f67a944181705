#include "direct/ui/orientation_images.h"

// Qt
#include <QPainter>
#include <QPainterPath>

// Std
#include <cmath>

namespace tnw::direct {
namespace {

// How one face is drawn.
struct FaceStyle {
  bool smiling = true;
  bool selected = false;
  bool reference = false;
};

bool styleFor(const QString& name, FaceStyle* style) {
  if (name.startsWith(QLatin1String("Smiling"))) {
    style->smiling = true;
  } else if (name.startsWith(QLatin1String("Crying"))) {
    style->smiling = false;
  } else {
    return false;
  }
  const QString suffix = name.mid(style->smiling ? 7 : 6);
  if (suffix.isEmpty()) return true;
  if (suffix == QLatin1String("1")) {
    style->selected = true;
    return true;
  }
  if (suffix == QLatin1String("2")) {
    style->reference = true;
    return true;
  }
  return false;
}

void drawMouth(QPainter& p, const FaceStyle& s) {
  QPainterPath mouth;
  if (s.smiling) {
    mouth.moveTo(9, 19);
    mouth.quadTo(16, 26, 23, 19);
  } else {
    mouth.moveTo(10, 24);
    mouth.quadTo(16, 18, 22, 24);
  }
  p.setBrush(Qt::NoBrush);
  p.drawPath(mouth);
}

void drawTear(QPainter& p) {
  QPainterPath tear;
  tear.moveTo(22.5, 14);
  tear.quadTo(25.5, 19, 22.5, 20.5);
  tear.quadTo(19.5, 19, 22.5, 14);
  p.setPen(QPen(QColor(0, 70, 160), 0.8));
  p.setBrush(QColor(90, 170, 255));
  p.drawPath(tear);
}

// The reference attribute's badge: a small star at the top right corner.
void drawBadge(QPainter& p) {
  QPolygonF star;
  for (int i = 0; i < 10; ++i) {
    const qreal r = (i % 2 == 0) ? 6.5 : 2.8;
    const qreal a = -M_PI / 2 + i * M_PI / 5;
    star << QPointF(25.5 + r * std::cos(a), 6.5 + r * std::sin(a));
  }
  p.setPen(QPen(QColor(120, 70, 0), 0.8));
  p.setBrush(QColor(255, 200, 0));
  p.drawPolygon(star);
}

// Draws a face on a 32 x 32 design grid.
void drawFace(QPainter& p, const FaceStyle& s) {
  p.setRenderHint(QPainter::Antialiasing);
  if (s.selected) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 90, 200, 70));
    p.drawRoundedRect(QRectF(0.5, 0.5, 31, 31), 6, 6);
  }
  const QColor face = s.smiling ? QColor(255, 214, 64) : QColor(150, 190, 255);
  const QColor line = s.smiling ? QColor(130, 80, 0) : QColor(20, 50, 130);
  p.setPen(QPen(line, s.selected ? 2.2 : 1.5));
  p.setBrush(face);
  p.drawEllipse(QRectF(3, 3, 26, 26));
  p.setBrush(line);
  p.setPen(Qt::NoPen);
  p.drawEllipse(QRectF(10, 10.5, 3.5, 4));
  p.drawEllipse(QRectF(18.5, 10.5, 3.5, 4));
  p.setPen(QPen(line, 2, Qt::SolidLine, Qt::RoundCap));
  drawMouth(p, s);
  if (!s.smiling) drawTear(p);
  if (s.reference) drawBadge(p);
}

}  // namespace

QPixmap orientationPixmap(const QString& name, int size, qreal devicePixelRatio) {
  FaceStyle style;
  if (size <= 0 || !styleFor(name, &style)) return {};
  const int device = qRound(size * devicePixelRatio);
  QPixmap pixmap(device, device);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.scale(device / 32.0, device / 32.0);
  drawFace(p, style);
  p.end();
  pixmap.setDevicePixelRatio(devicePixelRatio);
  return pixmap;
}

QIcon orientationIcon(const QString& name) {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64}) {
    const QPixmap pm = orientationPixmap(name, size);
    if (!pm.isNull()) icon.addPixmap(pm);
  }
  return icon;
}

}  // namespace tnw::direct
