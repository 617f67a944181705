#pragma once

// Qt
#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QPointF>
#include <QRectF>

// Std
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

class QPaintDevice;
class QPainter;
class QPointF;

namespace tnw {

// The texts of the charts, each measured and laid out once in a font on a device resolution: a
// chart prints the same scale labels and item names at every paint, and the layout of its texts
// was most of the time of a paint. Texts are kept by their UTF-8 bytes, so that a kept text is
// found without making a QString. Painting happens in one thread; each thread has its cache.
class TextCache {
 public:
  // A text's advance width and, once asked for, its glyphs with the baseline at y = ascent and
  // the bounds of the glyphs.
  struct Laid {
    double advance = 0.0;
    double ascent = 0.0;
    QList<QGlyphRun> runs;
    QRectF bounds;
    bool hasRuns = false;
  };

  // A font's line height and ascent on a device.
  struct Line {
    double height = 0.0;
    double ascent = 0.0;
  };

  // The texts of one font at one resolution.
  struct Bucket {
    QFont font;
    int dpiX = 0;
    int dpiY = 0;
    std::unordered_map<std::string, Laid> texts;
    Line line;
    bool hasLine = false;
  };

  // The cache of the calling thread.
  static TextCache& instance();

  // The kept texts of the font on `device` (a new bucket when there is none yet). A bucket
  // stays valid until the cache starts again, which only bucket() does.
  Bucket& bucket(const QFont& font, const QPaintDevice* device);
  // The line height and ascent of the bucket's font as the painter would measure them.
  const Line& line(Bucket& bucket, const QPaintDevice* device);
  // The text measured in the bucket's font as the painter would.
  const Laid& measured(Bucket& bucket, const QPaintDevice* device, const std::string& text);
  // The text measured and laid out in the bucket's font as drawText would lay it out.
  const Laid& laidOut(Bucket& bucket, QPaintDevice* device, const std::string& text);

  // How many fonts are kept (for tests).
  std::size_t fontCount() const { return m_buckets.size(); }

 private:
  // Past these, the cache starts again: the charts use a few fonts and a few hundred texts.
  static constexpr std::size_t kMostFonts = 16;
  static constexpr std::size_t kMostTexts = 1024;

  Laid& entry(Bucket& bucket, const QPaintDevice* device, const std::string& text);

  std::vector<std::unique_ptr<Bucket>> m_buckets;
  Bucket* m_last = nullptr;
};

// Whether texts drawn on images are taken from the kept layouts and strips (the default) or laid
// out at each drawing as QPainter::drawText does.
void setTextKept(bool kept);

// Draws a text with its baseline starting at `baseline`, as QPainter::drawText does. On the
// raster engine (widgets and images) the text's glyphs come from the cache; the other engines
// (SVG, PDF, printers) are handed the text itself, which they keep as text.
void drawTextAt(QPainter& painter, const QPointF& baseline, const std::string& text);

// A device box that holds the ink of `text` in `font` on `device` drawn with its baseline starting
// at `baseline`: its glyphs' bounds and a pixel around them.
QRectF textInk(const QFont& font, QPaintDevice* device, const std::string& text,
               const QPointF& baseline);

// An item name turned to read upwards: its baseline starts at `pivot` (device units) and runs up.
struct TurnedName {
  std::string text;
  QPointF pivot;
};

// Whether the painter takes turned names as one kept strip: a 32-bit image (the raster engine)
// drawn on without a transformation, clipping or opacity, whose pixels can be read and laid back.
bool takesTurnedStrip(const QPainter& painter);

// A device box that holds the ink of the turned name in `font` on `device`: its glyphs' bounds,
// turned, and a pixel around them.
QRectF turnedInk(const QFont& font, QPaintDevice* device, const TurnedName& name);

// Draws the turned names in `font` as they would be drawn one by one, each turned about its
// pivot, in black. On a painter that takes strips (see takesTurnedStrip) the part `box` of the
// image (device units, holding all of their ink) is kept as it was before and after the names
// were drawn on it; when that part has the same pixels again under the same names, the kept
// result is laid back in one copy, which gives the very pixels drawing them would.
void drawTurnedNames(QPainter& painter, const QFont& font, const std::vector<TurnedName>& names,
                     const QRectF& box);

}  // namespace tnw
