#pragma once

#include "direct/core/drag_payload.h"
#include "direct/core/final_order.h"

// Std
#include <cstdint>
#include <vector>

namespace tnw::direct {

// The ordering step's model: importance groups being filled by dragging attributes into them.
// Groups are numbered from 1 (most important); empty groups are allowed until GetFinalOrder
// compacts them away.
class ImportanceOrder {
 public:
  // What a drop did.
  enum class DropResult {
    Ignored,   // not an attribute payload, an unknown attribute or group, or a stale "A"
    Placed,    // an unplaced attribute was put in the group
    Moved,     // a placed attribute moved to another group
    Unchanged  // a placed attribute was dropped on its own group
  };

  // An order for numAtt attributes (clamped to 0..31), set up as on load: IniOrderList.
  explicit ImportanceOrder(int numAtt);

  // Shows the first two empty groups: GroupCount = 2, nothing placed, SelectedGroup = 1.
  void IniOrderList();

  // Drop on the box of group `group` (picOrder_DragDrop): place or move the attribute.
  DropResult dropOnGroup(const DragPayload& payload, int group);
  // Drop on the placed button of attribute `placedAtt` (cmdAttB_DragDrop): as a drop on the box
  // that holds it.
  DropResult dropOnPlacedAttribute(const DragPayload& payload, int placedAtt);
  // Appends an empty group (cmdAdd_Click); false and no change when Add is disabled.
  bool add();
  // Inserts an empty group at SelectedGroup (cmdInsert_Click); false when Insert is disabled.
  bool insert();
  // Click on a group box, its number label or a placed button in it: SelectedGroup = group.
  bool selectGroup(int group);
  // Rebuilds the order from an earlier result (DisplayPreviousOrder): as if every attribute j
  // with attGroup[j] in 1..groupCount had been placed into that group.
  void restore(int groupCount, const std::vector<std::int16_t>& attGroup);

  // Compacts the groups (GetFinalOrder): empty groups vanish, the rest keep their order.
  FinalOrder GetFinalOrder() const;

  // Number of attributes ordered.
  int numAtt() const { return m_numAtt; }
  // Number of groups shown.
  int GroupCount() const { return m_groupCount; }
  // Number of attributes in group k (0 outside 1..GroupCount).
  int GroupSize(int k) const;
  // Group of attribute j; 0 when not placed or out of range.
  int AttGroup(int j) const;
  // Number of attributes placed so far.
  int PlacedCount() const { return m_placedCount; }
  // The group chosen last; the insertion point of Insert.
  int SelectedGroup() const { return m_selectedGroup; }
  // The group whose box carries the selection frame (Drow_Rectangle).
  int framedGroup() const { return m_framedGroup; }
  // Whether every attribute has been placed (Next may be enabled).
  bool allPlaced() const { return m_placedCount >= m_numAtt; }
  // Whether Add and Insert are enabled: GroupCount below NumAtt.
  bool canAddGroup() const { return m_groupCount < m_numAtt; }
  // The attributes placed in group k, in the order they arrived there.
  std::vector<int> attributesInGroup(int k) const;
  // The placed attributes in placement order: the attribute of button cmdAttB(k).
  const std::vector<int>& placements() const { return m_placements; }

 private:
  bool validGroup(int group) const { return group >= 1 && group <= m_groupCount; }
  bool validAttribute(int j) const { return j >= 0 && j < m_numAtt; }
  void ensureCapacity();
  DropResult place(int j, int target);
  DropResult move(int j, int target);

  int m_numAtt = 0;
  int m_groupCount = 0;
  int m_placedCount = 0;
  int m_selectedGroup = 1;
  int m_framedGroup = 1;
  long m_stamp = 0;
  std::vector<std::int16_t> m_groupSize;  // index 0..capacity; 0 unused
  std::vector<std::int16_t> m_attGroup;   // index 0..NumAtt-1
  std::vector<long> m_arrival;            // when attribute j arrived in its group
  std::vector<int> m_placements;
};

}  // namespace tnw::direct
