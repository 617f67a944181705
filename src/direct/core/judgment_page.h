#pragma once

#include "direct/core/direct_a_shared.h"
#include "direct/core/judgment_diagnosis.h"
#include "direct/core/judgment_status_check.h"
#include "direct/core/preference_cone.h"
#include "direct/core/status_lamps.h"
#include "direct/core/target_list.h"
#include "direct/core/weight_ratio_judgments.h"
#include "wizard/core/control_states.h"
#include "wizard/core/wizard_page.h"

// Std
#include <array>
#include <string>
#include <vector>

namespace tnw::direct {

// Step 2 of the direct method: the target list imgcmbTargetAtt, the ratio boxes txtWRLower and
// txtWRUpper, the preference cone with its two handles picHandle, the status lamps, cmdEnter
// and cmdReStart, and the final order on the tab picOrderTab.
class JudgmentPage : public wizard::WizardPage {
 public:
  // The step this page is on.
  static constexpr int kStep = 2;
  // One of the two ratio boxes.
  enum class Box { Lower, Upper };
  // What the page holds, taken before and after a command for undo and redo: the judgments with
  // the result's ratio tables, the targets, the boxes, the handles (and the side of the area
  // they were placed on), the lamps, the buttons and labels the page sets, and which targets
  // were recorded since the page was entered.
  struct Snapshot {
    WeightRatioJudgments::State judgments;
    TargetList targets;
    RegionHandles handles;
    float coneSide = 0.0F;
    wizard::TextBoxState lower;
    wizard::TextBoxState upper;
    std::string focus;
    int valid = 0;
    StatusLamps lamps;
    std::array<wizard::ButtonState, 4> buttons;  // Enter, Re-start All, Next, Finish
    std::array<wizard::LabelState, 10> labels;
    std::vector<bool> recorded;
  };

  // The status message sent when the target list is filled (leading blank kept).
  static constexpr const char* kIndicateMessage =
      " Indicate a value reference region on the two selected attributes.";
  // The caption of the ratio frame and the labels around the two boxes.
  static constexpr const char* kRatioFrameCaption = "Relative importance (weight ratio Wj/Wr)";
  static constexpr const char* kFromLabel = "From:";
  static constexpr const char* kToLabel = "To:";
  static constexpr const char* kPerOneLabel = "/1";
  // The refusals of a target choice.
  static constexpr const char* kSameAttributeMessage =
      "Please choose different attributes to make pairwise comparisons!";
  static constexpr const char* kSameGroupMessage =
      "The selected attribute is in the same group with the reference attribute for the "
      "benefit-oriened ones. It is not necessary to make tradeoffs between them.";

  // The page over the shared data, blinking its lamps through `lamps`.
  JudgmentPage(DirectAShared& shared, StatusLamps& lamps);

  // Entered by Next from the reference choice: enter() with the earlier judgments when the
  // wizard resumes them.
  void initializePage() override;
  // Left by Back for the reference choice: leave().
  void cleanupPage() override;
  // Back from the results: Next is enabled again.
  void revisitPage() override;
  // The results come next.
  int nextId() const override { return kStep + 1; }
  // Complete while no attribute is open, which enables Next.
  bool isComplete() const override { return m_shared.usable && m_shared.buttons.cmdNext.enabled; }

  // Entering the page from step 1: the initial or the resumed intervals, the target list, the
  // first judgment and the order tab. Returns whether the earlier judgments were resumed.
  bool enter(bool resume);
  // Leaving for step 1: the order tab is hidden and the target selection reset.
  void leave();

  // imgcmbTargetAtt_Click: attribute i chosen as the target (refusals shown as messages).
  void chooseTarget(int i);
  // A key typed into a box whose text, caret and selection are `current`.
  void keyPress(Box box, const wizard::TextBoxState& current, int keyAscii);
  // A key typed into a box that shows the page's text, with the caret and selection given: the
  // text is not handed over, so a key costs the same however long the text is.
  void keyPress(Box box, int selStart, int selLength, int keyAscii);
  // KeyDown of a box: whether the key is discarded (Shift+Insert).
  bool keyDown(Box box, int keyCode, bool shift) const;
  // The focus leaves a box (LostFocus): its bound is checked, the cone redrawn when it passed.
  void leaveBox(Box box);
  // Replaces a box's text (as a paste-free edit by the view or a runner).
  void setBoxText(Box box, const std::string& text);
  // Handle 0 (lower box) or 1 (upper box) dragged to (x, y) on the drawing area.
  void dragHandle(int index, float x, float y);
  // The side of the drawing area and the handle size, in the view's pixels.
  void setArea(float side, float handleSize);
  // cmdEnter_Click: checks the lower bound, the upper bound and the status of the current
  // judgment (as leaving the boxes does) and records it only when all pass; returns whether it
  // was recorded.
  bool enterJudgment();
  // cmdReStart_Click: every judgment starts again.
  void restart();

