#pragma once

// Qt
#include <QColor>

// Std
#include <cstdint>

namespace tnw::direct {

// A colour given in the platform's 0x00BBGGRR form, as the presenters keep colours.
inline QColor colourFromBgr(std::uint32_t bgr) {
  return QColor(static_cast<int>(bgr & 0xFFU), static_cast<int>((bgr >> 8U) & 0xFFU),
                static_cast<int>((bgr >> 16U) & 0xFFU));
}

}  // namespace tnw::direct
