// SPDX-License-Identifier: GPL-3.0-or-later
// frmatset: the Attendance Settings Portal. It sets the attendance range up in whole months and
// moves its ends, with the marks of the term table.
#pragma once

#include "attendance/attendance_range.h"
#include "platform/portal.h"

namespace tallyroll {

struct frmatset : Portal {
  frmatset();
  void Declare(ControlTable& table) override;
  void Load() override;

  Label startmonth, startyear, endmonth, endyear;
  Label startlabel, endlabel;  // the range before anything was chosen
  CommandButton Command1, Command2, Command3, Command4;
  CommandButton OKButton, CancelButton;

  void OKButton_Click();

 private:
  void ReadValues();
  void ShowValues();
  void StepStart(int by);
  void StepEnd(int by);
  // False: the teacher would rather keep what would be lost.
  bool MoveRange(const RangeDates& dates);

  RangeChoice choice_;
};

}  // namespace tallyroll
