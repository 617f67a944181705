#include "direct/ui/direct_results_page_widget.h"

#include "common/ui/wrapped_label.h"
#include "direct/core/results_grid.h"
#include "direct/core/results_page.h"
#include "direct/ui/control_rendering.h"
#include "graphs/ui/chart_widget.h"
#include "graphs/ui/painter_surface.h"
#include "graphs/ui/results_export.h"

// Qt
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

// Std
#include <algorithm>

namespace tnw::direct {

namespace {

QPushButton* exportButton(const char* name, QWidget* parent) {
  auto* button = new QPushButton(parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setAutoDefault(false);
  return button;
}

// Draws the page's chart as the trade-off page draws its own: the scale labels set the font, and
// each item name has a slot of 100 / n under the plot and the 28 units below the axis.
void drawPageChart(const ResultsPage& page, QPainter& painter, const QRectF& area) {
  const int n = page.chart().n;
  const double slot = n > 0 ? 100.0 / n : 100.0;
  painter.setFont(PainterSurface::fittedFont(painter.font(), painter.device(), area.width()));
  PainterSurface surface(painter, area);
  surface.setItemTexts(page.chart().names, slot * 0.95, 27.0);
  page.drawChart(surface);
}

}  // namespace

DirectResultsPageWidget::DirectResultsPageWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picStep3"));
  auto* caption =
      new WrappedLabel(tr("Weights of the attributes derived from your judgments:"), this);
  m_grid = new QTableWidget(this);
  m_grid->setObjectName(QStringLiteral("gridTN"));
  m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_grid->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_grid->setAlternatingRowColors(true);
  m_grid->verticalHeader()->hide();
  m_grid->horizontalHeader()->setStretchLastSection(false);
  m_grid->setWordWrap(false);
  caption->setBuddy(m_grid);
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(0, 0, 0, 0);
  auto* columns = new QHBoxLayout;
  auto* layout = new QVBoxLayout;
  columns->addLayout(layout, 3);
  m_chart = new ChartWidget(this);
  m_chart->setObjectName(QStringLiteral("picWeightGraph"));
  columns->addWidget(m_chart, 2);
  outer->addLayout(columns, 1);
  outer->addLayout(buildExports());
  layout->addWidget(caption);
  layout->addWidget(m_grid, 1);

