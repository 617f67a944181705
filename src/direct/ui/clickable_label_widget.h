#pragma once

// Qt
#include <QLabel>

namespace tnw::direct {

// A label that reports clicks (lblAttName, lblOrderID): the system lets such labels be clicked.
class ClickableLabelWidget : public QLabel {
  Q_OBJECT

 public:
  // A label of the control array arrayName, named arrayName_index.
  ClickableLabelWidget(const QString& arrayName, int index, QWidget* parent = nullptr);

  // The control-array index of the label.
  int index() const { return m_index; }
  // Whether a text wider than the label is shortened with an ellipsis (and the label asks for
  // no more width than a few letters), instead of widening the label.
  void setElided(bool elided);
  // The text as it is painted now: the whole text, or its start and an ellipsis when elided.
  QString shownText() const;

  QSize minimumSizeHint() const override;

 signals:
  // The label was clicked with the left button.
  void clicked();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int m_index = 0;
  bool m_elided = false;
};

}  // namespace tnw::direct
