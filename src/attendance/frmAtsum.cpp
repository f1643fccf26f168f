// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/frmAtsum.h"

#include "attendance/summary_periods.h"
#include "base/date_serial.h"
#include "base/number_text.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/class_defaults.h"
#include "store/class_format.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

using Holds = LabelColumn::Holds;

constexpr int kLongestCode = 3;
constexpr int kGridTyped = 5;

constexpr std::string_view kNameHead = "     NAME", kIdHead = "       ID";
constexpr int kIdWidth = 1440;

constexpr LabelTable Labels(int name_width) {
  const LabelColumn id{Holds::kId, kIdHead, kIdWidth}, name{Holds::kName, kNameHead, name_width};
  return {{{{id, {}}}, {{id, name}}, {{name, id}}, {{name, {}}}}};
}
constexpr LabelTable kDirectLabels = Labels(3125);
constexpr LabelTable kRangeLabels = Labels(3100);

// A range is shown as its codes in their order and the absences in all.
constexpr std::string_view kRangeHeads = "ACESNLT";
constexpr int kFirstRangeColumn = 2;
constexpr int kFirstRangeWidth = 470;
constexpr int kRangeWidth = 600;
constexpr int kTotalColumn = 8;

int ColumnOf(char code) {
  return kFirstRangeColumn + static_cast<int>(kDailyCodes.find(code));
}

std::string TextOfDate(const DTPicker& picker) {
  return DateText(picker.Value, Platform().ShortDateOrder());
}

}  // namespace

frmAtsum::frmAtsum() : Portal("frmAtsum"), figures(Grid1, [this] { return GridKey(); }) {
  Caption = "Summary Attendance Portal";
  HelpContext = 380;
  typpe.Caption = "Summary Attendace Options";
  Summary.Caption = "Summary--Range of Dates";
  Hand.Caption = "Direct Entering of Att.Info";
  labmessage.Caption = "Please Choose an option for your Summary Attendance.";
  labrange.Caption =
      "1. Summary--Range. After you enter the starting and ending dates, the program will "
      "automatically calculate the number of Abs, Cuts, Notes, Lates and Exc each student has. You "
      "cannot edit this info.";
  Label5.Caption =
      "2. Direct Entering of Individual Attendance. If you prefer, you can manually enter each "
      "student's attendance.  After you enter a title for the attendance period and a 3 letter "
      "code, you then enter the number of absences for every student.";
  summ.Caption = "Attendance Summary";
  ok.Caption = "OK";
  another.Caption = "&Another";
  Exits.Caption = "E&xit";
  cancel.Caption = "&Cancel";
  Title.MaxLength = static_cast<int>(kLongestText);
  code.MaxLength = kLongestCode;
}

