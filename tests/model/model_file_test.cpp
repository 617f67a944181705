#include "common/core/recording_ui_services.h"
#include "model/model_file_reader.h"
#include "model/model_file_writer.h"
#include "model_fixtures.h"

// Std
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

using testing::variedModel;

// Where PointScore(0, 0) sits in a written file: after the 744 + 248 + 248 + 64 + 62 bytes of
// block 7 that precede the points.
constexpr std::size_t kFirstPointOffsetInBlock7 = 1366;

ModelReadReport readImage(const std::vector<std::uint8_t>& bytes, AttributeModel& m) {
  return ModelFileReader::read(bytes, m);
}

std::string tempPath(const char* name) {
  return (std::filesystem::temp_directory_path() / name).string();
}

bool sameBlock1(const AttributeModel& a, const AttributeModel& b) { return a.NumAtt == b.NumAtt; }
bool sameBlock4(const AttributeModel& a, const AttributeModel& b) {
  return a.AttName == b.AttName && a.AttDefinition == b.AttDefinition &&
         a.AttOrientation == b.AttOrientation;
}
bool sameBlock7(const AttributeModel& a, const AttributeModel& b) {
  return a.AttScoreLow == b.AttScoreLow && a.AttScoreHigh == b.AttScoreHigh &&
         a.NumPoints == b.NumPoints && a.PointScore == b.PointScore && a.PointValue == b.PointValue;
}
bool sameBlock8(const AttributeModel& a, const AttributeModel& b) {
  return a.PrevTNType == b.PrevTNType && a.PrevRefAtt == b.PrevRefAtt &&
         a.PrevWeight == b.PrevWeight && a.PrevWeightH == b.PrevWeightH &&
         a.PrevWeightL == b.PrevWeightL;
}
bool sameBlock(int block, const AttributeModel& a, const AttributeModel& b) {
  switch (block) {
    case 1:
      return sameBlock1(a, b);
    case 4:
      return sameBlock4(a, b);
    case 7:
      return sameBlock7(a, b);
    case 8:
      return sameBlock8(a, b);
    default:
      return true;
  }
}

TEST(ModelFileTest, RoundTripsVariedModels) {
  AttributeModel empty;
  AttributeModel full = variedModel();
  full.NumAtt = 31;
  for (std::size_t a = 0; a < kMaxAttributes; ++a) {
    full.AttName[a] = "Attribute " + std::to_string(a);
    full.NumPoints[a] = 11;
    for (std::size_t k = 0; k < kMaxPoints; ++k) {
      full.PointScore[a][k] = static_cast<double>(a * 100 + k);
      full.PointValue[a][k] = static_cast<double>(k) / 10.0;
    }
  }
  full.PrevRefAtt = 0.5;  // not integral: written as a double
  AttributeModel negative = variedModel();
  negative.PrevRefAtt = -3.0;
  negative.PrevTNType = "MAVT_TRADEOFFS";
  for (const AttributeModel& m : {empty, variedModel(), full, negative}) {
    const ModelFileImage image = ModelFileWriter::write(m);
    AttributeModel read;
    const ModelReadReport r = readImage(image.bytes, read);
    EXPECT_TRUE(r.complete);
    EXPECT_EQ(r.problem, ModelReadProblem::None);
    EXPECT_EQ(r.block, 8);
    EXPECT_EQ(r.offset, image.bytes.size());
    EXPECT_EQ(read, m);
  }
}

std::size_t stringsSize(const std::array<std::string, kMaxAttributes>& texts) {
  std::size_t n = 0;
  for (const auto& t : texts) n += 2 + t.size();  // plain ASCII in this test
  return n;
}

std::size_t variantsSize(
    const std::array<std::array<std::optional<double>, kMaxPoints>, kMaxAttributes>& p) {
  std::size_t n = 0;
  for (const auto& att : p) {
    for (const auto& v : att) n += v ? 10 : 2;
  }
  return n;
}

