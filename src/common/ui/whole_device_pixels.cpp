#include "common/ui/whole_device_pixels.h"

// Qt
#include <QPainter>
#include <QTransform>

// Std
#include <cmath>

namespace tnw {

int wholeDeviceRatio(const QPainter& painter) {
  const QTransform device = painter.deviceTransform();
  const qreal ratio = device.m11();
  const int whole = static_cast<int>(std::lround(ratio));
  const bool aligned = painter.transform().isIdentity() && device.type() <= QTransform::TxScale &&
                       ratio == device.m22() && whole >= 1 && ratio == whole &&
                       device.dx() == std::round(device.dx()) &&
                       device.dy() == std::round(device.dy());
  return aligned ? whole : 0;
}

}  // namespace tnw
