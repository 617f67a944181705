#pragma once

#include "tradeoffs/core/scenario.h"

namespace tnw::tradeoffs {

class TradeOffsAPresenter;

// Enters one judgment on the judgment page as a user does in manual mode: the pair chosen in the
// two lists, the four scores typed, the tab and the option chosen, and Enter pressed. False when
// the lists refuse the pair (their message shown), and nothing was entered.
bool enterJudgment(TradeOffsAPresenter& presenter, int numAtt, const TradeOffJudgment& judgment);

}  // namespace tnw::tradeoffs
