// SPDX-License-Identifier: GPL-3.0-or-later
// What was done to a column of marks since it was filled, so that it can be taken back.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tallyroll {

class MarkHistory {
 public:
  struct Cell {
    int row;
    std::string before, after;
  };
  using Step = std::vector<Cell>;
  using Column = std::vector<std::string>;  // by row of the grid

  // From here on.
  void StartOver(Column column);
  // What differs from the column as it was is one step. `goes_on`: the last key went on with the
  // text of a cell, and belongs to the step that its first key began.
  void Note(const Column& column, bool goes_on);

  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < steps_.size(); }
  // The step to take back, or to do again; one must be there.
  const Step& Undo();
  const Step& Redo();

 private:
  bool GoOn(const Step& step);

  Column column_;
  std::vector<Step> steps_;
  std::size_t done_ = 0;  // of the steps
};

}  // namespace tallyroll
