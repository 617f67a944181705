#pragma once

// Qt
#include <QColor>
#include <QScrollArea>
#include <QString>
#include <QVector>

class QVBoxLayout;

namespace tnw::direct {

class AttributeButtonWidget;
class ClickableLabelWidget;
class GroupBoxWidget;

// The final importance order drawn as a scrollable column of numbered yellow boxes with one
// button per attribute in its group's box. Step 1 uses it for the reference choice (picOP,
// picO, lblOID, cmdAttButtons, vsrO) and step 2 on its order tab (picOrderList, picOrderGrp,
// lblOrderGrp, cmdAttBtn, vscrbOrderList); the names of the parts are given at construction.
class FinalOrderWidget : public QScrollArea {
  Q_OBJECT

 public:
  // The object names of the parts.
  struct Names {
    QString area, panel, box, label, button, scrollBar;
  };
  // One attribute as its button shows it.
  struct AttributeFace {
    QString name;
    QColor face;

    friend bool operator==(const AttributeFace&, const AttributeFace&) = default;
  };

  // An empty order whose parts carry the given names.
  FinalOrderWidget(const Names& names, QWidget* parent = nullptr);

  // Builds one button per attribute (button i stands for attribute i, tag "A" and i).
  void setAttributes(const QVector<AttributeFace>& attributes);
  // Lays the buttons out: groupOf[i] is attribute i's final group (1 to groupCount).
  void setOrder(int groupCount, const QVector<int>& groupOf);
  // The button of attribute i, or null.
  AttributeButtonWidget* button(int i) const;
  // The attribute buttons in the order they are shown, group by group.
  QList<QWidget*> tabChain() const;
  // Number of group boxes shown.
  int groupCount() const { return m_shownGroups; }

 signals:
  // The button of attribute i was clicked.
  void attributeClicked(int i);

 private:
  Names m_names;
  QWidget* m_panel = nullptr;
  QVBoxLayout* m_layout = nullptr;
  QVector<QWidget*> m_rows;
  QVector<GroupBoxWidget*> m_boxes;
  QVector<ClickableLabelWidget*> m_labels;
  QVector<AttributeButtonWidget*> m_buttons;
  int m_shownGroups = 0;
};

}  // namespace tnw::direct
