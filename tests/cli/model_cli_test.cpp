#include "cli_runner.h"
#include "model/model_file_reader.h"
#include "model/model_file_writer.h"

// Std
#include <limits>

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

const char* kModelJson = R"({
  "numAtt": 3,
  "attributes": [
    {"index": 0, "name": " Price ", "definition": "Purchase price in €", "orientation": "1",
     "scoreLow": 40000, "scoreHigh": 18000, "numPoints": 3,
     "points": [{"score": 18000, "value": 1}, {"score": 25000, "value": 0.55},
                {"score": 40000, "value": 0}]},
    {"index": 1, "name": "Safety", "definition": "", "orientation": "0",
     "scoreLow": 1, "scoreHigh": 5, "numPoints": 2,
     "points": [{"score": 1, "value": 0}, {"score": 5, "value": 1}]},
    {"index": 2, "name": "Größe", "definition": "d", "orientation": "0",
     "scoreLow": 0, "scoreHigh": 1, "numPoints": 1, "points": [{"score": null, "value": 0.25}]}
  ],
  "previous": {"type": "MAVT_DIRECT", "refAtt": 1, "weight": [0.5, 0.3, 0.2],
               "weightH": [0.6, 0.4, 0.3], "weightL": [0.4, 0.2, 0.1]}
})";

TEST(ModelCliTest, MakeThenDumpReturnsTheSameModel) {
  const std::string input = tempFile("tnw-cli-make.json");
  const std::string model = tempFile("tnw-cli-make.nrx");
  writeText(input, kModelJson);
  const auto made = runCli("model make '" + input + "' -o '" + model + "'");
  ASSERT_EQ(made.exitCode, 0) << made.err;
  const auto dumped = runCli("model dump '" + model + "'");
  ASSERT_EQ(dumped.exitCode, 0) << dumped.err;
  const json out = json::parse(dumped.out);
  json expected = json::parse(kModelJson);
  expected["readComplete"] = true;
  for (const char* key : {"weight", "weightH", "weightL"}) {
    json& w = expected["previous"][key];
    while (w.size() < 31) w.push_back(0.0);
  }
  EXPECT_EQ(out, expected);

  // And the dump, made again, gives the very same file.
  const std::string again = tempFile("tnw-cli-again.json");
  const std::string model2 = tempFile("tnw-cli-again.nrx");
  writeText(again, dumped.out);
  ASSERT_EQ(runCli("model make '" + again + "' -o '" + model2 + "'").exitCode, 0);
  EXPECT_EQ(runCli("model dump '" + model2 + "'").out, dumped.out);
}

TEST(ModelCliTest, DumpPrintsTheFieldsInTheContractsOrder) {
  const std::string input = tempFile("tnw-cli-order.json");
  const std::string model = tempFile("tnw-cli-order.nrx");
  writeText(input, R"({"numAtt": 1, "attributes": [{"name": "A"}]})");
  ASSERT_EQ(runCli("model make '" + input + "' -o '" + model + "'").exitCode, 0);
  const std::string out = runCli("model dump '" + model + "'").out;
  const char* keys[] = {"\"readComplete\"", "\"numAtt\"",     "\"attributes\"",  "\"index\"",
                        "\"name\"",         "\"definition\"", "\"orientation\"", "\"scoreLow\"",
                        "\"scoreHigh\"",    "\"numPoints\"",  "\"points\"",      "\"previous\"",
                        "\"type\"",         "\"refAtt\"",     "\"weight\"",      "\"weightH\"",
                        "\"weightL\""};
  std::size_t at = 0;
  for (const char* key : keys) {
    const std::size_t found = out.find(key, at);
    ASSERT_NE(found, std::string::npos) << key;
    at = found;
  }
  const json j = json::parse(out);
  EXPECT_TRUE(j["previous"]["refAtt"].is_null());
  EXPECT_EQ(j["attributes"][0]["points"].size(), 0u);
}

TEST(ModelCliTest, MissingFieldsGiveEmptyTextsZerosAndEmptyVariants) {
  const std::string input = tempFile("tnw-cli-missing.json");
  const std::string model = tempFile("tnw-cli-missing.nrx");
  writeText(input,
            R"({"attributes": [{"index": 4, "numPoints": 2, "points": [{}, {"value": 1}]}]})");
  ASSERT_EQ(runCli("model make '" + input + "' -o '" + model + "'").exitCode, 0);
  AttributeModel m;
  std::ifstream f(model, std::ios::binary);
  const std::vector<std::uint8_t> bytes((std::istreambuf_iterator<char>(f)),
                                        std::istreambuf_iterator<char>());
  ASSERT_TRUE(ModelFileReader::read(bytes, m).complete);
  EXPECT_EQ(m.NumAtt, 0);
  EXPECT_EQ(m.AttName[4], "");
  EXPECT_EQ(m.NumPoints[4], 2);
  EXPECT_FALSE(m.PointScore[4][0].has_value());
  EXPECT_FALSE(m.PointValue[4][0].has_value());
  EXPECT_EQ(m.PointValue[4][1], 1.0);
  EXPECT_EQ(m.PrevTNType, "");
  EXPECT_FALSE(m.PrevRefAtt.has_value());
}

