// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/grid_widget.h"

#include <QAccessible>
#include <QFontInfo>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "desktop/basics/text_conversion.h"
#include "desktop/grid/grid_accessibility.h"

namespace tallyroll {
namespace {

constexpr QSize kUsualSize(640, 360);

void NoteFocus(GridWidget& widget) {
  const Grid* grid = widget.grid();
  if (!QAccessible::isActive() || !grid) return;
  QAccessibleEvent event(&widget, QAccessible::Focus);
  // A grid of headings alone has no cell that could have the focus.
  if (grid->Row < grid->Rows() && grid->Col < grid->Cols())
    event.setChild(grid->Row * grid->Cols() + grid->Col);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

GridWidget::GridWidget(QWidget* parent)
    : QAbstractScrollArea(parent), fonts_(font()), colors_(palette()) {
  setFocusPolicy(Qt::StrongFocus);
  // Each paint fills what it is asked for; while Redraw is off the old picture stays.
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  // A sheet ends on the ground of the window.
  viewport()->setBackgroundRole(QPalette::Window);
  viewport()->setMouseTracking(true);
  InstallGridAccessibility();
}

GridWidget::~GridWidget() = default;

void GridWidget::SetGrid(Grid* grid) {
  grid_ = grid;
  shown_ = {};
  anchor_.reset();
  hover_ = {};
  prints_.clear();
  if (!grid) return;
  Measure();
  UpdateFromGrid();
  viewport()->update();
}

void GridWidget::Keep(const QString& name) {
  kept_ = KeptGrid(name);
  ApplyFonts();
}

void GridWidget::UpdateFromGrid() {
  if (!grid_ || !grid_->Redraw()) return;
  const bool refilled = shown_.revision != grid_->Revision();
  const bool other_measures = MeasureIfChanged();
  const bool moved = shown_.row != grid_->Row || shown_.col != grid_->Col;
  const bool scrolled = shown_.top_row != grid_->TopRow || shown_.left_col != grid_->LeftCol;
  // A view that the logic set is obeyed; otherwise the current cell stays in sight.
  if (moved && !scrolled) ShowCell(grid_->Row, grid_->Col);
  ClampView();
  SetScrollBars();
  const bool same_view = shown_.top_row == grid_->TopRow && shown_.left_col == grid_->LeftCol;
  const Shown before = std::exchange(
      shown_, {grid_->Revision(), grid_->Row, grid_->Col, grid_->TopRow, grid_->LeftCol});
  if (moved && !moving_) anchor_.reset();
  if (other_measures || !same_view) {
    viewport()->update();
    prints_ = PrintsOfView();
  } else {
    if (refilled) UpdateWhatChanged();
    if (moved) {
      UpdateCross(before.row, before.col);
      UpdateCross(grid_->Row, grid_->Col);
    }
  }
  if (moved && hasFocus()) NoteFocus(*this);
}

// True when a row or a column stands elsewhere than before.
bool GridWidget::Measure() {
  if (!grid_) return false;
  const int text_height = std::max(fonts_.plain.Height(), fonts_.bold.Height());
  GridAxis rows = RowsOf(*grid_, logicalDpiY(), fonts_.points, text_height);
  const bool two_lines = grid_->Notes.AboveHead || grid_->Notes.BelowHead;
  if (two_lines && grid_->FixedRows > 0)
    rows = rows.WithLeast(grid_->FixedRows - 1, fonts_.bold.Height() + fonts_.small.Height() + 4);
  GridAxis columns = ColumnsOf(*grid_, logicalDpiX(), fonts_.points);
  std::vector<bool> set(static_cast<std::size_t>(grid_->Cols()));
  for (int col = 0; col < grid_->Cols(); ++col) {
    const std::optional<int> twips = kept_.WidthOf(*grid_, col);
    if (!twips) continue;
    set[static_cast<std::size_t>(col)] = true;
    columns = columns.With(col, PixelsOfTwips(*twips, logicalDpiX(), fonts_.points));
  }
  natural_width_ = columns.TotalSize();
  columns = WidenedForTexts(*grid_, columns, fonts_, viewport()->width(), set);
  // A width that the user gave stays.
  if (last_column_fills_ && std::find(set.begin(), set.end(), true) == set.end())
    columns = columns.Filling(viewport()->width());
  measured_ = grid_->Revision();
  const bool same = rows == rows_ && columns == columns_;
  rows_ = std::move(rows);
  columns_ = std::move(columns);
  return !same;
}

// The logic may have changed the grid since it was shown; no event may meet old measures.
bool GridWidget::MeasureIfChanged() {
  const bool fits = rows_.Count() == grid_->Rows() && columns_.Count() == grid_->Cols() &&
                    rows_.Fixed() == grid_->FixedRows && columns_.Fixed() == grid_->FixedCols;
  const bool other_measures = (measured_ != grid_->Revision() || !fits) && Measure();
  // Who meets a changed grid on the way to a repaint leaves the rest to the repaint.
  if (other_measures) viewport()->update();
  ClampView();
  return other_measures;
}

void GridWidget::ClampView() {
  const auto clamp = [](int first, const GridAxis& axis, int extent) {
    return std::clamp(first, axis.Fixed(), std::max(axis.LastFirst(extent), axis.Fixed()));
  };
  grid_->TopRow = clamp(grid_->TopRow, rows_, viewport()->height());
  grid_->LeftCol = clamp(grid_->LeftCol, columns_, viewport()->width());
}

void GridWidget::SetScrollBars() {
  setting_bars_ = true;
  const auto set = [](QScrollBar& bar, const GridAxis& axis, int first, int extent) {
    const int last = std::max(axis.LastFirst(extent), axis.Fixed());
    bar.setRange(0, last - axis.Fixed());
    bar.setPageStep(std::max(1, axis.Count() - last));
    bar.setValue(first - axis.Fixed());
  };
  set(*verticalScrollBar(), rows_, grid_->TopRow, viewport()->height());
  set(*horizontalScrollBar(), columns_, grid_->LeftCol, viewport()->width());
  setting_bars_ = false;
}

void GridWidget::ShowCell(int row, int col) {
  grid_->TopRow = rows_.FirstToShow(row, grid_->TopRow, viewport()->height());
  grid_->LeftCol = columns_.FirstToShow(col, grid_->LeftCol, viewport()->width());
}

void GridWidget::scrollContentsBy(int, int) {
  if (setting_bars_ || !grid_) return;
  MeasureIfChanged();
  const int top = grid_->FixedRows + verticalScrollBar()->value();
  const int left = grid_->FixedCols + horizontalScrollBar()->value();
  const int dy = rows_.Start(top, grid_->TopRow) - rows_.Start(top, top);
  const int dx = columns_.Start(left, grid_->LeftCol) - columns_.Start(left, left);
  grid_->TopRow = shown_.top_row = top;
  grid_->LeftCol = shown_.left_col = left;
  ScrollPixels(dx, dy);
  prints_ = shown_.revision == grid_->Revision() ? PrintsOfView() : std::vector<std::size_t>();
  if (pointer_) Hover(*pointer_);
}

void GridWidget::MoveTo(int row, int col) {
  if (!grid_ || (row == grid_->Row && col == grid_->Col)) return;
  const CellRange before = Range();
  grid_->Row = row;
  grid_->Col = col;
  MeasureIfChanged();
  ShowCell(row, col);
  moving_ = true;
  UpdateFromGrid();
  moving_ = false;
  if (!before.IsOneCell() || !Range().IsOneCell()) {
    UpdateCells(before);
    UpdateCells(Range());
  }
  Q_EMIT currentCellChanged(row, col);
}

QRect GridWidget::CellRect(int row, int col) const {
  if (!grid_ || row < 0 || col < 0 || row >= rows_.Count() || col >= columns_.Count()) return {};
  const auto scrolled_away = [](int index, int first, const GridAxis& axis) {
    return index >= axis.Fixed() && index < first;
  };
  if (scrolled_away(row, grid_->TopRow, rows_) || scrolled_away(col, grid_->LeftCol, columns_))
    return {};
  QRect rect(columns_.Start(col, grid_->LeftCol), rows_.Start(row, grid_->TopRow),
             columns_.SizeOf(col), rows_.SizeOf(row));
  if (!grid_->MergeRow(row)) return rect;
  const auto bands = columns_.Visible(grid_->LeftCol, viewport()->width());
  for (const HeadingSpan& span : MergedSpans(*grid_, bands)) {
    const Band& first = bands[static_cast<std::size_t>(span.first)];
    const Band& last = bands[static_cast<std::size_t>(span.last)];
    if (first.index > col || last.index < col) continue;
    rect.setLeft(first.start);
    rect.setRight(std::min(last.start + last.size, viewport()->width()) - 1);
  }
  return rect;
}

GridWidget::Cell GridWidget::CellAt(const QPoint& place) const {
  if (!grid_ || !viewport()->rect().contains(place)) return {};
  const Cell cell{rows_.At(place.y(), grid_->TopRow), columns_.At(place.x(), grid_->LeftCol)};
  return cell.row < 0 || cell.col < 0 ? Cell{} : cell;
}

bool GridWidget::IsCut(int row, int col) const {
  return WidthWanted(*grid_, fonts_, row, col) >
         RoomForText(CellRect(row, col).width(), grid_->ColAlignment(col));
}

CellRange GridWidget::Range() const {
  if (!grid_) return {};
  const Cell from = anchor_.value_or(Cell{grid_->Row, grid_->Col});
  return RangeBetween(from.row, from.col, grid_->Row, grid_->Col);
}

void GridWidget::paintEvent(QPaintEvent* event) {
  if (grid_ && !grid_->Redraw()) return;
  QPainter painter(viewport());
  if (!grid_) {
    painter.fillRect(event->rect(), colors_.tokens().window);
    return;
  }
  MeasureIfChanged();
  const GridPicture picture{*grid_,
                            rows_,
                            columns_,
                            colors_,
                            fonts_,
                            hasFocus(),
                            Range(),
                            hover_.row,
                            hover_.col,
                            NoticeShown(),
                            !verticalScrollBar()->isVisible()};
  // Scrolling sideways asks for a strip and the headings; their common rectangle is everything.
  for (const QRect& area : event->region()) {
    painter.setClipRect(area);
    PaintGrid(painter, picture, viewport()->size(), area);
  }
}

// A current cell that was in sight stays in sight when the room gets smaller.
void GridWidget::resizeEvent(QResizeEvent* event) {
  if (!grid_) return;
  const QRect room({}, event->oldSize());
  const bool seen = room.contains(CellRect(grid_->Row, grid_->Col));
  Measure();
  ClampView();
  if (seen) ShowCell(grid_->Row, grid_->Col);
  SetScrollBars();
  shown_.top_row = grid_->TopRow;
  shown_.left_col = grid_->LeftCol;
  prints_ = PrintsOfView();
  viewport()->update();
}

QSize GridWidget::sizeHint() const {
  const int frame = 2 * frameWidth();
  const QSize scroll_bars(verticalScrollBar()->sizeHint().width(),
                          horizontalScrollBar()->sizeHint().height());
  const QSize whole = QSize(natural_width_ + frame, rows_.TotalSize() + frame) + scroll_bars;
  return grid_ ? whole.boundedTo(kUsualSize) : kUsualSize;
}

int GridWidget::WholeWidth() const {
  return natural_width_ + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
}

QSize GridWidget::minimumSizeHint() const {
  return QSize(columns_.FixedSize() / 2 + 80, rows_.FixedSize() + 4 * fonts_.plain.Height());
}

void GridWidget::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  const auto type = event->type();
  if (type == QEvent::PaletteChange || type == QEvent::StyleChange) colors_ = GridColors(palette());
  if (type == QEvent::FontChange || type == QEvent::StyleChange) ApplyFonts();
  viewport()->update();
}

void GridWidget::focusInEvent(QFocusEvent*) {
  ShowFocus();
  NoteFocus(*this);
}

void GridWidget::focusOutEvent(QFocusEvent*) {
  ShowFocus();
}

}  // namespace tallyroll
