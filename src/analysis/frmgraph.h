// SPDX-License-Identifier: GPL-3.0-or-later
// frmgraph: the Graph Portal, the distribution of one grade over nine ranges. CurrentStudent says
// which grade.
#pragma once

#include <vector>

#include "platform/chart.h"
#include "platform/portal.h"

namespace tallyroll {

struct frmgraph : Portal {
  frmgraph();
  void Declare(ControlTable& table) override;
  void Load() override;

  Graph Graph1;
  Label dist;  // the table of the ranges
  CommandButton pie, bar, linegr, printgr, printdist, Continue;

  void bar_Click();
  void linegr_Click();
  void pie_Click();
  void printgr_Click();
  void printdist_Click();

 private:
  void FillTable();
  void OpenStudent();

  int grade_ = 0;
  std::vector<int> students_;  // of each dot
};

}  // namespace tallyroll
