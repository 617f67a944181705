#include "model_json/json_input.h"

// Std
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

namespace tnw {
namespace {

// Line and column (both from 1) of byte offset `at` of text.
std::string position(std::string_view text, std::size_t at) {
  std::size_t line = 1;
  std::size_t lineStart = 0;
  for (std::size_t i = 0; i < at && i < text.size(); ++i) {
    if (text[i] == '\n') {
      ++line;
      lineStart = i + 1;
    }
  }
  return "line " + std::to_string(line) + ", column " + std::to_string(at - lineStart + 1);
}

bool numberChar(char c) {
  return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E';
}

// The limits checked in one pass over the text, without building anything: strings are
// skipped with their escapes, brackets counted on an explicit stack.
class LimitScan {
 public:
  LimitScan(std::string_view text, const JsonLimits& limits) : m_text(text), m_limits(limits) {}

  std::optional<JsonInputError> run() {
    if (m_text.size() > m_limits.maxBytes) {
      return JsonInputError{"the file",
                            "larger than " + std::to_string(m_limits.maxBytes) + " bytes"};
    }
    for (std::size_t i = 0; i < m_text.size(); ++i) {
      const char c = m_text[i];
      if (c == '"') {
        if (auto e = skipString(i)) return e;
      } else if (c == '[' || c == '{') {
        if (m_entries.size() >= m_limits.maxDepth) {
          return at(i, "nested deeper than " + std::to_string(m_limits.maxDepth) + " levels");
        }
        m_entries.push_back(1);
      } else if (c == ']' || c == '}') {
        if (!m_entries.empty()) m_entries.pop_back();
      } else if (c == ',' && !m_entries.empty()) {
        if (++m_entries.back() > m_limits.maxEntries) {
          return at(i, "more than " + std::to_string(m_limits.maxEntries) + " entries");
        }
      } else if (numberChar(c)) {
        std::size_t end = i;
        while (end < m_text.size() && numberChar(m_text[end])) ++end;
        if (end - i > m_limits.maxNumberChars) {
          return at(
              i, "a number longer than " + std::to_string(m_limits.maxNumberChars) + " characters");
        }
        i = end - 1;
      }
    }
    return std::nullopt;
  }

 private:
  // Moves i to the closing quote of the string that opens at i.
  std::optional<JsonInputError> skipString(std::size_t& i) {
    const std::size_t open = i;
    for (++i; i < m_text.size() && m_text[i] != '"'; ++i) {
      if (m_text[i] == '\\') ++i;
    }
    if (i - open - 1 > m_limits.maxStringBytes) {
      return at(open, "a text longer than " + std::to_string(m_limits.maxStringBytes) + " bytes");
    }
    return std::nullopt;
  }

  JsonInputError at(std::size_t offset, std::string what) const {
    return {position(m_text, offset), std::move(what)};
  }

  std::string_view m_text;
  const JsonLimits& m_limits;
  std::vector<std::size_t> m_entries;  // entries so far of each open array or object
};

// What the parser stopped on, in our words.
std::string unexpected(std::string_view text, std::size_t at) {
  if (at >= text.size()) return "the text ends before the JSON is complete";
  const auto c = static_cast<unsigned char>(text[at]);
  if (c >= 0x20 && c < 0x7F) {
    return std::string("not valid JSON at '") + static_cast<char>(c) +
           "' (expected a value, a comma, a colon or a closing bracket as JSON has them)";
  }
  char hex[8];
  std::snprintf(hex, sizeof hex, "0x%02X", c);
  return std::string("not valid JSON at the byte ") + hex + " (expected JSON text in UTF-8)";
}

// The first number of the text (outside strings) too large for a double; the parser refuses
// such a number without saying where it is.
std::optional<JsonInputError> hugeNumber(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '"') {
      for (++i; i < text.size() && text[i] != '"'; ++i) {
        if (text[i] == '\\') ++i;
      }
    } else if (numberChar(text[i])) {
      std::size_t end = i;
      while (end < text.size() && numberChar(text[end])) ++end;
      const std::string number(text.substr(i, end - i));
      if (!std::isfinite(std::strtod(number.c_str(), nullptr))) {
        return JsonInputError{position(text, i), "a number beyond the range of a double"};
      }
      i = end - 1;
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<JsonInputError> parseJsonText(std::string_view text, const JsonLimits& limits,
                                            nlohmann::json& out) {
  out = nullptr;
  if (auto error = LimitScan(text, limits).run()) return error;
  try {
    out = nlohmann::json::parse(text.begin(), text.end());
  } catch (const nlohmann::json::parse_error& e) {
    out = nullptr;
    const std::size_t at = e.byte > 0 ? e.byte - 1 : 0;
    return JsonInputError{position(text, at), unexpected(text, at)};
  } catch (const nlohmann::json::exception&) {
    out = nullptr;
    if (auto huge = hugeNumber(text)) return huge;
    return JsonInputError{"the file", "not valid JSON"};
  }
  return std::nullopt;
}

InputFileStatus readInputFile(const std::string& path, std::size_t maxBytes, std::string& text) {
  text.clear();
  std::error_code ec;
  const auto status = std::filesystem::status(path, ec);
  if (ec || !std::filesystem::is_regular_file(status)) return InputFileStatus::CannotAccess;
  std::ifstream in(path, std::ios::binary);
  if (!in) return InputFileStatus::CannotAccess;
  char buffer[65536];
  while (in.read(buffer, sizeof buffer) || in.gcount() > 0) {
    text.append(buffer, static_cast<std::size_t>(in.gcount()));
    if (text.size() > maxBytes) {
      text.clear();
      return InputFileStatus::TooLarge;
    }
  }
  if (in.bad()) return InputFileStatus::CannotAccess;
  return InputFileStatus::Read;
}

std::string inputErrorLine(const std::string& file, const JsonInputError& error) {
  return "tnwizard: " + file + ": " + error.text();
}

std::string jsonPointer(const std::string& parent, std::string_view key) {
  std::string escaped;
  for (const char c : key) {
    if (c == '~') {
      escaped += "~0";
    } else if (c == '/') {
      escaped += "~1";
    } else {
      escaped += c;
    }
  }
  return parent + "/" + escaped;
}

std::string jsonPointer(const std::string& parent, std::size_t index) {
  return parent + "/" + std::to_string(index);
}

}  // namespace tnw
