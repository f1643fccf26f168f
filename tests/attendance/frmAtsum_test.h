// SPDX-License-Identifier: GPL-3.0-or-later
// The Summary Attendance Portal with two students.
#pragma once

#include "attendance/frmAtsum.h"
#include "tests/attendance/attendance_test.h"

namespace tallyroll {

class FrmAtsumTest : public AttendanceTest {
 protected:
  FrmAtsumTest() {
    Enrol("Li", "Bo", "2");
    Enrol("Ng", "Ada", "1");
  }
  void OpenWithDays() {
    SetRange({9, 2026}, {6, 2027});
    Open(portal);
  }
  void Figure(int student, int col, const std::string& keys) {
    driver->PickCell("Grid1", student, col);
    driver->TypeKeys("Grid1", keys);
  }
  void FillDirect() {
    driver->Type("Title", "First marking period");
    driver->Type("code", "MP1");
    Figure(1, 2, "3");
    Figure(1, 3, "1");
    Figure(2, 2, "0");
    Figure(2, 3, "12");
  }
  std::string Row(int row) const {
    std::string text;
    for (int col = 2; col < portal.Grid1.Cols(); ++col)
      text += (col == 2 ? "" : "|") + std::string(portal.Grid1.TextMatrix(row, col));
    return text;
  }
  static AttendanceSummary& Period(std::size_t k) { return Current().Summaries.at(k); }

  frmAtsum portal;
};

}  // namespace tallyroll
