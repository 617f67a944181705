#include "tradeoffs/core/scenario_player.h"

#include "common/core/number_format.h"
#include "wizard/core/wizard_context.h"

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

// Chooses the pair in the two lists in an order that the lists do not refuse on the way. An
// exchange of the two attributes goes through a third one when the model has one; with two
// attributes the lists refuse it, as they do in the dialog.
bool TradeOffScenarioPlayer::choosePair(const TradeOffJudgment& j) {
  const JudgmentPage& page = m_presenter.judgmentPage();
  if (j.first == page.SecondAttIndex() && j.second == page.FirstAttIndex()) {
    for (int t = 0; t < m_context.model.attributeCount(); ++t) {
      if (t != j.first && t != j.second) {
        m_presenter.lstTradeOffFirstC_Click(t);
        break;
      }
    }
  }
  if (j.first == page.SecondAttIndex()) {
    m_presenter.lstTradeOffSecondC_Click(j.second);
    m_presenter.lstTradeOffFirstC_Click(j.first);
  } else {
    m_presenter.lstTradeOffFirstC_Click(j.first);
    m_presenter.lstTradeOffSecondC_Click(j.second);
  }
  return page.FirstAttIndex() == j.first && page.SecondAttIndex() == j.second;
}

bool TradeOffScenarioPlayer::enter(const TradeOffJudgment& j) {
  if (!choosePair(j)) return false;
  // Boxes in the order (1) A first, (2) A second, (3) B first, (4) B second.
  const double boxes[4] = {j.scores[0], j.scores[2], j.scores[1], j.scores[3]};
  for (int i = 0; i < 4; ++i) m_presenter.setScoreText(i, generalText(boxes[i]));
  if (j.response == 0) {
    m_presenter.tsComparisonApproaches_Click(1);
  } else {
    m_presenter.tsComparisonApproaches_Click(2);
    m_presenter.optPCVerbal_Click(j.response + 3);
  }
  m_presenter.cmdTradeOffEnter_Click();
  return true;
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
