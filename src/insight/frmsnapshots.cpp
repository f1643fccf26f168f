// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/frmsnapshots.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/date_serial.h"
#include "base/number_text.h"
#include "base/text.h"
#include "companion/change_history.h"
#include "companion/save_time.h"
#include "grades/method_reset.h"
#include "insight/chosen_snapshot.h"
#include "insight/told_change.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/change/earlier_state.h"
#include "store/change/same_records.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::string_view kAsItStands = "The class as it stands";
constexpr std::string_view kNotRead = "The snapshots cannot be read: ";

struct SnapshotColumn {
  std::string_view head;
  int width;
};
constexpr std::array kDayColumns = {SnapshotColumn{"Day", 1900}, SnapshotColumn{"Time", 1200},
                                    SnapshotColumn{"What changed", 6800}};
constexpr std::array kDifferenceColumns = {
    SnapshotColumn{"Student", 2600}, SnapshotColumn{"Grade", 2200}, SnapshotColumn{"What", 1400},
    SnapshotColumn{"Then", 2000}, SnapshotColumn{"In the other", 2000}};

template <std::size_t kCount>
void HeadColumns(Grid& grid, const std::array<SnapshotColumn, kCount>& columns, std::size_t rows) {
  grid.FixedCols = grid.LeftCol = 0;
  grid.SetSize(1 + static_cast<int>(rows), static_cast<int>(kCount));
  for (std::size_t i = 0; i < kCount; ++i) {
    grid.SetTextMatrix(0, static_cast<int>(i), columns[i].head);
    grid.SetColWidth(static_cast<int>(i), columns[i].width);
  }
}

// Day 1 was a Sunday.
std::string DayWords(std::string_view time) {
  constexpr std::array kWeekdays = {"Sat", "Sun", "Mon", "Tue", "Wed", "Thu", "Fri"};
  const double day = DayOfSaveTime(time);
  const auto weekday = static_cast<std::size_t>(std::llround(std::fmod(day, 7)));
  return std::string(kWeekdays[weekday % kWeekdays.size()]) + " " +
         DateText(day, Platform().ShortDateOrder());
}

std::string_view TimeOfDay(std::string_view time) {
  return time.substr(std::min(time.size(), time.find(' ') + 1));
}

std::string CountWords(std::size_t count, std::string_view one, std::string_view many) {
  return PlainNumberText(static_cast<std::int64_t>(count)) + std::string(count == 1 ? one : many);
}

// A student by whom a change tells of; kNowhere when nobody or several are.
std::size_t StudentIn(const Class& c, const NamedChange& change) {
  std::size_t found = kNowhere;
  for (std::size_t s = 1; s < c.Students.size(); ++s) {
    const Student& student = c.Students[s];
    const bool same = change.student.empty() ? PlainName(student) == change.name
                                             : Trim(student.id) == change.student;
    if (!same) continue;
    if (found != kNowhere) return kNowhere;
    found = s;
  }
  return found;
}

std::size_t GradeIn(const Class& c, const NamedChange& change) {
  for (std::size_t g = 1; g < c.Instruments.size(); ++g)
    if (Trim(c.Instruments[g].title) == change.grade && Trim(c.Instruments[g].code) == change.code)
      return g;
  return kNowhere;
}

}  // namespace

std::string NameOfSnapshot(const Snapshot& snapshot) {
  return DayWords(snapshot.time) + ", " + std::string(TimeOfDay(snapshot.time));
}

frmsnapshots::frmsnapshots() : Portal("frmsnapshots") {
  Caption = "Snapshots Portal";
  HelpContext = 860;
  with_label.Caption = "&Compare with";
  agreed.Caption = "&Keep the snapshots of this class although it has a password";
  openbeside.Caption = "&Open Beside";
  takeline.Caption = "Take Back &Line";
  takestudent.Caption = "Take Back &Student";
  takegrade.Caption = "Take Back &Grade";
  takeall.Caption = "Take Back &All";
  exit.Caption = "E&xit";
}

