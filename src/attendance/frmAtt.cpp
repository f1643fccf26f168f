// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/frmAtt.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "attendance/attendance_range.h"
#include "attendance/daily_codes.h"
#include "attendance/summary_periods.h"
#include "attendance/term_table.h"
#include "base/date_serial.h"
#include "base/number_text.h"
#include "base/text.h"
#include "platform/class_window.h"
#include "platform/month_printer.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kEnter = 15;
constexpr int kEdit = 25;
constexpr int kView = 112;
constexpr int kByExit = 1;
constexpr int kByCancel = 2;
constexpr int kMovesInList = 38;
constexpr unsigned char kBackspace = 8;

double FirstDay() {
  return Current().AttendanceDays[1].date;
}
double LastDay() {
  return Current().AttendanceDays[static_cast<std::size_t>(Current().NumDays)].date;
}

double FirstOf(TermMonth month) {
  return DateSerial({month.year, month.month, 1});
}

// What the class itself still holds under an index where the term table has something else.
int MarksNotMovedYet() {
  const Class& c = Current();
  int count = 0;
  for (int i = 1; i <= c.NumStudents; ++i)
    for (int j = 1; j <= c.NumDays; ++j) {
      const char mark = MarkOn(c.Students[static_cast<std::size_t>(i)], j);
      count += mark != kNoMark && mark != Grid2.Mark(i, j);
    }
  return count;
}

}  // namespace

frmAtt::frmAtt() : Portal("frmAtt") {
  HelpContext = 370;
  Command1.Caption = "<";
  Command2.Caption = ">";
  mnudate.Caption = "&Date Setting";
  munatt.Caption = "&Att Summary";
  mnuPrint.Caption = "&Print";
  mnuStudent.Caption = "Show &Student Summary";
  mnuDaily.Caption = "Show &Daily Summary";
  mnucancel.Caption = "&Cancel";
  mnuExit.Caption = "E&xit";
  Combo1.List = {"A - Absent",
                 "C - Cut",
                 "E - Excused-per Admin.",
                 "S - Special Abs.-per Admin.",
                 "N - Absent-Note Received",
                 "L - Late",
                 "Delete Entry (Backspace)"};
  Combo1.Over = &Grid1;
  Combo1.Visible = false;
}

void frmAtt::Declare(ControlTable& table) {
  table.Add("mnudate", mnudate).Click([this] { mnudate_Click(); });
  table.Add("munatt", munatt).Click([this] { munatt_Click(); });
  table.Add("mnuPrint", mnuPrint).Click([this] { mnuPrint_Click(); });
  table.Add("mnuStudent", mnuStudent).Click([this] { ShowStudentTotals(Grid1, mnuStudent.Value); });
  table.Add("mnuDaily", mnuDaily).Click([this] { ShowDailyTotals(Grid1, mnuDaily.Value); });
  table.Add("mnucancel", mnucancel).Click([this] { mnucancel_Click(); });
  table.Add("mnuExit", mnuExit).Click([this] { mnuExit_Click(); });
  table.Add("Command1", Command1).Click([this] { StepMonth(-1); });
  table.Add("monthlabel", monthlabel);
  table.Add("endyear", endyear);
  table.Add("Command2", Command2).Click([this] { StepMonth(1); });
  table.Add("Grid1", Grid1)
      .Change([this] { EnterCell(); })
      .Click([this] { EnterCell(); })
      .KeyDown([this](Key key) { return Grid1_KeyDown(key); })
      .KeyPress([this](unsigned char key) { return Grid1_KeyPress(key); });
  table.Add("Combo1", Combo1)
      .Click([this] { Combo1_Click(); })
      .KeyDown([this](Key key) { return Combo1_KeyDown(key); })
      .KeyPress([this](unsigned char key) { return Combo1_KeyPress(key); });
  table.Add("status", status);
}

void frmAtt::Load() {
  mode_ = OpenState;
  ShowMode();
  if (Current().NumDays == 0) {
    ShowPortal("frmatset");
    if (Current().NumDays == 0) return Unload();
    portalchanged = 1;
  }
  ChooseMonth();
  LoadTermGrid();
  ShowMonth();
  Grid1.Row = Grid1.Col = 0;
  SetFocus(Grid1);
}

void frmAtt::ShowMode() {
  Caption = mode_ == kEdit   ? "Edit Attendance Portal"
            : mode_ == kView ? "View Daily Attendance Portal"
                             : "Enter Attendance Portal";
  if (mode_ != kView) return;
  mnudate.Visible = munatt.Visible = mnuPrint.Visible = mnuExit.Visible = false;
  mnucancel.Caption = "E&xit";
}

// Months are told by their numbers alone: a term from September to June that is looked at from
// January to August begins at its last month.
void frmAtt::ChooseMonth() {
  attdate = std::min(std::floor(Platform().Now()), LastDay());
  if (MonthOf(attdate).month < MonthOf(FirstDay()).month) attdate = LastDay();
  attdate = std::max(attdate, FirstDay());
}

void frmAtt::ShowMonth() {
  const TermMonth shown = MonthOf(attdate);
  monthlabel.Caption = MonthName(shown.month);
  endyear.Caption = PlainNumberText(shown.year);
  SetMonthButtons();
  Combo1.Visible = false;
  BuildAndFill();
}

