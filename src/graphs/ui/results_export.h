#pragma once

#include "common/core/table_text.h"
#include "graphs/ui/chart_widget.h"

// Qt
#include <QSize>
#include <QString>

class QMimeData;

namespace tnw {

class UiServices;

// The exports of a results page: its weight grid and its chart copied to the clipboard (the grid
// as tab-separated text, the chart as an image, in one clipboard entry), the grid saved as CSV
// and the chart saved as SVG. The files are chosen through the UI services; a file that cannot
// be written is reported in a message box titled "NORIX" and leaves any old file as it was.
class ResultsExport {
 public:
  // The size of the chart in an image or SVG file when its area has no size of its own.
  static constexpr QSize kChartSize{640, 480};
  // The filters of the file choices.
  static constexpr const char* kCsvFilter = "CSV files (*.csv)";
  static constexpr const char* kSvgFilter = "SVG images (*.svg)";

  // Whether this build can write SVG files (a Qt without its Svg module cannot).
  static bool svgAvailable();
  // Why Save chart as SVG is disabled in a build that cannot write SVG: its tooltip there.
  static QString svgUnavailableTip();
  // The size a chart is exported at: the size of its area on screen, or kChartSize.
  static QSize chartSize(const ChartWidget& chart);

  // The clipboard entry: the grid as tab-separated text and the chart as an image of `size`
  // (only the text when there is no chart). The caller owns it until the clipboard takes it.
  static QMimeData* clipboardData(const TextTable& table, const ChartWidget::Painter& chart,
                                  QSize size);
  // Puts clipboardData on the system clipboard.
  static void copy(const TextTable& table, const ChartWidget::Painter& chart, QSize size);
  // Asks for a file and writes the grid to it as CSV (UTF-8). True when written; false when the
  // user cancelled (nothing said) or the file could not be written (a message said so).
  static bool saveCsv(UiServices& ui, const TextTable& table, const QString& suggestedName);
  // Asks for a file and writes the chart to it as SVG; true when written, false as saveCsv.
  static bool saveSvg(UiServices& ui, const ChartWidget::Painter& chart, QSize size,
                      const QString& title, const QString& suggestedName);
  // The message shown when a file cannot be written.
  static QString writeError(const QString& path);
};

}  // namespace tnw
