#include "graphs/core/graphs.h"

#include "graphs/core/palette.h"
#include "graphs/core/recording_surface.h"

// Std
#include <algorithm>
#include <cmath>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

using Kind = RecordingSurface::Op::Kind;

ChartData hlcData(std::vector<std::array<double, 3>> data) {
  ChartData d;
  d.title = "Attribute Weights and Their Ranges";
  d.n = static_cast<int>(data.size());
  for (int i = 1; i <= d.n; ++i) d.names.push_back("A" + std::to_string(i));
  d.divisions = 4;
  d.data = std::move(data);
  d.legend = {"High Est.", "Low Est.", "Close Est."};
  return d;
}

Graphs tradeOffGraphs() {
  Graphs g;
  g.GridColour = 9;
  g.DrawFrame = true;
  return g;
}

bool allFinite(const RecordingSurface& s) {
  for (const auto& op : s.ops()) {
    if (!std::isfinite(op.x1) || !std::isfinite(op.y1) || !std::isfinite(op.x2) ||
        !std::isfinite(op.y2)) {
      return false;
    }
  }
  return true;
}

TEST(GraphsTest, MaxValueIsTheLargestValueTimesOnePointOne) {
  EXPECT_DOUBLE_EQ(Graphs::MaxValue(2, 3, {{0.1, 0.5, 0.2}, {0.3, 0.4, 0.05}}), 0.55);
  // Only items 1..n and series 1..count are read.
  EXPECT_DOUBLE_EQ(Graphs::MaxValue(1, 2, {{0.1, 0.2, 9.0}, {5.0, 5.0, 5.0}}), 0.2 * 1.1);
  EXPECT_EQ(Graphs::MaxValue(2, 3, {{-0.1, -0.5, -0.2}, {-1.0, -2.0, -3.0}}), 0.0);
}

TEST(GraphsTest, AllDataZeroDrawsEveryMarkOnTheValueAxisWithZeroLabelsAndNoDivisionByZero) {
  RecordingSurface s;
  const ChartData d = hlcData({{0, 0, 0}, {0, 0, 0}});
  EXPECT_EQ(Graphs::MaxValue(d.n, 3, d.data), 0.0);
  tradeOffGraphs().Display_HLCGraphAMain(s, d);
  EXPECT_TRUE(allFinite(s));
  for (int i = 1; i <= 4; ++i)
    EXPECT_EQ(s.ops(Kind::Print)[static_cast<std::size_t>(i)].text, "0.0000");
  // Marks: per item two narrow lines, the joining line and the wide line, all at height 0.
  int marks = 0;
  for (const auto& op : s.ops(Kind::Line)) {
    if (op.colour == 13 || op.colour == 12 || (op.colour == 9 && op.style == LineStyle::Solid)) {
      if (op.x1 >= 105.0) continue;  // legend
      EXPECT_EQ(op.y1, 0.0);
      EXPECT_EQ(op.y2, 0.0);
      ++marks;
    }
  }
  EXPECT_EQ(marks, 6);
  RecordingSurface bars;
  tradeOffGraphs().Display_VBarGraphMain(bars, d);
  EXPECT_TRUE(allFinite(bars));
  EXPECT_EQ(bars.ops(Kind::FillBox)[0].y2, 0.0);
}

TEST(GraphsTest, OneItemHasOneSlotOfWidthHundredNameCentredAtFiftyTickAtHundred) {
  RecordingSurface s;
  ChartData d = hlcData({{0.5, 0.3, 0.4}});
  d.names = {"Cost"};
  tradeOffGraphs().Display_HLCGraphAMain(s, d);
  const auto* name = s.printed("Cost");
  ASSERT_NE(name, nullptr);
  EXPECT_DOUBLE_EQ(name->x1 + s.textWidth("Cost") / 2.0, 50.0);
  EXPECT_DOUBLE_EQ(name->y1, -2.0);
  bool tick = false;
  for (const auto& op : s.ops(Kind::Line)) {
    if (op.x1 == 100.0 && op.y1 == -1.0 && op.x2 == 100.0 && op.y2 == 2.0) tick = true;
  }
  EXPECT_TRUE(tick);
}

