#pragma once

#include "direct/core/exact_weight_bounds.h"
#include "graphs/core/chart_data.h"

// Qt
#include <QStringList>
#include <QVector>
#include <QWidget>

class QLabel;
class QPushButton;
class QTableWidget;

namespace tnw {
struct AttributeModel;
class ChartWidget;
}  // namespace tnw

namespace tnw::direct {

class ResultsGrid;
class ResultsPage;

// Step 3 of the direct method: the results grid gridTN with one row per attribute, and below it
// the exact weight ranges (lblExactBounds over gridExactBounds), the weight chart picWeightGraph
// beside them and the export buttons cmdCopy, cmdSaveCsv and cmdSaveSvg under them.
class DirectResultsPageWidget : public QWidget {
  Q_OBJECT

 public:
  // An empty grid.
  explicit DirectResultsPageWidget(QWidget* parent = nullptr);

  // Fills the grid: the header texts and one row of texts per attribute.
  void setTable(const QStringList& headers, const QVector<QStringList>& rows);
  // Shows the results grid: row 0 of the grid is the header row.
  void render(const ResultsGrid& grid);
  // Shows the exact weight ranges, or why there are none.
  void renderExactBounds(const AttributeModel& model, const ExactWeightBounds::Result& bounds);
  // The grid.
  QTableWidget* grid() const { return m_grid; }
  // The exact weight ranges' title (or the reason there are none) and their grid.
  QLabel* exactTitle() const { return m_exactTitle; }
  QTableWidget* exactGrid() const { return m_exactGrid; }
  // Shows the weight chart and the export buttons' states.
  void renderExports(const ResultsPage& page);
  // The weight chart and the export buttons.
  ChartWidget* chart() const { return m_chart; }
  QPushButton* copyButton() const { return m_cmdCopy; }
  QPushButton* saveCsvButton() const { return m_cmdSaveCsv; }
  QPushButton* saveSvgButton() const { return m_cmdSaveSvg; }

 private:
  void applyColumnWidths();
  QLayout* buildExports();

  QTableWidget* m_grid = nullptr;
  QLabel* m_exactTitle = nullptr;
  QTableWidget* m_exactGrid = nullptr;
  ChartWidget* m_chart = nullptr;
  QPushButton* m_cmdCopy = nullptr;
  QPushButton* m_cmdSaveCsv = nullptr;
  QPushButton* m_cmdSaveSvg = nullptr;
  // The page whose chart the chart area draws.
  const ResultsPage* m_page = nullptr;
  ChartData m_shownChart;
  QString m_exactSignature;
  int m_shownRows = -1;
  QString m_signature;
};

}  // namespace tnw::direct
