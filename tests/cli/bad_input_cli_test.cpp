// Hostile and broken input on the command line: a clear one-line message in the program's own
// words, the right exit status, no output and no export.

#include "cli_runner.h"
#include "model/model_file_writer.h"

// JSON
#include <nlohmann/json.hpp>

// Std
#include <sys/stat.h>

#include <limits>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

using nlohmann::json;
using testing::runCli;
using testing::tempFile;
using testing::writeText;

constexpr const char* kCannotAccess = "There are problems in accessing the relevant data.\n";

// numAtt attributes "Att1".. scored 0..10 with linear value functions, after change.
std::string writeModel(const std::string& name, int numAtt,
                       void (*change)(AttributeModel&) = nullptr) {
  AttributeModel m;
  m.NumAtt = static_cast<std::int16_t>(numAtt);
  for (std::size_t a = 0; a < static_cast<std::size_t>(std::min(numAtt, kMaxAttributes)); ++a) {
    m.AttName[a] = "Att" + std::to_string(a + 1);
    m.AttScoreHigh[a] = 10.0;
    m.NumPoints[a] = 2;
    m.PointScore[a][0] = 0.0;
    m.PointScore[a][1] = 10.0;
    m.PointValue[a][0] = 0.0;
    m.PointValue[a][1] = 1.0;
  }
  if (change != nullptr) change(m);
  const std::string path = tempFile(name + ".nrx");
  EXPECT_TRUE(ModelFileWriter::writeFile(m, path));
  return path;
}

std::string writeInput(const std::string& name, const std::string& text) {
  const std::string path = tempFile(name);
  writeText(path, text);
  return path;
}

// Expects exit 1, nothing on standard output, and exactly the one line
// "tnwizard: FILE: message" on standard error.
void expectRefused(const testing::CliRun& run, const std::string& file,
                   const std::string& message) {
  EXPECT_EQ(run.exitCode, 1) << run.err;
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "tnwizard: " + file + ": " + message + "\n");
  EXPECT_EQ(run.err.find("json.exception"), std::string::npos);
}

TEST(BadInputCliTest, ADirectoryOrAFifoAsTheJsonInputIsRefusedAtOnceWithTwo) {
  const std::string model = writeModel("tnw-bad-dir", 3);
  const std::string fifo = tempFile("tnw-bad-fifo");
  ::unlink(fifo.c_str());
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  for (const std::string& input : {std::string("/tmp"), fifo, std::string("/dev/null")}) {
    for (const std::string& command :
         {"direct '" + model + "' '" + input + "'", "tradeoffs '" + model + "' '" + input + "'",
          "model make '" + input + "' -o " + tempFile("x.nrx")}) {
      const auto run = runCli(command);
      EXPECT_EQ(run.exitCode, 2) << command;
      EXPECT_EQ(run.err, kCannotAccess) << command;
      EXPECT_EQ(run.out, "") << command;
    }
  }
  ::unlink(fifo.c_str());
}

TEST(BadInputCliTest, DeepNestingIsRefusedWithItsPlaceAndNoCrash) {
  const std::string model = writeModel("tnw-bad-deep", 3);
  const std::string deep = R"({"order":[1,2,3],"reference":0,"steps":)" + std::string(100000, '[') +
                           std::string(100000, ']') + "}";
  const std::string scenario = writeInput("tnw-bad-deep.json", deep);
  expectRefused(runCli("direct '" + model + "' '" + scenario + "'"), scenario,
                "line 1, column 47: nested deeper than 8 levels");
  const std::string judgments = writeInput("tnw-bad-deep-j.json", std::string(100000, '['));
  expectRefused(runCli("tradeoffs '" + model + "' '" + judgments + "'"), judgments,
                "line 1, column 9: nested deeper than 8 levels");
}

