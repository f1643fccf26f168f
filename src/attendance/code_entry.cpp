// SPDX-License-Identifier: GPL-3.0-or-later
// How the Daily Attendance Portal takes codes, by keys and from the list.
#include <algorithm>
#include <cmath>
#include <string>

#include "attendance/attendance_range.h"
#include "attendance/daily_codes.h"
#include "attendance/frmAtt.h"
#include "base/date_serial.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr unsigned char kBackspace = 8;

}  // namespace

void frmAtt::EnterCell() {
  if (OnlyShows()) return;
  firstkey = 1;
  FollowCursor();
}

void frmAtt::FollowCursor() {
  if (IsDayCell(Grid1, blue_row_, blue_col_))
    Grid1.SetStyle(blue_row_, blue_col_, CellStyle::kPlain);
  Combo1.Visible = IsDayCell(Grid1, Grid1.Row, Grid1.Col);
  if (!Combo1.Visible) return;
  blue_row_ = Grid1.Row;
  blue_col_ = Grid1.Col;
  Grid1.SetStyle(blue_row_, blue_col_, CellStyle::kInWork);
  // The list begins at what the cell holds.
  Combo1.Text = Trim(Grid1.TextMatrix(blue_row_, blue_col_));
  const bool has_code = Combo1.Text.size() == 1 && IsDailyCode(Combo1.Text.front());
  Combo1.ListIndex = has_code ? static_cast<int>(kDailyCodes.find(Combo1.Text.front())) : -1;
}

void frmAtt::Write(std::string_view mark) {
  Grid1.SetTextMatrix(Grid1.Row, Grid1.Col, mark);
}

void frmAtt::UpdateTotals() {
  if (mnuDaily.Value) dailysummaryone(Grid1, Grid1.Col);
  if (mnuStudent.Value) studentSummaryone(Grid1, Grid1.Row);
}

// A cell holds one code, so a key that is none costs the cell what it held.
bool frmAtt::Grid1_KeyPress(unsigned char key) {
  if (OnlyShows()) return true;
  portalchanged = monthchanged = 1;
  if (!IsDayCell(Grid1, Grid1.Row, Grid1.Col)) return true;
  firstkey = 0;
  const char code = UpperCase(std::string(1, static_cast<char>(key))).front();
  Write(IsDailyCode(code) ? std::string_view(&code, 1) : std::string_view());
  if (!IsDailyCode(code) && key != kBackspace) Platform().Beep();
  UpdateTotals();
  FollowCursor();
  return true;
}

// The first arrow goes to the first student, on the day of today where the month has it.
bool frmAtt::Grid1_KeyDown(Key key) {
  if (OnlyShows()) return false;
  // The key that drops the list; a choice may have put it away.
  if (key == Key::kF4) EnterCell();
  if (key != Key::kUp && key != Key::kDown && key != Key::kLeft && key != Key::kRight &&
      key != Key::kEnter)
    return false;
  firstkey = 1;
  if (Grid1.Row < 1 || Grid1.Col < kFirstDayColumn) {
    const double today = std::floor(Platform().Now());
    const bool has_today = MonthOf(today) == MonthOf(attdate);
    Grid1.Row = 1;
    Grid1.Col = has_today ? DateOfSerial(today).day + 1 : kFirstDayColumn;
  } else if (key == Key::kEnter) {
    Grid1.Row = std::min<int>(Grid1.Row + 1, std::max<int>(Current().NumStudents, 1));
  } else {
    return false;
  }
  EnterCell();
  return true;
}

void frmAtt::Combo1_Click() {
  portalchanged = monthchanged = 1;
  Combo1.Visible = false;
  SetFocus(Grid1);
  if (Combo1.ListIndex < 0 || !IsDayCell(Grid1, Grid1.Row, Grid1.Col)) return;
  const auto chosen = static_cast<std::size_t>(Combo1.ListIndex);
  Write(chosen < kDailyCodes.size() ? kDailyCodes.substr(chosen, 1) : " ");
  UpdateTotals();
}

bool frmAtt::Combo1_KeyPress(unsigned char key) {
  Combo1.Visible = false;
  firstkey = 1;
  SetFocus(Grid1);
  return Grid1_KeyPress(key);
}

}  // namespace tallyroll
