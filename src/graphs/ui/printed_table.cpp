#include "graphs/ui/printed_table.h"

// Qt
#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

// Std
#include <algorithm>

namespace tnw {

namespace {

// Lays a text out in lines of at most `width` and returns the height it takes.
double layOut(QTextLayout& layout, double width) {
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  double height = 0.0;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    line.setPosition(QPointF(0.0, height));
    height += line.height();
  }
  layout.endLayout();
  return height;
}

}  // namespace

PrintedTable::PrintedTable(const QStringList& headings, const QVector<QStringList>& rows,
                           const QFont& font, const QPaintDevice* device, double width,
                           int nameColumn)
    : m_width(width) {
  const auto columns = static_cast<std::size_t>(headings.size());
  if (columns == 0) return;
  m_nameColumn = nameColumn > 0 && static_cast<std::size_t>(nameColumn) < columns
                     ? static_cast<std::size_t>(nameColumn)
                     : 0;
  const std::size_t names = m_nameColumn;
  QFont bold = font;
  bold.setBold(true);
  const QFontMetricsF plain(font, device);
  const QFontMetricsF heavy(bold, device);
  m_padding = plain.averageCharWidth() * 0.6;
  const auto textOf = [&](std::size_t line, std::size_t column) {
    const QStringList& texts = line == 0 ? headings : rows[static_cast<qsizetype>(line - 1)];
    return column < static_cast<std::size_t>(texts.size()) ? texts[static_cast<qsizetype>(column)]
                                                           : QString();
  };
  // The number columns are as wide as their widest text, but together take at most 60 %.
  m_columnWidths.assign(columns, 0.0);
  const std::size_t lines = static_cast<std::size_t>(rows.size()) + 1;
  for (std::size_t c = 0; c < columns; ++c) {
    if (c == names) continue;
    for (std::size_t l = 0; l < lines; ++l) {
      const QFontMetricsF& fm = l == 0 ? heavy : plain;
      m_columnWidths[c] = std::max(m_columnWidths[c], fm.horizontalAdvance(textOf(l, c)));
    }
    m_columnWidths[c] += 2 * m_padding;
  }
  double numbers = 0.0;
  for (std::size_t c = 0; c < columns; ++c) {
    if (c != names) numbers += m_columnWidths[c];
  }
  if (numbers > width * 0.6 && numbers > 0) {
    for (std::size_t c = 0; c < columns; ++c) {
      if (c != names) m_columnWidths[c] *= width * 0.6 / numbers;
    }
    numbers = width * 0.6;
  }
  m_columnWidths[names] = width - numbers;
  for (std::size_t l = 0; l < lines; ++l) {
    std::vector<std::unique_ptr<QTextLayout>> cells;
    double height = 0.0;
    for (std::size_t c = 0; c < columns; ++c) {
      auto layout = std::make_unique<QTextLayout>(textOf(l, c), l == 0 ? bold : font, device);
      height = std::max(height, layOut(*layout, std::max(1.0, m_columnWidths[c] - 2 * m_padding)));
      cells.push_back(std::move(layout));
    }
    m_cells.push_back(std::move(cells));
    m_rowHeights.push_back(std::max(height, plain.height()) + plain.height() * 0.5);
  }
}

PrintedTable::~PrintedTable() = default;

void PrintedTable::drawHeading(QPainter& painter, const QPointF& topLeft) const {
  if (m_cells.empty()) return;
  painter.fillRect(QRectF(topLeft, QSizeF(m_width, headingHeight())), QColor(224, 224, 224));
  drawLine(painter, 0, topLeft);
}

void PrintedTable::drawRow(QPainter& painter, int row, const QPointF& topLeft) const {
  if (row < 0 || row >= rowCount()) return;
  drawLine(painter, static_cast<std::size_t>(row) + 1, topLeft);
}

void PrintedTable::drawLine(QPainter& painter, std::size_t line, const QPointF& topLeft) const {
  const double height = m_rowHeights[line];
  double x = topLeft.x();
  painter.setPen(QPen(Qt::black, 0));
  for (std::size_t c = 0; c < m_cells[line].size(); ++c) {
    const QTextLayout& layout = *m_cells[line][c];
    const double textHeight = layout.boundingRect().height();
    // Names and headings read from the left, numbers line up on the right.
    double offset = m_padding;
    if (c != m_nameColumn && line > 0 && layout.lineCount() == 1) {
      offset =
          std::max(m_padding, m_columnWidths[c] - m_padding - layout.lineAt(0).naturalTextWidth());
    }
    layout.draw(&painter, QPointF(x + offset, topLeft.y() + (height - textHeight) / 2));
    painter.drawLine(QPointF(x, topLeft.y()), QPointF(x, topLeft.y() + height));
    x += m_columnWidths[c];
  }
  painter.drawLine(QPointF(x, topLeft.y()), QPointF(x, topLeft.y() + height));
  painter.drawLine(topLeft, QPointF(topLeft.x() + m_width, topLeft.y()));
  painter.drawLine(QPointF(topLeft.x(), topLeft.y() + height),
                   QPointF(topLeft.x() + m_width, topLeft.y() + height));
}

}  // namespace tnw
