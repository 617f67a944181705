#pragma once

#include "direct/core/scenario_player.h"
#include "scripted/scripted_dialog.h"
#include "scripted/scripted_scenario.h"

namespace tnw {

struct WizardContext;

// frmDirectA in the scripted test build: the direct method's scenario player, its dialog loaded
// on creation, plays one run of the scenario's "direct" list when first shown:
//   {"order": [group per attribute], "reference": r,
//    "steps": [{"target": t, "lower": "text", "upper": "text"} | {"restart": true}, ...],
//    "end": "Finish" | "Cancel" | "Back"}
// read and played as the command line's direct runner does, with each text set whole ("order"
// and "reference" may be left out when the model holds an earlier result; a run with only an
// "end" other than Finish stays on the first step). After Finish it traces the exported arrays
// as they are once the host's handler returned, which shows that the host's changes reached the
// dialog's arrays.
class ScriptedDirectDialog : public ScriptedDialog, private direct::ScenarioObserver {
 public:
  // A loaded direct-method dialog (loading sends its status text through events).
  ScriptedDirectDialog(std::string name, WizardContext& context, direct::DirectAEvents& events,
                       UiServices& ui, ScriptedScenario& scenario, MessageWindow& window,
                       const ScriptedTrace& trace);

 protected:
  // Plays the run taken on creation, once.
  void act() override;

 private:
  void orderPlaced(bool nextEnabled) override;
  void referenceChosen(int step, const std::string& caption) override;
  void stepPlayed(const direct::ScenarioStep& step, const direct::PlayedStep& played) override;
  void finishing(int step, bool finishEnabled) override;
  std::string arraysText() const;

  direct::ScenarioPlayer m_player;
  ScriptedScenario::Run m_run;
  bool m_played = false;
};

}  // namespace tnw