TEST(BadInputCliTest, ScenarioNumbersAreIntegersInRangeOrRefusedWithTheirPointer) {
  const std::string model = writeModel("tnw-bad-numbers", 3);
  const std::pair<const char*, const char*> cases[] = {
      {R"({"order":[1,2,3],"reference":1e300})", "/reference: expected an integer from 0 to 30"},
      {R"({"order":[1,2,3],"reference":4294967296})",
       "/reference: expected an integer from 0 to 30, not 4294967296"},
      {R"({"order":[4294967297,1,1],"reference":0})",
       "/order/0: expected an integer from 1 to 31, not 4294967297"},
      {R"({"order":[1,2,1e300],"reference":0})", "/order/2: expected an integer from 1 to 31"},
      {R"({"order":[1,2,3],"reference":1.9})", "/reference: expected an integer from 0 to 30"},
      {R"({"order":[1,2,3],"reference":true})", "/reference: expected an integer from 0 to 30"},
      {R"({"order":[1,2,3],"reference":0,"steps":[{"target":1e300}]})",
       "/steps/0/target: expected an integer from -32768 to 32767"},
      {R"({"order":[1,2,3],"reference":0,"steps":[{"target":"1"}]})",
       "/steps/0/target: expected an integer from -32768 to 32767"},
      {R"({"order":[1,2,3],"reference":0,"steps":[{"target":1,"lower":[1]}]})",
       "/steps/0/lower: expected a text"},
      {R"({"order":[1,2,3],"reference":0,"steps":[{"restart":1}]})",
       "/steps/0/restart: expected true or false"},
      {R"({"order":[1,2,3],"reference":0,"steps":[5]})", "/steps/0: expected a step object"},
      {R"({"order":"1,2,3"})", "/order: expected a list of up to 31 group numbers"},
      {"[1]", "the file: expected the scenario as a JSON object"},
      {"{\"order\":[1,2,3],\n \"reference\": 0,,}",
       "line 2, column 17: not valid JSON at ',' "
       "(expected a value, a comma, a colon or a "
       "closing bracket as JSON has them)"},
      {R"({"order":[1,2,3)", "line 1, column 16: the text ends before the JSON is complete"},
  };
  for (const auto& [text, message] : cases) {
    const std::string scenario = writeInput("tnw-bad-scenario.json", text);
    expectRefused(runCli("direct '" + model + "' '" + scenario + "'"), scenario, message);
  }
}

TEST(BadInputCliTest, JudgmentFieldsAreCheckedWithTheirPointer) {
  const std::string model = writeModel("tnw-bad-judgments", 3);
  const std::pair<const char*, const char*> cases[] = {
      {R"([{"first":0,"second":1,"scores":[1,2,1e400,4]}])",
       "line 1, column 38: a number beyond the range of a double"},
      {R"([{"first":0,"second":1,"scores":[1,2,true,4]}])",
       "/0/scores/2: judgment [0]: \"scores\" must be an array of four numbers [a1,b1,a2,b2]"},
      {R"([{"first":0,"second":1,"scores":[1,2,3,4],"response":1.9}])",
       "/0/response: judgment [0]: \"response\" must be an integer from -3 to 3"},
      {R"([{"first":true,"second":1,"scores":[1,2,3,4]}])",
       "/0/first: judgment [0]: \"first\" is not an integer"},
      {R"({"first":0})", "the file: the judgments are not a JSON array"},
  };
  for (const auto& [text, message] : cases) {
    const std::string judgments = writeInput("tnw-bad-judgments.json", text);
    expectRefused(runCli("tradeoffs '" + model + "' '" + judgments + "'"), judgments, message);
  }
}

TEST(BadInputCliTest, InputsLargerThanTheirLimitAreRefusedBeforeAnyWork) {
  const std::string model = writeModel("tnw-bad-large", 3);
  const std::string big = writeInput("tnw-bad-large.json", std::string(2u << 20, ' ') + "{}");
  expectRefused(runCli("direct '" + model + "' '" + big + "'"), big,
                "the file: larger than 1048576 bytes");
  expectRefused(runCli("tradeoffs '" + model + "' '" + big + "'"), big,
                "the file: larger than 1048576 bytes");
  std::string steps = R"({"order":[1,2,3],"reference":0,"steps":[)";
  for (int i = 0; i < 1001; ++i) steps += (i == 0 ? "" : ",") + std::string("{}");
  const std::string many = writeInput("tnw-bad-many.json", steps + "]}");
  expectRefused(runCli("direct '" + model + "' '" + many + "'"), many,
                "line 1, column 3040: more than 1000 entries");
  const std::string longText =
      R"({"order":[1,2,3],"reference":0,"steps":[{"lower":")" + std::string(300, '1') + "\"}]}";
  const std::string text = writeInput("tnw-bad-long.json", longText);
  expectRefused(runCli("direct '" + model + "' '" + text + "'"), text,
                "line 1, column 50: a text longer than 256 bytes");
  const std::string digits = R"({"order":[1,2,3],"reference":)" + std::string(401, '1') + "}";
  const std::string number = writeInput("tnw-bad-digits.json", digits);
  expectRefused(runCli("direct '" + model + "' '" + number + "'"), number,
                "line 1, column 30: a number longer than 64 characters");
}

