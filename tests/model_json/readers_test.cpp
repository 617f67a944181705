#include "model_json/judgments_json.h"
#include "model_json/model_json.h"
#include "model_json/scenario_json.h"

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

using direct::DirectScenario;

std::string scenarioError(const std::string& text) {
  DirectScenario s;
  const auto e = readDirectScenario(text, s);
  return e ? e->text() : "";
}

TEST(ScenarioJsonTest, AScenarioIsReadWithItsDefaults) {
  DirectScenario s;
  ASSERT_EQ(readDirectScenario(R"({"order": [1, 2, 2], "reference": 30, "steps": [
      {"target": 1, "lower": "0.5", "upper": 2}, {"restart": true}, {}]})",
                               s),
            std::nullopt);
  EXPECT_EQ(s.order, (std::vector<int>{1, 2, 2}));
  EXPECT_EQ(s.reference, 30);
  ASSERT_EQ(s.steps.size(), 3u);
  EXPECT_EQ(s.steps[0].target, 1);
  EXPECT_EQ(s.steps[0].lower, "0.5");
  EXPECT_EQ(s.steps[0].upper, "2");
  EXPECT_TRUE(s.steps[1].restart);
  EXPECT_EQ(s.steps[2].target, -1);
  EXPECT_FALSE(s.steps[2].restart);
  DirectScenario empty;
  ASSERT_EQ(readDirectScenario("{}", empty), std::nullopt);
  EXPECT_FALSE(empty.order.has_value());
  EXPECT_FALSE(empty.reference.has_value());
}

TEST(ScenarioJsonTest, NumbersAreNeverWrappedRoundedOrTakenFromBooleans) {
  EXPECT_EQ(scenarioError(R"({"reference": 4294967296})"),
            "/reference: expected an integer from 0 to 30, not 4294967296");
  EXPECT_EQ(scenarioError(R"({"reference": 18446744073709551615})"),
            "/reference: expected an integer from 0 to 30, not 18446744073709551615");
  EXPECT_EQ(scenarioError(R"({"reference": -9223372036854775808})"),
            "/reference: expected an integer from 0 to 30, not -9223372036854775808");
  EXPECT_EQ(scenarioError(R"({"reference": 1.9})"), "/reference: expected an integer from 0 to 30");
  EXPECT_EQ(scenarioError(R"({"reference": 1.0})"), "/reference: expected an integer from 0 to 30");
  EXPECT_EQ(scenarioError(R"({"reference": 1e300})"),
            "/reference: expected an integer from 0 to 30");
  EXPECT_EQ(scenarioError(R"({"reference": true})"),
            "/reference: expected an integer from 0 to 30");
  EXPECT_EQ(scenarioError(R"({"order": [1, 0]})"),
            "/order/1: expected an integer from 1 to 31, not 0");
  EXPECT_EQ(scenarioError(R"({"steps": [{"target": 32768}]})"),
            "/steps/0/target: expected an integer from -32768 to 32767, not 32768");
  EXPECT_EQ(scenarioError(R"({"steps": [{"lower": 1e400}]})"),
            "line 1, column 22: a number beyond the range of a double");
}

TEST(ScenarioJsonTest, AnOrderLongerThanAnyModelIsRefused) {
  std::string order = "[1";
  for (int i = 0; i < 31; ++i) order += ",1";
  EXPECT_EQ(scenarioError(R"({"order": )" + order + "]}"),
            "/order: expected a list of up to 31 group numbers");
}

TEST(JudgmentsJsonTest, JudgmentsAreReadAndCheckedAgainstTheModel) {
  std::vector<tradeoffs::TradeOffJudgment> j;
  ASSERT_EQ(readTradeOffJudgments(R"([{"first": 2, "second": 0, "scores": [1, -2.5, 3, 4],
      "response": -3}])",
                                  3, j),
            std::nullopt);
  ASSERT_EQ(j.size(), 1u);
  EXPECT_EQ(j[0].first, 2);
  EXPECT_EQ(j[0].second, 0);
  EXPECT_EQ(j[0].scores[1], -2.5);
  EXPECT_EQ(j[0].response, -3);
  const auto e = readTradeOffJudgments(R"([{"first": 4294967296, "second": 0,
      "scores": [1, 2, 3, 4]}])",
                                       3, j);
  ASSERT_TRUE(e.has_value());
  EXPECT_EQ(e->text(),
            "/0/first: judgment [0]: \"first\" 4294967296 is not an attribute index of the model "
            "(its indexes: 0 to 2)");
  EXPECT_TRUE(j.empty());
  const auto none =
      readTradeOffJudgments(R"([{"first": 0, "second": 0, "scores": [1,2,3,4]}])", 0, j);
  ASSERT_TRUE(none.has_value());
  EXPECT_EQ(none->text(),
            "/0/first: judgment [0]: \"first\" 0 is not an attribute index of the model (its "
            "indexes: none)");
}

