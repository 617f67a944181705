#pragma once

// Qt
#include <QImage>
#include <QPointF>
#include <QPolygonF>
#include <QWidget>

// Std
#include <array>

class QFrame;
class QPainter;

namespace tnw::direct {

// The square drawing area of the judgment page (picTradeOffsRange): paints the preference cone
// it is given and carries the two draggable handles (picHandle). It computes nothing: positions
// come in and go out in the area's own units (side S, y from the top edge), and the widget only
// maps them to its pixels, so it may be drawn at any size.
class ConeAreaWidget : public QWidget {
  Q_OBJECT

 public:
  // An empty area with both handles at the bottom-left corner.
  explicit ConeAreaWidget(QWidget* parent = nullptr);

  // Sets the side S of the area in its own units (the unit the handle positions are given in).
  void setAreaSide(double side);
  // The side S of the area in its own units.
  double areaSide() const { return m_side; }
  // Places handle 0 or 1 (its centre) at a point given in area units.
  void setHandlePosition(int index, QPointF areaPoint);
  // The centre of handle 0 or 1 in area units.
  QPointF handlePosition(int index) const;
  // Sets the triangle to fill (area units); an empty polygon clears the drawing.
  void setCone(const QPolygonF& areaPolygon);
  // The triangle being drawn, in area units.
  const QPolygonF& cone() const { return m_cone; }
  // Shows or hides both handles.
  void setHandlesVisible(bool visible);
  // The handle widget 0 or 1 (for tests and accessibility).
  QFrame* handle(int index) const;
  // How many paints copied the kept drawing straight into the backing store (for tests).
  int storeCopies() const { return m_storeCopies; }
  // Maps a point in area units to the widget's pixels and back.
  QPointF toPixels(QPointF areaPoint) const;
  QPointF toArea(QPointF pixelPoint) const;

  // The area prefers 240 pixels square and needs 160.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  // The area is square.
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return width; }

 signals:
  // A handle is being dragged to a new centre (area units, kept inside the area).
  void handleDragged(int index, QPointF areaPoint);
  // The mouse let go of a handle.
  void handleReleased(int index);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void layoutHandles();
  // Paints the square, its grid and the cone over the whole widget.
  void paintArea(QPainter& p) const;
  // The kept drawing at `ratio` device pixels to a pixel in `format`, painted again first if
  // anything it shows changed.
  const QImage& picture(int ratio, QImage::Format format);
  // Copies the kept drawing into the backing store's image where the paint goes there; says
  // whether it did.
  bool copyIntoStore(const QPaintEvent& event);
  double scale() const;
  QRectF squareRect() const;

  double m_side = 100.0;
  std::array<QPointF, 2> m_handlePos{};
  std::array<QFrame*, 2> m_handles{};
  QPolygonF m_cone;
  int m_dragging = -1;
  QPointF m_grabOffset;
  // The drawing as last painted, and the cone, side and colours it was painted for.
  QImage m_picture;
  QPolygonF m_pictureCone;
  double m_pictureSide = 0.0;
  qint64 m_picturePalette = 0;
  int m_storeCopies = 0;
};

}  // namespace tnw::direct
