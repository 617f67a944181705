#include "graphs/chart_export_qt.h"

// Qt
#include <QFile>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QSvgGenerator>

namespace tnw {

QImage ChartExportQt::toImage(const ChartWidget::Painter& chart, QSize size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  if (chart) {
    QPainter p(&image);
    chart(p, QRectF(QPointF(0, 0), QSizeF(size)));
  }
  return image;
}

bool ChartExportQt::toSvg(const ChartWidget::Painter& chart, const QString& path, QSize size,
                          const QString& title) {
  QSvgGenerator svg;
  svg.setFileName(path);
  svg.setSize(size);
  svg.setViewBox(QRect(QPoint(0, 0), size));
  svg.setTitle(title);
  {
    QPainter p;
    if (!p.begin(&svg)) return false;
    if (chart) chart(p, QRectF(QPointF(0, 0), QSizeF(size)));
    p.end();
  }
  return QFile::exists(path);
}

void ChartExportQt::toPage(const ChartWidget::Painter& chart, QPagedPaintDevice& device) {
  QPainter p(&device);
  if (chart) chart(p, QRectF(0, 0, device.width(), device.height()));
}

}  // namespace tnw