void frmAtsum::Declare(ControlTable& table) {
  table.Add("typpe", typpe);
  table.Add("Summary", Summary).Click([this] { Summary_Click(); });
  table.Add("Hand", Hand).Click([this] { Hand_Click(); });
  table.Add("message", message);
  table.Add("labmessage", labmessage);
  table.Add("labrange", labrange);
  table.Add("Label5", Label5);
  table.Add("summ", summ);
  table.Add("termstart", termstart).Change([this] { PickDate(); });
  table.Add("termend", termend).Change([this] { PickDate(); });
  table.Add("ok", ok).Click([this] { ok_Click(); });
  table.Add("ind", ind);
  table.Add("Title", Title).Change([this] { entered = 1; });
  table.Add("code", code).Change([this] { entered = 1; });
  figures.Declare(table);
  table.Add("another", another).Click([this] { another_Click(); });
  table.Add("Exits", Exits).Click([this] { Exits_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
}

// A day picked that stood there when the days were counted changes nothing.
void frmAtsum::PickDate() {
  const bool counted = termstart.Value == counted_start_ && termend.Value == counted_end_;
  datechanged = counted ? 0 : 1;
}

void frmAtsum::Load() {
  Reopen();
}

void frmAtsum::Reopen() {
  const Class& c = Current();
  const bool has_days = c.NumDays > 0;
  summkind = has_days ? 0 : kDirectSummary;
  entered = datechanged = gridtyped = 0;
  counted_start_ = counted_end_ = 0;
  counted_ = false;
  typpe.Visible = message.Visible = has_days;
  summ.Visible = false;
  ind.Visible = !has_days;
  Summary.Value = false;
  Hand.Value = !has_days;
  if (has_days) {
    termstart.Value = c.AttendanceDays[1].date;
    termend.Value = c.AttendanceDays[static_cast<std::size_t>(c.NumDays)].date;
    for (DTPicker* picker : {&termstart, &termend}) {
      picker->MinDate = termstart.Value;
      picker->MaxDate = termend.Value;
    }
  }
  figures.LayOut(kDirectLabels);
  another.Enabled = false;
  Title.Text.clear();
  code.Text.clear();
  if (has_days)
    SetFocus(Summary);
  else
    SetFocus(Title);
}

void frmAtsum::Hand_Click() {
  Hand.Value = true;
  Summary.Value = false;
  summkind = kDirectSummary;
  message.Visible = summ.Visible = false;
  ind.Visible = true;
  figures.LayOut(kDirectLabels);
  SetFocus(Title);
}

void frmAtsum::Summary_Click() {
  Summary.Value = true;
  Hand.Value = false;
  summkind = kRangeSummary;
  message.Visible = ind.Visible = false;
  summ.Visible = true;
  LayOutRange();
}

void frmAtsum::LayOutRange() {
  counted_ = false;
  Grid1.SetRedraw(false);
  Grid1.Clear();
  Grid1.SetSize(Current().NumStudents + 1, kTotalColumn + 1);
  FillLabels(Grid1, kRangeLabels);
  for (int col = kFirstRangeColumn; col <= kTotalColumn; ++col) {
    Grid1.SetTextMatrix(0, col,
                        kRangeHeads.substr(static_cast<std::size_t>(col - kFirstRangeColumn), 1));
    Grid1.SetColWidth(col, col == kFirstRangeColumn ? kFirstRangeWidth : kRangeWidth);
    Grid1.SetColAlignment(col, ColumnAlign::kRight);
  }
  figures.GoToFirst();
  Grid1.SetRedraw(true);
}

bool frmAtsum::GridKey() {
  gridtyped = kGridTyped;
  another.Enabled = true;
  return summkind == kDirectSummary;
}

void frmAtsum::ok_Click() {
  datechanged = 0;
  counted_start_ = termstart.Value;
  counted_end_ = termend.Value;
  entered = 1;
  counted_ = false;
  if (termend.Value < termstart.Value) {
    ShowMessage("The start date must come befor the end date. Please Correct.", BoxIcon::kCritical);
    return;
  }
  const DayRange range = DaysFromTo(TextOfDate(termstart), TextOfDate(termend));
  for (int i = 1; i <= Current().NumStudents; ++i) {
    const CodeCounts counts = CountDays(Current().Students[static_cast<std::size_t>(i)], range);
    for (const char each : kDailyCodes)
      Grid1.SetTextMatrix(i, ColumnOf(each), PlainNumberText(counts.Of(each)));
    Grid1.SetTextMatrix(i, kTotalColumn, PlainNumberText(counts.Absences()));
  }
  counted_ = true;
  another.Enabled = true;
}

bool frmAtsum::NothingTyped() const {
  return gridtyped == 0 && Title.Text.empty() && code.Text.empty();
}

bool frmAtsum::IsComplete() const {
  return !Title.Text.empty() && !code.Text.empty() && figures.IsFilled();
}

void frmAtsum::another_Click() {
  if (Current().NumSummaries >= kMostSummaries) {
    ShowMessage(kNoMoreSummaries, BoxIcon::kCritical);
    return;
  }
  if (summkind == kDirectSummary) {
    if (NothingTyped()) return;
    if (!IsComplete()) return RemindOfSummary(*this, Title, code, Grid1, figures);
  } else if (!counted_) {
    return;
  }
  StoreSummary();
  Reopen();
  if (Current().NumSummaries < kMostSummaries) return;
  ShowMessage(kNoMoreSummaries, BoxIcon::kCritical);
  Unload();
}

void frmAtsum::StoreSummary() {
  const i16 number = NextRangeNumber();
  AttendanceSummary& summary = AddSummary();
  StoreFigures();
  summary.kind = static_cast<i16>(summkind);
  if (summkind == kRangeSummary) {
    summary.rangenumber = number;
    summary.startdate = TextOfDate(termstart);
    summary.enddate = TextOfDate(termend);
    summary.title = summary.startdate + "- " + summary.enddate;
    summary.code = "A" + PlainNumberText(int{number});
  } else {
    summary.title = Title.Text;
    summary.code = code.Text;
  }
  Current().Changed = kTrue;
  entered = 0;
  ClassWindow().EnableClassMenus(true);
}

void frmAtsum::StoreFigures() {
  const auto k = static_cast<std::size_t>(Current().NumSummaries);
  for (int i = 1; i <= Current().NumStudents; ++i) {
    Student& s = Current().Students[static_cast<std::size_t>(i)];
    s.SummaryAbsent[k] = FixedText<5>(Grid1.TextMatrix(i, kAbsentColumn));
    if (summkind == kDirectSummary) {
      s.SummaryLate[k] = Grid1.TextMatrix(i, kLateColumn);
      s.SummaryDetail[k] = kNewSummaryDetail;
      continue;
    }
    s.SummaryLate[k] = Grid1.TextMatrix(i, ColumnOf('L'));
    std::string detail;
    for (const char each : {'C', 'E', 'S', 'N'})
      detail += std::string(Grid1.TextMatrix(i, ColumnOf(each))) + "/";
    s.SummaryDetail[k] = detail;
  }
}

void frmAtsum::Exits_Click() {
  if (Current().NumSummaries > 0) ClassWindow().EnableClassMenus(true);
  if (summkind == kDirectSummary) {
    if (NothingTyped()) return Unload();
    if (!IsComplete()) return RemindOfSummary(*this, Title, code, Grid1, figures);
  } else if (datechanged == 1) {
    if (Ask("You changed a date but didn't press OK. Do you want to abandon your summary?",
            BoxButtons::kYesNo) != BoxAnswer::kYes)
      return;
    datechanged = entered = 0;
  }
  const bool has_figures = summkind == kDirectSummary || counted_;
  if (entered == 1 && has_figures) StoreSummary();
  ClassWindow().EnableClassMenus(true);
  Unload();
}

bool frmAtsum::NothingToLose() const {
  const bool fields_empty = Title.Text.empty() && code.Text.empty();
  if (summkind == kDirectSummary && fields_empty && !figures.HasBlankRow()) return true;
  return (summkind != kDirectSummary && fields_empty) || entered == 0;
}

void frmAtsum::cancel_Click() {
  if (!NothingToLose() && Ask("Data has been entered. Are you sure you want to CANCEL?",
                              BoxButtons::kYesNo, BoxIcon::kQuestion, "CANCEL") != BoxAnswer::kYes)
    return;
  Unload();
}

}  // namespace tallyroll
