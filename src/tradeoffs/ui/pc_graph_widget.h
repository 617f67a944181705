#pragma once

// Qt
#include <QBrush>
#include <QColor>
#include <QCursor>
#include <QFrame>
#include <QPalette>
#include <QPixmap>
#include <QPointF>

// Std
#include <array>

class QLabel;

namespace tnw::tradeoffs {

class PcPointWidget;

// The panel framePCGraph of the trade-off judgment page: the two alternatives A and B as the
// points shpPCA and shpPCB over the plane of the two selected attributes. Positions are panel
// fractions (x from the left, y from the bottom) as the page's score panel computes them; the
// widget maps them onto its plot rectangle. A drag reports the fraction under the point.
class PcGraphWidget : public QFrame {
  Q_OBJECT

 public:
  // Which of the two points.
  enum Point { PointA = 0, PointB = 1 };

  // Creates the panel with both points at the origin.
  explicit PcGraphWidget(QWidget* parent = nullptr);

  // Places a point at a panel position (fractions, clamped into the panel).
  void setPoint(Point which, QPointF fraction);
  // The panel position of a point.
  QPointF point(Point which) const;
  // Sets the cursor shown while a point is dragged.
  void setDragCursor(Point which, const QCursor& cursor);

  // The widget position (centre) of a panel position.
  QPointF toWidget(QPointF fraction) const;
  // The panel position at a widget position, held inside the panel.
  QPointF toFraction(QPointF widgetPos) const;
  // The rectangle the panel positions are mapped onto.
  QRectF plotRect() const;

  // A size that leaves room for the axes and the points.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // A point was moved by dragging to a panel position; final is true when it was dropped.
  void pointDragged(int which, QPointF fraction, bool final);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  friend class PcPointWidget;
  void dragPointTo(PcPointWidget* shape, QPointF widgetPos, bool final);
  void placePoints();

  PcPointWidget* m_points[2];
  QPointF m_fractions[2];
  // What the kept grid was drawn with: its colours, and over an opaque background the frame's
  // style and option (a frame over a see-through background is drawn at each paint).
  struct GridColours {
    QBrush background;
    QColor grid;
    QColor axes;
    const QStyle* style = nullptr;
    QPalette framePalette;
    std::array<int, 7> frame{};

    friend bool operator==(const GridColours&, const GridColours&) = default;
  };
  // The inputs of the kept grid for the widget as it is now.
  GridColours gridColours() const;

  // The background, the frame, the grid and the axes as last drawn: a drag repaints the panel at
  // every step, and only the projections of A and B move.
  QPixmap m_grid;
  GridColours m_gridColours;
};

}  // namespace tnw::tradeoffs
