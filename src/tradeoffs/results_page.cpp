#include "tradeoffs/results_page.h"

#include "common/number_format.h"
#include "component/wizard_context.h"
#include "model/attribute_names.h"

namespace tnw {

namespace {

double at(const std::vector<double>& v, int i) {
  return i >= 0 && i < static_cast<int>(v.size()) ? v[static_cast<std::size_t>(i)] : 0.0;
}

// The chart items: one per attribute with its name and its high, low and close estimates.
ChartData hlcData(const WizardContext& c) {
  ChartData d;
  d.title = ResultsPage::kChartTitle;
  d.n = c.model.attributeCount();
  for (int i = 0; i < d.n; ++i) {
    d.names.push_back(model::attributeName(c.model, i));
    d.data.push_back({at(c.UpperWeights, i), at(c.LowerWeights, i), at(c.CloseWeights, i)});
  }
  return d;
}

}  // namespace

void ResultsPage::SetgridOverallRegression() {
  m_overall.cells = {{"Items", "Values"},           {"Constant", ""},
                     {"Std Err of Actual Est", ""}, {"R Squared", ""},
                     {"No of Obs.(Protoocl)", ""},  {"Degree of Freedom", ""}};
}

void ResultsPage::FillRegressionData(const MultiRegressionData& record,
                                     const std::string& comment) {
  if (m_overall.rows() != 6) SetgridOverallRegression();
  m_overall.cells[1][1] = generalText(record.Constant);
  m_overall.cells[2][1] = formatNumber(record.StdErrEst, "0.0000");
  m_overall.cells[3][1] = formatNumber(record.RSquared, "0.0000");
  m_overall.cells[4][1] = formatNumber(record.NumObs, "###");
  m_overall.cells[5][1] = formatNumber(record.DegFreedom, "###");
  m_comments.text = model::trimmed(comment);
}

void ResultsPage::SetgirdWeights(const WizardContext& context) {
  m_weights.cells = {{"Attributes", "Weights", "Est.High", "Est.Low"}};
  const int n = context.model.attributeCount();
  for (int i = 0; i < n; ++i) {
    m_weights.cells.push_back({model::attributeName(context.model, i), "", "", ""});
  }
}

void ResultsPage::FillWeightData(const WizardContext& context) {
  for (int i = 1; i < m_weights.rows(); ++i) {
    auto& row = m_weights.cells[static_cast<std::size_t>(i)];
    row[1] = formatNumber(at(context.CloseWeights, i - 1), "0.0000");
    row[2] = formatNumber(at(context.UpperWeights, i - 1), "0.0000");
    row[3] = formatNumber(at(context.LowerWeights, i - 1), "0.0000");
  }
}

ChartData ResultsPage::Display_VerticalWeightBars(const WizardContext& context) {
  // The bars read the high estimates, on purpose: the page has always shown them this way.
  ChartData d;
  d.title = kChartTitle;
  d.n = context.model.attributeCount();
  d.seriesCount = 1;
  d.legend = {"Weights"};
  for (int i = 0; i < d.n; ++i) {
    d.names.push_back(model::attributeName(context.model, i));
    d.data.push_back({at(context.UpperWeights, i), 0.0, 0.0});
  }
  return d;
}

ChartData ResultsPage::Display_WeightsHLCGraphA(const WizardContext& context) {
  ChartData d = hlcData(context);
  d.legend = {"High Est.", "Low Est.", "Close Est."};
  return d;
}

ChartData ResultsPage::Display_WeightsHLCGraphB(const WizardContext& context) {
  ChartData d = hlcData(context);
  d.legend = {"Ranges", "Close Est."};
  return d;
}

void ResultsPage::tbWeightCharts_ButtonClick(const std::string& key, const WizardContext& context) {
  if (key == kWeightBars) {
    m_chart = Display_VerticalWeightBars(context);
  } else if (key == kHLCa) {
    m_chart = Display_WeightsHLCGraphA(context);
  } else if (key == kHLCb) {
    m_chart = Display_WeightsHLCGraphB(context);
  } else {
    return;
  }
  m_chartKey = key;
}

void ResultsPage::drawChart(DrawingSurface& surface) const {
  Graphs g = m_graphs;
  g.GridColour = 9;
  g.DrawFrame = true;
  if (m_chartKey == kWeightBars) {
    g.Display_VBarGraphMain(surface, m_chart);
  } else if (m_chartKey == kHLCa) {
    g.Display_HLCGraphAMain(surface, m_chart);
  } else if (m_chartKey == kHLCb) {
    g.Display_HLCGraphBMain(surface, m_chart);
  }
}

}  // namespace tnw
