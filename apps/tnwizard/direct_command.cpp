// tnwizard direct MODEL SCENARIO.json: the direct method run headless through the presenter the
// dialog uses.

#include "commands.h"
#include "common/core/recording_ui_services.h"
#include "wizard/core/wizard_context.h"
#include "model/model_file_reader.h"
#include "model_json/direct_player.h"
#include "model_json/scenario_json.h"

// Std
#include <cstdio>
#include <iostream>

int runDirect(const std::vector<std::string>& args) {
  if (args.size() != 2) return tnwUsage();
  tnw::RecordingUiServices ui;
  tnw::WizardContext context;
  context.FileIndex = 1;
  context.PathAndFileName = args[0];
  if (!tnw::OpenRelatedFileForTNW(args[0], context.model, ui).opened) {
    std::fputs("There are problems in accessing the relevant data.\n", stderr);
    return kExitCannotOpen;
  }
  std::string text;
  if (const int status = readJsonInputFile(args[1], tnw::kScenarioJsonLimits.maxBytes, text)) {
    return status;
  }
  tnw::direct::DirectScenario scenario;
  if (const auto error = tnw::readDirectScenario(text, scenario)) {
    std::fprintf(stderr, "%s\n", tnw::inputErrorLine(args[1], *error).c_str());
    return 1;
  }
  const tnw::DirectPlayResult run = tnw::playDirectScenario(context, ui, scenario);
  for (const std::string& note : run.notes) std::fprintf(stderr, "%s\n", note.c_str());
  if (run.error) {
    std::fprintf(stderr, "tnwizard: %s: %s\n", args[1].c_str(), run.error->c_str());
    return 1;
  }
  std::cout << run.output.dump(2) << "\n";
  return 0;
}
