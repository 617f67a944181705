#include "common/ui/kept_look_widgets.h"

// Qt
#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
#include <QStyleOptionGroupBox>

namespace tnw {

namespace {

// The inputs every option and widget share.
KeptLookInputs commonInputs(const QWidget& widget, const QStyleOption& option) {
  KeptLookInputs in;
  in.style = widget.style();
  in.font = widget.font();
  in.palette = option.palette;
  in.foregroundRole = static_cast<int>(widget.foregroundRole());
  in.state = static_cast<int>(option.state);
  in.direction = static_cast<int>(option.direction);
  in.size = widget.size();
  return in;
}

// The inputs of a button's paint: its option's, drawn over the widget's whole rectangle.
KeptLookInputs buttonInputs(const QWidget& widget, const QStyleOptionButton& option) {
  KeptLookInputs in = commonInputs(widget, option);
  in.text = option.text;
  in.iconKey = option.icon.isNull() ? 0 : option.icon.cacheKey();
  in.iconSize = option.iconSize;
  in.details = {static_cast<int>(option.features),
                option.rect.x(),
                option.rect.y(),
                option.rect.width(),
                option.rect.height(),
                0};
  return in;
}

}  // namespace

void KeptPushButton::paintEvent(QPaintEvent* event) {
  QStyleOptionButton option;
  initStyleOption(&option);
  QPoint offset;
  QPaintDevice* device = redirected(&offset);
  m_look.paint({*this, *event, device, offset, sharedPainter() != nullptr},
               buttonInputs(*this, option), [this, event] { QPushButton::paintEvent(event); });
}

void KeptRadioButton::paintEvent(QPaintEvent* event) {
  QStyleOptionButton option;
  initStyleOption(&option);
  QPoint offset;
  QPaintDevice* device = redirected(&offset);
  m_look.paint({*this, *event, device, offset, sharedPainter() != nullptr},
               buttonInputs(*this, option), [this, event] { QRadioButton::paintEvent(event); });
}

void KeptGroupBox::paintEvent(QPaintEvent* event) {
  QStyleOptionGroupBox option;
  initStyleOption(&option);
  KeptLookInputs in = commonInputs(*this, option);
  in.text = option.text;
  in.color = option.textColor;
  in.details = {static_cast<int>(option.textAlignment),
                static_cast<int>(option.features),
                static_cast<int>(option.subControls),
                static_cast<int>(option.activeSubControls),
                option.lineWidth,
                option.midLineWidth};
  QPoint offset;
  QPaintDevice* device = redirected(&offset);
  m_look.paint({*this, *event, device, offset, sharedPainter() != nullptr}, in,
               [this, event] { QGroupBox::paintEvent(event); });
}

void KeptFrame::paintEvent(QPaintEvent* event) {
  QStyleOptionFrame option;
  initStyleOption(&option);
  KeptLookInputs in = commonInputs(*this, option);
  in.details = {static_cast<int>(option.frameShape),
                static_cast<int>(option.features),
                option.lineWidth,
                option.midLineWidth,
                option.rect.width(),
                option.rect.height()};
  QPoint offset;
  QPaintDevice* device = redirected(&offset);
  m_look.paint({*this, *event, device, offset, sharedPainter() != nullptr}, in,
               [this, event] { QFrame::paintEvent(event); });
}

bool KeptLineEdit::placesTextPlainly() const {
  if (hasFocus() || hasSelectedText() || !inputMask().isEmpty()) return false;
  // Buttons inside the line edit (its clear button, actions placed in it) take room from its
  // text; they are its only child widgets.
  for (const QObject* child : children()) {
    if (child->isWidgetType()) return false;
  }
  const QString shown = displayText();
  if (shown.isEmpty()) return true;
  // QLineEdit scrolls a text only when it is wider than the line it has (the contents less the
  // text margins and 2 pixels on each side); a text narrower than that by two average
  // characters is never scrolled.
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect contents = style()
                             ->subElementRect(QStyle::SE_LineEditContents, &option, this)
                             .marginsRemoved(textMargins());
  const QFontMetrics metrics = fontMetrics();
  return metrics.horizontalAdvance(shown) + 1 + 2 * metrics.averageCharWidth() <=
         contents.width() - 4;
}

void KeptLineEdit::paintEvent(QPaintEvent* event) {
  if (!placesTextPlainly()) {
    QLineEdit::paintEvent(event);
    return;
  }
  QStyleOptionFrame option;
  initStyleOption(&option);
  KeptLookInputs in = commonInputs(*this, option);
  // The placeholder is drawn in the text's place when there is no text.
  const QString shown = displayText();
  in.text = shown.isEmpty() ? placeholderText() : shown;
  const QMargins m = textMargins();
  in.details = {static_cast<int>(option.frameShape),
                static_cast<int>(option.features),
                option.lineWidth,
                option.midLineWidth,
                static_cast<int>(alignment()),
                m.left(),
                m.top(),
                m.right(),
                m.bottom(),
                static_cast<int>(cursorMoveStyle()),
                shown.isEmpty() ? 1 : 0};
  QPoint offset;
  QPaintDevice* device = redirected(&offset);
  m_look.paint({*this, *event, device, offset, sharedPainter() != nullptr}, in,
               [this, event] { QLineEdit::paintEvent(event); });
}

}  // namespace tnw
