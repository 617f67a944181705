// The analysis fields of `tnwizard direct`: the exact weight ranges and the diagnosis of a faulty
// judgment.

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

}  // namespace
}  // namespace tnw
