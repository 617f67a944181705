#include "graphs/ui/painter_surface.h"

#include "graphs/core/palette.h"
#include "graphs/ui/text_cache.h"

// Qt
#include <QFontMetricsF>
#include <QLineF>
#include <QPaintDevice>
#include <QPaintEngine>

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

const TextCache::Line& lineOf(const QFont& font, const QPaintDevice* device) {
  TextCache& cache = TextCache::instance();
  return cache.line(cache.bucket(font, device), device);
}

double advanceOf(const QFont& font, const QPaintDevice* device, const std::string& text) {
  TextCache& cache = TextCache::instance();
  return cache.measured(cache.bucket(font, device), device, text).advance;
}

double longestWidth(const QFont& font, const QPaintDevice* device,
                    const std::vector<std::string>& texts) {
  double longest = 0.0;
  for (const std::string& t : texts) longest = std::max(longest, advanceOf(font, device, t));
  return longest;
}

}  // namespace

PainterSurface::PainterSurface(QPainter& painter, const QRectF& area)
    : m_painter(painter), m_area(area) {
  const QPaintDevice* device = painter.device();
  if (device != nullptr && device->logicalDpiX() > 0) {
    m_pixelScale = std::max(1.0, device->logicalDpiX() / kScreenDpi);
  }
}

void PainterSurface::setTextLayoutsKept(bool kept) { setTextKept(kept); }

QColor PainterSurface::paletteColour(int index) {
  return QColor(static_cast<QRgb>(0xFF000000u | tnw::paletteColour(index)));
}

QFont PainterSurface::fittedFont(const QFont& base, const QPaintDevice* device, double areaWidth) {
  // The charts keep 15 of their 155 horizontal units left of the plot for the scale labels.
  const double room = areaWidth * 12.0 / 155.0;
  const double width = advanceOf(base, device, "0.0000");
  if (width <= room || width <= 0) return base;
  return scaledFont(base, device, room / width * 0.95);
}

QFont PainterSurface::fontFitting(const QFont& base, const QPaintDevice* device,
                                  const std::vector<std::string>& texts, double width) {
  const double longest = longestWidth(base, device, texts);
  if (longest <= width || longest <= 0.0 || width <= 0.0) return base;
  return scaledFont(base, device, width / longest * 0.98);
}

PainterSurface::~PainterSurface() { flushTurnedNames(); }