TEST(GraphsTest, ValueEqualToTheMaximumStandsAtHundredOverOnePointOne) {
  EXPECT_NEAR(Graphs::height(0.5, Graphs::MaxValue(1, 3, {{0.5, 0.1, 0.2}})), 100.0 / 1.1, 1e-12);
  RecordingSurface s;
  tradeOffGraphs().Display_HLCGraphAMain(s, hlcData({{0.5, 0.1, 0.2}}));
  const auto lines = s.ops(Kind::Line);
  bool top = false;
  for (const auto& op : lines) {
    if (op.colour == 13 && op.x1 < 100.0) {
      EXPECT_NEAR(op.y1, 90.909090909, 1e-6);
      top = true;
    }
  }
  EXPECT_TRUE(top);
}

TEST(GraphsTest, FrameSetsTheScaleTitleAxesDottedGridLabelsAndTheFrameEdges) {
  RecordingSurface s;
  const ChartData d = hlcData({{1.0, 0.5, 0.8}, {0.6, 0.2, 0.4}});
  tradeOffGraphs().Display_HLCGraphBMain(s, d);
  ASSERT_GE(s.ops().size(), 3u);
  EXPECT_EQ(s.ops()[0].kind, Kind::Clear);
  EXPECT_TRUE(s.autoRedraw());
  const auto scale = s.ops(Kind::Scale).at(0);
  EXPECT_EQ(scale.x1, -15.0);
  EXPECT_EQ(scale.y1, 120.0);
  EXPECT_EQ(scale.x2, 140.0);
  EXPECT_EQ(scale.y2, -30.0);
  const auto* title = s.printed(d.title);
  ASSERT_NE(title, nullptr);
  EXPECT_DOUBLE_EQ(title->x1, (100.0 - s.textWidth(d.title)) / 2.0);
  EXPECT_DOUBLE_EQ(title->y1, 105.0 + 4.0);  // 105 minus a height of -4 on this scale
  // The top label: 4 × 1.1 / 4 with "#,##0.0000", right-aligned 3 units left of the axis.
  const auto* label = s.printed("1.1000");
  ASSERT_NE(label, nullptr);
  EXPECT_DOUBLE_EQ(label->x1, -3.0 - s.textWidth("1.1000"));
  EXPECT_DOUBLE_EQ(label->y1, 100.0 + 2.0);
  ASSERT_NE(s.printed("0.2750"), nullptr);
  int dotted = 0;
  bool topEdge = false;
  bool rightEdge = false;
  for (const auto& op : s.ops(Kind::Line)) {
    if (op.style == LineStyle::Dot) {
      EXPECT_EQ(op.colour, 9);
      EXPECT_EQ(op.x1, 0.0);
      EXPECT_EQ(op.x2, 100.0);
      ++dotted;
    }
    if (op.x1 == 0.0 && op.y1 == 100.0 && op.x2 == 100.0 && op.y2 == 100.0 &&
        op.style == LineStyle::Solid) {
      topEdge = true;
    }
    if (op.x1 == 100.0 && op.y1 == 100.0 && op.x2 == 100.0 && op.y2 == 0.0) rightEdge = true;
  }
  EXPECT_EQ(dotted, 4);
  EXPECT_TRUE(topEdge);
  EXPECT_TRUE(rightEdge);
}

TEST(GraphsTest, WithoutDrawFrameTheTopAndRightEdgesAreNotDrawn) {
  RecordingSurface s;
  Graphs g;
  g.Display_HLCGraphBMain(s, hlcData({{1.0, 0.5, 0.8}}));
  for (const auto& op : s.ops(Kind::Line)) {
    EXPECT_FALSE(op.x1 == 100.0 && op.y1 == 100.0 && op.x2 == 100.0 && op.y2 == 0.0);
  }
}

