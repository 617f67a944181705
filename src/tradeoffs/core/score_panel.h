#pragma once

namespace tnw::tradeoffs {

// A point of the two-dimensional panel, in panel fractions: x from the left, y from the bottom.
struct PanelPoint {
  double x = 0.0;
  double y = 0.0;
};

// The two-dimensional panel framePCGraph: the first attribute's score range runs along the x axis
// and the second's up the y axis, each mapped linearly onto the panel (fractions 0 to 1).
class ScorePanel {
 public:
  // Sets the score ranges of the two axes (low and high ends, either order).
  void setRanges(double lowX, double highX, double lowY, double highY);

  // The panel fraction of a first-attribute score (0.5 for an empty range).
  double CoordinateX(double score) const;
  // The panel fraction of a second-attribute score.
  double CoordinateY(double score) const;
  // The first-attribute score at a panel fraction.
  double XtoScore(double x) const;
  // The second-attribute score at a panel fraction.
  double YtoScore(double y) const;

  // Places A and B from their scores, held inside the panel.
  void PositioningAandB(double a1, double a2, double b1, double b2);
  // Moves one point (A or B) to a panel position, held inside the panel.
  void movePoint(bool pointA, double x, double y);

  // The points shpPCA and shpPCB.
  const PanelPoint& shpPCA() const { return m_a; }
  const PanelPoint& shpPCB() const { return m_b; }

 private:
  double m_lowX = 0.0;
  double m_highX = 1.0;
  double m_lowY = 0.0;
  double m_highY = 1.0;
  PanelPoint m_a;
  PanelPoint m_b;
};

}  // namespace tnw::tradeoffs
