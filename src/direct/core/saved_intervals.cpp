#include "direct/core/saved_intervals.h"

#include "common/core/number_format.h"
#include "common/core/recording_ui_services.h"
#include "common/core/ui_services.h"
#include "direct/core/direct_a_events.h"
#include "direct/core/direct_a_presenter.h"
#include "direct/core/scenario_player.h"
#include "wizard/core/wizard_context.h"

namespace tnw::direct {
namespace {

constexpr const char* kTitle = "NORIX";
constexpr const char* kNotLoaded = "These judgments cannot be loaded, and nothing was changed.\r";

using Box = JudgmentPage::Box;

// Takes the events of a trial run out of sight: none of them reaches the host.
class SilentEvents : public DirectAEvents {
 public:
  void ExportDirectAW(const std::string&, std::int16_t, std::vector<double>&, std::vector<double>&,
                      std::vector<double>&) override {}
  void SendMasseges(const std::string&) override {}
  void ShowTNWSelMethod() override {}
  void UnloadDirectA() override {}
  void UnloadTNWizard(std::int16_t, bool) override {}
};

// One step as the scenario player plays it: a restart, or the target chosen, both texts typed,
// the boxes left and Enter pressed.
void enterStep(DirectAPresenter& p, const ScenarioStep& step) {
  if (step.restart) {
    p.cmdReStart_Click();
    return;
  }
  p.imgcmbTargetAtt_Click(step.target);
  typeKeyByKey(p, Box::Lower, step.lower);
  typeKeyByKey(p, Box::Upper, step.upper);
  p.txtWR_LostFocus(Box::Lower);
  p.txtWR_LostFocus(Box::Upper);
  if (p.cmdEnter().enabled) p.cmdEnter_Click();
}

std::string stepName(std::size_t at) { return "step [" + std::to_string(at) + "]: "; }

}  // namespace

SavedIntervals::SavedIntervals(WizardContext& context, UiServices& ui, DirectAPresenter& presenter,
                               const IntervalsFile* file)
    : m_context(context), m_ui(ui), m_presenter(presenter), m_file(file) {}

wizard::ButtonState SavedIntervals::cmdSaveJudgments() const {
  const bool onPage = m_presenter.WizardStep() == DirectAPresenter::kJudgmentStep;
  // The reference's group is judged from the start; a target judged outside it is needed.
  const WeightRatioJudgments& j = m_presenter.judgment().judgments();
  bool judged = false;
  for (int i = 0; i < j.count() && !judged; ++i) {
    judged = j.judged(i) && j.group(i) != j.group(j.refAtt());
  }
  return {kSaveCaption, onPage && judged, m_file != nullptr};
}

wizard::ButtonState SavedIntervals::cmdLoadJudgments() const {
  return {kLoadCaption, m_presenter.WizardStep() == DirectAPresenter::kJudgmentStep,
          m_file != nullptr};
}

DirectScenario SavedIntervals::current() const {
  const WeightRatioJudgments& j = m_presenter.judgment().judgments();
  const DirectResult& r = m_presenter.result();
  DirectScenario s;
  std::vector<int> order;
  for (int i = 0; i < j.count(); ++i) order.push_back(j.group(i));
  s.order = order;
  s.reference = r.RefAtt;
  const int refGroup = j.group(r.RefAtt);
  for (int g = 1; g <= j.groupCount(); ++g) {
    if (g == refGroup) continue;
    for (int i = 0; i < j.count(); ++i) {
      if (j.group(i) != g || !j.judged(i)) continue;
      ScenarioStep step;
      step.target = i;
      step.lower = generalText(j.lower(i));
      step.upper = generalText(j.upper(i));
      s.steps.push_back(step);
      break;
    }
  }
  return s;
}

std::optional<std::string> SavedIntervals::problem(const DirectScenario& scenario) const {
  const DirectScenario here = current();
  if (!scenario.order || !scenario.reference) {
    return std::string("The file gives no importance order or no reference attribute.");
  }
  if (*scenario.order != *here.order || *scenario.reference != *here.reference) {
    return std::string(
        "The file's intervals were given for another importance order or reference attribute. "
        "Go back and set them as the file has them, then load it again.");
  }
  // The intervals are tried on a copy of the wizard's data, from a restarted page.
  WizardContext copy = m_context;
  RecordingUiServices quiet;
  SilentEvents silent;
  ScenarioPlayer trial(copy, quiet, silent);
  trial.load();
  DirectScenario run = scenario;
  run.steps.insert(run.steps.begin(), ScenarioStep{true, -1, {}, {}});
  run.end = ScenarioEnd::Cancel;
  run.entry = TextEntry::Typed;
  const PlayedScenario played = trial.play(run);
  if (played.error) return *played.error;
  for (std::size_t at = 1; at < played.steps.size(); ++at) {
    const PlayedStep& step = played.steps[at];
    if (!step.messages.empty()) return stepName(at - 1) + step.messages.front();
    if (!run.steps[at].restart && !step.recorded) {
      return stepName(at - 1) + "the interval of target " + std::to_string(run.steps[at].target) +
             " cannot be entered.";
    }
  }
  return std::nullopt;
}

bool SavedIntervals::replace(const DirectScenario& scenario) {
  if (auto why = problem(scenario)) {
    warn(kNotLoaded + *why);
    return false;
  }
  m_presenter.cmdReStart_Click();
  for (const ScenarioStep& step : scenario.steps) enterStep(m_presenter, step);
  return true;
}

void SavedIntervals::cmdSaveJudgments_Click() {
  if (m_file == nullptr || !cmdSaveJudgments().enabled) return;
  const std::string path = m_ui.chooseSaveFile("Save the judgments", kFilter, kSuggestedName);
  if (path.empty()) return;
  if (auto why = m_file->save(path, current())) warn("The judgments could not be saved.\r" + *why);
}

void SavedIntervals::cmdLoadJudgments_Click() {
  if (m_file == nullptr || !cmdLoadJudgments().enabled) return;
  const std::string path = m_ui.chooseOpenFile("Load judgments", kFilter);
  if (path.empty()) return;
  DirectScenario scenario;
  if (auto why = m_file->load(path, scenario)) {
    warn(kNotLoaded + *why);
    return;
  }
  replace(scenario);
}

void SavedIntervals::warn(const std::string& text) {
  m_ui.beep();
  m_ui.messageBox(text, MessageIcon::Exclamation, kTitle);
}

}  // namespace tnw::direct
