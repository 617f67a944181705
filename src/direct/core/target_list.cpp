#include "direct/core/target_list.h"

#include "direct/core/attribute_texts.h"

namespace tnw::direct {

void TargetList::clear() {
  m_items.clear();
  m_names.clear();
  m_target = -1;
  m_selected = -1;
}

void TargetList::ListAtt(const AttributeModel& model, const WeightRatioJudgments& judgments,
                         int refAtt) {
  clear();
  m_benefitCount = 0;
  m_costCount = 0;
  for (int i = 0; i < judgments.count(); ++i) {
    Item item;
    const std::string name = AttributeTexts::name(model, i);
    item.text = name;
    const bool reference = i == refAtt;
    if (AttributeTexts::isCost(model, i)) {
      item.key = "Cost" + std::to_string(++m_costCount);
      item.image = reference ? "Crying2" : "Crying";
      item.selectedImage = reference ? "Crying2" : "Crying1";
    } else {
      item.key = "Benefit" + std::to_string(++m_benefitCount);
      item.image = reference ? "Smiling2" : "Smiling";
      item.selectedImage = reference ? "Smiling2" : "Smiling1";
    }
    if (!reference && judgments.judged(i)) item.text = kJudgedPrefix + name;
    m_items.push_back(item);
    m_names.push_back(name);
  }
  const int refGroup = judgments.group(refAtt);
  for (int i = 0; i < judgments.count(); ++i) {
    if (judgments.group(i) != refGroup) {
      m_target = i;
      m_selected = i;
      break;
    }
  }
}

TargetList::Choice TargetList::choose(int i, const WeightRatioJudgments& judgments, int refAtt) {
  if (i < 0 || i >= static_cast<int>(m_items.size())) return Choice::Ignored;
  if (i == refAtt) {
    // The selection goes back to the current target, which the target labels still name.
    m_selected = m_target;
    return Choice::ReferenceItself;
  }
  if (judgments.group(i) == judgments.group(refAtt)) {
    m_selected = m_target;
    return Choice::SameGroup;
  }
  m_target = i;
  m_selected = i;
  return Choice::Chosen;
}

void TargetList::markJudged(int i) {
  if (i < 0 || i >= static_cast<int>(m_items.size())) return;
  m_items[static_cast<std::size_t>(i)].text = kJudgedPrefix + m_names[static_cast<std::size_t>(i)];
}

}  // namespace tnw::direct
