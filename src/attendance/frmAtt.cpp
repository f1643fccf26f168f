// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/frmAtt.h"

#include <algorithm>
#include <cmath>

#include "attendance/attendance_range.h"
#include "attendance/summary_periods.h"
#include "attendance/term_table.h"
#include "base/date_serial.h"
#include "base/number_text.h"
#include "platform/class_window.h"
#include "platform/month_printer.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kEdit = 25;
constexpr int kByExit = 1;
constexpr int kByCancel = 2;

double FirstDay() {
  return Current().AttendanceDays[1].date;
}
double LastDay() {
  return Current().AttendanceDays[static_cast<std::size_t>(Current().NumDays)].date;
}

double FirstOf(TermMonth month) {
  return DateSerial({month.year, month.month, 1});
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
  Grid1.Notes = NotesOfMonth(Grid1, month, [this] { return FirstOf(MonthOf(attdate)); });
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
  table.Add("Combo1", Combo1).Click([this] { Combo1_Click(); }).KeyPress([this](unsigned char key) {
    return Combo1_KeyPress(key);
  });
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
  Caption = mode_ == kEdit ? "Edit Attendance Portal"
            : OnlyShows()  ? "View Daily Attendance Portal"
                           : "Enter Attendance Portal";
  if (!OnlyShows()) return;
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
  const int waiting = portalchanged == 1 ? 0 : Grid2.MarksAwaitingStore();
  Grid2.TakeDates();
  status.Caption.clear();
  const auto tell = [this](std::string_view what, int count) {
    if (count <= 0) return;
    if (!status.Caption.empty()) status.Caption += "  ";
    status.Caption += std::string(what) + PlainNumberText(count) + ".";
  };
  tell("Marks that now stand under other dates: ", moved);
  tell("Marks that fell out of the range: ", lost);
  tell("Marks that keep their dates only if one is entered before Exit: ", waiting);
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
  if (PrintMonth) PrintMonth(FirstOf(MonthOf(attdate)));
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
