#pragma once

#include "graphs/chart_data.h"
#include "tradeoffs/control_states.h"

// Qt
#include <QObject>
#include <QStringList>

// Std
#include <string>

class QTableWidget;

namespace tnw {

class ResultsPage;
class TradeOffsAPresenter;
class TradeOffsResultsWidget;

// Connects the controls of the results page widget to the trade-off presenter: the tabs and
// the chart toolbar's keys go to the presenter, and render() shows the results page's grids,
// comment, tab and chart. The chart is drawn by the page's own chart routines on a Qt drawing
// surface.
class ResultsPageBindingQt : public QObject {
  Q_OBJECT

 public:
  // Binds the widget to the presenter.
  ResultsPageBindingQt(TradeOffsResultsWidget& widget, TradeOffsAPresenter& presenter,
                       QObject* parent = nullptr);

  // Shows the page's current state in the widgets.
  void render();

  // Writes a grid's cells (row 0 the headings) into a table widget, changing only what differs;
  // true when something changed.
  static bool renderGrid(QTableWidget& table, const GridState& grid);

 private:
  void chooseChart(const char* key);
  void renderWorstJudgments();

  TradeOffsResultsWidget& m_widget;
  TradeOffsAPresenter& m_presenter;
  const ResultsPage& m_page;
  // What the widgets show, to leave them alone when it has not changed.
  GridState m_shownOverall;
  GridState m_shownWeights;
  std::string m_shownKey;
  ChartData m_shownChart;
  QStringList m_shownWorst;
  bool m_rendering = false;
};

}  // namespace tnw
