// SPDX-License-Identifier: GPL-3.0-or-later
// FRMROLLBOOK: the View Roll Book Portal. It shows every mark of the class and changes none.
#pragma once

#include <vector>

#include "analysis/student_columns.h"

namespace tallyroll {

struct FRMROLLBOOK : Portal {
  FRMROLLBOOK();
  void Declare(ControlTable& table) override;
  void Load() override;

  Grid Grid1;
  CheckBox mnudate, mnutype, mnunone;  // how the grades are sorted
  CommandButton mnuexit;
  RosterMenu roster;

 private:
  void Sort(CheckBox& entry);
  void Show(i16 mode);
  void Fill();
  void FillGrade(int col, int grade);
  int GradeIn(int col) const;
  CellNote NoteOf(int row, int col) const;

  std::vector<int> grades_;  // as their columns stand
};

// Whether a mark is shown as failing: "NON" and "CUT" are, and a number below the lowest passing
// score; a letter is not, but for one that is padded to three characters.
bool FailsInRollBook(std::string_view mark, double lowpass);

}  // namespace tallyroll
