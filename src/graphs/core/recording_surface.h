#pragma once

#include "graphs/core/drawing_surface.h"

// Std
#include <string>
#include <vector>

namespace tnw {

// A drawing surface that draws nothing and records every operation, for tests and benchmarks.
// A character is charWidth user units wide and every text charHeight units high.
class RecordingSurface : public DrawingSurface {
 public:
  // One recorded operation.
  struct Op {
    enum class Kind { Clear, AutoRedraw, Scale, LineWidth, LineStyle, Line, FillBox, Print };
    Kind kind = Kind::Clear;
    // Line and box corners; the scale's left, top, right, bottom; a text's position in x1, y1.
    double x1 = 0.0;
    double y1 = 0.0;
    double x2 = 0.0;
    double y2 = 0.0;
    // The colour of a line or box; the width and style in force when it was drawn.
    int colour = 0;
    int width = 1;
    LineStyle style = LineStyle::Solid;
    // The printed text.
    std::string text;
  };

  // A surface with the given text metrics in user units.
  explicit RecordingSurface(double charWidth = 2.0, double charHeight = 4.0)
      : m_charWidth(charWidth), m_charHeight(charHeight) {}

  void clear() override;
  void setAutoRedraw(bool on) override;
  void setScale(double left, double top, double right, double bottom) override;
  void setLineWidth(int width) override;
  void setLineStyle(LineStyle style) override;
  void line(double x1, double y1, double x2, double y2, int colour) override;
  void fillBox(double x1, double y1, double x2, double y2, int colour) override;
  double textWidth(const std::string& text) const override;
  double textHeight(const std::string& text) const override;
  void setCurrentX(double x) override { m_x = x; }
  void setCurrentY(double y) override { m_y = y; }
  void print(const std::string& text) override;

  // Every operation since the surface was made, in order.
  const std::vector<Op>& ops() const { return m_ops; }
  // The operations of one kind.
  std::vector<Op> ops(Op::Kind kind) const;
  // The printed text equal to text (nullptr when none).
  const Op* printed(const std::string& text) const;
  // Whether persistent redraw is on.
  bool autoRedraw() const { return m_autoRedraw; }
  // Forgets the recorded operations.
  void reset() { m_ops.clear(); }

 private:
  double m_charWidth;
  double m_charHeight;
  double m_top = 0.0;
  double m_bottom = 1.0;
  double m_left = 0.0;
  double m_x = 0.0;
  double m_y = 0.0;
  int m_width = 1;
  LineStyle m_style = LineStyle::Solid;
  bool m_autoRedraw = false;
  std::vector<Op> m_ops;
};

}  // namespace tnw
