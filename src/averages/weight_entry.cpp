// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/weight_entry.h"

#include <utility>

#include "platform/surroundings.h"

namespace tallyroll {
namespace {

constexpr unsigned char kBackspace = 8;

// The text up to the next line end, taken off the front. Other programs end lines in other ways.
std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = rest.find_first_of("\r\n");
  const std::string_view line = rest.substr(0, end);
  const bool two = end != std::string_view::npos && rest.substr(end, 2) == "\r\n";
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + (two ? 2 : 1));
  return line;
}

}  // namespace

void CellTyping::Type(Grid& grid, int row, int col, unsigned char character) {
  std::string text(std::exchange(first_key, false) ? "" : grid.TextMatrix(row, col));
  if (character != kBackspace)
    text += static_cast<char>(character);
  else if (!text.empty())
    text.pop_back();
  grid.SetTextMatrix(row, col, text);
}

std::vector<std::string> ColumnOf(const Grid& grid, int col) {
  std::vector<std::string> cells;
  for (int row = grid.FixedRows; row < grid.Rows(); ++row)
    cells.emplace_back(grid.TextMatrix(row, col));
  return cells;
}

bool ClipboardHas(std::string_view format) {
  return Platform().ClipboardText().starts_with(format);
}

void CopyLines(std::string_view format, const std::vector<std::string>& lines) {
  std::string text = std::string(format) + "\r";
  for (const std::string& line : lines) text += line + "\r";
  Platform().SetClipboardText(text);
}

bool PasteLines(std::string_view format, std::vector<std::string>& lines) {
  const std::string text = Platform().ClipboardText();
  std::string_view rest = text;
  if (!rest.starts_with(format)) {
    ShowMessage(
        "There are no appropriate fields to be found on the clipboard. The data on the clipboard "
        "may not be the right type for inserting in the current module.  You need to go back to a "
        "compatible module, then copy the information to the clipboard and try again.");
    return false;
  }
  lines.clear();
  for (TakeLine(rest); !rest.empty();) lines.emplace_back(TakeLine(rest));
  return true;
}

}  // namespace tallyroll
