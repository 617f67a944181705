#pragma once

// Std
#include <array>
#include <cstdint>

namespace tnw {

// The classic 16-colour palette as 0xRRGGBB: 0 black, 9 light blue, 10 light green, 12 light red,
// 13 light magenta, 15 white.
inline constexpr std::array<std::uint32_t, 16> kPalette = {
    0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
    0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

// The RGB value of a palette index; black for an index outside 0..15.
inline constexpr std::uint32_t paletteColour(int index) {
  return index >= 0 && index < 16 ? kPalette[static_cast<std::size_t>(index)] : 0x000000;
}

}  // namespace tnw
