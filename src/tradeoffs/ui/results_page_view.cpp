// How the results page widget shows a ResultsPage: the part of TradeOffsResultsWidget that
// renders, apart from the part that lays the controls out.
#include "graphs/ui/chart_widget.h"
#include "graphs/ui/painter_surface.h"
#include "graphs/ui/results_export.h"
#include "tradeoffs/core/results_page.h"
#include "tradeoffs/ui/grid_column_widths.h"
#include "tradeoffs/ui/tradeoffs_results_widget.h"

// Qt
#include <QAction>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableWidget>
#include <QTextEdit>

// Std
#include <algorithm>

namespace tnw::tradeoffs {

namespace {

bool sameChart(const ChartData& a, const ChartData& b) {
  return a.title == b.title && a.n == b.n && a.names == b.names && a.divisions == b.divisions &&
         a.seriesCount == b.seriesCount && a.data == b.data && a.legend == b.legend;
}

// Draws the page's chart: the charts span 155 user units; the scale labels set the font of the
// chart's texts, and each item name has a slot of 100 / n under the plot and the 28 units below
// the axis.
void drawPageChart(const ResultsPage& page, QPainter& painter, const QRectF& area) {
  const ChartData& chart = page.chart();
  const double slot = chart.n > 0 ? 100.0 / chart.n : 100.0;
  painter.setFont(PainterSurface::fittedFont(painter.font(), painter.device(), area.width()));
  PainterSurface surface(painter, area);
  surface.setItemTexts(chart.names, slot * 0.95, 27.0);
  page.drawChart(surface);
}

// Shows `text` in the cell at `row` and `column`, making its item when there is none; true when
// the cell changed.
bool renderCell(QTableWidget& table, int row, int column, const QString& text) {
  QTableWidgetItem* item = table.item(row, column);
  if (item == nullptr) {
    item = new QTableWidgetItem(text);
    // Names read from the left, numbers line up on the right.
    item->setTextAlignment(column == 0 ? (Qt::AlignLeft | Qt::AlignVCenter)
                                       : (Qt::AlignRight | Qt::AlignVCenter));
    if (column == 0) item->setToolTip(text);
    table.setItem(row, column, item);
    return true;
  }
  if (item->text() == text) return false;
  item->setText(text);
  if (column == 0) item->setToolTip(text);
  return true;
}

}  // namespace

bool TradeOffsResultsWidget::renderGrid(QTableWidget& table, const wizard::GridState& grid) {
  const int cols = grid.cols();
  const int rows = grid.rows() > 0 ? grid.rows() - 1 : 0;
  bool changed = false;
  if (table.columnCount() != cols) table.setColumnCount(cols);
  if (table.rowCount() != rows) table.setRowCount(rows);
  for (int c = 0; c < cols; ++c) {
    const QString heading = QString::fromStdString(grid.text(0, c));
    QTableWidgetItem* h = table.horizontalHeaderItem(c);
    if (h == nullptr) {
      table.setHorizontalHeaderItem(c, new QTableWidgetItem(heading));
      changed = true;
    } else if (h->text() != heading) {
      h->setText(heading);
      changed = true;
    }
  }
  // The cells change with the model's signals held back and the view hears of them once, as one
  // range: a notice per cell was about two fifths of the cost of filling the grid. (A sorted
  // grid sorts on each notice, and is told of each.)
  int top = rows;
  int bottom = -1;
  {
    const QSignalBlocker quiet(table.isSortingEnabled() ? nullptr : table.model());
    for (int r = 0; r < rows; ++r) {
      for (int c = 0; c < cols; ++c) {
        if (renderCell(table, r, c, QString::fromStdString(grid.text(r + 1, c)))) {
          top = std::min(top, r);
          bottom = std::max(bottom, r);
        }
      }
    }
  }
  if (bottom >= 0) {
    changed = true;
    if (!table.isSortingEnabled()) {
      QAbstractItemModel* model = table.model();
      emit model->dataChanged(model->index(top, 0), model->index(bottom, cols - 1));
    }
  }
  // The number columns are measured once per change, not each time the grid is shown, and only
  // their widest cells are asked for their size.
  if (changed) {
    for (int c = 1; c < cols; ++c) GridColumnWidths::fit(table, c);
  }
  return changed;
}

void TradeOffsResultsWidget::renderExports(const ResultsPage& page) {
  const auto show = [](QPushButton* button, const wizard::ButtonState& state, bool usable) {
    const QString caption = QString::fromStdString(state.caption);
    if (button->text() != caption) button->setText(caption);
    button->setEnabled(state.enabled && usable);
    button->setVisible(state.visible);
  };
  show(m_c.cmdCopy, page.cmdCopy(), true);
  show(m_c.cmdSaveCsv, page.cmdSaveCsv(), true);
  show(m_c.cmdSaveSvg, page.cmdSaveSvg(), ResultsExport::svgAvailable());
}

void TradeOffsResultsWidget::renderWorstJudgments(const std::vector<std::string>& worstLines) {
  QStringList lines;
  for (const std::string& line : worstLines) lines.append(QString::fromStdString(line));
  if (lines == m_shownWorst) return;
  m_shownWorst = lines;
  m_c.lstWorstJudgments->clear();
  m_c.lstWorstJudgments->addItems(lines);
}

void TradeOffsResultsWidget::render(const ResultsPage& page, int tab,
                                    const std::vector<std::string>& worstLines) {
  if (m_page != &page) {
    m_page = &page;
    m_c.picWeightGraph->setPainter([shown = m_page](QPainter& painter, const QRectF& area) {
      drawPageChart(*shown, painter, area);
    });
  }
  if (tab == 1 || tab == 2) {
    m_c.tsTabsW->setCurrentIndex(tab - 1);
    m_c.panels->setCurrentIndex(tab - 1);
  }
  // Most renders follow a tab or a chart key: the grids and the comment stay as they are.
  if (m_shownOverall.cells != page.gridOverallRegression().cells) {
    m_shownOverall = page.gridOverallRegression();
    renderGrid(*m_c.gridOverallRegression, m_shownOverall);
  }
  if (m_shownWeights.cells != page.gridWeights().cells) {
    m_shownWeights = page.gridWeights();
    renderGrid(*m_c.gridWeights, m_shownWeights);
  }
  const QString comment = QString::fromStdString(page.txtComments().text);
  if (m_c.txtComments->toPlainText() != comment) m_c.txtComments->setPlainText(comment);
  renderWorstJudgments(worstLines);
  renderExports(page);
  for (int i = 0; i < 3; ++i) m_c.chartButton[i]->setChecked(page.chartKey() == chartKey(i));
  // The chart is drawn again only when it changed.
  if (m_shownKey != page.chartKey() || !sameChart(m_shownChart, page.chart())) {
    m_shownKey = page.chartKey();
    m_shownChart = page.chart();
    m_c.picWeightGraph->redraw();
  }
}

}  // namespace tnw::tradeoffs
