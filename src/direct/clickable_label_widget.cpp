#include "direct/clickable_label_widget.h"

// Qt
#include <QMouseEvent>

namespace tnw {

ClickableLabelWidget::ClickableLabelWidget(const QString& objectName, int index, QWidget* parent)
    : QLabel(parent), m_index(index) {
  setObjectName(objectName);
  setProperty("index", index);
}

void ClickableLabelWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    emit clicked();
  }
  QLabel::mouseReleaseEvent(event);
}

}  // namespace tnw