  m_exactTitle = new WrappedLabel(QString::fromUtf8(ExactWeightBounds::kTitle), this);
  m_exactTitle->setObjectName(QStringLiteral("lblExactBounds"));
  QFont bold = m_exactTitle->font();
  bold.setBold(true);
  m_exactTitle->setFont(bold);
  m_exactGrid = new QTableWidget(this);
  m_exactGrid->setObjectName(QStringLiteral("gridExactBounds"));
  m_exactGrid->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_exactGrid->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_exactGrid->verticalHeader()->hide();
  m_exactGrid->setWordWrap(false);
  m_exactTitle->setBuddy(m_exactGrid);
  layout->addWidget(m_exactTitle);
  layout->addWidget(m_exactGrid, 1);
}

QLayout* DirectResultsPageWidget::buildExports() {
  m_cmdCopy = exportButton("cmdCopy", this);
  m_cmdCopy->setToolTip(tr("Copies the weights grid as text and the chart as a picture"));
  m_cmdSaveCsv = exportButton("cmdSaveCsv", this);
  m_cmdSaveCsv->setToolTip(tr("Saves the weights grid as comma-separated values"));
  m_cmdSaveSvg = exportButton("cmdSaveSvg", this);
  m_cmdSaveSvg->setToolTip(ResultsExport::svgAvailable() ? tr("Saves the chart as an SVG picture")
                                                         : ResultsExport::svgUnavailableTip());
  auto* row = new QHBoxLayout;
  row->addWidget(m_cmdCopy);
  row->addWidget(m_cmdSaveCsv);
  row->addWidget(m_cmdSaveSvg);
  row->addStretch(1);
  return row;
}

void DirectResultsPageWidget::renderExports(const ResultsPage& page) {
  if (m_page != &page) {
    m_page = &page;
    m_chart->setPainter([shown = m_page](QPainter& painter, const QRectF& area) {
      drawPageChart(*shown, painter, area);
    });
  }
  // The chart is drawn again only when its data changed.
  const ChartData& chart = page.chart();
  if (chart.names != m_shownChart.names || chart.data != m_shownChart.data) {
    m_shownChart = chart;
    m_chart->redraw();
  }
  renderButton(m_cmdCopy, page.cmdCopy());
  renderButton(m_cmdSaveCsv, page.cmdSaveCsv());
  wizard::ButtonState svg = page.cmdSaveSvg();
  svg.enabled = svg.enabled && ResultsExport::svgAvailable();
  renderButton(m_cmdSaveSvg, svg);
}

void DirectResultsPageWidget::renderExactBounds(const AttributeModel& model,
                                                const ExactWeightBounds::Result& bounds) {
  const auto rows = ExactWeightBounds::rows(model, bounds);
  const std::string note = ExactWeightBounds::message(model, bounds);
  QString signature = QString::fromStdString(note);
  for (const auto& row : rows) {
    for (const auto& cell : row) signature += QString::fromStdString(cell) + QLatin1Char('\t');
  }
  if (signature == m_exactSignature && m_exactGrid->columnCount() > 0) return;
  m_exactSignature = signature;
  m_exactTitle->setText(QString::fromUtf8(note.empty() ? ExactWeightBounds::kTitle : note.c_str()));
  m_exactGrid->clear();
  m_exactGrid->setColumnCount(ExactWeightBounds::kColumns);
  QStringList headers;
  for (const char* h : ExactWeightBounds::kHeaders) headers.append(QString::fromUtf8(h));
  m_exactGrid->setHorizontalHeaderLabels(headers);
  m_exactGrid->setRowCount(static_cast<int>(rows.size()));
  for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
    for (int c = 0; c < ExactWeightBounds::kColumns; ++c) {
      auto* item = new QTableWidgetItem(
          QString::fromStdString(rows[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)]));
      item->setTextAlignment((c == 1 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
      m_exactGrid->setItem(r, c, item);
    }
  }
  m_exactGrid->resizeColumnsToContents();
  m_exactGrid->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
}

void DirectResultsPageWidget::setTable(const QStringList& headers,
                                       const QVector<QStringList>& rows) {
  m_grid->clear();
  m_grid->setColumnCount(static_cast<int>(headers.size()));
  m_grid->setHorizontalHeaderLabels(headers);
  m_grid->setRowCount(static_cast<int>(rows.size()));
  for (int r = 0; r < rows.size(); ++r) {
    for (int c = 0; c < rows[r].size() && c < headers.size(); ++c) {
      auto* item = new QTableWidgetItem(rows[r][c]);
      // Names read from the left, the range pairs are centred, numbers line up on the right.
      const Qt::Alignment h = c == 1 ? Qt::AlignLeft : (c == 4 ? Qt::AlignHCenter : Qt::AlignRight);
      item->setTextAlignment(h | Qt::AlignVCenter);
      m_grid->setItem(r, c, item);
    }
  }
  applyColumnWidths();
  // The name column takes what is left of the grid's width.
  m_grid->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
}

void DirectResultsPageWidget::applyColumnWidths() {
  const QFontMetrics fm = m_grid->fontMetrics();
  const auto widths = ResultsGrid::columnWidths(fm.horizontalAdvance(QStringLiteral("Weights")),
                                                fm.horizontalAdvance(QStringLiteral("Likelihood")),
                                                m_grid->viewport()->width());
  m_grid->resizeColumnsToContents();
  // The grid's own widths are a floor; no text is ever cut by them.
  for (int c = 0; c < m_grid->columnCount() && c < static_cast<int>(widths.size()); ++c) {
    const int contents = m_grid->columnWidth(c) + 12;
    m_grid->setColumnWidth(c, std::max(contents, widths[static_cast<std::size_t>(c)]));
  }
}

void DirectResultsPageWidget::render(const ResultsGrid& grid) {
  QString signature;
  for (int r = 0; r < grid.rows(); ++r) {
    for (int c = 0; c < ResultsGrid::kColumns; ++c) {
      signature += QString::fromStdString(grid.cell(r, c)) + QLatin1Char('\t');
    }
  }
  if (grid.rows() == m_shownRows && signature == m_signature) return;
  m_shownRows = grid.rows();
  m_signature = signature;
  QStringList headers;
  for (int c = 0; c < ResultsGrid::kColumns; ++c) {
    headers.append(QString::fromStdString(grid.cell(0, c)));
  }
  QVector<QStringList> rows;
  for (int r = 1; r < grid.rows(); ++r) {
    QStringList row;
    for (int c = 0; c < ResultsGrid::kColumns; ++c) {
      row.append(QString::fromStdString(grid.cell(r, c)));
    }
    rows.append(row);
  }
  setTable(headers, rows);
}

}  // namespace tnw::direct
