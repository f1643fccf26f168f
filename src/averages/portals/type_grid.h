// SPDX-License-Identifier: GPL-3.0-or-later
// What the grids of these Portals have in common: headings, and rows that begin with a grade type
// or the title of a grade.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "grades/grade_types.h"
#include "platform/grid.h"
#include "platform/table_printer.h"

namespace tallyroll {

// Writes the headings of the last fixed row and lays the columns out: the first wide and fixed,
// texts left, the columns behind the second right.
void HeadColumns(Grid& grid, std::initializer_list<std::string_view> headings);

// Title and type of grade i in row i, behind the headings.
void ShowTitles(Grid& grid);

// Enter goes on downward and stays in the last row; true, as for a key that is used up.
bool GoToNextRow(Grid& grid);

// The rows of a grid below its headings, as they go to paper.
std::vector<std::vector<std::string>> RowsToPrint(const Grid& grid);
// Prints a table where the program can print.
void PrintGrid(const PrintedTable& table);

// Names and codes of the types of the current class.
class TypeNames {
 public:
  TypeNames();
  std::string_view Name(std::size_t type) const;
  std::string_view Code(std::size_t type) const;
  bool IsExtraCredit(std::size_t type) const { return Code(type) == kExtraCreditCode; }
  // Writes name and code into the first two columns.
  void Show(Grid& grid, int row, std::size_t type) const;

 private:
  TypeCodes codes_;
  TypeTexts names_;
};

}  // namespace tallyroll
