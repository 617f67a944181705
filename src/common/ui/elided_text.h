#pragma once

// Qt
#include <QFont>
#include <QFontMetrics>
#include <QString>
#include <QWidget>

namespace tnw {

// A text shortened at its right end with an ellipsis to fit a width in a widget's font, kept
// until the text, the font or the width changes: QFontMetrics::elidedText shapes the whole text
// at every call.
class ElidedText {
 public:
  // text as it fits width in widget's font: the whole text, or its start and an ellipsis.
  const QString& of(const QString& text, const QWidget& widget, int width) {
    if (width != m_width || text != m_text || widget.font() != m_font) {
      m_text = text;
      m_font = widget.font();
      m_width = width;
      m_shown = widget.fontMetrics().elidedText(text, Qt::ElideRight, width);
    }
    return m_shown;
  }

 private:
  QString m_text;
  QFont m_font;
  int m_width = -1;
  QString m_shown;
};

}  // namespace tnw
