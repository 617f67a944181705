#pragma once

#include "common/ui/kept_text_label.h"

// Qt
#include <QFont>
#include <QMargins>
#include <QString>

// Std
#include <utility>
#include <vector>

namespace tnw {

// A label whose text is wrapped at word boundaries, and which keeps the height it needs for a
// width. Layouts ask a wrapped label for its height at a width many times whenever a page is
// shown or laid out again, and QLabel lays its text out anew for every question; this one lays it
// out once per width until something that shapes the text changes (the text, the font, the
// margins, the frame, the indent, the alignment or the format). Its text's layout is kept between
// paints as well (KeptTextLabel).
class WrappedLabel : public KeptTextLabel {
  Q_OBJECT

 public:
  // A label showing `text`, wrapped.
  explicit WrappedLabel(const QString& text, QWidget* parent = nullptr);
  // A label without text yet, wrapped.
  explicit WrappedLabel(QWidget* parent = nullptr);

  // The height the text needs at `width`, as QLabel gives it.
  int heightForWidth(int width) const override;

  // How many times the text was laid out to answer heightForWidth (for tests).
  int measured() const { return m_measured; }

 private:
  // What shapes the wrapped text besides the width.
  struct Shape {
    QString text;
    QFont font;
    QMargins margins;
    int frameWidth = 0;
    int margin = 0;
    int indent = 0;
    int alignment = 0;
    int format = 0;
    bool wrapped = false;

    bool operator==(const Shape& other) const;
  };

  Shape shape() const;

  mutable Shape m_shape;
  // The heights measured for the current shape, by width.
  mutable std::vector<std::pair<int, int>> m_heights;
  mutable int m_measured = 0;
};

}  // namespace tnw
