#pragma once

// Std
#include <string>

namespace tnw {

// The style of the lines drawn next.
enum class LineStyle { Solid, Dot };

// A picture area the charts draw on, in user coordinates set by setScale. Colours are indexes
// 0-15 of the classic 16-colour palette (see palette.h). Implemented by the Qt layer and by
// RecordingSurface for tests.
class DrawingSurface {
 public:
  virtual ~DrawingSurface() = default;

  // Erases everything drawn so far.
  virtual void clear() = 0;
  // Keeps the drawing when the area is covered and shown again (persistent redraw).
  virtual void setAutoRedraw(bool on) = 0;
  // Sets the user coordinates by the values of the left, top, right and bottom edges.
  virtual void setScale(double left, double top, double right, double bottom) = 0;
  // Sets the width of the lines drawn next, in pixels.
  virtual void setLineWidth(int width) = 0;
  // Sets the style of the lines drawn next.
  virtual void setLineStyle(LineStyle style) = 0;
  // Draws a line from (x1, y1) to (x2, y2) in a palette colour.
  virtual void line(double x1, double y1, double x2, double y2, int colour) = 0;
  // Fills the box with corners (x1, y1) and (x2, y2) in a palette colour.
  virtual void fillBox(double x1, double y1, double x2, double y2, int colour) = 0;
  // The width of a text in user units.
  virtual double textWidth(const std::string& text) const = 0;
  // The height of a text in user units, signed as the y axis runs: negative when the top edge's
  // value is above the bottom edge's, so that y - height lies above y.
  virtual double textHeight(const std::string& text) const = 0;
  // Sets the current text position (the top-left corner of the next text).
  virtual void setCurrentX(double x) = 0;
  virtual void setCurrentY(double y) = 0;
  // Prints a text at the current position, then moves to the start of the next line.
  virtual void print(const std::string& text) = 0;
  // Says whether what is drawn next shows the chart's values (the scale's numbers and the marks),
  // which change with every fit, or its frame (title, axes, grid, names, legend), which a
  // surface may keep from one drawing to the next. Drawing is the same either way.
  virtual void setDrawingValues(bool values) { static_cast<void>(values); }
};

}  // namespace tnw