TEST(ModelFileTest, BlockSizesAreTheHostsSizes) {
  AttributeModel m = variedModel();
  m.AttName[2] = "Size";
  m.AttName[3] = "Safety";
  const ModelFileImage image = ModelFileWriter::write(m);
  auto size = [&](int b) {
    return image.blockStart[static_cast<std::size_t>(b)] -
           image.blockStart[static_cast<std::size_t>(b - 1)];
  };
  EXPECT_EQ(image.blockStart[0], 0u);
  EXPECT_EQ(size(1), 6 * 2 + 8u);
  EXPECT_EQ(size(2), 30u);
  EXPECT_EQ(size(3), 2 * 51 * 2u);
  EXPECT_EQ(size(4), stringsSize(m.AttName) + stringsSize(m.AttDefinition) +
                         stringsSize(m.AttOrientation) + 62);
  EXPECT_EQ(size(5), 1581 * 2u);
  EXPECT_EQ(size(6), 12648u);
  EXPECT_EQ(size(7), 744 + 248 + 248 + 64 + 62 + variantsSize(m.PointScore) +
                         variantsSize(m.PointValue) + 62 + 992);
  // "MAVT_DIRECT", PrevRefAtt 2 as a 2-byte integer, two empty Variants, three weight arrays,
  // and the empty closing text.
  EXPECT_EQ(size(8), 2 + 11 + 4 + 4 + 3 * 248 + 2u);
  EXPECT_EQ(image.blockStart[8], image.bytes.size());
}

TEST(ModelFileTest, EmptyModelHasTheSmallestFileSize) {
  const ModelFileImage image = ModelFileWriter::write(AttributeModel{});
  EXPECT_EQ(image.bytes.size(), 20 + 30 + 204 + (93 * 2 + 62) + 3162 + 12648 +
                                    (744 + 496 + 64 + 62 + 682 * 2 + 62 + 992) +
                                    (2 + 2 + 4 + 744 + 2u));
}

TEST(ModelFileTest, TruncationAtEveryOffsetReportsAnIncompleteReadWithLaterBlocksCleared) {
  const AttributeModel full = variedModel();
  const ModelFileImage image = ModelFileWriter::write(full);
  const AttributeModel cleared;
  AttributeModel read;
  for (std::size_t n = 0; n < image.bytes.size(); ++n) {
    const std::vector<std::uint8_t> cut(image.bytes.begin(),
                                        image.bytes.begin() + static_cast<std::ptrdiff_t>(n));
    const ModelReadReport r = readImage(cut, read);
    ASSERT_FALSE(r.complete) << n;
    ASSERT_EQ(r.problem, ModelReadProblem::Truncated) << n;
    ASSERT_LE(r.offset, n);
    // Reading stops in the block the cut falls into.
    ASSERT_GE(n, image.blockStart[static_cast<std::size_t>(r.block - 1)]) << n;
    ASSERT_LT(n, image.blockStart[static_cast<std::size_t>(r.block)]) << n;
    for (int b = 1; b <= 8; ++b) {
      if (b < r.block) {
        ASSERT_TRUE(sameBlock(b, read, full)) << "block " << b << " cut " << n;
      }
      if (b > r.block) {
        ASSERT_TRUE(sameBlock(b, read, cleared)) << "block " << b << " cut " << n;
      }
    }
  }
}

TEST(ModelFileTest, ShortFileKeepsWhatWasReadInTheStoppedBlock) {
  const AttributeModel full = variedModel();
  const ModelFileImage image = ModelFileWriter::write(full);
  // Cut inside block 4, just after the first three names.
  std::size_t cut = image.blockStart[3];
  for (int i = 0; i < 3; ++i) cut += 2 + image.bytes[cut] + 256u * image.bytes[cut + 1];
  AttributeModel read;
  const ModelReadReport r = readImage(
      {image.bytes.begin(), image.bytes.begin() + static_cast<std::ptrdiff_t>(cut) + 1}, read);
  EXPECT_EQ(r.block, 4);
  EXPECT_EQ(r.offset, cut);
  EXPECT_EQ(read.NumAtt, 7);
  EXPECT_EQ(read.AttName[0], "Price");
  EXPECT_EQ(read.AttName[2], "Größe");
  EXPECT_EQ(read.AttName[3], "");
}

