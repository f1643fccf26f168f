// SPDX-License-Identifier: GPL-3.0-or-later
// What stands beside a column of marks while it is filled: how far it has come, which marks may be
// slips, the way to the next empty cell, marks copied elsewhere, and steps back.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "grades/mark_entry.h"
#include "grades/mark_history.h"
#include "grades/mark_notes.h"

namespace tallyroll {

class LiveMarks {
 public:
  struct Place {
    Portal& portal;
    Grid& grid;
    MarkEntry& marks;
    int column;
  };
  // `bounds` of the mark in a row; `edited` is told when marks were pasted, taken back or done
  // again.
  LiveMarks(const Place& place, std::function<MarkBounds(int row)> bounds,
            std::function<void()> edited);

  Label progress;  // "13 of 15 entered, average 81.4"
  Label doubt;     // why the mark of the current cell may be a slip
  CommandButton nextempty, pastemarks, undomark, redomark;
  bool ShowsAverage = true;  // of the column, where its marks are of one grade

  void Declare(ControlTable& table);
  // Follows every event of the table: what an event changed in the marks is one step.
  void Follow(ControlTable& table);
  // The marks were filled anew: nothing can be taken back.
  void StartOver();
  // Tells on the status bar which marks may be slips, if any.
  void TellDoubts() const;

 private:
  void FollowFocus(ControlRow& row);
  void Settle();
  void ShowProgress();
  void nextempty_Click();
  void pastemarks_Click();
  void Take(const MarkHistory::Step& step, std::string MarkHistory::Cell::*side);

  bool IsEmpty(int row) const;
  std::string_view MarkIn(int row) const;
  std::string DoubtIn(int row) const;
  std::vector<std::string> Doubts() const;
  MarkHistory::Column Column() const;

  Place at_;
  std::function<MarkBounds(int row)> bounds_;
  std::function<void()> edited_;
  MarkHistory history_;
  bool away_ = true;  // the keys go elsewhere: the way to an empty cell may end at the current one
};

}  // namespace tallyroll
