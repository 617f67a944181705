#pragma once

#include "common/core/currency.h"
#include "model/attribute_model.h"
#include "tradeoffs/core/judgment_controls.h"
#include "tradeoffs/core/judgment_store.h"
#include "tradeoffs/core/pair_generator.h"
#include "tradeoffs/core/score_panel.h"
#include "tradeoffs/core/tradeoff_weights.h"
#include "wizard/core/wizard_page.h"

// Std
#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace tnw {
struct WizardContext;
class UiServices;
}  // namespace tnw

namespace tnw::tradeoffs {

// The judgment page of the trade-off dialog: the pair of attributes, the random alternatives A
// and B, score entry and checks, the verbal scale, and Enter recording judgments into the store
// the regression reads. Messages go through the UI services; the view renders controls().
class JudgmentPage : public wizard::WizardPage {
 public:
  // The controls the page gives the focus to, by number: none, the score boxes by index
  // (kBoxAFirst..kBoxBSecond), and Enter.
  static constexpr std::int8_t kNoFocus = -1;
  static constexpr std::int8_t kEnterFocus = 4;

  // What a command can change of an option whose caption stays as it is.
  struct OptionFlags {
    bool value = false;
    bool enabled = true;
  };
  // What a command can change of a list: its selection and whether it takes clicks.
  struct ListSelection {
    int listIndex = -1;
    bool enabled = false;
  };
  // What a command can change of a button whose caption stays as it is.
  struct ButtonFlags {
    bool enabled = true;
    bool visible = true;
  };
  // One slot of the store, held in place: a judgment's row has one value difference per
  // attribute, so at most kMaxAttributes of them.
  struct StoreSlot {
    double scoreAFirst = 0.0;
    double scoreBFirst = 0.0;
    double scoreASecond = 0.0;
    double scoreBSecond = 0.0;
    std::int16_t prefResponse = 0;
    std::int16_t firstAtt = 0;
    std::int16_t secondAtt = 0;
    int valueCount = 0;
    std::array<double, kMaxAttributes> valueDiff{};
  };
  // What the page holds, taken before and after a command for undo and redo: what a command can
  // change and nothing more. The captions that stay as they are while the page lives (of the
  // options, the lists and the buttons) and the lists' items stay with the page; the focus is
  // kept by number and the store's slot in place. So a snapshot holds no memory of its own
  // (but for a text too long to be kept inside a string), and a history of hundreds of
  // judgments is cheap to keep and to let go of. The slot is the one Enter writes; Clear All
  // only lowers the count and leaves the slots as they are.
  struct Snapshot {
    OptionFlags optPCAutomatic;
    OptionFlags optPCManual;
    std::array<OptionFlags, 7> optPCVerbal;
    ListSelection lstTradeOffFirstC;
    ListSelection lstTradeOffSecondC;
    ButtonFlags cmdTradeOffClearAll;
    ButtonFlags cmdTradeOffEnter;
    wizard::LabelState labPCThisNum;
    wizard::LabelState labPCNeccesaryNum;
    wizard::LabelState labPCCriterion1;
    wizard::LabelState labPCCriterion2;
    wizard::LabelState labTradeOffDiff1;
    wizard::LabelState labTradeOffDiff2;
    std::array<wizard::TextBoxState, 4> scoreBoxes;
    int tsComparisonApproaches = 1;
    PanelPoint shpPCA;
    PanelPoint shpPCB;
    ScorePanel panel;
    std::int8_t focus = kNoFocus;
    std::int16_t tradeOffNo = 0;
    std::int16_t tradeOffsNeeded = 0;
    std::int16_t first = 0;
    std::int16_t second = 1;
    bool automatic = true;
    bool entryError = false;
    bool changedByToolbar = false;
    std::array<float, 4> ranges{};
    int judgmentCount = 0;
    int slot = -1;
    StoreSlot judgment;
  };

  // The instruction of the page.
  static constexpr const char* kInstruction =
      " Give your preference between the two selected criteria.";
  // The refusals of the two lists (their wording differs on purpose).
  static constexpr const char* kFirstListRefusal =
      "Please choose different criteria to make pairwise comparisons!";
  static constexpr const char* kSecondListRefusal =
      "Please choose different attributes to compare!";
  // The message of Enter once every needed trade-off is recorded.
  static constexpr const char* kFinishedMessage =
      "You have finished all tradeoffs.\r The next step is to process multiple linear regression "
      "analysis.";

  // A page over the wizard's shared data; all three must outlive it.
  JudgmentPage(WizardContext& context, UiServices& ui, RandomSource& random);

  // Form_Load, and going back to the page: counters, pair (0, 1), store and a new pair A, B.
  void reset();
  // Loading: the page in its first state (reset).
  void initializePage() override { reset(); }
  // Back from the results page: Enter is enabled again and the page starts afresh (reset).
  void revisitPage() override;
  // Next leads to the results page.
  int nextId() const override { return kResultsStep; }
  // The regression may run on whatever has been recorded, so Next is never held back here.
  bool isComplete() const override { return true; }

