#include "direct/core/importance_order.h"

#include "model/attribute_model.h"

// Std
#include <algorithm>

namespace tnw::direct {

ImportanceOrder::ImportanceOrder(int numAtt)
    : m_numAtt(std::clamp(numAtt, 0, kMaxAttributes)),
      m_attGroup(static_cast<std::size_t>(m_numAtt), 0),
      m_arrival(static_cast<std::size_t>(m_numAtt), 0) {
  IniOrderList();
}

void ImportanceOrder::IniOrderList() {
  // Two boxes are shown even for a single attribute, so the sizes always hold two groups.
  m_groupSize.assign(static_cast<std::size_t>(std::max(m_numAtt, 2) + 1), 0);
  std::fill(m_attGroup.begin(), m_attGroup.end(), std::int16_t{0});
  m_placements.clear();
  m_groupCount = 2;
  m_placedCount = 0;
  m_selectedGroup = 1;
  m_framedGroup = 1;
}

void ImportanceOrder::ensureCapacity() {
  if (m_groupSize.size() < static_cast<std::size_t>(m_groupCount + 1)) {
    m_groupSize.resize(static_cast<std::size_t>(m_groupCount + 1), 0);
  }
}

int ImportanceOrder::GroupSize(int k) const {
  return validGroup(k) ? m_groupSize[static_cast<std::size_t>(k)] : 0;
}

int ImportanceOrder::AttGroup(int j) const {
  return validAttribute(j) ? m_attGroup[static_cast<std::size_t>(j)] : 0;
}

ImportanceOrder::DropResult ImportanceOrder::dropOnGroup(const DragPayload& payload, int group) {
  if (!validGroup(group) || !validAttribute(payload.attribute)) return DropResult::Ignored;
  if (payload.source == DragSource::AttributeList) return place(payload.attribute, group);
  return move(payload.attribute, group);
}

ImportanceOrder::DropResult ImportanceOrder::dropOnPlacedAttribute(const DragPayload& payload,
                                                                   int placedAtt) {
  const int group = AttGroup(placedAtt);
  if (group == 0) return DropResult::Ignored;
  return dropOnGroup(payload, group);
}

ImportanceOrder::DropResult ImportanceOrder::place(int j, int target) {
  const auto uj = static_cast<std::size_t>(j);
  // The list button of a placed attribute is hidden; a late "A" drop of it must not count twice.
  if (m_attGroup[uj] != 0) return DropResult::Ignored;
  m_framedGroup = target;
  m_selectedGroup = target;
  ++m_placedCount;
  ++m_groupSize[static_cast<std::size_t>(target)];
  m_attGroup[uj] = static_cast<std::int16_t>(target);
  m_arrival[uj] = ++m_stamp;
  m_placements.push_back(j);
  return DropResult::Placed;
}

ImportanceOrder::DropResult ImportanceOrder::move(int j, int target) {
  const auto uj = static_cast<std::size_t>(j);
  const int source = m_attGroup[uj];
  if (source == 0) return DropResult::Ignored;
  if (source == target) return DropResult::Unchanged;
  --m_groupSize[static_cast<std::size_t>(source)];
  m_attGroup[uj] = static_cast<std::int16_t>(target);
  ++m_groupSize[static_cast<std::size_t>(target)];
  m_arrival[uj] = ++m_stamp;
  m_framedGroup = target;
  return DropResult::Moved;
}

bool ImportanceOrder::add() {
  if (!canAddGroup()) return false;
  ++m_groupCount;
  ensureCapacity();
  m_groupSize[static_cast<std::size_t>(m_groupCount)] = 0;
  return true;
}

bool ImportanceOrder::insert() {
  if (!canAddGroup()) return false;
  const int p = std::clamp(m_selectedGroup, 1, m_groupCount + 1);
  ++m_groupCount;
  ensureCapacity();
  for (int k = m_groupCount; k > p; --k) {
    m_groupSize[static_cast<std::size_t>(k)] = m_groupSize[static_cast<std::size_t>(k - 1)];
  }
  m_groupSize[static_cast<std::size_t>(p)] = 0;
  for (auto& g : m_attGroup) {
    if (g >= p) ++g;
  }
  // The frame stays on the box position P, which now holds the new empty group.
  return true;
}

bool ImportanceOrder::selectGroup(int group) {
  if (!validGroup(group)) return false;
  m_selectedGroup = group;
  m_framedGroup = group;
  return true;
}

void ImportanceOrder::restore(int groupCount, const std::vector<std::int16_t>& attGroup) {
  IniOrderList();
  m_groupCount = std::clamp(groupCount, 0, m_numAtt);
  ensureCapacity();
  for (int j = 0; j < m_numAtt && static_cast<std::size_t>(j) < attGroup.size(); ++j) {
    const int g = attGroup[static_cast<std::size_t>(j)];
    if (validGroup(g)) place(j, g);
  }
  m_selectedGroup = 1;
  m_framedGroup = 1;
}

std::vector<int> ImportanceOrder::attributesInGroup(int k) const {
  std::vector<int> atts;
  for (int j = 0; j < m_numAtt; ++j) {
    if (m_attGroup[static_cast<std::size_t>(j)] == k && k != 0) atts.push_back(j);
  }
  std::stable_sort(atts.begin(), atts.end(), [this](int a, int b) {
    return m_arrival[static_cast<std::size_t>(a)] < m_arrival[static_cast<std::size_t>(b)];
  });
  return atts;
}

FinalOrder ImportanceOrder::GetFinalOrder() const {
  std::vector<std::int16_t> size(m_groupSize);
  std::vector<std::int16_t> group(m_attGroup);
  int empty = 0;
  for (int k = 1; k <= m_groupCount; ++k) {
    if (size[static_cast<std::size_t>(k)] == 0) ++empty;
  }
  // One pass per empty group: each pass removes the first empty group it meets and shifts the
  // rest up, so adjacent empty groups are all removed.
  for (int pass = 0; pass < empty; ++pass) {
    for (int k = 1; k <= m_groupCount; ++k) {
      if (size[static_cast<std::size_t>(k)] != 0) continue;
      for (int m = k; m < m_groupCount; ++m) {
        size[static_cast<std::size_t>(m)] = size[static_cast<std::size_t>(m + 1)];
      }
      size[static_cast<std::size_t>(m_groupCount)] = 0;
      for (auto& g : group) {
        if (g > k) --g;
      }
      break;
    }
  }
  FinalOrder order;
  order.FinalGroupCount = static_cast<std::int16_t>(m_groupCount - empty);
  order.FinalGroupSize.assign(static_cast<std::size_t>(m_numAtt + 1), 0);
  for (int k = 1; k <= order.FinalGroupCount && k <= m_numAtt; ++k) {
    order.FinalGroupSize[static_cast<std::size_t>(k)] = size[static_cast<std::size_t>(k)];
  }
  order.FinalAttGroup = group;
  return order;
}

}  // namespace tnw::direct