TEST(GraphsTest, HighLowCloseMarksOfTheFirstKind) {
  RecordingSurface s;
  // Two items: slot 50, w = 37.5, w' = 33.5; maximum 1.1, so heights are v / 1.1 × 100.
  tradeOffGraphs().Display_HLCGraphAMain(s, hlcData({{1.0, 0.5, 0.8}, {0.6, 0.2, 0.4}}));
  std::vector<RecordingSurface::Op> marks;
  for (const auto& op : s.ops(Kind::Line)) {
    if (op.style == LineStyle::Solid && op.x1 > 0.0 && op.x1 < 100.0 && op.y1 != -1.0 &&
        !(op.y1 == 100.0 && op.y2 == 100.0)) {
      marks.push_back(op);
    }
  }
  ASSERT_EQ(marks.size(), 8u);
  EXPECT_EQ(marks[0].colour, 13);
  EXPECT_DOUBLE_EQ(marks[0].x1, 25.0 - 33.5 / 2.0);
  EXPECT_DOUBLE_EQ(marks[0].x2, 25.0 + 33.5 / 2.0);
  EXPECT_NEAR(marks[0].y1, 100.0 / 1.1, 1e-9);
  EXPECT_EQ(marks[0].width, 1);
  EXPECT_EQ(marks[1].colour, 9);
  EXPECT_NEAR(marks[1].y1, 50.0 / 1.1, 1e-9);
  EXPECT_EQ(marks[2].colour, 0);
  EXPECT_DOUBLE_EQ(marks[2].x1, 25.0);
  EXPECT_DOUBLE_EQ(marks[2].x2, 25.0);
  EXPECT_EQ(marks[3].colour, 12);
  EXPECT_EQ(marks[3].width, 2);
  EXPECT_DOUBLE_EQ(marks[3].x1, 25.0 - 37.5 / 2.0);
  EXPECT_DOUBLE_EQ(marks[3].x2, 25.0 + 37.5 / 2.0);
  EXPECT_NEAR(marks[3].y1, 80.0 / 1.1, 1e-9);
  EXPECT_DOUBLE_EQ(marks[4].x1, 75.0 - 33.5 / 2.0);
}

TEST(GraphsTest, SecondKindHasNoJoiningLineAndColoursNineTenTwelve) {
  RecordingSurface s;
  tradeOffGraphs().Display_HLCGraphBMain(s, hlcData({{1.0, 0.5, 0.8}}));
  std::vector<int> colours;
  for (const auto& op : s.ops(Kind::Line)) {
    if (op.style == LineStyle::Solid && op.x1 > 0.0 && op.x1 < 100.0 && op.y1 != -1.0 &&
        !(op.y1 == 100.0 && op.y2 == 100.0)) {
      colours.push_back(op.colour);
    }
  }
  EXPECT_EQ(colours, (std::vector<int>{9, 10, 12}));
}

TEST(GraphsTest, LegendAListsItsEntriesInColoursNineTwelveThirteen) {
  RecordingSurface s;
  tradeOffGraphs().Display_HLCGraphAMain(s, hlcData({{1.0, 0.5, 0.8}}));
  std::vector<int> colours;
  for (const auto& op : s.ops(Kind::Line)) {
    if (op.x1 == 105.0) colours.push_back(op.colour);
  }
  EXPECT_EQ(colours, (std::vector<int>{9, 12, 13}));
  for (const char* text : {"High Est.", "Low Est.", "Close Est."}) {
    const auto* p = s.printed(text);
    ASSERT_NE(p, nullptr) << text;
    EXPECT_EQ(p->x1, 112.0);
  }
  EXPECT_GT(s.printed("High Est.")->y1, s.printed("Low Est.")->y1);
}

