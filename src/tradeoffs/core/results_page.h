#pragma once

#include "common/core/table_text.h"
#include "graphs/core/chart_data.h"
#include "graphs/core/drawing_surface.h"
#include "graphs/core/graphs.h"
#include "tradeoffs/core/multi_regression_data.h"
#include "tradeoffs/core/tradeoff_weights.h"
#include "wizard/core/control_states.h"
#include "wizard/core/wizard_page.h"

// Std
#include <string>

namespace tnw {
struct AttributeModel;
}  // namespace tnw

namespace tnw::tradeoffs {

// The results page of the trade-off dialog: the overall regression grid, the weights grid, the
// comment and the chart chosen on the toolbar tbWeightCharts. It reads the fit's record and the
// method's weight tables and changes neither; entering the page fills it from the result it was
// built over.
class ResultsPage : public wizard::WizardPage {
 public:
  // The title of every weight chart.
  static constexpr const char* kChartTitle = "Attribute Weights and Their Ranges";
  // The toolbar keys.
  static constexpr const char* kWeightBars = "WeightBars";
  static constexpr const char* kHLCa = "HLCa";
  static constexpr const char* kHLCb = "HLCb";

  // A page that is filled only through the functions below.
  ResultsPage() = default;
  // A page over a model and the method's result, which must outlive it; entering it fills it.
  ResultsPage(const AttributeModel& model, const TradeOffWeights& weights,
              const MultiRegressionData& record)
      : m_model(&model), m_weightsIn(&weights), m_record(&record) {}

  // Entering the page after a fit: both grids, the comment and the HLCa chart.
  void initializePage() override;
  // The last page: Next leads nowhere.
  int nextId() const override { return kNoNextPage; }
  // The results can always be handed on (a failed fit is refused by Finish itself).
  bool isComplete() const override { return true; }

  // The page's grids, comment box and chart choice as the view shows them.
  const wizard::GridState& gridOverallRegression() const { return m_overall; }
  const wizard::GridState& gridWeights() const { return m_weights; }
  const wizard::TextBoxState& txtComments() const { return m_comments; }
  // The key of the chart in view (empty before one is chosen) and its data.
  const std::string& chartKey() const { return m_chartKey; }
  const ChartData& chart() const { return m_chart; }

  // Lays out the overall grid: headings "Items", "Values" and the five row labels.
  void SetgridOverallRegression();
  // Writes the five values and the trimmed comment.
  void FillRegressionData(const MultiRegressionData& record, const std::string& comment);
  // Lays out the weights grid: four headings and one row per attribute.
  void SetgirdWeights(const AttributeModel& model);
  // Writes the close, high and low estimates of every attribute.
  void FillWeightData(const TradeOffWeights& weights);
  // Chooses the chart by its toolbar key; other keys change nothing.
  void tbWeightCharts_ButtonClick(const std::string& key, const AttributeModel& model,
                                  const TradeOffWeights& weights);
  // The same over the page's own model and result (nothing on a page built without them).
  void tbWeightCharts_ButtonClick(const std::string& key);
  // Draws the chart in view on a surface (nothing before a chart is chosen).
  void drawChart(DrawingSurface& surface) const;
  // gridWeights as text, the headings first, each cell as the grid shows it.
  TextTable tableText() const { return m_weights.cells; }

  // The export buttons beside the chart toolbar: Copy (gridWeights and the chart to the
  // clipboard), Save as CSV (gridWeights) and Save chart as SVG.
  const wizard::ButtonState& cmdCopy() const { return m_cmdCopy; }
  const wizard::ButtonState& cmdSaveCsv() const { return m_cmdSaveCsv; }
  const wizard::ButtonState& cmdSaveSvg() const { return m_cmdSaveSvg; }

  // The chart data of the three toolbar buttons.
  static ChartData Display_VerticalWeightBars(const AttributeModel& model,
                                              const TradeOffWeights& weights);
  static ChartData Display_WeightsHLCGraphA(const AttributeModel& model,
                                            const TradeOffWeights& weights);
  static ChartData Display_WeightsHLCGraphB(const AttributeModel& model,
                                            const TradeOffWeights& weights);

 private:
  const AttributeModel* m_model = nullptr;
  const TradeOffWeights* m_weightsIn = nullptr;
  const MultiRegressionData* m_record = nullptr;
  wizard::GridState m_overall;
  wizard::GridState m_weights;
  wizard::TextBoxState m_comments;
  std::string m_chartKey;
  ChartData m_chart;
  Graphs m_graphs;
  wizard::ButtonState m_cmdCopy{"Cop&y"};
  wizard::ButtonState m_cmdSaveCsv{"Save as CS&V"};
  wizard::ButtonState m_cmdSaveSvg{"Save chart as SV&G"};
};

}  // namespace tnw::tradeoffs
