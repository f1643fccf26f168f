// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmMarks.h"

#include <cmath>
#include <initializer_list>

#include "base/number_text.h"
#include "base/text.h"
#include "grades/grade_types.h"
#include "grades/marks.h"
#include "grades/method_reset.h"
#include "grades/student_grid.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/class_defaults.h"
#include "store/class_format.h"
#include "store/clipboard_boxes.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kUsualScore = "100";
constexpr std::string_view kUsualPass = "65";

}  // namespace

frmMarks::frmMarks() : GradeForm("frmMarks") {
  Caption = "Enter  Grades  Portal";
  HelpContext = 300;
  specialframe.Caption = "Special  Grade  Function Keys";
  clipframe.Caption = "Clip Board   (Title)";
  fillframe.Caption = "Fill all EMPTY cells with";
  Option1.Caption = "Fill with ABS";
  Option2.Caption = "Fill with CUT";
  Option3.Caption = "Fill with NON";
  Option4.Caption = "Fill with EXC";
  Option5.Caption = "Fill with a Value";
  Command5.Caption = "&OK";
  Command6.Caption = "&Cancel";
  copy.Caption = "Copy &To";
  paste.Caption = "Paste &From";
  pastegrade.Caption = "Transfer &Grade from Clipboard";
  fill.Caption = "Fi&ll";
  another.Caption = "&Another";
  exit.Caption = "E&xit";
  cancel.Caption = "&Cancel";
  fillframe.Visible = false;
}