TEST(GraphsTest, SecondKindDrawsItsSeriesWithLineWidthsOneOneTwoAndResetsToOne) {
  RecordingSurface s;
  // Two items: slot 50, w = 37.5, w' = 33.5.
  tradeOffGraphs().Display_HLCGraphBMain(s, hlcData({{1.0, 0.5, 0.8}, {0.6, 0.2, 0.4}}));
  std::vector<RecordingSurface::Op> marks;
  for (const auto& op : s.ops(Kind::Line)) {
    if (op.style == LineStyle::Solid && op.x1 > 0.0 && op.x1 < 100.0 && op.y1 != -1.0 &&
        !(op.y1 == 100.0 && op.y2 == 100.0)) {
      marks.push_back(op);
    }
  }
  ASSERT_EQ(marks.size(), 6u);
  const int colours[3] = {9, 10, 12};
  const int widths[3] = {1, 1, 2};
  const double lengths[3] = {33.5, 33.5, 37.5};
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_EQ(marks[i].colour, colours[i % 3]) << i;
    EXPECT_EQ(marks[i].width, widths[i % 3]) << i;
    EXPECT_DOUBLE_EQ(marks[i].x2 - marks[i].x1, lengths[i % 3]) << i;
    EXPECT_EQ(marks[i].y1, marks[i].y2) << i;
  }
  EXPECT_NEAR(marks[3].y1, 60.0 / 1.1, 1e-9);
  EXPECT_NEAR(marks[4].y1, 20.0 / 1.1, 1e-9);
  // After the marks the width is set back to 1 (the legend then sets its own).
  const auto& ops = s.ops();
  std::size_t lastMark = 0;
  for (std::size_t i = 0; i < ops.size(); ++i) {
    if (ops[i].kind == Kind::Line && ops[i].colour == 12 && ops[i].x1 < 100.0) lastMark = i;
  }
  ASSERT_LT(lastMark + 1, ops.size());
  EXPECT_EQ(ops[lastMark + 1].kind, Kind::LineWidth);
  EXPECT_EQ(ops[lastMark + 1].width, 1);
}

TEST(GraphsTest, LegendBListsRangesAndCloseEstInColoursNineAndTwelve) {
  RecordingSurface s;
  ChartData d = hlcData({{1.0, 0.5, 0.8}});
  d.legend = {"Ranges", "Close Est."};
  tradeOffGraphs().Display_HLCGraphBMain(s, d);
  std::vector<RecordingSurface::Op> marks;
  for (const auto& op : s.ops(Kind::Line)) {
    if (op.x1 >= 100.0 && op.x2 > 100.0) marks.push_back(op);
  }
  ASSERT_EQ(marks.size(), 2u);
  EXPECT_EQ(marks[0].colour, 9);
  EXPECT_EQ(marks[1].colour, 12);
  for (const auto& m : marks) {
    EXPECT_EQ(m.x1, 105.0);
    EXPECT_GT(m.x2, m.x1);
    EXPECT_LT(m.x2, 112.0);
  }
  const auto* ranges = s.printed("Ranges");
  const auto* close = s.printed("Close Est.");
  ASSERT_NE(ranges, nullptr);
  ASSERT_NE(close, nullptr);
  EXPECT_EQ(ranges->x1, 112.0);
  EXPECT_EQ(close->x1, 112.0);
  // One below the other, each text beside its mark.
  EXPECT_GT(ranges->y1, close->y1);
  EXPECT_GT(marks[0].y1, marks[1].y1);
  EXPECT_NEAR(ranges->y1 + s.textHeight("Ranges") / 2.0, marks[0].y1, 1e-12);
  EXPECT_NEAR(close->y1 + s.textHeight("Close Est.") / 2.0, marks[1].y1, 1e-12);
  // No third entry: the chart of the first kind's legend texts are not drawn.
  EXPECT_EQ(s.printed("High Est."), nullptr);
  EXPECT_EQ(s.printed("Low Est."), nullptr);
}

TEST(GraphsTest, ValueLabelsOfAThousandAndMoreAreWrittenWithAGroupSeparator) {
  RecordingSurface s;
  // The maximum 1000 gives a scale top of 1100: labels 275, 550, 825 and 1,100.
  tradeOffGraphs().Display_HLCGraphAMain(s, hlcData({{1000.0, 200.0, 600.0}}));
  std::vector<std::string> labels;
  for (const auto& op : s.ops(Kind::Print)) {
    if (op.x1 < 0.0 && op.y1 > -2.0) labels.push_back(op.text);
  }
  EXPECT_EQ(labels, (std::vector<std::string>{"275.0000", "550.0000", "825.0000", "1,100.0000"}));
  const auto* top = s.printed("1,100.0000");
  ASSERT_NE(top, nullptr);
  EXPECT_DOUBLE_EQ(top->x1, -3.0 - s.textWidth("1,100.0000"));
  RecordingSurface big;
  tradeOffGraphs().Display_HLCGraphBMain(big, hlcData({{1000000.0, 0.0, 0.0}}));
  EXPECT_NE(big.printed("1,100,000.0000"), nullptr);
}

