#pragma once

#include "scripted/scripted_dialog.h"
#include "scripted/scripted_scenario.h"
#include "tradeoffs/core/clock_random_source.h"
#include "tradeoffs/core/scenario_player.h"
#include "tradeoffs/core/tradeoffs_a_events.h"

namespace tnw {

struct WizardContext;

// frmTradeOffsA in the scripted test build: the trade-off method's scenario player, its dialog
// loaded on creation, plays one run of the scenario's "tradeOffs" list when first shown:
//   {"judgments": [{"first": i, "second": j, "scores": [a1, b1, a2, b2], "response": r}, ...],
//    "end": "Finish" | "Cancel" | "Back"}
// read and played as the command line's trade-off runner does: each judgment chooses the pair
// in manual mode, enters the four scores and the response and presses Enter; Finish first
// presses Next, which runs the regression, and is pressed when the fit was completed. The
// presenter's events pass through the dialog on their way to the component, so that after Finish it
// traces the exported arrays as the host left them.
class ScriptedTradeOffsDialog : public ScriptedDialog,
                                private tradeoffs::TradeOffsAEvents,
                                private tradeoffs::TradeOffObserver {
 public:
  // A loaded trade-off dialog (loading sends its instruction through events).
  ScriptedTradeOffsDialog(std::string name, WizardContext& context, tradeoffs::TradeOffsAEvents& events,
                          UiServices& ui, ScriptedScenario& scenario, MessageWindow& window,
                          const ScriptedTrace& trace);

 protected:
  // Plays the run taken on creation, once.
  void act() override;

 private:
  void ExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                        std::vector<double>& WeightsH, std::vector<double>& WeightsL) override;
  void SendMasseges(const std::string& Msg) override;
  void ShowTNWSelMethod() override;
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override;
  void judgmentEntered(const tradeoffs::TradeOffJudgment& judgment, bool entered) override;
  void finishing(int step, const std::string& comment, bool finishEnabled) override;

  WizardContext& m_context;
  tradeoffs::TradeOffsAEvents& m_events;
  tradeoffs::ClockRandomSource m_random;
  tradeoffs::TradeOffScenarioPlayer m_player;
  ScriptedScenario::Run m_run;
  bool m_played = false;
};

}  // namespace tnw
