#include "cli_runner.h"
#include "model/model_file_writer.h"

// JSON
#include <nlohmann/json.hpp>

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <cmath>

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

// Whether every figure of the output is a finite number (the JSON writer turns a NaN or an
// infinity into null, so a null figure counts as not finite).
bool allNumbersFinite(const nlohmann::json& out) {
  const auto finite = [](const nlohmann::json& v) {
    return v.is_number() && std::isfinite(v.get<double>());
  };
  for (const char* key :
       {"constant", "stdErrEst", "rSquared", "numObs", "degFreedom", "consistencyIndex"}) {
    if (!finite(out[key])) return false;
  }
  for (const char* key : {"coef", "coefVar", "lowEst", "highEst", "weights"}) {
    if (!out[key].is_array()) return false;
    for (const auto& v : out[key]) {
      if (!finite(v)) return false;
    }
  }
  return true;
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
  // The fit's own message, once: the zero sum it leaves behind is not reported again.
  ASSERT_EQ(out["warnings"].size(), 1u);
  EXPECT_EQ(out["warnings"][0], out["error"]);
  EXPECT_TRUE(out["export"].is_null());
  EXPECT_EQ(out["numObs"], 0);
  EXPECT_TRUE(allNumbersFinite(out));
}

TEST(TradeOffsCliTest, EveryResponseTwoWarnsMLZeroZeroThenEndsInTheZeroSumOutcome) {
  const std::string judgments = writeJudgments("tnw-judgments-all-two.json", R"([
    {"first":0,"second":1,"scores":[8,3,2,7],"response":2},
    {"first":1,"second":2,"scores":[6,2,1,9],"response":2},
    {"first":2,"second":0,"scores":[4,9,5,1],"response":2},
    {"first":0,"second":1,"scores":[7,1,3,6],"response":2},
    {"first":1,"second":2,"scores":[2,5,8,4],"response":2},
    {"first":2,"second":0,"scores":[9,3,6,2],"response":2}])");
  const auto run = runCli("tradeoffs '" + writeModel(3) + "' '" + judgments + "'");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const auto out = nlohmann::json::parse(run.out);
  EXPECT_EQ(out["noInverse"], false);
  ASSERT_EQ(out["warnings"].size(), 2u);
  EXPECT_EQ(out["warnings"][0], "  mL(0,0)=0, can not calculate the whole coefficients!");
  EXPECT_EQ(out["warnings"][1],
            "  The coefficients sum to zero, so the weights cannot be normalised!");
  EXPECT_EQ(out["error"], out["warnings"][1]);
  EXPECT_TRUE(out["export"].is_null());
  // The later steps ran on the unset coefficients, as the fit has always done.
  EXPECT_EQ(out["numObs"], 6);
  EXPECT_EQ(out["coef"], nlohmann::json::parse("[0.0,0.0,0.0]"));
  EXPECT_EQ(out["weights"], nlohmann::json::parse("[0.0,0.0,0.0]"));
  EXPECT_TRUE(allNumbersFinite(out));
}

TEST(TradeOffsCliTest, NoInverseWarnsThenEndsInTheZeroSumOutcomeWithoutExport) {
  // Only the pair (0, 1) is judged: attribute 3 never varies and nothing can be inverted.
  const std::string judgments = writeJudgments("tnw-judgments-no-inverse.json", R"([
    {"first":0,"second":1,"scores":[8,3,2,7],"response":-2},
    {"first":0,"second":1,"scores":[6,2,1,9],"response":1},
    {"first":0,"second":1,"scores":[4,9,5,1],"response":3},
    {"first":0,"second":1,"scores":[7,1,3,6],"response":-1}])");
  const auto run = runCli("tradeoffs '" + writeModel(3) + "' '" + judgments + "'");
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const auto out = nlohmann::json::parse(run.out);
  EXPECT_EQ(out["noInverse"], true);
  ASSERT_EQ(out["warnings"].size(), 2u);
  EXPECT_EQ(out["warnings"][0],
            "  Since there is no invert matrix can be abtained, the regression results are not "
            "correct!");
  EXPECT_EQ(out["warnings"][1],
            "  The coefficients sum to zero, so the weights cannot be normalised!");
  EXPECT_EQ(out["error"], out["warnings"][1]);
  EXPECT_TRUE(out["export"].is_null());
  EXPECT_EQ(out["numObs"], 0);
  EXPECT_EQ(out["comment"], "");
  EXPECT_TRUE(allNumbersFinite(out));
}

TEST(TradeOffsCliTest, AttributeIndexOutsideTheModelIsAUsageErrorNamingTheJudgment) {
  const std::string model = writeModel(3);
  struct Case {
    const char* name;
    const char* json;
    const char* reason;
  };
  const Case cases[] = {
      {"tnw-judgments-first-3.json",
       R"([{"first":0,"second":1,"scores":[1,2,3,4]},{"first":3,"second":1,"scores":[1,2,3,4]}])",
       "judgment [1]: \"first\" 3 is not an attribute index of the model (its indexes: 0 to 2)"},
      {"tnw-judgments-second-neg.json", R"([{"first":0,"second":-1,"scores":[1,2,3,4]}])",
       "judgment [0]: \"second\" -1 is not an attribute index of the model (its indexes: 0 to 2)"},
      {"tnw-judgments-second-big.json",
       R"([{"first":0,"second":18446744073709551615,"scores":[1,2,3,4]}])",
       "judgment [0]: \"second\" 18446744073709551615 is not an attribute index of the model"},
      {"tnw-judgments-no-second.json", R"([{"first":0,"scores":[1,2,3,4]}])",
       "judgment [0]: \"second\" is missing"},
      {"tnw-judgments-first-real.json", R"([{"first":1.5,"second":0,"scores":[1,2,3,4]}])",
       "judgment [0]: \"first\" is not an integer"},
      {"tnw-judgments-first-text.json", R"([{"first":"1","second":0,"scores":[1,2,3,4]}])",
       "judgment [0]: \"first\" is not an integer"},
  };
  for (const Case& c : cases) {
    const auto run = runCli("tradeoffs '" + model + "' '" + writeJudgments(c.name, c.json) + "'");
    EXPECT_EQ(run.exitCode, 1) << c.name;
    EXPECT_TRUE(run.out.empty()) << c.name;
    EXPECT_NE(run.err.find(c.reason), std::string::npos) << c.name << ": " << run.err;
  }
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
