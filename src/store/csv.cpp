// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/csv.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "base/number_text.h"
#include "base/text.h"

namespace tallyroll {
namespace {

constexpr std::string_view kSeparators = ";,\t";  // on equal terms the earlier one
constexpr std::string_view kSeparatorLine = "sep=";
constexpr int kRecordsLookedAt = 20;
constexpr std::size_t kMostColumns = 1000;
constexpr char kQuote = '"';
constexpr char kTextMark = '\'';

// Whether a spreadsheet might compute it: a sign alone is a text to it, and so is a number with
// one.
bool MayBeFormula(std::string_view text) {
  constexpr std::string_view kBeginnings = "=+-@\t\r\n";
  return text.size() > 1 && kBeginnings.find(text.front()) != std::string_view::npos &&
         !WholeNumberText(text);
}

// So does one that would be taken for marked when it is read.
bool NeedsTextMark(std::string_view text) {
  while (text.starts_with(kTextMark)) text.remove_prefix(1);
  return MayBeFormula(text);
}

bool TellsSeparator(std::string_view text) {
  return text.starts_with(kSeparatorLine) && text.size() > kSeparatorLine.size() &&
         std::string_view("\"\r\n").find(text[kSeparatorLine.size()]) == std::string_view::npos;
}

std::string ExcessOf(std::size_t records, std::size_t cells) {
  if (records > kMostRecords) return PlainNumberText(std::int64_t{kMostRecords}) + " lines";
  return cells > kMostCells ? PlainNumberText(std::int64_t{kMostCells}) + " cells" : "";
}

using Counts = std::array<int, kSeparators.size()>;

// Where the text behind a quote goes on: behind the closing one.
std::size_t BehindQuoted(std::string_view text, std::size_t at) {
  while (at < text.size() && (text[at] != kQuote || text.substr(at + 1).starts_with(kQuote)))
    at += text[at] == kQuote ? 2 : 1;
  return at;
}

// Takes a record off the text and counts the separators outside its quotes. Nothing when no text
// stands in it.
std::optional<Counts> CountRecord(std::string_view& text) {
  Counts counts{};
  bool opens = true;  // a quote here opens a cell
  std::size_t at = 0;
  for (; at < text.size() && text[at] != '\r' && text[at] != '\n'; ++at) {
    const std::size_t separator = kSeparators.find(text[at]);
    const bool parts = separator != std::string_view::npos;
    if (parts) ++counts[separator];
    if (opens && text[at] == kQuote) at = BehindQuoted(text, at + 1);
    if (at >= text.size()) break;
    opens = parts || (opens && text[at] == ' ');
  }
  const bool blank = Trim(text.substr(0, at)).empty();
  text.remove_prefix(std::min(at + 1, text.size()));
  if (blank) return std::nullopt;
  return counts;
}

// How many times each separator stands in each of the first records at least.
Counts EvenCounts(std::string_view text) {
  Counts least{};
  int records = 0;
  while (!text.empty() && records < kRecordsLookedAt) {
    const std::optional<Counts> counts = CountRecord(text);
    if (!counts) continue;
    for (std::size_t i = 0; i < least.size(); ++i)
      least[i] = records == 0 ? (*counts)[i] : std::min(least[i], (*counts)[i]);
    ++records;
  }
  return least;
}

class Parser {
 public:
  Parser(std::string_view text, char separator) : text_(text), separator_(separator) {}

  CsvTable Table() {
    CsvTable table;
    std::size_t cells = 0;
    while (at_ < text_.size() && table.unclosed_line == 0 && table.excess.empty()) {
      CsvRecord record = Record();
      table.unclosed_line = unclosed_line_;
      if (std::ranges::all_of(record.cells,
                              [](const CsvCell& cell) { return Trim(cell.text).empty(); }))
        continue;
      cells += record.cells.size();
      table.excess = ExcessOf(table.records.size() + 1, cells);
      if (table.excess.empty()) table.records.push_back(std::move(record));
    }
    return table;
  }

 private:
  CsvRecord Record() {
    CsvRecord record;
    record.line = line_;
    do {
      CsvCell cell = Cell();
      if (record.cells.size() < kMostColumns) record.cells.push_back(std::move(cell));
    } while (Take(separator_));
    TakeLineEnd();
    return record;
  }
  bool AtEnd() const { return at_ >= text_.size(); }
  bool AtLineEnd() const { return text_[at_] == '\r' || text_[at_] == '\n'; }
  bool Take(char c) {
    if (AtEnd() || text_[at_] != c) return false;
    ++at_;
    return true;
  }
  void TakeLineEnd() {
    const bool first = Take('\r');
    const bool second = Take('\n');
    if (first || second) ++line_;
  }

  CsvCell Cell() {
    CsvCell cell;
    const std::size_t begin = at_;
    const std::size_t behind_blanks = text_.find_first_not_of(' ', at_);
    if (behind_blanks < text_.size() && text_[behind_blanks] == kQuote) {
      at_ = behind_blanks + 1;
      TakeQuoted(cell.text);
    }
    // What stands behind the closing quote is no fault of the teacher's.
    const std::size_t plain = at_;
    while (!AtEnd() && text_[at_] != separator_ && !AtLineEnd()) ++at_;
    cell.text += text_.substr(plain, at_ - plain);
    if (cell.text.starts_with(kTextMark)) cell.text = WithoutTextMark(cell.text);
    cell.raw = text_.substr(begin, at_ - begin);
    return cell;
  }

  void TakeQuoted(std::string& text) {
    const int opened = line_;
    while (!AtEnd()) {
      const char c = text_[at_++];
      if (c == kQuote && !Take(kQuote)) return;
      if (c == '\n' || (c == '\r' && (AtEnd() || text_[at_] != '\n'))) ++line_;
      text += c;
    }
    unclosed_line_ = opened;
  }

  std::string_view text_;
  char separator_;
  std::size_t at_ = 0;
  int line_ = 1;
  int unclosed_line_ = 0;
};

}  // namespace

char FindSeparator(std::string_view text) {
  if (TellsSeparator(text)) return text[kSeparatorLine.size()];
  const Counts counts = EvenCounts(text);
  const auto most = std::ranges::max_element(counts);
  return *most == 0 ? ',' : kSeparators[static_cast<std::size_t>(most - counts.begin())];
}

CsvTable ParseCsv(std::string_view text) {
  CsvTable table = Parser(text, FindSeparator(text)).Table();
  if (TellsSeparator(text) && !table.records.empty()) table.records.erase(table.records.begin());
  return table;
}

std::string FaultOf(const CsvTable& table) {
  if (table.unclosed_line > 0)
    return "has a quotation mark in line " + PlainNumberText(table.unclosed_line) +
           " that is never closed";
  return table.excess.empty() ? "" : "has more than " + table.excess;
}

std::string CsvField(std::string_view text, char separator) {
  if (text.find_first_of("\"\r\n") == std::string_view::npos &&
      text.find(separator) == std::string_view::npos)
    return std::string(text);
  std::string quoted = "\"";
  for (const char c : text) quoted.append(c == kQuote ? 2 : 1, c);
  return quoted + kQuote;
}

std::string CsvTextField(std::string_view text, char separator) {
  if (!NeedsTextMark(text)) return CsvField(text, separator);
  return CsvField(kTextMark + std::string(text), separator);
}

std::string_view WithoutTextMark(std::string_view field) {
  const bool marked = field.starts_with(kTextMark) && NeedsTextMark(field.substr(1));
  return marked ? field.substr(1) : field;
}

}  // namespace tallyroll