TEST(ModelFileTest, StringLengthPastTheEndOfTheFileStopsAtThatString) {
  AttributeModel m;
  m.AttName[0] = "Price";
  ModelFileImage image = ModelFileWriter::write(m);
  const std::size_t at = image.blockStart[3];
  image.bytes[at] = 0xFF;
  image.bytes[at + 1] = 0xFF;
  AttributeModel read;
  const ModelReadReport r = readImage(image.bytes, read);
  EXPECT_FALSE(r.complete);
  EXPECT_EQ(r.problem, ModelReadProblem::Truncated);
  EXPECT_EQ(r.block, 4);
  EXPECT_EQ(r.offset, at);
  EXPECT_EQ(read.AttName[0], "");
}

TEST(ModelFileTest, AStringOfLengthZeroIsReadAsTheEmptyString) {
  AttributeModel m = variedModel();
  ASSERT_EQ(m.AttName[4], "");
  AttributeModel read;
  read.AttName[4] = "stale";
  ASSERT_TRUE(readImage(ModelFileWriter::write(m).bytes, read).complete);
  EXPECT_EQ(read.AttName[4], "");
  EXPECT_EQ(read.AttName[5], "Boot");
}

TEST(ModelFileTest, AttScoreLowGreaterThanAttScoreHighIsKeptAsItIs) {
  AttributeModel read;
  ASSERT_TRUE(readImage(ModelFileWriter::write(variedModel()).bytes, read).complete);
  EXPECT_DOUBLE_EQ(read.AttScoreLow[1], 12.5);
  EXPECT_DOUBLE_EQ(read.AttScoreHigh[1], 4.0);
}

TEST(ModelFileTest, TextsAreConvertedFromWindows1252) {
  const ModelFileImage image = ModelFileWriter::write(variedModel());
  // "Größe" is five bytes in the file: ö = 0xF6, ß = 0xDF.
  std::size_t at = image.blockStart[3];
  for (int i = 0; i < 2; ++i) at += 2 + image.bytes[at];
  EXPECT_EQ(image.bytes[at], 5);
  EXPECT_EQ(image.bytes[at + 2 + 2], 0xF6);
  EXPECT_EQ(image.bytes[at + 2 + 3], 0xDF);
  AttributeModel read;
  ASSERT_TRUE(readImage(image.bytes, read).complete);
  EXPECT_EQ(read.AttName[2], "Größe");
  EXPECT_EQ(read.AttName[3], "Safety €");
  EXPECT_EQ(read.AttName[1], "  Fuel use ");  // raw, not trimmed
}

// The file of an otherwise empty model with PointScore(0, 0) replaced by the given Variant bytes.
std::vector<std::uint8_t> withFirstPointScore(const std::vector<std::uint8_t>& variant) {
  AttributeModel m;
  m.NumAtt = 1;
  m.NumPoints[0] = 1;
  const ModelFileImage image = ModelFileWriter::write(m);
  std::vector<std::uint8_t> bytes = image.bytes;
  const auto at = static_cast<std::ptrdiff_t>(image.blockStart[6] + kFirstPointOffsetInBlock7);
  bytes.erase(bytes.begin() + at, bytes.begin() + at + 2);
  bytes.insert(bytes.begin() + at, variant.begin(), variant.end());
  return bytes;
}

struct VariantCase {
  const char* name;
  std::vector<std::uint8_t> bytes;
  std::optional<double> value;
};

class VariantTypeTest : public ::testing::TestWithParam<VariantCase> {};

