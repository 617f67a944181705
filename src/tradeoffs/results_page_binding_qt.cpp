#include "tradeoffs/results_page_binding_qt.h"

#include "graphs/chart_widget.h"
#include "graphs/drawing_surface_qt.h"
#include "tradeoffs/results_page.h"
#include "tradeoffs/trade_offs_a_presenter.h"
#include "tradeoffs/trade_offs_results_widget.h"

// Qt
#include <QAction>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableWidget>
#include <QTextEdit>

namespace tnw {

ResultsPageBindingQt::ResultsPageBindingQt(TradeOffsResultsWidget& widget,
                                           TradeOffsAPresenter& presenter, QObject* parent)
    : QObject(parent), m_widget(widget), m_presenter(presenter), m_page(presenter.resultsPage()) {
  const auto& c = m_widget.controls();
  connect(c.tsTabsW, &QTabBar::currentChanged, this, [this](int tab) {
    if (!m_rendering) m_presenter.tsTabsW_Click(tab + 1);
  });
  for (int i = 0; i < 3; ++i) {
    const char* key = TradeOffsResultsWidget::chartKey(i);
    connect(c.chartButton[i], &QAction::triggered, this, [this, key] { chooseChart(key); });
  }
  const ResultsPage* shown = &m_page;
  c.picWeightGraph->setPainter([shown](QPainter& painter, const QRectF& area) {
    // The charts span 155 user units, and each item has a slot of 100 / n under the plot:
    // the font shrinks until the names fit their slots, and names still too long are elided.
    const ChartData& chart = shown->chart();
    const double slot = chart.n > 0 ? 100.0 / chart.n : 100.0;
    QFont font = DrawingSurfaceQt::fittedFont(painter.font(), painter.device(), area.width());
    font = DrawingSurfaceQt::fontFitting(font, painter.device(), chart.names,
                                         slot * 0.95 * area.width() / 155.0);
    painter.setFont(font);
    DrawingSurfaceQt surface(painter, area);
    surface.setElidedTexts(chart.names, slot * 0.95);
    shown->drawChart(surface);
  });
}

void ResultsPageBindingQt::chooseChart(const char* key) {
  if (!m_rendering) m_presenter.tbWeightCharts_ButtonClick(key);
}

void ResultsPageBindingQt::renderGrid(QTableWidget& table, const GridState& grid) {
  const int cols = grid.cols();
  const int rows = grid.rows() > 0 ? grid.rows() - 1 : 0;
  if (table.columnCount() != cols) table.setColumnCount(cols);
  if (table.rowCount() != rows) table.setRowCount(rows);
  for (int c = 0; c < cols; ++c) {
    const QString heading = QString::fromStdString(grid.text(0, c));
    QTableWidgetItem* h = table.horizontalHeaderItem(c);
    if (h == nullptr) {
      table.setHorizontalHeaderItem(c, new QTableWidgetItem(heading));
    } else if (h->text() != heading) {
      h->setText(heading);
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
        table.setItem(r, c, item);
      } else if (item->text() != text) {
        item->setText(text);
      }
    }
  }
}

void ResultsPageBindingQt::render() {
  m_rendering = true;
  const auto& c = m_widget.controls();
  const int tab = m_presenter.tsTabsW() - 1;
  if (tab == 0 || tab == 1) {
    c.tsTabsW->setCurrentIndex(tab);
    c.panels->setCurrentIndex(tab);
  }
  renderGrid(*c.gridOverallRegression, m_page.gridOverallRegression());
  renderGrid(*c.gridWeights, m_page.gridWeights());
  const QString comment = QString::fromStdString(m_page.txtComments().text);
  if (c.txtComments->toPlainText() != comment) c.txtComments->setPlainText(comment);
  for (int i = 0; i < 3; ++i) {
    c.chartButton[i]->setChecked(m_page.chartKey() == TradeOffsResultsWidget::chartKey(i));
  }
  c.picWeightGraph->update();
  m_rendering = false;
}

}  // namespace tnw
