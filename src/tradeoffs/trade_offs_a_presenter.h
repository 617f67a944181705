#pragma once

#include "tradeoffs/control_states.h"
#include "tradeoffs/judgment_page.h"
#include "tradeoffs/leave_one_out.h"
#include "tradeoffs/multi_regression_data.h"
#include "tradeoffs/regression.h"
#include "tradeoffs/results_page.h"

// Std
#include <functional>
#include <optional>
#include <string>

namespace tnw {

struct WizardContext;
class UiServices;
class TradeOffsAEvents;
class RandomSource;

// The trade-off dialog frmTradeOffsA without widgets: the judgment page (step 1), the results
// page (step 2), the wizard buttons, the tabs and the events to the component. The view renders
// the state below and calls one operation per user action; after each it is told to re-render.
class TradeOffsAPresenter {
 public:
  // The dialog's caption.
  static constexpr const char* kCaption = "Tarnel Wizard";
  // The help context of the wizard's topic in NORIX.HLP.
  static constexpr int kHelpContext = 4005025;

  // A presenter over the wizard's data; every argument must outlive it.
  TradeOffsAPresenter(WizardContext& context, UiServices& ui, TradeOffsAEvents& events,
                      RandomSource& random);

  // Called after every operation that changed what the view shows.
  void setChangedCallback(std::function<void()> changed) { m_changed = std::move(changed); }

  // Form_Load: the judgment page in its first state and the instruction to the host.
  void Form_Load();

  // The step: 1 judgment page, 2 results page.
  int step() const { return m_step; }
  // The wizard buttons.
  const ButtonState& cmdBack() const { return m_cmdBack; }
  const ButtonState& cmdNext() const { return m_cmdNext; }
  const ButtonState& cmdFinish() const { return m_cmdFinish; }
  const ButtonState& cmdCancel() const { return m_cmdCancel; }
  const ButtonState& cmdTNWizardHelp() const { return m_cmdHelp; }
  const ButtonState& cmdPrint() const { return m_cmdPrint; }
  // The instruction shown on the judgment page.
  const LabelState& lblInstruction() const { return m_instruction; }
  // The tab of tsTabsW in front and the two panels it switches.
  int tsTabsW() const { return m_tabW; }
  bool picWeightEstVisible() const { return m_tabW == 1; }
  bool picRegStatusVisible() const { return m_tabW == 2; }
  // The two pages.
  const JudgmentPage& judgmentPage() const { return m_judgment; }
  JudgmentPage& judgmentPage() { return m_judgment; }
  const ResultsPage& resultsPage() const { return m_results; }
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

 private:
  void runRegression();
  void warn(const std::string& text);
  void changed();

  WizardContext& m_context;
  UiServices& m_ui;
  TradeOffsAEvents& m_events;
  JudgmentPage m_judgment;
  ResultsPage m_results;
  Regression m_regression;
  MultiRegressionData m_record;
  std::optional<std::string> m_fitError;
  std::optional<std::string> m_modelProblem;

  std::vector<JudgmentInfluence> m_worst;
  std::vector<std::string> m_worstLines;
  std::function<void()> m_changed;
  int m_step = 1;
  int m_tabW = 1;
  ButtonState m_cmdBack{"< &Back", true, true};
  ButtonState m_cmdNext{"&Next >", true, true};
  ButtonState m_cmdFinish{"&Finish", false, true};
  ButtonState m_cmdCancel{"&Cancel", true, true};
  ButtonState m_cmdHelp{"&Help", true, true};
  ButtonState m_cmdPrint{"&Print", true, true};
  LabelState m_instruction;
};

}  // namespace tnw
