// SPDX-License-Identifier: GPL-3.0-or-later
// Texts side by side on a line of paper, each within its column: up to the next text, or to the
// right margin.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/print_target.h"

namespace tallyroll {

// What the columns of a table are multiples of: the print font's "N", or less where the page is too
// narrow for the whole table.
double ColumnUnit(double columns);

// A text alone on its line, no wider than the page.
void PrintLine(PrintTarget& target, std::string_view text);

// From left to right. A text that begins with a bar or a blank is parted by it from the one before.
class PaperLine {
 public:
  explicit PaperLine(PrintTarget& target) : target_(target) {}

  void Put(double x, std::string_view text) { cells_.push_back({x, std::string(text)}); }
  // Prints the texts; the pen goes to the next line.
  void End();

 private:
  struct Cell {
    double x = 0;
    std::string text;
  };
  double RoomOf(std::size_t i) const;

  PrintTarget& target_;
  std::vector<Cell> cells_;
};

// Paper under the names that TextReport has, so that one walk over the data serves both. A text
// that reaches the next tab stop moves what follows, as long as the line fits the page; rows of a
// table keep their columns.
class PaperSheet {
 public:
  enum class Columns { kMove, kStay };
  explicit PaperSheet(PrintTarget& target, Columns columns = Columns::kMove)
      : target_(target), columns_(columns) {}

  void Put(std::string_view text) { cells_.back().text += text; }
  void Tab(int column);
  void End(std::string_view text = {});

 private:
  struct Cell {
    double stop = 0;  // the tab stop
    std::string text;
  };
  // Where the texts stand when each moves the next; false where they pass the page so.
  bool Move(std::vector<double>& places) const;

  PrintTarget& target_;
  Columns columns_;
  std::vector<Cell> cells_{1};
};

// Where a tab stop lies: in characters of average width, or less on a narrow page.
double TabStop(const PrintTarget& target, int column);

}  // namespace tallyroll
