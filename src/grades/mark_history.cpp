// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/mark_history.h"

#include <algorithm>
#include <utility>

namespace tallyroll {

void MarkHistory::StartOver(Column column) {
  column_ = std::move(column);
  steps_.clear();
  done_ = 0;
}

void MarkHistory::Note(const Column& column, bool goes_on) {
  Step step;
  for (std::size_t row = 0; row < std::min(column.size(), column_.size()); ++row)
    if (column[row] != column_[row])
      step.push_back({static_cast<int>(row), column_[row], column[row]});
  if (step.empty()) return;
  column_ = column;
  steps_.resize(done_);
  if (goes_on && GoOn(step)) return;
  steps_.push_back(std::move(step));
  done_ = steps_.size();
}

// A mark that is typed back to what it was leaves no step.
bool MarkHistory::GoOn(const Step& step) {
  if (steps_.empty()) return false;
  Step& last = steps_.back();
  if (step.size() != 1 || last.size() != 1 || last.front().row != step.front().row) return false;
  last.front().after = step.front().after;
  if (last.front().after == last.front().before) steps_.pop_back();
  done_ = steps_.size();
  return true;
}

const MarkHistory::Step& MarkHistory::Undo() {
  const Step& step = steps_[--done_];
  for (const Cell& cell : step) column_[static_cast<std::size_t>(cell.row)] = cell.before;
  return step;
}

const MarkHistory::Step& MarkHistory::Redo() {
  const Step& step = steps_[done_++];
  for (const Cell& cell : step) column_[static_cast<std::size_t>(cell.row)] = cell.after;
  return step;
}

}  // namespace tallyroll
