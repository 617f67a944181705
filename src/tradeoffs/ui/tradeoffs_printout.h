#pragma once

#include "graphs/ui/chart_widget.h"

// Qt
#include <QDate>
#include <QMarginsF>
#include <QString>
#include <QStringList>
#include <QVector>

class QPagedPaintDevice;
class QPainter;
class QTableWidget;

namespace tnw::tradeoffs {

// The print-out of the trade-off results page: a heading, the overall regression grid beside the
// comment, the weight grid and the chart, drawn with a painter so that texts and lines stay
// vectors on a printer or in a PDF file. Sizes are in points, so a page reads alike on any
// printer. Every page names the model file, the method and the date at its top and counts the
// pages at its bottom. Long texts in the grids wrap; a grid longer than the page goes on over the
// next page with its headings again; the chart takes the room left under the grids, or a page of
// its own when that room is too small for it.
class TradeOffsPrintout {
 public:
  // One grid as it is shown: its column headings and the texts of its cells, row by row.
  struct Table {
    QStringList headings;
    QVector<QStringList> rows;
  };

  // The size of the heading, in points.
  static constexpr double kTitlePoints = 14.0;
  // The size of every other text before the chart fits its own, in points.
  static constexpr double kTextPoints = 10.0;

  // The margin kept on every side of a page at least, in millimetres; a printer whose own
  // margins are wider keeps its own.
  static constexpr double kMinimumMarginMm = 15.0;

  // The heading printed at the top of the first page.
  QString title;
  // The name of the model file the results belong to, printed at the top of every page.
  QString modelFile;
  // The elicitation method, printed at the top of every page.
  QString method;
  // The date printed at the top of every page.
  QDate date;
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

  // Draws the print-out on the device (a printer or a PDF writer), page after page, within page
  // margins of kMinimumMarginMm at least.
  void print(QPagedPaintDevice& device) const;
  // The page margins the print-out uses on a device whose margins are `margins`: each at least
  // kMinimumMarginMm, and at least the device's minimum (both in millimetres).
  static QMarginsF printMargins(const QMarginsF& margins, const QMarginsF& minimum);
  // The line at the top of every page: the model file, the method and the date.
  QString pageHeader() const;
  // The line at the bottom of page `index` (from 0) of `count`.
  static QString pageFooter(int index, int count);
  // How many pages the print-out takes, each the given rectangle of the painter's device.
  int pageCount(QPainter& painter, const QRectF& page) const;
  // Draws page `index` (from 0) into the given rectangle, in device units.
  void renderPage(QPainter& painter, const QRectF& page, int index) const;

 private:
  class Flow;

  void run(Flow& flow) const;
  void drawPageFrame(QPainter& painter, const QRectF& page, int index, int count) const;
  static QRectF bodyOf(QPainter& painter, const QRectF& page);
  void drawHeading(Flow& flow) const;
  void drawRegressionAndComment(Flow& flow) const;
  void drawChart(Flow& flow) const;
};

}  // namespace tnw::tradeoffs
