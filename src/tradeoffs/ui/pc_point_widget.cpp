#include "tradeoffs/ui/pc_point_widget.h"

#include "tradeoffs/ui/pc_graph_widget.h"

// Qt
#include <QMouseEvent>
#include <QPainter>

// Std
#include <utility>

namespace tnw::tradeoffs {

PcPointWidget::PcPointWidget(const QString& letter, const QColor& fill, PcGraphWidget* panel)
    : QWidget(panel), m_panel(panel), m_letter(letter), m_fill(fill) {
  setFixedSize(diameter(), diameter());
  setCursor(Qt::OpenHandCursor);
  setToolTip(tr("Drag %1 to change its two scores").arg(letter));
}

void PcPointWidget::setDragCursor(const QCursor& cursor) { m_dragCursor = cursor; }

QCursor PcPointWidget::loadDragCursor(const QString& hostDir, const QString& iconFile,
                                      const QString& letter) {
  if (!hostDir.isEmpty()) {
    QString path = hostDir;
    if (!path.endsWith(QLatin1Char('/')) && !path.endsWith(QLatin1Char('\\'))) {
      path += QLatin1Char('/');
    }
    const QPixmap icon(path + iconFile);
    if (!icon.isNull()) return QCursor(icon, icon.width() / 2, icon.height() / 2);
  }
  QPixmap pm(32, 32);
  pm.fill(Qt::transparent);
  QPainter p(&pm);
  p.setRenderHint(QPainter::Antialiasing);
  for (const auto& [colour, width] :
       {std::pair{QColor(Qt::white), 3.0}, {QColor(Qt::black), 1.0}}) {
    p.setPen(QPen(colour, width));
    p.drawLine(QPointF(16, 4), QPointF(16, 28));
    p.drawLine(QPointF(4, 16), QPointF(28, 16));
  }
  QFont f;
  f.setPixelSize(11);
  f.setBold(true);
  p.setFont(f);
  p.setPen(Qt::black);
  p.drawText(QRectF(18, 0, 14, 14), Qt::AlignCenter, letter);
  return QCursor(pm, 16, 16);
}

int PcPointWidget::diameter() { return 22; }

void PcPointWidget::paintEvent(QPaintEvent*) {
  const qreal ratio = devicePixelRatioF();
  if (m_picture.isNull() || m_picture.devicePixelRatio() != ratio) {
    m_picture = QPixmap(size() * ratio);
    m_picture.setDevicePixelRatio(ratio);
    m_picture.fill(Qt::transparent);
    QPainter p(&m_picture);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(palette().color(QPalette::WindowText), 1.2));
    p.setBrush(m_fill);
    p.drawEllipse(QRectF(rect()).adjusted(1, 1, -1, -1));
    QFont f = font();
    f.setBold(true);
    p.setFont(f);
    p.setPen(Qt::white);
    p.drawText(rect(), Qt::AlignCenter, m_letter);
  }
  QPainter p(this);
  p.drawPixmap(0, 0, m_picture);
}

void PcPointWidget::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
    m_picture = QPixmap();
  }
  QWidget::changeEvent(event);
}

void PcPointWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    QWidget::mousePressEvent(event);
    return;
  }
  m_dragging = true;
  // Keep the point where it was grabbed, so a press without movement does not shift it.
  m_grabOffset = event->position() - QPointF(width() / 2.0, height() / 2.0);
  QWidget::setCursor(m_dragCursor);
  raise();
  event->accept();
}

void PcPointWidget::mouseMoveEvent(QMouseEvent* event) {
  if (!m_dragging) return;
  m_panel->dragPointTo(this, mapToParent(event->position() - m_grabOffset), false);
  event->accept();
}

void PcPointWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (!m_dragging || event->button() != Qt::LeftButton) return;
  m_dragging = false;
  QWidget::setCursor(Qt::OpenHandCursor);
  m_panel->dragPointTo(this, mapToParent(event->position() - m_grabOffset), true);
  event->accept();
}

}  // namespace tnw::tradeoffs