void frmsnapshots::Declare(ControlTable& table) {
  const auto compare = [this] { Compare(); };
  table.Add("found", found);
  table.Add("Grid1", Grid1).Change(compare).Click(compare).DblClick([this] { openbeside_Click(); });
  table.Add("with_label", with_label);
  table.Add("with", with).Change(compare);
  table.Add("differs", differs);
  table.Add("Grid2", Grid2).Change([this] { EnableButtons(); }).Click([this] { EnableButtons(); });
  table.Add("agreed", agreed).Change([this] { agreed_Change(); });
  table.Add("openbeside", openbeside).Click([this] { openbeside_Click(); });
  table.Add("takeline", takeline).Click([this] { takeline_Click(); });
  table.Add("takestudent", takestudent).Click([this] { takestudent_Click(); });
  table.Add("takegrade", takegrade).Click([this] { takegrade_Click(); });
  table.Add("takeall", takeall).Click([this] { takeall_Click(); });
  table.Add("exit", exit).Click([this] { Unload(); });
}

void frmsnapshots::Load() {
  agreed.Visible = Current().PasswordSet == 1;
  agreed.Value = agreed.Visible && HistoryAgreed(Current().FileName);
  Fill();
  SetFocus(Grid1);
}

void frmsnapshots::Fill() {
  KeptSnapshots kept = SnapshotsOf(Current().FileName);
  snapshots_ = std::move(kept.snapshots);
  if (!kept.fault.empty())
    found.Caption = std::string(kNotRead) + kept.fault + ".";
  else if (snapshots_.empty())
    found.Caption = "No snapshot is kept yet: they begin with the first save of a change.";
  else
    found.Caption = CountWords(snapshots_.size(), " snapshot", " snapshots") +
                    ", the newest first. All of today and yesterday are kept, then the last of 12 "
                    "days, 10 weeks and 9 months, and of each year.";
  with.List = {std::string(kAsItStands)};
  for (const Snapshot& each : snapshots_) with.List.push_back(NameOfSnapshot(each));
  with.ListIndex = 0;
  with.Text = kAsItStands;
  ShowDays();
  Compare();
}

void frmsnapshots::ShowDays() {
  Grid1.SetRedraw(false);
  HeadColumns(Grid1, kDayColumns, snapshots_.size());
  std::string day;
  int row = 0;
  for (const Snapshot& each : snapshots_) {
    const std::string of_this = DayWords(each.time);
    Grid1.SetTextMatrix(++row, 0, of_this == day ? "" : of_this);
    Grid1.SetTextMatrix(row, 1, TimeOfDay(each.time));
    Grid1.SetTextMatrix(row, 2, each.told);
    day = of_this;
  }
  Grid1.Row = snapshots_.empty() ? 0 : 1;
  Grid1.Col = 0;
  Grid1.TopRow = 1;
  Grid1.SetRedraw(true);
}

const Snapshot* frmsnapshots::Chosen() const {
  const int at = Grid1.Row - 1;
  return at >= 0 && static_cast<std::size_t>(at) < snapshots_.size()
             ? &snapshots_[static_cast<std::size_t>(at)]
             : nullptr;
}

const NamedChange* frmsnapshots::ChosenChange() const {
  const int at = Grid2.Row - 1;
  return at >= 0 && static_cast<std::size_t>(at) < changes_.size()
             ? &changes_[static_cast<std::size_t>(at)]
             : nullptr;
}

void frmsnapshots::Compare() {
  then_.reset();
  changes_.clear();
  differs.Caption.clear();
  if (const Snapshot* const chosen = Chosen()) {
    Class then, other;
    const std::string fault = ReadSnapshot(chosen->number, then);
    const bool with_now = with.ListIndex <= 0;
    const std::string other_fault =
        with_now
            ? std::string()
            : ReadSnapshot(snapshots_[static_cast<std::size_t>(with.ListIndex) - 1].number, other);
    if (fault.empty() && other_fault.empty()) {
      changes_ = ChangesBetween(then, with_now ? Current() : other);
      differs.Caption = CountWords(changes_.size(), " difference.", " differences.");
    } else {
      differs.Caption = std::string(kNotRead) + (fault.empty() ? other_fault : fault) + ".";
    }
    if (fault.empty()) then_ = std::move(then);
  }
  ShowDifferences();
  EnableButtons();
}

void frmsnapshots::ShowDifferences() {
  Grid2.SetRedraw(false);
  HeadColumns(Grid2, kDifferenceColumns, changes_.size());
  if (with.ListIndex <= 0) Grid2.SetTextMatrix(0, 4, "Now");
  int row = 0;
  for (const NamedChange& change : changes_) {
    ++row;
    const std::array<std::string_view, kDifferenceColumns.size()> cells = {
        change.name, change.grade, WordsOfField(change.field), change.before, change.after};
    for (std::size_t i = 0; i < cells.size(); ++i)
      Grid2.SetTextMatrix(row, static_cast<int>(i), cells[i]);
  }
  Grid2.Row = changes_.empty() ? 0 : 1;
  Grid2.Col = 0;
  Grid2.TopRow = 1;
  Grid2.SetRedraw(true);
}

