#include "direct/ui/attribute_button_widget.h"

#include "common/ui/whole_device_pixels.h"
#include "direct/ui/attribute_drop_filter.h"
#include "direct/ui/button_frame.h"

// Qt
#include <QApplication>
#include <QDrag>
#include <QEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QtMath>

// Std
#include <algorithm>

namespace tnw::direct {
namespace {

constexpr int kRightPadding = 8;
constexpr int kVerticalPadding = 2;
const QColor kFrameColour(0x70, 0x70, 0x70);
const QColor kMarkedFrameColour(0xc0, 0x00, 0x00);
const QColor kFocusFrameColour(0x00, 0x50, 0xc0);

}  // namespace

AttributeButtonWidget::AttributeButtonWidget(const QString& arrayName, int index, QWidget* parent)
    : QPushButton(parent), m_index(index) {
  setObjectName(arrayName + QLatin1Char('_') + QString::number(index));
  setAutoDefault(false);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void AttributeButtonWidget::setTag(const QString& tag) {
  m_tag = tag;
  setProperty("tag", tag);
}

int AttributeButtonWidget::attribute() const {
  bool ok = false;
  const int value = m_tag.mid(1).toInt(&ok);
  return ok ? value : -1;
}

void AttributeButtonWidget::setFaceColour(const QColor& colour) {
  if (m_face == colour) return;
  m_face = colour;
  update();
}

void AttributeButtonWidget::setMarked(bool marked) {
  if (m_marked == marked) return;
  m_marked = marked;
  m_hint = QSize();
  updateGeometry();
  update();
}

QSize AttributeButtonWidget::sizeHint() const {
  if (m_hint.isValid() && m_hintText == text()) return m_hint;
  m_hintText = text();
  // The caption's natural size (a few letters when empty) inside the frame and the padding.
  const QSize caption = fontMetrics().size(
      Qt::TextShowMnemonic, m_hintText.isEmpty() ? QStringLiteral("XXXX") : m_hintText);
  const int frame = 2 * borderWidth();
  m_hint = {caption.width() + frame + leftPadding() + kRightPadding,
            caption.height() + frame + 2 * kVerticalPadding};
  // Long names are elided by the layout's width; keep a readable minimum.
  m_hint.setWidth(std::max(m_hint.width(), fontMetrics().averageCharWidth() * 10));
  return m_hint;
}

QSize AttributeButtonWidget::minimumSizeHint() const {
  return {fontMetrics().horizontalAdvance(QStringLiteral("Mmmm\u2026")) + 24, sizeHint().height()};
}

QRect AttributeButtonWidget::contentsRect(const QRect& rect) const {
  const int b = borderWidth();
  const QRect room = rect.adjusted(b + leftPadding(), b + kVerticalPadding, -b - kRightPadding,
                                   -b - kVerticalPadding);
  return QStyle::visualRect(layoutDirection(), rect, room);
}

QString AttributeButtonWidget::shownText() const {
  return m_shown.of(text(), *this, std::max(contentsRect(rect()).width(), 0));
}

int AttributeButtonWidget::captionFlags() const {
  QStyleOptionButton option;
  initStyleOption(&option);
  const bool underline = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this);
  return Qt::AlignCenter | Qt::TextShowMnemonic | (underline ? 0 : Qt::TextHideMnemonic);
}

void AttributeButtonWidget::paintCaption(QPainter& painter, const QRect& room) const {
  const QString shown = shownText();
  if (shown.isEmpty()) return;
  if (!isEnabled()) {
    // A disabled caption is drawn as the style draws one (some etch it), in black on the face.
    QStyleOptionButton option;
    initStyleOption(&option);
    QPalette palette = option.palette;
    palette.setColor(QPalette::ButtonText, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Button, m_face);
    palette.setColor(QPalette::Window, m_face);
    palette.setColor(QPalette::Light, m_face.lighter(115));
    palette.setColor(QPalette::Midlight, m_face.lighter(107));
    palette.setColor(QPalette::Dark, m_face.darker(150));
    palette.setColor(QPalette::Shadow, m_face.darker(300));
    style()->drawItemText(&painter, room, captionFlags(), palette, false, shown,
                          QPalette::ButtonText);
    return;
  }
  painter.setPen(QPen(QBrush(Qt::black), 1));
  m_caption.draw(painter, room, captionFlags(), shown);
}

void AttributeButtonWidget::paintInside(QPainter& painter, const QColor& face, const QRect& room,
                                        int ratio) const {
  // Clear of the frame's rounded corners, which show what lies under the button.
  const int b = borderWidth();
  const QRect inside = rect().adjusted(ButtonFrame::kRadius, b, -ButtonFrame::kRadius, -b);
  if (inside.isEmpty()) {
    paintCaption(painter, room);
    return;
  }
  const Inside key{shownText(),   captionFlags(),
                   font(),        painter.layoutDirection(),
                   face.rgba(),   room.translated(-inside.topLeft()),
                   inside.size(), ratio};
  if (m_inside.isNull() || key != m_insideKey) {
    m_inside = QImage(inside.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    m_inside.setDevicePixelRatio(ratio);
    // Text is laid out for the widget's resolution, as on the widget itself.
    m_inside.setDotsPerMeterX(qRound(logicalDpiX() / 0.0254));
    m_inside.setDotsPerMeterY(qRound(logicalDpiY() / 0.0254));
    m_inside.fill(face);
    QPainter picture(&m_inside);
    picture.setLayoutDirection(painter.layoutDirection());
    picture.setFont(font());
    picture.translate(-inside.topLeft());
    paintCaption(picture, room);
    m_insideKey = key;
  }
  painter.drawImage(inside.topLeft(), m_inside);
}

void AttributeButtonWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool focus = hasFocus();
  QColor border = m_marked ? kMarkedFrameColour : kFrameColour;
  if (focus) border = kFocusFrameColour;
  const QColor face = isDown() ? m_face.darker(115) : m_face;
  ButtonFrame::paint(painter, rect(), face, border, borderWidth());
  const QRect room = contentsRect(rect());
  const int ratio = wholeDeviceRatio(painter);
  if (isEnabled() && ratio > 0) {
    paintInside(painter, face, room, ratio);
  } else {
    paintCaption(painter, room);
  }
  if (focus) {
    // The style's own focus mark inside the padding (some styles draw it only after Tab).
    QStyleOptionButton option;
    initStyleOption(&option);
    QStyleOptionFocusRect focusRect;
    focusRect.QStyleOption::operator=(option);
    focusRect.rect = room;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focusRect, &painter, this);
  }
}

bool AttributeButtonWidget::hitButton(const QPoint& pos) const { return rect().contains(pos); }

void AttributeButtonWidget::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) m_hint = QSize();
  QPushButton::changeEvent(event);
}

void AttributeButtonWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    m_pressPos = event->position().toPoint();
    m_pressed = true;
  }
  QPushButton::mousePressEvent(event);
}

void AttributeButtonWidget::mouseMoveEvent(QMouseEvent* event) {
  if (!m_draggable || !m_pressed || !(event->buttons() & Qt::LeftButton) ||
      (event->position().toPoint() - m_pressPos).manhattanLength() <
          QApplication::startDragDistance()) {
    QPushButton::mouseMoveEvent(event);
    return;
  }
  m_pressed = false;
  setDown(false);
  auto* mime = new QMimeData;
  mime->setData(AttributeDropFilter::mimeType(), m_tag.toUtf8());
  auto* drag = new QDrag(this);
  drag->setMimeData(mime);
  drag->setPixmap(grab());
  drag->setHotSpot(m_pressPos);
  drag->exec(Qt::MoveAction);
}

}  // namespace tnw::direct
