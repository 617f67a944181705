#include "tradeoffs/core/tradeoffs_a_presenter.h"

#include "common/core/ui_services.h"
#include "model/model_check.h"
#include "tradeoffs/core/tradeoffs_a_events.h"
#include "wizard/core/wizard_context.h"

// Std
#include <utility>

namespace tnw::tradeoffs {

namespace {

constexpr const char* kTitle = "NORIX";

}  // namespace

TradeOffsAPresenter::TradeOffsAPresenter(WizardContext& context, UiServices& ui,
                                         TradeOffsAEvents& events, RandomSource& random)
    : m_context(context),
      m_ui(ui),
      m_events(events),
      m_judgment(context, ui, random),
      m_results(context.model, m_weights, m_record) {
  setCaption(kCaption);
  addPage(m_judgment);
  addPage(m_results);
  buttons().cmdFinish.enabled = false;
}

void TradeOffsAPresenter::Form_Load() {
  // The exports and the results page read one entry per attribute; what the tables held before
  // is kept, as a failed fit leaves it.
  const auto n = static_cast<std::size_t>(m_context.model.attributeCount());
  for (auto* table : {&m_weights.LowerWeights, &m_weights.CloseWeights, &m_weights.UpperWeights}) {
    if (table->size() < n) table->resize(n, 0.0);
  }
  setStep(kJudgmentStep);
  m_judgment.initializePage();
  m_commands.clear();
  m_instruction.caption = JudgmentPage::kInstruction;
  m_events.SendMasseges(JudgmentPage::kInstruction);
  // Every judgment evaluates value functions, and the fit weighs every attribute: a model with
  // too many attributes or a value function that cannot be evaluated ends the method here, with
  // its message, before any judgment, and nothing can be exported.
  m_modelProblem = valueModelProblem(m_context.model);
  if (m_modelProblem) {
    m_fitError = m_modelProblem;
    m_judgment.disableEnter();
    buttons().cmdNext.enabled = false;
    buttons().cmdFinish.enabled = false;
    warn(*m_modelProblem);
  }
  changed();
}

void TradeOffsAPresenter::warn(const std::string& text) {
  m_ui.beep();
  m_ui.messageBox(text, MessageIcon::Exclamation, kTitle);
}

void TradeOffsAPresenter::cmdNext_Click() {
  if (step() != kJudgmentStep || !cmdNext().enabled || m_modelProblem) return;
  // The fit runs first (its messages come before the page changes); entering the results page
  // then fills it from the result.
  runRegression();
  if (!advance()) return;
  buttons().cmdFinish.enabled = true;
  buttons().cmdNext.enabled = false;
  changed();
}

void TradeOffsAPresenter::runRegression() {
  m_ui.setBusy(true);
  m_regression.RegressMain(m_judgment.store(), m_context.model.attributeCount(), m_record,
                           m_weights);
  for (const std::string& w : m_regression.warnings()) warn(w);
  // CalWeights runs after every fit, as the Next step has always run it. A fit that stopped on
  // a warning (no inverse, mL(0,0), a negative regression sum) leaves coefficients that sum to
  // zero; those weights cannot be formed, so that too ends the fit with its message and nothing
  // can be exported. A fit that ended in its own message keeps that one message.
  const std::optional<std::string> weightsError = m_regression.CalWeights();
  m_fitError = m_regression.error() ? m_regression.error() : weightsError;
  if (m_fitError) warn(*m_fitError);
  m_worst.clear();
  m_worstLines.clear();
  if (!m_fitError) {
    // The list is found from this fit, which it need not run again.
    m_worst = LeaveOneOut::worst(m_judgment.store(), m_context.model, m_regression.work());
    for (const JudgmentInfluence& j : m_worst) {
      m_worstLines.push_back(LeaveOneOut::describe(m_context.model, j));
    }
    if (m_worst.empty()) m_worstLines.emplace_back(LeaveOneOut::kNoneHurts);
  }
  m_ui.setBusy(false);
}

void TradeOffsAPresenter::cmdBack_Click() {
  if (step() == kJudgmentStep) {
    m_events.ShowTNWSelMethod();
    return;
  }
  // Leaving the results page: the judgment page is revisited (Enter again, a fresh start), and
  // what was undoable went with the judgments.
  if (!retreat()) return;
  m_commands.clear();
  buttons().cmdNext.enabled = true;
  changed();
}

void TradeOffsAPresenter::cmdFinish_Click() {
  if (!cmdFinish().enabled || m_modelProblem) return;
  if (m_fitError) {
    // The fit could not be completed: nothing is handed to the host.
    warn(*m_fitError);
    return;
  }
  m_ui.setBusy(true);
  // The close estimates go out twice and the low ones not at all: the host has always received
  // them this way.
  m_events.ExportTradeOffsW("MAVT_TRADEOFFS", m_weights.CloseWeights, m_weights.UpperWeights,
                            m_weights.CloseWeights);
  m_ui.setBusy(false);
  m_events.UnloadTNWizard(m_context.FileIndex, true);
}

void TradeOffsAPresenter::cmdCancel_Click() {
  // The judgments go with the dialog: the user says so first. No keeps everything as it was.
  const int lost = judgmentsToDiscard();
  if (lost > 0 && !m_ui.askYesNo(wizard::UndoTexts::discardQuestion(lost), kTitle)) return;
  m_events.UnloadTNWizard(m_context.FileIndex, false);
}

void TradeOffsAPresenter::cmdTNWizardHelp_Click() {
  m_ui.showHelpTopic(m_context.NorixDir + "\\" + "NORIX.HLP", kHelpContext, helpTopic());
}

HelpTopic TradeOffsAPresenter::helpTopic() const {
  return {"tradeoffs_a", step() == kResultsStep ? "results" : "judgment"};
}

void TradeOffsAPresenter::tsComparisonApproaches_Click(int tab) {
  m_judgment.tsComparisonApproaches_Click(tab);
  changed();
}

void TradeOffsAPresenter::tsTabsW_Click(int tab) {
  if (tab != 1 && tab != 2) return;
  m_tabW = tab;
  changed();
}

void TradeOffsAPresenter::tbWeightCharts_ButtonClick(const std::string& key) {
  m_results.tbWeightCharts_ButtonClick(key);
  changed();
}

void TradeOffsAPresenter::optPCAutomatic_Click() {
  m_judgment.optPCAutomatic_Click();
  changed();
}

void TradeOffsAPresenter::optPCManual_Click() {
  m_judgment.optPCManual_Click();
  changed();
}

void TradeOffsAPresenter::lstTradeOffFirstC_Click(int index) {
  m_judgment.lstTradeOffFirstC_Click(index);
  changed();
}

void TradeOffsAPresenter::lstTradeOffSecondC_Click(int index) {
  m_judgment.lstTradeOffSecondC_Click(index);
  changed();
}

void TradeOffsAPresenter::scoreBoxKeyPress(int box, int key, int selStart, int selLength) {
  m_judgment.scoreBoxKeyPress(box, key, selStart, selLength);
  changed();
}

void TradeOffsAPresenter::setScoreText(int box, const std::string& text) {
  m_judgment.setScoreText(box, text);
  changed();
}

void TradeOffsAPresenter::tbScoreChanger_ButtonClick(int index, bool up) {
  m_judgment.tbScoreChanger_ButtonClick(index, up);
  changed();
}

void TradeOffsAPresenter::dragPoint(bool pointA, double x, double y) {
  m_judgment.dragPoint(pointA, x, y);
  changed();
}

void TradeOffsAPresenter::optPCVerbal_Click(int index) {
  m_judgment.optPCVerbal_Click(index);
  changed();
}

void TradeOffsAPresenter::cmdTradeOffEnter_Click() {
  if (m_modelProblem) return;
  // Enter writes the slot of the judgment in hand; the snapshots keep what that slot held.
  const std::int16_t before = m_judgment.TradeOffNo();
  JudgmentPage::Snapshot snapshot = m_judgment.snapshot(before);
  m_judgment.cmdTradeOffEnter_Click();
  const std::int16_t now = m_judgment.TradeOffNo();
  if (now != before && now <= m_judgment.TradeOffsNeeded()) recordCommand(std::move(snapshot));
  changed();
}

void TradeOffsAPresenter::cmdTradeOffClearAll_Click() {
  JudgmentPage::Snapshot before = m_judgment.snapshot(-1);
  m_judgment.cmdTradeOffClearAll_Click();
  if (m_modelProblem) m_judgment.disableEnter();
  // A Clear All with nothing to clear changes nothing, and keeps what can be redone.
  if (before.tradeOffNo != m_judgment.TradeOffNo() ||
      before.judgmentCount != m_judgment.store().JudgmentCount ||
      before.cmdTradeOffEnter.enabled != m_judgment.controls().cmdTradeOffEnter.enabled) {
    recordCommand(std::move(before));
  }
  changed();
}

void TradeOffsAPresenter::recordCommand(JudgmentPage::Snapshot before) {
  JudgmentPage::Snapshot after = m_judgment.snapshot(before.slot);
  m_commands.push(std::move(before), std::move(after));
}

void TradeOffsAPresenter::cmdUndo_Click() {
  const auto restore = [this](const JudgmentPage::Snapshot& s) { m_judgment.restore(s); };
  if (step() != kJudgmentStep || !m_commands.undo(restore)) return;
  changed();
}

void TradeOffsAPresenter::cmdRedo_Click() {
  const auto restore = [this](const JudgmentPage::Snapshot& s) { m_judgment.restore(s); };
  if (step() != kJudgmentStep || !m_commands.redo(restore)) return;
  changed();
}

wizard::ButtonState TradeOffsAPresenter::cmdUndo() const {
  const bool shown = step() == kJudgmentStep;
  return {wizard::UndoTexts::kUndoCaption, shown && m_commands.canUndo(), shown};
}

wizard::ButtonState TradeOffsAPresenter::cmdRedo() const {
  const bool shown = step() == kJudgmentStep;
  return {wizard::UndoTexts::kRedoCaption, shown && m_commands.canRedo(), shown};
}

}  // namespace tnw::tradeoffs
