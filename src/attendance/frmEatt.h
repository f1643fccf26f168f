// SPDX-License-Identifier: GPL-3.0-or-later
// frmEatt: the Edit Summary Attendance Portal. Of a period that is counted from daily marks only
// title and code can be edited.
#pragma once

#include "attendance/direct_grid.h"
#include "store/records.h"

namespace tallyroll {

struct frmEatt : Portal {
  frmEatt();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancel_Click(); }

  ListBox list1;  // the titles
  TextBox Title, code;
  Grid Grid1;
  DirectGrid figures;
  Frame calmess;  // why the grid takes no key
  Label Label4;
  CommandButton exit, cancel;

  bool edited = false;        // since the period was shown or stored
  bool check_failed = false;  // the last check did not pass

  void list1_Change();
  void list1_GotFocus();
  void exit_Click();
  void cancel_Click();

 private:
  AttendanceSummary& Shown();
  bool GridKey();
  void ShowSummary(int index);
  void FillList();
  // Edits to store, or fields that were refused before.
  bool Awaits() const { return edited || check_failed; }
  bool CheckAndStore();
  bool IsComplete();
  void Store();

  int shown_ = 0;  // the period in the fields; 0 is none
};

}  // namespace tallyroll
