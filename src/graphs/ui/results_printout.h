#pragma once

#include "graphs/ui/chart_widget.h"

// Qt
#include <QDate>
#include <QMarginsF>
#include <QString>
#include <QStringList>
#include <QVector>

// Std
#include <functional>

class QPagedPaintDevice;
class QPainter;
class QTableWidget;
class QWidget;

namespace tnw {

// The print-out of a results page: a heading, the overall figures grid beside the comment (when
// there are any), the weight grid, a further grid under its title (when there is one) and the
// chart, drawn with a painter so that texts and lines stay
// vectors on a printer or in a PDF file. Sizes are in points, so a page reads alike on any
// printer. Every page names the model file, the method and the date at its top and counts the
// pages at its bottom. Long texts in the grids wrap; a grid longer than the page goes on over the
// next page with its headings again; the chart takes the room left under the grids, or a page of
// its own when that room is too small for it.
class ResultsPrintout {
 public:
  // One grid as it is shown: its column headings and the texts of its cells, row by row.
  struct Table {
    QStringList headings;
    QVector<QStringList> rows;
    // The column of the names: it reads from the left and takes the width the others leave.
    int nameColumn = 0;
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
  // A further grid printed under the weights, under its title; none when it has no headings.
  QString extraTitle;
  Table extra;
  // Draws the chart that the results page shows; may be empty.
  ChartWidget::Painter chart;

  // The texts of a grid as it is shown, with its names in `nameColumn`.
  static Table fromGrid(const QTableWidget& grid, int nameColumn = 0);
  // Opens the platform's print dialog over `parent` without a nested event loop; when it is
  // accepted, `print` draws on its printer. The dialog (dlgPrint) deletes itself when it closes.
  // Where printing cannot be loaded (graphs/ui/print_support.h), a message box says so instead.
  static void openPrintDialog(QWidget* parent, const QString& docName,
                              const std::function<void(QPagedPaintDevice&)>& print);

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
  void drawTable(Flow& flow, const Table& table) const;
  void drawChart(Flow& flow) const;
};

}  // namespace tnw
