// SPDX-License-Identifier: GPL-3.0-or-later
// frminfo: the Show Information Portal, a student's record without the average.
#pragma once

#include "averages/portals/student_screen.h"

namespace tallyroll {

// With this OpenState it begins with the student that CurrentStudent counts.
inline constexpr int kInfoOfStudent = 131;

struct frminfo : StudentScreen {
  frminfo();
  void Declare(ControlTable& table) override;
  void Load() override;

  ListBox list1;
  Label fullname;
  CommandButton mnuprevious, mnuext, mnugraph, explain;  // entries of its menu

  void mnugraph_Click();

 protected:
  void ShowMore() override;
};

}  // namespace tallyroll
