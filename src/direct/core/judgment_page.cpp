#include "direct/core/judgment_page.h"

#include "common/core/number_format.h"
#include "direct/core/attribute_texts.h"
#include "direct/core/previous_judgments.h"
#include "direct/core/ratio_bound_check.h"
#include "direct/core/ratio_key_filter.h"

// Std
#include <algorithm>

namespace tnw::direct {

namespace {

const char* boxName(JudgmentPage::Box box) {
  return box == JudgmentPage::Box::Lower ? "txtWRLower" : "txtWRUpper";
}

std::string scoreText(double score) { return formatNumber(score, "###,##0.0#"); }

}  // namespace

JudgmentPage::JudgmentPage(DirectAShared& shared, StatusLamps& lamps)
    : m_shared(shared), m_lamps(lamps), m_judgments(shared.context.model, shared.result) {}

void JudgmentPage::initializePage() { enter(m_shared.resume); }

void JudgmentPage::cleanupPage() { leave(); }

void JudgmentPage::revisitPage() { m_shared.buttons.cmdNext.enabled = true; }

void JudgmentPage::showButtons(bool visible) {
  m_cmdEnter.visible = visible;
  m_cmdReStart.visible = visible;
}

bool JudgmentPage::enter(bool resume) {
  m_judgments.reset();
  m_recorded.assign(static_cast<std::size_t>(m_judgments.count()), false);
  bool resumed = false;
  if (resume) {
    const auto outcome = PreviousJudgments::GetPreviousWeightRatios(m_shared.context.model,
                                                                    m_shared.result, m_judgments);
    resumed = outcome == PreviousJudgments::Outcome::Resumed;
    if (!resumed) m_shared.warn(PreviousJudgments::message(outcome));
  }
  if (!resumed) m_judgments.CalcIniWeightRatios();
  ListAtt();
  if (resumed) {
    for (int i = 0; i < m_judgments.count(); ++i) IniJudgmentStatusB(i);
  }
  IniJudgmentStatusA(m_targets.currentTarget());
  // With every attribute settled (resumed, or all tied with the reference) there is nothing
  // left to judge, and the page is complete at once.
  showCompletion();
  m_cmdEnter.enabled = m_targets.currentTarget() >= 0;
  m_cmdReStart.enabled = resumed;
  m_orderTabVisible = true;
  return resumed;
}

void JudgmentPage::leave() {
  m_orderTabVisible = false;
  m_targets.clear();
  // Entering the page again starts the judgments afresh: those of this visit are gone.
  m_recorded.clear();
}

void JudgmentPage::ListAtt() {
  m_shared.ui.setBusy(true);
  m_loading = true;
  m_targets.ListAtt(m_shared.context.model, m_judgments, m_shared.result.RefAtt);
  DisplayAttPair(m_targets.currentTarget(), m_shared.result.RefAtt);
  m_shared.events.SendMasseges(kIndicateMessage);
  m_loading = false;
  m_shared.ui.setBusy(false);
}

void JudgmentPage::DisplayAttPair(int target, int reference) {
  const AttributeModel& model = m_shared.context.model;
  const auto& items = m_targets.items();
  const auto image = [&items](int i, bool selected) -> std::string {
    if (i < 0 || i >= static_cast<int>(items.size())) return {};
    const auto& item = items[static_cast<std::size_t>(i)];
    return selected ? item.selectedImage : item.image;
  };
  const auto range = [&model](int i, bool high) -> std::string {
    if (i < 0 || i >= kMaxAttributes) return {};
    const auto u = static_cast<std::size_t>(i);
    return scoreText(high ? model.AttScoreHigh[u] : model.AttScoreLow[u]);
  };
  m_shared.lblRefAtt.caption = AttributeTexts::name(model, reference);
  m_lblChartRefAtt.caption = m_shared.lblRefAtt.caption;
  m_lblTargetAtt.caption = target >= 0 ? AttributeTexts::name(model, target) : "";
  m_lblChartTarAtt.caption = m_lblTargetAtt.caption;
  m_lblRefRangeLow.caption = range(reference, false);
  m_lblRefRangeHigh.caption = range(reference, true);
  m_lblTarRangeLow.caption = range(target, false);
  m_lblTarRangeHigh.caption = range(target, true);
  m_imgRefAtt.caption = image(reference, false);
  m_imgTargetAtt.caption = image(target, true);
}

void JudgmentPage::placeHandles(double lower, double upper) {
  m_handles = {m_cone.handleForRatio(lower), m_cone.handleForRatio(upper)};
}

void JudgmentPage::showRatios(double lower, double upper) {
  m_lower.setText(formatNumber(lower, "0.00"));
  m_upper.setText(formatNumber(upper, "0.00"));
}

void JudgmentPage::IniJudgmentStatusA(int target) {
  m_lamps.clear();
  if (target < 0) return;
  placeHandles(m_judgments.lower(target), m_judgments.upper(target));
  showRatios(m_judgments.lower(target), m_judgments.upper(target));
}

void JudgmentPage::IniJudgmentStatusB(int attribute) {
  m_judgments.setHandles(attribute, {m_cone.handleForRatio(m_judgments.lower(attribute)),
                                     m_cone.handleForRatio(m_judgments.upper(attribute))});
}

void JudgmentPage::ShowPreJudgmentStatus(int target) {
  if (const RegionHandles* stored = m_judgments.handles(target)) {
    m_handles = *stored;
  } else {
    placeHandles(m_judgments.lower(target), m_judgments.upper(target));
  }
  showRatios(m_judgments.lower(target), m_judgments.upper(target));
  Check_Judgment_Status();
}

JudgmentStatusCheck::Result JudgmentPage::evaluate() const {
  return JudgmentStatusCheck::check(m_cone, m_handles, m_judgments, m_targets.currentTarget());
}

JudgmentDiagnosis::Result JudgmentPage::diagnosis() const {
  const JudgmentState lit = m_lamps.state();
  const int t = m_targets.currentTarget();
  if (t < 0 || (lit != JudgmentState::Inconsistent && lit != JudgmentState::Invalid)) return {};
  return JudgmentDiagnosis::diagnose(m_cone, m_handles, m_judgments, t, m_shared.context.model);
}

void JudgmentPage::Check_Judgment_Status() {
  const auto result = evaluate();
  if (result.state != JudgmentState::Invalid) {
    m_lower.setText(formatNumber(result.lowerRatio, "0.00"));
    m_upper.setText(formatNumber(result.upperRatio, "0.00"));
  }
  m_lamps.show(result.state);
  m_cmdEnter.enabled = result.state == JudgmentState::Consistent;
}

void JudgmentPage::DisplayPrefCone() {
  if (m_targets.currentTarget() < 0) return;
  placeHandles(RatioBoundCheck::boxValue(m_lower.text), RatioBoundCheck::boxValue(m_upper.text));
  Check_Judgment_Status();
}

void JudgmentPage::chooseTarget(int i) {
  if (m_loading) return;
  const int ref = m_shared.result.RefAtt;
  switch (m_targets.choose(i, m_judgments, ref)) {
    case TargetList::Choice::ReferenceItself:
      m_shared.warn(kSameAttributeMessage);
      return;
    case TargetList::Choice::SameGroup:
      m_shared.warn(kSameGroupMessage);
      return;
    case TargetList::Choice::Ignored:
      return;
    case TargetList::Choice::Chosen:
      break;
  }
  DisplayAttPair(i, ref);
  if (m_judgments.judged(i)) {
    ShowPreJudgmentStatus(i);
  } else {
    IniJudgmentStatusA(i);
  }
  m_cmdEnter.enabled = true;
}

wizard::TextBoxState& JudgmentPage::boxState(Box box) {
  return box == Box::Lower ? m_lower : m_upper;
}

const wizard::TextBoxState& JudgmentPage::box(Box box) const {
  return box == Box::Lower ? m_lower : m_upper;
}

void JudgmentPage::setBoxText(Box box, const std::string& text) {
  boxState(box).setText(text);
  boxState(box).selStart = static_cast<int>(text.size());
  boxState(box).selLength = 0;
  m_focus = boxName(box);
}

bool JudgmentPage::keyDown(Box /*box*/, int keyCode, bool shift) const {
  return RatioKeyFilter::discardKeyDown(keyCode, shift);
}

void JudgmentPage::keyPress(Box box, const wizard::TextBoxState& current, int keyAscii) {
  wizard::TextBoxState& state = boxState(box);
  state = current;
  state.periodCount = -1;  // the caller's text: its periods are counted again when asked
  keyPress(box, current.selStart, current.selLength, keyAscii);
}

void JudgmentPage::keyPress(Box box, int selStart, int selLength, int keyAscii) {
  wizard::TextBoxState& state = boxState(box);
  state.selStart = selStart;
  state.selLength = selLength;
  state.clampSelection();
  m_focus = boxName(box);
  if (RatioKeyFilter::typeKey(state, keyAscii) != RatioKeyFilter::KeyAction::Enter) return;
  if (m_cmdReStart.enabled) m_focus = "cmdReStart";
  // Enter checks the lower bound from either box; the upper gets its own check on leaving.
  if (checkBound(Box::Lower)) DisplayPrefCone();
}

bool JudgmentPage::checkBound(Box box) {
  const auto result = box == Box::Lower
                          ? RatioBoundCheck::CheckLowerWeightRatio(m_lower.text, m_upper.text)
                          : RatioBoundCheck::CheckUpperWeightRatio(m_lower.text, m_upper.text);
  if (result.ok) {
    m_valid = 1;
    return true;
  }
  m_valid = 0;
  m_shared.ui.beep();
  m_focus = boxName(box);
  boxState(box).selectAll();
  m_shared.warn(result.message);
  return false;
}

void JudgmentPage::leaveBox(Box box) {
  if (m_focus == boxName(box)) m_focus.clear();
  if (checkBound(box)) DisplayPrefCone();
}

void JudgmentPage::dragHandle(int index, float x, float y) {
  if (m_targets.currentTarget() < 0 || index < 0 || index > 1) return;
  HandlePoint& p = index == 0 ? m_handles.first : m_handles.second;
  p = m_cone.clampToArea({x, y});
  Check_Judgment_Status();
}

void JudgmentPage::setArea(float side, float handleSize) {
  const float old = m_cone.side();
  m_cone = PreferenceCone(side, handleSize);
  const float scale = m_cone.side() / old;
  for (HandlePoint* p : {&m_handles.first, &m_handles.second}) {
    p->x *= scale;
    p->y *= scale;
  }
}

IntPoint JudgmentPage::handleTopLeft(int index) const {
  return m_cone.handleTopLeft(index == 0 ? m_handles.first : m_handles.second);
}

std::array<IntPoint, 3> JudgmentPage::coneTriangle() const {
  return m_cone.triangle(m_handles.first, m_handles.second);
}

bool JudgmentPage::enterJudgment() {
  const int t = m_targets.currentTarget();
  if (t < 0 || !m_cmdEnter.enabled) return false;
  // Enter can be pressed without the focus leaving a box (by its mnemonic, or from the command
  // line), so it runs the checks that leaving the boxes runs, and records nothing while one
  // of them fails.
  if (!checkBound(Box::Lower) || !checkBound(Box::Upper)) return false;
  checkStatusOfBoxes();
  if (!m_cmdEnter.enabled) return false;
  const double lower = RatioBoundCheck::boxValue(m_lower.text);
  const double upper = RatioBoundCheck::boxValue(m_upper.text);
  // The target's item is marked at once, with those of its ties.
  m_targets.markJudged(t);
  if (static_cast<std::size_t>(t) < m_recorded.size())
    m_recorded[static_cast<std::size_t>(t)] = true;
  for (int k : m_judgments.RecordWeightRatios(t, lower, upper, m_handles)) {
    m_targets.markJudged(k);
  }
  placeHandles(m_judgments.lower(t), m_judgments.upper(t));
  m_cmdEnter.enabled = false;
  m_cmdReStart.enabled = true;
  showCompletion();
  return true;
}

void JudgmentPage::checkStatusOfBoxes() {
  // Boxes that show what the handles give (a drag, or a check already run) keep the handles
  // where they are; otherwise the handles follow the boxes first, as after leaving a box.
  const auto result = evaluate();
  const bool shown = result.state != JudgmentState::Invalid &&
                     m_lower.text == formatNumber(result.lowerRatio, "0.00") &&
                     m_upper.text == formatNumber(result.upperRatio, "0.00");
  if (shown) {
    Check_Judgment_Status();
  } else {
    DisplayPrefCone();
  }
}

void JudgmentPage::restart() {
  m_shared.ui.setBusy(true);
  m_judgments.ReStartJudgments();
  m_recorded.assign(m_recorded.size(), false);
  m_targets.clear();
  ListAtt();
  IniJudgmentStatusA(m_targets.currentTarget());
  m_shared.ui.setBusy(false);
  m_cmdEnter.enabled = m_targets.currentTarget() >= 0;
  m_cmdReStart.enabled = false;
  showCompletion();
}

void JudgmentPage::showCompletion() {
  // Next and Finish only while no attribute is open: an open interval is never exported.
  const bool complete = m_judgments.isComplete();
  m_shared.buttons.cmdNext.enabled = complete;
  m_shared.buttons.cmdFinish.enabled = complete;
}

template <class Page>
auto JudgmentPage::labelsOf(Page& page) {
  // The reference's label is the shared one, which a const page reaches unchanged: the array's
  // type follows the page's own labels.
  return std::array<decltype(&page.m_lblTargetAtt), 10>{
      &page.m_lblTargetAtt,    &page.m_lblChartRefAtt,  &page.m_lblChartTarAtt,
      &page.m_lblRefRangeLow,  &page.m_lblRefRangeHigh, &page.m_lblTarRangeLow,
      &page.m_lblTarRangeHigh, &page.m_imgRefAtt,       &page.m_imgTargetAtt,
      &page.m_shared.lblRefAtt};
}

JudgmentPage::Snapshot JudgmentPage::snapshot() const {
  Snapshot s{m_judgments.state(),
             m_targets,
             m_handles,
             m_cone.side(),
             m_lower,
             m_upper,
             m_focus,
             m_valid,
             m_lamps,
             {m_cmdEnter, m_cmdReStart, m_shared.buttons.cmdNext, m_shared.buttons.cmdFinish},
             {},
             m_recorded};
  const auto all = labelsOf(*this);
  for (std::size_t i = 0; i < all.size(); ++i) s.labels[i] = *all[i];
  return s;
}

void JudgmentPage::restore(const Snapshot& s) {
  m_judgments.restore(s.judgments);
  m_targets = s.targets;
  m_handles = s.handles;
  if (s.coneSide > 0.0F && s.coneSide != m_cone.side()) {
    const float scale = m_cone.side() / s.coneSide;
    for (HandlePoint* p : {&m_handles.first, &m_handles.second}) {
      p->x *= scale;
      p->y *= scale;
    }
  }
  m_lower = s.lower;
  m_upper = s.upper;
  m_focus = s.focus;
  m_valid = s.valid;
  m_lamps = s.lamps;
  m_cmdEnter = s.buttons[0];
  m_cmdReStart = s.buttons[1];
  m_shared.buttons.cmdNext = s.buttons[2];
  m_shared.buttons.cmdFinish = s.buttons[3];
  const auto all = labelsOf(*this);
  for (std::size_t i = 0; i < all.size(); ++i) *all[i] = s.labels[i];
  m_recorded = s.recorded;
}

int JudgmentPage::judgmentsRecorded() const {
  return static_cast<int>(std::count(m_recorded.begin(), m_recorded.end(), true));
}

std::vector<int> JudgmentPage::orderGroup(int k) const {
  std::vector<int> atts;
  for (int i = 0; i < m_judgments.count(); ++i) {
    if (m_judgments.group(i) == k) atts.push_back(i);
  }
  return atts;
}

}  // namespace tnw::direct
