// The tnwizard command line: a host for the wizard and headless tools over the same code.

#include "commands.h"
#include "model_json/json_input.h"

// Std
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr const char* kUsage =
    "usage: tnwizard show [MODEL]\n"
    "       tnwizard model dump MODEL\n"
    "       tnwizard model make INPUT.json -o MODEL\n"
    "       tnwizard value MODEL ATT SCORE...\n"
    "       tnwizard direct MODEL SCENARIO.json\n"
    "       tnwizard tradeoffs MODEL JUDGMENTS.json\n"
    "       tnwizard --help | --version\n";

// One sub-command: its name and the function that runs it with the arguments after the name.
struct Command {
  std::string_view name;
  int (*run)(const std::vector<std::string>& args);
};

// Each sub-command lives in its own source file; add it here when it exists.
constexpr Command kCommands[] = {
#ifdef TNW_WITH_SHOW
    {"show", runShow},
#endif
    {"model", runModel}, {"value", runValue}, {"direct", runDirect}, {"tradeoffs", runTradeOffs},
};

}  // namespace

int tnwUsage() {
  std::fputs(kUsage, stderr);
  return 1;
}

int readJsonInputFile(const std::string& path, std::size_t maxBytes, std::string& text) {
  switch (tnw::readInputFile(path, maxBytes, text)) {
    case tnw::InputFileStatus::Read:
      return 0;
    case tnw::InputFileStatus::TooLarge:
      std::fprintf(stderr, "%s\n",
                   tnw::inputErrorLine(
                       path, {"the file", "larger than " + std::to_string(maxBytes) + " bytes"})
                       .c_str());
      return 1;
    default:
      std::fputs("There are problems in accessing the relevant data.\n", stderr);
      return kExitCannotOpen;
  }
}

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (args.empty()) return tnwUsage();
  // Asked for, help and version are the output itself: standard output and success.
  if (args.size() == 1 && (args.front() == "--help" || args.front() == "-h")) {
    std::fputs(kUsage, stdout);
    return 0;
  }
  if (args.size() == 1 && args.front() == "--version") {
    std::printf("tnwizard %s\n", TNW_VERSION);
    return 0;
  }
  for (const Command& c : kCommands) {
    if (c.run != nullptr && c.name == args.front()) {
      return c.run(std::vector<std::string>(args.begin() + 1, args.end()));
    }
  }
  return tnwUsage();
}