TEST(ModelJsonTextTest, TextsUpToTheFileFormatsLengthAreKeptAndLongerOnesRefused) {
  AttributeModel m;
  const std::string fits(65535, 'x');
  ASSERT_EQ(modelFromJsonText(R"({"numAtt": 1, "attributes": [{"name": ")" + fits + "\"}]}", m),
            std::nullopt);
  EXPECT_EQ(m.AttName[0], fits);
  // Windows-1252 holds "é" in one byte: 65,535 of them fit although UTF-8 needs twice as many.
  std::string accents;
  for (int i = 0; i < 65535; ++i) accents += "\xc3\xa9";
  EXPECT_EQ(modelFromJsonText(R"({"attributes": [{"definition": ")" + accents + "\"}]}", m),
            std::nullopt);
  const auto e = modelFromJsonText(R"({"previous": {"type": ")" + fits + "x\"}}", m);
  ASSERT_TRUE(e.has_value());
  EXPECT_EQ(e->text(), "previous.type: longer than 65535 characters, the most a model file holds");
}

TEST(ModelJsonTextTest, BooleansAreNotNumbers) {
  AttributeModel m;
  const auto e = modelFromJsonText(R"({"attributes": [{"scoreLow": true}]})", m);
  ASSERT_TRUE(e.has_value());
  EXPECT_EQ(e->text(), "attributes[0].scoreLow: expected a number");
  const auto n = modelFromJsonText(R"({"numAtt": 2.5})", m);
  ASSERT_TRUE(n.has_value());
  EXPECT_EQ(n->text(), "model.numAtt: expected an integer");
}

TEST(ScenarioJsonTest, ARunsEndIsReadAndErrorsInsideALargerDocumentNameTheirPlace) {
  DirectScenario s;
  ASSERT_EQ(readDirectScenario(R"({"end": "Back"})", s), std::nullopt);
  EXPECT_EQ(s.end, direct::ScenarioEnd::Back);
  EXPECT_EQ(s.entry, direct::TextEntry::Typed);
  ASSERT_EQ(readDirectScenario("{}", s), std::nullopt);
  EXPECT_EQ(s.end, direct::ScenarioEnd::Finish);
  EXPECT_EQ(scenarioError(R"({"end": "Close"})"),
            "/end: expected \"Finish\", \"Cancel\" or \"Back\"");
  const auto run = nlohmann::json::parse(R"({"order": [1, 0], "end": "Cancel"})");
  const auto e = readDirectScenario(run, "/direct/1", s);
  ASSERT_TRUE(e.has_value());
  EXPECT_EQ(e->text(), "/direct/1/order/1: expected an integer from 1 to 31, not 0");
  EXPECT_FALSE(s.order.has_value());
}

TEST(JudgmentsJsonTest, ATradeOffRunIsReadWithItsJudgmentsAndItsEnd) {
  tradeoffs::TradeOffScenario run;
  const auto value = nlohmann::json::parse(
      R"({"judgments": [{"first": 1, "second": 0, "scores": [1, 2, 3, 4]}], "end": "Cancel"})");
  ASSERT_EQ(readTradeOffScenario(value, "/tradeOffs/0", 2, run), std::nullopt);
  ASSERT_EQ(run.judgments.size(), 1u);
  EXPECT_EQ(run.judgments[0].first, 1);
  EXPECT_EQ(run.judgments[0].scores[3], 4.0);
  EXPECT_EQ(run.end, wizard::ScenarioEnd::Cancel);
  const auto bad = nlohmann::json::parse(R"({"judgments": [{"first": 2, "second": 0,
      "scores": [1, 2, 3, 4]}]})");
  const auto e = readTradeOffScenario(bad, "/tradeOffs/0", 2, run);
  ASSERT_TRUE(e.has_value());
  EXPECT_EQ(e->where, "/tradeOffs/0/judgments/0/first");
  EXPECT_TRUE(run.judgments.empty());
  ASSERT_EQ(readTradeOffScenario(nlohmann::json::object(), "/tradeOffs/1", 2, run), std::nullopt);
  EXPECT_EQ(run.end, wizard::ScenarioEnd::Finish);
}

}  // namespace
}  // namespace tnw
