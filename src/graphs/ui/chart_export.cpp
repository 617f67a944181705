#include "graphs/ui/chart_export.h"

// Qt
#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QSaveFile>
#ifdef TNW_HAVE_QT_SVG
#include <QSvgGenerator>
#endif

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

#ifdef TNW_HAVE_QT_SVG
bool ChartExport::toSvg(const ChartWidget::Painter& chart, const QString& path, QSize size,
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
bool ChartExport::toSvg(const ChartWidget::Painter&, const QString&, QSize, const QString&) {
  return false;
}
#endif

void ChartExport::toPage(const ChartWidget::Painter& chart, QPagedPaintDevice& device) {
  QPainter p(&device);
  if (chart) chart(p, QRectF(0, 0, device.width(), device.height()));
}

}  // namespace tnw
