// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/type_ahead.h"

#include <algorithm>
#include <array>

#include "find/find_match.h"

namespace tallyroll {
namespace {

constexpr std::string_view kDigits = "0123456789";

std::string LettersOf(std::string_view text) {
  std::string letters;
  for (const std::string& word : MakeFindText(text).words) letters += word;
  return letters;
}

// " 7 Dawson, Eric" is looked for by "Dawson"; an ID of digits alone is itself.
std::string_view WithoutNumber(std::string_view text) {
  const std::size_t number = text.find_first_not_of(' ');
  if (number == std::string_view::npos) return text;
  const std::size_t end = text.find_first_not_of(kDigits, number);
  const bool numbered = end != std::string_view::npos && end > number && text[end] == ' ';
  const std::size_t name = numbered ? text.find_first_not_of(' ', end) : std::string_view::npos;
  return name == std::string_view::npos ? text : text.substr(name);
}

// The column of that place; none behind the last.
bool ColumnOf(std::string_view line, std::size_t column, std::string_view& text) {
  for (; column > 0; --column) {
    const std::size_t tab = line.find('\t');
    if (tab == std::string_view::npos) return false;
    line.remove_prefix(tab + 1);
  }
  text = line.substr(0, line.find('\t'));
  return true;
}

bool NameBegins(std::string_view text, const std::string& wanted) {
  return LettersOf(WithoutNumber(text)).starts_with(wanted);
}

// A number behind a blank tells the place of the line and is nobody's ID.
bool IdBegins(std::string_view text, const std::string& wanted) {
  return !text.starts_with(' ') && LettersOf(text).starts_with(wanted);
}

bool LaterWordBegins(std::string_view text, const std::string& wanted) {
  const std::vector<std::string> words = MakeFindText(WithoutNumber(text)).words;
  std::string behind;
  for (std::size_t i = words.size(); i-- > 1;) {
    behind.insert(0, words[i]);
    if (behind.starts_with(wanted)) return true;
  }
  return false;
}

using Begins = bool (*)(std::string_view text, const std::string& wanted);
constexpr std::array<Begins, 3> kWays = {NameBegins, IdBegins, LaterWordBegins};

// The first line from `first` on, round, one of whose columns begins in this way.
int LineByWay(Begins begins, const std::string& wanted, const std::vector<std::string>& lines,
              int first) {
  const int count = static_cast<int>(lines.size());
  bool more = true;
  for (std::size_t column = 0; more; ++column) {
    more = false;
    for (int step = 0; step < count; ++step) {
      const int line = (first + step) % count;
      std::string_view text;
      if (!ColumnOf(lines[static_cast<std::size_t>(line)], column, text)) continue;
      more = true;
      if (begins(text, wanted)) return line;
    }
  }
  return -1;
}

bool IsOneLetterRepeated(std::string_view typed) {
  return typed.find_first_not_of(typed.front()) == std::string_view::npos;
}

}  // namespace

int LineThatBegins(std::string_view typed, const std::vector<std::string>& lines, int from) {
  const std::string wanted = LettersOf(typed);
  const int count = static_cast<int>(lines.size());
  if (wanted.empty() || count == 0) return -1;
  const int first = from >= 0 && from < count ? from : 0;
  for (const Begins begins : kWays)
    if (const int line = LineByWay(begins, wanted, lines, first); line >= 0) return line;
  return -1;
}

int LineToGoTo(std::string_view typed, const std::vector<std::string>& lines, int current) {
  if (typed.empty()) return -1;
  if (typed.size() == 1) return LineThatBegins(typed, lines, current + 1);
  const int line = LineThatBegins(typed, lines, current);
  if (line >= 0 || !IsOneLetterRepeated(typed)) return line;
  return LineThatBegins(typed.substr(0, 1), lines, current + 1);
}

}  // namespace tallyroll
