#pragma once

#include "common/core/ui_services.h"
#include "tradeoffs/core/judgment_page.h"
#include "tradeoffs/core/leave_one_out.h"
#include "tradeoffs/core/multi_regression_data.h"
#include "tradeoffs/core/regression.h"
#include "tradeoffs/core/results_page.h"
#include "tradeoffs/core/tradeoff_weights.h"
#include "wizard/core/command_stack.h"
#include "wizard/core/control_states.h"
#include "wizard/core/wizard_presenter.h"

// Std
#include <optional>
#include <string>

namespace tnw {
struct WizardContext;
class UiServices;
}  // namespace tnw

namespace tnw::tradeoffs {

class TradeOffsAEvents;
class RandomSource;

// The trade-off dialog frmTradeOffsA without widgets: the judgment page (step kJudgmentStep),
// the results page (step kResultsStep), the wizard buttons, the tabs and the events to the
// component. The view renders the state below and calls one operation per user action; after
// each the change listener is called. The method keeps its result (weights()) and hands it to
// the host on Finish.
class TradeOffsAPresenter : public wizard::WizardPresenter {
 public:
  // The steps.
  static constexpr int kJudgmentStep = tradeoffs::kJudgmentStep;
  static constexpr int kResultsStep = tradeoffs::kResultsStep;
  // The dialog's caption.
  static constexpr const char* kCaption = "Tarnel Wizard";
  // The help context of the wizard's topic in NORIX.HLP.
  static constexpr int kHelpContext = 4005025;

  // A presenter over the wizard's data; every argument must outlive it.
  TradeOffsAPresenter(WizardContext& context, UiServices& ui, TradeOffsAEvents& events,
                      RandomSource& random);

  // Form_Load: the judgment page in its first state and the instruction to the host.
  void Form_Load();

  // The Help button, under the dialog's own name for it.
  const wizard::ButtonState& cmdTNWizardHelp() const { return cmdHelp(); }
  // The Print button of the results page.
  const wizard::ButtonState& cmdPrint() const { return m_cmdPrint; }
  // The instruction shown on the judgment page.
  const wizard::LabelState& lblInstruction() const { return m_instruction; }
  // The tab of tsTabsW in front and the two panels it switches.
  int tsTabsW() const { return m_tabW; }
  bool picWeightEstVisible() const { return m_tabW == 1; }
  bool picRegStatusVisible() const { return m_tabW == 2; }
  // The two pages.
  const JudgmentPage& judgmentPage() const { return m_judgment; }
  JudgmentPage& judgmentPage() { return m_judgment; }
  const ResultsPage& resultsPage() const { return m_results; }
  // The method's result: the weight tables and the comment of the last completed fit.
  const TradeOffWeights& weights() const { return m_weights; }
  // The same, writable: what it holds when a fit fails is what stays on show and on record.
  TradeOffWeights& weights() { return m_weights; }
  // The regression, its record (MultiRegressionData) and the message of a fit that could not be
  // completed.
  const Regression& regression() const { return m_regression; }
  const MultiRegressionData& record() const { return m_record; }
  const std::optional<std::string>& fitError() const { return m_fitError; }
  // Why the method cannot weigh the model (too many attributes, a value function that cannot be
  // evaluated), found on loading; nothing while it can.
  const std::optional<std::string>& modelProblem() const { return m_modelProblem; }

  // The judgments that lower the consistency index most (leave-one-out), worst first; empty
  // when the fit could not be completed or no judgment lowers the index.
  const std::vector<JudgmentInfluence>& worstJudgments() const { return m_worst; }
  // The lines of the list lstWorstJudgments: one per judgment above, or the line saying that no
  // judgment lowers the index; empty when the fit could not be completed.
  const std::vector<std::string>& worstJudgmentLines() const { return m_worstLines; }

  // Wizard buttons.
  void cmdNext_Click();
  void cmdBack_Click();
  void cmdFinish_Click();
  void cmdCancel_Click();
  void cmdTNWizardHelp_Click();
  // The help page of this dialog and the current page's anchor on it.
  HelpTopic helpTopic() const;
  // Tabs of the judgment page (1 numerical, 2 verbal) and of the results page (1 weights,
  // 2 regression status).
  void tsComparisonApproaches_Click(int tab);
  void tsTabsW_Click(int tab);
  // A button of the chart toolbar by its key ("WeightBars", "HLCa", "HLCb").
  void tbWeightCharts_ButtonClick(const std::string& key);

  // The judgment page's actions, each followed by a change notification.
  void optPCAutomatic_Click();
  void optPCManual_Click();
  void lstTradeOffFirstC_Click(int index);
  void lstTradeOffSecondC_Click(int index);
  void scoreBoxKeyPress(int box, int key, int selStart, int selLength);
  void setScoreText(int box, const std::string& text);
  void tbScoreChanger_ButtonClick(int index, bool up);
  void dragPoint(bool pointA, double x, double y);
  void optPCVerbal_Click(int index);
  void cmdTradeOffEnter_Click();
  void cmdTradeOffClearAll_Click();

  // Undo and Redo of the judgment page (Ctrl+Z, Ctrl+Shift+Z or Ctrl+Y): Enter and Clear All
  // are taken back and made again, exactly, in the order they were made.
  void cmdUndo_Click();
  void cmdRedo_Click();
  // The Undo and Redo buttons: shown on the judgment page, enabled when there is a command to
  // undo or to redo.
  wizard::ButtonState cmdUndo() const;
  wizard::ButtonState cmdRedo() const;
  // The undo history of the dialog.
  const wizard::CommandStack<JudgmentPage::Snapshot>& commands() const { return m_commands; }
  // The number of judgments Cancel would throw away: those recorded and not cleared.
  int judgmentsToDiscard() const { return m_judgment.store().JudgmentCount; }

 private:
  void runRegression();
  void warn(const std::string& text);
  // Records a command of the judgment page that went from `before` to the page as it is now.
  void recordCommand(JudgmentPage::Snapshot before);

  WizardContext& m_context;
  UiServices& m_ui;
  TradeOffsAEvents& m_events;
  TradeOffWeights m_weights;
  Regression m_regression;
  MultiRegressionData m_record;
  JudgmentPage m_judgment;
  ResultsPage m_results;
  std::optional<std::string> m_fitError;
  std::optional<std::string> m_modelProblem;

  wizard::CommandStack<JudgmentPage::Snapshot> m_commands;
  std::vector<JudgmentInfluence> m_worst;
  std::vector<std::string> m_worstLines;
  int m_tabW = 1;
  wizard::ButtonState m_cmdPrint{"&Print", true, true};
  wizard::LabelState m_instruction;
};

}  // namespace tnw::tradeoffs
