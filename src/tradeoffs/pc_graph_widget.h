#pragma once

// Qt
#include <QCursor>
#include <QFrame>
#include <QPointF>

class QLabel;

namespace tnw {

class PcPointWidget;

// The panel framePCGraph of the trade-off judgment page: the two alternatives A and B as the
// points shpPCA and shpPCB over the plane of the two selected attributes' scores. The first
// attribute runs along the x axis and the second along the y axis, each range mapped linearly
// onto the plot rectangle. The points can be dragged; a drag reports the scores under the point.
class PcGraphWidget : public QFrame {
  Q_OBJECT

 public:
  // Which of the two points.
  enum Point { PointA = 0, PointB = 1 };

  // Creates the panel with both points at the origin of a unit range.
  explicit PcGraphWidget(QWidget* parent = nullptr);

  // Sets the score range of each axis: ends as the model gives them (either order).
  void setRanges(double xLow, double xHigh, double yLow, double yHigh);
  // Places a point at the given scores (clamped into the panel).
  void setPoint(Point which, QPointF scores);
  // The scores a point stands at.
  QPointF point(Point which) const;
  // Sets the cursor shown while a point is dragged.
  void setDragCursor(Point which, const QCursor& cursor);

  // The widget position (centre) of the given scores.
  QPointF toWidget(QPointF scores) const;
  // The scores at a widget position, limited to the two ranges.
  QPointF toScores(QPointF widgetPos) const;
  // The rectangle the two ranges are mapped onto.
  QRectF plotRect() const;

  // A size that leaves room for the axes and the points.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // A point was moved by dragging to the given scores; final is true when it was dropped.
  void pointDragged(int which, QPointF scores, bool final);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  friend class PcPointWidget;
  void dragPointTo(PcPointWidget* shape, QPointF widgetPos, bool final);
  void placePoints();

  PcPointWidget* m_points[2];
  QPointF m_scores[2];
  double m_xLow = 0.0;
  double m_xHigh = 1.0;
  double m_yLow = 0.0;
  double m_yHigh = 1.0;
};

}  // namespace tnw
