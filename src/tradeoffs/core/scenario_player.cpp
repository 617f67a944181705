#include "tradeoffs/core/scenario_player.h"

#include "wizard/core/wizard_context.h"
#include "tradeoffs/core/judgment_entry.h"

namespace tnw::tradeoffs {

TradeOffScenarioPlayer::TradeOffScenarioPlayer(WizardContext& context, UiServices& ui,
                                               TradeOffsAEvents& events, RandomSource& random)
    : m_context(context), m_presenter(context, ui, events, random) {}

void TradeOffScenarioPlayer::load() { m_presenter.Form_Load(); }

const std::string& TradeOffScenarioPlayer::instruction() const {
  return m_presenter.lblInstruction().caption;
}

void TradeOffScenarioPlayer::play(const TradeOffScenario& scenario) {
  TradeOffObserver quiet;
  play(scenario, quiet);
}

void TradeOffScenarioPlayer::play(const TradeOffScenario& scenario, TradeOffObserver& observer) {
  m_presenter.optPCManual_Click();
  for (const TradeOffJudgment& j : scenario.judgments) observer.judgmentEntered(j, enter(j));
  end(scenario.end, observer);
}

bool TradeOffScenarioPlayer::enter(const TradeOffJudgment& j) {
  return enterJudgment(m_presenter, m_context.model.attributeCount(), j);
}

void TradeOffScenarioPlayer::end(ScenarioEnd how, TradeOffObserver& observer) {
  switch (how) {
    case ScenarioEnd::Cancel:
      m_presenter.cmdCancel_Click();
      return;
    case ScenarioEnd::Back:
      // The judgments are on the first step: Back leads to the method selection.
      m_presenter.cmdBack_Click();
      return;
    case ScenarioEnd::Finish:
      m_presenter.cmdNext_Click();
      observer.finishing(m_presenter.step(), m_presenter.weights().RegressionComment,
                         m_presenter.cmdFinish().enabled);
      if (!m_presenter.fitError()) m_presenter.cmdFinish_Click();
      return;
  }
}

TradeOffOutcome TradeOffScenarioPlayer::outcome() const {
  const RegressionWork& w = m_presenter.regression().work();
  const int k = m_context.model.attributeCount();
  TradeOffOutcome out;
  out.noInverse = w.NoInverse == 1;
  out.fitError = m_presenter.fitError();
  out.record = m_presenter.record();
  for (int i = 1; i <= k && i < static_cast<int>(w.Weights.size()); ++i) {
    out.weights.push_back(w.Weights[static_cast<std::size_t>(i)]);
  }
  out.comment = m_presenter.weights().RegressionComment;
  out.worstJudgments = m_presenter.worstJudgments();
  out.worstJudgmentLines = m_presenter.worstJudgmentLines();
  return out;
}

}  // namespace tnw::tradeoffs
