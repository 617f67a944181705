#include "graphs/ui/text_cache.h"

// Qt
#include <QFontMetricsF>
#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QString>
#include <QTextLayout>

// Std
#include <algorithm>
#include <cstring>

namespace tnw {

TextCache& TextCache::instance() {
  thread_local TextCache cache;
  return cache;
}

TextCache::Bucket& TextCache::bucket(const QFont& font, const QPaintDevice* device) {
  const int dpiX = device != nullptr ? device->logicalDpiX() : 0;
  const int dpiY = device != nullptr ? device->logicalDpiY() : 0;
  const auto matches = [&](const Bucket& b) {
    return b.dpiX == dpiX && b.dpiY == dpiY && b.font == font;
  };
  // A chart asks for the same font many times in a row.
  if (m_last != nullptr && matches(*m_last)) return *m_last;
  for (const std::unique_ptr<Bucket>& b : m_buckets) {
    if (matches(*b)) {
      if (b->texts.size() > kMostTexts) b->texts.clear();
      m_last = b.get();
      return *b;
    }
  }
  if (m_buckets.size() >= kMostFonts) m_buckets.clear();
  m_buckets.push_back(std::make_unique<Bucket>());
  Bucket& b = *m_buckets.back();
  b.font = font;
  b.dpiX = dpiX;
  b.dpiY = dpiY;
  m_last = &b;
  return b;
}

const TextCache::Line& TextCache::line(Bucket& b, const QPaintDevice* device) {
  if (!b.hasLine) {
    const QFontMetricsF fm(b.font, device);
    b.line = {fm.height(), fm.ascent()};
    b.hasLine = true;
  }
  return b.line;
}

const TextCache::Laid& TextCache::measured(Bucket& b, const QPaintDevice* device,
                                           const std::string& text) {
  return entry(b, device, text);
}

const TextCache::Laid& TextCache::laidOut(Bucket& b, QPaintDevice* device,
                                          const std::string& text) {
  Laid& laid = entry(b, device, text);
  if (!laid.hasRuns) {
    QTextLayout layout(QString::fromUtf8(text), b.font, device);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    laid.ascent = line.isValid() ? line.ascent() : 0.0;
    laid.runs = layout.glyphRuns();
    for (const QGlyphRun& run : laid.runs) laid.bounds |= run.boundingRect();
    laid.hasRuns = true;
  }
  return laid;
}

TextCache::Laid& TextCache::entry(Bucket& b, const QPaintDevice* device, const std::string& text) {
  if (b.texts.size() > kMostTexts) b.texts.clear();
  auto it = b.texts.find(text);
  if (it == b.texts.end()) {
    Laid laid;
    laid.advance = QFontMetricsF(b.font, device).horizontalAdvance(QString::fromUtf8(text));
    it = b.texts.emplace(text, std::move(laid)).first;
  }
  return it->second;
}

namespace {

// Whether texts on images are drawn from the kept layouts and strips (see setTextKept).
bool keepTexts = true;

// A part of an image as it was before turned names were drawn on it and as it was after, with
// the names (pivots relative to the part) and the resolution they were drawn for.
struct Strip {
  QFont font;
  int dotsX = 0;
  int dotsY = 0;
  std::vector<TurnedName> names;
  QImage before;
  QImage after;
};

bool sameNames(const std::vector<TurnedName>& a, const std::vector<TurnedName>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& x, const auto& y) {
    return x.pivot == y.pivot && x.text == y.text;
  });
}

// Whether the part `rect` of `image` has the pixels of `part`.
bool samePixels(const QImage& image, const QRect& rect, const QImage& part) {
  if (part.size() != rect.size() || part.format() != image.format()) return false;
  const auto bytes = static_cast<std::size_t>(rect.width()) * 4;
  for (int y = 0; y < rect.height(); ++y) {
    if (std::memcmp(image.constScanLine(rect.top() + y) + static_cast<std::size_t>(rect.left()) * 4,
                    part.constScanLine(y), bytes) != 0) {
      return false;
    }
  }
  return true;
}

void drawTurned(QPainter& painter, const TurnedName& name) {
  painter.save();
  painter.translate(name.pivot);
  painter.rotate(-90.0);
  drawTextAt(painter, QPointF(0.0, 0.0), name.text);
  painter.restore();
}

