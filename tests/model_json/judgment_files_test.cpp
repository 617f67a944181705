#include "model_json/judgment_files.h"

#include "model_json/judgments_json.h"
#include "model_json/scenario_json.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tnw {
namespace {

using direct::DirectScenario;
using direct::ScenarioStep;
using tradeoffs::TradeOffJudgment;

std::filesystem::path scratch(const std::string& name) {
  const auto dir = std::filesystem::temp_directory_path() / "tnw_judgment_files_test";
  std::filesystem::create_directories(dir);
  return dir / name;
}

TEST(JudgmentFilesTest, WrittenTradeOffJudgmentsReadBackExactly) {
  std::vector<TradeOffJudgment> judgments(2);
  judgments[0] = {2, 0, {0.1, 1.0 / 3.0, 42000, -1e-300}, 0};
  judgments[1] = {1, 2, {7, 8, 9, 10}, -3};
  const std::string text = writeTradeOffJudgments(judgments);
  EXPECT_EQ(text.substr(0, 2), "[\n");
  EXPECT_NE(
      text.find("\n {\"first\":1,\"second\":2,\"scores\":[7.0,8.0,9.0,10.0],\"response\":-3}\n]"),
      std::string::npos)
      << text;
  std::vector<TradeOffJudgment> read;
  ASSERT_EQ(readTradeOffJudgments(text, 3, read), std::nullopt) << text;
  ASSERT_EQ(read.size(), 2u);
  for (std::size_t k = 0; k < 2; ++k) {
    EXPECT_EQ(read[k].first, judgments[k].first);
    EXPECT_EQ(read[k].second, judgments[k].second);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(read[k].scores[i], judgments[k].scores[i]);
    EXPECT_EQ(read[k].response, judgments[k].response);
  }
  // No judgments make an empty list, which reads back as none.
  ASSERT_EQ(readTradeOffJudgments(writeTradeOffJudgments({}), 3, read), std::nullopt);
  EXPECT_TRUE(read.empty());
}

TEST(JudgmentFilesTest, WrittenIntervalsReadBackAsTheSameScenario) {
  DirectScenario s;
  s.order = std::vector<int>{1, 2, 2, 3};
  s.reference = 1;
  s.steps = {{false, 0, "1.25", "1.5"}, {true, -1, "", ""}, {false, 3, "0.3333", "0.5"}};
  const std::string text = writeDirectIntervals(s);
  EXPECT_EQ(text,
            "{\"order\": [1,2,2,3], \"reference\": 1,\n"
            " \"steps\": [\n"
            "  {\"target\":0,\"lower\":\"1.25\",\"upper\":\"1.5\"},\n"
            "  {\"restart\":true},\n"
            "  {\"target\":3,\"lower\":\"0.3333\",\"upper\":\"0.5\"}\n"
            " ]}\n");
  DirectScenario read;
  ASSERT_EQ(readDirectScenario(text, read), std::nullopt) << text;
  EXPECT_EQ(read.order, s.order);
  EXPECT_EQ(read.reference, s.reference);
  ASSERT_EQ(read.steps.size(), 3u);
  EXPECT_EQ(read.steps[0].target, 0);
  EXPECT_EQ(read.steps[0].lower, "1.25");
  EXPECT_TRUE(read.steps[1].restart);
  EXPECT_EQ(read.steps[2].upper, "0.5");
}

TEST(JudgmentFilesTest, FilesAreWrittenAndReadAndTheirProblemsNamed) {
  const JsonJudgmentsFile file;
  const std::string path = scratch("judgments.json").string();
  std::vector<TradeOffJudgment> judgments(1);
  judgments[0] = {0, 1, {1, 2, 3, 4}, 2};
  ASSERT_EQ(file.save(path, judgments), std::nullopt);
  std::vector<TradeOffJudgment> read;
  ASSERT_EQ(file.load(path, 2, read), std::nullopt);
  ASSERT_EQ(read.size(), 1u);
  EXPECT_EQ(read[0].response, 2);
  // An attribute index the model lacks is named where it stands.
  EXPECT_EQ(file.load(path, 1, read),
            "/0/second: judgment [0]: \"second\" 1 is not an attribute index of the model (its "
            "indexes: 0 to 0)");
  EXPECT_TRUE(read.empty());
  // A folder is neither read nor written.
  const std::string folder = scratch("").string();
  EXPECT_EQ(file.load(folder, 2, read), "There are problems in accessing the relevant data.");
  EXPECT_EQ(file.save(folder, judgments), "The file \"" + folder + "\" cannot be written.");
  // A file larger than a judgment list may be is refused unread.
  const std::string big = scratch("big.json").string();
  std::ofstream(big) << std::string(kJudgmentsJsonLimits.maxBytes + 1, ' ');
  EXPECT_EQ(file.load(big, 2, read), "The file \"" + big + "\" is larger than " +
                                         std::to_string(kJudgmentsJsonLimits.maxBytes) + " bytes.");
  const JsonIntervalsFile intervals;
  DirectScenario s;
  s.order = std::vector<int>{1, 2};
  s.reference = 0;
  const std::string ipath = scratch("intervals.json").string();
  ASSERT_EQ(intervals.save(ipath, s), std::nullopt);
  DirectScenario back;
  ASSERT_EQ(intervals.load(ipath, back), std::nullopt);
  EXPECT_EQ(back.order, s.order);
  EXPECT_EQ(intervals.save(ipath, s), std::nullopt);
  std::ofstream(ipath) << "{\"order\": [1, 2";
  EXPECT_NE(intervals.load(ipath, back), std::nullopt);
  EXPECT_FALSE(back.order.has_value());
}

}  // namespace
}  // namespace tnw
