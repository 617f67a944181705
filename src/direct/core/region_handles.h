#pragma once

namespace tnw::direct {

// A point on the judgment drawing area, from its left and top edges, in the area's units.
struct HandlePoint {
  float x = 0.0F;
  float y = 0.0F;

  friend bool operator==(const HandlePoint&, const HandlePoint&) = default;
};

// The two handles of the value reference region: the ends of the two rays of the cone.
struct RegionHandles {
  HandlePoint first;
  HandlePoint second;

  friend bool operator==(const RegionHandles&, const RegionHandles&) = default;
};

}  // namespace tnw::direct
