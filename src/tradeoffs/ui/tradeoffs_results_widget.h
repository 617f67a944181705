#pragma once

#include "graphs/core/chart_data.h"
#include "wizard/core/control_states.h"

// Qt
#include <QStringList>
#include <QWidget>

// Std
#include <string>
#include <vector>

class QAction;
class QActionGroup;
class QLabel;
class QListWidget;
class QPushButton;
class QStackedWidget;
class QTabBar;
class QTableWidget;
class QTextEdit;
class QToolBar;

namespace tnw {
class ChartWidget;
}  // namespace tnw

namespace tnw::tradeoffs {

class ResultsPage;

// The results page of frmTradeOffsA: the tab strip tsTabsW over the weight-estimates panel
// (gridWeights and the chart with its toolbar tbWeightCharts, and under them the export buttons
// cmdCopy, cmdSaveCsv and cmdSaveSvg) and the regression-status panel
// (gridOverallRegression, txtComments and the list lstWorstJudgments). It lays the controls out
// and shows a ResultsPage (render); the dialog connects the tabs and the toolbar to the
// presenter.
class TradeOffsResultsWidget : public QWidget {
  Q_OBJECT

 public:
  // The page's controls, each named by its objectName.
  struct Controls {
    QTabBar* tsTabsW = nullptr;
    QStackedWidget* panels = nullptr;
    QWidget* picWeightEst = nullptr;
    QWidget* picRegStatus = nullptr;
    QTableWidget* gridWeights = nullptr;
    QTableWidget* gridOverallRegression = nullptr;
    QTextEdit* txtComments = nullptr;
    // The judgments that lower the consistency index most, under their caption.
    QLabel* lblWorstJudgments = nullptr;
    QListWidget* lstWorstJudgments = nullptr;
    QToolBar* tbWeightCharts = nullptr;
    // The toolbar's buttons by key: "WeightBars", "HLCa", "HLCb".
    QAction* chartButton[3] = {};
    ChartWidget* picWeightGraph = nullptr;
    // The exports: the grid and chart to the clipboard, the grid as CSV, the chart as SVG.
    QPushButton* cmdCopy = nullptr;
    QPushButton* cmdSaveCsv = nullptr;
    QPushButton* cmdSaveSvg = nullptr;
  };

  // Builds the page with every control.
  explicit TradeOffsResultsWidget(QWidget* parent = nullptr);

  // The page's controls.
  const Controls& controls() const { return m_c; }

  // The keys of the chart toolbar's buttons, in toolbar order.
  static const char* chartKey(int button);

  // Shows the page: the tab in front (1 weights, 2 regression status), the grids, the comment,
  // the worst judgments' lines and the chart, which is drawn from the page. The page must
  // outlive the widget or be rendered again before the chart is drawn.
  void render(const ResultsPage& page, int tab, const std::vector<std::string>& worstLines);
  // Writes a grid's cells (row 0 the headings) into a table widget, changing only what differs;
  // true when something changed.
  static bool renderGrid(QTableWidget& table, const wizard::GridState& grid);

 private:
  QWidget* buildWeightEst();
  QWidget* buildRegStatus();
  QToolBar* buildChartToolbar(QWidget* parent);
  QLayout* buildExportRow(QWidget* parent);
  void renderExports(const ResultsPage& page);
  void renderWorstJudgments(const std::vector<std::string>& worstLines);

  Controls m_c;
  // The page last shown, which the chart is drawn from.
  const ResultsPage* m_page = nullptr;
  // What the widgets show, to leave them alone when it has not changed.
  wizard::GridState m_shownOverall;
  wizard::GridState m_shownWeights;
  std::string m_shownKey;
  ChartData m_shownChart;
  QStringList m_shownWorst;
};

}  // namespace tnw::tradeoffs
