#include "direct/direct_reference_page_widget.h"

#include "direct/attribute_button_widget.h"
#include "direct/indicator_widget.h"

// Qt
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace tnw {

DirectReferencePageWidget::DirectReferencePageWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picStep1"));
  auto* instruction = new QLabel(
      tr("Click the attribute that the other attributes are to be compared with."), this);
  instruction->setObjectName(QStringLiteral("lblRefInstruction"));
  instruction->setWordWrap(true);

  auto* frame = new QGroupBox(tr("Importance order:"), this);
  frame->setObjectName(QStringLiteral("picOrderFrame"));
  m_order = new FinalOrderWidget(
      {QStringLiteral("picOFrame"), QStringLiteral("picOP"), QStringLiteral("picO"),
       QStringLiteral("lblOID"), QStringLiteral("cmdAttButtons"), QStringLiteral("vsrO")},
      frame);
  auto* frameLayout = new QVBoxLayout(frame);
  frameLayout->addWidget(m_order);
  connect(m_order, &FinalOrderWidget::attributeClicked, this,
          &DirectReferencePageWidget::attributeClicked);

  auto* refCaption = new QLabel(tr("Reference attribute:"), this);
  m_refName = new QLabel(this);
  m_refName->setObjectName(QStringLiteral("lblRefAtt"));
  QFont bold = m_refName->font();
  bold.setBold(true);
  m_refName->setFont(bold);
  m_refName->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* refRow = new QHBoxLayout;
  refRow->addWidget(refCaption);
  refRow->addWidget(m_refName, 1);

  m_indicator = new IndicatorWidget(this);
  m_indicator->hide();

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(instruction);
  layout->addWidget(frame, 1);
  layout->addLayout(refRow);
}

void DirectReferencePageWidget::setAttributes(
    const QVector<FinalOrderWidget::AttributeFace>& attributes) {
  // The indicator lives on the chosen button; take it back before the buttons go.
  m_indicator->setParent(this);
  m_indicator->hide();
  m_reference = -1;
  m_order->setAttributes(attributes);
}

void DirectReferencePageWidget::setOrder(int groupCount, const QVector<int>& groupOf) {
  m_order->setOrder(groupCount, groupOf);
}

void DirectReferencePageWidget::setReference(int i, const QString& name) {
  if (AttributeButtonWidget* old = m_order->button(m_reference)) old->setMarked(false);
  m_reference = i;
  m_refName->setText(name);
  AttributeButtonWidget* chosen = m_order->button(i);
  if (chosen == nullptr) {
    m_indicator->setParent(this);
    m_indicator->hide();
    return;
  }
  chosen->setMarked(true);
  m_indicator->setParent(chosen);
  m_indicator->move(6, (chosen->sizeHint().height() - m_indicator->height()) / 2);
  m_indicator->show();
}

void DirectReferencePageWidget::setIndicatorColour(const QColor& colour) {
  m_indicator->setFillColour(colour);
}

}  // namespace tnw
