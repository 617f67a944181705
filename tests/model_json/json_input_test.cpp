#include "model_json/json_input.h"

// Std
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

constexpr JsonLimits kSmall{1000, 3, 4, 10, 8};

std::optional<JsonInputError> parse(const std::string& text, nlohmann::json& out) {
  return parseJsonText(text, kSmall, out);
}

TEST(JsonInputTest, TextWithinTheLimitsIsParsed) {
  nlohmann::json j;
  EXPECT_EQ(parse(R"({"a": [1, 2, {"b": "0123456789"}], "c": -1.5e+10})", j), std::nullopt);
  EXPECT_EQ(j["a"][2]["b"], "0123456789");
}

TEST(JsonInputTest, EachLimitIsRefusedWithItsLineAndColumn) {
  nlohmann::json j;
  const std::pair<std::string, std::string> cases[] = {
      {"[[[[1]]]]", "line 1, column 4: nested deeper than 3 levels"},
      {"[1,2,3,4,\n5]", "line 1, column 9: more than 4 entries"},
      {"{\"a\":1,\"b\":2,\"c\":3,\"d\":4,\"e\":5}", "line 1, column 25: more than 4 entries"},
      {"[\"01234567890\"]", "line 1, column 2: a text longer than 10 bytes"},
      {"[\"\\\"\\\"\\\"\\\"\\\"\\\"\"]", "line 1, column 2: a text longer than 10 bytes"},
      {"\n\n  123456789", "line 3, column 3: a number longer than 8 characters"},
      {std::string(1001, ' '), "the file: larger than 1000 bytes"},
      {"[1,\n 2,]",
       "line 2, column 4: not valid JSON at ']' (expected a value, a comma, a colon "
       "or a closing bracket as JSON has them)"},
      {"", "line 1, column 1: the text ends before the JSON is complete"},
      {"[\"\xff\"]",
       "line 1, column 3: not valid JSON at the byte 0xFF (expected JSON text in "
       "UTF-8)"},
  };
  for (const auto& [text, message] : cases) {
    const auto error = parse(text, j);
    ASSERT_TRUE(error.has_value()) << text;
    EXPECT_EQ(error->text(), message) << text;
    EXPECT_TRUE(j.is_null());
  }
}

TEST(JsonInputTest, DeepNestingIsRefusedWithoutRecursionOrCrash) {
  nlohmann::json j;
  const std::string deep = std::string(1000000, '[') + std::string(1000000, ']');
  const auto error = parseJsonText(deep, {1u << 22, 3, 4, 10, 8}, j);
  ASSERT_TRUE(error.has_value());
  EXPECT_EQ(error->text(), "line 1, column 4: nested deeper than 3 levels");
}

TEST(JsonInputTest, ANumberBeyondADoubleIsRefusedWithItsPlace) {
  nlohmann::json j;
  const auto error = parse("[1,\n \"1e999\", -1e400]", j);
  ASSERT_TRUE(error.has_value());
  EXPECT_EQ(error->text(), "line 2, column 11: a number beyond the range of a double");
}

TEST(JsonInputTest, StringsHideBracketsAndCommasFromTheScan) {
  nlohmann::json j;
  EXPECT_EQ(parse(R"(["[[[[,,,,", "]]]"])", j), std::nullopt);
  EXPECT_EQ(j[0], "[[[[,,,,");
}

TEST(JsonInputTest, OnlyRegularFilesAreRead) {
  std::string text = "unchanged";
  EXPECT_EQ(readInputFile("/tmp", 100, text), InputFileStatus::CannotAccess);
  EXPECT_EQ(text, "");
  EXPECT_EQ(readInputFile("/dev/zero", 100, text), InputFileStatus::CannotAccess);
  EXPECT_EQ(readInputFile("/nonexistent/tnw.json", 100, text), InputFileStatus::CannotAccess);
  const auto dir = std::filesystem::temp_directory_path();
  const std::string fifo = (dir / ("tnw-fifo-" + std::to_string(getpid()))).string();
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  EXPECT_EQ(readInputFile(fifo, 100, text), InputFileStatus::CannotAccess);
  ::unlink(fifo.c_str());
  const std::string file = (dir / ("tnw-input-" + std::to_string(getpid()))).string();
  std::ofstream(file) << "[1, 2]";
  EXPECT_EQ(readInputFile(file, 100, text), InputFileStatus::Read);
  EXPECT_EQ(text, "[1, 2]");
  EXPECT_EQ(readInputFile(file, 5, text), InputFileStatus::TooLarge);
  EXPECT_EQ(text, "");
  std::filesystem::remove(file);
}

TEST(JsonInputTest, PointersEscapeTheirKeys) {
  EXPECT_EQ(jsonPointer(jsonPointer("", "steps"), std::size_t{2}), "/steps/2");
  EXPECT_EQ(jsonPointer("", "a/b~c"), "/a~1b~0c");
  EXPECT_EQ(inputErrorLine("f.json", {"/x", "expected a text"}),
            "tnwizard: f.json: /x: expected a text");
}

}  // namespace
}  // namespace tnw
