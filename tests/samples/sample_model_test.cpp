#include "builtin_sample.h"
#include "common/core/recording_ui_services.h"
#include "model/model_file_reader.h"
#include "model/value_function.h"

// Std
#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <vector>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

std::vector<std::uint8_t> fileBytes(const char* path) {
  std::ifstream f(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

AttributeModel builtIn() {
  AttributeModel m;
  EXPECT_TRUE(ModelFileReader::read(builtInSampleModel(), m).complete);
  return m;
}

TEST(SampleModelTest, EmbeddedBytesAreTheSampleFile) {
  const std::span<const std::uint8_t> embedded = builtInSampleModel();
  const std::vector<std::uint8_t> file = fileBytes(TNW_SAMPLE_MODEL);
  ASSERT_FALSE(file.empty());
  EXPECT_TRUE(std::equal(embedded.begin(), embedded.end(), file.begin(), file.end()));
}

TEST(SampleModelTest, BuiltInSampleIsARealisticDecisionWithoutAnEarlierResult) {
  const AttributeModel m = builtIn();
  ASSERT_GE(m.NumAtt, 5);
  ASSERT_LE(m.NumAtt, 7);
  EXPECT_EQ(m.PrevTNType, "");
  EXPECT_FALSE(m.PrevRefAtt.has_value());
  bool benefit = false, cost = false, rising = false, falling = false, curved = false;
  int fewest = kMaxPoints, most = 0;
  for (int a = 0; a < m.NumAtt; ++a) {
    const auto i = static_cast<std::size_t>(a);
    EXPECT_FALSE(m.AttName[i].empty());
    EXPECT_FALSE(m.AttDefinition[i].empty());
    (m.AttOrientation[i] == "0" ? benefit : cost) = true;
    (m.AttScoreLow[i] <= m.AttScoreHigh[i] ? rising : falling) = true;
    fewest = std::min<int>(fewest, m.NumPoints[i]);
    most = std::max<int>(most, m.NumPoints[i]);
    // Not linear: a midpoint between the first and last point is off the straight line.
    const double x0 = *m.PointScore[i][0], y0 = *m.PointValue[i][0];
    const auto last = static_cast<std::size_t>(m.NumPoints[i] - 1);
    const double x1 = *m.PointScore[i][last], y1 = *m.PointValue[i][last];
    const double mid = (x0 + x1) / 2;
    const auto v = SingleAttValue(m, a, mid);
    ASSERT_TRUE(v.value.has_value());
    if (std::fabs(v.value->toDouble() - (y0 + y1) / 2) > 0.01) curved = true;
  }
  EXPECT_TRUE(benefit && cost);
  EXPECT_TRUE(rising && falling);
  EXPECT_TRUE(curved);
  EXPECT_EQ(fewest, 2);
  EXPECT_EQ(most, 11);
}

TEST(SampleModelTest, SecondSampleHoldsAnEarlierDirectResult) {
  AttributeModel m;
  RecordingUiServices ui;
  const ModelReadReport r = OpenRelatedFileForTNW(TNW_SAMPLE_MODEL_PREVIOUS, m, ui);
  ASSERT_TRUE(r.complete);
  EXPECT_EQ(m.PrevTNType, "MAVT_DIRECT");
  ASSERT_TRUE(m.PrevRefAtt.has_value());
  EXPECT_EQ(*m.PrevRefAtt, 2.0);
  const AttributeModel base = builtIn();
  EXPECT_EQ(m.AttName, base.AttName);
  EXPECT_EQ(m.PointScore, base.PointScore);
  for (int a = 0; a < m.NumAtt; ++a) {
    const auto i = static_cast<std::size_t>(a);
    EXPECT_LT(m.PrevWeightL[i], m.PrevWeight[i]);
    EXPECT_LT(m.PrevWeight[i], m.PrevWeightH[i]);
  }
}

}  // namespace
}  // namespace tnw
