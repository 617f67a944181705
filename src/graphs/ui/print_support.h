#pragma once

#include "graphs/ui/chart_widget.h"

// Qt
#include <QSize>
#include <QString>

// Std
#include <functional>
#include <string>

class QPagedPaintDevice;
class QWidget;

namespace tnw {

// The two things that need Qt PrintSupport or Qt Svg: the print dialog and SVG writing. Where
// the build makes them a module of their own (the shared library on Linux), the module is loaded
// the first time one of them is used, so that a wizard that never prints or saves an SVG file
// never loads either Qt library; elsewhere they are linked in.
struct PrintSupportFunctions {
  // Opens the print dialog over parent without a nested event loop; when it is accepted, print
  // draws on its printer (as ResultsPrintout::openPrintDialog).
  void (*openPrintDialog)(QWidget* parent, const QString& docName,
                          const std::function<void(QPagedPaintDevice&)>& print);
  // Writes the chart as an SVG file of the given size; false when the file cannot be written
  // whole (as ChartExport::toSvg).
  bool (*writeSvg)(const ChartWidget::Painter& chart, const QString& path, QSize size,
                   const QString& title);
};

// The printing and SVG functions, loading their module on the first call where there is one.
// Null when the module cannot be loaded, with the reason in *error (when error is not null).
const PrintSupportFunctions* printSupport(QString* error = nullptr);

// For tests: the file name of the module to load instead of the built one. It counts only
// before the first call of printSupport; where printing is linked in there is nothing to load
// and it does nothing.
void setPrintModuleFile(const std::string& file);

}  // namespace tnw

// The module's one entry point: the functions it holds.
extern "C" const tnw::PrintSupportFunctions* tnw_print_support();
