#pragma once

#include "scripted/scripted_dialog.h"
#include "tradeoffs/clock_random_source.h"
#include "tradeoffs/trade_offs_a_events.h"
#include "tradeoffs/trade_offs_a_presenter.h"

// nlohmann
#include <nlohmann/json.hpp>

namespace tnw {

class ScriptedScenario;
struct WizardContext;

// frmTradeOffsA in the scripted test build: the trade-off presenter, loaded on creation, plays
// one run of the scenario's "tradeOffs" list when first shown:
//   {"judgments": [{"first": i, "second": j, "scores": [a1, b1, a2, b2], "response": r}, ...],
//    "end": "Finish" | "Cancel" | "Back"}
// as the command line's trade-off runner does: each judgment chooses the pair in manual mode,
// types the four scores and the response and presses Enter; Finish first presses Next, which
// runs the regression. The presenter's events pass through the dialog on their way to the
// component, so that after Finish it traces the exported arrays as the host left them.
class ScriptedTradeOffsDialog : public ScriptedDialog, private tradeoffs::TradeOffsAEvents {
 public:
  // A loaded trade-off dialog (loading sends its instruction through events).
  ScriptedTradeOffsDialog(std::string name, WizardContext& context,
                          tradeoffs::TradeOffsAEvents& events, UiServices& ui,
                          ScriptedScenario& scenario, MessageWindow& window,
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
  void judge(const nlohmann::json& judgment);
  bool choosePair(int first, int second);
  void finish();

  WizardContext& m_context;
  tradeoffs::TradeOffsAEvents& m_events;
  tradeoffs::ClockRandomSource m_random;
  tradeoffs::TradeOffsAPresenter m_presenter;
  nlohmann::json m_run;
  bool m_played = false;
};

}  // namespace tnw
