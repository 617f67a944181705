#pragma once

// JSON
#include <nlohmann/json.hpp>

// Std
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tnw {

// What a JSON input may hold at most. Each input sets these to what a real model, scenario or
// judgment list can need, so that a hostile file is refused before any work starts.
struct JsonLimits {
  // Bytes of the whole document.
  std::size_t maxBytes = 0;
  // Arrays and objects nested in one another.
  std::size_t maxDepth = 0;
  // Entries of one array or members of one object.
  std::size_t maxEntries = 0;
  // Bytes of one string as written in the file (escapes included).
  std::size_t maxStringBytes = 0;
  // Characters of one number.
  std::size_t maxNumberChars = 64;
};

// Why a JSON input was refused: where (line and column, or the field's JSON pointer) and what
// was expected there, in the program's own words.
struct JsonInputError {
  // "line 3, column 7" or a JSON pointer such as "/steps/2/target".
  std::string where;
  // What was wrong or expected, e.g. "expected an integer from 0 to 30".
  std::string what;
  // The one-line text "where: what".
  std::string text() const { return where + ": " + what; }
};

// Checks text against limits with one pass that does not recurse, then parses it into out.
// Returns the located reason when the text is too large, too deep, too long somewhere or not
// JSON; out is then left null.
std::optional<JsonInputError> parseJsonText(std::string_view text, const JsonLimits& limits,
                                            nlohmann::json& out);

// How reading an input file went.
enum class InputFileStatus {
  Read,          // the text was read whole
  CannotAccess,  // missing, unreadable, or not a regular file (a directory, FIFO or device)
  TooLarge,      // a regular file larger than the input may be
};

// Reads the regular file at path, at most maxBytes of it. A directory, FIFO or device is
// refused without being opened, so nothing waits on it.
InputFileStatus readInputFile(const std::string& path, std::size_t maxBytes, std::string& text);

// The one-line message for an input that could not be used: "tnwizard: FILE: WHERE: WHAT".
std::string inputErrorLine(const std::string& file, const JsonInputError& error);

// A JSON pointer one level below parent: "/steps" + 2 gives "/steps/2".
std::string jsonPointer(const std::string& parent, std::string_view key);
std::string jsonPointer(const std::string& parent, std::size_t index);

}  // namespace tnw
