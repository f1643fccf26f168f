// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/grid_painter.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "desktop/basics/text_conversion.h"

namespace tallyroll {
namespace {

constexpr int kCellMargin = 4;
constexpr int kCenteredMargin = 1;

// The painter takes QString; this one stands on the stack for any usual cell.
class StackText {
 public:
  explicit StackText(std::string_view text) {
    if (text.size() > buffer_.size()) {
      text_ = FromText(text);
      return;
    }
    const auto& characters = CodePageCharacters();
    for (std::size_t i = 0; i < text.size(); ++i)
      buffer_[i] = QChar(characters[static_cast<unsigned char>(text[i])]);
    text_ = QString::fromRawData(buffer_.data(), static_cast<qsizetype>(text.size()));
  }
  const QString& text() const { return text_; }

 private:
  std::array<QChar, 64> buffer_;
  QString text_;
};

void DrawText(QPainter& painter, const CellFont& font, std::string_view text, ColumnAlign align,
              const QRect& cell) {
  // Blanks in front are part of a heading's look; behind they would push a number off its edge.
  const std::string_view shown = TrimRight(text);
  if (shown.empty()) return;
  const int room = RoomForText(cell.width(), align);
  const int width = font.WidthOf(shown);
  const int y = cell.top() + (cell.height() - font.Height()) / 2 + font.Ascent();
  int x = cell.left() + (cell.width() - room) / 2;
  if (width > room) {
    painter.drawText(QPointF(x, y), font.Elided(shown, room));
    return;
  }
  if (align == ColumnAlign::kRight) x += room - width;
  if (align == ColumnAlign::kCenter) x += (room - width) / 2;
  painter.drawText(QPointF(x, y), StackText(shown).text());
}

class Painting {
 public:
  Painting(QPainter& painter, const GridPicture& picture, const QSize& view, const QRect& area)
      : painter_(painter),
        picture_(picture),
        grid_(picture.grid),
        rows_(Within(picture.rows.Visible(picture.grid.TopRow, view.height()), area.top(),
                     area.bottom())),
        columns_(Within(picture.columns.Visible(picture.grid.LeftCol, view.width()), area.left(),
                        area.right())),
        view_(view),
        area_(area) {}

  void Run() {
    painter_.fillRect(area_, picture_.colors.Look(CellStyle::kPlain).background);
    PaintCells();
    PaintLines();
    PaintMergedRow();
    PaintCurrentCell();
  }

 private:
  static std::vector<Band> Within(std::vector<Band> bands, int from, int to) {
    std::erase_if(bands, [&](const Band& b) { return b.start > to || b.start + b.size <= from; });
    return bands;
  }

  bool IsFixed(int row, int col) const { return row < grid_.FixedRows || col < grid_.FixedCols; }

  const CellLook& LookOf(int row, int col) const {
    const CellStyle style = grid_.Style(row, col);
    if (style == CellStyle::kPlain && IsFixed(row, col)) return picture_.colors.Heading();
    return picture_.colors.Look(style);
  }

  void PaintCells() {
    for (const Band& row : rows_) {
      if (grid_.MergeRow(row.index)) continue;
      for (const Band& column : columns_) PaintCell(row, column);
    }
  }

  void PaintCell(const Band& row, const Band& column) {
    const QRect cell(column.start, row.start, column.size, row.size);
    const CellLook& look = LookOf(row.index, column.index);
    if (look.background != picture_.colors.Look(CellStyle::kPlain).background)
      painter_.fillRect(cell, look.background);
    const std::string_view text = grid_.TextMatrix(row.index, column.index);
    if (text.empty()) return;
    DrawText(painter_, Use(look), text, grid_.ColAlignment(column.index), cell);
  }

  // Sets font and pen only when they change: most neighbours look the same.
  const CellFont& Use(const CellLook& look) {
    if (&look != in_use_) {
      painter_.setPen(look.text);
      painter_.setFont((look.bold ? picture_.fonts.bold : picture_.fonts.plain).font());
      in_use_ = &look;
    }
    return look.bold ? picture_.fonts.bold : picture_.fonts.plain;
  }

  void PaintLines() {
    lines_.clear();
    const int right = columns_.empty() ? 0 : columns_.back().start + columns_.back().size - 1;
    const int bottom = rows_.empty() ? 0 : rows_.back().start + rows_.back().size - 1;
    for (const Band& row : rows_) {
      const int y = row.start + row.size - 1;
      lines_.push_back(QLine(area_.left(), y, right, y));
    }
    for (const Band& column : columns_) {
      const int x = column.start + column.size - 1;
      lines_.push_back(QLine(x, area_.top(), x, bottom));
    }
    painter_.setPen(picture_.colors.Line());
    painter_.drawLines(lines_.data(), static_cast<int>(lines_.size()));
    in_use_ = nullptr;
  }