TEST(ModelCliTest, DumpClampsTheCountsOfADamagedModel) {
  AttributeModel m;
  m.NumAtt = 40;
  m.NumPoints[0] = 300;
  m.NumPoints[1] = -4;
  const std::string model = tempFile("tnw-cli-damaged.nrx");
  ASSERT_TRUE(ModelFileWriter::writeFile(m, model));
  const auto run = runCli("model dump '" + model + "'");
  ASSERT_EQ(run.exitCode, 0);
  const json j = json::parse(run.out);
  EXPECT_EQ(j["numAtt"], 40);
  EXPECT_EQ(j["attributes"].size(), 31u);
  EXPECT_EQ(j["attributes"][0]["numPoints"], 300);
  EXPECT_EQ(j["attributes"][0]["points"].size(), 11u);
  EXPECT_EQ(j["attributes"][1]["points"].size(), 0u);
}

TEST(ModelCliTest, DumpOfAShortFileSaysTheReadWasIncomplete) {
  const ModelFileImage image = ModelFileWriter::write(AttributeModel{});
  const std::string model = tempFile("tnw-cli-short.nrx");
  std::ofstream(model, std::ios::binary)
      .write(reinterpret_cast<const char*>(image.bytes.data()), 100);
  const auto run = runCli("model dump '" + model + "'");
  ASSERT_EQ(run.exitCode, 0);
  EXPECT_EQ(json::parse(run.out)["readComplete"], false);
  EXPECT_EQ(run.err, "");
}

TEST(ModelCliTest, AFileThatCannotBeOpenedExitsWithTwoAndTheHostsMessage) {
  const auto dump = runCli("model dump /nonexistent/tnw/model.nrx");
  EXPECT_EQ(dump.exitCode, 2);
  EXPECT_EQ(dump.out, "");
  EXPECT_EQ(dump.err, "There are problems in accessing the relevant data.\n");
  const auto make = runCli("model make /nonexistent/tnw/in.json -o /tmp/tnw-never.nrx");
  EXPECT_EQ(make.exitCode, 2);
  EXPECT_EQ(make.err, "There are problems in accessing the relevant data.\n");
  const auto directory = runCli("model make /tmp -o /tmp/tnw-never.nrx");
  EXPECT_EQ(directory.exitCode, 2);
  EXPECT_EQ(directory.err, "There are problems in accessing the relevant data.\n");
}

TEST(ModelCliTest, NumbersThatAreNotFiniteAreDumpedAsNullAndMadeAgain) {
  AttributeModel m;
  m.NumAtt = 1;
  m.AttScoreLow[0] = std::numeric_limits<double>::infinity();
  m.PrevWeight[0] = std::numeric_limits<double>::quiet_NaN();
  m.PrevWeightH[1] = -std::numeric_limits<double>::infinity();
  const std::string model = tempFile("tnw-cli-nan.nrx");
  ASSERT_TRUE(ModelFileWriter::writeFile(m, model));
  const auto dumped = runCli("model dump '" + model + "'");
  ASSERT_EQ(dumped.exitCode, 0) << dumped.err;
  const json out = json::parse(dumped.out);
  EXPECT_TRUE(out["attributes"][0]["scoreLow"].is_null());
  EXPECT_TRUE(out["previous"]["weight"][0].is_null());
  EXPECT_TRUE(out["previous"]["weightH"][1].is_null());

  const std::string again = tempFile("tnw-cli-nan.json");
  const std::string model2 = tempFile("tnw-cli-nan2.nrx");
  writeText(again, dumped.out);
  const auto made = runCli("model make '" + again + "' -o '" + model2 + "'");
  ASSERT_EQ(made.exitCode, 0) << made.err;
  EXPECT_EQ(runCli("model dump '" + model2 + "'").out, dumped.out);
}

TEST(ModelCliTest, UsageErrorsExitWithOne) {
  for (const char* args :
       {"", "model", "model dump", "model dump a b", "model make x.json", "model make -o out.nrx",
        "model make x.json -o a.nrx -o b.nrx", "model frob x", "nosuchcommand"}) {
    const auto run = runCli(args);
    EXPECT_EQ(run.exitCode, 1) << args;
    EXPECT_NE(run.err.find("usage: tnwizard"), std::string::npos) << args;
  }
}

TEST(ModelCliTest, MalformedJsonIsAUsageErrorNamingTheField) {
  const std::string input = tempFile("tnw-cli-bad.json");
  const std::string model = tempFile("tnw-cli-bad.nrx");
  const std::pair<const char*, const char*> cases[] = {
      {"{not json", "line 1, column 3: not valid JSON at 'o'"},
      {R"({"numAtt": "two"})", "model.numAtt: expected an integer"},
      {R"({"numAtt": 40000})", "model.numAtt: outside -32768..32767"},
      {R"({"numAtt": 18446744073709551615})", "model.numAtt: outside -32768..32767"},
      {R"({"numAtt": 9223372036854775808})", "model.numAtt: outside -32768..32767"},
      {R"({"attributes": [{"index": 18446744073709551615}]})",
       "attributes[0].index: outside 0..30"},
      {R"({"attributes": [{"index": 31}]})", "attributes[0].index: outside 0..30"},
      {R"({"attributes": [{"name": 5}]})", "attributes[0].name: expected a text"},
      {R"({"attributes": [{"points": [{}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}]}]})",
       "attributes[0].points: more than 11 entries"},
      {R"({"previous": {"weight": ["a"]}})", "previous.weight: expected numbers or null"}};
  for (const auto& [text, message] : cases) {
    writeText(input, text);
    const auto run = runCli("model make '" + input + "' -o '" + model + "'");
    EXPECT_EQ(run.exitCode, 1) << text;
    EXPECT_NE(run.err.find(message), std::string::npos) << run.err;
  }
}

}  // namespace
}  // namespace tnw
