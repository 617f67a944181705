#include "direct/core/direct_a_presenter.h"

// Std
#include <cstddef>
#include <utility>

namespace tnw::direct {

DirectAPresenter::DirectAPresenter(WizardContext& context, UiServices& ui, DirectAEvents& events)
    : m_context(context),
      m_shared(context, m_result, ui, events, buttons()),
      m_ordering(m_shared, usableCount(context)),
      m_reference(m_shared, m_ordering, m_lamps),
      m_judgment(m_shared, m_lamps),
      m_results(m_shared, m_ordering) {
  addPage(m_ordering);
  addPage(m_reference);
  addPage(m_judgment);
  addPage(m_results);
  setCaption(kDesignCaption);
}

int DirectAPresenter::usableCount(const WizardContext& context) {
  const int n = context.model.NumAtt;
  return n >= 1 && n <= kMaxAttributes ? n : 0;
}

void DirectAPresenter::showStep() {
  setCaption(kCaptions[static_cast<std::size_t>(step())]);
  m_judgment.showButtons(step() == kJudgmentStep);
  m_ordering.showButtons(step() == kOrderStep);
}

void DirectAPresenter::Form_Load() {
  setStep(kOrderStep);
  m_ordering.initializePage();
  showStep();
  m_shared.events.SendMasseges(kOrderMessage);
  changed();
}

void DirectAPresenter::cmdNext_Click() {
  // Next enters the next page (the order, the reference and the judgments each lead on).
  if (!m_shared.usable || !cmdNext().enabled || step() >= kResultsStep) return;
  if (!advance()) return;
  // Step 2 is entered afresh from step 1: nothing before it can be undone.
  if (step() == kJudgmentStep) m_commands.clear();
  showStep();
  changed();
}

void DirectAPresenter::cmdBack_Click() {
  if (step() == kOrderStep) {
    changed();
    m_shared.events.ShowTNWSelMethod();
    m_shared.events.UnloadDirectA();
    return;
  }
  const int from = step();
  if (!retreat()) return;
  // Leaving step 2 for step 1 drops its judgments, and what was undoable with them.
  if (from == kJudgmentStep) m_commands.clear();
  showStep();
  changed();
}

void DirectAPresenter::cmdFinish_Click() {
  if (!m_shared.usable || !cmdFinish().enabled) return;
  const auto outcome = DirectExport::compute(m_result.LowerWeights, m_result.UpperWeights,
                                             m_ordering.order().numAtt(), m_export);
  if (outcome != DirectExport::Outcome::Exported) {
    m_shared.warn(DirectExport::message(outcome));
    changed();
    return;
  }
  changed();
  m_shared.events.ExportDirectAW(kTNType, m_result.RefAtt, m_export.Weights, m_export.WeightsH,
                                 m_export.WeightsL);
  m_shared.events.UnloadTNWizard(m_context.FileIndex, true);
}

void DirectAPresenter::cmdCancel_Click() {
  // The judgments go with the dialog: the user says so first. No keeps everything as it was.
  const int lost = judgmentsToDiscard();
  if (lost > 0 && !m_shared.ui.askYesNo(wizard::UndoTexts::discardQuestion(lost), "NORIX")) {
    return;
  }
  m_shared.events.UnloadTNWizard(m_context.FileIndex, false);
}

void DirectAPresenter::cmdHelp_Click() {
  m_shared.ui.showHelpTopic(m_context.NorixDir + "\\" + kHelpFile, kHelpContext, helpTopic());
}

HelpTopic DirectAPresenter::helpTopic() const {
  switch (step()) {
    case kReferenceStep:
      return {"direct_a", "reference"};
    case kJudgmentStep:
      return {"direct_a", "judgment"};
    case kResultsStep:
      return {"direct_a", "results"};
    default:
      return {"direct_a", "ordering"};
  }
}

void DirectAPresenter::Timer1_Timer() {
  m_lamps.tick();
  changed();
}

void DirectAPresenter::picOrder_DragDrop(int group, std::string_view tag) {
  if (step() != kOrderStep) return;
  m_ordering.dropOnGroup(tag, group);
  changed();
}

void DirectAPresenter::cmdAttB_DragDrop(int att, std::string_view tag) {
  if (step() != kOrderStep) return;
  m_ordering.dropOnPlacedAttribute(tag, att);
  changed();
}

void DirectAPresenter::cmdAdd_Click() {
  if (step() != kOrderStep || !cmdAdd().enabled) return;
  m_ordering.add();
  changed();
}

void DirectAPresenter::cmdInsert_Click() {
  if (step() != kOrderStep || !cmdInsert().enabled) return;
  m_ordering.insert();
  changed();
}

void DirectAPresenter::picOrder_Click(int group) {
  m_ordering.clickGroup(group);
  changed();
}

void DirectAPresenter::cmdAttB_Click(int att) {
  m_ordering.clickPlacedAttribute(att);
  changed();
}

void DirectAPresenter::optAttInfo_Click(int att) {
  m_ordering.showAttributeInfo(att);
  changed();
}

void DirectAPresenter::lblAttName_DragOver(std::string_view tag) {
  m_ordering.dragOverAttributeList(tag);
  changed();
}

void DirectAPresenter::cmdAttButtons_Click(int i) {
  if (step() > kReferenceStep || i < 0 || i >= m_ordering.order().numAtt()) return;
  m_reference.chooseReference(i);
  changed();
}

void DirectAPresenter::imgcmbTargetAtt_Click(int i) {
  if (step() != kJudgmentStep) return;
  m_judgment.chooseTarget(i);
  changed();
}

void DirectAPresenter::txtWR_KeyPress(JudgmentPage::Box box, const wizard::TextBoxState& current,
                                      int keyAscii) {
  if (step() != kJudgmentStep) return;
  m_judgment.keyPress(box, current, keyAscii);
  changed();
}

void DirectAPresenter::txtWR_KeyPress(JudgmentPage::Box box, int selStart, int selLength,
                                      int keyAscii) {
  if (step() != kJudgmentStep) return;
  m_judgment.keyPress(box, selStart, selLength, keyAscii);
  changed();
}

bool DirectAPresenter::txtWR_KeyDown(JudgmentPage::Box box, int keyCode, bool shift) const {
  return m_judgment.keyDown(box, keyCode, shift);
}

void DirectAPresenter::txtWR_LostFocus(JudgmentPage::Box box) {
  if (step() != kJudgmentStep) return;
  m_judgment.leaveBox(box);
  changed();
}

void DirectAPresenter::txtWR_SetText(JudgmentPage::Box box, const std::string& text) {
  if (step() != kJudgmentStep) return;
  m_judgment.setBoxText(box, text);
  changed();
}

void DirectAPresenter::picHandle_Drag(int index, float x, float y) {
  if (step() != kJudgmentStep) return;
  m_judgment.dragHandle(index, x, y);
  changed();
}

void DirectAPresenter::setConeArea(float side, float handleSize) {
  m_judgment.setArea(side, handleSize);
  changed();
}

bool DirectAPresenter::cmdEnter_Click() {
  if (step() != kJudgmentStep) return false;
  JudgmentPage::Snapshot before = m_judgment.snapshot();
  const bool recorded = m_judgment.enterJudgment();
  if (recorded) recordCommand(std::move(before));
  changed();
  return recorded;
}

void DirectAPresenter::cmdReStart_Click() {
  if (step() != kJudgmentStep || !cmdReStart().enabled) return;
  JudgmentPage::Snapshot before = m_judgment.snapshot();
  m_judgment.restart();
  recordCommand(std::move(before));
  changed();
}

void DirectAPresenter::recordCommand(JudgmentPage::Snapshot before) {
  JudgmentPage::Snapshot after = m_judgment.snapshot();
  m_commands.push(std::move(before), std::move(after));
}

void DirectAPresenter::cmdUndo_Click() {
  const auto restore = [this](const JudgmentPage::Snapshot& s) { m_judgment.restore(s); };
  if (step() != kJudgmentStep || !m_commands.undo(restore)) return;
  changed();
}

void DirectAPresenter::cmdRedo_Click() {
  const auto restore = [this](const JudgmentPage::Snapshot& s) { m_judgment.restore(s); };
  if (step() != kJudgmentStep || !m_commands.redo(restore)) return;
  changed();
}

wizard::ButtonState DirectAPresenter::cmdUndo() const {
  const bool shown = step() == kJudgmentStep;
  return {wizard::UndoTexts::kUndoCaption, shown && m_commands.canUndo(), shown};
}

wizard::ButtonState DirectAPresenter::cmdRedo() const {
  const bool shown = step() == kJudgmentStep;
  return {wizard::UndoTexts::kRedoCaption, shown && m_commands.canRedo(), shown};
}

}  // namespace tnw::direct
