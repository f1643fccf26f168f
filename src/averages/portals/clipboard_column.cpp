// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/clipboard_column.h"

#include "base/line_reader.h"
#include "platform/surroundings.h"
#include "store/clipboard_boxes.h"

namespace tallyroll {

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
  if (!text.starts_with(format)) {
    TellOtherClipboard();
    return false;
  }
  LineReader reader(text);
  reader.Next();
  lines.clear();
  while (const auto line = reader.Next()) lines.emplace_back(*line);
  return true;
}

}  // namespace tallyroll
