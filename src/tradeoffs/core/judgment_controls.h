#pragma once

#include "tradeoffs/core/score_panel.h"
#include "wizard/core/control_states.h"

// Std
#include <array>
#include <string>

namespace tnw::tradeoffs {

// Everything a view shows of the judgment page, by control name.
struct JudgmentControls {
  // The fixed texts of the page.
  static constexpr const char* kFrameCaption = "Select two attributes";
  static constexpr const char* kThisNumCaption = "Current Tradeoff:";
  static constexpr const char* kNeccesaryNumCaption = "Tradeoffs needed:";
  static constexpr std::array<const char*, 4> kScoreCaptions = {"(&1):", "(&2):", "(&3):", "(&4):"};
  static constexpr const char* kDiffHeading = "Diff.";
  static constexpr std::array<const char*, 2> kDiffCaptions = {"(1)-(3):", "(2)-(4):"};
  static constexpr const char* kVerbalQuestion = "Do you prefer A over B:";
  static constexpr std::array<const char*, 3> kScaleMarks = {"-1", "-2", "-3"};
  static constexpr std::array<const char*, 2> kToolbarButtons = {"Up", "Down"};

  wizard::OptionState optPCAutomatic{"Automatic", true, true};
  wizard::OptionState optPCManual{"Manual", false, true};
  wizard::ListState lstTradeOffFirstC{"The fi&rst:", {}, -1, false};
  wizard::ListState lstTradeOffSecondC{"The &second:", {}, -1, false};
  // The number of the trade-off in hand and the number needed.
  wizard::LabelState labPCThisNum;
  wizard::LabelState labPCNeccesaryNum;
  // The axis captions of the panel: the names of the two selected attributes once loaded.
  wizard::LabelState labPCCriterion1{"Attribute 1", true};
  wizard::LabelState labPCCriterion2{"Attribute 2", true};
  // Score boxes, in the order of the step toolbars tbScoreChanger(0..3): (1) A on the first
  // attribute, (2) A on the second, (3) B on the first, (4) B on the second.
  std::array<wizard::TextBoxState, 4> scoreBoxes;
  // A's score minus B's on the first and on the second attribute.
  wizard::LabelState labTradeOffDiff1;
  wizard::LabelState labTradeOffDiff2;
  wizard::ButtonState cmdTradeOffClearAll{"Clear &All", true, true};
  wizard::ButtonState cmdTradeOffEnter{"&Enter", true, true};
  // The seven degrees of the verbal scale, index 0 "Strongly" to 6 "Strongly the opposite".
  std::array<wizard::OptionState, 7> optPCVerbal{{{"Strongly", false, true},
                                                  {"Moderately", false, true},
                                                  {"Slightly", false, true},
                                                  {"Indifference", true, true},
                                                  {"Slightly the opposite", false, true},
                                                  {"Moderately the opposite", false, true},
                                                  {"Strongly the opposite", false, true}}};
  // The tab of tsComparisonApproaches in front: 1 numerical (framePCNumericalC), 2 verbal
  // (framePCVerbalC).
  int tsComparisonApproaches = 1;
  // The points A and B of the panel framePCGraph.
  PanelPoint shpPCA;
  PanelPoint shpPCB;

  // The score box of a toolbar index (0..3).
  wizard::TextBoxState& txtTradeOffAFirstScore() { return scoreBoxes[0]; }
  wizard::TextBoxState& txtTradeOffASecondScore() { return scoreBoxes[1]; }
  wizard::TextBoxState& txtTradeOffBFirstScore() { return scoreBoxes[2]; }
  wizard::TextBoxState& txtTradeOffBSecondScore() { return scoreBoxes[3]; }
  // The control names of the score boxes, by index.
  static constexpr std::array<const char*, 4> kScoreBoxNames = {
      "txtTradeOffAFirstScore", "txtTradeOffASecondScore", "txtTradeOffBFirstScore",
      "txtTradeOffBSecondScore"};
};

}  // namespace tnw::tradeoffs
