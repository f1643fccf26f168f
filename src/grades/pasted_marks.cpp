// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/pasted_marks.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "grades/mark_doubts.h"
#include "grades/mark_entry.h"
#include "platform/cell_typing.h"

namespace tallyroll {
namespace {

constexpr std::size_t kLongestShown = 24;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// The place of the comma in "85,5" and "-0,25". In "1,000" it may part the thousands.
std::optional<std::size_t> DecimalComma(std::string_view text) {
  const std::size_t sign = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos || comma == sign) return std::nullopt;
  const std::string_view before = text.substr(sign, comma - sign), after = text.substr(comma + 1);
  if (after.empty() || after.size() == 3) return std::nullopt;
  if (!std::ranges::all_of(before, IsDigit) || !std::ranges::all_of(after, IsDigit))
    return std::nullopt;
  return comma;
}

bool CanBeTyped(char c) {
  const auto code = static_cast<unsigned char>(c);
  return code >= 32 && code != 127;
}

// What stands in the one column of a line; nothing when others stand beside it.
std::optional<std::string_view> OnlyCell(std::string_view line) {
  const std::size_t tab = line.find('\t');
  if (tab == std::string_view::npos) return line;
  const bool alone = line.find_first_not_of("\t ", tab) == std::string_view::npos;
  return alone ? std::optional(line.substr(0, tab)) : std::nullopt;
}

std::string_view NextLine(std::string_view& rest) {
  const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
  const std::string_view line = rest.substr(0, end);
  const bool both = rest.substr(end, 2) == "\r\n";
  rest.remove_prefix(std::min(end + (both ? 2 : 1), rest.size()));
  return line;
}

}  // namespace

std::string MarkOfCopied(std::string_view text) {
  std::string typed(Trim(text));
  if (const auto comma = DecimalComma(typed)) typed[*comma] = '.';
  CellTyping typing;
  std::string cell;
  for (const char c : typed)
    if (CanBeTyped(c)) cell = TypedMark(typing.Type(cell, static_cast<unsigned char>(c)));
  return ShownMark(cell);
}

std::optional<std::vector<PastedMark>> MarksOfColumn(std::string_view clipboard) {
  std::vector<PastedMark> column;
  while (!clipboard.empty()) {
    const auto cell = OnlyCell(NextLine(clipboard));
    if (!cell) return std::nullopt;
    column.push_back({std::string(Trim(*cell)), MarkOfCopied(*cell)});
  }
  while (!column.empty() && column.back().copied.empty()) column.pop_back();
  return column;
}

std::string DoubtOfPasted(const PastedMark& pasted) {
  const std::string doubt = DoubtOfMark(pasted.mark, 0);
  if (pasted.mark == UpperCase(pasted.copied)) return doubt;
  std::string shown(Left(pasted.copied, kLongestShown));
  if (shown.size() < pasted.copied.size()) shown += "...";
  if (pasted.mark.empty()) return shown + " is left out";
  return shown + " becomes " + (doubt.empty() ? pasted.mark : doubt);
}

}  // namespace tallyroll
