#pragma once

// Qt
#include <QString>
#include <QWidget>

// Std
#include <initializer_list>

namespace tnw {

// The accessible name and description of the controls with one objectName. A null name keeps
// the name Qt derives (a button's caption, a label's buddy).
struct AccessibleText {
  const char* objectName;   // the control's objectName (control arrays share one)
  const char* name;         // what a screen reader calls the control, or null
  const char* description;  // what the control is for
};

// Gives every descendant of root named in texts its accessible name and description. Controls
// made later (control arrays) are covered by calling it again; unchanged texts are not reset.
void applyAccessibleTexts(QWidget* root, std::initializer_list<AccessibleText> texts);

// Sets a widget's accessible name and description when they differ from the ones it has.
void setAccessibleText(QWidget* widget, const QString& name, const QString& description);

// Describes the wizard frame's buttons (Back, Next, Finish, Cancel, Help, Print) under root.
void describeWizardButtons(QWidget* root);

// Names every control under root that has a label for a buddy and no name of its own after
// that label ("Elicitation methods:" names the list "Elicitation methods"): Qt does so for
// some controls only, not for lists and tables.
void nameControlsByBuddies(QWidget* root);

// Gives the tabs of the tab bar named barName under root their descriptions, in order.
void describeTabs(QWidget* root, const char* barName, std::initializer_list<const char*> texts);

// Lets Tab leave every table under root (the arrow keys still move between the cells).
void makeTablesTabbable(QWidget* root);

// Tells whether widgets were added under a root since it was last asked, so that texts given to
// the controls by name are given again only when new controls may have come. It watches the
// ChildAdded events of every widget under the root; renaming a control is not seen.
class WidgetTreeWatch : public QObject {
 public:
  // Watches the widgets under root; the watch lives as root's child.
  explicit WidgetTreeWatch(QWidget* root);

  // Whether a widget was added under the root since the last call (true at the first), and from
  // now on watches the widgets added.
  bool changedSinceLastLook();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* m_root;
  bool m_changed = true;
};

// A focus indicator for a custom-painted control: a frame in the highlight colour drawn around
// the control while it has the keyboard focus. It is a sibling laid over the control, so the
// control's own painting is untouched, and it lets the mouse through.
class FocusRingQt : public QWidget {
  Q_OBJECT

 public:
  // Draws the ring around target whenever target has the focus.
  static FocusRingQt* attach(QWidget* target);
  // The control the ring is drawn around.
  QWidget* target() const { return m_target; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  explicit FocusRingQt(QWidget* target);
  void follow();

  QWidget* m_target;
};

}  // namespace tnw
