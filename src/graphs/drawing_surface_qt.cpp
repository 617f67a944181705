#include "graphs/drawing_surface_qt.h"

#include "graphs/palette.h"

// Qt
#include <QFontMetricsF>
#include <QPaintDevice>

// Std
#include <algorithm>
#include <cmath>

namespace tnw {

namespace {

// Screen resolution the pixel line widths are meant for.
constexpr double kScreenDpi = 96.0;

QString toQString(const std::string& text) { return QString::fromUtf8(text); }

}  // namespace

DrawingSurfaceQt::DrawingSurfaceQt(QPainter& painter, const QRectF& area)
    : m_painter(painter), m_area(area) {
  const QPaintDevice* device = painter.device();
  if (device != nullptr && device->logicalDpiX() > 0) {
    m_pixelScale = std::max(1.0, device->logicalDpiX() / kScreenDpi);
  }
}

QColor DrawingSurfaceQt::paletteColour(int index) {
  return QColor(static_cast<QRgb>(0xFF000000u | tnw::paletteColour(index)));
}

QFont DrawingSurfaceQt::fittedFont(const QFont& base, const QPaintDevice* device,
                                   double areaWidth) {
  // The charts keep 15 of their 155 horizontal units left of the plot for the scale labels.
  const double room = areaWidth * 12.0 / 155.0;
  QFont font = base;
  const double width = QFontMetricsF(font, device).horizontalAdvance(QStringLiteral("0.0000"));
  if (width <= room || width <= 0) return font;
  const double pixels = QFontMetricsF(font, device).height() * room / width;
  font.setPixelSize(std::max(6, static_cast<int>(pixels * 0.8)));
  return font;
}

void DrawingSurfaceQt::clear() {
  m_painter.fillRect(m_area, Qt::white);
  m_currentX = m_left;
  m_currentY = m_top;
}

void DrawingSurfaceQt::setAutoRedraw(bool) {}

void DrawingSurfaceQt::setScale(double left, double top, double right, double bottom) {
  m_left = left;
  m_top = top;
  m_right = right;
  m_bottom = bottom;
}

void DrawingSurfaceQt::setLineWidth(int width) { m_lineWidth = std::max(1, width); }

void DrawingSurfaceQt::setLineStyle(LineStyle style) { m_style = style; }

QPointF DrawingSurfaceQt::toDevice(double x, double y) const {
  const double w = m_right - m_left;
  const double h = m_bottom - m_top;
  const double fx = w != 0.0 ? (x - m_left) / w : 0.0;
  const double fy = h != 0.0 ? (y - m_top) / h : 0.0;
  return {m_area.left() + fx * m_area.width(), m_area.top() + fy * m_area.height()};
}

void DrawingSurfaceQt::applyPen(const QColor& colour) {
  QPen pen(colour, m_lineWidth * m_pixelScale);
  pen.setStyle(m_style == LineStyle::Dot ? Qt::DotLine : Qt::SolidLine);
  pen.setCapStyle(Qt::FlatCap);
  m_painter.setPen(pen);
}

void DrawingSurfaceQt::line(double x1, double y1, double x2, double y2, int colour) {
  if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return;
  applyPen(paletteColour(colour));
  m_painter.drawLine(toDevice(x1, y1), toDevice(x2, y2));
}

void DrawingSurfaceQt::fillBox(double x1, double y1, double x2, double y2, int colour) {
  if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return;
  m_painter.fillRect(QRectF(toDevice(x1, y1), toDevice(x2, y2)).normalized(),
                     paletteColour(colour));
}

void DrawingSurfaceQt::setElidedTexts(std::vector<std::string> texts, double maxWidth) {
  m_elidedTexts = std::move(texts);
  m_elideWidth = maxWidth;
}

QFont DrawingSurfaceQt::fontFitting(const QFont& base, const QPaintDevice* device,
                                    const std::vector<std::string>& texts, double width) {
  double longest = 0.0;
  const QFontMetricsF fm(base, device);
  for (const std::string& t : texts)
    longest = std::max(longest, fm.horizontalAdvance(toQString(t)));
  if (longest <= width || longest <= 0.0 || width <= 0.0) return base;
  QFont font = base;
  const double pixels = QFontMetricsF(base, device).height() / 1.2 * width / longest;
  font.setPixelSize(std::max(7, static_cast<int>(pixels)));
  return font;
}

QString DrawingSurfaceQt::shown(const std::string& text) const {
  const QString t = toQString(text);
  if (m_elideWidth <= 0.0 || m_right == m_left ||
      std::find(m_elidedTexts.begin(), m_elidedTexts.end(), text) == m_elidedTexts.end()) {
    return t;
  }
  const QFontMetricsF fm(m_painter.font(), m_painter.device());
  const double device = m_elideWidth * m_area.width() / std::abs(m_right - m_left);
  return fm.elidedText(t, Qt::ElideRight, device);
}

double DrawingSurfaceQt::textWidth(const std::string& text) const {
  const QFontMetricsF fm(m_painter.font(), m_painter.device());
  const double w = m_right - m_left;
  if (m_area.width() <= 0) return 0.0;
  return fm.horizontalAdvance(shown(text)) * std::abs(w) / m_area.width();
}

double DrawingSurfaceQt::textHeight(const std::string&) const {
  const QFontMetricsF fm(m_painter.font(), m_painter.device());
  if (m_area.height() <= 0) return 0.0;
  // Signed as the y axis runs, so that y + height is one line further down the area.
  return fm.height() * (m_bottom - m_top) / m_area.height();
}

void DrawingSurfaceQt::setCurrentX(double x) { m_currentX = x; }

void DrawingSurfaceQt::setCurrentY(double y) { m_currentY = y; }

void DrawingSurfaceQt::print(const std::string& text) {
  if (std::isfinite(m_currentX) && std::isfinite(m_currentY)) {
    const QFontMetricsF fm(m_painter.font(), m_painter.device());
    m_painter.setPen(Qt::black);
    const QPointF topLeft = toDevice(m_currentX, m_currentY);
    m_painter.drawText(QPointF(topLeft.x(), topLeft.y() + fm.ascent()), shown(text));
  }
  m_currentX = m_left;
  m_currentY += textHeight(text);
}

}  // namespace tnw
