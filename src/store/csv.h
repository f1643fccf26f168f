// SPDX-License-Identifier: GPL-3.0-or-later
// Comma-separated values as spreadsheets write and read them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

// Three hundred marks of a thousand students, each on a line of ten cells, and room beside them.
inline constexpr std::size_t kMostRecords = 500'000;
inline constexpr std::size_t kMostCells = 5'000'000;  // about a hundred bytes each while it is read

struct CsvCell {
  std::string_view raw;  // as it stands in the file, its quotes included
  std::string text;
};

struct CsvRecord {
  int line = 0;  // of the file, from 1, where it begins
  std::vector<CsvCell> cells;
};

struct CsvTable {
  std::vector<CsvRecord> records;  // those in which anything stands
  int unclosed_line = 0;           // where a quote was opened that nothing closes; 0 is nowhere
  std::string excess;              // of what there is too much ("500000 lines"); empty is nothing
};

// A semicolon, a comma or a tab, whichever parts the first records most often and evenly. A first
// line "sep=;" settles it.
char FindSeparator(std::string_view text);

// The cells keep to `text`, which must outlive them. A quoted cell may hold separators, line ends
// and doubled quotes; blanks before its quote are passed over. Cells behind the thousandth of a
// record are left.
CsvTable ParseCsv(std::string_view text);
// Why the table cannot be taken, as the end of a sentence; empty when it can.
std::string FaultOf(const CsvTable& table);

// Quoted where a separator, a quote or a line end stands in the text.
std::string CsvField(std::string_view text, char separator = ',');

// A text that a teacher typed, as a field: what a spreadsheet would run as a formula
// ("=HYPERLINK(") gets an apostrophe in front, which shows that it is a text. Numbers stay numbers.
std::string CsvTextField(std::string_view text, char separator = ',');
// A field as it was typed; what ParseCsv reads is so already.
std::string_view WithoutTextMark(std::string_view field);

}  // namespace tallyroll
