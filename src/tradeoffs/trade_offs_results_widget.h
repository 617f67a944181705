#pragma once

// Qt
#include <QWidget>

class QAction;
class QActionGroup;
class QLabel;
class QListWidget;
class QStackedWidget;
class QTabBar;
class QTableWidget;
class QTextEdit;
class QToolBar;

namespace tnw {

class ChartWidget;

// The results page of frmTradeOffsA: the tab strip tsTabsW over the weight-estimates panel
// (gridWeights and the chart with its toolbar tbWeightCharts) and the regression-status panel
// (gridOverallRegression, txtComments and the list lstWorstJudgments). It only lays the controls
// out.
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
  };

  // Builds the page with every control.
  explicit TradeOffsResultsWidget(QWidget* parent = nullptr);

  // The page's controls.
  const Controls& controls() const { return m_c; }

  // The keys of the chart toolbar's buttons, in toolbar order.
  static const char* chartKey(int button);

 private:
  QWidget* buildWeightEst();
  QWidget* buildRegStatus();
  QToolBar* buildChartToolbar(QWidget* parent);

  Controls m_c;
};

}  // namespace tnw
