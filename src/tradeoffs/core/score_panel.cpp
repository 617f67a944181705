#include "tradeoffs/core/score_panel.h"

// Std
#include <algorithm>
#include <cmath>

namespace tnw::tradeoffs {

namespace {

double fraction(double score, double low, double high) {
  if (high == low || !std::isfinite(score)) return 0.5;
  return (score - low) / (high - low);
}

double inside(double f) { return std::isfinite(f) ? std::clamp(f, 0.0, 1.0) : 0.5; }

}  // namespace

void ScorePanel::setRanges(double lowX, double highX, double lowY, double highY) {
  m_lowX = std::min(lowX, highX);
  m_highX = std::max(lowX, highX);
  m_lowY = std::min(lowY, highY);
  m_highY = std::max(lowY, highY);
}

double ScorePanel::CoordinateX(double score) const { return fraction(score, m_lowX, m_highX); }

double ScorePanel::CoordinateY(double score) const { return fraction(score, m_lowY, m_highY); }

double ScorePanel::XtoScore(double x) const { return m_lowX + inside(x) * (m_highX - m_lowX); }

double ScorePanel::YtoScore(double y) const { return m_lowY + inside(y) * (m_highY - m_lowY); }

void ScorePanel::PositioningAandB(double a1, double a2, double b1, double b2) {
  m_a = {inside(CoordinateX(a1)), inside(CoordinateY(a2))};
  m_b = {inside(CoordinateX(b1)), inside(CoordinateY(b2))};
}

void ScorePanel::movePoint(bool pointA, double x, double y) {
  (pointA ? m_a : m_b) = {inside(x), inside(y)};
}

}  // namespace tnw::tradeoffs
