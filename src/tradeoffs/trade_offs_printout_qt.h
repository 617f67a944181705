#pragma once

#include "graphs/chart_widget.h"

// Qt
#include <QString>
#include <QStringList>
#include <QVector>

class QPagedPaintDevice;
class QPainter;
class QTableWidget;

namespace tnw {

// The print-out of the trade-off results page: a heading, the weight grid, the overall
// regression grid, the comment and the chart, drawn with a painter so that texts and lines stay
// vectors on a printer or in a PDF file.
class TradeOffsPrintoutQt {
 public:
  // One grid as it is shown: its column headings and the texts of its cells, row by row.
  struct Table {
    QStringList headings;
    QVector<QStringList> rows;
  };

  // The heading printed at the top of the page.
  QString title;
  // The weight estimates (gridWeights).
  Table weights;
  // The overall regression figures (gridOverallRegression).
  Table regression;
  // The consistency comment (txtComments).
  QString comment;
  // Draws the chart that the results page shows; may be empty.
  ChartWidget::Painter chart;

  // The texts of a grid as it is shown.
  static Table fromGrid(const QTableWidget& grid);

  // Draws the print-out on one page of the device (a printer or a PDF writer).
  void print(QPagedPaintDevice& device) const;
  // Draws the print-out into the given page rectangle, in device units.
  void render(QPainter& painter, const QRectF& page) const;

 private:
  double drawTable(QPainter& painter, const Table& table, double left, double top,
                   double width) const;
  double drawComment(QPainter& painter, double left, double top, double width) const;
};

}  // namespace tnw
