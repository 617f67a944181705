#pragma once

// Qt
#include <QComboBox>
#include <QObject>
#include <QPointer>

class QWidget;

namespace tnw {
class WidgetTreeWatch;
}  // namespace tnw

namespace tnw::direct {

// What the direct-method dialog offers assistive tools and the keyboard beyond its widgets:
// names and descriptions of its controls, the cone's handles as sliders moved by the arrow
// keys, the status lamps as text, the judged targets described as "judged", focus rings on the
// custom-painted controls, and tables that Tab leaves.
class DirectAccessibilityQt : public QObject {
  Q_OBJECT

 public:
  // Sets up the dialog's controls; the object lives as the dialog's child.
  explicit DirectAccessibilityQt(QWidget* dialog);

  // Brings the texts up to date with what the dialog shows now (controls made since, the
  // target list's judged marks). Called after each render; the controls are described again
  // only when controls were added since.
  void refresh();

 private:
  void describeControls();
  void describeTargets();

  QWidget* m_dialog;
  // Says when controls were added under the dialog.
  WidgetTreeWatch* m_widgets = nullptr;
  // The target list imgcmbTargetAtt, once found.
  QPointer<QComboBox> m_targets;
};

}  // namespace tnw::direct
