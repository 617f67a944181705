#include "cli_runner.h"

// JSON
#include <nlohmann/json.hpp>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

using nlohmann::json;
using testing::runCli;
using testing::tempFile;
using testing::writeText;

const char* kModelJson = R"({"numAtt": 3, "attributes": [
  {"name": " Price ", "orientation": "1", "scoreLow": 100, "scoreHigh": 10},
  {"name": "Safety", "orientation": "0", "scoreLow": 1, "scoreHigh": 5},
  {"name": "Comfort", "orientation": "0", "scoreLow": 0, "scoreHigh": 10}]})";

const char* kResumedJson = R"({"numAtt": 3, "attributes": [
  {"name": "Price"}, {"name": "Safety"}, {"name": "Comfort"}],
  "previous": {"type": "MAVT_DIRECT", "refAtt": 1, "weight": [0.3, 0.2, 0.1],
               "weightH": [0.3, 0.2, 0.1], "weightL": [0.3, 0.2, 0.1]}})";

std::string makeModel(const std::string& name, const char* modelJson) {
  const std::string input = tempFile(name + ".json");
  const std::string model = tempFile(name + ".nrx");
  writeText(input, modelJson);
  EXPECT_EQ(runCli("model make '" + input + "' -o '" + model + "'").exitCode, 0);
  return model;
}

testing::CliRun runScenario(const std::string& model, const std::string& scenario) {
  const std::string path = tempFile("tnw-direct-scenario.json");
  writeText(path, scenario);
  return runCli("direct '" + model + "' '" + path + "'");
}

TEST(DirectCliTest, AWholeRunPrintsStepsGridAndExport) {
  const std::string model = makeModel("tnw-direct-run", kModelJson);
  const auto run = runScenario(model, R"({"order": [1, 2, 3], "reference": 1, "steps": [
      {"target": 1, "lower": "1", "upper": "2"},
      {"target": 0, "lower": "2", "upper": "1"},
      {"target": 0, "lower": "1.5", "upper": "2"},
      {"target": 2, "lower": "0.5", "upper": "0.8"}]})");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const json out = json::parse(run.out);
  EXPECT_EQ(out["finalGroupCount"], 3);
  EXPECT_EQ(out["finalAttGroup"], json::parse("[1, 2, 3]"));
  EXPECT_EQ(out["refAtt"], 1);
  ASSERT_EQ(out["steps"].size(), 4u);
  EXPECT_EQ(out["steps"][0]["messages"][0],
            "Please choose different attributes to make pairwise comparisons!");
  EXPECT_FALSE(out["steps"][0]["recorded"]);
  EXPECT_EQ(out["steps"][1]["messages"][0],
            "The weight ratio you entered should be greater than zero and less than or equal "
            "to 1!");
  EXPECT_EQ(out["steps"][2]["lowerText"], "1.50");
  EXPECT_EQ(out["steps"][2]["status"], "consistent");
  EXPECT_TRUE(out["steps"][3]["recorded"]);
  EXPECT_EQ(out["lower"], json::parse("[1.5, 1.0, 0.5]"));
  EXPECT_EQ(out["upper"], json::parse("[2.0, 1.0, 0.8]"));
  EXPECT_TRUE(out["complete"]);
  EXPECT_EQ(out["grid"][0]["name"], "Price");
  EXPECT_EQ(out["grid"][0]["symbol"], "W1");
  EXPECT_EQ(out["grid"][2]["range"], "0.1667,     0.2105");
  EXPECT_DOUBLE_EQ(out["export"]["weightsL"][0].get<double>(), 1.5 / 3.8);
  EXPECT_DOUBLE_EQ(out["export"]["weightsH"][2].get<double>(), 0.8 / 3.0);
}

TEST(DirectCliTest, AnUnfinishedRunHasNoGridAndNoExport) {
  const std::string model = makeModel("tnw-direct-open", kModelJson);
  const auto run = runScenario(model, R"({"order": [1, 2, 3], "reference": 1, "steps": [
      {"target": 2, "lower": "0.5", "upper": "1.5"}, {"restart": true}]})");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const json out = json::parse(run.out);
  EXPECT_EQ(out["steps"][0]["status"], "inconsistent");
  EXPECT_FALSE(out["steps"][0]["recorded"]);
  EXPECT_FALSE(out["complete"]);
  EXPECT_TRUE(out["grid"].empty());
  EXPECT_TRUE(out["export"].is_null());
}

TEST(DirectCliTest, IntervalsThatFailACheckAreNeverRecordedOrExported) {
  const std::string model = makeModel("tnw-direct-checks", kModelJson);
  // Attribute 0 is more important than the reference 1: below 1 is inconsistent.
  const auto run = runScenario(model, R"({"order": [1, 2, 3], "reference": 1, "steps": [
      {"target": 0, "lower": "0.5", "upper": "1.2"},
      {"target": 0, "lower": "5", "upper": "1.2"},
      {"target": 0, "lower": "0", "upper": "1.2"},
      {"target": 0, "lower": "1.2", "upper": "1.5"},
      {"target": 2, "lower": "0.5", "upper": "0.8"}]})");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const json out = json::parse(run.out);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_FALSE(out["steps"][i]["recorded"]) << i;
  EXPECT_EQ(out["steps"][0]["status"], "inconsistent");
  EXPECT_EQ(out["steps"][1]["messages"].size(), 1u);
  EXPECT_EQ(out["steps"][2]["messages"].size(), 1u);
  EXPECT_TRUE(out["steps"][3]["recorded"]);
  EXPECT_EQ(out["lower"], json::parse("[1.2, 1.0, 0.5]"));
  EXPECT_EQ(out["upper"], json::parse("[1.5, 1.0, 0.8]"));
  const json& e = out["export"];
  ASSERT_TRUE(e.is_object());
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_LE(e["weightsL"][i].get<double>(), e["weightsH"][i].get<double>()) << i;
  }
}

