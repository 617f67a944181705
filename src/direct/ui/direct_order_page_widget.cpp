#include "direct/ui/direct_order_page_widget.h"

#include "common/ui/wrapped_label.h"
#include "direct/core/drag_payload.h"
#include "direct/core/ordering_page.h"
#include "direct/ui/attribute_button_widget.h"
#include "direct/ui/attribute_drop_filter.h"
#include "direct/ui/clickable_label_widget.h"
#include "direct/ui/control_rendering.h"
#include "direct/ui/direct_view_colours.h"
#include "direct/ui/flow_layout.h"
#include "direct/ui/group_box_widget.h"

// Qt
#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextEdit>

namespace tnw::direct {
namespace {

QScrollArea* makeScrollArea(const QString& name, const QString& barName, QWidget* inner,
                            QWidget* parent) {
  auto* area = new QScrollArea(parent);
  area->setObjectName(name);
  area->setWidgetResizable(true);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->verticalScrollBar()->setObjectName(barName);
  area->setWidget(inner);
  return area;
}

}  // namespace

DirectOrderPageWidget::DirectOrderPageWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picStep0"));
  m_dropFilter = new AttributeDropFilter(this);
  connect(m_dropFilter, &AttributeDropFilter::dropped, this, &DirectOrderPageWidget::onDropped);
  connect(m_dropFilter, &AttributeDropFilter::dragOver, this, &DirectOrderPageWidget::onDragOver);

  auto* instruction = new WrappedLabel(
      tr("Order relative importance of the attributes by dragging the attribute name buttons on "
         "the left to the yellow boxes on the right."),
      this);
  instruction->setObjectName(QStringLiteral("lblInstruction"));

  auto* lists = new QHBoxLayout;
  lists->addWidget(buildAttributeList(), 2);
  lists->addWidget(buildOrderPanel(), 3);

  auto* notice = new WrappedLabel(
      QStringLiteral("    Notice that: (1) The attributes in the 1st group are the most important, "
                     "the ones in the 2nd group are less important relative to the 1st group, "
                     "and so on. (2) The attributes with red labels are benefit-oriented, while "
                     "the ones with blue labels are cost-oriented."),
      this);
  notice->setObjectName(QStringLiteral("lblNotice3"));
  m_notice = notice;
  notice->setTextFormat(Qt::PlainText);
  notice->setAlignment(Qt::AlignLeft | Qt::AlignTop);

  auto* bottom = new QHBoxLayout;
  bottom->addWidget(buildInfoFrame(), 3);
  bottom->addWidget(notice, 2);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(instruction);
  layout->addLayout(lists, 1);
  layout->addLayout(bottom);
}

QWidget* DirectOrderPageWidget::buildAttributeList() {
  auto* box = new QGroupBox(tr("Attributes:"), this);
  box->setObjectName(QStringLiteral("fraAttributes"));
  m_attList = new QWidget;
  m_attList->setObjectName(QStringLiteral("picAttList"));
  m_attLayout = new QVBoxLayout(m_attList);
  m_attLayout->setContentsMargins(4, 4, 4, 4);
  m_attLayout->setSpacing(3);
  m_attLayout->addStretch(1);
  m_attScroll =
      makeScrollArea(QStringLiteral("picAttPanel"), QStringLiteral("vsrAtt"), m_attList, box);
  m_dropFilter->watch(m_attScroll->viewport(), false);
  m_dropFilter->watch(m_attList, false);
  auto* layout = new QVBoxLayout(box);
  layout->addWidget(m_attScroll);
  return box;
}

QWidget* DirectOrderPageWidget::buildOrderPanel() {
  auto* box = new QGroupBox(tr("Initial importance order:"), this);
  box->setObjectName(QStringLiteral("fraOrder"));
  m_orderPanel = new QWidget;
  m_orderPanel->setObjectName(QStringLiteral("picOrderPanel"));
  m_orderLayout = new QVBoxLayout(m_orderPanel);
  m_orderLayout->setContentsMargins(4, 4, 4, 4);
  m_orderLayout->setSpacing(6);
  m_orderLayout->addStretch(1);
  m_orderScroll =
      makeScrollArea(QStringLiteral("picOrderCon"), QStringLiteral("vsrOrder"), m_orderPanel, box);
  m_add = new QPushButton(tr("&Add"), box);
  m_add->setObjectName(QStringLiteral("cmdAdd"));
  m_add->setAutoDefault(false);
  m_add->setToolTip(tr("Add an empty group at the end"));
  m_insert = new QPushButton(tr("&Insert"), box);
  m_insert->setObjectName(QStringLiteral("cmdInsert"));
  m_insert->setAutoDefault(false);
  m_insert->setToolTip(tr("Insert an empty group before the selected group"));
  connect(m_add, &QPushButton::clicked, this, &DirectOrderPageWidget::addClicked);
  connect(m_insert, &QPushButton::clicked, this, &DirectOrderPageWidget::insertClicked);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(m_add);
  buttons->addWidget(m_insert);
  auto* layout = new QVBoxLayout(box);
  layout->addWidget(m_orderScroll, 1);
  layout->addLayout(buttons);
  return box;
}