void frmAtt::SetMonthButtons() {
  Command1.Enabled = MonthOf(attdate) != MonthOf(FirstDay());
  Command2.Enabled = MonthOf(attdate) != MonthOf(LastDay());
}

void frmAtt::SetMonthWindow() {
  const TermMonth shown = MonthOf(attdate);
  firstday = FirstDay();
  month.monthdays = static_cast<int>(FirstOf(Stepped(shown, 1)) - FirstOf(shown));
  month.monthoffset = static_cast<int>(FirstOf(shown) - firstday);
}

void frmAtt::BuildAndFill() {
  SetMonthWindow();
  BuildMonthGrid(Grid1, month);
  FillMonthGrid(Grid1, month);
  blue_row_ = blue_col_ = 0;
  firstkey = 1;
  Grid1.Row = std::min(Grid1.Row, Grid1.Rows() - 1);
  Grid1.Col = std::min(Grid1.Col, month.monthdays + 1);
  if (mnuStudent.Value) ShowStudentTotals(Grid1, true);
  if (mnuDaily.Value) ShowDailyTotals(Grid1, true);
}

void frmAtt::StepMonth(int by) {
  if (monthchanged == 1) StoreMonth(Grid1, month);
  attdate = FirstOf(Stepped(MonthOf(attdate), by));
  ShowMonth();
}

// ---- Entering codes ----

void frmAtt::EnterCell() {
  if (mode_ == kView) return;
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
  Combo1.ListIndex = -1;
  Combo1.Text = Trim(Grid1.TextMatrix(blue_row_, blue_col_));
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
  if (mode_ == kView) return true;
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
  if (mode_ == kView) return false;
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
  if (std::exchange(navkey, 0) == kMovesInList) return;
  if (Combo1.ListIndex < 0 || !IsDayCell(Grid1, Grid1.Row, Grid1.Col)) return;
  const auto chosen = static_cast<std::size_t>(Combo1.ListIndex);
  Write(chosen < kDailyCodes.size() ? kDailyCodes.substr(chosen, 1) : " ");
  UpdateTotals();
}

bool frmAtt::Combo1_KeyDown(Key key) {
  if (key == Key::kHome || key == Key::kUp || key == Key::kRight || key == Key::kDown)
    navkey = kMovesInList;
  return false;
}

bool frmAtt::Combo1_KeyPress(unsigned char key) {
  Combo1.Visible = false;
  firstkey = 1;
  SetFocus(Grid1);
  return Grid1_KeyPress(key);
}

// ---- The menu ----

void frmAtt::Store() {
  StoreDailyMarks();
  portalchanged = 0;
}

// Months are told by their numbers alone here too.
void frmAtt::mnudate_Click() {
  Combo1.Visible = false;
  if (monthchanged == 1) StoreMonth(Grid1, month);
  const int marks_before = Grid2.MarkCount();
  ShowPortal("frmatset");
  const int shown = MonthOf(attdate).month;
  const bool by_number = shown > MonthOf(LastDay()).month || shown < MonthOf(FirstDay()).month;
  if (by_number || attdate < FirstDay() || attdate > LastDay()) {
    attdate = LastDay();
    portalchanged = 1;
  }
  TellMovedMarks(marks_before);
  ShowMonth();
}

// What nobody was asked about is told.
void frmAtt::TellMovedMarks(int marks_before) {
  const int moved = Grid2.MarksUnderOtherDates();
  const int lost = marks_before - Grid2.MarkCount();
  const int waiting = portalchanged == 1 ? 0 : MarksNotMovedYet();
  Grid2.TakeDates();
  status.Caption.clear();
  if (moved > 0)
    status.Caption += PlainNumberText(moved) + " mark(s) now stand under other dates. ";
  if (lost > 0) status.Caption += PlainNumberText(lost) + " mark(s) fell out of the range. ";
  if (waiting > 0)
    status.Caption += PlainNumberText(waiting) +
                      " mark(s) keep their dates only if a mark is entered before Exit. ";
}

void frmAtt::munatt_Click() {
  if (Current().NumSummaries >= kMostSummaries) {
    ShowMessage(kNoMoreSummaries);
    return;
  }
  StoreMonth(Grid1, month);
  if (portalchanged == 1) Store();
  ShowPortal("frmAtsum");
}

void frmAtt::mnuPrint_Click() {
  if (monthchanged == 1) {
    StoreMonth(Grid1, month);
    Store();
  }
  if (PrintMonth)
    PrintMonth(FirstOf(MonthOf(attdate)));
  else
    ClassWindow().ShowStatus(kPortalNotAvailable);
}

void frmAtt::mnucancel_Click() {
  exitkind = kByCancel;
  QueryUnload();
}

void frmAtt::mnuExit_Click() {
  exitkind = kByExit;
  QueryUnload();
}

void frmAtt::QueryUnload() {
  StoreMonth(Grid1, month);
  if (portalchanged == 1 && exitkind == kByCancel &&
      Ask("Data has been entered. Are you sure you want to CANCEL?", BoxButtons::kYesNo,
          BoxIcon::kNone, "CANCEL") != BoxAnswer::kYes)
    return;
  if (portalchanged == 1 && exitkind == kByExit) {
    Store();
    if (Current().NumDays > 0) ClassWindow().EnableClassMenus(true);
  }
  ResetAttendance();
  Unload();
}

}  // namespace tallyroll
