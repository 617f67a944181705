#include "direct/core/reference_page.h"

#include "direct/core/attribute_texts.h"

// Std
#include <cstddef>
#include <cstdint>

namespace tnw::direct {

ReferencePage::ReferencePage(DirectAShared& shared, const OrderingPage& ordering,
                             StatusLamps& lamps)
    : m_shared(shared), m_ordering(ordering), m_lamps(lamps) {}

void ReferencePage::initializePage() {
  const FinalOrder order = m_ordering.order().GetFinalOrder();
  DirectResult& result = m_shared.result;
  result.FinalGroupCount = order.FinalGroupCount;
  result.FinalGroupSize = order.FinalGroupSize;
  result.FinalAttGroup = order.FinalAttGroup;
  if (!m_shared.resume) {
    m_shared.lblRefAtt.caption.clear();
    m_shared.buttons.cmdNext.enabled = false;
  } else {
    const int ref = result.RefAtt;
    if (ref >= 0 && ref < m_ordering.order().numAtt()) chooseReference(ref);
    m_shared.buttons.cmdNext.enabled = true;
  }
  m_lamps.setTimerInterval(StatusLamps::kTimerSlow);
}

void ReferencePage::cleanupPage() {
  m_indicator = -1;
  m_picIndicator.visible = false;
  m_lamps.setTimerInterval(StatusLamps::kTimerStopped);
  m_shared.lblRefAtt.caption.clear();
}

void ReferencePage::chooseReference(int i) {
  if (i < 0 || i >= m_ordering.order().numAtt()) return;
  m_shared.lblRefAtt.caption = AttributeTexts::name(m_shared.context.model, i);
  m_shared.result.RefAtt = static_cast<std::int16_t>(i);
  m_indicator = i;
  m_picIndicator.visible = true;
  m_lamps.setIndicatorColor(StatusLamps::kRed);
  m_shared.buttons.cmdNext.enabled = true;
}

std::vector<int> ReferencePage::finalGroup(int k) const {
  std::vector<int> atts;
  const auto& groups = m_shared.result.FinalAttGroup;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    if (groups[i] == k) atts.push_back(static_cast<int>(i));
  }
  return atts;
}

}  // namespace tnw::direct
