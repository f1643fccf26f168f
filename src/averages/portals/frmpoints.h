// SPDX-License-Identifier: GPL-3.0-or-later
// frmpoints: the Points Portal. It says which grades count in the total possible points.
#pragma once

#include "averages/portals/frmtotals.h"
#include "store/program_state.h"

namespace tallyroll {

// What the marked grades sum to.
struct PointSums {
  Currency total;  // without extra credit
  Currency extra;
};

struct frmpoints : Portal {
  frmpoints();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancel_Click(); }

  Grid grdgrade;  // a row a grade; only "Count in Total Pts." takes keys
  Label totals, extra;
  CommandButton paste, frombd, print, Sumanry, previewchange, exit, cancel;

  bool grdgrade_KeyPress();
  void paste_Click();
  void frombd_Click();
  void print_Click();
  void Sumanry_Click();
  void exit_Click();
  void cancel_Click();

 private:
  bool Counts(int row) const;
  void ShowSums();
  void showtypes();
  void Accept();
  void PutInForce();
  void previewchange_Click();
  void SaveOnYes();

  PointSums sums_;
  Beside<frmtotals> totals_by_type_;
  i16 work_before_ = 0;
};

}  // namespace tallyroll
