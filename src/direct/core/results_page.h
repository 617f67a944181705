#pragma once

#include "common/core/table_text.h"
#include "direct/core/direct_a_shared.h"
#include "direct/core/exact_weight_bounds.h"
#include "direct/core/ordering_page.h"
#include "direct/core/results_grid.h"
#include "graphs/core/chart_data.h"
#include "graphs/core/drawing_surface.h"
#include "wizard/core/control_states.h"
#include "wizard/core/wizard_page.h"

namespace tnw::direct {

// Step 3 of the direct method: the judgments as the grid gridTN of weight-ratio intervals,
// with the exact weight ranges they allow beside it and a chart of the weights; Finish exports
// them. The grid can be copied, saved as CSV and printed, the chart saved as SVG.
class ResultsPage : public wizard::WizardPage {
 public:
  // The step this page is on.
  static constexpr int kStep = 3;

  // The page over the shared data and the order of step 0 (for the number of attributes).
  ResultsPage(DirectAShared& shared, const OrderingPage& ordering);

  // Entered by Next from the judgments: fills the grid and computes the exact ranges; Back and
  // Finish are enabled, Next disabled.
  void initializePage() override;
  // The last step.
  int nextId() const override { return kNoNextPage; }
  // Complete while Finish is enabled.
  bool isComplete() const override { return m_shared.buttons.cmdFinish.enabled; }

  // The grid gridTN.
  const ResultsGrid& grid() const { return m_grid; }
  // The exact weight ranges shown beside gridTN.
  const ExactWeightBounds::Result& exactBounds() const { return m_exactBounds; }

  // The title of the weight chart.
  static constexpr const char* kChartTitle = "Attribute Weights and Their Ranges";
  // The chart picWeightGraph: per attribute its high weight, low weight and middle point as a
  // high-low-close chart (empty before the page is entered).
  const ChartData& chart() const { return m_chart; }
  // Draws the chart on a surface (nothing before the page is entered).
  void drawChart(DrawingSurface& surface) const;
  // gridTN as text, the header row first, each cell as the grid shows it.
  TextTable tableText() const;

  // The export buttons under the grids: Copy (the grid and the chart to the clipboard), Save as
  // CSV (the grid), Save chart as SVG, and Print in the wizard's button row.
  const wizard::ButtonState& cmdCopy() const { return m_cmdCopy; }
  const wizard::ButtonState& cmdSaveCsv() const { return m_cmdSaveCsv; }
  const wizard::ButtonState& cmdSaveSvg() const { return m_cmdSaveSvg; }
  const wizard::ButtonState& cmdPrint() const { return m_cmdPrint; }

 private:
  // The chart of the grid's weights for the first n attributes of the model.
  static ChartData weightChart(const AttributeModel& model, const ResultsGrid& grid, int n);

  DirectAShared& m_shared;
  const OrderingPage& m_ordering;
  ResultsGrid m_grid;
  ExactWeightBounds::Result m_exactBounds;
  ChartData m_chart;
  wizard::ButtonState m_cmdCopy{"Cop&y"};
  wizard::ButtonState m_cmdSaveCsv{"Save as CS&V"};
  wizard::ButtonState m_cmdSaveSvg{"Save chart as SV&G"};
  wizard::ButtonState m_cmdPrint{"&Print"};
};

}  // namespace tnw::direct