TEST(DirectCliTest, AnEarlierResultIsResumedWithoutOrderOrReference) {
  const std::string model = makeModel("tnw-direct-resume", kResumedJson);
  const auto run = runScenario(model, R"({"steps": []})");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const json out = json::parse(run.out);
  EXPECT_EQ(out["refAtt"], 1);
  EXPECT_EQ(out["finalAttGroup"], json::parse("[1, 2, 3]"));
  EXPECT_TRUE(out["complete"]);
  EXPECT_DOUBLE_EQ(out["export"]["weights"][0].get<double>(), 0.5);
}

TEST(DirectCliTest, TextsAreTypedThroughTheBoxesKeyFilter) {
  const std::string model = makeModel("tnw-direct-typed", kModelJson);
  const auto run = runScenario(model, R"({"order": [1, 2, 3], "reference": 1, "steps": [
      {"target": 0, "lower": "1..5", "upper": "-2"},
      {"target": 2, "lower": "0.5", "upper": "1e-1"}]})");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const json out = json::parse(run.out);
  // The second period and the minus never reach the text, and 1e-1 is typed as 11.
  EXPECT_EQ(out["steps"][0]["lowerText"], "1.50");
  EXPECT_EQ(out["steps"][0]["upperText"], "2.00");
  EXPECT_TRUE(out["steps"][0]["recorded"]);
  EXPECT_EQ(out["steps"][1]["upperText"], "11.00");
  EXPECT_EQ(out["steps"][1]["messages"].size(), 0u);
  EXPECT_EQ(out["steps"][1]["status"], "inconsistent");
  EXPECT_FALSE(out["steps"][1]["recorded"]);
}

TEST(DirectCliTest, StatusIsTheLitLampAndNullWhenNoneIsLit) {
  const std::string model = makeModel("tnw-direct-lamps", kModelJson);
  const auto run = runScenario(model, R"({"order": [1, 2, 3], "reference": 1, "steps": [
      {"target": 0, "lower": "0", "upper": "2"},
      {"target": 0, "lower": "1.5", "upper": "2"},
      {"restart": true}]})");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const json out = json::parse(run.out);
  EXPECT_EQ(out["steps"][0]["messages"].size(), 1u);
  EXPECT_TRUE(out["steps"][0]["status"].is_null());
  EXPECT_EQ(out["steps"][1]["status"], "consistent");
  EXPECT_TRUE(out["steps"][2]["status"].is_null());
}

TEST(DirectCliTest, ARestartAfterTheLastJudgmentLeavesNothingToExport) {
  const std::string model = makeModel("tnw-direct-restart", kModelJson);
  const auto run = runScenario(model, R"({"order": [1, 2, 3], "reference": 1, "steps": [
      {"target": 0, "lower": "1.5", "upper": "2"},
      {"target": 2, "lower": "0.5", "upper": "0.8"},
      {"restart": true}]})");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const json out = json::parse(run.out);
  EXPECT_FALSE(out["complete"]);
  EXPECT_TRUE(out["grid"].empty());
  EXPECT_TRUE(out["export"].is_null());
}

TEST(DirectCliTest, AStoredReferenceWinsOverTheScenariosAndTheRunSaysSo) {
  const std::string model = makeModel("tnw-direct-stored-ref", kResumedJson);
  const auto run = runScenario(model, R"({"reference": 0, "steps": []})");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  EXPECT_EQ(json::parse(run.out)["refAtt"], 1);
  EXPECT_NE(run.err.find("The earlier result's reference attribute 1 is used"), std::string::npos)
      << run.err;
}

TEST(DirectCliTest, WhyAnEarlierResultCannotBeResumedIsToldWhenTheScenarioStops) {
  const std::string model = makeModel("tnw-direct-zero-ref", R"({"numAtt": 2, "attributes": [
      {"name": "A"}, {"name": "B"}],
      "previous": {"type": "MAVT_DIRECT", "refAtt": 1, "weight": [0.5, 0],
                   "weightH": [0.5, 0], "weightL": [0.5, 0]}})");
  const auto run = runScenario(model, R"({"steps": []})");
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_NE(run.err.find("the earlier weight of the reference attribute is zero"),
            std::string::npos)
      << run.err;
}

TEST(DirectCliTest, AMissingModelExitsWithTwo) {
  const auto run = runScenario(tempFile("tnw-no-such-model.nrx"), "{}");
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_NE(run.err.find("There are problems in accessing the relevant data."), std::string::npos);
}

TEST(DirectCliTest, AScenarioWithoutOrderForAFreshModelIsAUsageError) {
  const std::string model = makeModel("tnw-direct-usage", kModelJson);
  EXPECT_EQ(runScenario(model, R"({"reference": 0})").exitCode, 1);
  EXPECT_EQ(runScenario(model, R"({"order": [1, 2], "reference": 0})").exitCode, 1);
  EXPECT_EQ(runScenario(model, "[1]").exitCode, 1);
  EXPECT_EQ(runCli("direct '" + model + "'").exitCode, 1);
}

}  // namespace
}  // namespace tnw
