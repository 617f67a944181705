#include "graphs/ui/results_printout.h"

#include "graphs/ui/print_support.h"
#include "graphs/ui/printed_table.h"

// Qt
#include <QMessageBox>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTableWidget>
#include <QTextLayout>

// Std
#include <algorithm>
#include <memory>

namespace tnw {

namespace {

QFont printFont(const QPainter& painter, double points, bool bold) {
  QFont f = painter.font();
  f.setPointSizeF(points);
  f.setBold(bold);
  return f;
}

}  // namespace

// Where the print-out stands: the page in hand and how far down it is filled. Every page is laid
// out alike, but only the page being rendered is drawn, so that counting the pages and drawing
// one of them take the same path.
class ResultsPrintout::Flow {
 public:
  Flow(QPainter& painter, const QRectF& page, int target)
      : m_painter(painter), m_page(page), m_target(target), m_y(page.top()) {}

  QPainter& painter() { return m_painter; }
  const QRectF& page() const { return m_page; }
  // Whether what is placed now is drawn.
  bool drawing() const { return m_index == m_target; }
  int pageIndex() const { return m_index; }
  double y() const { return m_y; }
  double room() const { return m_page.bottom() - m_y; }
  // The space between two parts: one line of the text size.
  double gap() const {
    return QFontMetricsF(printFont(m_painter, kTextPoints, false), m_painter.device()).height();
  }
  void advance(double height) { m_y += height; }
  void newPage() {
    ++m_index;
    m_y = m_page.top();
  }

