#include "direct/ui/group_box_widget.h"

#include "direct/ui/flow_layout.h"

// Qt
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

// Std
#include <algorithm>
#include <cmath>

namespace tnw::direct {
namespace {

const QColor kBoxColour(255, 255, 160);
const QColor kSelectedFrame(200, 0, 0);

}  // namespace

GroupBoxWidget::GroupBoxWidget(const QString& arrayName, int index, QWidget* parent)
    : QFrame(parent), m_index(index) {
  setObjectName(arrayName + QLatin1Char('_') + QString::number(index));
  setFrameShape(QFrame::Box);
  setAutoFillBackground(true);
  QPalette pal = palette();
  pal.setColor(QPalette::Window, kBoxColour);
  pal.setColor(QPalette::WindowText, Qt::black);
  setPalette(pal);
  m_layout = new FlowLayout(this, 4);
  m_layout->setContentsMargins(6, 6, 6, 6);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  setMinimumHeight(minimumSizeHint().height());
}

void GroupBoxWidget::setGroupNumber(int group) {
  m_group = group;
  setProperty("tag", group);
}

void GroupBoxWidget::setSelected(bool selected) {
  if (m_selected == selected) return;
  m_selected = selected;
  update();
}

QSize GroupBoxWidget::minimumSizeHint() const {
  // An empty box is as tall as a row of buttons, so that it is an easy drop target.
  QPushButton probe(QStringLiteral("Xg"));
  const int row = probe.sizeHint().height();
  return {row * 3, row + 12};
}

QList<QWidget*> GroupBoxWidget::shownButtons() const {
  QList<QWidget*> buttons;
  for (int i = 0; i < m_layout->count(); ++i) {
    QWidget* w = m_layout->itemAt(i)->widget();
    if (w != nullptr && !w->isHidden()) buttons.append(w);
  }
  return buttons;
}

void GroupBoxWidget::setFocusable(bool focusable) {
  setFocusPolicy(focusable ? Qt::StrongFocus : Qt::NoFocus);
}

void GroupBoxWidget::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter) {
    emit clicked();
    return;
  }
  QFrame::keyPressEvent(event);
}

void GroupBoxWidget::focusInEvent(QFocusEvent* event) {
  QFrame::focusInEvent(event);
  update();
}

void GroupBoxWidget::focusOutEvent(QFocusEvent* event) {
  QFrame::focusOutEvent(event);
  update();
}

void GroupBoxWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    emit clicked();
  }
  QFrame::mouseReleaseEvent(event);
}

void GroupBoxWidget::paintEvent(QPaintEvent* event) {
  QPainter p(this);
  // The plain box as four fills: the frame's own drawing strokes each side pixel by pixel. A
  // fractional scale rounds the frame to device pixels, which the frame's drawing does itself.
  const qreal ratio = devicePixelRatioF();
  if (frameShape() == QFrame::Box && frameShadow() == QFrame::Plain && ratio == std::round(ratio)) {
    const QColor line = palette().color(foregroundRole());
    const QRect r = frameRect();
    const int w = std::min({lineWidth(), r.width() / 2, r.height() / 2});
    p.fillRect(QRect(r.left(), r.top(), r.width(), w), line);
    p.fillRect(QRect(r.left(), r.bottom() - w + 1, r.width(), w), line);
    p.fillRect(QRect(r.left(), r.top() + w, w, r.height() - 2 * w), line);
    p.fillRect(QRect(r.right() - w + 1, r.top() + w, w, r.height() - 2 * w), line);
  } else {
    p.end();
    QFrame::paintEvent(event);
    p.begin(this);
  }
  if (hasFocus()) {
    p.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DashLine));
    p.drawRect(rect().adjusted(5, 5, -6, -6));
  }
  if (!m_selected) return;
  p.setPen(QPen(kSelectedFrame, 3));
  p.setBrush(Qt::NoBrush);
  p.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
}

}  // namespace tnw::direct
