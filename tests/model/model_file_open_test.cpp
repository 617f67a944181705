// What OpenRelatedFileForTNW reads from a path: regular files only, and no more of them than a
// model file can hold.

#include "common/core/recording_ui_services.h"
#include "model/model_file_reader.h"
#include "model/model_file_writer.h"
#include "model_fixtures.h"

// POSIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// Std
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

using testing::variedModel;

std::string tempPath(const std::string& name) {
  return (std::filesystem::temp_directory_path() / (std::to_string(getpid()) + "-" + name))
      .string();
}

// A path that is not a regular file: refused at once with the host's message, nothing read,
// no busy pointer, the model as it was.
void expectRefused(const std::string& path) {
  RecordingUiServices ui;
  AttributeModel model = variedModel();
  const ModelReadReport r = OpenRelatedFileForTNW(path, model, ui);
  EXPECT_FALSE(r.opened) << path;
  EXPECT_EQ(r.problem, ModelReadProblem::CannotOpen) << path;
  ASSERT_EQ(ui.messages().size(), 1u) << path;
  EXPECT_EQ(ui.messages()[0].text, "There are problems in accessing the relevant data.");
  EXPECT_EQ(ui.messages()[0].title, "NORIX");
  EXPECT_EQ(ui.beeps(), 1);
  EXPECT_EQ(ui.busyCount(), 0);
  EXPECT_EQ(model, variedModel());
  EXPECT_FALSE(readModelFileBytes(path).opened) << path;
}

TEST(ModelFileOpenTest, APipeWithNoWriterIsRefusedAtOnceInsteadOfWaiting) {
  const std::string path = tempPath("tnw-model.fifo");
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0) << std::strerror(errno);
  expectRefused(path);
  std::filesystem::remove(path);
}

TEST(ModelFileOpenTest, AnEndlessDeviceIsRefused) { expectRefused("/dev/zero"); }

TEST(ModelFileOpenTest, ADirectoryIsRefused) {
  expectRefused(std::filesystem::temp_directory_path().string());
}

TEST(ModelFileOpenTest, ARegularFileIsReadWholeInOnePiece) {
  const std::string path = tempPath("tnw-open-regular.nrx");
  ASSERT_TRUE(ModelFileWriter::writeFile(variedModel(), path));
  const ModelFileBytes file = readModelFileBytes(path);
  EXPECT_TRUE(file.opened);
  EXPECT_FALSE(file.readError);
  const std::vector<std::uint8_t> written = ModelFileWriter::write(variedModel()).bytes;
  EXPECT_EQ(std::vector<std::uint8_t>(file.bytes().begin(), file.bytes().end()), written);
  std::filesystem::remove(path);
}

TEST(ModelFileOpenTest, AnEmptyFileIsOpenedAndReadsAsAnEmptyModel) {
  const std::string path = tempPath("tnw-open-empty.nrx");
  ASSERT_TRUE(std::ofstream(path).good());
  RecordingUiServices ui;
  AttributeModel model = variedModel();
  const ModelReadReport r = OpenRelatedFileForTNW(path, model, ui);
  EXPECT_TRUE(r.opened);
  EXPECT_FALSE(r.complete);
  EXPECT_EQ(r.problem, ModelReadProblem::Truncated);
  EXPECT_EQ(model, AttributeModel{});
  EXPECT_TRUE(ui.messages().empty());
  EXPECT_EQ(ui.busyCount(), 1);
  EXPECT_FALSE(ui.busy());
  std::filesystem::remove(path);
}

// Appends a text of the largest length, or a Variant holding one.
void appendLargestText(std::vector<std::uint8_t>& out, bool asVariant) {
  if (asVariant) out.insert(out.end(), {8, 0});  // a text Variant
  out.insert(out.end(), {0xFF, 0xFF});
  out.insert(out.end(), 65535, 'A');
}

void appendTexts(std::vector<std::uint8_t>& out, int count, bool asVariants) {
  for (int i = 0; i < count; ++i) appendLargestText(out, asVariants);
}

void appendZeros(std::vector<std::uint8_t>& out, std::size_t count) {
  out.insert(out.end(), count, 0);
}

// A file with every text and every Variant at its largest, block by block.
std::vector<std::uint8_t> largestModelFile() {
  std::vector<std::uint8_t> out;
  out.reserve(ModelFileReader::kMaxModelFileBytes + 16);
  appendTexts(out, 6, false);
  appendZeros(out, 8);              // block 1: four bytes, NumAtt, two bytes
  appendZeros(out, 30);             // block 2
  appendTexts(out, 2 * 51, false);  // block 3
  appendTexts(out, 3 * 31, false);  // block 4: names, definitions, orientations
  appendZeros(out, 62);
  appendTexts(out, 51 * 31, true);              // block 5
  appendZeros(out, 12648);                      // block 6
  appendZeros(out, 744 + 248 + 248 + 64 + 62);  // block 7: up to the points
  appendTexts(out, 2 * 11 * 31, true);          // scores and values
  appendZeros(out, 62 + 992);
  appendTexts(out, 1, false);  // block 8: PrevTNType, PrevRefAtt and two more Variants
  appendTexts(out, 3, true);
  appendZeros(out, 3 * 248);  // the three weight tables
  appendTexts(out, 1, false);
  return out;
}

TEST(ModelFileOpenTest, TheLargestModelFileEndsExactlyAtTheBound) {
  std::vector<std::uint8_t> bytes = largestModelFile();
  EXPECT_EQ(bytes.size(), ModelFileReader::kMaxModelFileBytes);
  EXPECT_EQ(ModelFileReader::kMaxModelFileBytes, 161831297u);
  bytes.push_back(0x55);  // a byte after the model is never reached
  AttributeModel model;
  const ModelReadReport r = ModelFileReader::read(bytes, model);
  EXPECT_TRUE(r.complete);
  EXPECT_EQ(r.offset, ModelFileReader::kMaxModelFileBytes);
  EXPECT_EQ(model.AttName[30], std::string(65535, 'A'));
  EXPECT_EQ(model.PrevTNType, std::string(65535, 'A'));
}

TEST(ModelFileOpenTest, AFileLargerThanAnyModelIsReadOnlyUpToTheBound) {
  // 2 GiB of holes: only the bound is read from it, not the whole file.
  const std::string path = tempPath("tnw-open-sparse.nrx");
  {
    std::ofstream create(path);
    ASSERT_TRUE(create.good());
  }
  std::filesystem::resize_file(path, std::uintmax_t{2} << 30);
  const ModelFileBytes file = readModelFileBytes(path);
  EXPECT_TRUE(file.opened);
  EXPECT_FALSE(file.readError);
  EXPECT_EQ(file.size, ModelFileReader::kMaxModelFileBytes);
  RecordingUiServices ui;
  AttributeModel model = variedModel();
  const ModelReadReport r = OpenRelatedFileForTNW(path, model, ui);
  // Zeros read as empty texts, empty Variants and zero numbers: a complete, empty model.
  EXPECT_TRUE(r.complete);
  EXPECT_EQ(model, AttributeModel{});
  EXPECT_TRUE(ui.messages().empty());
  std::filesystem::remove(path);
}

}  // namespace
}  // namespace tnw
