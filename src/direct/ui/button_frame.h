#pragma once

// Qt
#include <QColor>
#include <QRect>

class QPainter;

namespace tnw::direct {

// A flat button's face and frame: the face colour filled inside a frame of the given width with
// corners of radius 3, drawn smooth. The straight parts are plain fills; the corners come from
// small pictures kept for each face, frame colour, width and device pixel ratio, drawn once.
class ButtonFrame {
 public:
  // The radius of the corners.
  static constexpr int kRadius = 3;

  // Paints the face and the frame over rect.
  static void paint(QPainter& painter, const QRect& rect, const QColor& face, const QColor& border,
                    int width);
  // Paints them with the painter's own path filling and stroking, corners included; what the
  // kept corner pictures hold.
  static void paintSmooth(QPainter& painter, const QRect& rect, const QColor& face,
                          const QColor& border, int width);
};

}  // namespace tnw::direct
