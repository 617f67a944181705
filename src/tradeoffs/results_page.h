#pragma once

#include "graphs/chart_data.h"
#include "graphs/drawing_surface.h"
#include "graphs/graphs.h"
#include "tradeoffs/control_states.h"
#include "tradeoffs/multi_regression_data.h"

// Std
#include <string>

namespace tnw {

struct WizardContext;

// The results page of the trade-off dialog: the overall regression grid, the weights grid, the
// comment and the chart chosen on the toolbar tbWeightCharts. It reads the record and the shared
// weight tables and changes neither.
class ResultsPage {
 public:
  // The title of every weight chart.
  static constexpr const char* kChartTitle = "Attribute Weights and Their Ranges";
  // The toolbar keys.
  static constexpr const char* kWeightBars = "WeightBars";
  static constexpr const char* kHLCa = "HLCa";
  static constexpr const char* kHLCb = "HLCb";

  // The page's grids, comment box and chart choice as the view shows them.
  const GridState& gridOverallRegression() const { return m_overall; }
  const GridState& gridWeights() const { return m_weights; }
  const TextBoxState& txtComments() const { return m_comments; }
  // The key of the chart in view (empty before one is chosen) and its data.
  const std::string& chartKey() const { return m_chartKey; }
  const ChartData& chart() const { return m_chart; }

  // Lays out the overall grid: headings "Items", "Values" and the five row labels.
  void SetgridOverallRegression();
  // Writes the five values and the trimmed comment.
  void FillRegressionData(const MultiRegressionData& record, const std::string& comment);
  // Lays out the weights grid: four headings and one row per attribute.
  void SetgirdWeights(const WizardContext& context);
  // Writes the close, high and low estimates of every attribute.
  void FillWeightData(const WizardContext& context);
  // Chooses the chart by its toolbar key; other keys change nothing.
  void tbWeightCharts_ButtonClick(const std::string& key, const WizardContext& context);
  // Draws the chart in view on a surface (nothing before a chart is chosen).
  void drawChart(DrawingSurface& surface) const;

  // The chart data of the three toolbar buttons.
  static ChartData Display_VerticalWeightBars(const WizardContext& context);
  static ChartData Display_WeightsHLCGraphA(const WizardContext& context);
  static ChartData Display_WeightsHLCGraphB(const WizardContext& context);

 private:
  GridState m_overall;
  GridState m_weights;
  TextBoxState m_comments;
  std::string m_chartKey;
  ChartData m_chart;
  Graphs m_graphs;
};

}  // namespace tnw
