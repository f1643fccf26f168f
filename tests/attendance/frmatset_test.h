// SPDX-License-Identifier: GPL-3.0-or-later
// The Attendance Settings Portal with one student.
#pragma once

#include "attendance/frmatset.h"
#include "tests/attendance/attendance_test.h"

namespace tallyroll {

class FrmatsetTest : public AttendanceTest {
 protected:
  FrmatsetTest() { Enrol("Ng", "Ada", "1"); }

  // Presses a month button that often: forward when it is positive.
  void Step(const char* back, const char* forward, int months) {
    for (; months > 0; --months) driver->Press(forward);
    for (; months < 0; ++months) driver->Press(back);
  }
  void StepStart(int months) { Step("Command1", "Command2", months); }
  void StepEnd(int months) { Step("Command3", "Command4", months); }
  std::string Start() const { return driver->Text("startmonth") + " " + driver->Text("startyear"); }
  std::string End() const { return driver->Text("endmonth") + " " + driver->Text("endyear"); }
};

}  // namespace tallyroll
