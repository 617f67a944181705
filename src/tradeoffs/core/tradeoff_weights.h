#pragma once

// Std
#include <string>
#include <vector>

namespace tnw::tradeoffs {

// The steps of the trade-off dialog, numbered from 0 as in every wizard dialog.
inline constexpr int kJudgmentStep = 0;
inline constexpr int kResultsStep = 1;

// The result of the trade-off method: the weight estimates of the last completed fit (one entry
// per attribute) and its consistency comment. The method keeps it and hands it to the host on
// Finish; a fit that fails leaves it as it was.
struct TradeOffWeights {
  std::vector<double> LowerWeights;
  std::vector<double> CloseWeights;
  std::vector<double> UpperWeights;
  std::string RegressionComment;
};

}  // namespace tnw::tradeoffs
