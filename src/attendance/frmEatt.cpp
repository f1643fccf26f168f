// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/frmEatt.h"

#include <algorithm>

#include "attendance/summary_periods.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/class_defaults.h"
#include "store/class_format.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

using Holds = LabelColumn::Holds;

constexpr int kLongestDayCode = 3;
constexpr int kNameWidth = 3125, kDayIdWidth = 1440;

constexpr LabelTable kDayLabels = {{
    {{{Holds::kId, "      ID ", kDayIdWidth}, {}}},
    {{{Holds::kId, "ID ", kDayIdWidth}, {Holds::kName, "NAME ", kNameWidth}}},
    {{{Holds::kName, "NAME", kNameWidth}, {Holds::kId, "ID", kDayIdWidth}}},
    {{{Holds::kName, "     NAME", kNameWidth}, {}}},
}};

}  // namespace

frmEatt::frmEatt() : Portal("frmEatt"), figures(Grid1, [this] { return GridKey(); }) {
  Caption = "Edit  Summary Attendance Portal";
  HelpContext = 390;
  calmess.Caption = "Note to the Teacher";
  Label4.Caption =
      "You can only edit the title and 3 letter codes for calculated attendance at this Portal.";
  exit.Caption = "E&xit";
  cancel.Caption = "&Cancel";
  Title.MaxLength = static_cast<int>(kLongestText);
  code.MaxLength = kLongestDayCode;
  Title.Enabled = code.Enabled = false;
  calmess.Visible = false;
}

void frmEatt::Declare(ControlTable& table) {
  table.Add("list1", list1).Change([this] { list1_Change(); }).GotFocus([this] {
    list1_GotFocus();
  });
  table.Add("Title", Title).Change([this] { edited = true; });
  table.Add("code", code).Change([this] { edited = true; });
  figures.Declare(table);
  table.Add("calmess", calmess);
  table.Add("Label4", Label4);
  table.Add("exit", exit).Click([this] { exit_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
}

void frmEatt::Load() {
  FillList();
  figures.LayOut(kDayLabels);
  SetFocus(list1);
}

AttendanceSummary& frmEatt::Shown() {
  return Current().Summaries[static_cast<std::size_t>(shown_)];
}

void frmEatt::FillList() {
  const Class& c = Current();
  list1.List.clear();
  for (int k = 1; k <= c.NumSummaries; ++k) {
    const AttendanceSummary& summary = c.Summaries[static_cast<std::size_t>(k)];
    list1.List.push_back(std::string(Trim(summary.title)) +
                         (summary.kind == kRangeSummary ? " Calculated" : ""));
  }
}

bool frmEatt::GridKey() {
  if (shown_ == 0 || Shown().kind == kRangeSummary) return false;
  edited = true;
  return true;
}

// The list already shows the line that was picked: it goes back when the shown period is refused.
void frmEatt::list1_Change() {
  const int picked = list1.ListIndex + 1;
  if (picked < 1 || picked == shown_) return;
  if (Awaits() && !CheckAndStore()) {
    list1.ListIndex = shown_ - 1;
    return;
  }
  ShowSummary(picked);
}

void frmEatt::list1_GotFocus() {
  if (Awaits()) CheckAndStore();
}

void frmEatt::ShowSummary(int index) {
  const auto k = static_cast<std::size_t>(index);
  shown_ = index;
  Title.Enabled = code.Enabled = true;
  Title.Text = TrimRight(Shown().title);
  code.Text = TrimRight(Shown().code);
  code.MaxLength = std::max(kLongestDayCode, static_cast<int>(code.Text.size()));
  for (int i = 1; i <= Current().NumStudents; ++i) {
    const Student& s = Current().Students[static_cast<std::size_t>(i)];
    Grid1.SetTextMatrix(i, kAbsentColumn,
                        k < s.SummaryAbsent.size() ? Trim(s.SummaryAbsent[k]) : "");
    Grid1.SetTextMatrix(i, kLateColumn, k < s.SummaryLate.size() ? Trim(s.SummaryLate[k]) : "");
  }
  figures.GoToFirst();
  calmess.Visible = Shown().kind == kRangeSummary;
  edited = check_failed = false;
}

// The figures of a range are the program's.
bool frmEatt::IsComplete() {
  return !Title.Text.empty() && !code.Text.empty() &&
         (Shown().kind == kRangeSummary || figures.IsFilled());
}

bool frmEatt::CheckAndStore() {
  check_failed = !IsComplete();
  if (check_failed) {
    RemindOfSummary(*this, Title, code, Grid1, figures);
    return false;
  }
  Store();
  return true;
}

void frmEatt::Store() {
  Class& c = Current();
  const auto k = static_cast<std::size_t>(shown_);
  for (int i = 1; Shown().kind != kRangeSummary && i <= c.NumStudents; ++i) {
    Student& s = c.Students[static_cast<std::size_t>(i)];
    MakeRoomForSummaries(s);
    s.SummaryAbsent[k] = FixedText<5>(Grid1.TextMatrix(i, kAbsentColumn));
    s.SummaryLate[k] = Grid1.TextMatrix(i, kLateColumn);
    s.SummaryDetail[k] = kNewSummaryDetail;
  }
  Shown().title = Title.Text;
  Shown().code = code.Text;
  c.Changed = kTrue;
  edited = false;
  FillList();
}

void frmEatt::exit_Click() {
  if (shown_ > 0 && !CheckAndStore()) return;
  Unload();
}

void frmEatt::cancel_Click() {
  if (edited && Ask("Data has been entered. Are you sure you want to CANCEL?", BoxButtons::kYesNo,
                    BoxIcon::kQuestion, "CANCEL") != BoxAnswer::kYes)
    return;
  Unload();
}

}  // namespace tallyroll