void PainterSurface::clear() {
  flushTurnedNames();
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
  flushTurnedNames();
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

void PainterSurface::line(double x1, double y1, double x2, double y2, int colour) {
  if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return;
  const QLineF line(toDevice(x1, y1), toDevice(x2, y2));
  // The turned names wait to be drawn together, unless a line would cross them.
  const double reach = m_lineWidth * m_pixelScale / 2.0 + 1.0;
  if (!m_turnedNames.empty() &&
      m_turnedBox.intersects(
          QRectF(line.p1(), line.p2()).normalized().adjusted(-reach, -reach, reach, reach))) {
    flushTurnedNames();
  }
  usePen({false, colour, m_lineWidth, m_style});
  m_painter.drawLine(line);
}

void PainterSurface::fillBox(double x1, double y1, double x2, double y2, int colour) {
  if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return;
  flushTurnedNames();
  m_painter.fillRect(QRectF(toDevice(x1, y1), toDevice(x2, y2)).normalized(),
                     paletteColour(colour));
}

void PainterSurface::setItemTexts(std::vector<std::string> texts, double slotWidth, double room,
                                  double row) {
  flushTurnedNames();
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
  if (!m_itemLayout) m_itemLayout = keptItemLayout();
  return *m_itemLayout;
}

std::shared_ptr<const PainterSurface::ItemLayout> PainterSurface::keptItemLayout() const {
  // A chart is painted again and again with the same names in the same slots, each time by a new
  // surface: the last layout is kept with what it was made from.
  struct Kept {
    QFont font;
    int dpiX = 0;
    int dpiY = 0;
    std::vector<std::string> texts;
    double slot = 0.0;
    double room = 0.0;
    std::shared_ptr<const ItemLayout> layout;
  };
  thread_local Kept kept;
  const QPaintDevice* device = m_painter.device();
  const int dpiX = device != nullptr ? device->logicalDpiX() : 0;
  const int dpiY = device != nullptr ? device->logicalDpiY() : 0;
  const double perX = userPerDeviceX();
  const double perY = std::abs(userPerDeviceY());
  const double slot = perX > 0 ? m_slotWidth / perX : 0.0;
  const double room = perY > 0 ? m_room / perY : 0.0;
  if (!kept.layout || kept.dpiX != dpiX || kept.dpiY != dpiY || kept.slot != slot ||
      kept.room != room || kept.texts != m_itemTexts || kept.font != m_painter.font()) {
    kept = {m_painter.font(),
            dpiX,
            dpiY,
            m_itemTexts,
            slot,
            room,
            std::make_shared<const ItemLayout>(makeItemLayout(slot, room))};
  }
  return kept.layout;
}

PainterSurface::ItemLayout PainterSurface::makeItemLayout(double slot, double room) const {
  ItemLayout layout;
  const QPaintDevice* device = m_painter.device();
  const QFont base = m_painter.font();
  // Each name is measured once, in the painter's font; a text's width grows with the font's
  // size, so smaller fonts are judged from these widths.
  std::vector<double> widths;
  widths.reserve(m_itemTexts.size());
  for (const std::string& t : m_itemTexts) widths.push_back(advanceOf(base, device, t));
  // The font is chosen for the name at three quarters of the lengths, so that one long name
  // does not make all the others small: the few longer are shortened.
  std::vector<std::size_t> order(widths.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::sort(order.begin(), order.end(), [&](auto a, auto b) { return widths[a] < widths[b]; });
  const std::size_t typicalIndex = order.empty() ? 0 : order[((order.size() - 1) * 3 + 3) / 4];
  const double typical = order.empty() ? 0.0 : widths[typicalIndex];
  double factor = typical > slot && typical > 0 ? slot / typical * 0.98 : 1.0;
  layout.font = scaledFont(base, device, factor);
  // Already at the smallest size, the names read upwards whatever the name measures below.
  const bool smallest = layout.font.pointSizeF() > pointsOf(base, device) * factor * 1.001;
  if (factor < 1.0 && !smallest) {
    // Hinting does not scale quite linearly: that name is measured once more.
    const double real = advanceOf(layout.font, device, m_itemTexts[typicalIndex]);
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
    // Only a name that may be too long is measured again, in its own font.
    layout.shown[m_itemTexts[i]] =
        widths[i] * ratio > length * 0.98 && length > 0
            ? fm.elidedText(toQString(m_itemTexts[i]), Qt::ElideRight, length).toStdString()
            : m_itemTexts[i];
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
  return advanceOf(m_painter.font(), m_painter.device(), text) * userPerDeviceX();
}

double PainterSurface::textHeight(const std::string& text) const {
  const QFont font = isItemText(text) ? itemLayout().font : m_painter.font();
  return lineOf(font, m_painter.device()).height * userPerDeviceY();
}

void PainterSurface::setCurrentX(double x) { m_currentX = x; }

void PainterSurface::setCurrentY(double y) { m_currentY = y; }

void PainterSurface::print(const std::string& text) {
  const bool item = isItemText(text);
  const double height = textHeight(text);
  if (std::isfinite(m_currentX) && std::isfinite(m_currentY)) {
    const QPointF topLeft = toDevice(m_currentX, m_currentY);
    if (item && itemLayout().turned) {
      addTurnedName(topLeft, itemLayout().shown.at(text));
    } else {
      flushTurnedNames();
      usePen({true});
      if (item) {
        const ItemLayout& items = itemLayout();
        const double ascent = lineOf(items.font, m_painter.device()).ascent;
        m_painter.save();
        m_painter.setFont(items.font);
        drawTextAt(m_painter, QPointF(topLeft.x(), topLeft.y() + ascent), items.shown.at(text));
        m_painter.restore();
      } else {
        const double ascent = lineOf(m_painter.font(), m_painter.device()).ascent;
        drawTextAt(m_painter, QPointF(topLeft.x(), topLeft.y() + ascent), text);
      }
    }
  }
  m_currentX = m_left;
  m_currentY += height;
}

void PainterSurface::addTurnedName(const QPointF& topLeft, const std::string& shown) {
  const ItemLayout& items = itemLayout();
  QPaintDevice* device = m_painter.device();
  const double ascent = lineOf(items.font, device).ascent;
  // Read upwards, the name ends at the row under the plot.
  const TurnedName name{shown,
                        {topLeft.x() + ascent, topLeft.y() + advanceOf(items.font, device, shown)}};
  if (!takesTurnedStrip(m_painter)) {
    drawTurnedNames(m_painter, items.font, {name}, {});
    return;
  }
  const QRectF ink = turnedInk(items.font, device, name);
  m_turnedBox = m_turnedNames.empty() ? ink : m_turnedBox.united(ink);
  m_turnedNames.push_back(name);
}

void PainterSurface::flushTurnedNames() {
  if (m_turnedNames.empty()) return;
  drawTurnedNames(m_painter, itemLayout().font, m_turnedNames, m_turnedBox);
  m_turnedNames.clear();
}

void PainterSurface::usePen(Pen pen) {
  if (m_pen && *m_pen == pen) return;
  m_pen = pen;
  if (pen.text) {
    m_painter.setPen(Qt::black);
    return;
  }
  QPen line(paletteColour(pen.colour), pen.width * m_pixelScale);
  line.setStyle(pen.style == LineStyle::Dot ? Qt::DotLine : Qt::SolidLine);
  line.setCapStyle(Qt::FlatCap);
  m_painter.setPen(line);
}

}  // namespace tnw