  // Over the cells and their lines, which a heading covers.
  void PaintMergedRow() {
    const auto row = std::find_if(rows_.begin(), rows_.end(),
                                  [this](const Band& b) { return grid_.MergeRow(b.index); });
    if (row == rows_.end()) return;
    // All columns in view, not only those to be painted: the heading is centred over what is seen.
    const std::vector<Band> columns = picture_.columns.Visible(grid_.LeftCol, view_.width());
    for (const HeadingSpan& span : MergedSpans(grid_, columns)) {
      const Band& first = columns[static_cast<std::size_t>(span.first)];
      const Band& last = columns[static_cast<std::size_t>(span.last)];
      const int right = std::min(last.start + last.size, view_.width());
      PaintHeading(first.index, span.first != span.last,
                   QRect(first.start, row->start, right - first.start, row->size), row->index);
    }
  }

  void PaintHeading(int col, bool merged, const QRect& cell, int row) {
    const CellLook& look = LookOf(row, col);
    painter_.fillRect(cell.adjusted(0, 0, -1, -1), look.background);
    const std::string_view text = grid_.TextMatrix(row, col);
    DrawText(painter_, Use(look), merged ? Trim(text) : text,
             merged ? ColumnAlign::kCenter : grid_.ColAlignment(col), cell);
  }

  void PaintCurrentCell() {
    if (!picture_.focus_frame.isValid() || IsFixed(grid_.Row, grid_.Col)) return;
    const auto is = [](int index) { return [index](const Band& b) { return b.index == index; }; };
    const auto row = std::find_if(rows_.begin(), rows_.end(), is(grid_.Row));
    const auto column = std::find_if(columns_.begin(), columns_.end(), is(grid_.Col));
    if (row == rows_.end() || column == columns_.end()) return;
    painter_.setPen(QPen(picture_.focus_frame, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter_.drawRect(column->start + 1, row->start + 1, column->size - 3, row->size - 3);
  }

  QPainter& painter_;
  const GridPicture& picture_;
  const Grid& grid_;
  std::vector<Band> rows_;
  std::vector<Band> columns_;
  QSize view_;
  QRect area_;
  std::vector<QLine> lines_;
  const CellLook* in_use_ = nullptr;
};

}  // namespace

int RoomForText(int cell_width, ColumnAlign align) {
  return cell_width - 2 * (align == ColumnAlign::kCenter ? kCenteredMargin : kCellMargin);
}

GridAxis WidenedForTexts(const Grid& grid, const GridAxis& columns, const GridFonts& fonts,
                         int width) {
  int spare = width - columns.TotalSize();
  if (spare <= 0) return columns;
  std::vector<int> sizes;
  for (int col = 0; col < grid.Cols(); ++col) {
    const int size = columns.SizeOf(col);
    sizes.push_back(size);
    if (size == 0 || grid.ColAlignment(col) != ColumnAlign::kLeft) continue;
    int widest = 0;
    for (int row = 0; row < grid.Rows(); ++row)
      widest = std::max(widest, fonts.plain.WidthOf(grid.TextMatrix(row, col)));
    const int lacking = widest - RoomForText(size, ColumnAlign::kLeft);
    const int given = std::clamp(lacking, 0, spare);
    sizes.back() += given;
    spare -= given;
  }
  return GridAxis(std::move(sizes), columns.Fixed());
}

CellFont::CellFont(const QFont& font) : font_(font) {
  const QFontMetricsF metrics(font);
  widths_.fill(kNotMeasured);
  ascent_ = static_cast<int>(std::lround(metrics.ascent()));
  height_ = static_cast<int>(std::lround(metrics.height()));
}

float CellFont::WidthOf(unsigned char character) const {
  float& width = widths_[character];
  if (width == kNotMeasured) {
    const QChar shown(CodePageCharacters()[character]);
    width = static_cast<float>(QFontMetricsF(font_).horizontalAdvance(shown));
  }
  return width;
}

int CellFont::WidthOf(std::string_view text) const {
  float width = 0;
  for (const char c : text) width += WidthOf(static_cast<unsigned char>(c));
  return static_cast<int>(std::ceil(width));
}

QString CellFont::Elided(std::string_view text, int width) const {
  return QFontMetrics(font_).elidedText(FromText(text), Qt::ElideRight, width);
}

GridFonts::GridFonts(const QFont& font) : plain(font) {
  QFont heavy = font;
  heavy.setBold(true);
  bold = CellFont(heavy);
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