QWidget* DirectOrderPageWidget::buildInfoFrame() {
  m_info = new QGroupBox(tr("Attribute 1's information"), this);
  m_info->setObjectName(QStringLiteral("frameAttInfo"));
  m_infoName = new QLabel(m_info);
  m_infoName->setObjectName(QStringLiteral("labAttName"));
  m_infoName->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_infoProperty = new QLabel(m_info);
  m_infoProperty->setObjectName(QStringLiteral("labAttProperty"));
  m_infoDefinition = new QTextEdit(m_info);
  m_infoDefinition->setObjectName(QStringLiteral("txtAttDefinition"));
  m_infoDefinition->setReadOnly(true);
  m_infoDefinition->setTabChangesFocus(true);
  m_infoDefinition->setFixedHeight(m_infoDefinition->fontMetrics().lineSpacing() * 3 + 12);
  auto* grid = new QGridLayout(m_info);
  grid->addWidget(new QLabel(tr("Name:"), m_info), 0, 0);
  grid->addWidget(m_infoName, 0, 1);
  grid->addWidget(new QLabel(tr("Property:"), m_info), 1, 0);
  grid->addWidget(m_infoProperty, 1, 1);
  grid->addWidget(m_infoDefinition, 2, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  return m_info;
}

void DirectOrderPageWidget::clearAttributeRows() {
  for (const AttributeRow& row : m_attRows) delete row.option->parentWidget();
  m_attRows.clear();
}

void DirectOrderPageWidget::setAttributes(const QVector<AttributeFace>& attributes) {
  clearAttributeRows();
  m_faces = attributes;
  auto* options = new QButtonGroup(m_attList);
  for (int j = 0; j < attributes.size(); ++j) {
    auto* rowWidget = new QWidget(m_attList);
    auto* row = new QHBoxLayout(rowWidget);
    row->setContentsMargins(0, 0, 0, 0);
    AttributeRow r;
    r.option = new QRadioButton(rowWidget);
    // The keyboard reaches an attribute's information through its button (see eventFilter).
    r.option->setFocusPolicy(Qt::NoFocus);
    r.option->setObjectName(QStringLiteral("optAttInfo_%1").arg(j));
    r.option->setAccessibleName(tr("Show the information of %1").arg(attributes[j].name));
    options->addButton(r.option, j);
    r.button = new AttributeButtonWidget(QStringLiteral("cmdAttA"), j, rowWidget);
    r.button->setText(attributes[j].name);
    r.button->setFaceColour(attributes[j].face);
    r.button->setTag(QString::fromStdString(encodeDragPayload({DragSource::AttributeList, j})));
    r.button->setDraggable(true);
    r.label = new ClickableLabelWidget(QStringLiteral("lblAttName"), j, rowWidget);
    r.label->setText(attributes[j].name);
    QPalette grey = r.label->palette();
    grey.setColor(QPalette::WindowText, grey.color(QPalette::Disabled, QPalette::WindowText));
    r.label->setPalette(grey);
    r.label->setElided(true);
    r.label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    r.label->setToolTip(tr("%1\nPlaced in the importance order").arg(attributes[j].name));
    r.label->hide();
    row->addWidget(r.option);
    row->addWidget(r.button, 1);
    row->addWidget(r.label, 1);
    m_dropFilter->watch(rowWidget, false);
    connect(r.option, &QRadioButton::clicked, this, [this, j] { emit attributeInfoRequested(j); });
    connect(r.label, &ClickableLabelWidget::clicked, this,
            [this, j] { emit attributeInfoRequested(j); });
    connect(r.button, &QPushButton::clicked, this, [this, j] { emit placeRequested(j); });
    r.button->installEventFilter(this);
    r.button->setToolTip(tr("%1: drag it to a yellow box, or press it to put it in the framed box")
                             .arg(attributes[j].name));
    m_attLayout->insertWidget(j, rowWidget);
    m_attRows.append(r);
  }
}

void DirectOrderPageWidget::setAttributeListed(int j, bool listed) {
  if (j < 0 || j >= m_attRows.size()) return;
  m_attRows[j].button->setVisible(listed);
  // A placed attribute stays in the list as its plain name, so that its information can still
  // be looked up.
  m_attRows[j].label->setVisible(!listed);
}

DirectOrderPageWidget::GroupRow& DirectOrderPageWidget::groupRow(int index) {
  while (m_groupRows.size() <= index) {
    const int i = static_cast<int>(m_groupRows.size());
    auto* rowWidget = new QWidget(m_orderPanel);
    auto* row = new QHBoxLayout(rowWidget);
    row->setContentsMargins(0, 0, 0, 0);
    GroupRow r;
    r.number = new ClickableLabelWidget(QStringLiteral("lblOrderID"), i, rowWidget);
    r.number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    r.number->setMinimumWidth(r.number->fontMetrics().horizontalAdvance(QStringLiteral("88")) + 6);
    r.box = new GroupBoxWidget(QStringLiteral("picOrder"), i, rowWidget);
    r.box->setFocusable(true);
    r.box->setAccessibleName(tr("Importance group"));
    row->addWidget(r.number, 0, Qt::AlignTop);
    row->addWidget(r.box, 1);
    m_dropFilter->watch(r.box);
    GroupBoxWidget* box = r.box;
    connect(r.box, &GroupBoxWidget::clicked, this,
            [this, box] { emit groupClicked(box->groupNumber()); });
    connect(r.number, &ClickableLabelWidget::clicked, this,
            [this, box] { emit groupClicked(box->groupNumber()); });
    m_orderLayout->insertWidget(i, rowWidget);
    m_groupRows.append(r);
  }
  return m_groupRows[index];
}

AttributeButtonWidget* DirectOrderPageWidget::placedButton(int placement) {
  while (m_placedButtons.size() <= placement) {
    const int k = static_cast<int>(m_placedButtons.size());
    auto* b = new AttributeButtonWidget(QStringLiteral("cmdAttB"), k, m_orderPanel);
    b->setDraggable(true);
    b->setToolTip(tr("Drag it to another box, or move it with the Up and Down keys"));
    b->installEventFilter(this);
    m_dropFilter->watch(b);
    connect(b, &QPushButton::clicked, this, [this, b] { emit placedClicked(b->attribute()); });
    m_placedButtons.append(b);
  }
  return m_placedButtons[placement];
}

void DirectOrderPageWidget::setGroups(const QVector<GroupView>& groups, int framedGroup) {
  for (int i = 0; i < groups.size(); ++i) {
    GroupRow& row = groupRow(i);
    row.box->setGroupNumber(groups[i].group);
    row.box->setSelected(groups[i].group == framedGroup);
    row.number->setText(QString::number(groups[i].group));
    row.box->parentWidget()->show();
    for (const auto& [placement, attribute] : groups[i].placed) {
      AttributeButtonWidget* b = placedButton(placement);
      b->setTag(
          QString::fromStdString(encodeDragPayload({DragSource::PlacedAttribute, attribute})));
      if (attribute >= 0 && attribute < m_faces.size()) {
        b->setText(m_faces[attribute].name);
        b->setToolTip(m_faces[attribute].name);
        b->setFaceColour(m_faces[attribute].face);
      }
      if (b->parentWidget() != row.box) {
        b->setParent(row.box);
      }
      row.box->buttonLayout()->removeWidget(b);
      row.box->buttonLayout()->addWidget(b);
      b->show();
    }
  }
  m_shownGroups = static_cast<int>(groups.size());
  for (int i = static_cast<int>(groups.size()); i < m_groupRows.size(); ++i) {
    m_groupRows[i].box->parentWidget()->hide();
  }
  for (int k = 0; k < m_placedButtons.size(); ++k) {
    bool used = false;
    for (const GroupView& g : groups) {
      for (const auto& p : g.placed) used = used || p.first == k;
    }
    if (!used) m_placedButtons[k]->hide();
  }
}

void DirectOrderPageWidget::showAttributeInfo(int j, const QString& title, const QString& name,
                                              const QString& property, const QString& definition) {
  m_info->setTitle(title);
  m_infoName->setText(name);
  m_infoProperty->setText(property);
  m_infoDefinition->setPlainText(definition);
  if (j >= 0 && j < m_attRows.size()) m_attRows[j].option->setChecked(true);
}

void DirectOrderPageWidget::onDropped(QWidget* target, const QByteArray& payload) {
  if (auto* box = qobject_cast<GroupBoxWidget*>(target)) {
    emit droppedOnGroup(box->groupNumber(), payload);
  } else if (auto* button = qobject_cast<AttributeButtonWidget*>(target)) {
    emit droppedOnPlaced(button->attribute(), payload);
  }
}

void DirectOrderPageWidget::onDragOver(QWidget* target, const QByteArray& payload) {
  if (qobject_cast<GroupBoxWidget*>(target) || qobject_cast<AttributeButtonWidget*>(target)) {
    return;
  }
  emit draggedOverList(payload);
}

void DirectOrderPageWidget::render(const OrderingPage& page) {
  const auto& buttons = page.attributeButtons();
  QVector<AttributeFace> faces;
  for (const auto& b : buttons) {
    faces.append({QString::fromStdString(b.caption), colourFromBgr(b.faceColor)});
  }
  bool same = faces.size() == m_faces.size();
  for (int j = 0; same && j < faces.size(); ++j) {
    same = faces[j].name == m_faces[j].name && faces[j].face == m_faces[j].face;
  }
  if (!same) setAttributes(faces);
  for (int j = 0; j < static_cast<int>(buttons.size()); ++j) {
    setAttributeListed(j, buttons[static_cast<std::size_t>(j)].visible);
  }
  const ImportanceOrder& order = page.order();
  const std::vector<int>& placements = order.placements();
  QVector<GroupView> groups;
  for (int k = 1; k <= order.GroupCount(); ++k) {
    GroupView view;
    view.group = k;
    for (const int att : order.attributesInGroup(k)) {
      const auto it = std::find(placements.begin(), placements.end(), att);
      if (it != placements.end())
        view.placed.append({static_cast<int>(it - placements.begin()), att});
    }
    groups.append(view);
  }
  setGroups(groups, order.framedGroup());
  const auto caption = [](const wizard::LabelState& state) {
    return QString::fromStdString(state.caption);
  };
  showAttributeInfo(page.selectedInfo(), caption(page.frameAttInfo()), caption(page.labAttName()),
                    caption(page.labAttProperty()), caption(page.txtAttDefinition()));
}

void DirectOrderPageWidget::renderControls(const OrderingPage& page) {
  renderButton(m_add, page.cmdAdd());
  renderButton(m_insert, page.cmdInsert());
  renderLabel(m_notice, page.lblNotice3());
  m_info->setTitle(QString::fromStdString(page.frameAttInfo().caption));
  renderLabel(m_infoName, page.labAttName());
  renderLabel(m_infoProperty, page.labAttProperty());
  const QString definition = QString::fromStdString(page.txtAttDefinition().caption);
  if (m_infoDefinition->toPlainText() != definition) m_infoDefinition->setPlainText(definition);
}

QList<QWidget*> DirectOrderPageWidget::tabChain() const {
  QList<QWidget*> chain;
  for (const AttributeRow& row : m_attRows) {
    if (!row.button->isHidden()) chain.append(row.button);
  }
  for (int i = 0; i < m_shownGroups && i < m_groupRows.size(); ++i) {
    chain.append(m_groupRows[i].box);
    chain.append(m_groupRows[i].box->shownButtons());
  }
  chain << m_add << m_insert << m_infoDefinition;
  return chain;
}

bool DirectOrderPageWidget::focusFirstListed() {
  for (const AttributeRow& row : m_attRows) {
    if (row.button->isVisibleTo(this)) {
      row.button->setFocus(Qt::OtherFocusReason);
      return true;
    }
  }
  return false;
}

bool DirectOrderPageWidget::eventFilter(QObject* watched, QEvent* event) {
  auto* button = qobject_cast<AttributeButtonWidget*>(watched);
  if (button == nullptr) return QWidget::eventFilter(watched, event);
  const bool placed = m_placedButtons.contains(button);
  if (event->type() == QEvent::FocusIn) {
    emit attributeInfoRequested(placed ? button->attribute() : button->index());
  } else if (placed && event->type() == QEvent::KeyPress) {
    // Up and Down move a placed attribute to the neighbouring group, as a drag there would.
    const int key = static_cast<QKeyEvent*>(event)->key();
    const auto* box = qobject_cast<GroupBoxWidget*>(button->parentWidget());
    if ((key == Qt::Key_Up || key == Qt::Key_Down) && box != nullptr) {
      const int target = box->groupNumber() + (key == Qt::Key_Up ? -1 : 1);
      if (target >= 1 && target <= m_shownGroups) {
        emit droppedOnGroup(target, button->tag().toUtf8());
        button->setFocus(Qt::OtherFocusReason);
      }
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace tnw::direct