TEST(BadInputCliTest, TextsLongerThanTheModelFileHoldsAreRefusedNotCut) {
  const std::string out = tempFile("tnw-bad-long-name.nrx");
  const std::string tooLong =
      writeInput("tnw-bad-long-name.json",
                 R"({"numAtt":1,"attributes":[{"name":")" + std::string(70000, 'a') + "\"}]}");
  expectRefused(runCli("model make '" + tooLong + "' -o '" + out + "'"), tooLong,
                "attributes[0].name: longer than 65535 characters, the most a model file holds");
  const std::string fits =
      writeInput("tnw-bad-fit-name.json",
                 R"({"numAtt":1,"attributes":[{"name":")" + std::string(65535, 'a') + "\"}]}");
  ASSERT_EQ(runCli("model make '" + fits + "' -o '" + out + "'").exitCode, 0);
  const auto dumped = runCli("model dump '" + out + "'");
  EXPECT_EQ(json::parse(dumped.out)["attributes"][0]["name"].get<std::string>().size(), 65535u);
}

TEST(BadInputCliTest, ModelsTheMethodsCannotHonourEndWithTheMessageAndExportNothing) {
  const std::string judgments = writeInput("tnw-bad-model-j.json", R"([
    {"first":0,"second":1,"scores":[1,2,3,4],"response":1},
    {"first":1,"second":0,"scores":[2,3,1,4],"response":-2}])");
  const std::string none = writeInput("tnw-bad-model-none.json", "[]");
  struct Case {
    const char* name;
    int numAtt;
    void (*change)(AttributeModel&);
    const char* message;
  };
  const Case cases[] = {
      {"tnw-bad-none", 0, nullptr,
       "The current model has 0 attributes. The wizard can only weigh from 1 to 31 attributes."},
      {"tnw-bad-32", 32, nullptr,
       "The current model has 32 attributes. The wizard can only weigh from 1 to 31 attributes."},
      {"tnw-bad-12-points", 3, [](AttributeModel& m) { m.NumPoints[2] = 12; },
       "The value function of the attribute \"Att3\" has more than 11 points."},
      {"tnw-bad-nan-point", 3,
       [](AttributeModel& m) { m.PointValue[0][1] = std::numeric_limits<double>::quiet_NaN(); },
       "The value function of the attribute \"Att1\" cannot be evaluated: point 2 holds a "
       "number the wizard cannot use."},
      {"tnw-bad-inf-range", 3,
       [](AttributeModel& m) { m.AttScoreLow[1] = -std::numeric_limits<double>::infinity(); },
       "The score range of the attribute \"Att2\" has an end that is not a number the wizard "
       "can use."},
  };
  for (const Case& c : cases) {
    // A model without attributes has no index to judge: the list is empty.
    const std::string& input = c.numAtt == 0 ? none : judgments;
    const auto run =
        runCli("tradeoffs '" + writeModel(c.name, c.numAtt, c.change) + "' '" + input + "'");
    ASSERT_EQ(run.exitCode, 0) << c.name << run.err;
    const json out = json::parse(run.out);
    EXPECT_EQ(out["error"], c.message) << c.name;
    EXPECT_EQ(out["warnings"], json::array({c.message})) << c.name;
    EXPECT_EQ(out["numObs"], 0) << c.name;
    EXPECT_TRUE(out["export"].is_null()) << c.name;
  }
  const std::string scenario = writeInput("tnw-bad-model-s.json", R"({"order":[1],"reference":0})");
  for (const Case& c : cases) {
    if (c.change != nullptr) continue;
    const auto run = runCli("direct '" + writeModel(c.name, c.numAtt) + "' '" + scenario + "'");
    expectRefused(run, scenario, c.message);
  }
}

}  // namespace
}  // namespace tnw