TEST(GraphsTest, BarsTakeThreeQuartersOfTheSlotFromZeroToTheirHeight) {
  RecordingSurface s;
  ChartData d = hlcData({{0.5, 0, 0}, {0.25, 0, 0}});
  d.seriesCount = 1;
  d.legend = {"Weights"};
  tradeOffGraphs().Display_VBarGraphMain(s, d);
  const auto boxes = s.ops(Kind::FillBox);
  ASSERT_EQ(boxes.size(), 3u);  // two bars and the legend mark
  EXPECT_DOUBLE_EQ(boxes[0].x1, 25.0 - 18.75);
  EXPECT_DOUBLE_EQ(boxes[0].x2, 25.0 + 18.75);
  EXPECT_EQ(boxes[0].y1, 0.0);
  EXPECT_NEAR(boxes[0].y2, 100.0 / 1.1, 1e-9);
  EXPECT_NEAR(boxes[1].y2, 50.0 / 1.1, 1e-9);
  EXPECT_EQ(boxes[0].colour, Graphs::kBarColour);
  EXPECT_NE(s.printed("Weights"), nullptr);
}

TEST(GraphsTest, NoItemsDrawsTheFrameOnly) {
  RecordingSurface s;
  tradeOffGraphs().Display_HLCGraphAMain(s, hlcData({}));
  EXPECT_TRUE(allFinite(s));
  EXPECT_EQ(s.ops(Kind::Scale).size(), 1u);
}

TEST(GraphsTest, ValueLabelsWithTwoIntegerDigitsFitLeftOfTheAxisInsideTheArea) {
  // A maximum of 35.654 puts "39.2194" at the top: 14 units wide on this surface, more than the
  // 12 units that the default margin holds beside the 3-unit gap.
  for (const double max : {35.654, 356.54, 1.0}) {
    RecordingSurface s;
    tradeOffGraphs().Display_HLCGraphAMain(s, hlcData({{max, 1.0, 2.0}}));
    const auto scales = s.ops(Kind::Scale);
    ASSERT_FALSE(scales.empty());
    const double left = scales.back().x1;
    int labels = 0;
    for (const auto& op : s.ops(Kind::Print)) {
      if (op.x1 >= 0.0 || op.y1 <= 0.0) continue;  // the title, names and legend
      EXPECT_GE(op.x1, left) << op.text;
      EXPECT_DOUBLE_EQ(op.x1 + s.textWidth(op.text), -3.0) << op.text;
      ++labels;
    }
    EXPECT_EQ(labels, 4) << max;
    // Labels that fit keep the usual coordinates.
    if (max == 1.0) {
      EXPECT_EQ(left, -15.0);
    }
  }
  RecordingSurface s;
  tradeOffGraphs().Display_HLCGraphAMain(s, hlcData({{35.654, 1.0, 2.0}}));
  EXPECT_NE(s.printed("39.2194"), nullptr);
}

// Whether a line is one of the item ticks under the value axis.
bool isTick(const RecordingSurface::Op& op) {
  return op.x1 == op.x2 && op.y1 == -1.0 && op.y2 == 2.0;
}

TEST(GraphsTest, NegativeEstimatesAreClippedToTheAxisAndMarkedAsLyingBelow) {
  RecordingSurface s;
  // The low estimate of the first item and every estimate of the second lie below zero.
  tradeOffGraphs().Display_HLCGraphAMain(s, hlcData({{0.6, -0.2, 0.3}, {-0.1, -0.4, -0.2}}));
  int markers = 0;
  for (const auto& op : s.ops(Kind::Line)) {
    if (isTick(op) || op.x1 >= 100.0) continue;
    EXPECT_GE(std::min(op.y1, op.y2), 0.0) << op.x1;
    EXPECT_LE(std::max(op.y1, op.y2), 100.0) << op.x1;
    if (op.y1 == Graphs::kBelowMarkerTop || op.y2 == Graphs::kBelowMarkerTop) ++markers;
  }
  // A chevron of two strokes for each of the four values below zero.
  EXPECT_EQ(markers, 8);
  // The first item's low estimate is drawn on the axis in its colour, its marker too.
  bool lowOnAxis = false;
  bool lowMarker = false;
  for (const auto& op : s.ops(Kind::Line)) {
    if (op.colour != 9 || op.x1 >= 50.0) continue;
    if (op.y1 == 0.0 && op.y2 == 0.0) lowOnAxis = true;
    if (op.y1 == Graphs::kBelowMarkerTop) lowMarker = true;
  }
  EXPECT_TRUE(lowOnAxis);
  EXPECT_TRUE(lowMarker);
}

