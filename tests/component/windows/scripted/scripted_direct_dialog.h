#pragma once

#include "direct/direct_a_presenter.h"
#include "scripted/scripted_dialog.h"

// nlohmann
#include <nlohmann/json.hpp>

namespace tnw {

class ScriptedScenario;
struct WizardContext;

// frmDirectA in the scripted test build: the direct-method presenter, loaded on creation, plays
// one run of the scenario's "direct" list when first shown:
//   {"order": [group per attribute], "reference": r,
//    "steps": [{"target": t, "lower": "text", "upper": "text"} | {"restart": true}, ...],
//    "end": "Finish" | "Cancel" | "Back"}
// as the command line's direct runner does ("order" and "reference" may be left out when the
// model holds an earlier result). After Finish it traces the exported arrays as they are once
// the host's handler returned, which shows that the host's changes reached the dialog's arrays.
class ScriptedDirectDialog : public ScriptedDialog {
 public:
  // A loaded direct-method dialog (loading sends its status text through events).
  ScriptedDirectDialog(std::string name, WizardContext& context, direct::DirectAEvents& events,
                       UiServices& ui, ScriptedScenario& scenario, MessageWindow& window,
                       const ScriptedTrace& trace);

 protected:
  // Plays the run taken on creation, once.
  void act() override;

 private:
  void placeOrder(const nlohmann::json& order);
  void chooseReference(const nlohmann::json& run);
  void judge(const nlohmann::json& step);
  void end(const std::string& how);
  std::string arraysText() const;

  direct::DirectAPresenter m_presenter;
  nlohmann::json m_run;
  bool m_played = false;
};

}  // namespace tnw
