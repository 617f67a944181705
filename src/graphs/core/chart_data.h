#pragma once

// Std
#include <array>
#include <string>
#include <vector>

namespace tnw {

// What one chart draws: a title, one item per attribute with its name and up to three series
// values, the number of grid divisions and the legend texts.
struct ChartData {
  // The title above the plot.
  std::string title;
  // The number of items (one per attribute).
  int n = 0;
  // The item names, item i (1-based) at index i - 1.
  std::vector<std::string> names;
  // The number of divisions of the value axis.
  int divisions = 5;
  // The number of series in use (1 to 3).
  int seriesCount = 3;
  // The values, item i at index i - 1, series s at index s - 1.
  std::vector<std::array<double, 3>> data;
  // The legend texts, one per series.
  std::vector<std::string> legend;
};

}  // namespace tnw