TEST_P(VariantTypeTest, NumbersOfEveryHostTypeReadAsDoubles) {
  AttributeModel read;
  const ModelReadReport r = readImage(withFirstPointScore(GetParam().bytes), read);
  EXPECT_TRUE(r.complete);
  EXPECT_EQ(read.PointScore[0][0], GetParam().value);
  EXPECT_EQ(read.NumAtt, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Table, VariantTypeTest,
    ::testing::Values(VariantCase{"Empty", {0, 0}, std::nullopt},
                      VariantCase{"Null", {1, 0}, std::nullopt},
                      VariantCase{"I2", {2, 0, 0xFE, 0xFF}, -2.0},
                      VariantCase{"I4", {3, 0, 0xA0, 0x86, 0x01, 0x00}, 100000.0},
                      VariantCase{"R4", {4, 0, 0x00, 0x00, 0xC0, 0x3F}, 1.5},
                      VariantCase{"R8", {5, 0, 0, 0, 0, 0, 0, 0, 0x04, 0x40}, 2.5},
                      VariantCase{"Currency", {6, 0, 0x10, 0x27, 0, 0, 0, 0, 0, 0}, 1.0},
                      VariantCase{"Date", {7, 0, 0, 0, 0, 0, 0, 0, 0xF0, 0x3F}, 1.0},
                      VariantCase{"NumericText", {8, 0, 4, 0, '1', '2', '.', '5'}, 12.5},
                      VariantCase{"OtherText", {8, 0, 3, 0, 'a', 'b', 'c'}, std::nullopt},
                      VariantCase{"Error", {10, 0, 1, 2, 3, 4}, std::nullopt},
                      VariantCase{"BoolTrue", {11, 0, 0xFF, 0xFF}, -1.0},
                      VariantCase{"Byte", {17, 0, 200}, 200.0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ModelFileTest, UnknownVariantTypeCodeStopsTheReadAndIsReported) {
  AttributeModel read;
  const std::vector<std::uint8_t> bytes = withFirstPointScore({0x0C, 0x20, 1, 2, 3});
  AttributeModel m;
  const std::size_t at = ModelFileWriter::write(m).blockStart[6] + kFirstPointOffsetInBlock7;
  const ModelReadReport r = readImage(bytes, read);
  EXPECT_FALSE(r.complete);
  EXPECT_EQ(r.problem, ModelReadProblem::UnknownVariantType);
  EXPECT_EQ(r.block, 7);
  EXPECT_EQ(r.offset, at);
  EXPECT_EQ(read.NumAtt, 1);
  EXPECT_EQ(read.NumPoints[0], 1);
  EXPECT_EQ(read.PrevTNType, "");
}

TEST(ModelFileTest, CountsOutsideTheirRangesAreRecordedAndClampedForUse) {
  for (std::int16_t numAtt : {-5, 0, 31, 32, 500, 32767}) {
    AttributeModel m;
    m.NumAtt = numAtt;
    m.NumPoints[0] = 300;
    m.NumPoints[1] = -2;
    AttributeModel read;
    ASSERT_TRUE(readImage(ModelFileWriter::write(m).bytes, read).complete);
    EXPECT_EQ(read.NumAtt, numAtt);
    EXPECT_EQ(read.attributeCount(), std::clamp<int>(numAtt, 0, 31));
    EXPECT_EQ(read.NumPoints[0], 300);
    EXPECT_EQ(read.pointCount(0), 11);
    EXPECT_EQ(read.pointCount(1), 0);
    EXPECT_EQ(read.pointCount(31), 0);
  }
}

TEST(ModelFileTest, BytesAfterTheLastBlockAreIgnored) {
  std::vector<std::uint8_t> bytes = ModelFileWriter::write(variedModel()).bytes;
  const std::size_t size = bytes.size();
  bytes.insert(bytes.end(), 100, 0xAB);
  AttributeModel read;
  const ModelReadReport r = readImage(bytes, read);
  EXPECT_TRUE(r.complete);
  EXPECT_EQ(r.offset, size);
  EXPECT_EQ(read, variedModel());
}

TEST(OpenRelatedFileForTNWTest, APathThatDoesNotExistShowsTheMessageOnceAndKeepsThePreviousModel) {
  RecordingUiServices ui;
  AttributeModel model = variedModel();
  const ModelReadReport r = OpenRelatedFileForTNW(tempPath("tnw-no-such-dir/none.nrx"), model, ui);
  EXPECT_FALSE(r.opened);
  EXPECT_FALSE(r.complete);
  EXPECT_EQ(r.problem, ModelReadProblem::CannotOpen);
  ASSERT_EQ(ui.messages().size(), 1u);
  EXPECT_EQ(ui.messages()[0].text, "There are problems in accessing the relevant data.");
  EXPECT_EQ(ui.messages()[0].title, "NORIX");
  EXPECT_EQ(ui.messages()[0].icon, MessageIcon::Information);
  EXPECT_EQ(ui.beeps(), 1);
  EXPECT_FALSE(ui.busy());
  EXPECT_EQ(model, variedModel());
}

TEST(OpenRelatedFileForTNWTest, ADirectoryOrAnEmptyPathCannotBeOpened) {
  for (const std::string& path : {std::filesystem::temp_directory_path().string(), std::string()}) {
    RecordingUiServices ui;
    AttributeModel model = variedModel();
    EXPECT_EQ(OpenRelatedFileForTNW(path, model, ui).problem, ModelReadProblem::CannotOpen);
    EXPECT_EQ(ui.messages().size(), 1u);
    EXPECT_EQ(model, variedModel());
  }
}

TEST(OpenRelatedFileForTNWTest, ReadsWithTheBusyPointerAndShowsNoMessage) {
  const std::string path = tempPath("tnw-open-related.nrx");
  ASSERT_TRUE(ModelFileWriter::writeFile(variedModel(), path));
  RecordingUiServices ui;
  AttributeModel model;
  const ModelReadReport r = OpenRelatedFileForTNW(path, model, ui);
  EXPECT_TRUE(r.opened);
  EXPECT_TRUE(r.complete);
  EXPECT_EQ(model, variedModel());
  EXPECT_EQ(ui.busyCount(), 1);
  EXPECT_FALSE(ui.busy());
  EXPECT_TRUE(ui.messages().empty());
  EXPECT_EQ(ui.beeps(), 0);
  std::remove(path.c_str());
}

TEST(OpenRelatedFileForTNWTest, ReadingTheSameFileTwiceGivesTheSameModel) {
  const std::string pathA = tempPath("tnw-twice-a.nrx");
  const std::string pathB = tempPath("tnw-twice-b.nrx");
  AttributeModel other;
  other.NumAtt = 2;
  other.AttName = {"Left", "Over"};
  other.PrevTNType = "MAVT_TRADEOFFS";
  other.NumPoints.fill(11);
  other.PointScore[30][10] = 4.0;
  ASSERT_TRUE(ModelFileWriter::writeFile(variedModel(), pathA));
  ASSERT_TRUE(ModelFileWriter::writeFile(other, pathB));
  RecordingUiServices ui;
  AttributeModel first;
  OpenRelatedFileForTNW(pathA, first, ui);
  AttributeModel model;
  OpenRelatedFileForTNW(pathB, model, ui);
  OpenRelatedFileForTNW(pathA, model, ui);
  EXPECT_EQ(model, first);
  OpenRelatedFileForTNW(pathA, model, ui);
  EXPECT_EQ(model, first);
  EXPECT_TRUE(ui.messages().empty());
  std::remove(pathA.c_str());
  std::remove(pathB.c_str());
}

TEST(OpenRelatedFileForTNWTest, AShortFileShowsNoMessageAndReportsWhereItStopped) {
  const std::string path = tempPath("tnw-short.nrx");
  const ModelFileImage image = ModelFileWriter::write(variedModel());
  {
    std::ofstream f(path, std::ios::binary);
    f.write(reinterpret_cast<const char*>(image.bytes.data()),
            static_cast<std::streamsize>(image.blockStart[6] + 10));
  }
  RecordingUiServices ui;
  AttributeModel model;
  const ModelReadReport r = OpenRelatedFileForTNW(path, model, ui);
  EXPECT_TRUE(r.opened);
  EXPECT_FALSE(r.complete);
  EXPECT_EQ(r.block, 7);
  EXPECT_EQ(model.NumAtt, 7);
  EXPECT_EQ(model.AttName[0], "Price");
  EXPECT_EQ(model.PrevTNType, "");
  EXPECT_TRUE(ui.messages().empty());
  EXPECT_EQ(ui.beeps(), 0);
  std::remove(path.c_str());
}

TEST(OpenRelatedFileForTNWTest, APathIsReadAsUtf8) {
  const std::string path = tempPath(
      "tnw-Pr\xC3\xA4"
      "ferenz-\xE2\x82\xAC.nrx");
  ASSERT_TRUE(ModelFileWriter::writeFile(variedModel(), path));
  RecordingUiServices ui;
  AttributeModel model;
  const ModelReadReport r = OpenRelatedFileForTNW(path, model, ui);
  EXPECT_TRUE(r.complete);
  EXPECT_EQ(model, variedModel());
  std::filesystem::remove(std::filesystem::path(
      std::u8string(reinterpret_cast<const char8_t*>(path.data()), path.size())));
}

}  // namespace
}  // namespace tnw
