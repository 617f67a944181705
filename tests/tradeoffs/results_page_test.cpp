#include "tradeoffs/core/results_page.h"

#include "graphs/core/recording_surface.h"
#include "trade_off_fixtures.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw::tradeoffs {
namespace {

// A model of two attributes and the method's weight tables for it.
struct ResultsInput {
  AttributeModel model;
  TradeOffWeights weights;
};

ResultsInput resultsContext() {
  ResultsInput c;
  c.model = testing::makeModel(2);
  c.weights.CloseWeights = {0.4, 0.6};
  c.weights.UpperWeights = {0.5, 0.75};
  c.weights.LowerWeights = {0.3, 0.45};
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
  const wizard::GridState& g = p.gridOverallRegression();
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
  const ResultsInput c = resultsContext();
  p.SetgirdWeights(c.model);
  p.FillWeightData(c.weights);
  const wizard::GridState& g = p.gridWeights();
  ASSERT_EQ(g.rows(), 3);
  EXPECT_EQ(g.cells[0], (std::vector<std::string>{"Attributes", "Weights", "Est.High", "Est.Low"}));
  EXPECT_EQ(g.cells[1], (std::vector<std::string>{"Att1", "0.4000", "0.5000", "0.3000"}));
  EXPECT_EQ(g.cells[2], (std::vector<std::string>{"Att2", "0.6000", "0.7500", "0.4500"}));
}

TEST(ResultsPageTest, BarChartReadsTheHighEstimatesOnPurpose) {
  ResultsPage p;
  const ResultsInput c = resultsContext();
  p.tbWeightCharts_ButtonClick("WeightBars", c.model, c.weights);
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
  const ResultsInput c = resultsContext();
  p.tbWeightCharts_ButtonClick("HLCa", c.model, c.weights);
  EXPECT_EQ(p.chart().legend, (std::vector<std::string>{"High Est.", "Low Est.", "Close Est."}));
  EXPECT_EQ(p.chart().data[1], (std::array<double, 3>{0.75, 0.45, 0.6}));
  EXPECT_EQ(p.chart().names, (std::vector<std::string>{"Att1", "Att2"}));
  p.tbWeightCharts_ButtonClick("HLCb", c.model, c.weights);
  EXPECT_EQ(p.chartKey(), "HLCb");
  EXPECT_EQ(p.chart().legend, (std::vector<std::string>{"Ranges", "Close Est."}));
  p.tbWeightCharts_ButtonClick("Other", c.model, c.weights);
  EXPECT_EQ(p.chartKey(), "HLCb");
  RecordingSurface s;
  p.drawChart(s);
  ASSERT_NE(s.printed("Ranges"), nullptr);
  EXPECT_NE(s.printed("Attribute Weights and Their Ranges"), nullptr);
}

TEST(ResultsPageTest, EnteringThePageFillsItFromTheResultItWasBuiltOver) {
  ResultsInput c = resultsContext();
  c.weights.RegressionComment = "  Consistency index is 1. It is extremely good!";
  MultiRegressionData record;
  record.NumObs = 3;
  ResultsPage p(c.model, c.weights, record);
  p.initializePage();
  EXPECT_EQ(p.gridWeights().cells[2],
            (std::vector<std::string>{"Att2", "0.6000", "0.7500", "0.4500"}));
  EXPECT_EQ(p.gridOverallRegression().text(4, 1), "3");
  EXPECT_EQ(p.txtComments().text, "Consistency index is 1. It is extremely good!");
  EXPECT_EQ(p.chartKey(), ResultsPage::kHLCa);
  EXPECT_EQ(p.nextId(), wizard::WizardPage::kNoNextPage);
  // A page built without a result is filled only through its functions.
  ResultsPage empty;
  empty.initializePage();
  EXPECT_EQ(empty.gridWeights().rows(), 0);
  EXPECT_EQ(empty.chartKey(), "");
}

TEST(ResultsPageTest, TableTextIsTheWeightGridAsShownForClipboardAndCsv) {
  const ResultsInput c = resultsContext();
  ResultsPage p;
  p.SetgirdWeights(c.model);
  p.FillWeightData(c.weights);
  const TextTable table = p.tableText();
  ASSERT_EQ(table.size(), 3U);
  EXPECT_EQ(table[0], (std::vector<std::string>{"Attributes", "Weights", "Est.High", "Est.Low"}));
  EXPECT_EQ(table[1], p.gridWeights().cells[1]);
  EXPECT_EQ(table[2][1], "0.6000");
  EXPECT_EQ(TableText::toCsv(table), "Attributes,Weights,Est.High,Est.Low\r\n" + table[1][0] +
                                         ",0.4000,0.5000,0.3000\r\n" + table[2][0] +
                                         ",0.6000,0.7500,0.4500\r\n");
}

TEST(ResultsPageTest, ExportButtonsHaveTheirCaptionsAndAreEnabled) {
  const ResultsPage p;
  EXPECT_EQ(p.cmdCopy().caption, "Cop&y");
  EXPECT_EQ(p.cmdSaveCsv().caption, "Save as CS&V");
  EXPECT_EQ(p.cmdSaveSvg().caption, "Save chart as SV&G");
  EXPECT_TRUE(p.cmdCopy().enabled && p.cmdSaveCsv().enabled && p.cmdSaveSvg().enabled);
}

}  // namespace
}  // namespace tnw::tradeoffs
