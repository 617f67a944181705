#pragma once

#include "common/ui/kept_pixels.h"

// Qt
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPalette>
#include <QPoint>
#include <QRect>
#include <QRegion>
#include <QSize>
#include <QString>
#include <QWidget>

// Std
#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

class QPaintDevice;
class QPaintEvent;
class QPainter;
class QStyle;
class QStyleOption;
class QStyleOptionFrame;
class QWidget;

namespace tnw {

// What a stock widget's paint draws from, besides the pixels under it: the style, the widget's
// font, palette and roles, and its style option's state, direction, size, text, icon and the
// details of its kind (features, alignment, frame shape, ...). Two paints with equal inputs over
// equal pixels draw equal pixels.
struct KeptLookInputs {
  const QStyle* style = nullptr;  // the widget's style
  QFont font;                     // the widget's font, which the painter starts with
  QPalette palette;               // the option's palette
  int foregroundRole = 0;         // the role of the painter's first pen
  int state = 0;                  // the option's QStyle::State
  int direction = 0;              // the option's layout direction
  QSize size;                     // the widget's size
  QString text;                   // the option's text
  qint64 iconKey = 0;             // the option's icon's cache key (0 without one)
  QSize iconSize;                 // the option's icon size
  QColor color;                   // a colour the option carries (a group box's title)
  std::array<int, 11> details{};  // what else the option of this kind of widget carries
  std::vector<int> parts;         // what the options of a widget's parts carry (a bar's tabs)
  // Whether both would paint the same.
  bool operator==(const KeptLookInputs&) const = default;
};

// Where a widget is being painted: the device its paint goes to (QWidget::redirected), the
// widget's offset there, whether a shared painter paints it (QWidget::sharedPainter), and the
// painter the widget's paint has open, when a part of the paint is kept.
struct KeptLookTarget {
  QWidget& widget;           // the widget painted
  const QPaintEvent& event;  // its paint event
  QPaintDevice* device;      // the device the paint is redirected to, or null
  QPoint offset;             // the redirection's offset
  bool sharedPainter;        // whether the paint goes through a shared painter
  QPainter* painter;         // the widget's open painter (untransformed, unclipped), or null
};

// The last looks a stock widget painted, each with the pixels it was painted over, so that a
// paint with the same inputs over the same pixels copies the pixels the stock paint left instead
// of drawing them again. It applies only where the result is the stock paint's by construction:
// the same region of the widget (its rectangle less its opaque children, usually) is painted at
// the same place of an image or a pixmap at a whole device pixel ratio (a backing store), under
// the Fusion style without a style sheet and not through a shared painter (grab(), render());
// everywhere else the stock paint runs. A look is kept the second time it is painted. A paint draws
// the same pixels from the same inputs over the same pixels in the same clip; that is all a copy
// assumes. A look keeps the pixels under and over the paint's region only (KeptPixels: up to 8
// bytes a device pixel, much less where rows repeat, as in a panel or over a plain background).
class KeptLook {
 public:
  // Paints the target: a kept look if one matches, else stockPaint(), whose result is kept.
  template <typename StockPaint>
  void paint(const KeptLookTarget& target, const KeptLookInputs& inputs, StockPaint&& stockPaint,
             bool mayCopy = true) {
    const std::optional<Place> place = placeOf(target);
    if (mayCopy && place && copyKept(target, *place, inputs)) return;
    // A look is kept the second time it is painted: a widget painted once keeps nothing.
    if (!place || !seenBefore(inputs)) {
      stockPaint();
      return;
    }
    KeptPixels under = pixelsAt(*place);
    stockPaint();
    keep(*place, inputs, std::move(under));
  }

  // The inputs every paint of a widget shares: its style, font, palette (the option's),
  // foreground role and size, and the option's state and direction.
  static KeptLookInputs commonInputs(const QWidget& widget, const QStyleOption& option);
  // The inputs of a frame's paint (a QFrame's, a scroll area's around its viewport): the common
  // ones, the frame's shape, features and line widths, and the size of its rectangle.
  static KeptLookInputs frameInputs(const QWidget& widget, const QStyleOptionFrame& option);
  // The inputs of a widget's text drawn as the style draws an item text (a label's): the text,
  // its flags and its rectangle, in the widget's font and palette with its foreground role.
  static KeptLookInputs itemTextInputs(const QWidget& widget, const QString& text, int flags,
                                       const QRect& rect);

  // How many paints were copied from a kept look (for tests).
  int copied() const { return m_copied; }
  // How many paints kept what the stock paint drew (for tests).
  int kept() const { return m_kept; }
  // The bytes the kept looks' pixels take (for tests).
  qint64 keptBytes() const;
  // Lets every kept look go.
  void clear() {
    m_looks.clear();
    m_seen.clear();
  }

  // At most this many looks are kept (a button pressed and released, a page shown and hidden).
  static constexpr std::size_t kMaxLooks = 2;
  // The inputs of at most this many paints are remembered.
  static constexpr std::size_t kMaxSeen = 8;
  // Widgets of more device pixels than this are not kept.
  static constexpr qint64 kMaxPixels = 512 * 1024;

 private:
  // The device pixels a paint covers.
  struct Place {
    QPaintDevice* device = nullptr;
    QRect pixels;  // the widget's rectangle, in device pixels
    int ratio = 1;
    QRegion region;        // the paint's region in the widget
    QRegion devicePixels;  // the region in device pixels from the widget's top left corner
  };
  struct Look {
    KeptLookInputs inputs;
    QRect pixels;
    int ratio = 1;
    QRegion region;
    KeptPixels under;
    KeptPixels over;
  };

  static std::optional<Place> placeOf(const KeptLookTarget& target);
  // Whether the inputs were painted before (among the last few), noting them.
  bool seenBefore(const KeptLookInputs& inputs);
  // The device's pixels in the place's region.
  static KeptPixels pixelsAt(const Place& place);
  bool copyKept(const KeptLookTarget& target, const Place& place, const KeptLookInputs& inputs);
  void keep(const Place& place, const KeptLookInputs& inputs, KeptPixels under);

  std::vector<Look> m_looks;           // the most recent first
  std::vector<KeptLookInputs> m_seen;  // the inputs of the last paints, the most recent first
  int m_copied = 0;
  int m_kept = 0;
};

// A widget of kind Base that paints through its kept looks: its paintEvent gives paintKept the
// inputs of the paint and the stock paint to run when no kept look matches.
template <typename Base>
class KeptLooks : public Base {
 public:
  using Base::Base;
  // The kept looks (for tests).
  const KeptLook& keptLook() const { return m_look; }

 protected:
  // Paints the widget for `event`: a kept look made from equal inputs over equal pixels (unless
  // mayCopy is false), or stockPaint(), whose result is kept.
  template <typename StockPaint>
  void paintKept(QPaintEvent* event, const KeptLookInputs& inputs, StockPaint&& stockPaint,
                 bool mayCopy = true) {
    QPoint offset;
    QPaintDevice* device = this->redirected(&offset);
    m_look.paint({*this, *event, device, offset, this->sharedPainter() != nullptr, nullptr}, inputs,
                 std::forward<StockPaint>(stockPaint), mayCopy);
  }

 private:
  KeptLook m_look;
};

}  // namespace tnw
