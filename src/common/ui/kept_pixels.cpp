#include "common/ui/kept_pixels.h"

// Qt
#include <QPainter>

// Std
#include <cstring>

namespace tnw {

namespace {

// Equal rows shorter than this run are kept one by one with their neighbours: a repeated band
// costs a draw of its own.
constexpr int kMinRepeat = 4;

// The bytes of a pixel of the image.
std::size_t pixelBytes(const QImage& image) { return static_cast<std::size_t>(image.depth()) / 8; }

// The start of the row `y` of `rect` (from `origin`) in the image.
const uchar* rowStart(const QImage& image, QPoint origin, const QRect& rect, int y) {
  return image.constScanLine(origin.y() + y) +
         static_cast<std::size_t>(origin.x() + rect.x()) * pixelBytes(image);
}

}  // namespace

KeptPixels::KeptPixels(const QImage& image, QPoint origin, const QRegion& region) {
  if (image.isNull() || image.depth() % 8 != 0 || region.isEmpty()) return;
  for (const QRect& rect : region) {
    if (!image.rect().contains(rect.translated(origin))) {
      m_bands.clear();
      return;
    }
    addBands(image, origin, rect);
  }
  m_format = image.format();
}

void KeptPixels::addBands(const QImage& image, QPoint origin, const QRect& rect) {
  const std::size_t bytes = static_cast<std::size_t>(rect.width()) * pixelBytes(image);
  const auto rows = [&](int top, int count, bool repeated) {
    const QRect band(rect.x(), top, rect.width(), count);
    const QRect source = band.translated(origin);
    m_bands.push_back(
        {band, repeated,
         image.copy(repeated ? QRect(source.topLeft(), QSize(rect.width(), 1)) : source)});
  };
  int pending = rect.top();  // the first row not yet in a band
  int y = rect.top();
  while (y <= rect.bottom()) {
    const uchar* row = rowStart(image, origin, rect, y);
    int end = y + 1;
    while (end <= rect.bottom() &&
           std::memcmp(rowStart(image, origin, rect, end), row, bytes) == 0) {
      ++end;
    }
    if (end - y >= kMinRepeat) {
      if (pending < y) rows(pending, y - pending, false);
      rows(y, end - y, true);
      pending = end;
    }
    y = end;
  }
  if (pending <= rect.bottom()) rows(pending, rect.bottom() + 1 - pending, false);
}

bool KeptPixels::sameAs(const QImage& image, QPoint origin) const {
  if (isNull() || image.format() != m_format) return false;
  const std::size_t depth = pixelBytes(image);
  const qsizetype stride = image.bytesPerLine();
  const uchar* const bits = image.constBits();
  for (const Band& band : m_bands) {
    if (!image.rect().contains(band.rect.translated(origin))) return false;
    const std::size_t bytes = static_cast<std::size_t>(band.rect.width()) * depth;
    const uchar* row = bits + (origin.y() + band.rect.top()) * stride +
                       static_cast<std::size_t>(origin.x() + band.rect.x()) * depth;
    const uchar* kept = band.image.constBits();
    const qsizetype keptStride = band.repeated ? 0 : band.image.bytesPerLine();
    for (int y = 0; y < band.rect.height(); ++y, row += stride, kept += keptStride) {
      if (std::memcmp(row, kept, bytes) != 0) return false;
    }
  }
  return true;
}

bool KeptPixels::writeTo(QImage& image, QPoint origin) const {
  if (isNull() || image.format() != m_format) return false;
  for (const Band& band : m_bands) {
    if (!image.rect().contains(band.rect.translated(origin))) return false;
  }
  const std::size_t depth = pixelBytes(image);
  const qsizetype stride = image.bytesPerLine();
  uchar* const bits = image.bits();
  for (const Band& band : m_bands) {
    const std::size_t bytes = static_cast<std::size_t>(band.rect.width()) * depth;
    uchar* row = bits + (origin.y() + band.rect.top()) * stride +
                 static_cast<std::size_t>(origin.x() + band.rect.x()) * depth;
    for (int y = 0; y < band.rect.height(); ++y, row += stride) {
      std::memcpy(row, band.image.constScanLine(band.repeated ? 0 : y), bytes);
    }
  }
  return true;
}

void KeptPixels::draw(QPainter& painter, int ratio) const {
  const qreal r = ratio;
  for (const Band& band : m_bands) {
    const QRectF target(band.rect.x() / r, band.rect.y() / r, band.rect.width() / r,
                        band.rect.height() / r);
    // A repeated row is stretched over its rows: each device pixel takes the one row's pixel in
    // its column.
    painter.drawImage(target, band.image, QRectF(band.image.rect()));
  }
}

qint64 KeptPixels::bytes() const {
  qint64 sum = 0;
  for (const Band& band : m_bands) sum += band.image.sizeInBytes();
  return sum;
}

}  // namespace tnw
