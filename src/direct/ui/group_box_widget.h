#pragma once

// Qt
#include <QFrame>

namespace tnw::direct {

class FlowLayout;

// One importance group's yellow box (picOrder, picO, picOrderGrp): holds the buttons of the
// group's attributes in rows, can be framed as the selected group and reports clicks.
class GroupBoxWidget : public QFrame {
  Q_OBJECT

 public:
  // A box of the control array arrayName, named arrayName_index; a
  // focusable box is clicked by Space or Enter as well.
  GroupBoxWidget(const QString& arrayName, int index, QWidget* parent = nullptr);
  // Lets the box take the focus (the ordering page's boxes can be chosen by keyboard).
  void setFocusable(bool focusable);

  // The control-array index of the box.
  int index() const { return m_index; }
  // Sets the group number the box stands for (its tag).
  void setGroupNumber(int group);
  // The group number the box stands for.
  int groupNumber() const { return m_group; }
  // Frames the box as the selected group (Drow_Rectangle), or removes the frame.
  void setSelected(bool selected);
  // Whether the box is framed as the selected group.
  bool isSelected() const { return m_selected; }
  // The shown widgets of the box's layout, in the order they are laid out.
  QList<QWidget*> shownButtons() const;
  // The layout the attribute buttons go into.
  FlowLayout* buttonLayout() const { return m_layout; }

  // An empty box stays as tall as a row of buttons, an easy drop target.
  QSize minimumSizeHint() const override;

 signals:
  // The box was clicked.
  void clicked();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int m_index = 0;
  int m_group = 0;
  bool m_selected = false;
  FlowLayout* m_layout = nullptr;
};

}  // namespace tnw::direct