// A line alone is taken back where it tells of the class as it stands.
void frmsnapshots::EnableButtons() {
  const NamedChange* const change = ChosenChange();
  openbeside.Enabled = takeall.Enabled = then_.has_value();
  const bool of_record = change && (change->field == kStudentField || change->field == kGradeField);
  takeline.Enabled = change && with.ListIndex <= 0 && !change->name.empty() && !of_record;
  takestudent.Enabled = change && then_ && StudentIn(*then_, *change) != kNowhere;
  takegrade.Enabled =
      change && then_ && !change->grade.empty() && GradeIn(*then_, *change) != kNowhere;
}

void frmsnapshots::openbeside_Click() {
  const Snapshot* const chosen = Chosen();
  if (!chosen || !then_) return;
  ChosenSnapshot = {
      Current().FileName, *chosen,
      with.ListIndex <= 0 ? 0 : snapshots_[static_cast<std::size_t>(with.ListIndex) - 1].number};
  Unload();
}

void frmsnapshots::Taken(const std::string& refused, const std::string& told) {
  if (!refused.empty()) return (void)ShowMessage(refused);
  Current().Changed = kTrue;
  ClassWindow().showform3();
  const int row = Grid2.Row;
  Compare();
  Grid2.Row = std::min(row, static_cast<int>(changes_.size()));
  EnableButtons();
  differs.Caption = told + " " + differs.Caption;
}

void frmsnapshots::takeline_Click() {
  const NamedChange* const change = ChosenChange();
  if (!change) return;
  const NamedChange taken = *change;
  const std::string what(taken.grade.empty() ? WordsOfField(taken.field)
                                             : std::string_view(taken.grade));
  Taken(TakeBackChange(taken), what + " of " + taken.name + " is \"" + taken.before + "\" again.");
}

void frmsnapshots::takestudent_Click() {
  const NamedChange* const change = ChosenChange();
  if (!change || !then_) return;
  const std::string name = change->name;
  const std::size_t student = StudentIn(*then_, *change);
  if (student == kNowhere) return;
  Taken(TakeBackStudent(*then_, student, Current()), name + " is as on that day.");
}

// A grade that comes back, or whose type was another one, may need weights anew.
void frmsnapshots::takegrade_Click() {
  const NamedChange* const change = ChosenChange();
  if (!change || !then_) return;
  const std::string title = change->grade;
  const std::size_t grade = GradeIn(*then_, *change);
  if (grade == kNowhere) return;
  const std::string type = then_->Instruments[grade].typecode;
  const std::size_t now = GradeIn(Current(), *change);
  const std::string type_now = now == kNowhere ? "" : Current().Instruments[now].typecode;
  const bool in_use = TypeInUse(type, static_cast<int>(now));
  const bool left_in_use = now != kNowhere && TypeInUse(type_now, static_cast<int>(now));
  const std::string refused = TakeBackGrade(*then_, grade, Current());
  if (refused.empty() && now == kNowhere) GradeAdded(in_use);
  if (refused.empty() && now != kNowhere && Trim(type) != Trim(type_now))
    GradeTypeChanged(in_use && left_in_use);
  Taken(refused, title + " is as on that day.");
}

void frmsnapshots::takeall_Click() {
  const Snapshot* const chosen = Chosen();
  if (!chosen) return;
  const SnapshotBytes kept = BytesOfSnapshot(Current().FileName, chosen->number);
  if (!kept.fault.empty()) return (void)ShowMessage(std::string(kNotRead) + kept.fault + ".");
  if (const int error = PutState(kept.bytes); error != 0)
    return (void)ShowMessage("File Error: " + PlainNumberText(error), BoxIcon::kExclamation);
  Taken({}, "The class is as on that day.");
}

void frmsnapshots::agreed_Change() {
  const std::string fault = AgreeToHistory(Current().FileName, agreed.Value);
  if (fault.empty()) return;
  agreed.Value = !agreed.Value;
  ShowMessage("The snapshots of this class are not kept: " + fault + ".", BoxIcon::kCritical);
}

}  // namespace tallyroll
