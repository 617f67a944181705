#include "cli_runner.h"
#include "model/model_file_writer.h"

// JSON
#include <nlohmann/json.hpp>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

using testing::runCli;
using testing::tempFile;
using testing::writeText;

// numAtt attributes scored 0..10 with linear value functions.
std::string writeModel(int numAtt) {
  AttributeModel m;
  m.NumAtt = static_cast<std::int16_t>(numAtt);
  for (std::size_t a = 0; a < static_cast<std::size_t>(numAtt); ++a) {
    m.AttName[a] = "Att" + std::to_string(a + 1);
    m.AttOrientation[a] = "0";
    m.AttScoreHigh[a] = 10.0;
    m.NumPoints[a] = 2;
    m.PointScore[a][0] = 0.0;
    m.PointScore[a][1] = 10.0;
    m.PointValue[a][0] = 0.0;
    m.PointValue[a][1] = 1.0;
  }
  const std::string path = tempFile("tnw-cli-tradeoffs-" + std::to_string(numAtt) + ".nrx");
  ModelFileWriter::writeFile(m, path);
  return path;
}

std::string writeJudgments(const std::string& name, const std::string& json) {
  const std::string path = tempFile(name);
  writeText(path, json);
  return path;
}

TEST(TradeOffsCliTest, ConsistentNumericalTradeOffsGiveTheirWeightsAndExportCloseTwice) {
  // Each judgment makes A and B equally preferred under the weights (0.5, 0.3, 0.2).
  const std::string judgments = writeJudgments("tnw-judgments-3.json", R"([
    {"first":0,"second":1,"scores":[6,0,0,10],"response":0},
    {"first":1,"second":2,"scores":[2,0,0,3],"response":0},
    {"first":2,"second":0,"scores":[5,0,0,2],"response":0},
    {"first":0,"second":1,"scores":[3,0,0,5],"response":0},
    {"first":1,"second":2,"scores":[4,0,0,6],"response":0},
    {"first":2,"second":0,"scores":[10,0,0,4],"response":0},
    {"first":0,"second":1,"scores":[1,1,1,1],"response":0}])");
  const auto run = runCli("tradeoffs '" + writeModel(3) + "' '" + judgments + "'");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const auto out = nlohmann::json::parse(run.out);
  EXPECT_EQ(out["noInverse"], false);
  EXPECT_TRUE(out["error"].is_null());
  ASSERT_EQ(out["warnings"].size(), 1u);
  EXPECT_EQ(out["warnings"][0],
            "You have finished all tradeoffs.\r The next step is to process multiple linear "
            "regression analysis.");
  EXPECT_EQ(out["constant"], 0.0);
  EXPECT_EQ(out["numObs"], 7);
  EXPECT_EQ(out["degFreedom"], 3);
  EXPECT_NEAR(out["rSquared"].get<double>(), 1.0, 1e-9);
  const double w[3] = {0.5, 0.3, 0.2};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_NEAR(out["coef"][i].get<double>(), w[i], 1e-9);
    EXPECT_NEAR(out["weights"][i].get<double>(), w[i], 1e-9);
    EXPECT_EQ(out["export"]["weights"][i], out["coef"][i]);
    EXPECT_EQ(out["export"]["weightsL"][i], out["coef"][i]);
    EXPECT_EQ(out["export"]["weightsH"][i], out["highEst"][i]);
  }
  EXPECT_EQ(out["comment"], "  Consistency index is 1. It is extremely good!");
}

TEST(TradeOffsCliTest, TwoAttributesWithNumericalTradeOffsEndInTheDefinedOutcome) {
  const std::string judgments = writeJudgments("tnw-judgments-2.json", R"([
    {"first":0,"second":1,"scores":[6,0,0,10],"response":0},
    {"first":0,"second":1,"scores":[2,0,0,3],"response":0}])");
  const auto run = runCli("tradeoffs '" + writeModel(2) + "' '" + judgments + "'");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const auto out = nlohmann::json::parse(run.out);
  ASSERT_TRUE(out["error"].is_string());
  EXPECT_EQ(out["error"].get<std::string>().rfind("  The degree of freedom is zero", 0), 0u);
  EXPECT_EQ(out["warnings"].back(), out["error"]);
  EXPECT_TRUE(out["export"].is_null());
  EXPECT_EQ(out["numObs"], 0);
}

TEST(TradeOffsCliTest, ExchangedPairIsChosenThroughAThirdAttribute) {
  const std::string judgments = writeJudgments("tnw-judgments-swap.json", R"([
    {"first":1,"second":0,"scores":[1,2,3,4],"response":1}])");
  const auto run = runCli("tradeoffs '" + writeModel(3) + "' '" + judgments + "'");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const auto out = nlohmann::json::parse(run.out);
  ASSERT_FALSE(out["warnings"].empty());
  EXPECT_EQ(out["warnings"][0],
            "  Since there is no invert matrix can be abtained, the regression "
            "results are not correct!");
  EXPECT_EQ(out["numObs"], 0);
}

TEST(TradeOffsCliTest, RefusedPairAndOutOfRangeScoreAreWarningsAndNotRecorded) {
  const std::string judgments = writeJudgments("tnw-judgments-bad.json", R"([
    {"first":1,"second":1,"scores":[1,2,3,4],"response":-3},
    {"first":0,"second":1,"scores":[11,2,3,4],"response":2}])");
  const auto run = runCli("tradeoffs '" + writeModel(3) + "' '" + judgments + "'");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const auto out = nlohmann::json::parse(run.out);
  ASSERT_GE(out["warnings"].size(), 2u);
  EXPECT_EQ(out["warnings"][0], "Please choose different criteria to make pairwise comparisons!");
  EXPECT_EQ(out["warnings"][1],
            "The data you entered should be in the relevant score range [0, 10]!");
  EXPECT_EQ(out["noInverse"], true);
}

TEST(TradeOffsCliTest, MissingFilesExitWithTwoAndBadInputWithOne) {
  const std::string judgments = writeJudgments("tnw-judgments-empty.json", "[]");
  const auto noModel = runCli("tradeoffs /nonexistent/tnw.nrx '" + judgments + "'");
  EXPECT_EQ(noModel.exitCode, 2);
  EXPECT_EQ(noModel.err, "There are problems in accessing the relevant data.\n");
  const auto noJudgments = runCli("tradeoffs '" + writeModel(3) + "' /nonexistent/j.json");
  EXPECT_EQ(noJudgments.exitCode, 2);
  const std::string bad = writeJudgments("tnw-judgments-bad-shape.json", R"({"first":0})");
  EXPECT_EQ(runCli("tradeoffs '" + writeModel(3) + "' '" + bad + "'").exitCode, 1);
  const std::string badResponse =
      writeJudgments("tnw-judgments-bad-response.json",
                     R"([{"first":0,"second":1,"scores":[1,2,3,4],"response":4}])");
  EXPECT_EQ(runCli("tradeoffs '" + writeModel(3) + "' '" + badResponse + "'").exitCode, 1);
  EXPECT_EQ(runCli("tradeoffs '" + writeModel(3) + "'").exitCode, 1);
}

}  // namespace
}  // namespace tnw
