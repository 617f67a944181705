#include "cli_runner.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <string>

namespace tnw {
namespace {

using testing::runCli;

TEST(HelpCliTest, HelpPrintsTheUsageToStandardOutputAndSucceeds) {
  for (const char* args : {"--help", "-h"}) {
    const auto run = runCli(args);
    EXPECT_EQ(run.exitCode, 0) << args;
    EXPECT_EQ(run.out.rfind("usage: tnwizard show [MODEL]\n", 0), 0u) << args << ": " << run.out;
    EXPECT_NE(run.out.find("tnwizard tradeoffs MODEL JUDGMENTS.json\n"), std::string::npos);
    EXPECT_EQ(run.err, "") << args;
  }
}

TEST(HelpCliTest, VersionPrintsTheProgramAndItsVersionAndSucceeds) {
  const auto run = runCli("--version");
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.out, "tnwizard " TNW_VERSION "\n");
  EXPECT_EQ(run.err, "");
}

TEST(HelpCliTest, AUsageErrorStaysOnStandardErrorWithStatusOne) {
  for (const char* args : {"", "--helpme", "--version extra", "--help model", "-v"}) {
    const auto run = runCli(args);
    EXPECT_EQ(run.exitCode, 1) << args;
    EXPECT_EQ(run.out, "") << args;
    EXPECT_EQ(run.err.rfind("usage: tnwizard", 0), 0u) << args << ": " << run.err;
  }
}

}  // namespace
}  // namespace tnw
