#pragma once

#include "graphs/core/drawing_surface.h"

// Qt
#include <QLineF>
#include <QRectF>

// Std
#include <functional>
#include <vector>

class QPainter;

namespace tnw {

// The pen of a chart line: a palette colour, a width in pixels and a style.
struct LinePen {
  int colour = 0;
  int width = 1;
  LineStyle style = LineStyle::Solid;
  bool operator==(const LinePen&) const = default;
};

// Lines waiting to be drawn, gathered by pen so that each pen's lines go to the painter in one
// drawLines call: a chart draws a few hundred lines in five pens, and the painter's cost is
// mostly per call. A line joins the batch of its pen only when no line of that batch or a later
// one comes near it, so the pixels are those of drawing the lines one by one in the order given.
class LineBatches {
 public:
  // Adds `line` in `pen`; `box` holds every pixel the line may touch (device units).
  void add(const LinePen& pen, const QLineF& line, const QRectF& box);
  // Whether a waiting line may touch a pixel of `box`.
  bool reaches(const QRectF& box) const;
  // Whether no line is waiting.
  bool empty() const { return m_batches.empty(); }
  // Draws the waiting lines, batch by batch in order, each after `usePen` has set its pen.
  void drawOn(QPainter& painter, const std::function<void(const LinePen&)>& usePen);

 private:
  // The lines of one pen and a box holding their pixels.
  struct Batch {
    LinePen pen;
    std::vector<QLineF> lines;
    QRectF box;
  };

  std::vector<Batch> m_batches;
  // How many batches are in use: the others keep their storage for the next lines.
  std::size_t m_used = 0;
};

}  // namespace tnw
