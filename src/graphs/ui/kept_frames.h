#pragma once

#include "graphs/ui/chart_op_drawer.h"

// Qt
#include <QImage>
#include <QPainter>

// Std
#include <cstddef>
#include <vector>

namespace tnw {

// The frames of charts drawn on images: all of a chart's picture but its values (the scale's
// numbers and the marks), which change with every fit. A chart is painted again and again in the
// same frame (its title, axes, grid, item names and legend): the frame is drawn once on an image
// and kept with everything it was drawn from, compared exactly (the frame's operations, their
// texts and fonts, and the image's size, format and resolution), and each painting lays it back
// in one copy and draws the values over it. Each thread keeps its own few frames.
class KeptFrames {
 public:
  // A frame and what it was drawn from.
  struct Frame {
    // The frame's operations, with their boxes.
    std::vector<ChartOpDrawer::Op> ops;
    QSize size;
    QImage::Format format = QImage::Format_Invalid;
    qreal ratio = 1.0;
    int dotsX = 0;
    int dotsY = 0;
    QPainter::RenderHints hints;
    QFont font;
    double pixelScale = 1.0;
    QImage image;
  };

  // Whether the value operations of `ops` may be drawn after all the others: no operation of the
  // frame drawn after a value comes near it. Then the frame and the values over it are the very
  // pixels of drawing the operations in order.
  static bool valuesApart(const std::vector<ChartOpDrawer::Op>& ops);

  // The kept frame drawn from the operations of `ops` that are not values (their boxes aside),
  // on an image like `like` (size, format, resolution) with `hints`, `font` and line widths of
  // `pixelScale`; null when there is none.
  static const Frame* find(const std::vector<ChartOpDrawer::Op>& ops, const QImage& like,
                           QPainter::RenderHints hints, const QFont& font, double pixelScale);
  // The frame drawn now from the operations of `ops` that are not values, and kept.
  static const Frame& keep(const std::vector<ChartOpDrawer::Op>& ops, const QImage& like,
                           QPainter::RenderHints hints, const QFont& font, double pixelScale);

  // How many times a frame was drawn rather than taken from the kept ones (for tests).
  static int drawnCount();
  // How many frames this thread keeps (for tests).
  static std::size_t keptCount();
  // Lets every frame this thread keeps go.
  static void clear();
};

}  // namespace tnw
