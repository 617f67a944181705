#pragma once

#include "direct/core/intervals_file.h"
#include "direct/core/scenario.h"
#include "wizard/core/control_states.h"

// Std
#include <optional>
#include <string>

namespace tnw {
struct WizardContext;
class UiServices;
}  // namespace tnw

namespace tnw::direct {

class DirectAPresenter;

// Save and Load of the judgment step: the importance order, the reference and one interval per
// judged group written to a file in the form the command line's `direct` tool reads, and such a
// file's intervals entered in place of the ones on the page. A loaded file replaces the
// intervals rather than adding to them (the page restarts, then each interval is entered as a
// user enters it), so the page holds what the file holds and the same file given to the
// command line gives the same weights. The file must have been judged with the page's order
// and reference; a file that does not fit changes nothing.
class SavedIntervals {
 public:
  // The captions of the two buttons and the file chooser's filter.
  static constexpr const char* kSaveCaption = "Sa&ve judgments...";
  static constexpr const char* kLoadCaption = "&Load judgments...";
  static constexpr const char* kFilter = "Judgments (*.json);;All files (*)";
  // The file chooser's default name.
  static constexpr const char* kSuggestedName = "intervals.json";

  // Save and Load over the dialog's presenter; without a file form (null) neither is shown.
  // Every argument must outlive this object.
  SavedIntervals(WizardContext& context, UiServices& ui, DirectAPresenter& presenter,
                 const IntervalsFile* file);

  // Button "Save": shown with a file form, enabled on the judgment step once a target is judged.
  wizard::ButtonState cmdSaveJudgments() const;
  // Button "Load": shown with a file form, enabled on the judgment step.
  wizard::ButtonState cmdLoadJudgments() const;
  // Asks for a file name and writes the judgments there; a cancelled choice does nothing.
  void cmdSaveJudgments_Click();
  // Asks for a file, reads it and enters its intervals in place of the page's; on any problem
  // shows what is wrong and changes nothing.
  void cmdLoadJudgments_Click();

  // The page's judgments as a scenario: the final order, the reference and, for each group
  // but the reference's from the most important down, its first judged attribute's interval.
  DirectScenario current() const;
  // Why scenario's intervals cannot all be entered on the page as it is now; none when they
  // can. They are tried first on a copy of the wizard's data, out of sight.
  std::optional<std::string> problem(const DirectScenario& scenario) const;
  // Replaces the page's intervals with scenario's; shows the problem and changes nothing when
  // they cannot all be entered.
  bool replace(const DirectScenario& scenario);

 private:
  void warn(const std::string& text);

  WizardContext& m_context;
  UiServices& m_ui;
  DirectAPresenter& m_presenter;
  const IntervalsFile* m_file;
};

}  // namespace tnw::direct
