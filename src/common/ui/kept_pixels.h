#pragma once

// Qt
#include <QImage>
#include <QRect>
#include <QRegion>

// Std
#include <vector>

class QPainter;

namespace tnw {

// The pixels of an image in a region, kept compactly and exactly: each of the region's rectangles
// is cut into bands of rows, and a run of equal rows (a panel's inside, the plain background under
// a widget) is kept as one row and how often it repeats. Only the region's pixels are kept, so the
// rectangles of opaque children left out of a paint cost nothing.
class KeptPixels {
 public:
  // Nothing kept.
  KeptPixels() = default;
  // The pixels of `image` in `region`, a region in device pixels from `origin` (the widget's top
  // left corner in the image); nothing is kept if the image's depth is not a whole number of
  // bytes or the region leaves the image.
  KeptPixels(const QImage& image, QPoint origin, const QRegion& region);

  // Whether anything is kept.
  bool isNull() const { return m_bands.empty(); }
  // Whether the pixels of `image` in the region, from `origin`, are the kept ones.
  bool sameAs(const QImage& image, QPoint origin) const;
  // Writes the kept pixels into `image` at their place from `origin`, if it has their format and
  // room for them (no painter may be open on the image); says whether it did.
  bool writeTo(QImage& image, QPoint origin) const;
  // Draws the kept pixels at their place in a painter on the widget (whose device pixel ratio is
  // `ratio`), replacing what is there.
  void draw(QPainter& painter, int ratio) const;
  // The bytes the kept pixels take.
  qint64 bytes() const;

 private:
  // Rows [rect.top(), rect.bottom()] of one rectangle: `image` holds each of them, or only the
  // first when `repeated` (all the rows are equal).
  struct Band {
    QRect rect;  // in device pixels from the widget's top left corner
    bool repeated = false;
    QImage image;
  };
  // Cuts the rows of one rectangle into bands.
  void addBands(const QImage& image, QPoint origin, const QRect& rect);

  std::vector<Band> m_bands;
  QImage::Format m_format = QImage::Format_Invalid;
};

}  // namespace tnw
