// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/student_screen.h"

#include "averages/portals/type_grid.h"
#include "base/text.h"
#include "grades/mark_notes.h"
#include "grades/marks.h"
#include "store/class_format.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr int kMarkColumn = 2;
constexpr int kFirstDetail = 3;
constexpr int kAttendanceColumns = 7;

const Student& StudentOnScreen() {
  return Current().Students[static_cast<std::size_t>(CurrentStudent)];
}

template <typename Item>
std::string_view ItemOrNone(const List<Item>& list, int i) {
  const auto index = static_cast<std::size_t>(i);
  return index < list.size() ? Trim(std::string_view(list[index])) : std::string_view();
}

}  // namespace

StudentScreen::StudentScreen(std::string_view name, ListBox& students,
                             std::string_view code_heading)
    : Portal(name), students_(students), code_heading_(code_heading) {
  exit.Caption = "E&xit";
  grdgrade.Notes.Of = [this](int row, int col) {
    if (row < 1 || col != kMarkColumn) return CellNote();
    const Instrument& grade = Current().Instruments[static_cast<std::size_t>(row)];
    return NoteOfMark(grdgrade.TextMatrix(row, col), BoundsOf(grade));
  };
}

// A list that gets the focus may stand on its first line before anything is chosen.
void StudentScreen::DeclareList(ControlTable& table, std::string_view name) {
  const auto pick = [this] {
    const int picked = students_.ListIndex + 1;
    if (picked >= 1 && picked != CurrentStudent) Show(picked);
  };
  table.Add(name, students_).Change(pick).Click(pick);
}

void StudentScreen::DeclareRecord(ControlTable& table) {
  table.Add("studentid", studentid);
  table.Add("grdgrade", grdgrade);
  table.Add("grdatt", grdatt);
  table.Add("comments", comments).Change([] { Current().Changed = kTrue; });
}

void StudentScreen::Load() {
  CurrentStudent = 0;
  const Class& c = Current();
  for (int i = 1; i <= c.NumStudents; ++i)
    students_.List.push_back(StudentListLine(c.Students[static_cast<std::size_t>(i)]));
  comments.MaxLength = static_cast<int>(kLongestText);
  comments.Enabled = false;
  grdgrade.SetSize(1 + GradeCount(c), 3);
  HeadColumns(grdgrade, {"  TITLES", code_heading_, "GR."});
  grdgrade.FixedCols = grdgrade.Col = kMarkColumn;
  grdatt.SetSize(1 + c.NumSummaries, kAttendanceColumns);
  HeadColumns(grdatt, {"Code", "  Att", "Late", "CUT", "EXC", "SPA", "NOTE"});
  for (int col = 0; col < kAttendanceColumns; ++col) grdatt.SetColWidth(col, 750);
  grdatt.SetColAlignment(1, ColumnAlign::kRight);
  SetFocus(students_);
}

void StudentScreen::Show(int student) {
  StoreComment();
  CurrentStudent = static_cast<i16>(student);
  students_.ListIndex = student - 1;
  comments.Enabled = true;
  comments.Text = StudentOnScreen().comments;
  studentid.Caption = Trim(StudentOnScreen().id);
  FillGrades();
  FillAttendance();
  ShowMore();
}

void StudentScreen::StoreComment() {
  if (CurrentStudent < 1 || CurrentStudent > Current().NumStudents) return;
  Current().Students[static_cast<std::size_t>(CurrentStudent)].comments = comments.Text;
}

void StudentScreen::FillGrades() {
  const Class& c = Current();
  for (int i = 1; i <= GradeCount(c); ++i) {
    const Instrument& grade = c.Instruments[static_cast<std::size_t>(i)];
    grdgrade.SetTextMatrix(i, 0, Trim(grade.title));
    grdgrade.SetTextMatrix(i, 1, Trim(grade.code));
    grdgrade.SetTextMatrix(i, kMarkColumn, Trim(MarkOf(StudentOnScreen(), i)));
  }
}

void StudentScreen::FillAttendance() {
  const Class& c = Current();
  for (int i = 1; i <= c.NumSummaries; ++i) {
    grdatt.SetTextMatrix(i, 0, Trim(c.Summaries[static_cast<std::size_t>(i)].code));
    grdatt.SetTextMatrix(i, 1, ItemOrNone(StudentOnScreen().SummaryAbsent, i));
    grdatt.SetTextMatrix(i, 2, ItemOrNone(StudentOnScreen().SummaryLate, i));
    std::string_view detail = ItemOrNone(StudentOnScreen().SummaryDetail, i);
    for (int col = kFirstDetail; col < kAttendanceColumns; ++col) {
      const std::size_t end = detail.find('/');
      grdatt.SetTextMatrix(i, col, Trim(detail.substr(0, end)));
      detail.remove_prefix(end == std::string_view::npos ? detail.size() : end + 1);
    }
  }
}

void StudentScreen::ShowNext() {
  if (CurrentStudent < Current().NumStudents) Show(CurrentStudent + 1);
}

void StudentScreen::ShowPrevious() {
  if (CurrentStudent > 1) Show(CurrentStudent - 1);
}

void StudentScreen::exit_Click() {
  StoreComment();
  Leave();
}

}  // namespace tallyroll
