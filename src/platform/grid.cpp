// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/grid.h"

#include <algorithm>
#include <utility>

namespace tallyroll {

void Grid::SetSize(int rows, int cols) {
  if (rows == rows_ && cols == cols_) return;
  if (cols == cols_) {
    const auto count = static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
    cells_.resize(count);
    if (!styles_.empty()) styles_.resize(count, CellStyle::kPlain);
  } else {
    const std::size_t width = static_cast<std::size_t>(cols);
    std::vector<ShortText> cells(static_cast<std::size_t>(rows) * width);
    std::vector<CellStyle> styles(styles_.empty() ? 0 : cells.size(), CellStyle::kPlain);
    for (int r = 0; r < std::min(rows, rows_); ++r) {
      for (int c = 0; c < std::min(cols, cols_); ++c) {
        const std::size_t to = static_cast<std::size_t>(r) * width + static_cast<std::size_t>(c);
        cells[to] = std::move(cells_[Index(r, c)]);
        if (!styles.empty()) styles[to] = styles_[Index(r, c)];
      }
    }
    cells_ = std::move(cells);
    styles_ = std::move(styles);
  }
  rows_ = rows;
  cols_ = cols;
  columns_.resize(static_cast<std::size_t>(cols));
  heights_.resize(static_cast<std::size_t>(rows), kDefaultRowHeight);
  Touch();
}

void Grid::SetTextMatrix(int row, int col, std::string_view text) {
  ShortText& cell = cells_[Index(row, col)];
  if (cell.view() == text) return;
  cell = ShortText(text);
  Touch();
}

void Grid::Clear() {
  std::fill(cells_.begin(), cells_.end(), ShortText());
  styles_.clear();
  std::fill(heights_.begin(), heights_.end(), kDefaultRowHeight);
  Touch();
}

CellStyle Grid::Style(int row, int col) const {
  return styles_.empty() ? CellStyle::kPlain : styles_[Index(row, col)];
}

void Grid::SetStyle(int row, int col, CellStyle style) {
  if (Style(row, col) == style) return;
  if (styles_.empty()) styles_.assign(cells_.size(), CellStyle::kPlain);
  styles_[Index(row, col)] = style;
  Touch();
}

void Grid::SetColWidth(int col, int twips) {
  columns_[static_cast<std::size_t>(col)].width = twips;
  Touch();
}

void Grid::SetColAlignment(int col, ColumnAlign align) {
  columns_[static_cast<std::size_t>(col)].align = align;
  Touch();
}

void Grid::SetRowHeight(int row, int twips) {
  heights_[static_cast<std::size_t>(row)] = twips;
  Touch();
}

void Grid::SetMergeRow(int row) {
  merged_row_ = row;
  Touch();
}

void Grid::SetRedraw(bool on) {
  redraw_ = on;
  Touch();
}

}  // namespace tallyroll
