// SPDX-License-Identifier: GPL-3.0-or-later
// frmMgrade: the Missing Grades Portal. What each student has not got, beside his comments.
#pragma once

#include "platform/portal.h"
#include "store/records.h"

namespace tallyroll {

struct frmMgrade : Portal {
  frmMgrade();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { mnuexit_Click(); }

  ListBox list1;  // the students
  Grid grdgrade;  // title, code, date and mark of each missing grade
  TextBox comments;
  CommandButton mnuprevious, mnunextt, mnuexit;  // entries of its menu

  void list1_Change();
  void comments_Change();
  void mnuprevious_Click();
  void mnunextt_Click();
  void mnuexit_Click();

 private:
  void Show(int student);
  void KeepComments();

  int shown_ = 0;  // the student shown; 0 is none
  bool commented_ = false;
};

}  // namespace tallyroll
