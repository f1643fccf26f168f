// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/frmhistory.h"

#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "insight/told_change.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::string_view kAllStudents = "All students", kAllGrades = "All grades";

struct HistoryColumn {
  std::string_view head;
  int width;
};
constexpr std::array kHistoryColumns = {
    HistoryColumn{"When", 2200}, HistoryColumn{"Student", 2600}, HistoryColumn{"Grade", 2200},
    HistoryColumn{"What", 1400}, HistoryColumn{"Before", 2000},  HistoryColumn{"After", 2000}};

}  // namespace

frmhistory::frmhistory() : Portal("frmhistory") {
  Caption = "History Portal";
  HelpContext = 840;
  student_label.Caption = "&Student";
  grade_label.Caption = "&Grade";
  agreed.Caption = "&Keep the history of this class although it has a password";
  takeback.Caption = "&Take Back";
  exit.Caption = "E&xit";
}

void frmhistory::Declare(ControlTable& table) {
  table.Add("student_label", student_label);
  table.Add("students", students).Change([this] { Fill(); });
  table.Add("grade_label", grade_label);
  table.Add("grades", grades).Change([this] { Fill(); });
  table.Add("found", found);
  table.Add("Grid1", Grid1);
  table.Add("agreed", agreed).Change([this] { agreed_Change(); });
  table.Add("takeback", takeback).Click([this] { takeback_Click(); });
  table.Add("exit", exit).Click([this] { Unload(); });
}

void frmhistory::Load() {
  const int wanted = OpenState == kHistoryOfStudent ? CurrentStudent : 0;
  students.List = {std::string(kAllStudents)};
  for (int s = 1; s <= Current().NumStudents; ++s)
    students.List.push_back(PlainName(Current().Students[static_cast<std::size_t>(s)]));
  grades.List = {std::string(kAllGrades)};
  for (int g = 1; g <= GradeCount(Current()); ++g)
    grades.List.emplace_back(Trim(Current().Instruments[static_cast<std::size_t>(g)].title));
  students.ListIndex = wanted >= 1 && wanted <= Current().NumStudents ? wanted : 0;
  grades.ListIndex = 0;
  agreed.Visible = Current().PasswordSet == 1;
  agreed.Value = agreed.Visible && HistoryAgreed(Current().FileName);
  Fill();
  SetFocus(Grid1);
}

void frmhistory::Fill() {
  const Class& c = Current();
  ChangeFilter filter;
  if (students.ListIndex > 0) {
    const Student& student = c.Students[static_cast<std::size_t>(students.ListIndex)];
    filter.student = Trim(student.id);
    if (filter.student.empty()) filter.name = PlainName(student);
  }
  if (grades.ListIndex > 0)
    filter.grade = Trim(c.Instruments[static_cast<std::size_t>(grades.ListIndex)].title);
  KeptChanges kept = ChangesKept(c.FileName, filter);
  lines_ = std::move(kept.changes);
  students.Text = students.List[static_cast<std::size_t>(std::max(students.ListIndex, 0))];
  grades.Text = grades.List[static_cast<std::size_t>(std::max(grades.ListIndex, 0))];
  if (!kept.fault.empty())
    found.Caption = "The history cannot be read: " + kept.fault + ".";
  else if (lines_.empty())
    found.Caption = "Nothing is kept here: the history begins with the first save of a change.";
  else
    found.Caption = PlainNumberText(static_cast<std::int64_t>(lines_.size())) +
                    (lines_.size() == 1 ? " change" : " changes") + ", the newest first.";
  ShowLines();
}

void frmhistory::ShowLines() {
  Grid1.FixedCols = Grid1.LeftCol = 0;
  Grid1.SetRedraw(false);
  Grid1.SetSize(1 + static_cast<int>(lines_.size()), static_cast<int>(kHistoryColumns.size()));
  for (std::size_t i = 0; i < kHistoryColumns.size(); ++i) {
    Grid1.SetTextMatrix(0, static_cast<int>(i), kHistoryColumns[i].head);
    Grid1.SetColWidth(static_cast<int>(i), kHistoryColumns[i].width);
  }
  int row = 0;
  for (const KeptChange& line : lines_) {
    ++row;
    const NamedChange& change = line.change;
    const std::array<std::string_view, kHistoryColumns.size()> cells = {
        line.time,     change.name, change.grade, WordsOfField(change.field),
        change.before, change.after};
    for (std::size_t i = 0; i < cells.size(); ++i)
      Grid1.SetTextMatrix(row, static_cast<int>(i), cells[i]);
  }
  Grid1.Row = lines_.empty() ? 0 : 1;
  Grid1.Col = 0;
  Grid1.TopRow = 1;
  Grid1.SetRedraw(true);
  takeback.Enabled = !lines_.empty();
}

void frmhistory::takeback_Click() {
  const int at = Grid1.Row - 1;
  if (at < 0 || static_cast<std::size_t>(at) >= lines_.size()) return;
  const NamedChange& change = lines_[static_cast<std::size_t>(at)].change;
  if (const std::string why = TakeBackChange(change); !why.empty()) return (void)ShowMessage(why);
  Current().Changed = kTrue;
  const std::string what(change.grade.empty() ? WordsOfField(change.field)
                                              : std::string_view(change.grade));
  found.Caption = what + " of " + change.name + " is \"" + change.before + "\" again.";
  ClassWindow().showform3();
}

void frmhistory::agreed_Change() {
  const std::string fault = AgreeToHistory(Current().FileName, agreed.Value);
  if (fault.empty()) return;
  agreed.Value = !agreed.Value;
  ShowMessage("The history of this class is not kept: " + fault + ".", BoxIcon::kCritical);
}

}  // namespace tallyroll
