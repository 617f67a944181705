#include "direct/ui/attribute_drop_filter.h"

// Qt
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

namespace tnw::direct {
namespace {

constexpr const char* kAcceptsDropProperty = "tnwAcceptsAttributeDrop";

}  // namespace

AttributeDropFilter::AttributeDropFilter(QObject* parent) : QObject(parent) {}

void AttributeDropFilter::watch(QWidget* target, bool acceptDrop) {
  target->setAcceptDrops(true);
  target->setProperty(kAcceptsDropProperty, acceptDrop);
  target->installEventFilter(this);
}

QString AttributeDropFilter::mimeType() {
  return QStringLiteral("application/x-tnwizard-attribute");
}

QByteArray AttributeDropFilter::payloadOf(const QMimeData* data) {
  if (data == nullptr || !data->hasFormat(mimeType())) return {};
  return data->data(mimeType());
}

bool AttributeDropFilter::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) {
    return QObject::eventFilter(watched, event);
  }
  auto* target = qobject_cast<QWidget*>(watched);
  auto* drop = static_cast<QDropEvent*>(event);
  const QByteArray payload = payloadOf(drop->mimeData());
  if (target == nullptr || payload.isEmpty()) {
    event->ignore();
    return true;
  }
  const bool acceptDrop = target->property(kAcceptsDropProperty).toBool();
  if (type == QEvent::Drop) {
    if (!acceptDrop) {
      event->ignore();
      return true;
    }
    drop->setDropAction(Qt::MoveAction);
    drop->accept();
    emit dropped(target, payload);
    return true;
  }
  emit dragOver(target, payload);
  if (acceptDrop) {
    drop->setDropAction(Qt::MoveAction);
    drop->accept();
  } else {
    // Entering must be accepted for the moves that show the attribute's information to follow.
    if (type == QEvent::DragEnter) {
      drop->accept();
    } else {
      drop->ignore();
    }
  }
  return true;
}

}  // namespace tnw::direct
