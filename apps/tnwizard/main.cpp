// The tnwizard command line: a host for the wizard and headless tools over the same code.

// Std
#include <cstdio>
#include <functional>
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
    "       tnwizard tradeoffs MODEL JUDGMENTS.json\n";

int usage() {
  std::fputs(kUsage, stderr);
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (args.empty()) return usage();
  return usage();
}
