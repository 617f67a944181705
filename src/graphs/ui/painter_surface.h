#pragma once

#include "graphs/core/drawing_surface.h"
#include "graphs/ui/chart_op_drawer.h"

// Qt
#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRectF>

// Std
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tnw {

// The chart drawing surface over a QPainter: the picture area is a rectangle of the painter's
// device (a widget, an image, an SVG generator or a printer) with the user coordinates set by
// its edges. Line widths are screen pixels and grow with the device's resolution, so that a
// print-out keeps the proportions of the screen; texts use the painter's current font, except
// the item names under the plot (see setItemTexts). The widths of texts are measured once per
// font and resolution and kept, and so are the layouts of texts drawn on images: a chart is
// repainted with the same labels. While it lives the surface alone draws with the painter, through
// a ChartOpDrawer. On an image that the chart covers whole, the chart's frame (all but the
// operations between setDrawingValues(true) and (false)) is drawn once and kept (see KeptFrames),
// and each chart lays it back and draws its values over it, when that gives the same pixels.
class PainterSurface : public DrawingSurface {
 public:
  // The smallest font size the charts use, in points, on any device.
  static constexpr double kMinimumPoints = 6.0;

  // Draws into `area` (device units) of the painter's device; the painter must outlive this.
  PainterSurface(QPainter& painter, const QRectF& area);
  // Draws what is still waiting to be drawn (a chart over a kept frame, turned names, lines).
  ~PainterSurface() override;
  PainterSurface(const PainterSurface&) = delete;
  PainterSurface& operator=(const PainterSurface&) = delete;

  // Whether texts drawn on images (the raster engine: widgets, pictures) are laid out once per
  // text, font and resolution and kept for the next paint (the default), or laid out at each
  // drawing as QPainter::drawText does. Both make the same pixels; tests compare them.
  static void setTextLayoutsKept(bool kept);
  // Whether lines drawn on the raster engine wait to be drawn together, one drawLines call per
  // pen (the default), or are drawn one by one. Both make the same pixels; tests compare them.
  static void setLinesBatched(bool batched);
  // Whether the frames of charts drawn on images are kept and laid back (the default), or each
  // chart is drawn whole. Both make the same pixels; tests compare them.
  static void setFramesKept(bool kept);

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
  void setDrawingValues(bool values) override;

  // A font from `base` small enough that a scale label ("0.0000") fits the chart's left margin
  // in an area `areaWidth` device units wide; never below kMinimumPoints.
  static QFont fittedFont(const QFont& base, const QPaintDevice* device, double areaWidth);
  // The font, at most `base`, in which the longest of `texts` fits `width` device units; never
  // below kMinimumPoints.
  static QFont fontFitting(const QFont& base, const QPaintDevice* device,
                           const std::vector<std::string>& texts, double width);

  // Declares the item names that the chart prints on the row under the plot (current y
  // `row`), each in a slot `slotWidth` user units wide with `room` user units below the row.
  // They keep the painter's font where the names fit their slots, else a smaller one (never
  // below kMinimumPoints); where even that does not fit they are turned to read upwards, in a
  // font whose line fits the slot and, where it can, whose names fit the room below. The font
  // is chosen for the name at three quarters of the lengths; a longer name that does not fit is
  // shortened with an ellipsis.
  void setItemTexts(std::vector<std::string> texts, double slotWidth, double room,
                    double row = -2.0);
  // Whether the item names are turned to read upwards (after setScale and setItemTexts).
  bool itemTextsTurned() const;
  // The font of the item names (after setScale and setItemTexts).
  QFont itemFont() const;

  // The device point of a user point.
  QPointF toDevice(double x, double y) const;

 private:
  // How the item names are drawn on the current scale.
  struct ItemLayout {
    QFont font;
    bool turned = false;
    std::map<std::string, std::string> shown;
  };

  void drawOp(ChartOpDrawer::Op op);
  QRectF inkOf(const ChartOpDrawer::Op& op) const;
  bool coversImage() const;
  void drawKeptFrame();
  double userPerDeviceX() const;
  double userPerDeviceY() const;
  bool isItemText(const std::string& text) const;
  const ItemLayout& itemLayout() const;
  std::shared_ptr<const ItemLayout> keptItemLayout() const;
  // The layout of the item names in slots `slot` device units wide with `room` below.
  ItemLayout makeItemLayout(double slot, double room) const;

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
  std::vector<std::string> m_itemTexts;
  double m_slotWidth = 0.0;
  double m_room = 0.0;
  double m_itemRow = -2.0;
  mutable std::shared_ptr<const ItemLayout> m_itemLayout;
  ChartOpDrawer m_drawer;
  // Whether the operations shown are the chart's values; whether the chart's operations wait in
  // m_ops to be drawn over a kept frame, when the surface goes or the chart starts again.
  bool m_values = false;
  bool m_keeping = false;
  std::vector<ChartOpDrawer::Op> m_ops;
};

}  // namespace tnw
