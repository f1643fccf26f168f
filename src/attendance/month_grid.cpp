// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/month_grid.h"

#include <string>

#include "attendance/daily_codes.h"
#include "attendance/label_columns.h"
#include "attendance/term_table.h"
#include "base/number_text.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

using Holds = LabelColumn::Holds;

constexpr LabelTable kLabels = {{
    {{{Holds::kId, "      ID", 2000}, {}}},
    {{{Holds::kId, "      ID", 1500}, {Holds::kName, "   NAME", 3100}}},
    {{{Holds::kName, "   NAME", 3100}, {Holds::kId, "      ID", 1500}}},
    {{{Holds::kName, "   NAME", 3000}, {}}},
}};

constexpr int kTotals = static_cast<int>(kDailyCodes.size());
constexpr int kTotalRows = kTotals + 1;  // with the row that heads them
constexpr std::string_view kTotalHeads[kTotals] = {"Totals: ABS", "CUT",  "EXC",
                                                   "SPA",         "NOTE", "LATE"};
constexpr std::string_view kTotalLabels[kTotalRows] = {
    "        Daily Totals", "Absent",           "Cut", "Excused",
    "Special Absence",      "Absent with Note", "Late"};

constexpr int kDayWidth = 290;
constexpr int kFirstTotalWidth = 1125;
constexpr int kTotalWidth = 600;
constexpr int kTotalHeight = 240;

int FirstTotalRow(const Grid& grid) {
  return grid.Rows() - kTotals;
}
int FirstTotalCol(const Grid& grid) {
  return grid.Cols() - kTotals;
}
int Students(const Grid& grid) {
  return grid.Rows() - kTotalRows - 1;
}

char MarkIn(const Grid& grid, int row, int col) {
  const std::string_view text = grid.TextMatrix(row, col);
  return text.empty() ? kNoMark : text.front();
}

void SetTotalHeights(Grid& grid, int height) {
  for (int row = grid.Rows() - kTotalRows; row < grid.Rows(); ++row) grid.SetRowHeight(row, height);
}

}  // namespace

void BuildMonthGrid(Grid& grid, const MonthWindow& month) {
  grid.SetRedraw(false);
  grid.Clear();
  grid.SetSize(Current().NumStudents + kTotalRows + 1, kFirstDayColumn + month.monthdays + kTotals);
  grid.FixedRows = 1;
  grid.FixedCols = kLabelColumns;
  FillLabels(grid, kLabels);
  for (int k = 0; k < kTotalRows; ++k)
    grid.SetTextMatrix(grid.Rows() - kTotalRows + k, 0, kTotalLabels[k]);
  SetTotalHeights(grid, 0);
}

void FillMonthGrid(Grid& grid, const MonthWindow& month) {
  for (int day = 1; day <= month.monthdays; ++day) {
    const int col = day + 1;
    grid.SetColWidth(col, kDayWidth);
    grid.SetColAlignment(col, ColumnAlign::kCenter);
    grid.SetTextMatrix(0, col, PlainNumberText(day));
    for (int i = 1; i <= Students(grid); ++i) {
      const char mark = Grid2.Mark(i, month.monthoffset + day);
      if (mark != kNoMark) grid.SetTextMatrix(i, col, {&mark, 1});
    }
  }
  for (int k = 0; k < kTotals; ++k) {
    const int col = FirstTotalCol(grid) + k;
    grid.SetTextMatrix(0, col, kTotalHeads[k]);
    grid.SetColAlignment(col, ColumnAlign::kRight);
    grid.SetColWidth(col, 0);
  }
  grid.SetRedraw(true);
}

void StoreMonth(const Grid& grid, const MonthWindow& month) {
  for (int i = 1; i <= Students(grid); ++i)
    for (int day = 1; day <= month.monthdays; ++day)
      Grid2.SetMark(i, month.monthoffset + day, MarkIn(grid, i, day + 1));
}

bool IsDayCell(const Grid& grid, int row, int col) {
  return row >= 1 && row <= Students(grid) && col >= kFirstDayColumn && col < FirstTotalCol(grid);
}

void studentSummaryone(Grid& grid, int row) {
  CodeCounts counts;
  for (int col = kFirstDayColumn; col < FirstTotalCol(grid); ++col)
    counts.Count(MarkIn(grid, row, col));
  for (int k = 0; k < kTotals; ++k)
    grid.SetTextMatrix(row, FirstTotalCol(grid) + k,
                       PlainNumberText(counts.at[static_cast<std::size_t>(k)]));
}

void dailysummaryone(Grid& grid, int col) {
  CodeCounts counts;
  for (int row = 1; row <= Students(grid); ++row) counts.Count(MarkIn(grid, row, col));
  for (int k = 0; k < kTotals; ++k)
    grid.SetTextMatrix(FirstTotalRow(grid) + k, col,
                       PlainNumberText(counts.at[static_cast<std::size_t>(k)]));
}

void ShowDailyTotals(Grid& grid, bool on) {
  grid.SetRedraw(false);
  SetTotalHeights(grid, on ? kTotalHeight : 0);
  for (int col = kFirstDayColumn; on && col < FirstTotalCol(grid); ++col) {
    dailysummaryone(grid, col);
    for (int row = FirstTotalRow(grid); row < grid.Rows(); ++row)
      grid.SetStyle(row, col, CellStyle::kTotal);
  }
  grid.SetRedraw(true);
  grid.LeftCol = kFirstDayColumn;
  grid.TopRow = on ? grid.Rows() - kTotalRows : 3;
}

void ShowStudentTotals(Grid& grid, bool on) {
  grid.SetRedraw(false);
  // The last day goes with the totals when they are hidden, until the month is built again.
  for (int col = FirstTotalCol(grid) - (on ? 0 : 1); col < grid.Cols(); ++col) {
    const int width = col == FirstTotalCol(grid) ? kFirstTotalWidth : kTotalWidth;
    grid.SetColWidth(col, on ? width : 0);
    for (int row = 1; on && row <= Students(grid) + 1; ++row)
      grid.SetStyle(row, col, CellStyle::kTotal);
  }
  for (int row = 1; on && row <= Students(grid); ++row) studentSummaryone(grid, row);
  grid.SetRedraw(true);
  grid.TopRow = on ? 2 : 3;
  grid.LeftCol = on ? FirstTotalCol(grid) - 1 : kFirstDayColumn;
}

}  // namespace tallyroll
