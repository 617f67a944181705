#include "direct/core/scenario_player.h"

#include "wizard/core/wizard_context.h"

// Std
#include <stdexcept>
#include <utility>

namespace tnw::direct {
namespace {

using Box = JudgmentPage::Box;

// A scenario that cannot be played as written; what() says why.
struct ScenarioError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Whether the run chooses an order and a reference before its end: a run that gives none of
// them and no step stays on the first step unless it ends with Finish, which needs the results.
bool choosesFirst(const DirectScenario& scenario) {
  return scenario.order || scenario.reference || !scenario.steps.empty() ||
         scenario.end == ScenarioEnd::Finish;
}

}  // namespace

void ScenarioPlayer::MessageLog::messageBox(const std::string& text, MessageIcon icon,
                                            const std::string& title) {
  m_texts.push_back(text);
  m_ui.messageBox(text, icon, title);
}

std::vector<std::string> ScenarioPlayer::MessageLog::since(std::size_t from) const {
  if (from >= m_texts.size()) return {};
  return {m_texts.begin() + static_cast<std::ptrdiff_t>(from), m_texts.end()};
}

ScenarioPlayer::ScenarioPlayer(WizardContext& context, UiServices& ui, DirectAEvents& events)
    : m_log(ui), m_presenter(context, m_log, events) {}

void ScenarioPlayer::load() { m_presenter.Form_Load(); }

const std::string& ScenarioPlayer::caption() const { return m_presenter.caption(); }

const DirectExport::Weights& ScenarioPlayer::exported() const { return m_presenter.exported(); }

PlayedScenario ScenarioPlayer::play(const DirectScenario& scenario) {
  ScenarioObserver quiet;
  return play(scenario, quiet);
}

PlayedScenario ScenarioPlayer::play(const DirectScenario& scenario, ScenarioObserver& observer) {
  PlayedScenario played;
  if (!m_presenter.usable()) {
    played.usable = false;
    played.error = m_log.texts().empty() ? std::string("the model cannot be weighed here")
                                         : m_log.texts().back();
    m_entryFrom = m_log.texts().size();
    return played;
  }
  try {
    if (choosesFirst(scenario)) chooseOrderAndReference(scenario, observer);
  } catch (const ScenarioError& e) {
    played.error = e.what();
  }
  played.entryMessages = m_log.since(m_entryFrom);
  m_entryFrom = m_log.texts().size();
  if (played.error) return played;
  if (m_presenter.resuming() && scenario.reference &&
      *scenario.reference != m_presenter.result().RefAtt) {
    played.keptReference = m_presenter.result().RefAtt;
  }
  for (const ScenarioStep& step : scenario.steps) {
    played.steps.push_back(playStep(step, scenario.entry));
    observer.stepPlayed(step, played.steps.back());
  }
  const std::size_t before = m_log.texts().size();
  end(scenario.end, observer);
  played.endMessages = m_log.since(before);
  m_entryFrom = m_log.texts().size();
  return played;
}

void ScenarioPlayer::chooseOrderAndReference(const DirectScenario& scenario,
                                             ScenarioObserver& observer) {
  if (scenario.order) {
    placeOrder(*scenario.order);
    observer.orderPlaced(m_presenter.cmdNext().enabled);
  } else if (!m_presenter.resuming()) {
    throw ScenarioError("\"order\" is needed when the model holds no earlier result");
  }
  m_presenter.cmdNext_Click();
  if (m_presenter.WizardStep() != 1) {
    throw ScenarioError("the order does not place every attribute");
  }
  if (scenario.reference) {
    const int r = *scenario.reference;
    if (r < 0 || r >= m_presenter.ordering().order().numAtt()) {
      throw ScenarioError("\"reference\" is not an attribute index");
    }
    m_presenter.cmdAttButtons_Click(r);
  } else if (!m_presenter.resuming()) {
    throw ScenarioError("\"reference\" is needed when the model holds no earlier result");
  }
  m_presenter.cmdNext_Click();
  observer.referenceChosen(m_presenter.WizardStep(), m_presenter.caption());
}

void ScenarioPlayer::placeOrder(const std::vector<int>& order) {
  const int n = m_presenter.ordering().order().numAtt();
  if (static_cast<int>(order.size()) != n) {
    throw ScenarioError("\"order\" needs one group number per attribute");
  }
  for (int j = 0; j < n; ++j) {
    const int g = order[static_cast<std::size_t>(j)];
    if (g < 1 || g > n) throw ScenarioError("group numbers run from 1 to the attribute count");
    while (m_presenter.ordering().order().GroupCount() < g) m_presenter.cmdAdd_Click();
    const bool placed = m_presenter.ordering().order().AttGroup(j) != 0;
    m_presenter.picOrder_DragDrop(g, (placed ? "B" : "A") + std::to_string(j));
  }
}

void typeKeyByKey(DirectAPresenter& presenter, JudgmentPage::Box box, const std::string& text) {
  presenter.txtWR_SetText(box, "");
  for (const unsigned char c : text) {
    const wizard::TextBoxState& shown = presenter.judgment().box(box);
    presenter.txtWR_KeyPress(box, shown.selStart, shown.selLength, c);
  }
}

void ScenarioPlayer::enterText(Box box, const std::string& text, TextEntry entry) {
  if (entry == TextEntry::Set) {
    m_presenter.txtWR_SetText(box, text);
    return;
  }
  typeKeyByKey(m_presenter, box, text);
}

// A target refused, or a message on leaving a box, ends the step unrecorded.
bool ScenarioPlayer::judge(const ScenarioStep& step, TextEntry entry) {
  const std::size_t before = m_log.texts().size();
  m_presenter.imgcmbTargetAtt_Click(step.target);
  if (m_presenter.judgment().targets().currentTarget() != step.target ||
      m_log.texts().size() != before) {
    return false;
  }
  enterText(Box::Lower, step.lower, entry);
  enterText(Box::Upper, step.upper, entry);
  m_presenter.txtWR_LostFocus(Box::Lower);
  if (m_log.texts().size() != before) return false;
  m_presenter.txtWR_LostFocus(Box::Upper);
  if (m_log.texts().size() != before) return false;
  if (!m_presenter.cmdEnter().enabled) return false;
  return m_presenter.cmdEnter_Click();
}

PlayedStep ScenarioPlayer::playStep(const ScenarioStep& step, TextEntry entry) {
  const std::size_t before = m_log.texts().size();
  PlayedStep played;
  if (step.restart) {
    m_presenter.cmdReStart_Click();
  } else {
    played.recorded = judge(step, entry);
  }
  const JudgmentPage& page = m_presenter.judgment();
  played.messages = m_log.since(before);
  played.lowerText = page.box(Box::Lower).text;
  played.upperText = page.box(Box::Upper).text;
  played.status = m_presenter.lamps().state();
  played.diagnosis = page.diagnosis();
  return played;
}

void ScenarioPlayer::end(ScenarioEnd how, ScenarioObserver& observer) {
  switch (how) {
    case ScenarioEnd::Cancel:
      m_presenter.cmdCancel_Click();
      return;
    case ScenarioEnd::Back:
      while (m_presenter.WizardStep() > 0) m_presenter.cmdBack_Click();
      m_presenter.cmdBack_Click();
      return;
    case ScenarioEnd::Finish:
      m_presenter.cmdNext_Click();
      observer.finishing(m_presenter.WizardStep(), m_presenter.cmdFinish().enabled);
      m_presenter.cmdFinish_Click();
      return;
  }
}

ScenarioOutcome ScenarioPlayer::outcome() const {
  const auto& judged = m_presenter.judgment().judgments().judgedFlags();
  ScenarioOutcome out;
  out.step = m_presenter.WizardStep();
  out.finalGroupCount = m_presenter.result().FinalGroupCount;
  out.finalAttGroup = m_presenter.result().FinalAttGroup;
  out.refAtt = m_presenter.result().RefAtt;
  out.lower = m_presenter.result().LowerWeights;
  out.middle = m_presenter.result().CloseWeights;
  out.upper = m_presenter.result().UpperWeights;
  out.judged.assign(judged.begin(), judged.end());
  out.complete = m_presenter.judgment().judgments().isComplete();
  if (out.step == 3) {
    out.grid = m_presenter.grid();
    out.exactBounds = m_presenter.exactBounds();
  }
  return out;
}

}  // namespace tnw::direct
