#pragma once

// Qt
#include <QAccessibleValueInterface>
#include <QAccessibleWidget>
#include <QObject>

class QFrame;

namespace tnw::direct {

class ConeAreaWidget;
class StatusLightsWidget;

// The keyboard on the cone's handles: the arrow keys move the focused handle by one step of
// the ratio boxes' precision (0.01), Page Up and Page Down by ten steps. A move goes the way a
// drag goes: the area reports the handle dragged to the point of the new ratio, and released.
class ConeKeyboardQt : public QObject {
  Q_OBJECT

 public:
  // One step of the ratio boxes ("0.00").
  static constexpr double kStep = 0.01;

  // Makes both handles of the area focusable and operable by keyboard.
  explicit ConeKeyboardQt(ConeAreaWidget* area);

  // The ratio handle index stands for, (S - y) / x, rounded to the boxes' precision.
  static double ratioOf(const ConeAreaWidget* area, int index);
  // The largest ratio a handle can show: its point stays a handle's width from the left edge.
  static double maximumRatio(const ConeAreaWidget* area);
  // Moves handle index to the point of ratio r (kept between one step and the maximum), as a
  // drag to that point and a release do.
  static void moveToRatio(ConeAreaWidget* area, int index, double r);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  ConeAreaWidget* m_area;
};

// The cone area for assistive tools: a chart whose value is the interval it shows and whose
// two children are the handles.
class AccessibleConeArea : public QAccessibleWidget {
 public:
  // The interface of the area.
  explicit AccessibleConeArea(ConeAreaWidget* area);

  // The interval as text ("from 0.80 to 1.20"), and the name and description.
  QString text(QAccessible::Text t) const override;
  // Exactly the two handles (the focus rings laid over them are no controls).
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

 private:
  ConeAreaWidget* area() const;
};

// One handle of the cone: a slider whose value is the ratio it sets.
class AccessibleConeHandle : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  // The interface of handle index of its area.
  AccessibleConeHandle(QFrame* handle, int index);

  // The value interface besides the widget's own.
  void* interface_cast(QAccessible::InterfaceType t) override;
  // Name, description and the ratio as text.
  QString text(QAccessible::Text t) const override;

  // The ratio the handle sets.
  QVariant currentValue() const override;
  // Moves the handle to a ratio, as the arrow keys do.
  void setCurrentValue(const QVariant& value) override;
  // The ratios the handle can reach, and the step of one key press.
  QVariant maximumValue() const override;
  QVariant minimumValue() const override;
  QVariant minimumStepSize() const override;

 private:
  ConeAreaWidget* area() const;
  int m_index;
};

// The three status lamps for assistive tools: static text that names the lit lamp.
class AccessibleStatusLights : public QAccessibleWidget {
 public:
  // The interface of the lamps' frame.
  explicit AccessibleStatusLights(StatusLightsWidget* lights);

  // The lit lamp's caption as the value ("None" when no lamp is lit).
  QString text(QAccessible::Text t) const override;

 private:
  StatusLightsWidget* lights() const;
};

// Registers the interfaces above with Qt's accessibility (once per process).
void installDirectAccessibleInterfaces();

}  // namespace tnw::direct
