#include "direct/ui/attribute_button_widget.h"

#include "direct/ui/attribute_drop_filter.h"

// Qt
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace tnw::direct {
AttributeButtonWidget::AttributeButtonWidget(const QString& arrayName, int index, QWidget* parent)
    : QPushButton(parent), m_index(index) {
  setObjectName(arrayName + QLatin1Char('_') + QString::number(index));
  setAutoDefault(false);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  applyStyle();
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
  applyStyle();
}

void AttributeButtonWidget::setMarked(bool marked) {
  if (m_marked == marked) return;
  m_marked = marked;
  applyStyle();
}

void AttributeButtonWidget::applyStyle() {
  const QColor face = m_face;
  setStyleSheet(
      QStringLiteral("QPushButton { background-color: %1; color: black;"
                     " border: %2px solid %3; border-radius: 3px; padding: 2px 8px 2px %5px; }"
                     "QPushButton:focus { border-color: #0050c0; }"
                     "QPushButton:pressed { background-color: %4; }")
          .arg(face.name())
          .arg(m_marked ? 3 : 1)
          .arg(m_marked ? QStringLiteral("#c00000") : QStringLiteral("#707070"))
          .arg(face.darker(115).name())
          // A marked button leaves room on its left for the indicator.
          .arg(m_marked ? 22 : 8));
}

QSize AttributeButtonWidget::sizeHint() const {
  const QSize hint = QPushButton::sizeHint();
  // Long names are elided by the layout's width; keep a readable minimum.
  return {std::max(hint.width(), fontMetrics().averageCharWidth() * 10), hint.height()};
}

QSize AttributeButtonWidget::minimumSizeHint() const {
  return {fontMetrics().horizontalAdvance(QStringLiteral("Mmmm\u2026")) + 24, sizeHint().height()};
}

QString AttributeButtonWidget::shownText() const {
  // The room inside the style sheet's border and padding (see applyStyle).
  const int border = m_marked ? 3 : 1;
  const int room = width() - 2 * border - (m_marked ? 22 : 8) - 8;
  return fontMetrics().elidedText(text(), Qt::ElideRight, std::max(room, 0));
}

void AttributeButtonWidget::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text = shownText();
  painter.drawControl(QStyle::CE_PushButton, option);
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
