// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/csv.h"

#include <algorithm>

#include "base/line_reader.h"
#include "base/text.h"

namespace tallyroll {
namespace {

constexpr std::string_view kSeparators = ";,\t";  // on equal terms the earlier one
constexpr std::string_view kSeparatorLine = "sep=";
constexpr int kLinesLookedAt = 20;
constexpr char kQuote = '"';

bool TellsSeparator(std::string_view text) {
  return text.starts_with(kSeparatorLine) && text.size() > kSeparatorLine.size();
}

int CountOutsideQuotes(std::string_view line, char separator) {
  int count = 0;
  bool quoted = false;
  for (const char c : line) {
    if (c == kQuote) quoted = !quoted;
    if (c == separator && !quoted) ++count;
  }
  return count;
}

// How many times the separator stands in each of the first lines at least.
int EvenCount(std::string_view text, char separator) {
  LineReader lines(text);
  int least = -1;
  for (int i = 0; i < kLinesLookedAt; ++i) {
    const auto line = lines.Next();
    if (!line) break;
    if (Trim(*line).empty()) continue;
    const int count = CountOutsideQuotes(*line, separator);
    least = least < 0 ? count : std::min(least, count);
  }
  return std::max(least, 0);
}

class Parser {
 public:
  Parser(std::string_view text, char separator) : text_(text), separator_(separator) {}

  CsvTable Table() {
    CsvTable table;
    while (at_ < text_.size() && table.unclosed_line == 0) {
      CsvRecord record;
      record.line = line_;
      do record.cells.push_back(Cell());
      while (Take(separator_));
      TakeLineEnd();
      table.unclosed_line = unclosed_line_;
      const bool blank = std::ranges::all_of(
          record.cells, [](const CsvCell& cell) { return Trim(cell.text).empty(); });
      if (!blank) table.records.push_back(std::move(record));
    }
    return table;
  }

 private:
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
  char best = ',';
  int most = 0;
  for (const char separator : kSeparators) {
    const int count = EvenCount(text, separator);
    if (count <= most) continue;
    most = count;
    best = separator;
  }
  return best;
}

CsvTable ParseCsv(std::string_view text) {
  CsvTable table = Parser(text, FindSeparator(text)).Table();
  if (TellsSeparator(text) && !table.records.empty()) table.records.erase(table.records.begin());
  return table;
}

std::string CsvField(std::string_view text, char separator) {
  if (text.find_first_of("\"\r\n") == std::string_view::npos &&
      text.find(separator) == std::string_view::npos)
    return std::string(text);
  std::string quoted = "\"";
  for (const char c : text) quoted.append(c == kQuote ? 2 : 1, c);
  return quoted + kQuote;
}

}  // namespace tallyroll
