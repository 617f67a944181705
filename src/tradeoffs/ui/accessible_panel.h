#pragma once

// Qt
#include <QAccessibleValueInterface>
#include <QAccessibleWidget>
#include <QObject>

namespace tnw::tradeoffs {

class PcGraphWidget;
class PcPointWidget;

// The keyboard on the points A and B of the trade-off panel: the arrow keys move the focused
// point by a hundredth of the panel, with Shift (or Page Up and Page Down, up and down) by a
// tenth. A move goes the way a drag goes: the panel reports the point dropped at its new place.
class PanelKeyboardQt : public QObject {
  Q_OBJECT

 public:
  // One key press moves a point by this fraction of the panel; with Shift ten times as far.
  static constexpr double kStep = 0.01;

  // Makes both points of the panel focusable and operable by keyboard.
  explicit PanelKeyboardQt(PcGraphWidget* panel);

  // Moves a point to a panel position (fractions), as a drop there does.
  static void movePoint(PcGraphWidget* panel, int which, QPointF fraction);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  PcGraphWidget* m_panel;
};

// The panel framePCGraph for assistive tools: a chart whose two children are A and B.
class AccessiblePanel : public QAccessibleWidget {
 public:
  // The interface of the panel.
  explicit AccessiblePanel(PcGraphWidget* panel);

  // Name and description, and the two alternatives as the value.
  QString text(QAccessible::Text t) const override;
  // Exactly the points A and B.
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

 private:
  PcGraphWidget* panel() const;
};

// A point of the panel: a value object whose value is its place along the first attribute's
// axis, in percent of the panel, and whose text gives the alternative's two scores.
class AccessiblePoint : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  // The interface of point which (0 for A, 1 for B).
  AccessiblePoint(PcPointWidget* point, int which);

  // The value interface besides the widget's own.
  void* interface_cast(QAccessible::InterfaceType t) override;
  // "A" or "B", and the alternative's two scores as text.
  QString text(QAccessible::Text t) const override;

  // The place along the first attribute's axis, in percent of the panel.
  QVariant currentValue() const override;
  // Moves the point along the first attribute's axis to value percent of the panel.
  void setCurrentValue(const QVariant& value) override;
  // The panel's range, 0 to 100 percent, and the step of one key press.
  QVariant maximumValue() const override;
  QVariant minimumValue() const override;
  QVariant minimumStepSize() const override;

  // The alternative's scores as the page's score boxes show them: "Att1 3.5, Att2 4".
  static QString scoresText(const QWidget* anyControl, int which);

 private:
  PcGraphWidget* panel() const;
  int m_which;
};

// Registers the interfaces above with Qt's accessibility (once per process).
void installTradeOffAccessibleInterfaces();

}  // namespace tnw::tradeoffs
