// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmMgrade.h"

#include <array>

#include "base/text.h"
#include "grades/mark_notes.h"
#include "grades/marks.h"
#include "platform/class_window.h"
#include "store/class_format.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

struct Column {
  std::string_view title;
  int width;
};
constexpr std::array kColumns = {Column{"  TITLES", 3360}, Column{"CODE", 900},
                                 Column{"DATE", 1440}, Column{"GR.", 1100}};

std::string StudentLine(const Student& student) {
  const std::string id(Trim(student.id));
  switch (NameMode) {
    case 68:
      return PlainName(student) + "\t" + id;
    case 73:
      return id + " ";
    case 82:
      return id + " \t" + PlainName(student);
    default:
      return PlainName(student);
  }
}

int MissingOf(const Student& student) {
  int missing = 0;
  for (int i = 1; i <= GradeCount(Current()); ++i) missing += IsMissing(Trim(MarkOf(student, i)));
  return missing;
}

void FillMissing(Grid& grid, const Student& student) {
  const Class& c = Current();
  grid.SetRedraw(false);
  grid.SetSize(1, static_cast<int>(kColumns.size()));
  for (int i = 1; i <= GradeCount(c); ++i) {
    const std::string_view mark = Trim(MarkOf(student, i));
    if (!IsMissing(mark)) continue;
    const Instrument& grade = c.Instruments[static_cast<std::size_t>(i)];
    const int row = grid.Rows();
    grid.SetSize(row + 1, grid.Cols());
    grid.SetTextMatrix(row, 0, Trim(grade.title));
    grid.SetTextMatrix(row, 1, Trim(grade.code));
    grid.SetTextMatrix(row, 2, Trim(grade.testdate));
    grid.SetTextMatrix(row, 3, mark);
  }
  grid.Row = grid.TopRow = 1;
  grid.Col = 0;
  grid.SetRedraw(true);
}

}  // namespace

frmMgrade::frmMgrade() : Portal("frmMgrade") {
  Caption = "Missing Grades Portal";
  HelpContext = 360;
  comments.MaxLength = kLongestText;
  mnuprevious.Caption = "&Previous";
  mnunextt.Caption = "&Next";
  mnuexit.Caption = "E&xit";
  grdgrade.Notes.Of = [this](int row, int col) {
    return row < 1 || col + 1 < grdgrade.Cols() ? CellNote()
                                                : NoteOfMark(grdgrade.TextMatrix(row, col), {});
  };
}

void frmMgrade::Declare(ControlTable& table) {
  table.Add("mnuprevious", mnuprevious).Click([this] { mnuprevious_Click(); });
  table.Add("mnunextt", mnunextt).Click([this] { mnunextt_Click(); });
  table.Add("mnuexit", mnuexit).Click([this] { mnuexit_Click(); });
  table.Add("list1", list1).Change([this] { list1_Change(); }).Click([this] { list1_Change(); });
  table.Add("grdgrade", grdgrade);
  table.Add("comments", comments).Change([this] { comments_Change(); });
}

void frmMgrade::Load() {
  const Class& c = Current();
  for (int i = 1; i <= c.NumStudents; ++i) {
    const Student& student = c.Students[static_cast<std::size_t>(i)];
    list1.List.push_back(StudentLine(student));
    list1.Counts.push_back(MissingOf(student));
  }
  grdgrade.SetSize(1, static_cast<int>(kColumns.size()));
  grdgrade.FixedRows = 1;
  grdgrade.FixedCols = grdgrade.LeftCol = 0;
  for (int col = 0; col < grdgrade.Cols(); ++col) {
    const Column& column = kColumns[static_cast<std::size_t>(col)];
    grdgrade.SetTextMatrix(0, col, column.title);
    grdgrade.SetColWidth(col, column.width);
  }
  grdgrade.SetColAlignment(grdgrade.Cols() - 1, ColumnAlign::kRight);
  comments.Enabled = c.NumStudents > 0;
  SetFocus(list1);
  Show(1);
}

// A student beyond the class leaves the one that is shown.
void frmMgrade::Show(int student) {
  if (student < 1 || student > Current().NumStudents) return;
  KeepComments();
  shown_ = student;
  list1.ListIndex = student - 1;
  const Student& record = Current().Students[static_cast<std::size_t>(student)];
  FillMissing(grdgrade, record);
  comments.Text = record.comments;
  comments.SelStart = comments.SelLength = 0;
}

void frmMgrade::KeepComments() {
  if (commented_) Current().Students[static_cast<std::size_t>(shown_)].comments = comments.Text;
  commented_ = false;
}

void frmMgrade::list1_Change() {
  if (list1.ListIndex + 1 != shown_) Show(list1.ListIndex + 1);
}

void frmMgrade::comments_Change() {
  commented_ = true;
  Current().Changed = kTrue;
}

void frmMgrade::mnuprevious_Click() {
  Show(shown_ - 1);
}

void frmMgrade::mnunextt_Click() {
  Show(shown_ + 1);
}

void frmMgrade::mnuexit_Click() {
  KeepComments();
  ClassWindow().showform3();
  Unload();
}

}  // namespace tallyroll
