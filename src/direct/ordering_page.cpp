#include "direct/ordering_page.h"

#include "direct/attribute_texts.h"

namespace tnw {

OrderingPage::OrderingPage(DirectAShared& shared, int numAtt) : m_shared(shared), m_order(numAtt) {}

void OrderingPage::IniAttList() {
  m_buttons.clear();
  const AttributeModel& model = m_shared.context.model;
  for (int i = 0; i < m_order.numAtt(); ++i) {
    m_buttons.push_back({AttributeTexts::name(model, i),
                         AttributeTexts::isCost(model, i) ? kCostFace : kBenefitFace, true});
  }
  if (m_order.numAtt() > 0) showAttributeInfo(0);
}

void OrderingPage::IniOrderList() {
  m_order.IniOrderList();
  refreshButtons();
}

void OrderingPage::DisplayPreviousOrder(const PreviousJudgments::Order& order) {
  m_order.restore(order.GroupCount, order.AttGroup);
  refreshButtons();
}

void OrderingPage::refreshButtons() {
  for (int j = 0; j < static_cast<int>(m_buttons.size()); ++j) {
    m_buttons[static_cast<std::size_t>(j)].visible = m_order.AttGroup(j) == 0;
  }
  m_shared.controls.setEnabled("cmdAdd", m_order.canAddGroup());
  m_shared.controls.setEnabled("cmdInsert", m_order.canAddGroup());
}

ImportanceOrder::DropResult OrderingPage::dropOnGroup(std::string_view tag, int group) {
  const auto payload = decodeDragPayload(tag);
  if (!payload) return ImportanceOrder::DropResult::Ignored;
  const auto result = m_order.dropOnGroup(*payload, group);
  refreshButtons();
  if (result == ImportanceOrder::DropResult::Placed && m_order.allPlaced()) {
    m_shared.controls.setEnabled("cmdNext", true);
  }
  return result;
}

ImportanceOrder::DropResult OrderingPage::dropOnPlacedAttribute(std::string_view tag,
                                                                int placedAtt) {
  const int group = m_order.AttGroup(placedAtt);
  if (group == 0) return ImportanceOrder::DropResult::Ignored;
  return dropOnGroup(tag, group);
}

bool OrderingPage::add() {
  const bool done = m_order.add();
  refreshButtons();
  return done;
}

bool OrderingPage::insert() {
  const bool done = m_order.insert();
  refreshButtons();
  return done;
}

void OrderingPage::clickGroup(int group) { m_order.selectGroup(group); }

void OrderingPage::clickPlacedAttribute(int j) { m_order.selectGroup(m_order.AttGroup(j)); }

void OrderingPage::showAttributeInfo(int j) {
  if (j < 0 || j >= m_order.numAtt()) return;
  const AttributeModel& model = m_shared.context.model;
  m_info = j;
  ControlRegistry& c = m_shared.controls;
  c.setCaption("frameAttInfo", "Attribute " + std::to_string(j + 1) + "'s information");
  c.setCaption("labAttName", AttributeTexts::name(model, j));
  c.setCaption("labAttProperty",
               AttributeTexts::isCost(model, j) ? "Cost-oriented" : "Benefit-oriented");
  c.setCaption("txtAttDefinition", AttributeTexts::definition(model, j));
}

void OrderingPage::dragOverAttributeList(std::string_view tag) {
  if (const auto payload = decodeDragPayload(tag)) showAttributeInfo(payload->attribute);
}

OrderingPage::AttributeButton OrderingPage::referenceButton(int j) const {
  if (j < 0 || j >= static_cast<int>(m_buttons.size())) return {{}, kBenefitFace, false};
  AttributeButton b = m_buttons[static_cast<std::size_t>(j)];
  b.visible = true;
  return b;
}

}  // namespace tnw
