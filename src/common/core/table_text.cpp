#include "common/core/table_text.h"

// Std
#include <algorithm>
#include <cstddef>

namespace tnw {

namespace {

std::size_t widest(const TextTable& table) {
  std::size_t columns = 0;
  for (const auto& row : table) columns = std::max(columns, row.size());
  return columns;
}

std::string tabSafe(const std::string& cell) {
  std::string out = cell;
  for (char& c : out) {
    if (c == '\t' || c == '\r' || c == '\n') c = ' ';
  }
  return out;
}

template <typename Field>
std::string join(const TextTable& table, char separator, Field field) {
  const std::size_t columns = widest(table);
  std::string out;
  for (const auto& row : table) {
    for (std::size_t c = 0; c < columns; ++c) {
      if (c > 0) out += separator;
      if (c < row.size()) out += field(row[c]);
    }
    out += "\r\n";
  }
  return out;
}

}  // namespace

std::string TableText::csvField(const std::string& cell) {
  const bool quote = cell.find_first_of(",\"\r\n") != std::string::npos ||
                     (!cell.empty() && (cell.front() == ' ' || cell.back() == ' '));
  if (!quote) return cell;
  std::string out = "\"";
  for (char c : cell) {
    if (c == '"') out += '"';
    out += c;
  }
  out += '"';
  return out;
}

std::string TableText::toTabSeparated(const TextTable& table) { return join(table, '\t', tabSafe); }

std::string TableText::toCsv(const TextTable& table) { return join(table, ',', csvField); }

}  // namespace tnw
