// SPDX-License-Identifier: GPL-3.0-or-later
// The Daily Attendance Portal on three students from September to June.
#pragma once

#include "attendance/frmAtt.h"
#include "platform/month_printer.h"
#include "tests/attendance/attendance_test.h"

namespace tallyroll {

inline int months_printed = 0;
inline double month_printed = 0;

class FrmAttTest : public AttendanceTest {
 protected:
  FrmAttTest() {
    Enrol("Abe", "Bo", "3");
    Enrol("Li  ", "Cy ", "1 ");
    Enrol("Ng", "Ada", "2");
    SetRange({9, 2026}, {6, 2027});
    screen.now = Day(2026, 9, 14) + 0.5;
    OpenState = 15;
    months_printed = 0;
    PrintMonth = [](double day) {
      ++months_printed;
      month_printed = day;
    };
  }

  void OpenPortal(int mode = 15) {
    OpenState = mode;
    portal.emplace();
    Open(*portal);
  }
  // The cell of a student on a day of the month shown.
  void Type(int student, int day, const std::string& keys) {
    driver->PickCell("Grid1", student, day + 1);
    driver->TypeKeys("Grid1", keys);
  }
  std::string Cell(int row, int col) const {
    return std::string(portal->Grid1.TextMatrix(row, col));
  }
  std::string Row(int row, int from, int to) const {
    std::string text;
    for (int col = from; col <= to; ++col) text += (col == from ? "" : "|") + Cell(row, col);
    return text;
  }
  std::string Column(int col, int from, int to) const {
    std::string text;
    for (int row = from; row <= to; ++row) text += (row == from ? "" : "|") + Cell(row, col);
    return text;
  }
  int Cols() const { return portal->Grid1.Cols(); }
  int Rows() const { return portal->Grid1.Rows(); }
  std::string Shown() const { return driver->Text("monthlabel") + " " + driver->Text("endyear"); }

  std::optional<frmAtt> portal;
};

}  // namespace tallyroll
