#pragma once

// Std
#include <cstddef>
#include <string>
#include <vector>

// Prints the usage text to standard error and returns the usage exit status (1).
int tnwUsage();

// tnwizard model dump MODEL | model make INPUT.json -o MODEL: the model file as JSON and back.
int runModel(const std::vector<std::string>& args);

// tnwizard value MODEL ATT SCORE...: single-attribute values with four decimals.
int runValue(const std::vector<std::string>& args);

// tnwizard show [MODEL]: the wizard on MODEL (or the built-in sample), events as JSON lines.
int runShow(const std::vector<std::string>& args);

// tnwizard direct MODEL SCENARIO.json: the direct method run headless, the result as JSON.
int runDirect(const std::vector<std::string>& args);

// tnwizard tradeoffs MODEL JUDGMENTS.json: judgments recorded and the regression run headless.
int runTradeOffs(const std::vector<std::string>& args);

// Exit status when a model file cannot be opened.
inline constexpr int kExitCannotOpen = 2;

// Reads the JSON input file at path, at most maxBytes: 0 when it was read into text, else the
// exit status after the message was printed (2 and the host's message when it is missing or not
// a regular file, 1 and a located message when it is too large).
int readJsonInputFile(const std::string& path, std::size_t maxBytes, std::string& text);
