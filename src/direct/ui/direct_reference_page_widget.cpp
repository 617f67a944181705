#include "direct/ui/direct_reference_page_widget.h"

#include "common/ui/kept_look_widgets.h"
#include "common/ui/wrapped_label.h"
#include "direct/core/direct_result.h"
#include "direct/core/ordering_page.h"
#include "direct/core/reference_page.h"
#include "direct/core/status_lamps.h"
#include "direct/ui/attribute_button_widget.h"
#include "direct/ui/direct_view_colours.h"
#include "direct/ui/indicator_widget.h"

// Qt
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace tnw::direct {

DirectReferencePageWidget::DirectReferencePageWidget(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picStep1"));
  auto* instruction = new WrappedLabel(
      tr("Click the attribute that the other attributes are to be compared with."), this);
  instruction->setObjectName(QStringLiteral("lblRefInstruction"));

  auto* frame = new KeptGroupBox(tr("Importance order:"), this);
  frame->setObjectName(QStringLiteral("picOrderFrame"));
  m_order = new FinalOrderWidget(
      {QStringLiteral("picOFrame"), QStringLiteral("picOP"), QStringLiteral("picO"),
       QStringLiteral("lblOID"), QStringLiteral("cmdAttButtons"), QStringLiteral("vsrO")},
      frame);
  auto* frameLayout = new QVBoxLayout(frame);
  frameLayout->addWidget(m_order);
  connect(m_order, &FinalOrderWidget::attributeClicked, this,
          &DirectReferencePageWidget::attributeClicked);

  m_indicator = new IndicatorWidget(this);
  m_indicator->hide();

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(instruction);
  layout->addWidget(frame, 1);
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

void DirectReferencePageWidget::setReference(int i) {
  if (AttributeButtonWidget* old = m_order->button(m_reference)) old->setMarked(false);
  m_reference = i;
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

void DirectReferencePageWidget::render(const ReferencePage& page, const OrderingPage& ordering,
                                       const StatusLamps& lamps, const DirectResult& result) {
  const int n = static_cast<int>(ordering.attributeButtons().size());
  QVector<FinalOrderWidget::AttributeFace> faces;
  for (int i = 0; i < n; ++i) {
    const auto b = ordering.referenceButton(i);
    faces.append({QString::fromStdString(b.caption), colourFromBgr(b.faceColor)});
  }
  const bool rebuilt = faces != m_faces;
  if (rebuilt) {
    m_faces = faces;
    setAttributes(faces);
  }
  QVector<int> groupOf(n, 0);
  for (int k = 1; k <= result.FinalGroupCount; ++k) {
    for (const int i : page.finalGroup(k)) {
      if (i >= 0 && i < n) groupOf[i] = k;
    }
  }
  if (rebuilt || groupOf != m_groupOf || result.FinalGroupCount != m_order->groupCount()) {
    m_groupOf = groupOf;
    setOrder(result.FinalGroupCount, groupOf);
  }
  const int ref = page.picIndicator().visible ? page.indicatorAttribute() : -1;
  if (ref != m_reference) setReference(ref);
  setIndicatorColour(colourFromBgr(lamps.indicatorColor()));
}

QWidget* DirectReferencePageWidget::firstButton() const {
  QWidget* first = nullptr;
  int best = 0;
  for (int i = 0; i < m_groupOf.size(); ++i) {
    if (m_groupOf[i] >= 1 && (first == nullptr || m_groupOf[i] < best)) {
      first = m_order->button(i);
      best = m_groupOf[i];
    }
  }
  return first;
}

}  // namespace tnw::direct
