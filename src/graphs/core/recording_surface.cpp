#include "graphs/core/recording_surface.h"

namespace tnw {

void RecordingSurface::clear() {
  Op op;
  op.kind = Op::Kind::Clear;
  m_ops.push_back(op);
  m_x = m_left;
  m_y = m_top;
}

void RecordingSurface::setAutoRedraw(bool on) {
  m_autoRedraw = on;
  Op op;
  op.kind = Op::Kind::AutoRedraw;
  op.width = on ? 1 : 0;
  m_ops.push_back(op);
}

void RecordingSurface::setScale(double left, double top, double right, double bottom) {
  m_left = left;
  m_top = top;
  m_bottom = bottom;
  m_x = left;
  m_y = top;
  m_ops.push_back({Op::Kind::Scale, left, top, right, bottom, 0, m_width, m_style, {}});
}

void RecordingSurface::setLineWidth(int width) {
  m_width = width;
  m_ops.push_back({Op::Kind::LineWidth, 0, 0, 0, 0, 0, width, m_style, {}});
}

void RecordingSurface::setLineStyle(LineStyle style) {
  m_style = style;
  m_ops.push_back({Op::Kind::LineStyle, 0, 0, 0, 0, 0, m_width, style, {}});
}

void RecordingSurface::line(double x1, double y1, double x2, double y2, int colour) {
  m_ops.push_back({Op::Kind::Line, x1, y1, x2, y2, colour, m_width, m_style, {}});
}

void RecordingSurface::fillBox(double x1, double y1, double x2, double y2, int colour) {
  m_ops.push_back({Op::Kind::FillBox, x1, y1, x2, y2, colour, m_width, m_style, {}});
}

double RecordingSurface::textWidth(const std::string& text) const {
  return m_charWidth * static_cast<double>(text.size());
}

double RecordingSurface::textHeight(const std::string&) const {
  return m_bottom < m_top ? -m_charHeight : m_charHeight;
}

void RecordingSurface::print(const std::string& text) {
  m_ops.push_back({Op::Kind::Print, m_x, m_y, 0, 0, 0, m_width, m_style, text});
  m_x = m_left;
  m_y += textHeight(text);
}

std::vector<RecordingSurface::Op> RecordingSurface::ops(Op::Kind kind) const {
  std::vector<Op> out;
  for (const Op& op : m_ops) {
    if (op.kind == kind) out.push_back(op);
  }
  return out;
}

const RecordingSurface::Op* RecordingSurface::printed(const std::string& text) const {
  for (const Op& op : m_ops) {
    if (op.kind == Op::Kind::Print && op.text == text) return &op;
  }
  return nullptr;
}

}  // namespace tnw
