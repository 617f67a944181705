#include "common/ui/kept_look.h"

#include "common/ui/kept_text.h"

// Qt
#include <QPaintDevice>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>
#include <QStyleOption>
#include <QWidget>

// Std
#include <cmath>
#include <utility>

namespace tnw {

namespace {

// The device's pixels as an image: an image itself (read in place: a copy of an image a painter
// is open on would copy its pixels), or a pixmap's image, held in `held` (shared, not copied, when
// no painter is open on it).
const QImage& deviceImage(QPaintDevice* device, QImage& held) {
  if (device->devType() == QInternal::Image) return *static_cast<QImage*>(device);
  held =
      device->devType() == QInternal::Pixmap ? static_cast<QPixmap*>(device)->toImage() : QImage();
  return held;
}

// The region in device pixels relative to the widget's top left corner.
QRegion scaled(const QRegion& region, int ratio) {
  if (ratio == 1) return region;
  QRegion out;
  for (const QRect& r : region) out += QRect(r.topLeft() * ratio, r.size() * ratio);
  return out;
}

}  // namespace

KeptLookInputs KeptLook::commonInputs(const QWidget& widget, const QStyleOption& option) {
  KeptLookInputs in;
  in.style = widget.style();
  in.font = widget.font();
  in.palette = option.palette;
  in.foregroundRole = static_cast<int>(widget.foregroundRole());
  in.state = static_cast<int>(option.state);
  in.direction = static_cast<int>(option.direction);
  in.size = widget.size();
  return in;
}

KeptLookInputs KeptLook::frameInputs(const QWidget& widget, const QStyleOptionFrame& option) {
  KeptLookInputs in = commonInputs(widget, option);
  in.details = {static_cast<int>(option.frameShape),
                static_cast<int>(option.features),
                option.lineWidth,
                option.midLineWidth,
                option.rect.width(),
                option.rect.height()};
  return in;
}

KeptLookInputs KeptLook::itemTextInputs(const QWidget& widget, const QString& text, int flags,
                                        const QRect& rect) {
  QStyleOption option;
  option.initFrom(&widget);
  KeptLookInputs in = commonInputs(widget, option);
  in.text = text;
  in.details = {flags, rect.x(), rect.y(), rect.width(), rect.height(), 0};
  return in;
}

std::optional<KeptLook::Place> KeptLook::placeOf(const KeptLookTarget& target) {
  const QWidget& w = target.widget;
  if (target.sharedPainter || target.device == nullptr) return std::nullopt;
  // Another style may draw from more than the option (a style sheet, animations, the Alt key).
  if (!KeptText::drawsPlainItemText(w.style())) return std::nullopt;
  // The paint's region (the widget less its opaque children, or the part to update).
  const QRegion region = target.event.region() & w.rect();
  if (region.isEmpty()) return std::nullopt;
  const int devType = target.device->devType();
  if (devType != QInternal::Image && devType != QInternal::Pixmap) return std::nullopt;
  const qreal dpr = target.device->devicePixelRatio();
  const int ratio = static_cast<int>(std::lround(dpr));
  if (ratio < 1 || static_cast<qreal>(ratio) != dpr) return std::nullopt;
  const QRect pixels(-target.offset * ratio, w.size() * ratio);
  const QRect deviceRect(0, 0, target.device->width(), target.device->height());
  if (pixels.isEmpty() || !deviceRect.contains(pixels)) return std::nullopt;
  if (static_cast<qint64>(pixels.width()) * pixels.height() > kMaxPixels) return std::nullopt;
  return Place{target.device, pixels, ratio, region, scaled(region, ratio)};
}

bool KeptLook::seenBefore(const KeptLookInputs& inputs) {
  for (std::size_t i = 0; i < m_seen.size(); ++i) {
    if (m_seen[i] == inputs) {
      std::swap(m_seen[0], m_seen[i]);
      return true;
    }
  }
  if (m_seen.size() == kMaxSeen) m_seen.pop_back();
  m_seen.insert(m_seen.begin(), inputs);
  return false;
}

KeptPixels KeptLook::pixelsAt(const Place& place) {
  QImage held;
  return KeptPixels(deviceImage(place.device, held), place.pixels.topLeft(), place.devicePixels);
}

qint64 KeptLook::keptBytes() const {
  qint64 sum = 0;
  for (const Look& look : m_looks) sum += look.under.bytes() + look.over.bytes();
  return sum;
}

bool KeptLook::copyKept(const KeptLookTarget& target, const Place& place,
                        const KeptLookInputs& inputs) {
  std::size_t found = m_looks.size();
  {
    QImage held;
    const QImage& image = deviceImage(place.device, held);
    if (image.isNull() || image.depth() % 8 != 0) return false;
    for (std::size_t i = 0; i < m_looks.size() && found == m_looks.size(); ++i) {
      const Look& look = m_looks[i];
      if (look.pixels == place.pixels && look.ratio == place.ratio && look.region == place.region &&
          look.inputs == inputs && look.under.sameAs(image, place.pixels.topLeft())) {
        found = i;
      }
    }
  }  // the device's image is let go before a painter opens on it
  if (found == m_looks.size()) return false;
  if (found != 0) std::swap(m_looks[0], m_looks[found]);
  ++m_copied;
  if (target.painter != nullptr) {
    // A part of a paint: through the painter the paint has open.
    target.painter->save();
    target.painter->setCompositionMode(QPainter::CompositionMode_Source);
    m_looks[0].over.draw(*target.painter, place.ratio);
    target.painter->restore();
    return true;
  }
  // Into an image no painter is open on, the kept pixels are written as a painter in Source mode
  // would draw them.
  if (place.device->devType() == QInternal::Image && !place.device->paintingActive() &&
      m_looks[0].over.writeTo(*static_cast<QImage*>(place.device), place.pixels.topLeft())) {
    return true;
  }
  QPainter painter(&target.widget);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  m_looks[0].over.draw(painter, place.ratio);
  return true;
}

void KeptLook::keep(const Place& place, const KeptLookInputs& inputs, KeptPixels under) {
  KeptPixels over = pixelsAt(place);
  if (under.isNull() || over.isNull()) return;
  if (m_looks.size() == kMaxLooks) m_looks.pop_back();
  m_looks.insert(m_looks.begin(), Look{inputs, place.pixels, place.ratio, place.region,
                                       std::move(under), std::move(over)});
  ++m_kept;
}

}  // namespace tnw