 private:
  QPainter& m_painter;
  QRectF m_page;
  int m_target;
  int m_index = 0;
  double m_y;
};

ResultsPrintout::Table ResultsPrintout::fromGrid(const QTableWidget& grid, int nameColumn) {
  Table t;
  t.nameColumn = nameColumn;
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

QMarginsF ResultsPrintout::printMargins(const QMarginsF& margins, const QMarginsF& minimum) {
  const auto side = [](double own, double least) {
    return std::max({own, least, kMinimumMarginMm});
  };
  return {side(margins.left(), minimum.left()), side(margins.top(), minimum.top()),
          side(margins.right(), minimum.right()), side(margins.bottom(), minimum.bottom())};
}

QString ResultsPrintout::pageHeader() const {
  QStringList parts;
  if (!modelFile.isEmpty()) parts << QStringLiteral("Model: %1").arg(modelFile);
  if (!method.isEmpty()) parts << QStringLiteral("Method: %1").arg(method);
  if (date.isValid()) parts << date.toString(Qt::ISODate);
  return parts.join(QStringLiteral("    "));
}

QString ResultsPrintout::pageFooter(int index, int count) {
  return QStringLiteral("Page %1 of %2").arg(index + 1).arg(count);
}

void ResultsPrintout::print(QPagedPaintDevice& device) const {
  // The device's painted area is its page less these margins.
  QPageLayout layout = device.pageLayout();
  layout.setUnits(QPageLayout::Millimeter);
  device.setPageMargins(printMargins(layout.margins(), layout.minimumMargins()),
                        QPageLayout::Millimeter);
  QPainter painter(&device);
  const QRectF page(0, 0, device.width(), device.height());
  const int pages = pageCount(painter, page);
  for (int i = 0; i < pages; ++i) {
    if (i > 0) device.newPage();
    renderPage(painter, page, i);
  }
}

QRectF ResultsPrintout::bodyOf(QPainter& painter, const QRectF& page) {
  // A line for the header and one for the footer, each with a line's gap to the body.
  const double line =
      QFontMetricsF(printFont(painter, kTextPoints, false), painter.device()).height();
  return page.adjusted(0, 2 * line, 0, -2 * line);
}

int ResultsPrintout::pageCount(QPainter& painter, const QRectF& page) const {
  Flow flow(painter, bodyOf(painter, page), -1);
  run(flow);
  return flow.pageIndex() + 1;
}

void ResultsPrintout::renderPage(QPainter& painter, const QRectF& page, int index) const {
  drawPageFrame(painter, page, index, pageCount(painter, page));
  Flow flow(painter, bodyOf(painter, page), index);
  run(flow);
}

void ResultsPrintout::drawPageFrame(QPainter& painter, const QRectF& page, int index,
                                    int count) const {
  painter.save();
  painter.setPen(Qt::black);
  painter.setFont(printFont(painter, kTextPoints, false));
  const QFontMetricsF fm(painter.font(), painter.device());
  const QString header = fm.elidedText(pageHeader(), Qt::ElideMiddle, page.width());
  painter.drawText(QRectF(page.left(), page.top(), page.width(), fm.height()),
                   Qt::AlignLeft | Qt::AlignTop, header);
  painter.setPen(QPen(Qt::gray, 0));
  const double rule = page.top() + fm.height() * 1.4;
  painter.drawLine(QPointF(page.left(), rule), QPointF(page.right(), rule));
  painter.setPen(Qt::black);
  painter.drawText(QRectF(page.left(), page.bottom() - fm.height(), page.width(), fm.height()),
                   Qt::AlignHCenter | Qt::AlignBottom, pageFooter(index, count));
  painter.restore();
}

void ResultsPrintout::run(Flow& flow) const {
  QPainter& painter = flow.painter();
  painter.save();
  painter.setPen(Qt::black);
  drawHeading(flow);
  if (!regression.headings.isEmpty() || !comment.isEmpty()) {
    drawRegressionAndComment(flow);
    flow.advance(flow.gap());
  }
  drawTable(flow, weights);
  if (!extra.headings.isEmpty()) {
    flow.advance(flow.gap());
    painter.setFont(printFont(painter, kTextPoints, true));
    const QFontMetricsF bold(painter.font(), painter.device());
    // The title stays with the grid's heading and first row.
    if (flow.room() < bold.height() * 4) flow.newPage();
    if (flow.drawing())
      painter.drawText(QPointF(flow.page().left(), flow.y() + bold.ascent()), extraTitle);
    flow.advance(bold.height() * 1.3);
    drawTable(flow, extra);
  }
  drawChart(flow);
  painter.restore();
}

void ResultsPrintout::drawTable(Flow& flow, const Table& table) const {
  // The grid, page after page, with its headings at the top of each.
  QPainter& painter = flow.painter();
  const PrintedTable grid(table.headings, table.rows, printFont(painter, kTextPoints, false),
                          painter.device(), flow.page().width(), table.nameColumn);
  if (table.headings.isEmpty()) return;
  const double left = flow.page().left();
  if (flow.room() < grid.headingHeight() + (grid.rowCount() > 0 ? grid.rowHeight(0) : 0.0)) {
    flow.newPage();
  }
  if (flow.drawing()) grid.drawHeading(painter, QPointF(left, flow.y()));
  flow.advance(grid.headingHeight());
  for (int r = 0; r < grid.rowCount(); ++r) {
    if (flow.room() < grid.rowHeight(r) && flow.y() > flow.page().top() + grid.headingHeight()) {
      flow.newPage();
      if (flow.drawing()) grid.drawHeading(painter, QPointF(left, flow.y()));
      flow.advance(grid.headingHeight());
    }
    if (flow.drawing()) grid.drawRow(painter, r, QPointF(left, flow.y()));
    flow.advance(grid.rowHeight(r));
  }
}

void ResultsPrintout::openPrintDialog(QWidget* parent, const QString& docName,
                                      const std::function<void(QPagedPaintDevice&)>& print) {
  QString error;
  if (const PrintSupportFunctions* functions = printSupport(&error)) {
    functions->openPrintDialog(parent, docName, print);
    return;
  }
  // Without its module (a broken installation) the wizard cannot print; it says so and goes on.
  auto* box = new QMessageBox(QMessageBox::Warning, docName,
                              QObject::tr("Printing is not available: %1").arg(error),
                              QMessageBox::Ok, parent);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

void ResultsPrintout::drawHeading(Flow& flow) const {
  QPainter& painter = flow.painter();
  painter.setFont(printFont(painter, kTitlePoints, true));
  const double height = QFontMetricsF(painter.font(), painter.device()).height();
  if (flow.drawing()) {
    painter.drawText(QRectF(flow.page().left(), flow.y(), flow.page().width(), height * 1.5),
                     Qt::AlignLeft | Qt::AlignTop, title);
  }
  flow.advance(height * 2);
}

void ResultsPrintout::drawRegressionAndComment(Flow& flow) const {
  // The overall figures on the left, the comment on the right.
  QPainter& painter = flow.painter();
  const double gap = flow.gap();
  const double half = (flow.page().width() - gap) / 2;
  const double top = flow.y();
  const PrintedTable grid(regression.headings, regression.rows,
                          printFont(painter, kTextPoints, false), painter.device(), half);
  double left = top;
  if (!regression.headings.isEmpty()) {
    if (flow.drawing()) grid.drawHeading(painter, QPointF(flow.page().left(), left));
    left += grid.headingHeight();
    for (int r = 0; r < grid.rowCount(); ++r) {
      if (flow.drawing()) grid.drawRow(painter, r, QPointF(flow.page().left(), left));
      left += grid.rowHeight(r);
    }
  }
  const double x = flow.page().left() + half + gap;
  painter.setFont(printFont(painter, kTextPoints, true));
  const QFontMetricsF bold(painter.font(), painter.device());
  if (flow.drawing())
    painter.drawText(QPointF(x, top + bold.ascent()), QStringLiteral("Comments:"));
  double right = top + bold.height() * 1.3;
  QTextLayout layout(comment, printFont(painter, kTextPoints, false), painter.device());
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  double height = 0;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(half);
    line.setPosition(QPointF(0, height));
    height += line.height();
  }
  layout.endLayout();
  if (flow.drawing()) layout.draw(&painter, QPointF(x, right));
  right += height;
  flow.advance(std::max(left, right) - top);
}

void ResultsPrintout::drawChart(Flow& flow) const {
  if (!chart) return;
  QPainter& painter = flow.painter();
  const QRectF& page = flow.page();
  // The chart is nearly square; below the grids it needs three quarters of its height at least,
  // else it takes a page of its own, where it may be a little taller.
  const double wanted = std::min(page.height(), page.width() * 0.9);
  flow.advance(flow.gap());
  double height = std::min(flow.room(), wanted);
  if (flow.room() < wanted * 0.75) {
    flow.newPage();
    height = std::min(page.height(), page.width() * 1.3);
  }
  if (flow.drawing() && height > 0) {
    painter.setFont(printFont(painter, kTextPoints, false));
    const QRectF area(page.left(), flow.y(), page.width(), height);
    // The chart clears its area first, so its border comes after it.
    painter.save();
    chart(painter, area);
    painter.restore();
    painter.setPen(QPen(Qt::gray, 0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area);
  }
  flow.advance(height);
}

}  // namespace tnw
