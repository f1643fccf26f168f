// SPDX-License-Identifier: GPL-3.0-or-later
// frmAtt: the Daily Attendance Portal. It shows a month of the class and takes a code a day; the
// class keeps what was entered when it is left by Exit, printed or summed up.
#pragma once

#include "attendance/month_grid.h"
#include "platform/portal.h"

namespace tallyroll {

// OpenState: 15 enters, 25 edits, 112 only shows.
struct frmAtt : Portal {
  frmAtt();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override;

  Label monthlabel, endyear;         // month and year of attdate
  CommandButton Command1, Command2;  // the month before, the month after
  Grid Grid1;
  ComboBox Combo1;  // the codes, over the current cell
  CommandButton mnudate, munatt, mnuPrint;
  CheckBox mnuStudent, mnuDaily;
  CommandButton mnucancel, mnuExit;
  Label status;  // what a new range did to the marks

  double attdate = 0;   // a date in the month shown
  double firstday = 0;  // of the range
  MonthWindow month;
  int portalchanged = 0;  // 1 once anything was entered
  int monthchanged = 0;   // 1 once a code was entered in the month grid
  int exitkind = 2;       // 1 Exit, 2 Cancel
  int firstkey = 1;       // 1: the next key replaces what the cell holds

  bool Grid1_KeyPress(unsigned char key);
  bool Grid1_KeyDown(Key key);
  void Combo1_Click();
  void mnudate_Click();
  void munatt_Click();
  void mnuPrint_Click();
  void mnucancel_Click();
  void mnuExit_Click();

 private:
  bool OnlyShows() const { return mode_ == 112; }
  void ShowMode();
  void ChooseMonth();
  void ShowMonth();
  void StepMonth(int by);
  void SetMonthButtons();
  void SetMonthWindow();
  void BuildAndFill();
  void EnterCell();
  void FollowCursor();
  bool Combo1_KeyPress(unsigned char key);
  void Write(std::string_view mark);
  void UpdateTotals();
  void Store();
  void TellMovedMarks(int marks_before);

  int mode_ = 0;
  int blue_row_ = 0, blue_col_ = 0;  // the cell in work
};

}  // namespace tallyroll
