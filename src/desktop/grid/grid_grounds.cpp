// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/grid_grounds.h"

namespace tallyroll {
namespace {

// Shares of the colour that tells where one is.
constexpr double kRowTint = 0.45;
constexpr double kColumnTint = 0.2;
constexpr double kHoverTint = 0.6;
constexpr double kRangeTint = 0.75;

QColor Tint(QColor color, double share) {
  color.setAlphaF(static_cast<float>(share));
  return color;
}

class Grounds {
 public:
  Grounds(QPainter& painter, const GridPicture& picture, const GridBands& bands)
      : painter_(painter),
        picture_(picture),
        grid_(picture.grid),
        bands_(bands),
        here_(picture.focused ? tokens().selection : tokens().pressed) {
    for (const Band& row : bands.rows) (IsHead(row) ? head_end_ : body_end_) = EndOf(row);
    for (const Band& column : bands.columns)
      (IsPinned(column) ? pinned_end_ : columns_end_) = EndOf(column);
    columns_end_ = std::max(columns_end_, pinned_end_);
    body_end_ = std::max(body_end_, head_end_);
  }

  void Run(const QRect& area) {
    painter_.fillRect(area, tokens().window);
    // What is asked for may begin below the heads and behind the pinned columns.
    const int top = std::max(head_end_, 0);
    Fill(0, top, columns_end_, body_end_, tokens().surface);
    Fill(0, top, pinned_end_, body_end_, tokens().zebra);
    Fill(0, 0, columns_end_, head_end_, tokens().header);
    for (const Band& column : bands_.columns) PaintColumn(column);
    for (const Band& row : bands_.rows) PaintRow(row);
    PaintRange();
  }

 private:
  const Tokens& tokens() const { return picture_.colors.tokens(); }
  bool IsHead(const Band& row) const { return row.index < grid_.FixedRows; }
  bool IsPinned(const Band& column) const { return column.index < grid_.FixedCols; }
  void Fill(int left, int top, int right, int bottom, const QColor& color) {
    if (right > left && bottom > top)
      painter_.fillRect(left, top, right - left, bottom - top, color);
  }

  void PaintColumn(const Band& column) {
    const int left = column.start, right = EndOf(column);
    PaintCellGrounds(column);
    if (IsPinned(column)) return;
    const bool current = HasCurrentCell(grid_) && column.index == grid_.Col;
    if (current) Fill(left, head_end_, right, body_end_, Tint(here_, kColumnTint));
    for (const Band& row : bands_.rows) {
      if (!IsHead(row) || grid_.MergeRow(row.index)) continue;
      if (current)
        Fill(left, row.start, right, EndOf(row), here_);
      else if (column.index == picture_.hover_col)
        Fill(left, row.start, right, EndOf(row), tokens().hover);
    }
  }

  // Days without school, totals, what does not count.
  void PaintCellGrounds(const Band& column) {
    const bool no_school =
        grid_.FixedRows > 0 && !IsPinned(column) &&
        NoteOf(grid_.Notes, grid_.FixedRows - 1, column.index).mark == CellMark::kNoSchool;
    if (no_school) Fill(column.start, head_end_, EndOf(column), body_end_, tokens().header);
    for (const Band& row : bands_.rows) {
      const CellStyle style = grid_.Style(row.index, column.index);
      if (style != CellStyle::kTotal && style != CellStyle::kShaded) continue;
      Fill(column.start, row.start, EndOf(column), EndOf(row),
           picture_.colors.Look(style).background);
    }
  }

  void PaintRow(const Band& row) {
    if (IsHead(row)) return;
    if (HasCurrentCell(grid_) && row.index == grid_.Row) {
      Fill(0, row.start, pinned_end_, EndOf(row), here_);
      Fill(pinned_end_, row.start, columns_end_, EndOf(row), Tint(here_, kRowTint));
    } else if (row.index == picture_.hover_row) {
      Fill(0, row.start, columns_end_, EndOf(row), Tint(tokens().hover, kHoverTint));
    }
  }

  void PaintRange() {
    if (picture_.range.IsOneCell() || picture_.range.Count() == 0) return;
    for (const Band& row : bands_.rows)
      for (const Band& column : bands_.columns)
        if (picture_.range.Contains(row.index, column.index))
          Fill(column.start, row.start, EndOf(column), EndOf(row), Tint(here_, kRangeTint));
  }

  QPainter& painter_;
  const GridPicture& picture_;
  const Grid& grid_;
  const GridBands& bands_;
  QColor here_;
  int head_end_ = 0, body_end_ = 0;
  int pinned_end_ = 0, columns_end_ = 0;
};

}  // namespace

GridBands BandsWithin(const GridPicture& picture, const QSize& view, const QRect& area) {
  const auto within = [](std::vector<Band> bands, int from, int to) {
    std::erase_if(bands, [&](const Band& b) { return b.start > to || EndOf(b) <= from; });
    return bands;
  };
  return {
      within(picture.rows.Visible(picture.grid.TopRow, view.height()), area.top(), area.bottom()),
      within(picture.columns.Visible(picture.grid.LeftCol, view.width()), area.left(),
             area.right())};
}

bool HasCurrentCell(const Grid& grid) {
  return grid.Row >= grid.FixedRows && grid.Row < grid.Rows() && grid.Col >= grid.FixedCols &&
         grid.Col < grid.Cols();
}

void PaintGrounds(QPainter& painter, const GridPicture& picture, const GridBands& bands,
                  const QRect& area) {
  Grounds(painter, picture, bands).Run(area);
}

}  // namespace tallyroll