  // The page as it is now.
  Snapshot snapshot() const;
  // Puts the page back as a snapshot took it; handles placed on an area of another size are
  // scaled to the area as it is now.
  void restore(const Snapshot& s);
  // The number of targets whose interval Enter recorded since the page was entered (or all
  // judgments restarted): the judgments Cancel would throw away.
  int judgmentsRecorded() const;

  // The judgment tables.
  const WeightRatioJudgments& judgments() const { return m_judgments; }
  // The target list.
  const TargetList& targets() const { return m_targets; }
  // The text, caret and selection of a box.
  const wizard::TextBoxState& box(Box box) const;
  // The control that has the focus on this page ("txtWRLower", "txtWRUpper", "cmdReStart" or "").
  const std::string& focus() const { return m_focus; }
  // The validity flag of the current entry: 1 after a bound passed its check, 0 after a failure.
  int validity() const { return m_valid; }
  // The cone geometry for the current area.
  const PreferenceCone& cone() const { return m_cone; }
  // The current handle points.
  const RegionHandles& handles() const { return m_handles; }
  // The top-left corner of handle 0 or 1, in whole pixels.
  IntPoint handleTopLeft(int index) const;
  // The filled triangle of the cone.
  std::array<IntPoint, 3> coneTriangle() const;
  // The status the current handles would give (the check without its display).
  JudgmentStatusCheck::Result evaluate() const;
  // Why the lit status is "Inconsistent" or "Invalid", with the nearest consistent interval;
  // an empty diagnosis while no such status is lit.
  JudgmentDiagnosis::Result diagnosis() const;
  // Enter and Re-start All, shown on this page's step only.
  const wizard::ButtonState& cmdEnter() const { return m_cmdEnter; }
  const wizard::ButtonState& cmdReStart() const { return m_cmdReStart; }
  // Shows Enter and Re-start All on this page's step, hides them on the others.
  void showButtons(bool visible);
  // The names of the two attributes, above the boxes and on the chart's axes.
  const wizard::LabelState& lblTargetAtt() const { return m_lblTargetAtt; }
  const wizard::LabelState& lblChartRefAtt() const { return m_lblChartRefAtt; }
  const wizard::LabelState& lblChartTarAtt() const { return m_lblChartTarAtt; }
  // The score ranges of the reference and the target.
  const wizard::LabelState& lblRefRangeLow() const { return m_lblRefRangeLow; }
  const wizard::LabelState& lblRefRangeHigh() const { return m_lblRefRangeHigh; }
  const wizard::LabelState& lblTarRangeLow() const { return m_lblTarRangeLow; }
  const wizard::LabelState& lblTarRangeHigh() const { return m_lblTarRangeHigh; }
  // The orientation pictures of the two attributes: the caption is the picture's name.
  const wizard::LabelState& imgRefAtt() const { return m_imgRefAtt; }
  const wizard::LabelState& imgTargetAtt() const { return m_imgTargetAtt; }
  // Whether the final-order frames of the tab are shown.
  bool orderTabVisible() const { return m_orderTabVisible; }
  // The attributes of final group k (1-based) in model order: the buttons cmdAttBtn of frame
  // picOrderGrp(k - 1).
  std::vector<int> orderGroup(int k) const;

 private:
  void ListAtt();
  void DisplayAttPair(int target, int reference);
  void IniJudgmentStatusA(int target);
  void IniJudgmentStatusB(int attribute);
  void ShowPreJudgmentStatus(int target);
  void DisplayPrefCone();
  void Check_Judgment_Status();
  void placeHandles(double lower, double upper);
  void showRatios(double lower, double upper);
  bool checkBound(Box box);
  // The status check of the interval the boxes show, the handles placed from them if needed.
  void checkStatusOfBoxes();
  // Enables Next and Finish exactly when no attribute is open.
  void showCompletion();
  wizard::TextBoxState& boxState(Box box);
  // The labels a page sets (const or not), in the order of Snapshot::labels.
  template <class Page>
  static auto labelsOf(Page& page);

  DirectAShared& m_shared;
  StatusLamps& m_lamps;
  WeightRatioJudgments m_judgments;
  TargetList m_targets;
  PreferenceCone m_cone{200.0F, 8.0F};
  RegionHandles m_handles;
  wizard::TextBoxState m_lower;
  wizard::TextBoxState m_upper;
  std::string m_focus;
  int m_valid = 0;
  bool m_loading = false;
  bool m_orderTabVisible = false;
  wizard::ButtonState m_cmdEnter{"&Enter"};
  wizard::ButtonState m_cmdReStart{"&Re-start All"};
  wizard::LabelState m_lblTargetAtt;
  wizard::LabelState m_lblChartRefAtt;
  wizard::LabelState m_lblChartTarAtt;
  wizard::LabelState m_lblRefRangeLow;
  wizard::LabelState m_lblRefRangeHigh;
  wizard::LabelState m_lblTarRangeLow;
  wizard::LabelState m_lblTarRangeHigh;
  wizard::LabelState m_imgRefAtt;
  wizard::LabelState m_imgTargetAtt;
  // Per attribute: whether Enter recorded its interval since the page was entered.
  std::vector<bool> m_recorded;
};

}  // namespace tnw::direct
