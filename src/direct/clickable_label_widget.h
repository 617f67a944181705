#pragma once

// Qt
#include <QLabel>

namespace tnw {

// A label that reports clicks (lblAttName, lblOrderID): the system lets such labels be clicked.
class ClickableLabelWidget : public QLabel {
  Q_OBJECT

 public:
  // A label named objectName with the control-array index in its "index" property.
  ClickableLabelWidget(const QString& objectName, int index, QWidget* parent = nullptr);

  // The control-array index of the label.
  int index() const { return m_index; }

 signals:
  // The label was clicked with the left button.
  void clicked();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  int m_index = 0;
};

}  // namespace tnw