TEST(GraphsTest, NegativeBarsStayOnTheAxisWithAMarker) {
  RecordingSurface s;
  ChartData d = hlcData({{0.5, 0, 0}, {-0.25, 0, 0}});
  d.seriesCount = 1;
  d.legend = {"Weights"};
  tradeOffGraphs().Display_VBarGraphMain(s, d);
  const auto boxes = s.ops(Kind::FillBox);
  ASSERT_EQ(boxes.size(), 3u);
  EXPECT_EQ(boxes[1].y1, 0.0);
  EXPECT_EQ(boxes[1].y2, 0.0);
  int markers = 0;
  for (const auto& op : s.ops(Kind::Line)) {
    if (isTick(op)) continue;
    EXPECT_GE(std::min(op.y1, op.y2), 0.0);
    if (op.y1 == Graphs::kBelowMarkerTop && op.x1 > 50.0 && op.x1 < 100.0) ++markers;
  }
  EXPECT_EQ(markers, 1);
}

// A surface that records which prints and lines are said to show the chart's values.
class ValuesSurface : public RecordingSurface {
 public:
  void setDrawingValues(bool values) override { m_values = values; }
  void line(double x1, double y1, double x2, double y2, int colour) override {
    RecordingSurface::line(x1, y1, x2, y2, colour);
    (m_values ? valueLines : frameLines)++;
  }
  void fillBox(double x1, double y1, double x2, double y2, int colour) override {
    RecordingSurface::fillBox(x1, y1, x2, y2, colour);
    (m_values ? valueBoxes : frameBoxes)++;
  }
  void print(const std::string& text) override {
    RecordingSurface::print(text);
    (m_values ? valueTexts : frameTexts).push_back(text);
  }
  int valueLines = 0;
  int frameLines = 0;
  int valueBoxes = 0;
  int frameBoxes = 0;
  std::vector<std::string> valueTexts;
  std::vector<std::string> frameTexts;

 private:
  bool m_values = false;
};

TEST(GraphsTest, TheScaleNumbersAndTheMarksAreTheValuesTheRestIsTheFrame) {
  // The second item's low estimate lies below the axis: its marker is a value too.
  const ChartData d = hlcData({{0.5, 0.3, 0.4}, {0.3, -0.1, 0.2}});
  ValuesSurface a;
  tradeOffGraphs().Display_HLCGraphAMain(a, d);
  EXPECT_EQ(a.valueTexts, (std::vector<std::string>{"0.1375", "0.2750", "0.4125", "0.5500"}));
  EXPECT_EQ(a.frameTexts, (std::vector<std::string>{"Attribute Weights and Their Ranges", "A1",
                                                    "A2", "High Est.", "Low Est.", "Close Est."}));
  // Per item two thin lines, the joining line and the wide one, and the marker's two strokes.
  EXPECT_EQ(a.valueLines, 2 * 4 + 2);
  // The axes, four grid lines, two ticks, the frame's two edges and three legend lines.
  EXPECT_EQ(a.frameLines, 2 + 4 + 2 + 2 + 3);
  ValuesSurface bars;
  tradeOffGraphs().Display_VBarGraphMain(bars, d);
  EXPECT_EQ(bars.valueBoxes, 2);
  EXPECT_EQ(bars.frameBoxes, 1);
  EXPECT_EQ(bars.valueTexts.size(), 4U);
}

TEST(PaletteTest, ClassicSixteenColours) {
  EXPECT_EQ(paletteColour(0), 0x000000u);
  EXPECT_EQ(paletteColour(9), 0x0000FFu);
  EXPECT_EQ(paletteColour(10), 0x00FF00u);
  EXPECT_EQ(paletteColour(12), 0xFF0000u);
  EXPECT_EQ(paletteColour(13), 0xFF00FFu);
  EXPECT_EQ(paletteColour(99), 0x000000u);
}

}  // namespace
}  // namespace tnw
