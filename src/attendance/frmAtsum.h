// SPDX-License-Identifier: GPL-3.0-or-later
// frmAtsum: the Summary Attendance Portal. It adds summary periods, typed in or counted from the
// daily marks between two dates.
#pragma once

#include "attendance/direct_grid.h"
#include "store/records.h"

namespace tallyroll {

struct frmAtsum : Portal {
  frmAtsum();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancel_Click(); }

  Frame typpe;  // the two kinds
  OptionButton Summary, Hand;
  Frame message;  // what the kinds are
  Label labmessage, labrange, Label5;
  Frame summ;  // of a range
  DTPicker termstart, termend;
  CommandButton ok;
  Frame ind;  // of figures typed in
  TextBox Title, code;
  Grid Grid1;
  DirectGrid figures;
  CommandButton another, Exits, cancel;

  int summkind = 0;     // 1 direct, 2 range, 0 not chosen yet
  int entered = 0;      // 1: something awaits storing
  int datechanged = 0;  // 1: a date was changed since the last ok
  int gridtyped = 0;    // 5 after a key in the grid

  void Hand_Click();
  void Summary_Click();
  void ok_Click();
  void another_Click();
  void Exits_Click();
  void cancel_Click();

 private:
  void PickDate();
  double counted_start_ = 0, counted_end_ = 0;  // the dates of the figures shown
  void Reopen();
  void LayOutRange();
  bool GridKey();
  bool NothingTyped() const;
  bool IsComplete() const;
  bool NothingToLose() const;
  void StoreSummary();
  void StoreFigures();

  bool counted_ =
      false;  // the grid shows the figures of the range between the dates of the last ok
};

}  // namespace tallyroll
