#include "graphs/ui/painter_surface.h"

#include "graphs/core/palette.h"
#include "graphs/ui/kept_frames.h"
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

// Whether the frames of charts on images are kept (see setFramesKept).
bool keepFrames = true;

double pixelScaleOf(const QPainter& painter) {
  const QPaintDevice* device = painter.device();
  return device != nullptr && device->logicalDpiX() > 0
             ? std::max(1.0, device->logicalDpiX() / kScreenDpi)
             : 1.0;
}

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
    : m_painter(painter),
      m_area(area),
      m_pixelScale(pixelScaleOf(painter)),
      m_drawer(painter, m_pixelScale) {}

void PainterSurface::setTextLayoutsKept(bool kept) { setTextKept(kept); }

void PainterSurface::setLinesBatched(bool batched) { ChartOpDrawer::setLinesBatched(batched); }

void PainterSurface::setFramesKept(bool kept) { keepFrames = kept; }

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

PainterSurface::~PainterSurface() {
  if (m_keeping) drawKeptFrame();
}

void PainterSurface::clear() {
  if (m_keeping) drawKeptFrame();
  // The chart starts here and covers the area whole: on an image that it covers, its frame may
  // be kept.
  m_keeping = keepFrames && coversImage();
  ChartOpDrawer::Op op;
  op.kind = ChartOpDrawer::Op::Kind::Fill;
  op.rect = m_area;
  op.colour = QColor(Qt::white);
  drawOp(std::move(op));
  m_currentX = m_left;
  m_currentY = m_top;
}

void PainterSurface::setDrawingValues(bool values) { m_values = values; }

bool PainterSurface::coversImage() const {
  const QPaintDevice* device = m_painter.device();
  if (!m_drawer.batching() || device == nullptr || device->devType() != QInternal::Image) {
    return false;
  }
  // The kept frame is laid back as it is: the image must take its pixels unchanged.
  const auto* image = static_cast<const QImage*>(device);
  const QImage::Format format = image->format();
  const qreal ratio = image->devicePixelRatio();
  return (format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied) &&
         m_area == QRectF(0.0, 0.0, image->width() / ratio, image->height() / ratio) &&
         m_painter.worldTransform().isIdentity() && !m_painter.hasClipping() &&
         m_painter.opacity() == 1.0 &&
         m_painter.compositionMode() == QPainter::CompositionMode_SourceOver &&
         m_painter.backgroundMode() == Qt::TransparentMode;
}

void PainterSurface::drawOp(ChartOpDrawer::Op op) {
  op.value = m_values;
  // A kept frame's operations have their boxes kept with them.
  if (m_drawer.batching() && (!m_keeping || op.value)) op.box = inkOf(op);
  if (m_keeping) {
    m_ops.push_back(std::move(op));
  } else {
    m_drawer.draw(op);
  }
}

QRectF PainterSurface::inkOf(const ChartOpDrawer::Op& op) const {
  using Kind = ChartOpDrawer::Op::Kind;
  switch (op.kind) {
    case Kind::Fill:
      return op.rect.adjusted(-1.0, -1.0, 1.0, 1.0);
    case Kind::Line: {
      const double reach = op.pen.width * m_pixelScale / 2.0 + 1.0;
      return QRectF(op.line.p1(), op.line.p2()).normalized().adjusted(-reach, -reach, reach, reach);
    }
    case Kind::Text:
      return textInk(op.font, m_painter.device(), op.text, op.at);
    case Kind::Turned:
      return turnedInk(op.font, m_painter.device(), {op.text, op.at});
  }
  return {};
}

void PainterSurface::drawKeptFrame() {
  m_keeping = false;
  std::vector<ChartOpDrawer::Op> ops = std::move(m_ops);
  m_ops.clear();
  const auto* image = static_cast<const QImage*>(m_painter.device());
  const QPainter::RenderHints hints = m_painter.renderHints();
  const KeptFrames::Frame* kept =
      KeptFrames::find(ops, *image, hints, m_painter.font(), m_pixelScale);
  auto keptOp =
      kept != nullptr ? kept->ops.begin() : std::vector<ChartOpDrawer::Op>::const_iterator();
  for (ChartOpDrawer::Op& op : ops) {
    if (!op.value) op.box = kept != nullptr ? (keptOp++)->box : inkOf(op);
  }
  if (!KeptFrames::valuesApart(ops)) {
    for (const ChartOpDrawer::Op& op : ops) m_drawer.draw(op);
    return;
  }
  const QImage& frame =
      kept != nullptr ? kept->image
                      : KeptFrames::keep(ops, *image, hints, m_painter.font(), m_pixelScale).image;
  m_drawer.flush();
  m_painter.save();
  m_painter.setCompositionMode(QPainter::CompositionMode_Source);
  m_painter.drawImage(QPointF(0.0, 0.0), frame);
  m_painter.restore();
  for (const ChartOpDrawer::Op& op : ops) {
    if (op.value) m_drawer.draw(op);
  }
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

void PainterSurface::line(double x1, double y1, double x2, double y2, int colour) {
  if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return;
  ChartOpDrawer::Op op;
  op.kind = ChartOpDrawer::Op::Kind::Line;
  op.line = QLineF(toDevice(x1, y1), toDevice(x2, y2));
  op.pen = {colour, m_lineWidth, m_style};
  drawOp(std::move(op));
}

void PainterSurface::fillBox(double x1, double y1, double x2, double y2, int colour) {
  if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return;
  ChartOpDrawer::Op op;
  op.kind = ChartOpDrawer::Op::Kind::Fill;
  op.rect = QRectF(toDevice(x1, y1), toDevice(x2, y2)).normalized();
  op.colour = paletteColour(colour);
  drawOp(std::move(op));
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
    QPaintDevice* device = m_painter.device();
    ChartOpDrawer::Op op;
    op.kind = ChartOpDrawer::Op::Kind::Text;
    op.item = item;
    op.font = item ? itemLayout().font : m_painter.font();
    op.text = item ? itemLayout().shown.at(text) : text;
    const double ascent = lineOf(op.font, device).ascent;
    op.at = QPointF(topLeft.x(), topLeft.y() + ascent);
    if (item && itemLayout().turned) {
      // Read upwards, the name ends at the row under the plot.
      op.kind = ChartOpDrawer::Op::Kind::Turned;
      op.at = QPointF(topLeft.x() + ascent, topLeft.y() + advanceOf(op.font, device, op.text));
    }
    drawOp(std::move(op));
  }
  m_currentX = m_left;
  m_currentY += height;
}

}  // namespace tnw
