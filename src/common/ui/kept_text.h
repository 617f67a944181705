#pragma once

// Qt
#include <QFont>
#include <QRect>
#include <QString>
#include <QTextLayout>

class QPainter;
class QStyle;

namespace tnw {

// A plain text drawn as QPainter::drawText(rect, flags, text) draws it, with its layout kept
// between paints. drawText shapes the text and breaks it into lines anew at every call, and that
// is most of what painting a label costs; the kept layout is made again only when the text, the
// font, the flags or the rectangle's size change. The lines are placed as drawText places them,
// so the pixels are the same.
class KeptText {
 public:
  // Whether text drawn with flags in font can be kept: a left-to-right text without tabs, line
  // breaks or length variants, in a font without lines through or under it, neither justified
  // nor wrapped anywhere. Mnemonics are shown or hidden as drawText does.
  static bool canKeep(const QString& text, int flags, const QFont& font);
  // Whether style draws an item's text as it comes, with the palette's brush for the role and
  // nothing else: then drawing a kept text in its place is drawing what the style draws.
  static bool drawsPlainItemText(const QStyle* style);

  // Draws text in rect with the painter's font and pen, as painter.drawText(rect, flags, text)
  // does: from the kept layout when canKeep(text, flags, painter.font()) holds and the line runs
  // left to right (the painter's direction, or the text's own when the painter's is Auto, as on
  // an image), otherwise by drawText itself.
  void draw(QPainter& painter, const QRect& rect, int flags, const QString& text);

  // How many times the text was laid out (for tests).
  int laidOut() const { return m_laidOut; }

 private:
  void layOut(const QString& text, const QFont& font, int flags, QSizeF size);
  static QString withoutMnemonics(const QString& text, bool hide,
                                  QList<QTextLayout::FormatRange>& underlines);

  QTextLayout m_layout;
  QString m_text;
  QFont m_font;
  int m_flags = 0;
  QSizeF m_size;
  bool m_valid = false;
  // The laid-out text's natural width and its lines' height.
  qreal m_width = 0;
  qreal m_height = 0;
  int m_laidOut = 0;
};

}  // namespace tnw
