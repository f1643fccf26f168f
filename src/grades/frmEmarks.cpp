// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmEmarks.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "grades/method_reset.h"
#include "grades/student_grid.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr i16 kClean = 1;
constexpr i16 kRequiredEmpty = 2;
constexpr i16 kScoreRefused = 3;
constexpr int kLongestCode = 3;

// A field is shown without the blanks that a file pads it with; one that nobody edited keeps them.
void Keep(std::string_view typed, std::string& field) {
  if (typed != TrimRight(field)) field = typed;
}

}  // namespace

frmEmarks::frmEmarks() : GradeForm("frmEmarks") {
  Caption = "Edit Grades by Title Portal";
  HelpContext = 310;
  Exitt.Caption = "E&xit";
  cancel.Caption = "&Cancel";
}

void frmEmarks::Declare(ControlTable& table) {
  table.Add("list1", list1).Change([this] { list1_Change(); }).Click([this] { list1_Click(); });
  table.Add("fields", fields);
  DeclareHeader(table, "Title");
  table.Add("tempdate", tempdate);
  DeclareMarks(table);
  table.Add("Exitt", Exitt).Click([this] { Exitt_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
  live.Follow(table);
}

void frmEmarks::Load() {
  const Class& c = Current();
  for (int i = 1; i <= GradeCount(c); ++i)
    list1.List.emplace_back(Trim(c.Instruments[static_cast<std::size_t>(i)].title));
  FillTypeList();
  ChooseType(0);
  FillStudentGrid(Grid1);
  testdate.Value = std::floor(Platform().Now());
  tempdate.Visible = false;
  const bool chosen = CurrentStudent >= 1 && CurrentStudent <= GradeCount(c);
  EnableFields(chosen);
  if (!chosen) return SetFocus(list1);
  list1.ListIndex = CurrentStudent - 1;
  makefields();
  GoToStudent(OpenState);
  SetFocus(Grid1);
}

// In view with his neighbour above, so that a slip of one row is seen.
void frmEmarks::GoToStudent(int student) {
  if (student < 1 || student > Current().NumStudents) return;
  marks.StartAt(student);
  Grid1.TopRow = std::max(Grid1.FixedRows, student - 1);
}

void frmEmarks::EnableFields(bool on) {
  fields.Current = on ? 1 : 0;
  for (TextBox* box : {&title, &code, &mvalue, &dropyn, &lowpass}) box->Enabled = on;
  testdate.Enabled = ttypelist.Enabled = on;
  marks.Enable(on);
  live.StartOver();
}

Instrument& frmEmarks::Shown() {
  return Current().Instruments[static_cast<std::size_t>(shown_)];
}

// The fields of the Instrument CurrentStudent.
void frmEmarks::makefields() {
  shown_ = CurrentStudent;
  const Class& c = Current();
  const Instrument& grade = Shown();
  title.Text = TrimRight(grade.title);
  code.Text = TrimRight(grade.code);
  code.MaxLength = std::max(kLongestCode, static_cast<int>(code.Text.size()));
  mvalue.Text = PlainNumberText(grade.mvalue);
  dropyn.Text = TrimRight(grade.dropyn);
  lowpass.Text = TrimRight(grade.lowpass);
  const auto date = DateFromText(grade.testdate, Platform().ShortDateOrder());
  if (date) testdate.Value = *date;
  tempdate.Caption = grade.testdate;
  tempdate.Visible = !date;
  ChooseType(TypeOfCode(grade.typecode));
  for (int i = 1; i < Grid1.Rows(); ++i)
    SetMarkCell(i, MarkOf(c.Students[static_cast<std::size_t>(i)], shown_));
  marks.StartOver();
  EnableFields(true);
  DatePicked = DataChanged = false;
}

void frmEmarks::HeaderChanged() {
  DataChanged = true;
  if (DatePicked) tempdate.Visible = false;
}

// The list already shows the line that was picked: it goes back when the shown grade is refused.
void frmEmarks::list1_Change() {
  const int picked = list1.ListIndex + 1;
  if (picked < 1 || picked == shown_) return;
  if (DataChanged) {
    if (!Check()) {
      list1.ListIndex = shown_ - 1;
      refused_ = true;
      return;
    }
    Store();
  }
  CurrentStudent = static_cast<i16>(picked);
  makefields();
}

// Comes after a change as well. Keys walk through the titles without it.
void frmEmarks::list1_Click() {
  list1_Change();
  // A refused pick leads to the field that is to be mended.
  if (!std::exchange(refused_, false) && shown_ > 0) SetFocus(Grid1);
}

bool frmEmarks::Check() {
  Mode = kClean;
  if (RequiredEmpty()) {
    Mode = kRequiredEmpty;
    Remind();
  } else if (const auto score = CheckMaximumScore(" Note To The Teacher")) {
    maximum_score_ = *score;
  } else {
    Mode = kScoreRefused;
  }
  return Mode == kClean;
}

// A type that comes into use or goes out of it needs weights of its own.
void frmEmarks::checknew() {
  const std::string_view before = Shown().typecode;
  const std::string after = ChosenTypecode();
  if (Trim(before) == Trim(after)) return;
  GradeTypeChanged(TypeInUse(after, shown_) && TypeInUse(before, shown_));
}

void frmEmarks::Store() {
  // A code that belongs to no type stays until a type is chosen for it.
  const bool has_type = ttypelist.ListIndex >= 0;
  if (has_type) checknew();
  Class& c = Current();
  for (int i = 1; i < Grid1.Rows(); ++i) {
    List<ShortText>& row = c.Students[static_cast<std::size_t>(i)].Marks;
    if (shown_ > UpperBound(row)) ReDimPreserve(row, c.NumInstruments, ShortText(kNewMark));
    ShortText& mark = row[static_cast<std::size_t>(shown_)];
    if (MarkCell(i) != ShownMark(mark)) mark = MarkCell(i);
  }
  Instrument& grade = Shown();
  Keep(title.Text, grade.title);
  Keep(code.Text, grade.code);
  grade.mvalue = maximum_score_;
  Keep(TrimRight(dropyn.Text), grade.dropyn);
  if (DatePicked) grade.testdate = DateTextOfPicker();
  Keep(lowpass.Text, grade.lowpass);
  const std::string typecode = ChosenTypecode();
  if (has_type && Trim(typecode) != Trim(grade.typecode)) grade.typecode = typecode;
  c.Changed = kTrue;
  DataChanged = false;
  live.TellDoubts();
  list1.List[static_cast<std::size_t>(shown_) - 1] = Trim(grade.title);
}

void frmEmarks::Exitt_Click() {
  const bool empty = title.Text.empty() && code.Text.empty() && mvalue.Text.empty() &&
                     dropyn.Text.empty() && EveryMarkEmpty();
  if (empty) return Unload();
  if (!Check()) {
    Mode = kClean;
    return;
  }
  if (DataChanged) Store();
  Unload();
}

void frmEmarks::cancel_Click() {
  if (DataChanged && Ask("Data has been entered. Are you sure you want to CANCEL?",
                         BoxButtons::kYesNo, BoxIcon::kQuestion, "CANCEL") != BoxAnswer::kYes)
    return;
  Unload();
}

}  // namespace tallyroll
