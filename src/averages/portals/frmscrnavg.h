// SPDX-License-Identifier: GPL-3.0-or-later
// frmscrnavg: the Grades Portal. It walks the students and shows each one's average.
#pragma once

#include "averages/portals/student_screen.h"

namespace tallyroll {

struct frmscrnavg : StudentScreen {
  frmscrnavg();
  void Declare(ControlTable& table) override;
  void Load() override;

  ListBox lstName;
  Label lname, fname;
  Label avg_label, avg, suggr;
  CommandButton PREVIOUS, nextt, explain;

 protected:
  void ShowMore() override;
  void Leave() override;
};

}  // namespace tallyroll
