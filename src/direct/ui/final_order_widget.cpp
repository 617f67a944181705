#include "direct/ui/final_order_widget.h"

#include "direct/ui/attribute_button_widget.h"
#include "direct/ui/clickable_label_widget.h"
#include "direct/core/drag_payload.h"
#include "direct/ui/flow_layout.h"
#include "direct/ui/group_box_widget.h"

// Qt
#include <QHBoxLayout>
#include <QScrollBar>

namespace tnw::direct {

FinalOrderWidget::FinalOrderWidget(const Names& names, QWidget* parent)
    : QScrollArea(parent), m_names(names) {
  setObjectName(names.area);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  verticalScrollBar()->setObjectName(names.scrollBar);
  m_panel = new QWidget;
  m_panel->setObjectName(names.panel);
  m_layout = new QVBoxLayout(m_panel);
  m_layout->setContentsMargins(4, 4, 4, 4);
  m_layout->setSpacing(6);
  m_layout->addStretch(1);
  setWidget(m_panel);
}

void FinalOrderWidget::setAttributes(const QVector<AttributeFace>& attributes) {
  qDeleteAll(m_buttons);
  m_buttons.clear();
  for (int i = 0; i < attributes.size(); ++i) {
    auto* b = new AttributeButtonWidget(m_names.button, i, m_panel);
    b->setText(attributes[i].name);
    b->setToolTip(attributes[i].name);
    b->setFaceColour(attributes[i].face);
    b->setTag(QString::fromStdString(encodeDragPayload({DragSource::AttributeList, i})));
    b->hide();
    connect(b, &QPushButton::clicked, this, [this, i] { emit attributeClicked(i); });
    m_buttons.append(b);
  }
}

void FinalOrderWidget::setOrder(int groupCount, const QVector<int>& groupOf) {
  while (m_rows.size() < groupCount) {
    const int k = static_cast<int>(m_rows.size());
    auto* row = new QWidget(m_panel);
    auto* h = new QHBoxLayout(row);
    h->setContentsMargins(0, 0, 0, 0);
    auto* label = new ClickableLabelWidget(m_names.label, k, row);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("88")) + 6);
    label->setText(QString::number(k + 1));
    auto* box = new GroupBoxWidget(m_names.box, k, row);
    box->setGroupNumber(k + 1);
    h->addWidget(label, 0, Qt::AlignTop);
    h->addWidget(box, 1);
    m_layout->insertWidget(k, row);
    m_rows.append(row);
    m_boxes.append(box);
    m_labels.append(label);
  }
  for (int k = 0; k < m_rows.size(); ++k) m_rows[k]->setVisible(k < groupCount);
  for (int i = 0; i < m_buttons.size(); ++i) {
    AttributeButtonWidget* b = m_buttons[i];
    const int g = i < groupOf.size() ? groupOf[i] : 0;
    if (g < 1 || g > groupCount) {
      b->hide();
      continue;
    }
    GroupBoxWidget* box = m_boxes[g - 1];
    if (b->parentWidget() != box) b->setParent(box);
    box->buttonLayout()->removeWidget(b);
    box->buttonLayout()->addWidget(b);
    b->show();
  }
  m_shownGroups = groupCount;
}

AttributeButtonWidget* FinalOrderWidget::button(int i) const {
  return (i >= 0 && i < m_buttons.size()) ? m_buttons[i] : nullptr;
}

QList<QWidget*> FinalOrderWidget::tabChain() const {
  QList<QWidget*> chain;
  for (int k = 0; k < m_shownGroups && k < m_boxes.size(); ++k) {
    chain.append(m_boxes[k]->shownButtons());
  }
  return chain;
}

}  // namespace tnw::direct
