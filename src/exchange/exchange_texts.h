// SPDX-License-Identifier: GPL-3.0-or-later
// Pieces of what taking marks in and giving them out show.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "platform/grid.h"

namespace tallyroll {

inline constexpr std::string_view kTicked = "X";

inline std::string Quoted(std::string_view text) {
  std::string quoted(1, '"');
  quoted += text;
  quoted += '"';
  return quoted;
}

// "1 mark", "2 marks".
inline std::string Counted(std::int64_t count, std::string_view one) {
  return PlainNumberText(count) + " " + std::string(one) + (count == 1 ? "" : "s");
}

inline std::string NameInFolder(std::string_view path) {
  return std::string(path.substr(path.rfind('/') + 1));
}
inline std::string FolderOfFile(std::string_view path) {
  return std::string(path.substr(0, path.rfind('/') + 1));
}

inline void SetGridTitles(Grid& grid, std::span<const std::string_view> titles,
                          std::span<const int> widths) {
  grid.SetSize(1, static_cast<int>(titles.size()));
  grid.FixedRows = 1;
  grid.FixedCols = 0;
  for (int i = 0; i < grid.Cols(); ++i) {
    grid.SetTextMatrix(0, i, titles[static_cast<std::size_t>(i)]);
    grid.SetColWidth(i, widths[static_cast<std::size_t>(i)]);
  }
}

}  // namespace tallyroll
