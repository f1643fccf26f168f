// SPDX-License-Identifier: GPL-3.0-or-later
// frmcompare: the Compare Statistics Portal. Four frames, one after the other: the classes, a grade
// of each, their figures, and the distribution as a table and a graph.
#pragma once

#include <array>
#include <vector>

#include "analysis/compared_grades.h"
#include "platform/chart.h"
#include "platform/portal.h"

namespace tallyroll {

inline constexpr std::size_t kMostCompared = 5;

struct frmcompare : Portal {
  frmcompare();
  void Declare(ControlTable& table) override;
  void Load() override;

  Frame framefiles, framegrades, framestat, framegraph;
  ListBox Listfiles;
  std::array<Label, kMostCompared> labelclass;
  std::array<ComboBox, kMostCompared> Combo1;
  Grid panel;  // a column a class, and their totals
  Label tabletitle;
  Grid table;  // the ranges
  Graph Graph1;
  CommandButton continue1, continue2, continue3;
  CommandButton linegr, bar, printgr, printdist;
  CommandButton exit, Continue;

  void continue1_Click();
  void continue2_Click();
  void continue3_Click();
  void linegr_Click();
  void bar_Click();
  void printgr_Click();
  void printdist_Click();

 private:
  void DeclareGrades(ControlTable& rows);
  void ShowFrame(const Frame& shown);
  // A class may have been closed or changed since it was chosen: then it is said, and false.
  bool AllThere();
  void ShowPanels();
  void ShowTable();
  void FillChart();

  std::vector<int> open_;  // the slot of each line of Listfiles
  std::vector<ComparedGrade> compared_;
  std::vector<RangeCounts> ranges_;  // of each class
};

}  // namespace tallyroll
