#include "tradeoffs/core/judgment_entry.h"

#include "common/core/number_format.h"
#include "tradeoffs/core/tradeoffs_a_presenter.h"

namespace tnw::tradeoffs {
namespace {

// Chooses the pair in the two lists in an order that the lists do not refuse on the way. An
// exchange of the two attributes goes through a third one when the model has one; with two
// attributes the lists refuse it, as they do in the dialog.
bool choosePair(TradeOffsAPresenter& presenter, int numAtt, const TradeOffJudgment& j) {
  const JudgmentPage& page = presenter.judgmentPage();
  if (j.first == page.SecondAttIndex() && j.second == page.FirstAttIndex()) {
    for (int t = 0; t < numAtt; ++t) {
      if (t != j.first && t != j.second) {
        presenter.lstTradeOffFirstC_Click(t);
        break;
      }
    }
  }
  if (j.first == page.SecondAttIndex()) {
    presenter.lstTradeOffSecondC_Click(j.second);
    presenter.lstTradeOffFirstC_Click(j.first);
  } else {
    presenter.lstTradeOffFirstC_Click(j.first);
    presenter.lstTradeOffSecondC_Click(j.second);
  }
  return page.FirstAttIndex() == j.first && page.SecondAttIndex() == j.second;
}

}  // namespace

bool enterJudgment(TradeOffsAPresenter& presenter, int numAtt, const TradeOffJudgment& j) {
  if (!choosePair(presenter, numAtt, j)) return false;
  // Boxes in the order (1) A first, (2) A second, (3) B first, (4) B second.
  const double boxes[4] = {j.scores[0], j.scores[2], j.scores[1], j.scores[3]};
  for (int i = 0; i < 4; ++i) presenter.setScoreText(i, generalText(boxes[i]));
  if (j.response == 0) {
    presenter.tsComparisonApproaches_Click(1);
  } else {
    presenter.tsComparisonApproaches_Click(2);
    presenter.optPCVerbal_Click(j.response + 3);
  }
  presenter.cmdTradeOffEnter_Click();
  return true;
}

}  // namespace tnw::tradeoffs