void frmMarks::Declare(ControlTable& table) {
  table.Add("headerframe", headerframe);
  DeclareHeader(table, "title");
  table.Add("actions", actions);
  table.Add("feet", feet);
  table.Add("specialframe", specialframe);
  table.Add("clipframe", clipframe);
  table.Add("fillframe", fillframe);
  DeclareMarks(table);
  table.Add("copy", copy).Click([this] { copy_Click(); });
  table.Add("paste", paste).Click([this] { paste_Click(); });
  table.Add("pastegrade", pastegrade).Click([this] { pastegrade_Click(); });
  table.Add("fill", fill).Click([this] { fill_Click(); });
  table.Add("another", another).Click([this] { another_Click(); });
  table.Add("exit", exit).Click([this] { exit_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
  const auto option = [&](std::string_view name, OptionButton& button, bool takes_text) {
    table.Add(name, button)
        .Click([this, takes_text] { Text1.Enabled = takes_text; })
        .KeyDown([this](Key key) { return FillByEnter(key); });
  };
  option("Option1", Option1, false);
  option("Option2", Option2, false);
  option("Option3", Option3, false);
  option("Option4", Option4, false);
  option("Option5", Option5, true);
  table.Add("Text1", Text1).KeyDown([this](Key key) { return FillByEnter(key); });
  table.Add("Command5", Command5).Click([this] { Command5_Click(); });
  table.Add("Command6", Command6).Click([this] { Command6_Click(); });
  live.Follow(table);
}

void frmMarks::Load() {
  if (OpenState == kGradesById || OpenState == kGradesByName) {
    imported_ = ReadGradeImport(OpenState);
    if (imported_.cancelled) return Unload();
    next_import_ = imported_.columns.begin();
    TellImport();
    TellNoGrades();
  }
  StartOver();
}

void frmMarks::StartOver() {
  const std::string clipboard = Platform().ClipboardText();
  paste.Enabled = HoldsHeader(clipboard);
  pastegrade.Enabled = grade_waits_ = HoldsGrade(clipboard);
  FillTypeList();
  ChooseType(1);
  FillStudentGrid(Grid1);
  marks.StartOver();
  title.Text.clear();
  code.Text.clear();
  mvalue.Text = kUsualScore;
  dropyn.Text = "N";
  testdate.Value = std::floor(Platform().Now());
  lowpass.Text = kUsualPass;
  DataEntered = false;
  FillFromFile();
  live.StartOver();
  SetFocus(title);
}

// While the fill is open nothing else can be reached.
void frmMarks::OpenFill(bool open) {
  actions.Current = feet.Current = open ? 1 : 0;
  fillframe.Visible = open;
  for (Control* rest : std::initializer_list<Control*>{&headerframe, &specialframe, &clipframe,
                                                       &Grid1, &fill, &another, &exit, &cancel})
    rest->Enabled = !open;
  pastegrade.Enabled = !open && grade_waits_;
}

void frmMarks::fill_Click() {
  Option1.Value = true;
  Option2.Value = Option3.Value = Option4.Value = Option5.Value = false;
  Text1.Text.clear();
  Text1.Enabled = false;
  OpenFill(true);
  SetFocus(Option1);
}

std::string frmMarks::FillMark() const {
  if (Option1.Value) return "ABS";
  if (Option2.Value) return "CUT";
  if (Option3.Value) return "NON";
  if (Option4.Value) return "EXC";
  return UpperCase(Left(Text1.Text, kLongestMark));
}

void frmMarks::Command5_Click() {
  for (int i = 1; i < Grid1.Rows(); ++i)
    if (MarkCell(i).empty() || MarkCell(i) == " ") SetMarkCell(i, FillMark());
  Command6_Click();
}

// The default button stands behind the fill and cannot be pressed.
bool frmMarks::FillByEnter(Key key) {
  if (key != Key::kEnter) return false;
  Command5_Click();
  return true;
}

void frmMarks::Command6_Click() {
  OpenFill(false);
  SetFocus(Grid1);
}

bool frmMarks::NothingEntered() const {
  return EveryMarkEmpty() && title.Text.empty() && code.Text.empty() && mvalue.Text == kUsualScore;
}

bool frmMarks::AddGrade(i16 maximum_score) {
  Class& c = Current();
  if (c.NumInstruments == kMostGrades) {
    ShowMessage(kNoMoreGrades, BoxIcon::kCritical);
    return false;
  }
  Instrument grade;
  grade.title = title.Text;
  grade.code = code.Text;
  grade.mvalue = maximum_score;
  grade.dropyn = TrimRight(dropyn.Text);
  grade.testdate = DateTextOfPicker();
  grade.lowpass = lowpass.Text;
  grade.typecode = ChosenTypecode();
  const bool type_in_use = TypeInUse(grade.typecode);

  const int n = ++c.NumInstruments;
  ReDimPreserve(c.Instruments, n);
  c.Instruments.back() = grade;
  for (int i = 1; i <= c.NumStudents; ++i) {
    Student& student = c.Students[static_cast<std::size_t>(i)];
    ReDimPreserve(student.Marks, n, ShortText(kNewMark));
    student.Marks.back() = MarkCell(i);
  }
  ReDimPreserve(c.Weights, n);
  ReDimPreserve(c.InstrumentUse, n, Currency::FromWhole(1));
  c.Changed = kTrue;
  DataEntered = false;
  ClassWindow().showform3();
  GradeAdded(type_in_use);
  live.TellDoubts();
  return true;
}

void frmMarks::another_Click() {
  if (RequiredEmpty()) return Remind();
  const auto score = CheckMaximumScore(kNoteToTheTeacher);
  if (!score) return;
  if (AddGrade(*score)) StartOver();
}

void frmMarks::exit_Click() {
  ClassWindow().showform3();
  if (NothingEntered()) return Unload();
  const auto score = CheckMaximumScore(kNoteToTheTeacher);
  if (!score) return;
  if (RequiredEmpty()) return Remind();
  if (AddGrade(*score)) Unload();
}

void frmMarks::cancel_Click() {
  const bool asks = DataEntered && !NothingEntered();
  if (asks && Ask("Data has been entered. Are you sure you want to CANCEL?", BoxButtons::kYesNo,
                  BoxIcon::kQuestion, "CANCEL") != BoxAnswer::kYes)
    return;
  Unload();
}

void frmMarks::QueryUnload() {
  if (fillframe.Visible)
    Command6_Click();
  else
    cancel_Click();
}

void frmMarks::copy_Click() {
  Platform().SetClipboardText(HeaderOnClipboard({title.Text, code.Text, mvalue.Text, lowpass.Text,
                                                 DateTextOfPicker(), dropyn.Text, ttypelist.Text}));
  paste.Enabled = true;
}

bool frmMarks::MayReplaceTitle() {
  return Trim(title.Text).empty() ||
         Ask("There is already a Title - Replace with Clip Board", BoxButtons::kYesNo,
             BoxIcon::kQuestion, "Note to The Teacher") == BoxAnswer::kYes;
}

void frmMarks::ShowHeader(const GradeHeaderText& header) {
  title.Text = header.title;
  code.Text = Left(header.code, static_cast<std::size_t>(code.MaxLength));
  mvalue.Text = header.mvalue;
  lowpass.Text = header.lowpass;
  if (const auto date = DateFromText(header.testdate, Platform().ShortDateOrder()))
    testdate.Value = *date;
  dropyn.Text = Trim(header.dropyn) == "Y" ? "Y" : "N";
}

// A type that this class does not have leaves the choice as it stands.
void frmMarks::ChooseTypeOf(std::string_view typecode) {
  const std::size_t type = TypeOfCode(typecode);
  if (type > 0) ChooseType(type);
}

void frmMarks::GoToMarks() {
  DataEntered = true;
  marks.GoTo(Grid1.Row);
  SetFocus(Grid1);
}

void frmMarks::paste_Click() {
  const std::string clipboard = Platform().ClipboardText();
  if (clipboard.empty()) return;
  if (!HoldsHeader(clipboard)) return TellOtherClipboard();
  const auto header = ReadHeader(clipboard);
  if (!header) return TellUnreadableClipboard();
  if (!MayReplaceTitle()) return;
  for (int i = 1; i < Grid1.Rows(); ++i) SetMarkCell(i, "");
  ShowHeader(*header);
  ChooseTypeOf(Left(header->type, 2));
  GoToMarks();
}

void frmMarks::pastegrade_Click() {
  if (!MayReplaceTitle()) return;
  const std::string clipboard = Platform().ClipboardText();
  if (!HoldsGrade(clipboard)) return TellOtherClipboard();
  const auto grade = ReadGrade(clipboard);
  if (!grade) return TellUnreadableClipboard();
  ShowHeader(grade->header);
  ChooseTypeOf(grade->header.type);
  for (int i = 1; i < Grid1.Rows(); ++i) SetMarkCell(i, kNewMark);
  for (const MarkText& mark : grade->marks)
    SetMarkCell(mark.student, Left(mark.mark, kLongestMark));
  GoToMarks();
}

}  // namespace tallyroll
