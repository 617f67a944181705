#include "tradeoffs/results_page_binding_qt.h"

#include "component/wizard_dialog_qt.h"
#include "graphs/chart_widget.h"
#include "graphs/drawing_surface_qt.h"
#include "tradeoffs/results_page.h"
#include "tradeoffs/trade_offs_a_presenter.h"
#include "tradeoffs/trade_offs_results_widget.h"

// Qt
#include <QAction>
#include <QListWidget>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableWidget>
#include <QTextEdit>

namespace tnw {

namespace {

bool sameChart(const ChartData& a, const ChartData& b) {
  return a.title == b.title && a.n == b.n && a.names == b.names && a.divisions == b.divisions &&
         a.seriesCount == b.seriesCount && a.data == b.data && a.legend == b.legend;
}

}  // namespace

ResultsPageBindingQt::ResultsPageBindingQt(TradeOffsResultsWidget& widget,
                                           TradeOffsAPresenter& presenter, QObject* parent)
    : QObject(parent), m_widget(widget), m_presenter(presenter), m_page(presenter.resultsPage()) {
  const auto& c = m_widget.controls();
  connect(c.tsTabsW, &QTabBar::currentChanged, this, guarded(this, [this](int tab) {
            if (!m_rendering) m_presenter.tsTabsW_Click(tab + 1);
          }));
  for (int i = 0; i < 3; ++i) {
    const char* key = TradeOffsResultsWidget::chartKey(i);
    connect(c.chartButton[i], &QAction::triggered, this,
            guarded(this, [this, key] { chooseChart(key); }));
  }
  const ResultsPage* shown = &m_page;
  c.picWeightGraph->setPainter([shown](QPainter& painter, const QRectF& area) {
    // The charts span 155 user units; the scale labels set the font of the chart's texts, and
    // each item name has a slot of 100 / n under the plot and the 28 units below the axis.
    const ChartData& chart = shown->chart();
    const double slot = chart.n > 0 ? 100.0 / chart.n : 100.0;
    painter.setFont(DrawingSurfaceQt::fittedFont(painter.font(), painter.device(), area.width()));
    DrawingSurfaceQt surface(painter, area);
    surface.setItemTexts(chart.names, slot * 0.95, 27.0);
    shown->drawChart(surface);
  });
}

void ResultsPageBindingQt::chooseChart(const char* key) {
  if (!m_rendering) m_presenter.tbWeightCharts_ButtonClick(key);
}

bool ResultsPageBindingQt::renderGrid(QTableWidget& table, const GridState& grid) {
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
  for (int r = 0; r < rows; ++r) {
    for (int c = 0; c < cols; ++c) {
      const QString text = QString::fromStdString(grid.text(r + 1, c));
      QTableWidgetItem* item = table.item(r, c);
      if (item == nullptr) {
        item = new QTableWidgetItem(text);
        // Names read from the left, numbers line up on the right.
        item->setTextAlignment(c == 0 ? (Qt::AlignLeft | Qt::AlignVCenter)
                                      : (Qt::AlignRight | Qt::AlignVCenter));
        if (c == 0) item->setToolTip(text);
        table.setItem(r, c, item);
        changed = true;
      } else if (item->text() != text) {
        item->setText(text);
        if (c == 0) item->setToolTip(text);
        changed = true;
      }
    }
  }
  // The number columns are measured once per change, not each time the grid is shown.
  if (changed) {
    for (int c = 1; c < cols; ++c) table.resizeColumnToContents(c);
  }
  return changed;
}

void ResultsPageBindingQt::renderWorstJudgments() {
  QStringList lines;
  for (const std::string& line : m_presenter.worstJudgmentLines()) {
    lines.append(QString::fromStdString(line));
  }
  if (lines == m_shownWorst) return;
  m_shownWorst = lines;
  QListWidget& list = *m_widget.controls().lstWorstJudgments;
  list.clear();
  list.addItems(lines);
}

void ResultsPageBindingQt::render() {
  m_rendering = true;
  const auto& c = m_widget.controls();
  const int tab = m_presenter.tsTabsW() - 1;
  if (tab == 0 || tab == 1) {
    c.tsTabsW->setCurrentIndex(tab);
    c.panels->setCurrentIndex(tab);
  }
  // Most renders follow a tab or a chart key: the grids and the comment stay as they are.
  if (m_shownOverall.cells != m_page.gridOverallRegression().cells) {
    m_shownOverall = m_page.gridOverallRegression();
    renderGrid(*c.gridOverallRegression, m_shownOverall);
  }
  if (m_shownWeights.cells != m_page.gridWeights().cells) {
    m_shownWeights = m_page.gridWeights();
    renderGrid(*c.gridWeights, m_shownWeights);
  }
  const QString comment = QString::fromStdString(m_page.txtComments().text);
  if (c.txtComments->toPlainText() != comment) c.txtComments->setPlainText(comment);
  renderWorstJudgments();
  for (int i = 0; i < 3; ++i) {
    c.chartButton[i]->setChecked(m_page.chartKey() == TradeOffsResultsWidget::chartKey(i));
  }
  // The chart is drawn again only when it changed.
  if (m_shownKey != m_page.chartKey() || !sameChart(m_shownChart, m_page.chart())) {
    m_shownKey = m_page.chartKey();
    m_shownChart = m_page.chart();
    c.picWeightGraph->redraw();
  }
  m_rendering = false;
}

}  // namespace tnw
