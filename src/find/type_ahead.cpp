// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/type_ahead.h"

#include <algorithm>

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

bool IsOneLetterRepeated(std::string_view typed) {
  return typed.find_first_not_of(typed.front()) == std::string_view::npos;
}

}  // namespace

int LineThatBegins(std::string_view typed, const std::vector<std::string>& lines, int from) {
  const std::string wanted = LettersOf(typed);
  const int count = static_cast<int>(lines.size());
  if (wanted.empty() || count == 0) return -1;
  const int first = from >= 0 && from < count ? from : 0;
  bool more = true;
  for (std::size_t column = 0; more; ++column) {
    more = false;
    for (int step = 0; step < count; ++step) {
      const int line = (first + step) % count;
      std::string_view text;
      if (!ColumnOf(lines[static_cast<std::size_t>(line)], column, text)) continue;
      more = true;
      if (LettersOf(WithoutNumber(text)).starts_with(wanted)) return line;
    }
  }
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
