#include "tradeoffs/ui/accessible_panel.h"

#include "tradeoffs/ui/pc_graph_widget.h"
#include "tradeoffs/ui/pc_point_widget.h"
#include "tradeoffs/ui/tradeoffs_judgment_widget.h"

// Qt
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

// Std
#include <algorithm>

namespace tnw::tradeoffs {

namespace {

// 0 for the point A (shpPCA), 1 for B (shpPCB).
int whichOf(const QObject* point) { return point->objectName() == QLatin1String("shpPCB") ? 1 : 0; }

// The points of a panel, A first.
QList<PcPointWidget*> pointsOf(const PcGraphWidget* panel) {
  QList<PcPointWidget*> points(2, nullptr);
  for (PcPointWidget* p :
       panel->findChildren<PcPointWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    const int which = whichOf(p);
    if (which == 0 || which == 1) points[which] = p;
  }
  return points;
}

QAccessibleInterface* tradeOffFactory(const QString& key, QObject* object) {
  if (key == QLatin1String(PcGraphWidget::staticMetaObject.className())) {
    return new AccessiblePanel(static_cast<PcGraphWidget*>(object));
  }
  if (key == QLatin1String(PcPointWidget::staticMetaObject.className())) {
    auto* point = static_cast<PcPointWidget*>(object);
    return new AccessiblePoint(point, whichOf(point));
  }
  return nullptr;
}

// The trimmed text of the control named name in the window of w, or an empty text.
template <typename T>
QString textOf(const QWidget* w, const char* name) {
  const T* control = w->window()->findChild<T*>(QString::fromLatin1(name));
  return control != nullptr ? control->text().trimmed() : QString();
}

}  // namespace

void installTradeOffAccessibleInterfaces() {
  static const bool installed = [] {
    QAccessible::installFactory(tradeOffFactory);
    return true;
  }();
  (void)installed;
}

PanelKeyboardQt::PanelKeyboardQt(PcGraphWidget* panel) : QObject(panel), m_panel(panel) {
  const QList<PcPointWidget*> points = pointsOf(panel);
  for (PcPointWidget* p : points) {
    if (p == nullptr) continue;
    p->setFocusPolicy(Qt::StrongFocus);
    p->installEventFilter(this);
  }
}

void PanelKeyboardQt::movePoint(PcGraphWidget* panel, int which, QPointF fraction) {
  const auto point = static_cast<PcGraphWidget::Point>(which);
  panel->setPoint(point, fraction);
  emit panel->pointDragged(which, panel->point(point), true);
}

bool PanelKeyboardQt::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  auto* point = qobject_cast<PcPointWidget*>(watched);
  if (point == nullptr || point->parent() != m_panel) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  const double step = (key->modifiers() & Qt::ShiftModifier) != 0 ? 10 * kStep : kStep;
  QPointF move;
  switch (key->key()) {
    case Qt::Key_Left:
      move = {-step, 0};
      break;
    case Qt::Key_Right:
      move = {step, 0};
      break;
    case Qt::Key_Up:
      move = {0, step};
      break;
    case Qt::Key_Down:
      move = {0, -step};
      break;
    case Qt::Key_PageUp:
      move = {0, 10 * kStep};
      break;
    case Qt::Key_PageDown:
      move = {0, -10 * kStep};
      break;
    default:
      return false;
  }
  const int which = whichOf(point);
  movePoint(m_panel, which, m_panel->point(static_cast<PcGraphWidget::Point>(which)) + move);
  return true;
}

AccessiblePanel::AccessiblePanel(PcGraphWidget* panel)
    : QAccessibleWidget(panel, QAccessible::Chart) {}

PcGraphWidget* AccessiblePanel::panel() const { return static_cast<PcGraphWidget*>(widget()); }

QString AccessiblePanel::text(QAccessible::Text t) const {
  switch (t) {
    case QAccessible::Name:
      return QStringLiteral("Alternatives A and B");
    case QAccessible::Description:
      return QStringLiteral(
          "The alternatives A and B over the two attributes; move A or B with the arrow keys");
    case QAccessible::Value:
      return QStringLiteral("A: %1; B: %2")
          .arg(AccessiblePoint::scoresText(panel(), 0), AccessiblePoint::scoresText(panel(), 1));
    default:
      return QAccessibleWidget::text(t);
  }
}

int AccessiblePanel::childCount() const { return 2; }

QAccessibleInterface* AccessiblePanel::child(int index) const {
  if (index < 0 || index > 1) return nullptr;
  PcPointWidget* p = pointsOf(panel())[index];
  return p != nullptr ? QAccessible::queryAccessibleInterface(p) : nullptr;
}

int AccessiblePanel::indexOfChild(const QAccessibleInterface* child) const {
  if (child == nullptr) return -1;
  const QList<PcPointWidget*> points = pointsOf(panel());
  for (int i = 0; i < 2; ++i) {
    if (points[i] != nullptr && child->object() == points[i]) return i;
  }
  return -1;
}

AccessiblePoint::AccessiblePoint(PcPointWidget* point, int which)
    : QAccessibleWidget(point, QAccessible::Slider), m_which(which) {}

PcGraphWidget* AccessiblePoint::panel() const {
  return static_cast<PcGraphWidget*>(widget()->parentWidget());
}

void* AccessiblePoint::interface_cast(QAccessible::InterfaceType t) {
  if (t == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
  return QAccessibleWidget::interface_cast(t);
}

QString AccessiblePoint::scoresText(const QWidget* anyControl, int which) {
  const bool a = which == 0;
  const QString first = textOf<QLabel>(anyControl, "labScoreHead1");
  const QString second = textOf<QLabel>(anyControl, "labScoreHead2");
  const QString s1 =
      textOf<QLineEdit>(anyControl, a ? "txtTradeOffAFirstScore" : "txtTradeOffBFirstScore");
  const QString s2 =
      textOf<QLineEdit>(anyControl, a ? "txtTradeOffASecondScore" : "txtTradeOffBSecondScore");
  return QStringLiteral("%1 %2, %3 %4").arg(first, s1, second, s2);
}

QString AccessiblePoint::text(QAccessible::Text t) const {
  switch (t) {
    case QAccessible::Name:
      return m_which == 0 ? QStringLiteral("A") : QStringLiteral("B");
    case QAccessible::Description:
      return QStringLiteral("Alternative %1; the arrow keys move it, with Shift ten times as far")
          .arg(m_which == 0 ? QLatin1Char('A') : QLatin1Char('B'));
    case QAccessible::Value:
      return scoresText(widget(), m_which);
    default:
      return QAccessibleWidget::text(t);
  }
}

QVariant AccessiblePoint::currentValue() const {
  return panel()->point(static_cast<PcGraphWidget::Point>(m_which)).x() * 100.0;
}

void AccessiblePoint::setCurrentValue(const QVariant& value) {
  bool ok = false;
  const double percent = value.toDouble(&ok);
  if (!ok) return;
  QPointF at = panel()->point(static_cast<PcGraphWidget::Point>(m_which));
  at.setX(std::clamp(percent / 100.0, 0.0, 1.0));
  PanelKeyboardQt::movePoint(panel(), m_which, at);
}

QVariant AccessiblePoint::maximumValue() const { return 100.0; }

QVariant AccessiblePoint::minimumValue() const { return 0.0; }

QVariant AccessiblePoint::minimumStepSize() const { return PanelKeyboardQt::kStep * 100.0; }

}  // namespace tnw::tradeoffs
