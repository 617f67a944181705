#include "graphs/core/graphs.h"

#include "common/core/number_format.h"

// Std
#include <algorithm>
#include <cmath>

namespace tnw {

namespace {

double value(const ChartData& d, int item, int series) {
  if (item < 1 || item > static_cast<int>(d.data.size()) || series < 1 || series > 3) return 0.0;
  return d.data[static_cast<std::size_t>(item - 1)][static_cast<std::size_t>(series - 1)];
}

std::string itemName(const ChartData& d, int item) {
  if (item < 1 || item > static_cast<int>(d.names.size())) return {};
  return d.names[static_cast<std::size_t>(item - 1)];
}

std::string legendText(const ChartData& d, int entry) {
  if (entry < 1 || entry > static_cast<int>(d.legend.size())) return {};
  return d.legend[static_cast<std::size_t>(entry - 1)];
}

// The plot's bottom and top in user units: marks are clipped to them.
constexpr double kPlotBottom = 0.0;
constexpr double kPlotTop = 100.0;

// The left edge of the user coordinates when the value labels fit the default margin.
constexpr double kDefaultLeft = -15.0;
// The gap between a value label and the value axis.
constexpr double kLabelGap = 3.0;

// A height clipped to the plot.
double clipped(double y) { return std::clamp(y, kPlotBottom, kPlotTop); }

}  // namespace

double Graphs::MaxValue(int n, int seriesCount, const std::vector<std::array<double, 3>>& data) {
  double max = 0.0;
  for (int i = 1; i <= n && i <= static_cast<int>(data.size()); ++i) {
    for (int j = 1; j <= seriesCount && j <= 3; ++j) {
      const double v = data[static_cast<std::size_t>(i - 1)][static_cast<std::size_t>(j - 1)];
      if (max < v && std::isfinite(v)) max = v;
    }
  }
  // The top tenth of the plot stays free on purpose.
  return max * 1.1;
}

double Graphs::height(double v, double maxValue) {
  if (!(maxValue > 0.0) || !std::isfinite(v)) return 0.0;
  const double h = v * 100.0 / maxValue;
  return std::isfinite(h) ? h : 0.0;
}

std::vector<std::string> Graphs::valueLabels(const ChartData& d, double maxValue) {
  std::vector<std::string> labels;
  for (int i = 1; i <= d.divisions; ++i) {
    labels.push_back(formatNumber(i * maxValue / d.divisions, "#,##0.0000"));
  }
  return labels;
}

double Graphs::widestValueLabel(const DrawingSurface& s, const std::vector<std::string>& labels) {
  double widest = 0.0;
  for (const std::string& label : labels) widest = std::max(widest, s.textWidth(label));
  return widest;
}

void Graphs::setScaleFittingLabels(DrawingSurface& s, const std::vector<std::string>& labels) {
  double left = kDefaultLeft;
  s.setScale(left, 120.0, 140.0, -30.0);
  // A label wider than the margin (two integer digits and more) widens the margin instead of
  // running over the left edge. A text's width in user units grows with the width of the user
  // coordinates, so the new edge is solved for with the width per unit measured on this scale.
  for (int round = 0; round < 3; ++round) {
    const double widest = widestValueLabel(s, labels);
    if (!(widest > 0.0) || -kLabelGap - widest >= left - 1e-9) return;
    const double perUnit = std::min(widest / (140.0 - left), 0.5);
    left = std::min(left - 1.0, (-kLabelGap - 140.0 * perUnit) / (1.0 - perUnit) - 0.5);
    s.setScale(left, 120.0, 140.0, -30.0);
  }
}

void Graphs::drawAxesAndGrid(DrawingSurface& s, const ChartData& d, double maxValue) const {
  s.clear();
  s.setAutoRedraw(true);
  const std::vector<std::string> labels = valueLabels(d, maxValue);
  setScaleFittingLabels(s, labels);
  s.setLineStyle(LineStyle::Solid);
  s.setLineWidth(1);
  s.setCurrentX((100.0 - s.textWidth(d.title)) / 2.0);
  s.setCurrentY(105.0 - s.textHeight(d.title));
  s.print(d.title);
  s.line(0.0, 0.0, 0.0, 100.0, 0);
  s.line(0.0, 0.0, 100.0, 0.0, 0);
  for (int i = 1; i <= d.divisions; ++i) {
    const double y = i * 100.0 / d.divisions;
    s.setLineStyle(LineStyle::Dot);
    s.line(0.0, y, 100.0, y, GridColour);
    // The scale's numbers change with the values; the rest of the frame does not.
    const std::string& label = labels[static_cast<std::size_t>(i - 1)];
    s.setDrawingValues(true);
    s.setCurrentX(-kLabelGap - s.textWidth(label));
    s.setCurrentY(y - s.textHeight(label) / 2.0);
    s.print(label);
    s.setDrawingValues(false);
  }
  s.setLineStyle(LineStyle::Solid);
  for (int j = 1; j <= d.n; ++j) {
    const double x = j * 100.0 / d.n;
    s.line(x, -1.0, x, 2.0, 0);
    const std::string name = itemName(d, j);
    s.setCurrentY(-2.0);
    s.setCurrentX(x - 50.0 / d.n - s.textWidth(name) / 2.0);
    s.print(name);
  }
  if (DrawFrame) {
    s.line(0.0, 100.0, 100.0, 100.0, 0);
    s.line(100.0, 100.0, 100.0, 0.0, 0);
  }
}

void Graphs::belowMarker(DrawingSurface& s, double middle, double width, double height,
                         int colour) {
  if (height >= kPlotBottom) return;
  // A chevron pointing down at the clipped mark: the value lies below the value axis.
  const double half = std::min(2.0, width / 4.0);
  s.setLineWidth(1);
  s.line(middle - half, kBelowMarkerTop, middle, kPlotBottom + 0.5, colour);
  s.line(middle, kPlotBottom + 0.5, middle + half, kBelowMarkerTop, colour);
}

void Graphs::drawHLCMarks(DrawingSurface& s, const ChartData& d, double maxValue,
                          const int colours[3], bool joined) {
  if (d.n < 1) return;
  s.setDrawingValues(true);
  const double slot = 100.0 / d.n;
  const double w = slot * 75.0 / 100.0;
  const double narrow = w - 4.0;
  for (int i = 1; i <= d.n; ++i) {
    const double middle = i * slot - slot / 2.0;
    const double y1 = height(value(d, i, 1), maxValue);
    const double y2 = height(value(d, i, 2), maxValue);
    const double y3 = height(value(d, i, 3), maxValue);
    s.setLineWidth(1);
    s.line(middle - narrow / 2.0, clipped(y1), middle - narrow / 2.0 + narrow, clipped(y1),
           colours[0]);
    s.line(middle - narrow / 2.0, clipped(y2), middle - narrow / 2.0 + narrow, clipped(y2),
           colours[1]);
    if (joined) s.line(middle, clipped(y1), middle, clipped(y2), 0);
    s.setLineWidth(2);
    s.line(middle - w / 2.0, clipped(y3), middle - w / 2.0 + w, clipped(y3), colours[2]);
    belowMarker(s, middle - narrow / 4.0, narrow / 2.0, y1, colours[0]);
    belowMarker(s, middle + narrow / 4.0, narrow / 2.0, y2, colours[1]);
    belowMarker(s, middle, narrow / 2.0, y3, colours[2]);
  }
  s.setLineWidth(1);
  s.setDrawingValues(false);
}

void Graphs::Display_HLCGraphAMain(DrawingSurface& s, const ChartData& d) const {
  const double max = MaxValue(d.n, d.seriesCount, d.data);
  drawAxesAndGrid(s, d, max);
  const int colours[3] = {13, 9, 12};
  drawHLCMarks(s, d, max, colours, true);
  Display_HLCLegendA(s, d);
}

void Graphs::Display_HLCGraphBMain(DrawingSurface& s, const ChartData& d) const {
  const double max = MaxValue(d.n, d.seriesCount, d.data);
  drawAxesAndGrid(s, d, max);
  const int colours[3] = {9, 10, 12};
  drawHLCMarks(s, d, max, colours, false);
  Display_HLCLegendB(s, d);
}

void Graphs::Display_VBarGraphMain(DrawingSurface& s, const ChartData& d) const {
  const double max = MaxValue(d.n, d.seriesCount, d.data);
  drawAxesAndGrid(s, d, max);
  if (d.n >= 1) {
    s.setDrawingValues(true);
    const double slot = 100.0 / d.n;
    const double w = slot * 75.0 / 100.0;
    for (int i = 1; i <= d.n; ++i) {
      const double middle = i * slot - slot / 2.0;
      const double y = height(value(d, i, 1), max);
      s.fillBox(middle - w / 2.0, 0.0, middle + w / 2.0, clipped(y), kBarColour);
      belowMarker(s, middle, w, y, 0);
    }
    s.setDrawingValues(false);
  }
  legendEntry(s, 1, legendText(d, 1), kBarColour, true);
}

void Graphs::Display_HLCLegendA(DrawingSurface& s, const ChartData& d) {
  // The entries take the colours 9, 12 and 13 in this order, as the chart has always shown them.
  const int colours[3] = {9, 12, 13};
  for (int i = 1; i <= 3; ++i) legendEntry(s, i, legendText(d, i), colours[i - 1], false);
}

void Graphs::Display_HLCLegendB(DrawingSurface& s, const ChartData& d) {
  const int colours[2] = {9, 12};
  for (int i = 1; i <= 2; ++i) legendEntry(s, i, legendText(d, i), colours[i - 1], false);
}

void Graphs::legendEntry(DrawingSurface& s, int entry, const std::string& text, int colour,
                         bool box) {
  const double y = 90.0 - (entry - 1) * 10.0;
  if (box) {
    s.fillBox(105.0, y - 2.0, 110.0, y + 2.0, colour);
  } else {
    s.setLineWidth(2);
    s.line(105.0, y, 110.0, y, colour);
    s.setLineWidth(1);
  }
  s.setCurrentX(112.0);
  s.setCurrentY(y - s.textHeight(text) / 2.0);
  s.print(text);
}

}  // namespace tnw
