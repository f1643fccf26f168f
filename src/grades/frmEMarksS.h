// SPDX-License-Identifier: GPL-3.0-or-later
// frmEMarksS: the Edit Grades by Student Name Portal. One student at a time, with all his marks.
#pragma once

#include "grades/live_marks.h"
#include "grades/mark_entry.h"
#include "store/records.h"

namespace tallyroll {

struct frmEMarksS : Portal {
  frmEMarksS();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancel_Click(); }

  Label namecaption;  // what the lines of lstName are
  ListBox lstName;
  Grid grdgrade;  // a row per Instrument: title, code, mark
  MarkEntry marks;
  LiveMarks live;
  CommandButton Exitt, cancel;

  bool DataChanged = false;

  void lstName_Change();
  void Exitt_Click();
  void cancel_Click();

 private:
  Student& Shown();
  void Show(int student);
  bool Check();
  void Store();

  int shown_ = 0;  // the student in the grid; 0 is none
};

}  // namespace tallyroll
