// The judgment page's snapshots for undo and redo, and the focus by name.

#include "tradeoffs/core/judgment_page.h"
#include "wizard/core/wizard_context.h"

// Std
#include <algorithm>
#include <cstddef>

namespace tnw::tradeoffs {

namespace {

// What a snapshot keeps of an option: its caption stays with the page.
JudgmentPage::OptionFlags flags(const wizard::OptionState& o) { return {o.value, o.enabled}; }

void setFlags(wizard::OptionState& o, const JudgmentPage::OptionFlags& f) {
  o.value = f.value;
  o.enabled = f.enabled;
}

// Store slot k (inside the store), copied in place.
JudgmentPage::StoreSlot takeSlot(const JudgmentStore& store, std::size_t k) {
  JudgmentPage::StoreSlot slot;
  slot.scoreAFirst = store.ScoreAFirst[k];
  slot.scoreBFirst = store.ScoreBFirst[k];
  slot.scoreASecond = store.ScoreASecond[k];
  slot.scoreBSecond = store.ScoreBSecond[k];
  slot.prefResponse = store.PrefResponse[k];
  slot.firstAtt = store.FirstAtt[k];
  slot.secondAtt = store.SecondAtt[k];
  const std::vector<double>& row = store.ValueDiff[k];
  const std::size_t n = std::min(row.size(), slot.valueDiff.size());
  std::copy_n(row.begin(), n, slot.valueDiff.begin());
  slot.valueCount = static_cast<int>(n);
  return slot;
}

// Writes a slot taken by takeSlot back at index i (0 or more), making room for it.
void putSlot(JudgmentStore& store, int i, const JudgmentPage::StoreSlot& slot, int numAtt) {
  store.extend(i + 1, numAtt);
  const auto k = static_cast<std::size_t>(i);
  store.ScoreAFirst[k] = slot.scoreAFirst;
  store.ScoreBFirst[k] = slot.scoreBFirst;
  store.ScoreASecond[k] = slot.scoreASecond;
  store.ScoreBSecond[k] = slot.scoreBSecond;
  store.PrefResponse[k] = slot.prefResponse;
  store.FirstAtt[k] = slot.firstAtt;
  store.SecondAtt[k] = slot.secondAtt;
  const auto n = static_cast<std::size_t>(slot.valueCount);
  store.ValueDiff[k].assign(slot.valueDiff.begin(), slot.valueDiff.begin() + n);
}

}  // namespace

const std::string& JudgmentPage::focus() const {
  static const std::array<std::string, 6> kNames = {"",
                                                    JudgmentControls::kScoreBoxNames[0],
                                                    JudgmentControls::kScoreBoxNames[1],
                                                    JudgmentControls::kScoreBoxNames[2],
                                                    JudgmentControls::kScoreBoxNames[3],
                                                    "cmdTradeOffEnter"};
  return kNames[static_cast<std::size_t>(m_focus - kNoFocus)];
}

JudgmentPage::Snapshot JudgmentPage::snapshot(int slot) const {
  const JudgmentControls& c = m_controls;
  Snapshot s;
  s.optPCAutomatic = flags(c.optPCAutomatic);
  s.optPCManual = flags(c.optPCManual);
  for (std::size_t i = 0; i < s.optPCVerbal.size(); ++i) s.optPCVerbal[i] = flags(c.optPCVerbal[i]);
  s.lstTradeOffFirstC = {c.lstTradeOffFirstC.listIndex, c.lstTradeOffFirstC.enabled};
  s.lstTradeOffSecondC = {c.lstTradeOffSecondC.listIndex, c.lstTradeOffSecondC.enabled};
  s.cmdTradeOffClearAll = {c.cmdTradeOffClearAll.enabled, c.cmdTradeOffClearAll.visible};
  s.cmdTradeOffEnter = {c.cmdTradeOffEnter.enabled, c.cmdTradeOffEnter.visible};
  s.labPCThisNum = c.labPCThisNum;
  s.labPCNeccesaryNum = c.labPCNeccesaryNum;
  s.labPCCriterion1 = c.labPCCriterion1;
  s.labPCCriterion2 = c.labPCCriterion2;
  s.labTradeOffDiff1 = c.labTradeOffDiff1;
  s.labTradeOffDiff2 = c.labTradeOffDiff2;
  s.scoreBoxes = c.scoreBoxes;
  s.tsComparisonApproaches = c.tsComparisonApproaches;
  s.shpPCA = c.shpPCA;
  s.shpPCB = c.shpPCB;
  s.panel = m_panel;
  s.focus = m_focus;
  s.tradeOffNo = m_tradeOffNo;
  s.tradeOffsNeeded = m_tradeOffsNeeded;
  s.first = m_first;
  s.second = m_second;
  s.automatic = m_automatic;
  s.entryError = m_entryError;
  s.changedByToolbar = m_changedByToolbar;
  s.ranges = {m_lowFirst, m_highFirst, m_lowSecond, m_highSecond};
  s.judgmentCount = m_store.JudgmentCount;
  if (slot >= 0 && static_cast<std::size_t>(slot) < m_store.ScoreAFirst.size()) {
    s.slot = slot;
    s.judgment = takeSlot(m_store, static_cast<std::size_t>(slot));
  }
  return s;
}

void JudgmentPage::restore(const Snapshot& s) {
  JudgmentControls& c = m_controls;
  setFlags(c.optPCAutomatic, s.optPCAutomatic);
  setFlags(c.optPCManual, s.optPCManual);
  for (std::size_t i = 0; i < s.optPCVerbal.size(); ++i)
    setFlags(c.optPCVerbal[i], s.optPCVerbal[i]);
  c.lstTradeOffFirstC.listIndex = s.lstTradeOffFirstC.listIndex;
  c.lstTradeOffFirstC.enabled = s.lstTradeOffFirstC.enabled;
  c.lstTradeOffSecondC.listIndex = s.lstTradeOffSecondC.listIndex;
  c.lstTradeOffSecondC.enabled = s.lstTradeOffSecondC.enabled;
  c.cmdTradeOffClearAll.enabled = s.cmdTradeOffClearAll.enabled;
  c.cmdTradeOffClearAll.visible = s.cmdTradeOffClearAll.visible;
  c.cmdTradeOffEnter.enabled = s.cmdTradeOffEnter.enabled;
  c.cmdTradeOffEnter.visible = s.cmdTradeOffEnter.visible;
  c.labPCThisNum = s.labPCThisNum;
  c.labPCNeccesaryNum = s.labPCNeccesaryNum;
  c.labPCCriterion1 = s.labPCCriterion1;
  c.labPCCriterion2 = s.labPCCriterion2;
  c.labTradeOffDiff1 = s.labTradeOffDiff1;
  c.labTradeOffDiff2 = s.labTradeOffDiff2;
  c.scoreBoxes = s.scoreBoxes;
  c.tsComparisonApproaches = s.tsComparisonApproaches;
  c.shpPCA = s.shpPCA;
  c.shpPCB = s.shpPCB;
  m_panel = s.panel;
  m_focus = s.focus;
  m_tradeOffNo = s.tradeOffNo;
  m_tradeOffsNeeded = s.tradeOffsNeeded;
  m_first = s.first;
  m_second = s.second;
  m_automatic = s.automatic;
  m_entryError = s.entryError;
  m_changedByToolbar = s.changedByToolbar;
  m_lowFirst = s.ranges[0];
  m_highFirst = s.ranges[1];
  m_lowSecond = s.ranges[2];
  m_highSecond = s.ranges[3];
  if (s.slot >= 0) putSlot(m_store, s.slot, s.judgment, m_context.model.attributeCount());
  m_store.JudgmentCount = s.judgmentCount;
}

}  // namespace tnw::tradeoffs
