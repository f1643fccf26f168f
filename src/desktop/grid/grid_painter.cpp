// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/grid_painter.h"

#include <algorithm>

#include "base/text.h"
#include "desktop/grid/grid_grounds.h"
#include "desktop/style/shapes.h"

namespace tallyroll {
namespace {

constexpr double kShade = 8;
constexpr double kRing = 2;
constexpr double kRingRadius = 3.5;
constexpr double kNoticeMargin = 12;

class Painting {
 public:
  Painting(QPainter& painter, const GridPicture& picture, const QSize& view, const QRect& area)
      : painter_(painter),
        picture_(picture),
        grid_(picture.grid),
        bands_(BandsWithin(picture, view, area)),
        view_(view),
        area_(area),
        cells_(painter, picture.grid, picture.colors, picture.fonts) {}

  void Run() {
    PaintGrounds(painter_, picture_, bands_, area_);
    PaintLines();
    PaintRing();
    PaintCells();
    PaintMergedRow();
    PaintShade();
    PaintNotice();
  }

 private:
  const Tokens& tokens() const { return picture_.colors.tokens(); }
  static QRect CellOf(const Band& row, const Band& column) {
    return {column.start, row.start, column.size, row.size};
  }

  void PaintCells() {
    for (const Band& row : bands_.rows) {
      if (grid_.MergeRow(row.index)) continue;
      for (const Band& column : bands_.columns) PaintCell(row, column);
    }
  }

  void PaintCell(const Band& row, const Band& column) {
    const QRect cell = CellOf(row, column);
    if (row.index < grid_.FixedRows) {
      const bool named_below = row.index + 1 < grid_.FixedRows && column.index < grid_.FixedCols &&
                               Trim(grid_.TextMatrix(row.index + 1, column.index)).empty();
      if (!named_below)
        cells_.Head(row.index, column.index, picture_.focused && IsCurrentColumn(column), cell);
    } else if (column.index < grid_.FixedCols) {
      cells_.Pinned(row.index, column.index, IsCurrentRow(row), cell);
    } else {
      cells_.Mark(row.index, column.index, NoteOf(grid_.Notes, row.index, column.index), cell);
    }
  }

  bool IsCurrentRow(const Band& row) const {
    return HasCurrentCell(grid_) && row.index == grid_.Row;
  }
  bool IsCurrentColumn(const Band& column) const {
    return HasCurrentCell(grid_) && column.index == grid_.Col;
  }

  void PaintLines() {
    std::vector<QRect> strong;
    const auto draw = [&](const QRect& rule, bool is_strong) {
      is_strong ? strong.push_back(rule) : DrawRule(painter_, rule, tokens().grid_line);
    };
    const int right = bands_.columns.empty() ? -1 : EndOf(bands_.columns.back()) - 1;
    const int bottom = bands_.rows.empty() ? -1 : EndOf(bands_.rows.back()) - 1;
    const int left = std::max(area_.left(), 0), top = std::max(area_.top(), 0);
    for (const Band& row : bands_.rows) {
      const bool last_head = row.index == grid_.FixedRows - 1;
      const bool fifth = row.index >= grid_.FixedRows && (row.index - grid_.FixedRows + 1) % 5 == 0;
      // The two lines of a head are one over the pinned columns.
      const bool within_head = row.index < grid_.FixedRows - 1;
      const int from = within_head ? std::max(left, picture_.columns.FixedSize()) : left;
      const int y = EndOf(row) - 1;
      if (from <= right) draw({from, y, right - from + 1, 1}, last_head || fifth);
    }
    for (const Band& column : bands_.columns) {
      const bool edge = column.start + column.size == picture_.columns.FixedSize();
      const int x = EndOf(column) - 1;
      // The frame is the line there.
      if (picture_.framed_right && x == view_.width() - 1) continue;
      if (top <= bottom) draw({x, top, 1, bottom - top + 1}, edge);
    }
    for (const QRect& rule : strong) DrawRule(painter_, rule, tokens().strong_line);
  }

  // Round the cell in work; and where its row and its column begin.
  void PaintRing() {
    if (!HasCurrentCell(grid_)) return;
    const auto is = [](int index) { return [index](const Band& b) { return b.index == index; }; };
    const auto row = std::find_if(bands_.rows.begin(), bands_.rows.end(), is(grid_.Row));
    const auto column = std::find_if(bands_.columns.begin(), bands_.columns.end(), is(grid_.Col));
    const QColor color = picture_.focused ? tokens().focus : tokens().border;
    const int bar = picture_.fonts.Px(2);
    if (column != bands_.columns.end() && grid_.FixedRows > 0)
      painter_.fillRect(column->start, picture_.rows.FixedSize() - bar, column->size - 1, bar,
                        color);
    if (row != bands_.rows.end() && grid_.FixedCols > 0 && picture_.columns.FixedSize() > 0)
      painter_.fillRect(0, row->start, picture_.fonts.Px(3), row->size - 1, color);
    if (row == bands_.rows.end() || column == bands_.columns.end()) return;
    DrawBox(painter_, CellOf(*row, *column).adjusted(0, 0, -1, -1), kRingRadius, tokens().surface,
            color, kRing);
  }