// The part `rect` of `image` with the names drawn on it, drawn once for a part with the same
// pixels and names and kept.
const QImage& drawnStrip(const QFont& font, const QImage& image, const QRect& rect,
                         std::vector<TurnedName> names) {
  // A chart widget or two show the same names again and again; a few strips are enough.
  thread_local std::vector<Strip> strips;
  constexpr std::size_t kMostStrips = 4;
  for (const Strip& s : strips) {
    if (s.dotsX == image.dotsPerMeterX() && s.dotsY == image.dotsPerMeterY() && s.font == font &&
        sameNames(s.names, names) && samePixels(image, rect, s.before)) {
      return s.after;
    }
  }
  if (strips.size() >= kMostStrips) strips.erase(strips.begin());
  Strip s{font, image.dotsPerMeterX(), image.dotsPerMeterY(), std::move(names), image.copy(rect),
          {}};
  s.after = s.before.copy();
  // The part measures and lays out the names as the image does.
  s.after.setDotsPerMeterX(s.dotsX);
  s.after.setDotsPerMeterY(s.dotsY);
  {
    QPainter p(&s.after);
    p.setFont(font);
    p.setPen(Qt::black);
    for (const TurnedName& name : s.names) drawTurned(p, name);
  }
  strips.push_back(std::move(s));
  return strips.back().after;
}

}  // namespace

void setTextKept(bool kept) { keepTexts = kept; }

void drawTextAt(QPainter& painter, const QPointF& baseline, const std::string& text) {
  QPaintEngine* engine = painter.paintEngine();
  if (!keepTexts || engine == nullptr || engine->type() != QPaintEngine::Raster) {
    painter.drawText(baseline, QString::fromUtf8(text));
    return;
  }
  TextCache& cache = TextCache::instance();
  const TextCache::Laid& laid =
      cache.laidOut(cache.bucket(painter.font(), painter.device()), painter.device(), text);
  const QPointF origin(baseline.x(), baseline.y() - laid.ascent);
  for (const QGlyphRun& run : laid.runs) painter.drawGlyphRun(origin, run);
}

bool takesTurnedStrip(const QPainter& painter) {
  const QPaintEngine* engine = painter.paintEngine();
  const QPaintDevice* device = painter.device();
  if (!keepTexts || engine == nullptr || engine->type() != QPaintEngine::Raster ||
      device == nullptr || device->devType() != QInternal::Image) {
    return false;
  }
  // The kept part is laid back as it is: the image must take its pixels unchanged.
  const QImage::Format format = static_cast<const QImage*>(device)->format();
  return (format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied) &&
         device->devicePixelRatio() == 1.0 && painter.deviceTransform().isIdentity() &&
         !painter.hasClipping() && painter.opacity() == 1.0;
}

QRectF textInk(const QFont& font, QPaintDevice* device, const std::string& text,
               const QPointF& baseline) {
  TextCache& cache = TextCache::instance();
  const TextCache::Laid& laid = cache.laidOut(cache.bucket(font, device), device, text);
  // drawTextAt draws the glyphs from (x, y - ascent) of the baseline's start.
  return laid.bounds.translated(baseline.x(), baseline.y() - laid.ascent)
      .adjusted(-1.0, -1.0, 1.0, 1.0);
}

QRectF turnedInk(const QFont& font, QPaintDevice* device, const TurnedName& name) {
  TextCache& cache = TextCache::instance();
  const TextCache::Laid& laid = cache.laidOut(cache.bucket(font, device), device, name.text);
  // The glyphs are drawn from (0, -ascent) of the turned system, whose (u, v) is the device's
  // (pivot.x + v, pivot.y - u).
  const QRectF glyphs = laid.bounds.translated(0.0, -laid.ascent);
  const QRectF box(name.pivot.x() + glyphs.top(), name.pivot.y() - glyphs.right(), glyphs.height(),
                   glyphs.width());
  return box.adjusted(-1.0, -1.0, 1.0, 1.0);
}

void drawTurnedNames(QPainter& painter, const QFont& font, const std::vector<TurnedName>& names,
                     const QRectF& box) {
  if (names.empty()) return;
  const QRect pixels =
      box.toAlignedRect() &
      QRect(QPoint(0, 0), painter.device() != nullptr
                              ? QSize(painter.device()->width(), painter.device()->height())
                              : QSize());
  if (!takesTurnedStrip(painter) || pixels.isEmpty()) {
    painter.save();
    painter.setFont(font);
    painter.setPen(Qt::black);
    for (const TurnedName& name : names) drawTurned(painter, name);
    painter.restore();
    return;
  }
  // The picture's pixels lie on the image's, so that each glyph falls on the same fraction of
  // a pixel in both.
  std::vector<TurnedName> relative = names;
  for (TurnedName& name : relative) name.pivot -= QPointF(pixels.topLeft());
  const auto* image = static_cast<const QImage*>(painter.device());
  const QImage& strip = drawnStrip(font, *image, pixels, std::move(relative));
  const QPainter::CompositionMode mode = painter.compositionMode();
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.drawImage(pixels.topLeft(), strip);
  painter.setCompositionMode(mode);
}

}  // namespace tnw
