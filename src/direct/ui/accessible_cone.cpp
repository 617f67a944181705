#include "direct/ui/accessible_cone.h"

#include "direct/ui/cone_area_widget.h"
#include "direct/core/preference_cone.h"
#include "direct/ui/status_lights_widget.h"

// Qt
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>

// Std
#include <algorithm>
#include <cmath>

namespace tnw::direct {

namespace {

QString ratioText(double r) { return QString::number(r, 'f', 2); }

QAccessibleInterface* directFactory(const QString& key, QObject* object) {
  if (key == QLatin1String(ConeAreaWidget::staticMetaObject.className())) {
    return new AccessibleConeArea(static_cast<ConeAreaWidget*>(object));
  }
  if (key == QLatin1String(StatusLightsWidget::staticMetaObject.className())) {
    return new AccessibleStatusLights(static_cast<StatusLightsWidget*>(object));
  }
  // The handles picHandle_0 (lower) and picHandle_1 (upper).
  const QString name = object->objectName();
  if (key == QLatin1String("QFrame") && name.startsWith(QLatin1String("picHandle_")) &&
      qobject_cast<ConeAreaWidget*>(object->parent()) != nullptr) {
    return new AccessibleConeHandle(static_cast<QFrame*>(object),
                                    name.endsWith(QLatin1Char('1')) ? 1 : 0);
  }
  return nullptr;
}

}  // namespace

void installDirectAccessibleInterfaces() {
  static const bool installed = [] {
    QAccessible::installFactory(directFactory);
    return true;
  }();
  (void)installed;
}

ConeKeyboardQt::ConeKeyboardQt(ConeAreaWidget* area) : QObject(area), m_area(area) {
  for (int i = 0; i < 2; ++i) {
    area->handle(i)->setFocusPolicy(Qt::StrongFocus);
    area->handle(i)->installEventFilter(this);
  }
}

double ConeKeyboardQt::ratioOf(const ConeAreaWidget* area, int index) {
  const QPointF p = area->handlePosition(index);
  if (p.x() <= 0.0) return 0.0;
  const double r = (area->areaSide() - p.y()) / p.x();
  return std::round(r * 100.0) / 100.0;
}

double ConeKeyboardQt::maximumRatio(const ConeAreaWidget* area) {
  // The handle's width in area units: its point may come no closer to the left edge.
  const double handle = std::abs(area->toArea(QPointF(area->handle(0)->width(), 0)).x() -
                                 area->toArea(QPointF(0, 0)).x());
  const double reach = PreferenceCone::kReach * area->areaSide();
  if (handle <= 0.0) return reach;
  return std::floor(reach / handle * 100.0) / 100.0;
}

void ConeKeyboardQt::moveToRatio(ConeAreaWidget* area, int index, double r) {
  if (!std::isfinite(r)) return;
  r = std::clamp(r, kStep, std::max(kStep, maximumRatio(area)));
  const PreferenceCone cone(static_cast<float>(area->areaSide()), 1.0F);
  const HandlePoint p = cone.handleForRatio(r);
  emit area->handleDragged(index, QPointF(p.x, p.y));
  emit area->handleReleased(index);
}

bool ConeKeyboardQt::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  const int index = watched == m_area->handle(0) ? 0 : watched == m_area->handle(1) ? 1 : -1;
  if (index < 0) return false;
  double steps = 0.0;
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
      steps = 1.0;
      break;
    case Qt::Key_Down:
    case Qt::Key_Left:
      steps = -1.0;
      break;
    case Qt::Key_PageUp:
      steps = 10.0;
      break;
    case Qt::Key_PageDown:
      steps = -10.0;
      break;
    default:
      return false;
  }
  moveToRatio(m_area, index, ratioOf(m_area, index) + steps * kStep);
  return true;
}

AccessibleConeArea::AccessibleConeArea(ConeAreaWidget* area)
    : QAccessibleWidget(area, QAccessible::Chart) {}

