#pragma once

#include "graphs/ui/chart_widget.h"

// Qt
#include <QImage>
#include <QSize>
#include <QString>

class QPagedPaintDevice;

namespace tnw {

// Draws a chart routine outside the dialog: into an image, into an SVG file (texts and lines
// stay vectors) or onto a printer's page.
class ChartExport {
 public:
  // The chart drawn into a white image of the given size.
  static QImage toImage(const ChartWidget::Painter& chart, QSize size);
  // Writes the chart as an SVG file of the given size in pixels, replacing a file at the path;
  // false, and any old file left as it was, when the new one cannot be written whole (always
  // with a Qt built without its Svg module).
  static bool toSvg(const ChartWidget::Painter& chart, const QString& path, QSize size,
                    const QString& title);
  // Draws the chart over the whole page of a printer or PDF writer.
  static void toPage(const ChartWidget::Painter& chart, QPagedPaintDevice& device);
};

}  // namespace tnw
