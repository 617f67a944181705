#pragma once

// Std
#include <cstdint>
#include <string>
#include <vector>

namespace tnw::direct {

// The events the direct-method dialog raises; the component object receives them.
class DirectAEvents {
 public:
  virtual ~DirectAEvents() = default;

  // Finish: the exported weights; the arrays are the dialog's own, passed by reference.
  virtual void ExportDirectAW(const std::string& TNType, std::int16_t RefAttID,
                              std::vector<double>& Weights, std::vector<double>& WeightsH,
                              std::vector<double>& WeightsL) = 0;
  // A status text for the host's status line.
  virtual void SendMasseges(const std::string& Msg) = 0;
  // Back on the first step: return to method selection.
  virtual void ShowTNWSelMethod() = 0;
  // The dialog asks to be released.
  virtual void UnloadDirectA() = 0;
  // Finish or Cancel: asks the host to end the wizard.
  virtual void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) = 0;
};

}  // namespace tnw::direct
