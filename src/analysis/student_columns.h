// SPDX-License-Identifier: GPL-3.0-or-later
// The two left columns of the screens that show marks without changing them: each has a display
// mode of its own, which begins as the class window's and never changes that.
#pragma once

#include "platform/grid.h"
#include "platform/portal.h"
#include "store/records.h"

namespace tallyroll {

// The four entries of the menu that sets the mode, of which one is checked.
struct RosterMenu {
  CheckBox with_id, without_id, with_name, without_name;
  i16 mode = 68;  // as NameMode

  void Begin();  // as the class window shows
  void Set(i16 wanted);

 private:
  void ClearChecks();
};

// Widths and heads.
void LayOutStudentColumns(Grid& grid, i16 mode);
// Student i of the class in a row; `number` stands before the name where the mode shows IDs too.
void FillStudentCells(Grid& grid, int row, i16 mode, int number, const Student& student);

}  // namespace tallyroll