ConeAreaWidget* AccessibleConeArea::area() const { return static_cast<ConeAreaWidget*>(widget()); }

QString AccessibleConeArea::text(QAccessible::Text t) const {
  switch (t) {
    case QAccessible::Name:
      return QStringLiteral("Preference cone");
    case QAccessible::Description:
      return QStringLiteral(
          "The interval of the weight ratio Wj/Wr as a cone. Its two handles set the ratios: "
          "arrow keys move a handle by 0.01, Page Up and Page Down by 0.10.");
    case QAccessible::Value:
      return QStringLiteral("from %1 to %2")
          .arg(ratioText(ConeKeyboardQt::ratioOf(area(), 0)),
               ratioText(ConeKeyboardQt::ratioOf(area(), 1)));
    default:
      return QAccessibleWidget::text(t);
  }
}

int AccessibleConeArea::childCount() const { return 2; }

QAccessibleInterface* AccessibleConeArea::child(int index) const {
  if (index < 0 || index > 1) return nullptr;
  return QAccessible::queryAccessibleInterface(area()->handle(index));
}

int AccessibleConeArea::indexOfChild(const QAccessibleInterface* child) const {
  if (child == nullptr) return -1;
  for (int i = 0; i < 2; ++i) {
    if (child->object() == area()->handle(i)) return i;
  }
  return -1;
}

AccessibleConeHandle::AccessibleConeHandle(QFrame* handle, int index)
    : QAccessibleWidget(handle, QAccessible::Slider), m_index(index) {}

ConeAreaWidget* AccessibleConeHandle::area() const {
  return static_cast<ConeAreaWidget*>(widget()->parentWidget());
}

void* AccessibleConeHandle::interface_cast(QAccessible::InterfaceType t) {
  if (t == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
  return QAccessibleWidget::interface_cast(t);
}

QString AccessibleConeHandle::text(QAccessible::Text t) const {
  switch (t) {
    case QAccessible::Name:
      return m_index == 0 ? QStringLiteral("First ratio handle")
                          : QStringLiteral("Second ratio handle");
    case QAccessible::Description:
      return QStringLiteral("One end of the weight-ratio interval; arrow keys change the ratio");
    case QAccessible::Value:
      return ratioText(ConeKeyboardQt::ratioOf(area(), m_index));
    default:
      return QAccessibleWidget::text(t);
  }
}

QVariant AccessibleConeHandle::currentValue() const {
  return ConeKeyboardQt::ratioOf(area(), m_index);
}

void AccessibleConeHandle::setCurrentValue(const QVariant& value) {
  bool ok = false;
  const double r = value.toDouble(&ok);
  if (ok) ConeKeyboardQt::moveToRatio(area(), m_index, r);
}

QVariant AccessibleConeHandle::maximumValue() const { return ConeKeyboardQt::maximumRatio(area()); }

QVariant AccessibleConeHandle::minimumValue() const { return ConeKeyboardQt::kStep; }

QVariant AccessibleConeHandle::minimumStepSize() const { return ConeKeyboardQt::kStep; }

AccessibleStatusLights::AccessibleStatusLights(StatusLightsWidget* lights)
    : QAccessibleWidget(lights, QAccessible::StaticText) {}

StatusLightsWidget* AccessibleStatusLights::lights() const {
  return static_cast<StatusLightsWidget*>(widget());
}

QString AccessibleStatusLights::text(QAccessible::Text t) const {
  switch (t) {
    case QAccessible::Name:
      return QStringLiteral("Judgment status: ") + text(QAccessible::Value);
    case QAccessible::Description:
      return QStringLiteral("Which of the lamps Consistent, Invalid and Inconsistent is lit");
    case QAccessible::Value:
      for (int i = 0; i < 3; ++i) {
        if (lights()->lampLit(i)) return lights()->lamp(i)->text();
      }
      return QStringLiteral("None");
    default:
      return QAccessibleWidget::text(t);
  }
}

}  // namespace tnw::direct
