// The results step's exports in the presenter: the weight chart drawn from gridTN, the grid as
// text for the clipboard and CSV files, and the states of the export buttons.

#include "common/core/number_format.h"
#include "common/core/table_text.h"
#include "direct_a_fixture.h"
#include "graphs/core/recording_surface.h"

namespace tnw::direct {
namespace {

class ResultsExportsTest : public DirectAPresenterTest {
 protected:
  ResultsExportsTest() : DirectAPresenterTest(4) {}
  // Att1 in the first group, Att2 and Att3 tied in the second, Att4 in the third; Att2 is the
  // reference; Att1 judged [2, 2] and Att4 [0.5, 1]; then the results step.
  DirectAPresenter& toResults() {
    DirectAPresenter& p = toTiedJudgments();
    judge(0, "2", "2");
    judge(3, "0.5", "1");
    p.cmdNext_Click();
    return p;
  }
};

TEST_F(ResultsExportsTest, ChartShowsEachAttributesHighLowAndMiddleWeightAsTheGridDoes) {
  const DirectAPresenter& p = toResults();
  ASSERT_EQ(p.WizardStep(), 3);
  const ChartData& chart = p.results().chart();
  EXPECT_EQ(chart.title, "Attribute Weights and Their Ranges");
  ASSERT_EQ(chart.n, 4);
  EXPECT_EQ(chart.names, (std::vector<std::string>{"Att1", "Att2", "Att3", "Att4"}));
  EXPECT_EQ(chart.seriesCount, 3);
  // The legend names the marks in the order of its colours: low (9), middle (12), high (13).
  EXPECT_EQ(chart.legend, (std::vector<std::string>{"Low weight", "Middle point", "High weight"}));
  ASSERT_EQ(chart.data.size(), 4U);
  for (int i = 0; i < 4; ++i) {
    const auto& values = chart.data[static_cast<std::size_t>(i)];
    const std::string range =
        formatNumber(values[1], "0.0000") + ",     " + formatNumber(values[0], "0.0000");
    EXPECT_EQ(range, p.grid().cell(i + 1, 4)) << "attribute " << i;
    EXPECT_EQ(formatNumber(values[2], "0.0000"), p.grid().cell(i + 1, 3)) << "attribute " << i;
  }
  EXPECT_EQ(formatNumber(chart.data[0][2], "0.0000"), "0.4222");
}

TEST_F(ResultsExportsTest, ChartIsDrawnAsTheHighLowCloseChartWithItsTitleAndNames) {
  const DirectAPresenter& p = toResults();
  RecordingSurface surface;
  p.results().drawChart(surface);
  EXPECT_NE(surface.printed("Attribute Weights and Their Ranges"), nullptr);
  EXPECT_NE(surface.printed("Att4"), nullptr);
  EXPECT_NE(surface.printed("Middle point"), nullptr);
  // Per attribute two short marks, the joining line and the middle mark; plus axes and grid.
  EXPECT_GE(surface.ops(RecordingSurface::Op::Kind::Line).size(), 16U);
}

TEST_F(ResultsExportsTest, NoChartIsDrawnBeforeTheResultsStep) {
  const DirectAPresenter& p = load();
  EXPECT_EQ(p.results().chart().n, 0);
  RecordingSurface surface;
  p.results().drawChart(surface);
  EXPECT_TRUE(surface.ops().empty());
}

TEST_F(ResultsExportsTest, TableTextIsGridTnWithItsHeaderRow) {
  const DirectAPresenter& p = toResults();
  const TextTable table = p.results().tableText();
  ASSERT_EQ(table.size(), 5U);
  EXPECT_EQ(table[0], (std::vector<std::string>{"ID", "Attributes", "Weights", "Middle Points",
                                                "Weight ranges"}));
  for (int r = 0; r < 5; ++r) {
    for (int c = 0; c < 5; ++c) {
      EXPECT_EQ(table[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)],
                p.grid().cell(r, c));
    }
  }
  const std::string csv = TableText::toCsv(table);
  EXPECT_NE(csv.find("1,Att1,W1,0.4222,\"0.4444,     0.4000\"\r\n"), std::string::npos) << csv;
  const std::string tsv = TableText::toTabSeparated(table);
  EXPECT_NE(tsv.find("1\tAtt1\tW1\t0.4222\t0.4444,     0.4000\r\n"), std::string::npos) << tsv;
}

TEST_F(ResultsExportsTest, ExportButtonsHaveTheirCaptionsAndAreEnabled) {
  const DirectAPresenter& p = toResults();
  EXPECT_EQ(p.results().cmdCopy().caption, "Cop&y");
  EXPECT_EQ(p.results().cmdSaveCsv().caption, "Save as CS&V");
  EXPECT_EQ(p.results().cmdSaveSvg().caption, "Save chart as SV&G");
  EXPECT_EQ(p.results().cmdPrint().caption, "&Print");
  EXPECT_TRUE(p.results().cmdCopy().enabled);
  EXPECT_TRUE(p.results().cmdSaveCsv().enabled);
  EXPECT_TRUE(p.results().cmdSaveSvg().enabled);
  EXPECT_TRUE(p.results().cmdPrint().enabled);
}

}  // namespace
}  // namespace tnw::direct
