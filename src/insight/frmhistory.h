// SPDX-License-Identifier: GPL-3.0-or-later
// frmhistory: the History Portal. It lists what changed from save to save, and takes a line back.
#pragma once

#include <string>
#include <vector>

#include "companion/change_history.h"
#include "platform/portal.h"

namespace tallyroll {

// With this OpenState it begins with the student that CurrentStudent counts.
inline constexpr int kHistoryOfStudent = 134;

struct frmhistory : Portal {
  frmhistory();
  void Declare(ControlTable& table) override;
  void Load() override;

  Label student_label, grade_label;
  ComboBox students, grades;  // whose lines are shown; the first line of each asks for all
  Label found;
  Grid Grid1;       // when, student, grade, field, before, after
  CheckBox agreed;  // a class with a password keeps its history
  CommandButton takeback, exit;

  void takeback_Click();

 private:
  void Fill();
  void ShowLines();
  void agreed_Change();

  std::vector<KeptChange> lines_;
};

}  // namespace tallyroll
