#pragma once

#include "direct/core/direct_a_events.h"

// Std
#include <string>
#include <vector>

namespace tnw::test {

// Records every event the direct-method dialog raises.
class RecordingDirectAEvents : public direct::DirectAEvents {
 public:
  struct Export {
    std::string type;
    std::int16_t refAtt = 0;
    std::vector<double> weights, weightsH, weightsL;
  };
  struct Unload {
    std::int16_t fIndex = 0;
    bool weightsDone = false;
  };

  void ExportDirectAW(const std::string& TNType, std::int16_t RefAttID,
                      std::vector<double>& Weights, std::vector<double>& WeightsH,
                      std::vector<double>& WeightsL) override {
    exports.push_back({TNType, RefAttID, Weights, WeightsH, WeightsL});
    log.push_back("ExportDirectAW");
  }
  void SendMasseges(const std::string& Msg) override {
    messages.push_back(Msg);
    log.push_back("SendMasseges");
  }
  void ShowTNWSelMethod() override { log.push_back("ShowTNWSelMethod"); }
  void UnloadDirectA() override { log.push_back("UnloadDirectA"); }
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    unloads.push_back({fIndex, WeightsDone});
    log.push_back("UnloadTNWizard");
  }

  std::vector<Export> exports;
  std::vector<Unload> unloads;
  std::vector<std::string> messages;
  std::vector<std::string> log;
};

}  // namespace tnw::test
