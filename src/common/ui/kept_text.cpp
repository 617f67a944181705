#include "common/ui/kept_text.h"

// Qt
#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>
#include <QTextOption>
#include <QtMath>

// Std
#include <cstring>

namespace tnw {

namespace {

// drawText's line width for a text that is not wrapped: wide enough for any line.
constexpr qreal kUnwrappedWidth = 0x01000000;

// The flags drawText handles in ways a kept layout does not repeat.
constexpr int kUnkeptFlags = Qt::AlignJustify | Qt::TextWrapAnywhere | Qt::TextJustificationForced |
                             Qt::TextForceRightToLeft | Qt::TextDontPrint | Qt::TextExpandTabs;

}  // namespace

bool KeptText::canKeep(const QString& text, int flags, const QFont& font) {
  if ((flags & kUnkeptFlags) != 0) return false;
  if (font.underline() || font.strikeOut() || font.overline()) return false;
  if (text.isRightToLeft()) return false;
#ifdef Q_OS_MACOS
  // drawText drops a whole "(&x)" there when it hides mnemonics.
  if ((flags & Qt::TextHideMnemonic) != 0 && text.contains(u'&')) return false;
#endif
  for (const QChar c : text) {
    // Tabs, line breaks and length variants are drawText's own processing.
    if (c == u'\t' || c == u'\r' || c == u'\n' || c == QChar(0x9c) || c == QChar::LineSeparator ||
        c == QChar::ParagraphSeparator) {
      return false;
    }
  }
  return true;
}

QString KeptText::withoutMnemonics(const QString& text, bool hide,
                                   QList<QTextLayout::FormatRange>& underlines) {
  // As drawText: each '&' goes, the character after a single one is underlined unless
  // mnemonics are hidden, and "&&" leaves one '&'.
  QString shown;
  shown.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text.at(i) == u'&') {
      if (++i == text.size()) break;
      if (text.at(i) != u'&' && !hide) {
        QTextLayout::FormatRange range;
        range.start = static_cast<int>(shown.size());
        range.length = 1;
        range.format.setFontUnderline(true);
        underlines.append(range);
      }
    }
    shown.append(text.at(i));
  }
  return shown;
}

bool KeptText::drawsPlainItemText(const QStyle* style) {
  // Fusion's drawItemText sets the role's brush as the pen and calls drawText, enabled or not.
  // Other styles may etch or dither a disabled text, and a style sheet may change anything.
  // The line edits' panel style is Fusion with their panels kept (KeptPanelStyle).
  if (style == nullptr) return false;
  const char* name = style->metaObject()->className();
  return std::strcmp(name, "QFusionStyle") == 0 || std::strcmp(name, "tnw::KeptPanelStyle") == 0;
}

void KeptText::layOut(const QString& text, const QFont& font, int flags, QSizeF size) {
  ++m_laidOut;
  m_text = text;
  m_font = font;
  m_flags = flags;
  m_size = size;
  m_valid = true;
  QString shown = text;
  QList<QTextLayout::FormatRange> underlines;
  if ((flags & (Qt::TextShowMnemonic | Qt::TextHideMnemonic)) != 0) {
    shown = withoutMnemonics(text, (flags & Qt::TextHideMnemonic) != 0, underlines);
  }
  m_layout.setText(shown);
  m_layout.setFont(font);
  m_layout.setFormats(underlines);
  QTextOption option;
  option.setTextDirection(Qt::LeftToRight);
  option.setAlignment(Qt::AlignLeft);
  m_layout.setTextOption(option);
  m_layout.setCacheEnabled(true);
  const bool wrapped = (flags & Qt::TextWordWrap) != 0;
  const qreal lineWidth = wrapped ? qMax<qreal>(0, size.width()) : kUnwrappedWidth;
  const qreal leading = QFontMetricsF(font).leading();
  m_width = 0;
  m_height = -leading;
  m_layout.beginLayout();
  for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
    line.setLineWidth(lineWidth);
    // As drawText: each line starts on a whole pixel, and lines past the rectangle are dropped.
    m_height = qCeil(m_height + leading);
    line.setPosition(QPointF(0, m_height));
    m_height += line.ascent() + line.descent();
    m_width = qMax(m_width, line.naturalTextWidth());
    if ((flags & Qt::TextDontClip) == 0 && m_height >= size.height()) break;
  }
  m_layout.endLayout();
}

void KeptText::draw(QPainter& painter, const QRect& rect, int flags, const QString& text) {
  if (text.isEmpty()) return;
  const QFont& font = painter.font();
  // drawText lays a text out in the painter's direction or, when that is Auto, in the text's own.
  const Qt::LayoutDirection direction =
      (flags & Qt::TextForceLeftToRight) != 0 ? Qt::LeftToRight : painter.layoutDirection();
  const bool leftToRight = direction == Qt::LeftToRight ||
                           (direction == Qt::LayoutDirectionAuto && !text.isRightToLeft());
  if (!leftToRight || !canKeep(text, flags, font)) {
    painter.drawText(rect, flags, text);
    return;
  }
  flags = static_cast<int>(QStyle::visualAlignment(Qt::LeftToRight, Qt::Alignment(flags)));
  const QRectF r(rect);
  const bool wrapped = (flags & Qt::TextWordWrap) != 0;
  // An unwrapped line does not depend on the width.
  const QSizeF size(wrapped ? r.width() : 0, r.height());
  if (!m_valid || flags != m_flags || size != m_size || text != m_text || font != m_font) {
    layOut(text, font, flags, size);
  }
  qreal yoff = 0;
  if ((flags & Qt::AlignBottom) != 0) {
    yoff = r.height() - m_height;
  } else if ((flags & Qt::AlignVCenter) != 0) {
    yoff = (r.height() - m_height) / 2;
  }
  qreal xoff = 0;
  if ((flags & Qt::AlignRight) != 0) {
    xoff = r.width() - m_width;
  } else if ((flags & Qt::AlignHCenter) != 0) {
    xoff = (r.width() - m_width) / 2;
  }
  const bool clip = (flags & Qt::TextDontClip) == 0 &&
                    !r.contains(QRectF(r.x() + xoff, r.y() + yoff, m_width, m_height));
  if (clip) {
    painter.save();
    painter.setClipRect(r, Qt::IntersectClip);
  }
  for (int i = 0; i < m_layout.lineCount(); ++i) {
    const QTextLine line = m_layout.lineAt(i);
    const qreal advance = line.horizontalAdvance();
    qreal x = 0;
    if ((flags & Qt::AlignRight) != 0) {
      x = r.width() - advance;
    } else if ((flags & Qt::AlignHCenter) != 0) {
      x = (r.width() - advance) / 2;
    }
    line.draw(&painter, QPointF(r.x() + x, r.y() + yoff));
  }
  if (clip) painter.restore();
}

}  // namespace tnw
