// The analysis fields of `tnwizard direct` and `tnwizard tradeoffs`: the exact weight ranges,
// the diagnosis of a faulty judgment, and the judgments that lower the consistency index most.

#include "cli_runner.h"
#include "model/model_file_writer.h"

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

// n benefit attributes scored 0..10 with linear value functions.
std::string writeModel(const std::string& name, int n = 3) {
  AttributeModel m;
  m.NumAtt = static_cast<std::int16_t>(n);
  for (std::size_t a = 0; a < static_cast<std::size_t>(n); ++a) {
    m.AttName[a] = "Att" + std::to_string(a + 1);
    m.AttOrientation[a] = "0";
    m.AttScoreHigh[a] = 10.0;
    m.NumPoints[a] = 2;
    m.PointScore[a][0] = 0.0;
    m.PointScore[a][1] = 10.0;
    m.PointValue[a][0] = 0.0;
    m.PointValue[a][1] = 1.0;
  }
  const std::string path = tempFile(name + ".nrx");
  ModelFileWriter::writeFile(m, path);
  return path;
}

json run(const std::string& command, const std::string& model, const std::string& input) {
  const std::string path = tempFile("tnw-analysis-input.json");
  writeText(path, input);
  const auto r = runCli(command + " '" + model + "' '" + path + "'");
  EXPECT_EQ(r.exitCode, 0) << r.err;
  return json::parse(r.out);
}

TEST(AnalysisCliTest, DirectPrintsTheExactWeightRangesBesideTheGrid) {
  // Reference [1, 1] in group 2, [0.5, 1] in group 3, [1, 2] in group 1.
  const json out = run("direct", writeModel("tnw-exact"), R"({"order": [2, 3, 1],
      "reference": 0, "steps": [{"target": 1, "lower": "0.5", "upper": "1"},
                                {"target": 2, "lower": "1", "upper": "2"}]})");
  ASSERT_TRUE(out["complete"]);
  // The grid keeps its own ranges, each column normalised on its own.
  EXPECT_EQ(out["grid"][0]["range"], "0.4000,     0.2500");
  ASSERT_EQ(out["exactBounds"].size(), 3u);
  EXPECT_DOUBLE_EQ(out["exactBounds"][0]["low"].get<double>(), 0.25);
  EXPECT_DOUBLE_EQ(out["exactBounds"][0]["high"].get<double>(), 0.40);
  EXPECT_DOUBLE_EQ(out["exactBounds"][1]["low"].get<double>(), 1.0 / 7.0);
  EXPECT_DOUBLE_EQ(out["exactBounds"][1]["high"].get<double>(), 1.0 / 3.0);
  EXPECT_DOUBLE_EQ(out["exactBounds"][2]["low"].get<double>(), 1.0 / 3.0);
  EXPECT_DOUBLE_EQ(out["exactBounds"][2]["high"].get<double>(), 4.0 / 7.0);
  EXPECT_TRUE(out["exactBoundsError"].is_null());
  EXPECT_TRUE(out["steps"][0]["diagnosis"].is_null());
}

TEST(AnalysisCliTest, AnUnfinishedDirectRunHasNoExactRanges) {
  const json out = run("direct", writeModel("tnw-exact-open"), R"({"order": [1, 2, 3],
      "reference": 1, "steps": []})");
  EXPECT_EQ(out["exactBounds"], json::array());
  EXPECT_TRUE(out["exactBoundsError"].is_null());
}

TEST(AnalysisCliTest, AnInconsistentStepNamesTheConflictAndTheNearestInterval) {
  const json out = run("direct", writeModel("tnw-diagnosis"), R"({"order": [1, 2, 3],
      "reference": 1, "steps": [{"target": 2, "lower": "0.5", "upper": "1.5"},
                                {"target": 2, "lower": "0.01", "upper": "0.5"}]})");
  const json& d = out["steps"][0]["diagnosis"];
  EXPECT_EQ(out["steps"][0]["status"], "inconsistent");
  EXPECT_EQ(d["bound"], "upper");
  EXPECT_EQ(d["upperLimitAttribute"], 1);
  EXPECT_TRUE(d["lowerLimitAttribute"].is_null());
  EXPECT_EQ(d["nearest"], json::parse(R"({"lower": 0.5, "upper": 1.0})"));
  EXPECT_EQ(d["text"],
            "Conflict: the upper bound 1.50 is above 1.00, the lower ratio of \"Att2\" (more "
            "important). Nearest consistent interval: 0.50 to 1.00.");
  // A ratio too small for the drawing area: the lower bound's handle lies outside it.
  const json& invalid = out["steps"][1]["diagnosis"];
  EXPECT_EQ(out["steps"][1]["status"], "invalid");
  EXPECT_EQ(invalid["bound"], "lower");
  EXPECT_EQ(invalid["nearest"], json::parse(R"({"lower": 0.06, "upper": 0.5})"));
}

TEST(AnalysisCliTest, TradeOffsListTheJudgmentThatHurtsTheConsistencyIndexMost) {
  // Five judgments agree with the weights (0.5, 0.3, 0.2); the sixth does not.
  const json out = run("tradeoffs", writeModel("tnw-worst"), R"([
      {"first": 0, "second": 1, "scores": [6, 3, 2, 7], "response": 0},
      {"first": 1, "second": 2, "scores": [5, 3, 1, 4], "response": 0},
      {"first": 2, "second": 0, "scores": [7, 2, 3, 5], "response": 0},
      {"first": 0, "second": 1, "scores": [4, 2.2, 1, 4], "response": 0},
      {"first": 1, "second": 2, "scores": [3, 2, 2.5, 4], "response": 0},
      {"first": 2, "second": 0, "scores": [8, 3, 1, 6], "response": 0}])");
  ASSERT_TRUE(out["error"].is_null());
  const json& worst = out["worstJudgments"];
  ASSERT_GE(worst.size(), 1u);
  ASSERT_LE(worst.size(), 3u);
  EXPECT_EQ(worst[0]["judgment"], 6);
  EXPECT_EQ(worst[0]["first"], 2);
  EXPECT_EQ(worst[0]["second"], 0);
  EXPECT_EQ(worst[0]["scores"], json::parse("[8, 3, 1, 6]"));
  EXPECT_NEAR(worst[0]["indexWithout"].get<double>(), 1.0, 1e-12);
  EXPECT_NEAR(worst[0]["gain"].get<double>(), 1.0 - out["consistencyIndex"].get<double>(), 1e-12);
  EXPECT_TRUE(worst[0]["fittedBSecond"].is_number());
  EXPECT_EQ(
      worst[0]["text"].get<std::string>().rfind("Judgment 6 (Att3, Att1): A 8 / 1, B 3 / 6", 0),
      0u);
}

TEST(AnalysisCliTest, AFitThatCannotBeCompletedListsNoJudgments) {
  // Two attributes: the two trade-offs and the appended observation leave N - K - 1 = 0.
  const json out = run("tradeoffs", writeModel("tnw-worst-none", 2), R"([
      {"first": 0, "second": 1, "scores": [6, 3, 2, 7], "response": 0},
      {"first": 1, "second": 0, "scores": [6, 3, 2, 7], "response": 0}])");
  EXPECT_FALSE(out["error"].is_null());
  EXPECT_EQ(out["worstJudgments"], json::array());
}

}  // namespace
}  // namespace tnw
