#pragma once

// Qt
#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;

namespace tnw {
class WidgetTreeWatch;
}  // namespace tnw

namespace tnw::tradeoffs {

class TradeOffsAPresenter;

// What the trade-off dialog offers assistive tools and the keyboard beyond its widgets: names
// and descriptions of its controls (a score box says which alternative and attribute it holds),
// the points A and B as value objects moved by the arrow keys, the chart as a table of its
// values, Up and Down in a score box stepping the score as its toolbar does, focusable step and
// chart buttons with shortcuts, focus rings on the custom-painted controls, and tables that Tab
// leaves.
class TradeOffsAccessibilityQt : public QObject {
  Q_OBJECT

 public:
  // Sets up the dialog's controls; the object lives as the dialog's child.
  TradeOffsAccessibilityQt(QWidget* dialog, const TradeOffsAPresenter& presenter);

  // Brings the texts up to date with what the dialog shows now (the selected attributes).
  // Called after each render: the controls are described again only when controls were added
  // since, and the score boxes, whose names follow the attributes, only when those changed.
  void refresh();

 private:
  void setUpStepButtons();
  void setUpChartButtons();
  void describeControls();
  void nameScoreBoxes();

  QWidget* m_dialog;
  // Says when controls were added under the dialog.
  WidgetTreeWatch* m_widgets = nullptr;
  // The score boxes (as kScoreBoxes) and the heads of their attributes' columns.
  QPointer<QLineEdit> m_scoreBoxes[4];
  QPointer<QLabel> m_scoreHeads[2];
  // The attributes the score boxes were last named for.
  QString m_namedFor[2];
  bool m_named = false;
};

}  // namespace tnw::tradeoffs
