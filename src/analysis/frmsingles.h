// SPDX-License-Identifier: GPL-3.0-or-later
// frmsingles: the Display Single Grade Portal. One grade of all students, ranked if wanted; the
// class stays in its order.
#pragma once

#include <vector>

#include "analysis/student_columns.h"

namespace tallyroll {

struct frmsingles : Portal {
  frmsingles();
  void Declare(ControlTable& table) override;
  void Load() override;

  ListBox lstName;  // the titles of the grades
  Label title, code, typecat, testdate;
  Grid grid1;
  CheckBox mnuheighest, mnulowest, mnunone;  // the ranking
  CommandButton mnunext, mnuprevious, mnuExit;
  RosterMenu roster;

 private:
  void ShowGrade(int grade);
  void Rank(CheckBox& entry);
  void Show(i16 mode);
  void FillBoxes();
  void FillGrid();
  std::vector<int> Ranked() const;

  int grade_ = 0;  // 0 is none
};

}  // namespace tallyroll
