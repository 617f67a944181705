#pragma once

#include "common/core/ui_services.h"
#include "tradeoffs/core/scenario.h"
#include "tradeoffs/core/tradeoffs_a_presenter.h"

// Std
#include <optional>
#include <string>
#include <vector>

namespace tnw::tradeoffs {

// The fit a run left: what the results step shows and the regression's comment.
struct TradeOffOutcome {
  // Whether the normal equations could not be inverted.
  bool noInverse = false;
  // Why the fit could not be completed; none when it was.
  std::optional<std::string> fitError;
  // The fit's record (coefficients, their ranges, the consistency index).
  MultiRegressionData record;
  // The weights of the attributes, in model order.
  std::vector<double> weights;
  // The regression's comment on the consistency index.
  std::string comment;
  // The judgments that lower the consistency index most, and their list lines.
  std::vector<JudgmentInfluence> worstJudgments;
  std::vector<std::string> worstJudgmentLines;
};

// What a player reports while it plays, for a trace; every function does nothing by default.
class TradeOffObserver {
 public:
  virtual ~TradeOffObserver() = default;
  // A judgment was entered, or its pair refused by the lists (entered false).
  virtual void judgmentEntered(const TradeOffJudgment& /*judgment*/, bool /*entered*/) {}
  // Next was pressed before Finish: the step now, the regression's comment, whether Finish is
  // enabled.
  virtual void finishing(int /*step*/, const std::string& /*comment*/, bool /*finishEnabled*/) {}
};

// Plays trade-off scenarios through the dialog's presenter as its user would: manual mode, for
// each judgment the pair chosen in the two lists, the four scores and the response entered and
// Enter pressed, then the run's end. The one place that drives the presenter for a scenario, for
// the command line and for the scripted test dialogs.
class TradeOffScenarioPlayer {
 public:
  // A player over the wizard's data; ui shows the messages, events take the export, random
  // draws the automatic pairs.
  TradeOffScenarioPlayer(WizardContext& context, UiServices& ui, TradeOffsAEvents& events,
                         RandomSource& random);
  TradeOffScenarioPlayer(const TradeOffScenarioPlayer&) = delete;
  TradeOffScenarioPlayer& operator=(const TradeOffScenarioPlayer&) = delete;

  // Loads the dialog as it opens (Form_Load).
  void load();
  // The instruction the dialog shows.
  const std::string& instruction() const;
  // Plays scenario on the loaded dialog, reporting to observer. Finish is pressed only when the
  // fit was completed; otherwise it would show the fit's message once more.
  void play(const TradeOffScenario& scenario, TradeOffObserver& observer);
  // Plays scenario on the loaded dialog.
  void play(const TradeOffScenario& scenario);
  // The fit now; reads the wizard's data, so only while the wizard is open.
  TradeOffOutcome outcome() const;

 private:
  bool enter(const TradeOffJudgment& judgment);
  void end(ScenarioEnd how, TradeOffObserver& observer);

  WizardContext& m_context;
  TradeOffsAPresenter m_presenter;
};

}  // namespace tnw::tradeoffs
