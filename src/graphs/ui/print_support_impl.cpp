// The print dialog and SVG writing: the only code that uses Qt PrintSupport and Qt Svg. On
// Linux this file is a module of its own (libtnwizard_mavt_print), which the wizard loads on
// first use; elsewhere it is part of tnwizard_ui.

#include "graphs/ui/print_support.h"

// Qt
#include <QBuffer>
#include <QDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QtGlobal>
#ifdef TNW_HAVE_QT_SVG
#include <QSvgGenerator>
#endif

// Std
#include <memory>

namespace tnw {
namespace {

void openPrintDialog(QWidget* parent, const QString& docName,
                     const std::function<void(QPagedPaintDevice&)>& print) {
  // Window-modal without a nested event loop: the print-out is made when the dialog is accepted.
  // The dialog deletes itself when it closes, or goes with its parent; its printer lives as long
  // as the connection that prints, which ends with the print dialog.
  auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
  printer->setDocName(docName);
  auto* dialog = new QPrintDialog(printer.get(), parent);
  dialog->setObjectName(QStringLiteral("dlgPrint"));
  dialog->setWindowTitle(QObject::tr("Print the results"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(dialog, &QDialog::accepted, parent, [printer, print] { print(*printer); });
  dialog->open();
}

#ifdef TNW_HAVE_QT_SVG
bool writeSvg(const ChartWidget::Painter& chart, const QString& path, QSize size,
              const QString& title) {
  // The picture is made in memory and then saved in one go: a file that could not be written
  // whole is never reported as written, and an old file at the path is replaced only then.
  QBuffer buffer;
  QSvgGenerator svg;
  svg.setOutputDevice(&buffer);
  svg.setSize(size);
  svg.setViewBox(QRect(QPoint(0, 0), size));
  svg.setTitle(title);
  {
    QPainter p;
    if (!p.begin(&svg)) return false;
    if (chart) chart(p, QRectF(QPointF(0, 0), QSizeF(size)));
    if (!p.end()) return false;
  }
  const QByteArray& bytes = buffer.data();
  if (bytes.isEmpty()) return false;
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  if (file.write(bytes) != bytes.size()) {
    file.cancelWriting();
    return false;
  }
  return file.commit();
}
#else
// A Qt without its Svg module writes no SVG.
bool writeSvg(const ChartWidget::Painter&, const QString&, QSize, const QString&) { return false; }
#endif

constexpr PrintSupportFunctions kFunctions{&openPrintDialog, &writeSvg};

}  // namespace
}  // namespace tnw

// Exported from the module only; linked in, it stays inside the library.
#ifdef TNW_PRINT_MODULE_ENTRY
#define TNW_PRINT_ENTRY Q_DECL_EXPORT
#else
#define TNW_PRINT_ENTRY
#endif

extern "C" TNW_PRINT_ENTRY const tnw::PrintSupportFunctions* tnw_print_support() {
  return &tnw::kFunctions;
}
