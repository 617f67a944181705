// The README's command-line examples, run exactly as it shows them: every "$ tnwizard ..." line
// of the README in one working folder that holds the samples/ folder and the built sample models
// where the README says they are, each checked on the fields the README talks about.

#include "cli_runner.h"

// JSON
#include <nlohmann/json.hpp>

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace tnw {
namespace {

namespace fs = std::filesystem;
using testing::runCli;

constexpr std::string_view kPrompt = "    $ tnwizard ";

std::vector<std::string> readmeLines() {
  std::ifstream in(fs::path(TNW_SOURCE_DIR) / "README.md");
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::string readText(const fs::path& path) {
  std::ifstream in(path);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

// One example: the arguments after "tnwizard" and the lines the README shows as its output.
struct Example {
  std::string args;
  std::vector<std::string> shownOutput;
};

std::vector<Example> readmeExamples() {
  const std::vector<std::string> lines = readmeLines();
  std::vector<Example> examples;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].rfind(kPrompt, 0) != 0) continue;
    Example e{lines[i].substr(kPrompt.size()), {}};
    for (std::size_t j = i + 1;
         j < lines.size() && lines[j].rfind("    ", 0) == 0 && lines[j].rfind(kPrompt, 0) != 0;
         ++j) {
      e.shownOutput.push_back(lines[j].substr(4));
    }
    examples.push_back(e);
  }
  return examples;
}

// A fresh working folder as a user has it after building: samples/ and build/samples/.
fs::path workingFolder() {
  const fs::path dir = testing::tempFile("tnw-readme-examples");
  fs::remove_all(dir);
  fs::create_directories(dir / "build");
  fs::create_directory_symlink(fs::path(TNW_SOURCE_DIR) / "samples", dir / "samples");
  fs::create_directory_symlink(fs::path(TNW_SAMPLE_MODEL).parent_path(), dir / "build/samples");
  return dir;
}

TEST(ReadmeExamplesTest, TheReadmeShowsEachToolOnTheShippedSamples) {
  std::string all;
  for (const Example& e : readmeExamples()) all += e.args + "\n";
  for (const char* command : {"model make samples/commuter_car.json -o commuter_car.nrx\n",
                              "direct commuter_car.nrx samples/commuter_car_direct.json\n",
                              "tradeoffs commuter_car.nrx samples/commuter_car_tradeoffs.json\n"}) {
    EXPECT_NE(all.find(command), std::string::npos) << command << "missing from:\n" << all;
  }
}

TEST(ReadmeExamplesTest, TheReadmeShowsTheScenarioAndJudgmentFilesAsShipped) {
  std::string readme;
  for (const std::string& line : readmeLines()) readme += line + "\n";
  for (const char* file : {"commuter_car_direct.json", "commuter_car_tradeoffs.json"}) {
    std::istringstream text(readText(fs::path(TNW_SOURCE_DIR) / "samples" / file));
    std::string indented;
    for (std::string line; std::getline(text, line);) indented += "    " + line + "\n";
    EXPECT_NE(readme.find(indented), std::string::npos) << file << " is not shown as shipped";
  }
}

TEST(ReadmeExamplesTest, EveryExampleRunsAsShownAndGivesWhatTheReadmeSays) {
  const std::vector<Example> examples = readmeExamples();
  ASSERT_FALSE(examples.empty());
  const fs::path dir = workingFolder();
  fs::current_path(dir);
  for (const Example& e : examples) {
    SCOPED_TRACE(e.args);
    const auto run = runCli(e.args);
    ASSERT_EQ(run.exitCode, 0) << run.err;
    const std::string command = e.args.substr(0, e.args.find(' '));
    if (command == "value") {
      std::string shown;
      for (const std::string& line : e.shownOutput) shown += line + "\n";
      EXPECT_EQ(run.out, shown);
    } else if (command == "model") {
      const std::string made = e.args.substr(e.args.rfind(' ') + 1);
      const auto dumped = nlohmann::json::parse(runCli("model dump " + made).out);
      EXPECT_TRUE(dumped["readComplete"].get<bool>());
      EXPECT_EQ(dumped["numAtt"], 3);
    } else if (command == "direct") {
      const auto out = nlohmann::json::parse(run.out);
      EXPECT_TRUE(out["complete"].get<bool>());
      for (const auto& step : out["steps"]) EXPECT_TRUE(step["messages"].empty()) << step;
      ASSERT_TRUE(out["export"].is_object()) << run.err;
      EXPECT_EQ(out["export"]["weights"].size(), 3u);
    } else if (command == "tradeoffs") {
      const auto out = nlohmann::json::parse(run.out);
      EXPECT_TRUE(out["error"].is_null()) << out["error"];
      EXPECT_TRUE(out["warnings"].empty()) << out["warnings"];
      EXPECT_EQ(out["numObs"], 7);
      EXPECT_EQ(out["degFreedom"], 3);
      EXPECT_GT(out["consistencyIndex"].get<double>(), 0.9);
      ASSERT_TRUE(out["export"].is_object());
      EXPECT_EQ(out["export"]["weights"].size(), 3u);
    } else {
      ADD_FAILURE() << "an example of a command this test does not check";
    }
  }
  fs::current_path(TNW_SOURCE_DIR);
  fs::remove_all(dir);
}

}  // namespace
}  // namespace tnw
