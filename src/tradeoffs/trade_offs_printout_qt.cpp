#include "tradeoffs/trade_offs_printout_qt.h"

// Qt
#include <QHeaderView>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTableWidget>
#include <QTextLayout>

// Std
#include <algorithm>

namespace tnw {

namespace {

// The font sizes of the print-out, in points, so a page reads the same on any printer.
constexpr double kTitlePoints = 14.0;
constexpr double kTextPoints = 10.0;

QFont printFont(const QPainter& painter, double points, bool bold) {
  QFont f = painter.font();
  f.setPointSizeF(points);
  f.setBold(bold);
  return f;
}

}  // namespace

TradeOffsPrintoutQt::Table TradeOffsPrintoutQt::fromGrid(const QTableWidget& grid) {
  Table t;
  for (int c = 0; c < grid.columnCount(); ++c) {
    const QTableWidgetItem* h = grid.horizontalHeaderItem(c);
    t.headings << (h ? h->text() : QString());
  }
  for (int r = 0; r < grid.rowCount(); ++r) {
    QStringList row;
    for (int c = 0; c < grid.columnCount(); ++c) {
      const QTableWidgetItem* item = grid.item(r, c);
      row << (item ? item->text() : QString());
    }
    t.rows << row;
  }
  return t;
}

void TradeOffsPrintoutQt::print(QPagedPaintDevice& device) const {
  QPainter painter(&device);
  const QRectF page(0, 0, device.width(), device.height());
  render(painter, page);
}

void TradeOffsPrintoutQt::render(QPainter& painter, const QRectF& page) const {
  painter.save();
  painter.setFont(printFont(painter, kTitlePoints, true));
  const double titleHeight = painter.fontMetrics().height();
  painter.setPen(Qt::black);
  painter.drawText(QRectF(page.left(), page.top(), page.width(), titleHeight * 1.5),
                   Qt::AlignLeft | Qt::AlignTop, title);
  double y = page.top() + titleHeight * 2;
  const double gap = titleHeight;
  const double half = (page.width() - gap) / 2;
  const double left = drawTable(painter, weights, page.left(), y, half);
  const double right = drawTable(painter, regression, page.left() + half + gap, y, half);
  y = std::max(left, right) + gap;
  y = drawComment(painter, page.left(), y, page.width()) + gap;
  if (chart) {
    const double height = std::min(page.bottom() - y, page.width() * 0.7);
    if (height > 0) {
      painter.setFont(printFont(painter, kTextPoints, false));
      const QRectF area(page.left(), y, page.width(), height);
      // The chart clears its area first, so its border comes after it.
      chart(painter, area);
      painter.setPen(QPen(Qt::gray, 0));
      painter.setBrush(Qt::NoBrush);
      painter.drawRect(area);
    }
  }
  painter.restore();
}

double TradeOffsPrintoutQt::drawTable(QPainter& painter, const Table& table, double left,
                                      double top, double width) const {
  const int columns = static_cast<int>(table.headings.size());
  if (columns == 0) return top;
  painter.setFont(printFont(painter, kTextPoints, false));
  const QFontMetricsF fm(painter.font(), painter.device());
  const double rowHeight = fm.height() * 1.5;
  const double pad = fm.averageCharWidth() / 2;
  // The first column holds names and takes what the number columns leave.
  const double numberWidth = std::min(
      width / columns, fm.horizontalAdvance(QStringLiteral("Std Err of Actual Est")) * 0.6);
  const double firstWidth = width - numberWidth * (columns - 1);
  auto cellRect = [&](int row, int col) {
    const double x = col == 0 ? left : left + firstWidth + numberWidth * (col - 1);
    const double w = col == 0 ? firstWidth : numberWidth;
    return QRectF(x, top + row * rowHeight, w, rowHeight);
  };
  const int rows = static_cast<int>(table.rows.size()) + 1;
  painter.fillRect(QRectF(left, top, width, rowHeight), QColor(224, 224, 224));
  for (int r = 0; r < rows; ++r) {
    const QStringList& texts = r == 0 ? table.headings : table.rows[r - 1];
    QFont f = painter.font();
    f.setBold(r == 0);
    painter.setFont(f);
    for (int c = 0; c < columns && c < texts.size(); ++c) {
      const QRectF cell = cellRect(r, c).adjusted(pad, 0, -pad, 0);
      const Qt::Alignment align = (c == 0 || r == 0 ? Qt::AlignLeft : Qt::AlignRight);
      painter.drawText(cell, align | Qt::AlignVCenter,
                       fm.elidedText(texts[c], Qt::ElideRight, cell.width()));
    }
  }
  painter.setPen(QPen(Qt::black, 0));
  for (int r = 0; r <= rows; ++r) {
    painter.drawLine(QPointF(left, top + r * rowHeight),
                     QPointF(left + width, top + r * rowHeight));
  }
  for (int c = 0; c <= columns; ++c) {
    const double x = c == columns ? left + width : cellRect(0, c).left();
    painter.drawLine(QPointF(x, top), QPointF(x, top + rows * rowHeight));
  }
  return top + rows * rowHeight;
}

double TradeOffsPrintoutQt::drawComment(QPainter& painter, double left, double top,
                                        double width) const {
  painter.setFont(printFont(painter, kTextPoints, true));
  const QFontMetricsF bold(painter.font(), painter.device());
  painter.drawText(QPointF(left, top + bold.ascent()), QStringLiteral("Comments:"));
  double y = top + bold.height() * 1.3;
  painter.setFont(printFont(painter, kTextPoints, false));
  QTextLayout layout(comment, painter.font(), painter.device());
  double height = 0;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    line.setPosition(QPointF(0, height));
    height += line.height();
  }
  layout.endLayout();
  layout.draw(&painter, QPointF(left, y));
  y += height;
  return y;
}

}  // namespace tnw
