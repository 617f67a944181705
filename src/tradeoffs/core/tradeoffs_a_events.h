#pragma once

// Std
#include <cstdint>
#include <string>
#include <vector>

namespace tnw::tradeoffs {

// The events the trade-off dialog raises; the component object receives them.
class TradeOffsAEvents {
 public:
  virtual ~TradeOffsAEvents() = default;

  // Finish: the exported weights; the arrays are the dialog's own, passed by reference.
  virtual void ExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                                std::vector<double>& WeightsH, std::vector<double>& WeightsL) = 0;
  // A status text for the host's status line.
  virtual void SendMasseges(const std::string& Msg) = 0;
  // Back on the first step: return to method selection.
  virtual void ShowTNWSelMethod() = 0;
  // Finish or Cancel: asks the host to end the wizard.
  virtual void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) = 0;
};

}  // namespace tnw::tradeoffs
