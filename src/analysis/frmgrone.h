// SPDX-License-Identifier: GPL-3.0-or-later
// frmgrone: the Student Progress Portal, one student's grades as percents. CurrentStudent says
// whose and stays as it is.
#pragma once

#include <vector>

#include "platform/chart.h"
#include "platform/portal.h"

namespace tallyroll {

struct frmgrone : Portal {
  frmgrone();
  void Declare(ControlTable& table) override;
  void Load() override;

  Graph Graph1;
  Frame gradetype;
  OptionButton all, some;
  ListBox ttypelist;  // the grade types that occur in the class
  CommandButton graph, types;
  CheckBox classline;  // the average of the class behind the student's
  CheckBox bydate;     // the grades in order of date
  CommandButton linegr, bar, prints, data, continue_;

  void graph_Click();

 private:
  void FillTypes();
  std::vector<int> GradesOfChosenTypes() const;
  void ChooseSome();
  void ShowFrame(bool on);
  void ShowGrades(ChartKind kind);
  void Redraw(ChartKind kind);

  int student_ = 0;
  std::vector<std::size_t> listed_types_;  // of each line of ttypelist
  std::vector<int> grades_;                // shown, in the order of the class or of the types
};

// How a student is named over his progress: first name, last name and ID, as NameMode asks.
std::string ProgressLabel(int student);

}  // namespace tallyroll
