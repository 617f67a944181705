#pragma once

// Std
#include <cstdint>
#include <string>

namespace tnw::selmethod {

// The events the method-selection dialog raises; the component object receives them.
class SelMethodEvents {
 public:
  virtual ~SelMethodEvents() = default;

  // Next with "Direct" selected.
  virtual void ShowTNWDirect() = 0;
  // Next with "TradeOffs" selected.
  virtual void ShowTNWTradeOffsA() = 0;
  // Cancel: asks the host to end the wizard.
  virtual void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) = 0;
  // A status text for the host's status line.
  virtual void SendMasseges(const std::string& Msg) = 0;
};

}  // namespace tnw::selmethod
