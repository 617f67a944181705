// tnwizard model dump MODEL / tnwizard model make INPUT.json -o MODEL

#include "commands.h"
#include "console_ui_services.h"
#include "model/model_file_reader.h"
#include "model/model_file_writer.h"
#include "model_json/model_json.h"

// Std
#include <cstdio>
#include <iostream>

namespace {

constexpr const char* kCannotAccess = "There are problems in accessing the relevant data.";

int dump(const std::vector<std::string>& args) {
  if (args.size() != 1) return tnwUsage();
  tnw::ConsoleUiServices ui;
  tnw::AttributeModel model;
  const tnw::ModelReadReport report = tnw::OpenRelatedFileForTNW(args[0], model, ui);
  if (!report.opened) return kExitCannotOpen;
  std::cout << tnw::modelToJson(model, report.complete).dump(2) << "\n";
  return 0;
}

int make(const std::vector<std::string>& args) {
  std::string input;
  std::string output;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "-o" && i + 1 < args.size() && output.empty()) {
      output = args[++i];
    } else if (input.empty() && args[i] != "-o") {
      input = args[i];
    } else {
      return tnwUsage();
    }
  }
  if (input.empty() || output.empty()) return tnwUsage();
  std::string text;
  if (const int status = readJsonInputFile(input, tnw::kModelJsonLimits.maxBytes, text)) {
    return status;
  }
  tnw::AttributeModel model;
  if (const auto error = tnw::modelFromJsonText(text, model)) {
    std::fprintf(stderr, "%s\n", tnw::inputErrorLine(input, *error).c_str());
    return 1;
  }
  if (!tnw::ModelFileWriter::writeFile(model, output)) {
    std::fprintf(stderr, "%s\n", kCannotAccess);
    return kExitCannotOpen;
  }
  return 0;
}

}  // namespace

int runModel(const std::vector<std::string>& args) {
  if (args.empty()) return tnwUsage();
  const std::vector<std::string> rest(args.begin() + 1, args.end());
  if (args[0] == "dump") return dump(rest);
  if (args[0] == "make") return make(rest);
  return tnwUsage();
}