  // A heading covers the lines below it.
  void PaintMergedRow() {
    const auto row = std::find_if(bands_.rows.begin(), bands_.rows.end(),
                                  [this](const Band& b) { return grid_.MergeRow(b.index); });
    if (row == bands_.rows.end()) return;
    // All columns in view, not only those to be painted: the heading is centred over what is seen.
    const std::vector<Band> columns = picture_.columns.Visible(grid_.LeftCol, view_.width());
    for (const HeadingSpan& span : MergedSpans(grid_, columns)) {
      const Band& first = columns[static_cast<std::size_t>(span.first)];
      const Band& last = columns[static_cast<std::size_t>(span.last)];
      if (first.index < grid_.FixedCols) continue;  // named below
      const int right = std::min(EndOf(last), view_.width());
      const QRect cell(first.start, row->start, right - first.start, row->size);
      painter_.fillRect(cell, tokens().header);
      DrawRule(painter_, {cell.left(), cell.bottom(), cell.width(), 1}, tokens().grid_line);
      const bool ends_in_view = EndOf(last) <= view_.width() - (picture_.framed_right ? 1 : 0);
      if (ends_in_view)
        DrawRule(painter_, {cell.right(), cell.top(), 1, cell.height()}, tokens().grid_line);
      cells_.GroupHead(grid_.TextMatrix(row->index, first.index), cell);
    }
  }

  void PaintShade() {
    const int edge = picture_.columns.FixedSize();
    const QRect shade(edge, 0, ShadeWidth(picture_.fonts), view_.height());
    if (grid_.LeftCol <= grid_.FixedCols || edge == 0 || !shade.intersects(area_)) return;
    QLinearGradient fade(shade.topLeft(), shade.topRight());
    fade.setColorAt(0, QColor(0, 0, 0, tokens().dark ? 90 : 36));
    fade.setColorAt(1, QColor(0, 0, 0, 0));
    const int bottom = bands_.rows.empty() ? 0 : EndOf(bands_.rows.back());
    painter_.fillRect(shade & area_ & QRect(0, 0, view_.width(), bottom), fade);
  }

  void PaintNotice() {
    if (picture_.empty.isEmpty()) return;
    const CellFont& font = picture_.fonts.plain;
    const int top = picture_.rows.FixedSize();
    const bool has_rows = picture_.rows.TotalSize() > top;
    const int left = has_rows ? picture_.columns.FixedSize() : 0;
    const int margin = picture_.fonts.Px(kNoticeMargin);
    const QRect room = QRect(left, top, view_.width() - left, view_.height() - top)
                           .adjusted(margin, 2, -margin, -2);
    const QFontMetrics metrics(font.font());
    QRect words = metrics.boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, picture_.empty);
    words = words.adjusted(-margin, -margin / 2, margin, margin / 2) & room;
    painter_.fillRect(words, has_rows ? tokens().surface : tokens().window);
    painter_.setFont(font.font());
    painter_.setPen(tokens().muted);
    painter_.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, picture_.empty);
  }

  QPainter& painter_;
  const GridPicture& picture_;
  const Grid& grid_;
  GridBands bands_;
  QSize view_;
  QRect area_;
  CellPainter cells_;
};

}  // namespace

int ShadeWidth(const GridFonts& fonts) {
  return fonts.Px(kShade);
}

GridAxis WidenedForTexts(const Grid& grid, const GridAxis& columns, const GridFonts& fonts,
                         int width, const std::vector<bool>& set) {
  int spare = width - columns.TotalSize();
  if (spare <= 0) return columns;
  std::vector<int> sizes;
  for (int col = 0; col < grid.Cols(); ++col) {
    const auto at = static_cast<std::size_t>(col);
    const int size = columns.SizeOf(col);
    sizes.push_back(size);
    if (size == 0 || grid.ColAlignment(col) != ColumnAlign::kLeft) continue;
    if (at < set.size() && set[at]) continue;
    int widest = 0;
    for (int row = 0; row < grid.Rows(); ++row)
      widest = std::max(widest, WidthWanted(grid, fonts, row, col));
    const int lacking = widest - RoomForText(size, ColumnAlign::kLeft);
    const int given = std::clamp(lacking, 0, spare);
    sizes.back() += given;
    spare -= given;
  }
  return GridAxis(std::move(sizes), columns.Fixed());
}

std::vector<HeadingSpan> MergedSpans(const Grid& grid, const std::vector<Band>& columns) {
  std::vector<HeadingSpan> spans;
  int merged_row = 0;
  while (merged_row < grid.Rows() && !grid.MergeRow(merged_row)) ++merged_row;
  if (merged_row == grid.Rows()) return spans;
  const auto same = [&](const Band& a, const Band& b) {
    const bool both_fixed = (a.index < grid.FixedCols) == (b.index < grid.FixedCols);
    const std::string_view text = grid.TextMatrix(merged_row, a.index);
    return both_fixed && !text.empty() && text == grid.TextMatrix(merged_row, b.index);
  };
  for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
    const auto at = static_cast<std::size_t>(i);
    if (i > 0 && same(columns[at - 1], columns[at]))
      spans.back().last = i;
    else
      spans.push_back({i, i});
  }
  return spans;
}

void PaintGrid(QPainter& painter, const GridPicture& picture, const QSize& view,
               const QRect& area) {
  Painting(painter, picture, view, area).Run();
}

}  // namespace tallyroll
