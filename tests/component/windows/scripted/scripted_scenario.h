#pragma once

// Std
#include <deque>
#include <string>

// nlohmann
#include <nlohmann/json.hpp>

namespace tnw {

class ScriptedTrace;

// What the scripted test dialogs do, read from the JSON file TNW_SCRIPTED_SCENARIO names:
//   {"selMethod": ["Direct" | "TradeOffs" | "Next" | "Cancel" | "Help", ...],
//    "direct":    [run, ...],
//    "tradeOffs": [run, ...]}
// The selection dialog takes the next "selMethod" entry each time it is shown; each direct or
// trade-off dialog made takes the next run of its list, read as the command line reads its
// scenarios and judgments (model_json) and played by the method's scenario player. A dialog with
// nothing left waits, as a user who does nothing. Without TNW_SCRIPTED_SCENARIO there is no
// scenario at all, and the wizard is not shown.
class ScriptedScenario {
 public:
  // Reads the scenario; a missing or unreadable file gives an empty one (traced).
  explicit ScriptedScenario(const ScriptedTrace& trace);

  // Whether TNW_SCRIPTED_SCENARIO names a scenario.
  bool given() const { return m_given; }
  // The selection dialog's next action; empty when none is left.
  std::string nextSelMethodAction();
  // One run of a method's list as written, and where it stands in the file ("/direct/0").
  struct Run {
    nlohmann::json value;
    std::string pointer;
  };
  // The next direct-method run; a null value when none is left.
  Run nextDirectRun();
  // The next trade-off run; a null value when none is left.
  Run nextTradeOffsRun();

 private:
  bool m_given = false;
  std::deque<std::string> m_selMethod;
  std::deque<Run> m_direct;
  std::deque<Run> m_tradeOffs;
};

}  // namespace tnw
