#pragma once

// Std
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace tnw::testing {

// What a run of the command line produced.
struct CliRun {
  int exitCode = -1;
  std::string out;
  std::string err;
};

// Runs tnwizard with the given arguments (already quoted for the shell).
inline CliRun runCli(const std::string& args) {
  static int counter = 0;
  const auto errPath =
      std::filesystem::temp_directory_path() /
      ("tnw-cli-err-" + std::to_string(getpid()) + "-" + std::to_string(++counter));
  const std::string command =
      std::string("'") + TNW_CLI_PATH + "' " + args + " 2>'" + errPath.string() + "'";
  CliRun run;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return run;
  std::array<char, 4096> buf{};
  std::size_t n = 0;
  while ((n = std::fread(buf.data(), 1, buf.size(), pipe)) > 0) run.out.append(buf.data(), n);
  const int status = pclose(pipe);
  run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  std::ifstream err(errPath);
  run.err.assign(std::istreambuf_iterator<char>(err), std::istreambuf_iterator<char>());
  std::filesystem::remove(errPath);
  return run;
}

// A path in the temporary directory, unique to this test process.
inline std::string tempFile(const std::string& name) {
  return (std::filesystem::temp_directory_path() / (std::to_string(getpid()) + "-" + name))
      .string();
}

// Writes text to path.
inline void writeText(const std::string& path, const std::string& text) {
  std::ofstream(path) << text;
}

}  // namespace tnw::testing
