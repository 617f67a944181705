#pragma once

// Std
#include <string>
#include <vector>

namespace tnw {

// A grid as text, row by row (row 0 usually the headings), each cell as the grid shows it.
using TextTable = std::vector<std::vector<std::string>>;

// The texts of a grid for other programs: tab-separated for the clipboard (a spreadsheet pastes
// it into cells) and comma-separated values for a file. Cells are taken as they are shown, so
// numbers keep the grid's decimal point and digits whatever the user's locale; rows shorter than
// the longest one are padded with empty cells.
class TableText {
 public:
  // Tab-separated text: cells separated by a tab, rows ended by "\r\n". A tab or line break
  // inside a cell would split it, so each becomes one blank.
  static std::string toTabSeparated(const TextTable& table);
  // Comma-separated values after RFC 4180: cells separated by commas, rows ended by "\r\n"; a
  // cell holding a comma, a double quote, a line break or a leading or trailing blank is put
  // in double quotes, with each double quote in it doubled.
  static std::string toCsv(const TextTable& table);
  // One cell as a CSV field (quoted as toCsv quotes it).
  static std::string csvField(const std::string& cell);
};

}  // namespace tnw
