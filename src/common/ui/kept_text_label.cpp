#include "common/ui/kept_text_label.h"

// Qt
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTextDocument>

namespace tnw {

KeptTextLabel::KeptTextLabel(const QString& text, QWidget* parent) : KeptLooks(text, parent) {}

KeptTextLabel::KeptTextLabel(QWidget* parent) : KeptLooks(parent) {}

int KeptTextLabel::textFlags() const {
  // QLabel keeps the word wrap among its alignment flags and draws with the text's direction.
  int flags = static_cast<int>(QStyle::visualAlignment(Qt::LeftToRight, alignment())) |
              (wordWrap() ? Qt::TextWordWrap : 0) | Qt::TextForceLeftToRight;
  // A label with a buddy shows its mnemonic as QLabel does.
  if (buddy() != nullptr && text().contains(u'&')) {
    flags |= Qt::TextShowMnemonic;
    QStyleOption option;
    option.initFrom(this);
    if (style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) == 0)
      flags |= Qt::TextHideMnemonic;
  }
  return flags;
}

bool KeptTextLabel::paintsKept() const {
  const QString shown = text();
  if (shown.isEmpty() || frameShape() != QFrame::NoFrame || indent() > 0) return false;
  if ((textInteractionFlags() & (Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard)) != 0)
    return false;
  const Qt::TextFormat format = textFormat();
  if (format != Qt::PlainText && (format != Qt::AutoText || Qt::mightBeRichText(shown)))
    return false;
  return KeptText::drawsPlainItemText(style()) && KeptText::canKeep(shown, textFlags(), font());
}

void KeptTextLabel::paintEvent(QPaintEvent* event) {
  if (!paintsKept()) {
    QLabel::paintEvent(event);
    return;
  }
  // What QLabel::paintEvent does for an unframed plain text, with the style's drawItemText
  // (the role's brush as the pen, then drawText) done from the kept layout.
  const int m = margin();
  const QRect r = contentsRect().adjusted(m, m, -m, -m);
  const int flags = textFlags();
  const QString shown = text();
  paintKept(event, KeptLook::itemTextInputs(*this, shown, flags, r), [&] {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    painter.setPen(QPen(option.palette.brush(foregroundRole()), painter.pen().widthF()));
    m_kept.draw(painter, r, flags, shown);
  });
}

}  // namespace tnw

// The meta-object code is compiled here, beside the class's own, so that it is laid out with
// the code that shows the first dialog (component/startup_code.ld).
#include "moc_kept_text_label.cpp"
