#pragma once

#include "tradeoffs/core/judgments_file.h"
#include "tradeoffs/core/scenario.h"
#include "wizard/core/control_states.h"

// Std
#include <optional>
#include <string>
#include <vector>

namespace tnw {
struct WizardContext;
class UiServices;
}  // namespace tnw

namespace tnw::tradeoffs {

struct JudgmentStore;
class TradeOffsAPresenter;

// Save and Load of the judgment page: the recorded judgments written to a file in the form the
// command line's `tradeoffs` tool reads, and such a file read back in their place. A loaded
// file replaces the judgments on the page rather than adding to them: the file is a whole
// session, so the page then holds what the file holds, and the same file given to the command
// line gives the same fit. A file that does not fit the model changes nothing.
class SavedJudgments {
 public:
  // The captions of the two buttons and the file chooser's filter.
  static constexpr const char* kSaveCaption = "Sa&ve judgments...";
  static constexpr const char* kLoadCaption = "&Load judgments...";
  static constexpr const char* kFilter = "Judgments (*.json);;All files (*)";
  // The file chooser's default name.
  static constexpr const char* kSuggestedName = "judgments.json";

  // Save and Load over the dialog's presenter; without a file form (null) neither is shown.
  // Every argument must outlive this object.
  SavedJudgments(WizardContext& context, UiServices& ui, TradeOffsAPresenter& presenter,
                 const JudgmentsFile* file);

  // Button "Save": shown with a file form, enabled while judgments are recorded.
  wizard::ButtonState cmdSaveJudgments() const;
  // Button "Load": shown with a file form, enabled while the method can weigh the model.
  wizard::ButtonState cmdLoadJudgments() const;
  // Asks for a file name and writes the recorded judgments there; a cancelled choice does
  // nothing.
  void cmdSaveJudgments_Click();
  // Asks for a file, reads it and puts its judgments in place of the recorded ones; on any
  // problem shows what is wrong and changes nothing.
  void cmdLoadJudgments_Click();

  // The judgments recorded in store, in order, as the file holds them.
  static std::vector<TradeOffJudgment> recorded(const JudgmentStore& store);
  // Why judgments cannot all be entered on the page as it is now (a pair the lists refuse, a
  // score outside its attribute's range or without a value, more judgments than the method
  // records); none when they can.
  std::optional<std::string> problem(const std::vector<TradeOffJudgment>& judgments) const;
  // Replaces the recorded judgments with judgments, entered one by one as a user does in
  // manual mode; shows the problem and changes nothing when they cannot all be entered.
  bool replace(const std::vector<TradeOffJudgment>& judgments);

 private:
  void warn(const std::string& text);

  WizardContext& m_context;
  UiServices& m_ui;
  TradeOffsAPresenter& m_presenter;
  const JudgmentsFile* m_file;
};

}  // namespace tnw::tradeoffs
