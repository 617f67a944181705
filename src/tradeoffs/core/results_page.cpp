#include "tradeoffs/core/results_page.h"

#include "common/core/number_format.h"
#include "model/attribute_model.h"
#include "model/attribute_names.h"

namespace tnw::tradeoffs {

namespace {

double at(const std::vector<double>& v, int i) {
  return i >= 0 && i < static_cast<int>(v.size()) ? v[static_cast<std::size_t>(i)] : 0.0;
}

// The chart items: one per attribute with its name and its high, low and close estimates.
ChartData hlcData(const AttributeModel& m, const TradeOffWeights& w) {
  ChartData d;
  d.title = ResultsPage::kChartTitle;
  d.n = m.attributeCount();
  for (int i = 0; i < d.n; ++i) {
    d.names.push_back(model::attributeName(m, i));
    d.data.push_back({at(w.UpperWeights, i), at(w.LowerWeights, i), at(w.CloseWeights, i)});
  }
  return d;
}

}  // namespace

void ResultsPage::initializePage() {
  if (m_model == nullptr || m_weightsIn == nullptr || m_record == nullptr) return;
  SetgirdWeights(*m_model);
  SetgridOverallRegression();
  FillRegressionData(*m_record, m_weightsIn->RegressionComment);
  FillWeightData(*m_weightsIn);
  tbWeightCharts_ButtonClick(kHLCa);
}

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

void ResultsPage::SetgirdWeights(const AttributeModel& model) {
  m_weights.cells = {{"Attributes", "Weights", "Est.High", "Est.Low"}};
  const int n = model.attributeCount();
  for (int i = 0; i < n; ++i) {
    m_weights.cells.push_back({model::attributeName(model, i), "", "", ""});
  }
}

void ResultsPage::FillWeightData(const TradeOffWeights& weights) {
  for (int i = 1; i < m_weights.rows(); ++i) {
    auto& row = m_weights.cells[static_cast<std::size_t>(i)];
    row[1] = formatNumber(at(weights.CloseWeights, i - 1), "0.0000");
    row[2] = formatNumber(at(weights.UpperWeights, i - 1), "0.0000");
    row[3] = formatNumber(at(weights.LowerWeights, i - 1), "0.0000");
  }
}

ChartData ResultsPage::Display_VerticalWeightBars(const AttributeModel& model,
                                                  const TradeOffWeights& weights) {
  // The bars read the high estimates, on purpose: the page has always shown them this way.
  ChartData d;
  d.title = kChartTitle;
  d.n = model.attributeCount();
  d.seriesCount = 1;
  d.legend = {"Weights"};
  for (int i = 0; i < d.n; ++i) {
    d.names.push_back(model::attributeName(model, i));
    d.data.push_back({at(weights.UpperWeights, i), 0.0, 0.0});
  }
  return d;
}

ChartData ResultsPage::Display_WeightsHLCGraphA(const AttributeModel& model,
                                                const TradeOffWeights& weights) {
  ChartData d = hlcData(model, weights);
  d.legend = {"High Est.", "Low Est.", "Close Est."};
  return d;
}

ChartData ResultsPage::Display_WeightsHLCGraphB(const AttributeModel& model,
                                                const TradeOffWeights& weights) {
  ChartData d = hlcData(model, weights);
  d.legend = {"Ranges", "Close Est."};
  return d;
}

void ResultsPage::tbWeightCharts_ButtonClick(const std::string& key) {
  if (m_model != nullptr && m_weightsIn != nullptr) {
    tbWeightCharts_ButtonClick(key, *m_model, *m_weightsIn);
  }
}

void ResultsPage::tbWeightCharts_ButtonClick(const std::string& key, const AttributeModel& model,
                                             const TradeOffWeights& weights) {
  if (key == kWeightBars) {
    m_chart = Display_VerticalWeightBars(model, weights);
  } else if (key == kHLCa) {
    m_chart = Display_WeightsHLCGraphA(model, weights);
  } else if (key == kHLCb) {
    m_chart = Display_WeightsHLCGraphB(model, weights);
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

}  // namespace tnw::tradeoffs
