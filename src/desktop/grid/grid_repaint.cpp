// SPDX-License-Identifier: GPL-3.0-or-later
// Which cells of the grid are painted anew: those that a key, the pointer or the logic changed.
#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>

#include "desktop/grid/grid_widget.h"

namespace tallyroll {
namespace {

// Beyond this share of the view one repaint of all is less work than many of some.
constexpr std::size_t kFewOf = 4;

std::size_t PrintOf(const Grid& grid, int row, int col) {
  const auto mark = static_cast<std::size_t>(NoteOf(grid.Notes, row, col).mark);
  const auto style = static_cast<std::size_t>(grid.Style(row, col));
  return std::hash<std::string_view>()(grid.TextMatrix(row, col)) * 31 + mark * 8 + style;
}

}  // namespace

std::vector<std::size_t> GridWidget::PrintsOfView() const {
  std::vector<std::size_t> prints;
  const auto columns = columns_.Visible(grid_->LeftCol, viewport()->width());
  for (const Band& row : rows_.Visible(grid_->TopRow, viewport()->height()))
    for (const Band& column : columns) prints.push_back(PrintOf(*grid_, row.index, column.index));
  return prints;
}

// Heads tell of the record too, of which a note is no part: a head that changed paints the strip.
void GridWidget::UpdateWhatChanged() {
  const std::vector<std::size_t> before = std::exchange(prints_, PrintsOfView());
  if (before.size() != prints_.size() || !NoticeShown().isEmpty()) return viewport()->update();
  const auto rows = rows_.Visible(grid_->TopRow, viewport()->height());
  const auto columns = columns_.Visible(grid_->LeftCol, viewport()->width());
  std::vector<QRect> changed;
  for (std::size_t i = 0; i < prints_.size(); ++i) {
    if (prints_[i] == before[i]) continue;
    const Band& row = rows[i / columns.size()];
    const Band& column = columns[i % columns.size()];
    changed.emplace_back(column.start, row.start, column.size, row.size);
  }
  if (changed.size() * kFewOf > prints_.size()) return viewport()->update();
  for (const QRect& cell : changed) viewport()->update(cell);
  if (grid_->Notes.BelowHead || grid_->Notes.AboveHead)
    viewport()->update(0, 0, viewport()->width(), rows_.FixedSize());
}

void GridWidget::UpdateCells(const CellRange& cells) {
  if (!grid_ || cells.Count() == 0) return;
  const auto whole = [](const GridAxis& axis, int first, int from, int to) {
    const int start = std::max(axis.Start(std::max(from, first), first), axis.FixedSize());
    return std::pair(start, axis.Start(to, first) + axis.SizeOf(to) - start);
  };
  const int bottom = std::min(cells.bottom, rows_.Count() - 1);
  const int right = std::min(cells.right, columns_.Count() - 1);
  if (bottom < 0 || right < 0) return;
  const auto [y, height] = whole(rows_, grid_->TopRow, cells.top, bottom);
  const auto [x, width] = whole(columns_, grid_->LeftCol, cells.left, right);
  viewport()->update(QRect(x, y, width, height) & viewport()->rect());
}

// The row of a cell with its name, and the column with its head.
void GridWidget::UpdateCross(int row, int col) {
  const QRect view = viewport()->rect();
  if (row >= 0 && row < rows_.Count()) {
    const int y = rows_.Start(row, grid_->TopRow);
    const bool behind_heads = row >= rows_.Fixed() && y < rows_.FixedSize();
    if (!behind_heads) viewport()->update(0, y, view.width(), rows_.SizeOf(row));
  }
  if (col >= 0 && col < columns_.Count()) {
    const int x = columns_.Start(col, grid_->LeftCol);
    const bool behind_names = col >= columns_.Fixed() && x < columns_.FixedSize();
    if (!behind_names) viewport()->update(x, 0, columns_.SizeOf(col), view.height());
  }
}

// Moves the pixels that stay in view, so that only what comes into view is painted.
void GridWidget::ScrollPixels(int dx, int dy) {
  if (!NoticeShown().isEmpty()) return viewport()->update();
  const QRect view = viewport()->rect();
  const int fixed_width = columns_.FixedSize(), fixed_height = rows_.FixedSize();
  if (dy != 0) viewport()->scroll(0, -dy, view.adjusted(0, fixed_height, 0, 0));
  if (dx == 0) return;
  viewport()->scroll(-dx, 0, view.adjusted(fixed_width, 0, 0, 0));
  viewport()->update(0, 0, view.width(), fixed_height);
  // The shade stays where it is.
  const int shade = ShadeWidth(fonts_);
  viewport()->update(fixed_width, 0, shade, view.height());
  viewport()->update(fixed_width - dx, 0, shade, view.height());
}

void GridWidget::Hover(const QPoint& place) {
  SetHover(CellAt(place));
}

// The tint of a row, and the head of a column.
void GridWidget::SetHover(const Cell& cell) {
  if (cell.row == hover_.row && cell.col == hover_.col) return;
  const Cell before = std::exchange(hover_, cell);
  const auto update_row = [this](int row) {
    if (row >= rows_.Fixed()) UpdateCross(row, -1);
  };
  const auto update_head = [this](int col) {
    if (col < columns_.Fixed() || col >= columns_.Count()) return;
    viewport()->update(columns_.Start(col, grid_->LeftCol), 0, columns_.SizeOf(col),
                       rows_.FixedSize());
  };
  if (before.row != cell.row) {
    update_row(before.row);
    update_row(cell.row);
  }
  if (before.col != cell.col) {
    update_head(before.col);
    update_head(cell.col);
  }
}

QString GridWidget::NoticeShown() const {
  if (!notice_.isEmpty() || !grid_) return notice_;
  const bool has_rows = rows_.TotalSize() > rows_.FixedSize();
  return has_rows ? QString() : empty_text_;
}

void GridWidget::SetEmptyText(const QString& text) {
  if (text == empty_text_) return;
  empty_text_ = text;
  viewport()->update();
}

void GridWidget::SetNotice(const QString& text) {
  if (text == notice_) return;
  notice_ = text;
  viewport()->update();
}

// The frame shows it too.
void GridWidget::ShowFocus() {
  update();
  if (!grid_) return;
  UpdateCross(grid_->Row, grid_->Col);
  UpdateCells(Range());
}

}  // namespace tallyroll
