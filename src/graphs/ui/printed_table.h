#pragma once

// Qt
#include <QFont>
#include <QStringList>
#include <QVector>

// Std
#include <memory>
#include <vector>

class QPaintDevice;
class QPainter;
class QPointF;
class QTextLayout;

namespace tnw {

// One grid of a results print-out laid out for a width: the names column (the first unless given)
// takes what the others leave, the others are as wide as their widest text, and every text wraps to
// its cell, at word boundaries where it can and anywhere in a word too long for the cell, so
// that nothing is cut. The print-out places the heading and the rows; a row is never split.
class PrintedTable {
 public:
  // Lays the grid out in `font` (bold for the headings) for the device, `width` units wide, with
  // the names in column `nameColumn`.
  PrintedTable(const QStringList& headings, const QVector<QStringList>& rows, const QFont& font,
               const QPaintDevice* device, double width, int nameColumn = 0);
  ~PrintedTable();

  // The number of rows under the heading.
  int rowCount() const { return static_cast<int>(m_rowHeights.size()) - 1; }
  // The height of the heading row.
  double headingHeight() const { return m_rowHeights.empty() ? 0.0 : m_rowHeights.front(); }
  // The height of a row (from 0).
  double rowHeight(int row) const { return m_rowHeights[static_cast<std::size_t>(row) + 1]; }
  // The total width.
  double width() const { return m_width; }

  // Draws the heading row with its top-left corner at `topLeft`.
  void drawHeading(QPainter& painter, const QPointF& topLeft) const;
  // Draws one row with its top-left corner at `topLeft`.
  void drawRow(QPainter& painter, int row, const QPointF& topLeft) const;

 private:
  void drawLine(QPainter& painter, std::size_t line, const QPointF& topLeft) const;

  std::vector<double> m_columnWidths;
  // Line 0 is the heading, line r + 1 row r; each holds one laid-out text per column.
  std::vector<std::vector<std::unique_ptr<QTextLayout>>> m_cells;
  std::vector<double> m_rowHeights;
  double m_width = 0.0;
  double m_padding = 0.0;
  std::size_t m_nameColumn = 0;
};

}  // namespace tnw
