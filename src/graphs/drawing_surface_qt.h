#pragma once

#include "graphs/drawing_surface.h"

// Qt
#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRectF>

// Std
#include <string>
#include <vector>

namespace tnw {

// The chart drawing surface over a QPainter: the picture area is a rectangle of the painter's
// device (a widget, an image, an SVG generator or a printer) with the user coordinates set by
// its edges. Line widths are screen pixels and grow with the device's resolution, so that a
// print-out keeps the proportions of the screen; texts use the painter's current font.
class DrawingSurfaceQt : public DrawingSurface {
 public:
  // Draws into `area` (device units) of the painter's device; the painter must outlive this.
  DrawingSurfaceQt(QPainter& painter, const QRectF& area);

  // The colour of a palette index 0..15 (black outside).
  static QColor paletteColour(int index);

  void clear() override;
  void setAutoRedraw(bool on) override;
  void setScale(double left, double top, double right, double bottom) override;
  void setLineWidth(int width) override;
  void setLineStyle(LineStyle style) override;
  void line(double x1, double y1, double x2, double y2, int colour) override;
  void fillBox(double x1, double y1, double x2, double y2, int colour) override;
  double textWidth(const std::string& text) const override;
  double textHeight(const std::string& text) const override;
  void setCurrentX(double x) override;
  void setCurrentY(double y) override;
  void print(const std::string& text) override;

  // A font from `base` small enough that a scale label ("0.0000") fits the chart's left margin
  // in an area `areaWidth` device units wide; never below 6 pixels.
  static QFont fittedFont(const QFont& base, const QPaintDevice* device, double areaWidth);

  // Shortens the given texts (the item names under a chart) with an ellipsis to at most
  // maxWidth user units, when measured and when printed alike, so that they keep to their slots.
  void setElidedTexts(std::vector<std::string> texts, double maxWidth);
  // The font, at most `base`, in which the longest of `texts` fits `width` device units; never
  // below 7 pixels.
  static QFont fontFitting(const QFont& base, const QPaintDevice* device,
                           const std::vector<std::string>& texts, double width);

  // The device point of a user point.
  QPointF toDevice(double x, double y) const;

 private:
  void applyPen(const QColor& colour);
  QString shown(const std::string& text) const;

  QPainter& m_painter;
  QRectF m_area;
  double m_left = 0.0;
  double m_top = 0.0;
  double m_right = 1.0;
  double m_bottom = 1.0;
  int m_lineWidth = 1;
  LineStyle m_style = LineStyle::Solid;
  double m_currentX = 0.0;
  double m_currentY = 0.0;
  double m_pixelScale = 1.0;
  std::vector<std::string> m_elidedTexts;
  double m_elideWidth = 0.0;
};

}  // namespace tnw
