#include "tradeoffs/results_page.h"

#include "component/wizard_context.h"
#include "graphs/recording_surface.h"
#include "trade_off_fixtures.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

WizardContext resultsContext() {
  WizardContext c;
  c.model = testing::makeModel(2);
  c.CloseWeights = {0.4, 0.6};
  c.UpperWeights = {0.5, 0.75};
  c.LowerWeights = {0.3, 0.45};
  return c;
}

TEST(ResultsPageTest, OverallGridHasItsHeadingsRowLabelsAndFormats) {
  ResultsPage p;
  p.SetgridOverallRegression();
  MultiRegressionData r;
  r.StdErrEst = 0.123456;
  r.RSquared = 0.9;
  r.NumObs = 13;
  r.DegFreedom = 9;
  p.FillRegressionData(r, "  Consistency index is 0.9. It is very good! ");
  const GridState& g = p.gridOverallRegression();
  ASSERT_EQ(g.rows(), 6);
  EXPECT_EQ(g.text(0, 0), "Items");
  EXPECT_EQ(g.text(0, 1), "Values");
  EXPECT_EQ(g.text(1, 0), "Constant");
  EXPECT_EQ(g.text(1, 1), "0");
  EXPECT_EQ(g.text(2, 0), "Std Err of Actual Est");
  EXPECT_EQ(g.text(2, 1), "0.1235");
  EXPECT_EQ(g.text(3, 0), "R Squared");
  EXPECT_EQ(g.text(3, 1), "0.9000");
  EXPECT_EQ(g.text(4, 0), "No of Obs.(Protoocl)");
  EXPECT_EQ(g.text(4, 1), "13");
  EXPECT_EQ(g.text(5, 0), "Degree of Freedom");
  EXPECT_EQ(g.text(5, 1), "9");
  EXPECT_EQ(p.txtComments().text, "Consistency index is 0.9. It is very good!");
}

TEST(ResultsPageTest, ZeroObservationsAndDegreesOfFreedomShowEmptyCells) {
  ResultsPage p;
  p.SetgridOverallRegression();
  p.FillRegressionData(MultiRegressionData{}, "");
  EXPECT_EQ(p.gridOverallRegression().text(4, 1), "");
  EXPECT_EQ(p.gridOverallRegression().text(5, 1), "");
}

TEST(ResultsPageTest, WeightsGridShowsHighBeforeLow) {
  ResultsPage p;
  const WizardContext c = resultsContext();
  p.SetgirdWeights(c);
  p.FillWeightData(c);
  const GridState& g = p.gridWeights();
  ASSERT_EQ(g.rows(), 3);
  EXPECT_EQ(g.cells[0], (std::vector<std::string>{"Attributes", "Weights", "Est.High", "Est.Low"}));
  EXPECT_EQ(g.cells[1], (std::vector<std::string>{"Att1", "0.4000", "0.5000", "0.3000"}));
  EXPECT_EQ(g.cells[2], (std::vector<std::string>{"Att2", "0.6000", "0.7500", "0.4500"}));
}

TEST(ResultsPageTest, BarChartReadsTheHighEstimatesOnPurpose) {
  ResultsPage p;
  const WizardContext c = resultsContext();
  p.tbWeightCharts_ButtonClick("WeightBars", c);
  EXPECT_EQ(p.chartKey(), "WeightBars");
  EXPECT_EQ(p.chart().title, "Attribute Weights and Their Ranges");
  EXPECT_EQ(p.chart().legend, (std::vector<std::string>{"Weights"}));
  EXPECT_EQ(p.chart().n, 2);
  EXPECT_EQ(p.chart().data[0][0], 0.5);
  EXPECT_EQ(p.chart().data[1][0], 0.75);
  RecordingSurface s;
  p.drawChart(s);
  EXPECT_EQ(s.ops(RecordingSurface::Op::Kind::FillBox).size(), 3u);
}

TEST(ResultsPageTest, HighLowCloseChartsReadAllThreeTables) {
  ResultsPage p;
  const WizardContext c = resultsContext();
  p.tbWeightCharts_ButtonClick("HLCa", c);
  EXPECT_EQ(p.chart().legend, (std::vector<std::string>{"High Est.", "Low Est.", "Close Est."}));
  EXPECT_EQ(p.chart().data[1], (std::array<double, 3>{0.75, 0.45, 0.6}));
  EXPECT_EQ(p.chart().names, (std::vector<std::string>{"Att1", "Att2"}));
  p.tbWeightCharts_ButtonClick("HLCb", c);
  EXPECT_EQ(p.chartKey(), "HLCb");
  EXPECT_EQ(p.chart().legend, (std::vector<std::string>{"Ranges", "Close Est."}));
  p.tbWeightCharts_ButtonClick("Other", c);
  EXPECT_EQ(p.chartKey(), "HLCb");
  RecordingSurface s;
  p.drawChart(s);
  ASSERT_NE(s.printed("Ranges"), nullptr);
  EXPECT_NE(s.printed("Attribute Weights and Their Ranges"), nullptr);
}

}  // namespace
}  // namespace tnw
