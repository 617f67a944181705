#pragma once

// Qt
#include <QByteArray>
#include <QColor>
#include <QString>
#include <QVector>
#include <QWidget>

class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QScrollArea;
class QTextEdit;
class QVBoxLayout;

namespace tnw::direct {

class AttributeButtonWidget;
class OrderingPage;
class AttributeDropFilter;
class ClickableLabelWidget;
class GroupBoxWidget;

// Step 0 of the direct method: the attribute list on the left, the importance groups on the
// right, the attribute information and the notice. It shows what it is told and reports the
// user's actions; the order itself is kept elsewhere.
class DirectOrderPageWidget : public QWidget {
  Q_OBJECT

 public:
  // How one attribute is shown.
  struct AttributeFace {
    QString name;
    QColor face;
  };
  // One group box: its group number and its placed attributes as (placement index, attribute).
  struct GroupView {
    int group = 0;
    QVector<QPair<int, int>> placed;
  };

  // An empty page.
  explicit DirectOrderPageWidget(QWidget* parent = nullptr);

  // Builds the attribute list (IniAttList): one row per attribute.
  void setAttributes(const QVector<AttributeFace>& attributes);
  // Shows attribute j's list button, or hides it once the attribute is placed.
  void setAttributeListed(int j, bool listed);
  // Shows the groups, top to bottom, with their placed buttons; framedGroup gets the frame.
  void setGroups(const QVector<GroupView>& groups, int framedGroup);
  // Shows attribute j's information and selects its option button.
  void showAttributeInfo(int j, const QString& title, const QString& name, const QString& property,
                         const QString& definition);
  // Shows step 0's page: attribute list, groups, placed buttons, information.
  void render(const OrderingPage& page);
  // Shows the page's buttons (Add, Insert), the notice and the information frame's texts.
  void renderControls(const OrderingPage& page);
  // The page's controls in the order Tab visits them: the listed attributes, each group box
  // with its placed attributes, Add, Insert and the definition.
  QList<QWidget*> tabChain() const;
  // Gives the focus to the first attribute button still listed, or returns false.
  bool focusFirstListed();

 signals:
  // An attribute button was dropped on the box of group (picOrder_DragDrop).
  void droppedOnGroup(int group, const QByteArray& payload);
  // An attribute button was dropped on the placed button of attribute (cmdAttB_DragDrop).
  void droppedOnPlaced(int attribute, const QByteArray& payload);
  // A drag passes over the attribute list (picAttPanel_DragOver).
  void draggedOverList(const QByteArray& payload);
  // A group box or its number label was clicked.
  void groupClicked(int group);
  // A placed button was clicked (cmdAttB_Click).
  void placedClicked(int attribute);
  // An attribute's name label or option was clicked, or its button took the focus.
  void attributeInfoRequested(int attribute);
  // An unplaced attribute's button was pressed (click, Space): it goes to the selected group,
  // as if it had been dropped on that group's box.
  void placeRequested(int attribute);
  // Add or Insert was pressed.
  void addClicked();
  void insertClicked();

 private:
  // One attribute row of the list.
  struct AttributeRow {
    QRadioButton* option = nullptr;
    AttributeButtonWidget* button = nullptr;
    ClickableLabelWidget* label = nullptr;
  };
  // One group row of the order panel.
  struct GroupRow {
    ClickableLabelWidget* number = nullptr;
    GroupBoxWidget* box = nullptr;
  };

  QWidget* buildAttributeList();
  QWidget* buildOrderPanel();
  QWidget* buildInfoFrame();
  void clearAttributeRows();
  GroupRow& groupRow(int index);
  AttributeButtonWidget* placedButton(int placement);
  void onDropped(QWidget* target, const QByteArray& payload);
  void onDragOver(QWidget* target, const QByteArray& payload);
  bool eventFilter(QObject* watched, QEvent* event) override;

  AttributeDropFilter* m_dropFilter = nullptr;
  QScrollArea* m_attScroll = nullptr;
  QWidget* m_attList = nullptr;
  QVBoxLayout* m_attLayout = nullptr;
  QScrollArea* m_orderScroll = nullptr;
  QWidget* m_orderPanel = nullptr;
  QVBoxLayout* m_orderLayout = nullptr;
  QPushButton* m_add = nullptr;
  QPushButton* m_insert = nullptr;
  QLabel* m_notice = nullptr;
  QGroupBox* m_info = nullptr;
  QLabel* m_infoName = nullptr;
  QLabel* m_infoProperty = nullptr;
  QTextEdit* m_infoDefinition = nullptr;
  QVector<AttributeRow> m_attRows;
  QVector<AttributeFace> m_faces;
  QVector<GroupRow> m_groupRows;
  QVector<AttributeButtonWidget*> m_placedButtons;
  int m_shownGroups = 0;
};

}  // namespace tnw::direct
