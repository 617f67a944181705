#include "cli_runner.h"
#include "model/model_file_writer.h"

// Std
#include <vector>

// GoogleTest
#include <gtest/gtest.h>

namespace tnw {
namespace {

using testing::runCli;
using testing::tempFile;

std::string writeModel() {
  AttributeModel m;
  m.NumAtt = 2;
  m.AttName[0] = "Price";
  m.NumPoints[0] = 4;
  const double scores[] = {0, 1, 2, 3};
  const double values[] = {0, 0.5, 0.6, 1.0};
  for (std::size_t k = 0; k < 4; ++k) {
    m.PointScore[0][k] = scores[k];
    m.PointValue[0][k] = values[k];
  }
  m.AttName[1] = "Empty";
  const std::string path = tempFile("tnw-cli-value.nrx");
  ModelFileWriter::writeFile(m, path);
  return path;
}

TEST(ValueCliTest, PrintsOneLineWithExactlyFourDecimalsPerScore) {
  const auto run = runCli("value '" + writeModel() + "' 0 0.5 1.25 1.5 3 9 -2");
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_EQ(run.out, "0.3036\n0.5411\n0.5500\n1.0000\n1.0000\n0.0000\n");
}

TEST(ValueCliTest, AFileThatCannotBeOpenedExitsWithTwo) {
  const auto run = runCli("value /nonexistent/tnw.nrx 0 1");
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.err, "There are problems in accessing the relevant data.\n");
}

TEST(ValueCliTest, BadArgumentsAreUsageErrors) {
  const std::string model = writeModel();
  for (const std::string& args : std::vector<std::string>{
           "value", "value '" + model + "'", "value '" + model + "' 0", "value '" + model + "' x 1",
           "value '" + model + "' 0 1x", "value '" + model + "' 0 nan"}) {
    const auto run = runCli(args);
    EXPECT_EQ(run.exitCode, 1) << args;
    EXPECT_NE(run.err.find("usage: tnwizard"), std::string::npos) << args;
  }
}

TEST(ValueCliTest, AValueThatCannotBeComputedExitsWithOneAndSaysWhy) {
  const std::string model = writeModel();
  const auto outside = runCli("value '" + model + "' 31 1");
  EXPECT_EQ(outside.exitCode, 1);
  EXPECT_EQ(outside.err, "tnwizard: Attribute 31 does not exist in the model (attributes are numbered from 0 to 30).\n");
  const auto empty = runCli("value '" + model + "' 1 1");
  EXPECT_EQ(empty.exitCode, 1);
  EXPECT_EQ(empty.err, "tnwizard: The value function of the attribute \"Empty\" has no points.\n");
}

}  // namespace
}  // namespace tnw
