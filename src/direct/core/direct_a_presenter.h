#pragma once

#include "common/core/ui_services.h"
#include "direct/core/direct_a_shared.h"
#include "direct/core/direct_export.h"
#include "direct/core/exact_weight_bounds.h"
#include "direct/core/judgment_page.h"
#include "direct/core/ordering_page.h"
#include "direct/core/reference_page.h"
#include "direct/core/results_page.h"
#include "direct/core/status_lamps.h"
#include "wizard/core/command_stack.h"
#include "wizard/core/wizard_presenter.h"

// Std
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tnw::direct {

// The direct-method dialog frmDirectA without its widgets: the four steps (order, reference,
// judgments, results), each a page that owns its controls' state, so that a view renders them
// and hands every user action to one operation here. Operations are named after the dialog's
// handlers. After each operation the change listener is called; events go to the DirectAEvents
// listener; messages, beeps, the busy pointer and help go through the UI services.
class DirectAPresenter : public wizard::WizardPresenter {
 public:
  // The steps, from 0.
  static constexpr int kOrderStep = OrderingPage::kStep;
  static constexpr int kReferenceStep = ReferencePage::kStep;
  static constexpr int kJudgmentStep = JudgmentPage::kStep;
  static constexpr int kResultsStep = ResultsPage::kStep;
  // The form's caption on each step.
  static constexpr std::array<const char*, 4> kCaptions{
      "Tarnel Wizard: Give an importantce order of the attirbutes",
      "Tarnel Wizard: Select reference attributes for pairwise comparisons",
      "Tarnel Wizard: Estimate intervals of the weight ratios",
      "Tarnel Wizard: Results of the value judgments"};
  // The design caption, replaced on load.
  static constexpr const char* kDesignCaption = "Tarnel Wizard: Initial Judgments";
  // The status text sent on load.
  static constexpr const char* kOrderMessage =
      "Order the attributes according to their relative importance.";
  // The help file name in NorixDir and its context number.
  static constexpr const char* kHelpFile = "NORIX.HLP";
  static constexpr int kHelpContext = 4005025;
  // The result kind of the export.
  static constexpr const char* kTNType = "MAVT_DIRECT";

  // A presenter over the wizard's data; nothing happens until Form_Load.
  DirectAPresenter(WizardContext& context, UiServices& ui, DirectAEvents& events);

  // Form_Load: step 0, with the earlier order restored when the model holds an earlier result.
  void Form_Load();
  // The wizard buttons.
  void cmdNext_Click();
  void cmdBack_Click();
  void cmdFinish_Click();
  void cmdCancel_Click();
  void cmdHelp_Click();
  // The help page of this dialog and the current step's anchor on it.
  HelpTopic helpTopic() const;
  // A tick of Timer1: blinks the indicator and the status lamps.
  void Timer1_Timer();

  // Step 0: a drop with payload `tag` on the box of `group`, or on the placed button of `att`.
  void picOrder_DragDrop(int group, std::string_view tag);
  void cmdAttB_DragDrop(int att, std::string_view tag);
  // Step 0: Add, Insert, a click on a group box (or its number label) or on a placed button.
  void cmdAdd_Click();
  void cmdInsert_Click();
  void picOrder_Click(int group);
  void cmdAttB_Click(int att);
  // Step 0: a click on an attribute's name label or option button; a drag over the list.
  void optAttInfo_Click(int att);
  void lblAttName_DragOver(std::string_view tag);

  // Step 1: the attribute button of attribute i chosen as the reference.
  void cmdAttButtons_Click(int i);

  // Step 2: the target chosen in imgcmbTargetAtt (item i is attribute i).
  void imgcmbTargetAtt_Click(int i);
  // Step 2: a key typed into a ratio box whose text, caret and selection are `current`.
  void txtWR_KeyPress(JudgmentPage::Box box, const wizard::TextBoxState& current, int keyAscii);
  // Step 2: a key typed into a ratio box that shows judgment().box(box)'s text, with its caret
  // and selection; the cost of a key does not grow with the text.
  void txtWR_KeyPress(JudgmentPage::Box box, int selStart, int selLength, int keyAscii);
  // Step 2: KeyDown of a ratio box; true when the key must be discarded (Shift+Insert).
  bool txtWR_KeyDown(JudgmentPage::Box box, int keyCode, bool shift) const;
  // Step 2: the focus leaves a ratio box.
  void txtWR_LostFocus(JudgmentPage::Box box);
  // Step 2: a ratio box's text replaced as a whole (a view's edit, or a runner typing it).
  void txtWR_SetText(JudgmentPage::Box box, const std::string& text);
  // Step 2: handle 0 (lower) or 1 (upper) dragged to (x, y) on picTradeOffsRange.
  void picHandle_Drag(int index, float x, float y);
  // Step 2: the side of picTradeOffsRange and the size of a handle, in the view's pixels.
  void setConeArea(float side, float handleSize);
  // Step 2: Enter, however pressed: the bound and status checks run first, and the judgment is
  // recorded only when all pass. Returns whether it was recorded.
  bool cmdEnter_Click();
  // Step 2: Re-start All.
  void cmdReStart_Click();
  // Step 2: Undo and Redo (Ctrl+Z, Ctrl+Shift+Z or Ctrl+Y): Enter and Re-start All are taken
  // back and made again, exactly, in the order they were made.
  void cmdUndo_Click();
  void cmdRedo_Click();
  // The Undo and Redo buttons: shown on step 2, enabled when there is a command to undo or to
  // redo.
  wizard::ButtonState cmdUndo() const;
  wizard::ButtonState cmdRedo() const;
  // The undo history of the dialog.
  const wizard::CommandStack<JudgmentPage::Snapshot>& commands() const { return m_commands; }
  // The number of judgments Cancel would throw away: the targets recorded on step 2 since it was
  // entered, and not restarted.
  int judgmentsToDiscard() const { return m_judgment.judgmentsRecorded(); }

  // The current step, 0 to 3 (the same as step()).
  int WizardStep() const { return step(); }
  // Enter and Re-start All (step 2).
  const wizard::ButtonState& cmdEnter() const { return m_judgment.cmdEnter(); }
  const wizard::ButtonState& cmdReStart() const { return m_judgment.cmdReStart(); }
  // Add and Insert (step 0).
  const wizard::ButtonState& cmdAdd() const { return m_ordering.cmdAdd(); }
  const wizard::ButtonState& cmdInsert() const { return m_ordering.cmdInsert(); }
  // The reference attribute's name above steps 1 and 2.
  const wizard::LabelState& lblRefAtt() const { return m_shared.lblRefAtt; }
  // The indicator on the reference's button (step 1).
  const wizard::LabelState& picIndicator() const { return m_reference.picIndicator(); }
  // Step 0's attribute list, order boxes and information frame.
  const OrderingPage& ordering() const { return m_ordering; }
  // Step 1's final order and reference choice.
  const ReferencePage& reference() const { return m_reference; }
  // Step 2's targets, boxes, cone and judgments.
  const JudgmentPage& judgment() const { return m_judgment; }
  // Step 3's grid and exact weight ranges.
  const ResultsPage& results() const { return m_results; }
  // Step 3's grid gridTN.
  const ResultsGrid& grid() const { return m_results.grid(); }
  // Step 3's exact weight ranges, shown beside gridTN (computed on entering step 3).
  const ExactWeightBounds::Result& exactBounds() const { return m_results.exactBounds(); }
  // The status lamps, the indicator's colour and Timer1's interval.
  const StatusLamps& lamps() const { return m_lamps; }
  // Timer1's interval in milliseconds (0 when stopped).
  int timerInterval() const { return m_lamps.timerInterval(); }
  // Step 1: the attributes of final group k (1-based), the buttons in box picO(k - 1).
  std::vector<int> finalGroup(int k) const { return m_reference.finalGroup(k); }
  // Step 1: the attribute whose button carries the indicator picIndicator (-1 when hidden).
  int indicatorAttribute() const { return m_reference.indicatorAttribute(); }
  // Whether the wizard resumes an earlier result.
  bool resuming() const { return m_shared.resume; }
  // Whether the model has 1 to 31 attributes; otherwise only Back, Cancel and Help work.
  bool usable() const { return m_shared.usable; }
  // The method's result: the final order, the reference and the weight-ratio tables.
  const DirectResult& result() const { return m_result; }
  // The result, writable: lets a caller put in tables no input could reach (the export's
  // guards against a zero sum are tested this way).
  DirectResult& mutableResult() { return m_result; }
  // The arrays of the last export (the very arrays handed to ExportDirectAW).
  const DirectExport::Weights& exported() const { return m_export; }

 private:
  static int usableCount(const WizardContext& context);
  void showStep();
  // Records a command of step 2 that went from `before` to the page as it is now.
  void recordCommand(JudgmentPage::Snapshot before);

  WizardContext& m_context;
  DirectResult m_result;
  DirectAShared m_shared;
  StatusLamps m_lamps;
  OrderingPage m_ordering;
  ReferencePage m_reference;
  JudgmentPage m_judgment;
  ResultsPage m_results;
  DirectExport::Weights m_export;
  wizard::CommandStack<JudgmentPage::Snapshot> m_commands;
};

}  // namespace tnw::direct
