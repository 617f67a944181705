#pragma once

#include "direct/core/region_handles.h"

// Std
#include <array>

namespace tnw::direct {

// A point in whole pixels.
struct IntPoint {
  int x = 0;
  int y = 0;

  friend bool operator==(const IntPoint&, const IntPoint&) = default;
};

// The geometry of the preference cone on the square drawing area picTradeOffsRange: where the
// handles of a ratio go, the ratio a handle stands for, and the triangle that is filled. A
// point at height h above the bottom edge and x from the left edge stands for the ratio h / x.
class PreferenceCone {
 public:
  // The reach factor: a handle's larger coordinate from the bottom-left corner is 0.7 S.
  static constexpr double kReach = 0.7;
  // The fill colour of the cone (0x00BBGGRR): a light peach.
  static constexpr unsigned kFillColor = 0xC0E0FF;

  // A cone on an area of side `side` with handles of `handleSize` (both at least 1).
  PreferenceCone(float side, float handleSize);

  // The side S of the area.
  float side() const { return m_side; }
  // The size of a handle.
  float handleSize() const { return m_handleSize; }
  // The handle point for ratio r: (0.7 S, S - 0.7 S r) below 1, (0.7 S / r, S - 0.7 S) from 1
  // up. Ratios that are not finite or not positive lie on the bottom edge.
  HandlePoint handleForRatio(double r) const;
  // The ratio a handle stands for, (S - y) / x, in single precision (0 when x is not positive).
  float ratioFromHandle(HandlePoint p) const;
  // Whether a handle is usable: x and the height above the bottom edge, S - y, both between the
  // handle size and the side.
  bool validHandle(HandlePoint p) const;
  // The point kept inside the area, for a handle being dragged.
  HandlePoint clampToArea(HandlePoint p) const;
  // The top-left corner of the handle control centred on p, moved as little as needed to keep
  // the whole control inside the area: a handle near an edge (a large or a tiny ratio puts its
  // point close to the left or the bottom edge) is drawn in full, beside its point.
  IntPoint handleTopLeft(HandlePoint p) const;
  // The filled triangle of Draw_PreferenceCone: the bottom-left corner (0, S - 2) and the two
  // handle points, rounded to whole pixels.
  std::array<IntPoint, 3> triangle(HandlePoint first, HandlePoint second) const;
  // A coordinate rounded to the nearest whole number, ties to even, as the platform converts.
  static int toPixel(double value);

 private:
  float m_side;
  float m_handleSize;
};

}  // namespace tnw::direct
