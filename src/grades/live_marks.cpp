// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/live_marks.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/grade_clipboard.h"
#include "grades/mark_doubts.h"
#include "grades/marks.h"
#include "grades/pasted_marks.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/clipboard_boxes.h"
#include "store/text/box_list.h"

namespace tallyroll {
namespace {

constexpr std::size_t kMostDoubtsTold = 3;

std::string CountText(std::size_t count) {
  return PlainNumberText(static_cast<std::int64_t>(count));
}

// As Statistics averages a grade: a special mark is an absence, any other text has its value.
// Nothing without a mark that counts.
std::optional<double> AverageOfMarks(const MarkHistory::Column& column) {
  Currency sum;
  int counted = 0;
  try {
    for (const std::string& cell : column) {
      const std::string_view mark = Trim(cell);
      if (mark.empty() || KindOfMark(mark) != MarkKind::kGraded) continue;
      sum = sum + GradeValue(mark);
      ++counted;
    }
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
  if (counted == 0) return std::nullopt;
  return sum.ToDouble() / counted;
}

std::string HundredthsText(double value) {
  return PlainNumberText(std::nearbyint(value * 100) / 100);
}

}  // namespace

LiveMarks::LiveMarks(const Place& place, std::function<MarkBounds(int row)> bounds,
                     std::function<void()> edited)
    : at_(place), bounds_(std::move(bounds)), edited_(std::move(edited)) {
  nextempty.Caption = "Next Empty [F5]";
  pastemarks.Caption = "Paste Marks [Ctrl+V]";
  undomark.Caption = "Undo [Ctrl+Z]";
  redomark.Caption = "Redo [Ctrl+Shift+Z]";
  at_.grid.Notes.Of = [this](int row, int col) {
    const bool is_mark = row >= at_.grid.FixedRows && col == at_.column;
    return is_mark ? NoteOfTypedMark(MarkIn(row), bounds_(row)) : CellNote();
  };
  at_.grid.Notes.Tip = [this](int row, int col) {
    return row >= at_.grid.FixedRows && col == at_.column ? DoubtIn(row) : std::string();
  };
}

void LiveMarks::Declare(ControlTable& table) {
  table.Add("progress", progress);
  table.Add("doubt", doubt);
  table.Add("nextempty", nextempty).Click([this] { nextempty_Click(); });
  table.Add("pastemarks", pastemarks).Click([this] { pastemarks_Click(); });
  table.Add("undomark", undomark).Click([this] {
    Take(history_.Undo(), &MarkHistory::Cell::before);
  });
  table.Add("redomark", redomark).Click([this] {
    Take(history_.Redo(), &MarkHistory::Cell::after);
  });
}

// A button only passes the keys on; what else takes them is elsewhere.
void LiveMarks::FollowFocus(ControlRow& row) {
  const bool grid = std::holds_alternative<Grid*>(row.control);
  if (std::holds_alternative<CommandButton*>(row.control)) return;
  row.got_focus = [this, away = !grid, before = std::move(row.got_focus)] {
    away_ = away;
    if (before) before();
  };
}

void LiveMarks::Follow(ControlTable& table) {
  for (const auto& row : table.rows()) {
    FollowFocus(*row);
    for (auto event : {&ControlRow::change, &ControlRow::click}) {
      if (std::function<void()>& handler = (*row).*event)
        handler = [this, before = std::move(handler)] {
          before();
          Settle();
        };
    }
    if (row->key_down)
      row->key_down = [this, before = std::move(row->key_down)](Key key) {
        const bool used = before(key);
        Settle();
        return used;
      };
    if (row->key_press)
      row->key_press = [this, before = std::move(row->key_press)](unsigned char key) {
        const bool used = before(key);
        Settle();
        return used;
      };
  }
}

void LiveMarks::StartOver() {
  away_ = true;
  history_.StartOver(Column());
  ShowProgress();
}

void LiveMarks::Settle() {
  if (at_.portal.Unloaded()) return;
  history_.Note(Column(), at_.marks.TakeGoesOn());
  ShowProgress();
}

void LiveMarks::ShowProgress() {
  const MarkHistory::Column column = Column();
  const auto first = static_cast<std::size_t>(at_.grid.FixedRows);
  const std::size_t all = column.size() > first ? column.size() - first : 0;
  const auto empty = static_cast<std::size_t>(std::ranges::count_if(
      column.begin() + static_cast<std::ptrdiff_t>(column.size() - all), column.end(),
      [](const std::string& cell) { return Trim(cell).empty(); }));
  const bool on = at_.grid.Enabled && all > 0;
  progress.Caption.clear();
  if (on) {
    progress.Caption = CountText(all - empty) + " of " + CountText(all) + " entered";
    const std::optional<double> average = ShowsAverage ? AverageOfMarks(column) : std::nullopt;
    if (average) progress.Caption += ", average " + HundredthsText(*average);
    if (const std::size_t doubts = Doubts().size(); doubts > 0)
      progress.Caption += ", " + CountText(doubts) + " to look at";
  }
  doubt.Caption = on ? DoubtIn(at_.grid.Row) : "";
  nextempty.Enabled = on && empty > 0;
  pastemarks.Enabled = on;
  undomark.Enabled = on && history_.CanUndo();
  redomark.Enabled = on && history_.CanRedo();
}

// Behind the current cell, and then from the top. Who comes from elsewhere may find it empty.
void LiveMarks::nextempty_Click() {
  const int first = at_.grid.FixedRows, rows = at_.grid.Rows() - first;
  for (int step = std::exchange(away_, false) ? 0 : 1; step <= rows; ++step) {
    const int row = first + (at_.grid.Row - first + step) % rows;
    if (!IsEmpty(row)) continue;
    at_.marks.GoTo(row);
    break;
  }
  at_.portal.SetFocus(at_.grid);
}

// From the current cell on. What is no mark as it was copied is shown first.
void LiveMarks::pastemarks_Click() {
  const std::string clipboard = Platform().ClipboardText();
  if (HoldsHeader(clipboard) || HoldsGrade(clipboard)) return TellOtherClipboard();
  const auto pasted = MarksOfColumn(clipboard);
  if (!pasted) {
    ShowMessage("The clipboard holds more than one column. Copy the column of marks alone.");
    return;
  }
  if (pasted->empty()) {
    ShowMessage("The clipboard holds no marks. Copy a column of marks and try again.");
    return;
  }
  const int from = std::max(at_.grid.Row, at_.grid.FixedRows);
  const auto room = static_cast<std::size_t>(std::max(at_.grid.Rows() - from, 0));
  const std::size_t fits = std::min(pasted->size(), room);
  std::vector<std::string> lines;
  if (pasted->size() > room)
    lines.push_back("Left out, since the list ends: " + CountText(pasted->size() - room));
  for (std::size_t k = 0; k < fits; ++k)
    if (const std::string why = DoubtOfPasted((*pasted)[k]); !why.empty())
      lines.push_back(std::string(Trim(at_.grid.TextMatrix(from + static_cast<int>(k), 0))) + ": " +
                      why);
  if (!lines.empty() && Ask("Not everything on the clipboard stands here as it was copied. Paste "
                            "it so?" +
                                BoxList(lines),
                            BoxButtons::kYesNo, BoxIcon::kQuestion) != BoxAnswer::kYes)
    return;
  for (std::size_t k = 0; k < fits; ++k)
    if (const std::string& mark = (*pasted)[k].mark; !mark.empty())
      at_.grid.SetTextMatrix(from + static_cast<int>(k), at_.column, mark);
  at_.marks.StartAt(from);
  at_.portal.SetFocus(at_.grid);
  edited_();
}

void LiveMarks::Take(const MarkHistory::Step& step, std::string MarkHistory::Cell::*side) {
  for (const MarkHistory::Cell& cell : step)
    at_.grid.SetTextMatrix(cell.row, at_.column, cell.*side);
  at_.marks.StartAt(step.front().row);
  at_.portal.SetFocus(at_.grid);
  edited_();
}

void LiveMarks::TellDoubts() const {
  const std::vector<std::string> doubts = Doubts();
  if (doubts.empty()) return;
  std::string told =
      "To look at: " + CountText(doubts.size()) + (doubts.size() == 1 ? " mark. " : " marks. ");
  for (std::size_t k = 0; k < std::min(doubts.size(), kMostDoubtsTold); ++k)
    told += (k == 0 ? "" : "; ") + doubts[k];
  if (doubts.size() > kMostDoubtsTold) told += "; ...";
  ClassWindow().ShowStatus(told);
}

bool LiveMarks::IsEmpty(int row) const {
  return Trim(MarkIn(row)).empty();
}

std::string_view LiveMarks::MarkIn(int row) const {
  return at_.grid.TextMatrix(row, at_.column);
}

std::string LiveMarks::DoubtIn(int row) const {
  if (row < at_.grid.FixedRows || row >= at_.grid.Rows()) return {};
  return DoubtOfMark(MarkIn(row), bounds_(row).maximum);
}

std::vector<std::string> LiveMarks::Doubts() const {
  std::vector<std::string> doubts;
  for (int row = at_.grid.FixedRows; row < at_.grid.Rows(); ++row)
    if (const std::string why = DoubtIn(row); !why.empty())
      doubts.push_back(std::string(Trim(at_.grid.TextMatrix(row, 0))) + ": " + why);
  return doubts;
}

MarkHistory::Column LiveMarks::Column() const {
  MarkHistory::Column column;
  for (int row = 0; row < at_.grid.Rows(); ++row)
    column.emplace_back(row < at_.grid.FixedRows ? std::string_view() : MarkIn(row));
  return column;
}

}  // namespace tallyroll
