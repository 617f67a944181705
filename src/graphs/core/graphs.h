#pragma once

#include "graphs/core/chart_data.h"
#include "graphs/core/drawing_surface.h"

// Std
#include <cstdint>
#include <string>
#include <vector>

namespace tnw {

// The chart routines: high-low-close charts of two kinds and a vertical bar chart, each drawn
// as a frame of axes and grid, the data marks and a legend.
class Graphs {
 public:
  // The palette colour of the horizontal grid lines (the trade-off page sets 9).
  std::int32_t GridColour = 0;
  // Whether the top and right edges of the plot area are drawn too.
  bool DrawFrame = false;

  // The top of the value scale: the largest value of items 1..n and series 1..seriesCount
  // (never below 0) times 1.1.
  static double MaxValue(int n, int seriesCount, const std::vector<std::array<double, 3>>& data);
  // The height of a value in the plot (0 to 100 for 0 to maxValue). With a maximum of 0, as for
  // all-zero data, every value stands at 0: the marks lie on the value axis.
  static double height(double value, double maxValue);

  // The high-low-close chart of the first kind: series 1 (colour 13) and 2 (colour 9) joined by a
  // black line, series 3 wide (colour 12).
  void Display_HLCGraphAMain(DrawingSurface& s, const ChartData& d) const;
  // The second kind: the same marks in colours 9, 10 and 12, without the joining line.
  void Display_HLCGraphBMain(DrawingSurface& s, const ChartData& d) const;
  // The vertical bar chart of series 1.
  void Display_VBarGraphMain(DrawingSurface& s, const ChartData& d) const;

  // The palette colour of the bars.
  static constexpr int kBarColour = 9;
  // The top of the marker drawn over a mark whose value lies below the value axis.
  static constexpr double kBelowMarkerTop = 4.5;

 private:
  static std::vector<std::string> valueLabels(const ChartData& d, double maxValue);
  static double widestValueLabel(const DrawingSurface& s, const std::vector<std::string>& labels);
  static void setScaleFittingLabels(DrawingSurface& s, const std::vector<std::string>& labels);
  static void belowMarker(DrawingSurface& s, double middle, double width, double height,
                          int colour);
  void drawAxesAndGrid(DrawingSurface& s, const ChartData& d, double maxValue) const;
  static void drawHLCMarks(DrawingSurface& s, const ChartData& d, double maxValue,
                           const int colours[3], bool joined);
  static void Display_HLCLegendA(DrawingSurface& s, const ChartData& d);
  static void Display_HLCLegendB(DrawingSurface& s, const ChartData& d);
  static void legendEntry(DrawingSurface& s, int entry, const std::string& text, int colour,
                          bool box);
};

}  // namespace tnw
