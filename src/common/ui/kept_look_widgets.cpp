#include "common/ui/kept_look_widgets.h"

#include "common/ui/kept_panel_style.h"

// Qt
#include <QAbstractSpinBox>
#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
#include <QStyleOptionGroupBox>
#include <QStyleOptionTab>
#include <QStyleOptionTabWidgetFrame>

namespace tnw {

namespace {

// The inputs of a button's paint: its option's, drawn over the widget's whole rectangle.
KeptLookInputs buttonInputs(const QWidget& widget, const QStyleOptionButton& option) {
  KeptLookInputs in = KeptLook::commonInputs(widget, option);
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
  paintKept(event, buttonInputs(*this, option), [this, event] { QPushButton::paintEvent(event); });
}

void KeptRadioButton::paintEvent(QPaintEvent* event) {
  QStyleOptionButton option;
  initStyleOption(&option);
  paintKept(event, buttonInputs(*this, option), [this, event] { QRadioButton::paintEvent(event); });
}

void KeptGroupBox::paintEvent(QPaintEvent* event) {
  QStyleOptionGroupBox option;
  initStyleOption(&option);
  KeptLookInputs in = KeptLook::commonInputs(*this, option);
  in.text = option.text;
  in.color = option.textColor;
  in.details = {static_cast<int>(option.textAlignment),
                static_cast<int>(option.features),
                static_cast<int>(option.subControls),
                static_cast<int>(option.activeSubControls),
                option.lineWidth,
                option.midLineWidth};
  paintKept(event, in, [this, event] { QGroupBox::paintEvent(event); });
}

void KeptFrame::paintEvent(QPaintEvent* event) {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const KeptLookInputs in = KeptLook::frameInputs(*this, option);
  paintKept(event, in, [this, event] { QFrame::paintEvent(event); });
}

KeptLineEdit::KeptLineEdit(QWidget* parent)
    : KeptLooks(parent), m_panelStyle(KeptPanelStyle::forApplicationStyle()) {
  if (m_panelStyle) setStyle(m_panelStyle.get());
}

KeptLineEdit::~KeptLineEdit() {
  // The shared style may go with this line edit: the widget lets it go first.
  if (m_panelStyle) setStyle(nullptr);
}

bool KeptLineEdit::panelTarget(const QStyleOption& option, const QPainter& painter) const {
  // A spin box's line edit has its panel drawn by the spin box; Fusion draws none for it.
  if (m_painting == nullptr || painter.device() != this || option.rect != rect() ||
      qobject_cast<const QAbstractSpinBox*>(parentWidget()) != nullptr) {
    return false;
  }
  return painter.worldTransform().isIdentity() && !painter.hasClipping() &&
         painter.opacity() == 1.0 &&
         painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

KeptLookInputs KeptLineEdit::panelInputs(const QStyleOption& option) const {
  KeptLookInputs in = KeptLook::commonInputs(*this, option);
  if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option)) {
    in.details = {static_cast<int>(frame->frameShape), static_cast<int>(frame->features),
                  frame->lineWidth, frame->midLineWidth};
  }
  in.parts = {option.rect.x(), option.rect.y(), option.rect.width(), option.rect.height(),
              static_cast<int>(option.palette.currentColorGroup())};
  return in;
}

void KeptLineEdit::stockPaint(QPaintEvent* event) {
  m_painting = event;
  QLineEdit::paintEvent(event);
  m_painting = nullptr;
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
    m_scrolledFor = {};
    stockPaint(event);
    return;
  }
  QStyleOptionFrame option;
  initStyleOption(&option);
  KeptLookInputs in = KeptLook::commonInputs(*this, option);
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
  // QLineEdit works out where its text lies (and so where a click puts the cursor) as it paints.
  // A text that fits lies at the same place for any text in a font when it is at the left; in
  // other places a look is copied only for the inputs QLineEdit last painted.
  const bool atLeft = (QStyle::visualAlignment(layoutDirection(), alignment()) & Qt::AlignLeft) &&
                      m_scrolledFor.style != nullptr && in.font == m_scrolledFor.font &&
                      in.size == m_scrolledFor.size;
  paintKept(
      event, in,
      [this, event, &in] {
        m_scrolledFor = in;
        stockPaint(event);
      },
      atLeft || in == m_scrolledFor);
}

