#include "direct/core/ordering_page.h"

#include "direct/core/attribute_texts.h"
#include "direct/core/weight_ratio_judgments.h"
#include "model/model_check.h"

namespace tnw::direct {

OrderingPage::OrderingPage(DirectAShared& shared, int numAtt) : m_shared(shared), m_order(numAtt) {}

void OrderingPage::initializePage() {
  m_shared.buttons.cmdNext.enabled = false;
  m_shared.buttons.cmdFinish.enabled = false;
  m_shared.usable = m_order.numAtt() > 0;
  IniAttList();
  IniOrderList();
  if (!m_shared.usable) {
    m_cmdAdd.enabled = false;
    m_cmdInsert.enabled = false;
    m_shared.warn(attributeCountProblem(m_shared.context.model).value_or(""));
  } else if (PreviousJudgments::hasPreviousResult(m_shared.context.model)) {
    resumeEarlierOrder();
  }
  clickGroup(1);
}

void OrderingPage::resumeEarlierOrder() {
  const AttributeModel& model = m_shared.context.model;
  WeightRatioJudgments judgments(model, m_shared.result);
  PreviousJudgments::Order order;
  const auto outcome =
      PreviousJudgments::GetPreviousOrder(model, m_shared.result, judgments, order);
  m_shared.resume = outcome == PreviousJudgments::Outcome::Resumed;
  if (m_shared.resume) {
    DisplayPreviousOrder(order);
    m_shared.buttons.cmdNext.enabled = true;
  } else {
    m_shared.warn(PreviousJudgments::message(outcome));
  }
}

void OrderingPage::revisitPage() { m_shared.buttons.cmdNext.enabled = true; }

void OrderingPage::showButtons(bool visible) {
  m_cmdAdd.visible = visible;
  m_cmdInsert.visible = visible;
}

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
  m_cmdAdd.enabled = m_order.canAddGroup();
  m_cmdInsert.enabled = m_order.canAddGroup();
}

ImportanceOrder::DropResult OrderingPage::dropOnGroup(std::string_view tag, int group) {
  const auto payload = decodeDragPayload(tag);
  if (!payload) return ImportanceOrder::DropResult::Ignored;
  const auto result = m_order.dropOnGroup(*payload, group);
  refreshButtons();
  if (result == ImportanceOrder::DropResult::Placed && m_order.allPlaced()) {
    m_shared.buttons.cmdNext.enabled = true;
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
  m_frameAttInfo.caption = "Attribute " + std::to_string(j + 1) + "'s information";
  m_labAttName.caption = AttributeTexts::name(model, j);
  m_labAttProperty.caption =
      AttributeTexts::isCost(model, j) ? "Cost-oriented" : "Benefit-oriented";
  m_txtAttDefinition.caption = AttributeTexts::definition(model, j);
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

}  // namespace tnw::direct
