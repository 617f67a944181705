#include "graphs/ui/chart_op_drawer.h"

#include "graphs/core/palette.h"

// Qt
#include <QPaintEngine>
#include <QPainter>

namespace tnw {

namespace {

// Whether lines on the raster engine are drawn in batches (see setLinesBatched).
bool batchLines = true;

QColor colourOf(int index) {
  return QColor(static_cast<QRgb>(0xFF000000u | tnw::paletteColour(index)));
}

}  // namespace

ChartOpDrawer::ChartOpDrawer(QPainter& painter, double pixelScale)
    : m_painter(painter), m_pixelScale(pixelScale) {
  const QPaintEngine* engine = painter.paintEngine();
  m_batching = batchLines && engine != nullptr && engine->type() == QPaintEngine::Raster;
}

ChartOpDrawer::~ChartOpDrawer() { flush(); }

void ChartOpDrawer::setLinesBatched(bool batched) { batchLines = batched; }

void ChartOpDrawer::draw(const Op& op) {
  switch (op.kind) {
    case Op::Kind::Fill:
      flushTurnedNames();
      if (!m_lines.empty() && m_lines.reaches(op.box)) flushLines();
      m_painter.fillRect(op.rect, op.colour);
      return;
    case Op::Kind::Line:
      // The turned names wait to be drawn together, unless a line would cross them.
      if (!m_turnedNames.empty() && m_turnedBox.intersects(op.box)) flushTurnedNames();
      if (m_batching) {
        m_lines.add(op.pen, op.line, op.box);
        return;
      }
      usePen({false, op.pen});
      m_painter.drawLine(op.line);
      return;
    case Op::Kind::Text:
      drawText(op);
      return;
    case Op::Kind::Turned:
      addTurnedName(op);
      return;
  }
}

void ChartOpDrawer::flush() {
  flushLines();
  flushTurnedNames();
}

void ChartOpDrawer::drawText(const Op& op) {
  flushTurnedNames();
  // Waiting lines that the text may touch are drawn first, as they were asked for first.
  if (!m_lines.empty() && m_lines.reaches(op.box)) flushLines();
  usePen({true, {}});
  if (op.item) {
    m_painter.save();
    m_painter.setFont(op.font);
    drawTextAt(m_painter, op.at, op.text);
    m_painter.restore();
  } else {
    // The painter's own font, which a kept frame's painter is given too.
    if (m_painter.font() != op.font) m_painter.setFont(op.font);
    drawTextAt(m_painter, op.at, op.text);
  }
}

void ChartOpDrawer::addTurnedName(const Op& op) {
  const TurnedName name{op.text, op.at};
  if (!takesTurnedStrip(m_painter)) {
    flushLines();
    drawTurnedNames(m_painter, op.font, {name}, {});
    return;
  }
  if (!m_turnedNames.empty() && m_turnedFont != op.font) flushTurnedNames();
  m_turnedBox = m_turnedNames.empty() ? op.box : m_turnedBox.united(op.box);
  m_turnedFont = op.font;
  m_turnedNames.push_back(name);
}

void ChartOpDrawer::flushLines() {
  if (m_lines.empty()) return;
  m_lines.drawOn(m_painter, [this](const LinePen& pen) { usePen({false, pen}); });
}

void ChartOpDrawer::flushTurnedNames() {
  if (m_turnedNames.empty()) return;
  // The strip is kept with the pixels under it: the lines asked for before must be on them.
  flushLines();
  drawTurnedNames(m_painter, m_turnedFont, m_turnedNames, m_turnedBox);
  m_turnedNames.clear();
}

void ChartOpDrawer::usePen(const Pen& pen) {
  if (m_pen && *m_pen == pen) return;
  m_pen = pen;
  if (pen.text) {
    m_painter.setPen(Qt::black);
    return;
  }
  QPen line(colourOf(pen.line.colour), pen.line.width * m_pixelScale);
  line.setStyle(pen.line.style == LineStyle::Dot ? Qt::DotLine : Qt::SolidLine);
  line.setCapStyle(Qt::FlatCap);
  m_painter.setPen(line);
}

}  // namespace tnw