namespace {

// Appends what a tab's option carries that its label and shape are drawn from.
void appendTab(std::vector<int>& parts, const QStyleOptionTab& tab) {
  const qint64 icon = tab.icon.isNull() ? 0 : tab.icon.cacheKey();
  parts.insert(parts.end(), {tab.tabIndex,
                             tab.rect.x(),
                             tab.rect.y(),
                             tab.rect.width(),
                             tab.rect.height(),
                             tab.row,
                             static_cast<int>(tab.shape),
                             static_cast<int>(tab.position),
                             static_cast<int>(tab.selectedPosition),
                             static_cast<int>(tab.cornerWidgets),
                             tab.iconSize.width(),
                             tab.iconSize.height(),
                             tab.documentMode ? 1 : 0,
                             tab.leftButtonSize.width(),
                             tab.leftButtonSize.height(),
                             tab.rightButtonSize.width(),
                             tab.rightButtonSize.height(),
                             static_cast<int>(tab.features),
                             static_cast<int>(tab.state),
                             static_cast<int>(tab.direction),
                             static_cast<int>(icon >> 32),
                             static_cast<int>(icon & 0xffffffff),
                             static_cast<int>(tab.text.size())});
}

}  // namespace

std::optional<KeptLookInputs> KeptTabBar::inputs() const {
  if (isMovable()) return std::nullopt;
  // Scroll buttons and tab buttons are the bar's only child widgets; where they show, the bar
  // draws tears and makes room for them.
  for (const QObject* child : children()) {
    if (child->isWidgetType() && static_cast<const QWidget*>(child)->isVisible()) {
      return std::nullopt;
    }
  }
  QStyleOption bar;
  bar.initFrom(this);
  KeptLookInputs in = KeptLook::commonInputs(*this, bar);
  QRect tabs;
  for (int i = 0; i < count(); ++i) {
    tabs |= tabRect(i);
    if (!isTabVisible(i)) continue;
    QStyleOptionTab tab;
    initStyleOption(&tab, i);
    // A tab's own text colour, and what it draws with, would be inputs of their own.
    if (!(tab.palette == bar.palette) ||
        tab.palette.currentColorGroup() != bar.palette.currentColorGroup()) {
      return std::nullopt;
    }
    appendTab(in.parts, tab);
    in.text += tab.text;
  }
  const QRect selected = tabRect(currentIndex());
  in.details = {currentIndex(),         drawBase() ? 1 : 0, static_cast<int>(shape()),
                documentMode() ? 1 : 0, tabs.x(),           tabs.y(),
                tabs.width(),           tabs.height(),      selected.x(),
                selected.y(),           selected.width()};
  in.parts.push_back(selected.height());
  return in;
}

void KeptTabBar::paintEvent(QPaintEvent* event) {
  const std::optional<KeptLookInputs> in = inputs();
  if (!in) {
    QTabBar::paintEvent(event);
    return;
  }
  paintKept(event, *in, [this, event] { QTabBar::paintEvent(event); });
}

KeptTabWidget::KeptTabWidget(QWidget* parent) : KeptLooks<QTabWidget>(parent) {
  auto* bar = new KeptTabBar(this);
  bar->setObjectName(QStringLiteral("qt_tabwidget_tabbar"));
  bar->setDrawBase(false);
  setTabBar(bar);
}

void KeptTabWidget::paintEvent(QPaintEvent* event) {
  // In document mode the pane has no frame: the bar's base is drawn beside the corner widgets.
  if (documentMode()) {
    QTabWidget::paintEvent(event);
    return;
  }
  QStyleOptionTabWidgetFrame option;
  initStyleOption(&option);
  KeptLookInputs in = KeptLook::commonInputs(*this, option);
  // The pane's frame is drawn over the rectangle the style gives the pane for this option.
  const QRect pane = style()->subElementRect(QStyle::SE_TabWidgetTabPane, &option, this);
  in.details = {static_cast<int>(option.shape),
                option.lineWidth,
                option.midLineWidth,
                option.tabBarSize.width(),
                option.tabBarSize.height(),
                option.leftCornerWidgetSize.width(),
                option.leftCornerWidgetSize.height(),
                option.rightCornerWidgetSize.width(),
                option.rightCornerWidgetSize.height()};
  for (const QRect& r : {option.tabBarRect, option.selectedTabRect, pane}) {
    in.parts.insert(in.parts.end(), {r.x(), r.y(), r.width(), r.height()});
  }
  paintKept(event, in, [this, event] { QTabWidget::paintEvent(event); });
}

}  // namespace tnw
