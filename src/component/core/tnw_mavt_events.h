#pragma once

// Std
#include <cstdint>
#include <string>
#include <vector>

namespace tnw {

// The four events a host receives from TNW_MAVT. Override the ones you need; the others do
// nothing. Every event is raised on the user-interface thread, from inside the wizard's own
// handling of a user action; a handler may call TNW_MAVT::UnloadTNWizard() and may even destroy
// the TNW_MAVT object.
class TnwMavtEvents {
 public:
  virtual ~TnwMavtEvents() = default;

  // The wizard asks to be ended: fIndex is the FileIndex given to GetCurFileData, WeightsDone
  // is true after Finish (the weights were exported just before) and false after Cancel. The
  // host answers by calling UnloadTNWizard().
  virtual void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) {
    static_cast<void>(fIndex);
    static_cast<void>(WeightsDone);
  }
  // The direct method's result: TNType is "MAVT_DIRECT", RefAttID the reference attribute
  // (0-based), and one weight with its upper and lower bound per attribute. The arrays are the
  // dialog's own, passed by reference.
  virtual void ExportDirectAW(const std::string& TNType, std::int16_t RefAttID,
                              std::vector<double>& Weights, std::vector<double>& WeightsH,
                              std::vector<double>& WeightsL) {
    static_cast<void>(TNType);
    static_cast<void>(RefAttID);
    static_cast<void>(Weights);
    static_cast<void>(WeightsH);
    static_cast<void>(WeightsL);
  }
  // The trade-off method's result: TNType is "MAVT_TRADEOFFS"; the arrays as above.
  virtual void ExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                                std::vector<double>& WeightsH, std::vector<double>& WeightsL) {
    static_cast<void>(TNType);
    static_cast<void>(Weights);
    static_cast<void>(WeightsH);
    static_cast<void>(WeightsL);
  }
  // A status text for the host's status line.
  virtual void SendMasseges(const std::string& Msg) { static_cast<void>(Msg); }
};

}  // namespace tnw
