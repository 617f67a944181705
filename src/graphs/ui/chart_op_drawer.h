#pragma once

#include "graphs/ui/line_batches.h"
#include "graphs/ui/text_cache.h"

// Qt
#include <QColor>
#include <QFont>
#include <QLineF>
#include <QPointF>
#include <QRectF>

// Std
#include <optional>
#include <string>
#include <vector>

class QPainter;

namespace tnw {

// Draws a chart's drawing operations, in device units, with a painter that it alone draws with
// while it lives: it sets a pen only when it needs another one; on an image the turned item
// names wait to be drawn together until something that may cross them is drawn; and on the
// raster engine lines wait in batches of one pen (see LineBatches) until something they may touch
// is drawn. The other engines (SVG, PDF, printers) are given each line and text as it comes.
class ChartOpDrawer {
 public:
  // One drawing operation.
  struct Op {
    enum class Kind { Fill, Line, Text, Turned };
    Kind kind = Kind::Fill;
    // Fill: the box and its colour.
    QRectF rect;
    QColor colour;
    // Line: the line and its pen.
    QLineF line;
    LinePen pen;
    // Text: the start of the baseline; Turned: the pivot the name is turned about.
    QPointF at;
    // Text, Turned: the text and its font; `item` when the font is the item names' own.
    std::string text;
    QFont font;
    bool item = false;
    // Whether the operation shows the chart's values (see DrawingSurface::setDrawingValues).
    bool value = false;
    // A device box that holds every pixel the operation may touch (on the raster engine).
    QRectF box;
    bool operator==(const Op&) const = default;
  };

  // Draws with `painter`, whose line widths are `pixelScale` device pixels per pixel.
  ChartOpDrawer(QPainter& painter, double pixelScale);
  // Draws what is still waiting.
  ~ChartOpDrawer();
  ChartOpDrawer(const ChartOpDrawer&) = delete;
  ChartOpDrawer& operator=(const ChartOpDrawer&) = delete;

  // Whether lines wait in batches on this painter (the raster engine, see setLinesBatched).
  bool batching() const { return m_batching; }
  // Whether lines drawn on the raster engine are batched (the default) or drawn one by one.
  static void setLinesBatched(bool batched);

  // Draws an operation (or lets it wait, see the class comment).
  void draw(const Op& op);
  // Draws everything still waiting.
  void flush();

 private:
  // The pen last set on the painter: the texts' or a line's.
  struct Pen {
    bool text = false;
    LinePen line;
    bool operator==(const Pen&) const = default;
  };

  void usePen(const Pen& pen);
  void drawText(const Op& op);
  void addTurnedName(const Op& op);
  void flushLines();
  void flushTurnedNames();

  QPainter& m_painter;
  double m_pixelScale = 1.0;
  bool m_batching = false;
  std::optional<Pen> m_pen;
  LineBatches m_lines;
  // The turned item names waiting, their font, and a device box holding their ink.
  std::vector<TurnedName> m_turnedNames;
  QFont m_turnedFont;
  QRectF m_turnedBox;
};

}  // namespace tnw
