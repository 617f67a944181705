// tnwizard show [MODEL]: acts as the host, shows the wizard and prints every event as JSON.

#include "builtin_sample.h"
#include "commands.h"
#include "component/tnw_mavt.h"

// Qt
#include <QApplication>

// Std
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <random>
#include <system_error>

namespace {

constexpr const char* kCannotAccess = "There are problems in accessing the relevant data.";

// Prints each event as one JSON line and ends the run on UnloadTNWizard.
class PrintingHost : public tnw::TnwMavtEvents {
 public:
  explicit PrintingHost(tnw::TNW_MAVT& wizard) : m_wizard(wizard) {}

  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    print({{"event", "UnloadTNWizard"}, {"fIndex", fIndex}, {"weightsDone", WeightsDone}});
    m_wizard.UnloadTNWizard();
    QCoreApplication::exit(0);
  }
  void ExportDirectAW(const std::string& TNType, std::int16_t RefAttID,
                      std::vector<double>& Weights, std::vector<double>& WeightsH,
                      std::vector<double>& WeightsL) override {
    print({{"event", "ExportDirectAW"},
           {"type", TNType},
           {"refAtt", RefAttID},
           {"weights", Weights},
           {"weightsH", WeightsH},
           {"weightsL", WeightsL}});
  }
  void ExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                        std::vector<double>& WeightsH, std::vector<double>& WeightsL) override {
    print({{"event", "ExportTradeOffsW"},
           {"type", TNType},
           {"weights", Weights},
           {"weightsH", WeightsH},
           {"weightsL", WeightsL}});
  }
  void SendMasseges(const std::string& Msg) override {
    print({{"event", "SendMasseges"}, {"msg", Msg}});
  }

 private:
  // ordered_json keeps the keys in the order written, which is the documented order of each line.
  static void print(const nlohmann::ordered_json& line) {
    std::cout << line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
              << std::endl;
  }

  tnw::TNW_MAVT& m_wizard;
};

// Writes the built-in sample model to a file of its own in the temporary directory.
std::filesystem::path writeBuiltInSample() {
  std::error_code ec;
  const std::filesystem::path dir = std::filesystem::temp_directory_path(ec);
  if (ec) return {};
  const std::filesystem::path path =
      dir / ("tnwizard-sample-" + std::to_string(std::random_device{}()) + ".nrx");
  std::ofstream out(path, std::ios::binary);
  const auto bytes = tnw::builtInSampleModel();
  out.write(reinterpret_cast<const char*>(bytes.data()),
            static_cast<std::streamsize>(bytes.size()));
  return out ? path : std::filesystem::path{};
}

}  // namespace

int runShow(const std::vector<std::string>& args) {
  if (args.size() > 1) return tnwUsage();
  std::filesystem::path sample;
  std::string model;
  if (args.empty()) {
    sample = writeBuiltInSample();
    model = sample.string();
  } else {
    model = args[0];
  }
  if (model.empty() || !std::ifstream(model, std::ios::binary)) {
    std::fprintf(stderr, "%s\n", kCannotAccess);
    return kExitCannotOpen;
  }

  static int argc = 1;
  static char name[] = "tnwizard";
  static char* argv[] = {name, nullptr};
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  int status = 0;
  {
    tnw::TNW_MAVT wizard;
    PrintingHost host(wizard);
    wizard.setEvents(&host);
    std::string norixDir = QCoreApplication::applicationDirPath().toStdString();
    wizard.GetCurFileData(norixDir, 1, model);
    // The model is read once; the sample's copy is not needed after that.
    if (!sample.empty()) {
      std::error_code ec;
      std::filesystem::remove(sample, ec);
    }
    wizard.ShowTNWizard();
    status = QApplication::exec();
    wizard.setEvents(nullptr);
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return status;
}