  // The controls as the view shows them.
  const JudgmentControls& controls() const { return m_controls; }
  // The control that has the focus (its name; empty when the page does not move it).
  const std::string& focus() const;
  // The judgments recorded so far.
  JudgmentStore& store() { return m_store; }
  const JudgmentStore& store() const { return m_store; }
  // The counters and the pair.
  std::int16_t TradeOffNo() const { return m_tradeOffNo; }
  std::int16_t TradeOffsNeeded() const { return m_tradeOffsNeeded; }
  std::int16_t FirstAttIndex() const { return m_first; }
  std::int16_t SecondAttIndex() const { return m_second; }
  // Whether the last check found a faulty entry.
  bool entryError() const { return m_entryError; }
  // Whether a score was last changed by a step toolbar.
  bool changedByToolbar() const { return m_changedByToolbar; }

  // Option "Automatic": pair (0, 1), lists and panel follow, new A and B.
  void optPCAutomatic_Click();
  // Option "Manual": the pair is left to the lists.
  void optPCManual_Click();
  // A choice in the first or the second list.
  void lstTradeOffFirstC_Click(int index);
  void lstTradeOffSecondC_Click(int index);
  // A key pressed in score box `box` (0..3) with the given caret and selection.
  void scoreBoxKeyPress(int box, int key, int selStart, int selLength);
  // The view's own edit of a box's text (paste, delete).
  void setScoreText(int box, const std::string& text);
  // Button "Up" or "Down" of step toolbar `index` (0..3).
  void tbScoreChanger_ButtonClick(int index, bool up);
  // Point A or B dropped at a panel position (fractions).
  void dragPoint(bool pointA, double x, double y);
  // An option of the verbal scale (0..6).
  void optPCVerbal_Click(int index);
  // A tab of tsComparisonApproaches (1 numerical, 2 verbal; others do nothing).
  void tsComparisonApproaches_Click(int tab);
  // Button "&Enter": records the judgment in hand.
  void cmdTradeOffEnter_Click();
  // Button "Clear &All": recording starts again from the first trade-off.
  void cmdTradeOffClearAll_Click();
  // Re-enables Enter (Back from the results page).
  void enableEnter() { m_controls.cmdTradeOffEnter.enabled = true; }
  // Disables Enter, for a model the method cannot weigh.
  void disableEnter() { m_controls.cmdTradeOffEnter.enabled = false; }

  // The page as it is now, with the judgment in store slot `slot` (0-based; none for a slot
  // outside the store).
  Snapshot snapshot(int slot) const;
  // Puts the page back as a snapshot took it.
  void restore(const Snapshot& s);

  // Draws A and B for the pair and fills the four boxes.
  void DisplayScoresInTxtBox(int first, int second);
  // The score boxes by index: (1) A first, (2) A second, (3) B first, (4) B second.
  static constexpr int kBoxAFirst = 0;
  static constexpr int kBoxASecond = 1;
  static constexpr int kBoxBFirst = 2;
  static constexpr int kBoxBSecond = 3;

  // Checks box `box` against the first attribute's score range; false (message shown, the box
  // selected and focused, the entry-error flag set) when its number lies outside.
  bool CheckEnteredDataF(int box);
  // The same against the second attribute's score range.
  bool CheckEnteredDataS(int box);
  // Checks A1 and B1 with CheckEnteredDataF, then A2 and B2 with CheckEnteredDataS; false at the
  // first failure.
  bool CheckData();
  // The trade-off ratio of the boxes for attributes p and q (order 1: the first-attribute boxes
  // belong to q); empty when a value cannot be computed.
  std::optional<Currency> AbsoluteWeight(int p, int q, int order) const;

 private:
  void setPair(int first, int second);
  void relabel();
  bool checkBoxRange(int box, float low, float high);
  bool recordJudgment();
  std::optional<double> WeightsInput(int attribute, int which) const;
  void showDifferences();
  double boxValue(int box) const;
  void fail(const std::string& text);

  WizardContext& m_context;
  UiServices& m_ui;
  PairGenerator m_pairs;
  JudgmentControls m_controls;
  JudgmentStore m_store;
  ScorePanel m_panel;
  std::int8_t m_focus = kNoFocus;
  std::int16_t m_tradeOffNo = 0;
  std::int16_t m_tradeOffsNeeded = 0;
  std::int16_t m_first = 0;
  std::int16_t m_second = 1;
  bool m_automatic = true;
  bool m_entryError = false;
  bool m_changedByToolbar = false;
  // The stored low and high ends of the two selected attributes' score ranges (the low end may
  // be the larger), single precision.
  float m_lowFirst = 0.0f;
  float m_highFirst = 0.0f;
  float m_lowSecond = 0.0f;
  float m_highSecond = 0.0f;
};

}  // namespace tnw::tradeoffs
