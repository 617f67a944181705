#include "direct/core/preference_cone.h"

// Std
#include <algorithm>
#include <cmath>

namespace tnw::direct {

PreferenceCone::PreferenceCone(float side, float handleSize)
    : m_side(std::isfinite(side) ? std::max(side, 1.0F) : 1.0F),
      m_handleSize(std::isfinite(handleSize) ? std::max(handleSize, 1.0F) : 1.0F) {}

HandlePoint PreferenceCone::handleForRatio(double r) const {
  const double s = m_side;
  const double reach = kReach * s;
  if (!std::isfinite(r) || r <= 0.0) return {static_cast<float>(reach), m_side};
  if (r < 1.0) return {static_cast<float>(reach), static_cast<float>(s - reach * r)};
  return {static_cast<float>(reach / r), static_cast<float>(s - reach)};
}

float PreferenceCone::ratioFromHandle(HandlePoint p) const {
  if (!(p.x > 0.0F)) return 0.0F;
  const float r = (m_side - p.y) / p.x;
  return std::isfinite(r) ? r : 0.0F;
}

bool PreferenceCone::validHandle(HandlePoint p) const {
  const float height = m_side - p.y;
  return p.x >= m_handleSize && p.x <= m_side && height >= m_handleSize && height <= m_side;
}

HandlePoint PreferenceCone::clampToArea(HandlePoint p) const {
  const auto clamp = [this](float v) {
    return std::isfinite(v) ? std::clamp(v, 0.0F, m_side) : 0.0F;
  };
  return {clamp(p.x), clamp(p.y)};
}

int PreferenceCone::toPixel(double value) {
  if (!std::isfinite(value)) return 0;
  return static_cast<int>(std::nearbyint(std::clamp(value, -1.0e9, 1.0e9)));
}

IntPoint PreferenceCone::handleTopLeft(HandlePoint p) const {
  const double half = m_handleSize / 2.0;
  const double last = std::max(0.0, static_cast<double>(m_side) - m_handleSize);
  const auto inside = [last](double v) { return std::isfinite(v) ? std::clamp(v, 0.0, last) : v; };
  return {toPixel(inside(p.x - half)), toPixel(inside(p.y - half))};
}

std::array<IntPoint, 3> PreferenceCone::triangle(HandlePoint first, HandlePoint second) const {
  return {IntPoint{0, toPixel(m_side - 2.0)}, IntPoint{toPixel(first.x), toPixel(first.y)},
          IntPoint{toPixel(second.x), toPixel(second.y)}};
}

}  // namespace tnw::direct
