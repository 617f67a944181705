#include "graphs/ui/painter_surface.h"

#include "graphs/core/palette.h"

// Qt
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QList>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QTextLayout>

// Std
#include <algorithm>
#include <cmath>
#include <vector>

namespace tnw {

namespace {

// Screen resolution the pixel line widths are meant for.
constexpr double kScreenDpi = 96.0;

QString toQString(const std::string& text) { return QString::fromUtf8(text); }

// The size of a font in points, also when it was given in pixels of the device.
double pointsOf(const QFont& font, const QPaintDevice* device) {
  if (font.pointSizeF() > 0) return font.pointSizeF();
  const double dpi = device != nullptr && device->logicalDpiY() > 0 ? device->logicalDpiY() : 96.0;
  return font.pixelSize() > 0 ? font.pixelSize() * 72.0 / dpi : 9.0;
}

// The font scaled by `factor`, in points so that it reads alike on a screen and on a printer,
// and never below the smallest size the charts use.
QFont scaledFont(const QFont& base, const QPaintDevice* device, double factor) {
  QFont font = base;
  font.setPointSizeF(
      std::max(PainterSurface::kMinimumPoints, pointsOf(base, device) * std::min(factor, 1.0)));
  return font;
}

// The texts of the charts, each measured and laid out once in a font on a device resolution: a
// chart prints the same scale labels and item names at every paint, and the layout of its texts
// was most of the time of a paint. Painting happens in one thread; each thread has its cache.
class TextCache {
 public:
  // A text's advance width and, once asked for, its glyphs with the baseline at y = ascent.
  struct Laid {
    double advance = 0.0;
    double ascent = 0.0;
    QList<QGlyphRun> runs;
    bool hasRuns = false;
  };

  // A font's line height and ascent on `device`.
  struct Line {
    double height = 0.0;
    double ascent = 0.0;
  };

  // The line height and ascent of the font as the painter on `device` would measure them.
  const Line& line(const QFont& font, const QPaintDevice* device) {
    Bucket& b = bucket(font, device);
    if (!b.hasLine) {
      const QFontMetricsF fm(font, device);
      b.line = {fm.height(), fm.ascent()};
      b.hasLine = true;
    }
    return b.line;
  }

  // The text measured in the font as the painter on `device` would.
  const Laid& measured(const QFont& font, const QPaintDevice* device, const QString& text) {
    return entry(font, device, text);
  }

  // The text measured and laid out in the font as drawText on `device` would lay it out.
  const Laid& laidOut(const QFont& font, QPaintDevice* device, const QString& text) {
    Laid& laid = entry(font, device, text);
    if (!laid.hasRuns) {
      QTextLayout layout(text, font, device);
      layout.setCacheEnabled(true);
      layout.beginLayout();
      const QTextLine line = layout.createLine();
      layout.endLayout();
      laid.ascent = line.isValid() ? line.ascent() : 0.0;
      laid.runs = layout.glyphRuns();
      laid.hasRuns = true;
    }
    return laid;
  }

 private:
  // The texts of one font at one resolution.
  struct Bucket {
    QFont font;
    int dpiX = 0;
    int dpiY = 0;
    QHash<QString, Laid> texts;
    Line line;
    bool hasLine = false;
  };
  // Past these, the cache starts again: the charts use a few fonts and a few hundred texts.
  static constexpr std::size_t kMostFonts = 16;
  static constexpr qsizetype kMostTexts = 1024;

  Bucket& bucket(const QFont& font, const QPaintDevice* device) {
    const int dpiX = device != nullptr ? device->logicalDpiX() : 0;
    const int dpiY = device != nullptr ? device->logicalDpiY() : 0;
    for (Bucket& b : m_buckets) {
      if (b.dpiX == dpiX && b.dpiY == dpiY && b.font == font) {
        if (b.texts.size() > kMostTexts) b.texts.clear();
        return b;
      }
    }
    if (m_buckets.size() >= kMostFonts) m_buckets.clear();
    m_buckets.push_back({font, dpiX, dpiY, {}, {}, false});
    return m_buckets.back();
  }

