// SPDX-License-Identifier: GPL-3.0-or-later
// What the two screens that walk the students share: one student's grades, attendance and comment.
#pragma once

#include "platform/portal.h"
#include "store/program_state.h"

namespace tallyroll {

struct StudentScreen : Portal {
  void Load() override;
  void QueryUnload() override { exit_Click(); }

  Label studentid;
  Grid grdgrade;  // title, code and mark of each grade
  Grid grdatt;    // the attendance summaries
  TextBox comments;
  CommandButton exit;

  void exit_Click();

 protected:
  StudentScreen(std::string_view name, ListBox& students, std::string_view code_heading);
  void DeclareList(ControlTable& table, std::string_view name);
  void DeclareRecord(ControlTable& table);
  void Show(int student);
  void ShowNext();
  void ShowPrevious();

  virtual void ShowMore() {}  // what a screen shows beside the record
  virtual void Leave() { Unload(); }

 private:
  void StoreComment();
  void FillGrades();
  void FillAttendance();

  ListBox& students_;
  std::string_view code_heading_;
};

}  // namespace tallyroll
