#include "graphs/ui/chart_export.h"

#include "graphs/ui/print_support.h"

// Qt
#include <QPagedPaintDevice>
#include <QPainter>
#include <QtGlobal>

namespace tnw {

QImage ChartExport::toImage(const ChartWidget::Painter& chart, QSize size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  if (chart) {
    QPainter p(&image);
    chart(p, QRectF(QPointF(0, 0), QSizeF(size)));
  }
  return image;
}

bool ChartExport::toSvg(const ChartWidget::Painter& chart, const QString& path, QSize size,
                        const QString& title) {
  QString error;
  const PrintSupportFunctions* functions = printSupport(&error);
  if (functions == nullptr) {
    qWarning("TNW_MAVT: no SVG is written: %s", qUtf8Printable(error));
    return false;
  }
  return functions->writeSvg(chart, path, size, title);
}

void ChartExport::toPage(const ChartWidget::Painter& chart, QPagedPaintDevice& device) {
  QPainter p(&device);
  if (chart) chart(p, QRectF(0, 0, device.width(), device.height()));
}

}  // namespace tnw