  // The kept entry of the text, measured when it is new.
  Laid& entry(const QFont& font, const QPaintDevice* device, const QString& text) {
    QHash<QString, Laid>& texts = bucket(font, device).texts;
    auto it = texts.find(text);
    if (it == texts.end()) {
      Laid laid;
      laid.advance = QFontMetricsF(font, device).horizontalAdvance(text);
      it = texts.insert(text, laid);
    }
    return *it;
  }

  std::vector<Bucket> m_buckets;
};

// Whether texts on images are drawn from the kept layouts (see setTextLayoutsKept).
bool keepTextLayouts = true;

TextCache& textCache() {
  thread_local TextCache cache;
  return cache;
}

const TextCache::Line& lineOf(const QFont& font, const QPaintDevice* device) {
  return textCache().line(font, device);
}

double advanceOf(const QFont& font, const QPaintDevice* device, const QString& text) {
  return textCache().measured(font, device, text).advance;
}

double longestWidth(const QFont& font, const QPaintDevice* device,
                    const std::vector<std::string>& texts) {
  double longest = 0.0;
  for (const std::string& t : texts)
    longest = std::max(longest, advanceOf(font, device, toQString(t)));
  return longest;
}

// Draws a text with its baseline starting at `baseline`, as QPainter::drawText does. On the
// raster engine (widgets and images) the text's glyphs come from the cache; the other engines
// (SVG, PDF, printers) are handed the text itself, which they keep as text.
void drawTextAt(QPainter& painter, const QPointF& baseline, const QString& text) {
  QPaintEngine* engine = painter.paintEngine();
  if (!keepTextLayouts || engine == nullptr || engine->type() != QPaintEngine::Raster) {
    painter.drawText(baseline, text);
    return;
  }
  const TextCache::Laid& laid = textCache().laidOut(painter.font(), painter.device(), text);
  const QPointF origin(baseline.x(), baseline.y() - laid.ascent);
  for (const QGlyphRun& run : laid.runs) painter.drawGlyphRun(origin, run);
}

}  // namespace

PainterSurface::PainterSurface(QPainter& painter, const QRectF& area)
    : m_painter(painter), m_area(area) {
  const QPaintDevice* device = painter.device();
  if (device != nullptr && device->logicalDpiX() > 0) {
    m_pixelScale = std::max(1.0, device->logicalDpiX() / kScreenDpi);
  }
}

void PainterSurface::setTextLayoutsKept(bool kept) { keepTextLayouts = kept; }

QColor PainterSurface::paletteColour(int index) {
  return QColor(static_cast<QRgb>(0xFF000000u | tnw::paletteColour(index)));
}

QFont PainterSurface::fittedFont(const QFont& base, const QPaintDevice* device, double areaWidth) {
  // The charts keep 15 of their 155 horizontal units left of the plot for the scale labels.
  const double room = areaWidth * 12.0 / 155.0;
  const double width = advanceOf(base, device, QStringLiteral("0.0000"));
  if (width <= room || width <= 0) return base;
  return scaledFont(base, device, room / width * 0.95);
}

QFont PainterSurface::fontFitting(const QFont& base, const QPaintDevice* device,
                                  const std::vector<std::string>& texts, double width) {
  const double longest = longestWidth(base, device, texts);
  if (longest <= width || longest <= 0.0 || width <= 0.0) return base;
  return scaledFont(base, device, width / longest * 0.98);
}

void PainterSurface::clear() {
  m_painter.fillRect(m_area, Qt::white);
  m_currentX = m_left;
  m_currentY = m_top;
}

void PainterSurface::setAutoRedraw(bool) {}

void PainterSurface::setScale(double left, double top, double right, double bottom) {
  m_left = left;
  m_top = top;
  m_right = right;
  m_bottom = bottom;
  m_itemLayout.reset();
}

void PainterSurface::setLineWidth(int width) { m_lineWidth = std::max(1, width); }

void PainterSurface::setLineStyle(LineStyle style) { m_style = style; }

QPointF PainterSurface::toDevice(double x, double y) const {
  const double w = m_right - m_left;
  const double h = m_bottom - m_top;
  const double fx = w != 0.0 ? (x - m_left) / w : 0.0;
  const double fy = h != 0.0 ? (y - m_top) / h : 0.0;
  return {m_area.left() + fx * m_area.width(), m_area.top() + fy * m_area.height()};
}

double PainterSurface::userPerDeviceX() const {
  return m_area.width() > 0 ? std::abs(m_right - m_left) / m_area.width() : 0.0;
}

double PainterSurface::userPerDeviceY() const {
  // Signed as the y axis runs, so that y + height is one line further down the area.
  return m_area.height() > 0 ? (m_bottom - m_top) / m_area.height() : 0.0;
}

void PainterSurface::applyPen(const QColor& colour) {
  QPen pen(colour, m_lineWidth * m_pixelScale);
  pen.setStyle(m_style == LineStyle::Dot ? Qt::DotLine : Qt::SolidLine);
  pen.setCapStyle(Qt::FlatCap);
  m_painter.setPen(pen);
}

void PainterSurface::line(double x1, double y1, double x2, double y2, int colour) {
  if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return;
  applyPen(paletteColour(colour));
  m_painter.drawLine(toDevice(x1, y1), toDevice(x2, y2));
}

void PainterSurface::fillBox(double x1, double y1, double x2, double y2, int colour) {
  if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return;
  m_painter.fillRect(QRectF(toDevice(x1, y1), toDevice(x2, y2)).normalized(),
                     paletteColour(colour));
}

void PainterSurface::setItemTexts(std::vector<std::string> texts, double slotWidth, double room,
                                  double row) {
  m_itemTexts = std::move(texts);
  m_slotWidth = slotWidth;
  m_room = room;
  m_itemRow = row;
  m_itemLayout.reset();
}

bool PainterSurface::itemTextsTurned() const { return itemLayout().turned; }

QFont PainterSurface::itemFont() const { return itemLayout().font; }

bool PainterSurface::isItemText(const std::string& text) const {
  // The chart routines print the item names, and only them, on the row under the plot.
  return m_currentY == m_itemRow &&
         std::find(m_itemTexts.begin(), m_itemTexts.end(), text) != m_itemTexts.end();
}

const PainterSurface::ItemLayout& PainterSurface::itemLayout() const {
  if (!m_itemLayout) m_itemLayout = makeItemLayout();
  return *m_itemLayout;
}

PainterSurface::ItemLayout PainterSurface::makeItemLayout() const {
  ItemLayout layout;
  const QPaintDevice* device = m_painter.device();
  const double perX = userPerDeviceX();
  const double perY = std::abs(userPerDeviceY());
  const double slot = perX > 0 ? m_slotWidth / perX : 0.0;
  const double room = perY > 0 ? m_room / perY : 0.0;
  const QFont base = m_painter.font();
  // Each name is measured once, in the painter's font; a text's width grows with the font's
  // size, so smaller fonts are judged from these widths.
  std::vector<double> widths;
  widths.reserve(m_itemTexts.size());
  for (const std::string& t : m_itemTexts) widths.push_back(advanceOf(base, device, toQString(t)));
  // The font is chosen for the name at three quarters of the lengths, so that one long name
  // does not make all the others small: the few longer are shortened.
  std::vector<std::size_t> order(widths.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::sort(order.begin(), order.end(), [&](auto a, auto b) { return widths[a] < widths[b]; });
  const std::size_t typicalIndex = order.empty() ? 0 : order[((order.size() - 1) * 3 + 3) / 4];
  const double typical = order.empty() ? 0.0 : widths[typicalIndex];
  double factor = typical > slot && typical > 0 ? slot / typical * 0.98 : 1.0;
  layout.font = scaledFont(base, device, factor);
  if (factor < 1.0) {
    // Hinting does not scale quite linearly: that name is measured once more.
    const QString name = toQString(m_itemTexts[typicalIndex]);
    const double real = advanceOf(layout.font, device, name);
    if (real > slot) {
      factor *= slot / real;
      layout.font = scaledFont(base, device, factor);
    }
  }
  double length = slot;
  if (layout.font.pointSizeF() > pointsOf(base, device) * factor * 1.001) {
    // Upright, each name needs one line's height of its slot and may take the room below: the
    // font shrinks for both, no further than the smallest size.
    layout.turned = true;
    const double line = lineOf(base, device).height;
    factor = std::min(line > slot && line > 0 ? slot / line : 1.0,
                      typical > room && typical > 0 ? room / typical * 0.98 : 1.0);
    layout.font = scaledFont(base, device, factor);
    length = room;
  }
  const double ratio = layout.font.pointSizeF() / pointsOf(base, device);
  const QFontMetricsF fm(layout.font, device);
  for (std::size_t i = 0; i < m_itemTexts.size(); ++i) {
    const QString text = toQString(m_itemTexts[i]);
    // Only a name that may be too long is measured again, in its own font.
    layout.shown[m_itemTexts[i]] = widths[i] * ratio > length * 0.98 && length > 0
                                       ? fm.elidedText(text, Qt::ElideRight, length)
                                       : text;
  }
  return layout;
}

double PainterSurface::textWidth(const std::string& text) const {
  if (isItemText(text)) {
    const ItemLayout& items = itemLayout();
    // Turned, a name is one line wide.
    return (items.turned ? lineOf(items.font, m_painter.device()).height
                         : advanceOf(items.font, m_painter.device(), items.shown.at(text))) *
           userPerDeviceX();
  }
  return advanceOf(m_painter.font(), m_painter.device(), toQString(text)) * userPerDeviceX();
}

double PainterSurface::textHeight(const std::string& text) const {
  const QFont font = isItemText(text) ? itemLayout().font : m_painter.font();
  return lineOf(font, m_painter.device()).height * userPerDeviceY();
}

void PainterSurface::setCurrentX(double x) { m_currentX = x; }

void PainterSurface::setCurrentY(double y) { m_currentY = y; }

void PainterSurface::print(const std::string& text) {
  const double height = textHeight(text);
  if (std::isfinite(m_currentX) && std::isfinite(m_currentY)) {
    const QPointF topLeft = toDevice(m_currentX, m_currentY);
    m_painter.setPen(Qt::black);
    if (isItemText(text)) {
      const ItemLayout& items = itemLayout();
      const QString shown = items.shown.at(text);
      const double ascent = lineOf(items.font, m_painter.device()).ascent;
      m_painter.save();
      m_painter.setFont(items.font);
      if (items.turned) {
        // Read upwards, the name ends at the row under the plot.
        m_painter.translate(topLeft.x() + ascent,
                            topLeft.y() + advanceOf(items.font, m_painter.device(), shown));
        m_painter.rotate(-90.0);
        drawTextAt(m_painter, QPointF(0.0, 0.0), shown);
      } else {
        drawTextAt(m_painter, QPointF(topLeft.x(), topLeft.y() + ascent), shown);
      }
      m_painter.restore();
    } else {
      const double ascent = lineOf(m_painter.font(), m_painter.device()).ascent;
      drawTextAt(m_painter, QPointF(topLeft.x(), topLeft.y() + ascent), toQString(text));
    }
  }
  m_currentX = m_left;
  m_currentY += height;
}

}  // namespace tnw
