// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/frmAdd.h"

#include <limits>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/class_defaults.h"
#include "store/clipboard_boxes.h"
#include "store/program_state.h"
#include "store/sort_students.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr int kMostStudents = std::numeric_limits<i16>::max();  // what NumStudents can hold

}  // namespace

frmAdd::frmAdd() : StudentForm("frmAdd") {
  Caption = "Add Student Portal";
  HelpContext = 250;
  PREVIOUS.Caption = "&Previous";
  nextt.Caption = "&Next";
  addclip.Caption = "&From Clipbd";
  Exitt.Caption = "E&xit";
  cancel.Caption = "&Cancel";
}

void frmAdd::Declare(ControlTable& table) {
  table.Add("where", where);
  table.Add("TabStrip1", TabStrip1);
  DeclareFirstPage(table, "comments");
  DeclareOtherPages(table);
  table.Add("entered", entered).Change([this] { entered_Change(); });
  table.Add("PREVIOUS", PREVIOUS).Click([this] { PREVIOUS_Click(); });
  table.Add("nextt", nextt).Click([this] { nextt_Click(); });
  table.Add("addclip", addclip).Click([this] { addclip_Click(); });
  table.Add("Exitt", Exitt).Click([this] { Exitt_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
}

void frmAdd::Load() {
  GoTo(Current().NumStudents + 1);
}

bool frmAdd::RecordExists() const {
  return Position <= Current().NumStudents;
}

void frmAdd::GoTo(int position) {
  if (position > kMostStudents) {
    ShowMessage("You may only have 32767 students in a class.", BoxIcon::kCritical);
    position = kMostStudents;
  }
  Position = static_cast<i16>(position);
  from_clipboard_.reset();
  ShowWhere();
  if (RecordExists()) return ShowStudent();
  ClearFields();
  TabStrip1.Selected = 0;
  SetFocus(lastname);
}

void frmAdd::NewStudentRecord() {
  Class& c = Current();
  Position = ++c.NumStudents;
  ReDimPreserve(c.Students, c.NumStudents);
  Student& student = c.Students[Position];
  ReDim(student.SeatRow, 1);
  ReDim(student.SeatColumn, 1);
  ReDim(student.DailyMarks, c.NumDays);
  AddStudentDefaults();
  // Another ID may have been typed since, but another student is not the clipboard's.
  if (from_clipboard_ && Trim(lastname.Text) == Trim(from_clipboard_->fields.lastname))
    TakeLists(*from_clipboard_, student);
  from_clipboard_.reset();
  begun_ = true;
}

// Both checks, then the record is made if need be and stored if anything changed. False: refused.
bool frmAdd::KeepStudent() {
  if ((IdChanged || Dirty) && !CheckUniqueId()) return false;
  if (!CheckRequired()) return false;
  if (!RecordExists()) NewStudentRecord();
  if (Dirty) {
    StoreStudent();
    begun_ = false;
  }
  return true;
}

void frmAdd::nextt_Click() {
  if (KeepStudent()) GoTo(Position + 1);
}

// A new position with nothing on the form is left as it is. False: refused.
bool frmAdd::LeaveStudent() {
  const bool nothing_to_keep = !RecordExists() && AllBlank();
  return nothing_to_keep || KeepStudent();
}

void frmAdd::PREVIOUS_Click() {
  if (LeaveStudent()) GoTo(Position > 1 ? Position - 1 : Position);
}

void frmAdd::entered_Change() {
  const int chosen = entered.ListIndex + 1;
  if (chosen < 1 || chosen == Position) return;
  if (LeaveStudent())
    GoTo(chosen);
  else
    ShowWhere();
}

// The class by its description, otherwise by its file. In the order of entry: sorting comes when
// the Portal is left.
void frmAdd::ShowWhere() {
  const Class& c = Current();
  std::string name(Trim(c.description));
  if (name.empty()) name = PathForDisplay(c.FileName.substr(c.FileName.find_last_of('/') + 1));
  where.Caption = "Student " + PlainNumberText(int{Position});
  if (!name.empty()) where.Caption += " of " + name;
  entered.List.clear();
  for (int i = 1; i <= c.NumStudents; ++i)
    entered.List.push_back(StudentListLine(c.Students[static_cast<std::size_t>(i)]));
  entered.ListIndex = RecordExists() ? Position - 1 : -1;
}

// The text is looked at first, so that one which cannot be taken changes nothing.
void frmAdd::addclip_Click() {
  const std::string clipboard = Platform().ClipboardText();
  if (!clipboard.empty() && clipboard == ClipRead)
    return void(ShowMessage("You have already read this information into the class."));
  if (!HoldsStudent(clipboard)) return TellOtherClipboard();
  const std::optional<StudentText> text = ReadStudent(clipboard);
  if (!text) return TellUnreadableClipboard();
  if (!(AllBlank() && !RecordExists())) {
    if (!KeepStudent()) return;
    GoTo(Current().NumStudents + 1);
    if (RecordExists()) return;
  }
  ShowFields(text->fields);
  from_clipboard_ = *text;
  if (!CheckUniqueId()) return;
  NewStudentRecord();
  ShowWhere();
  ClipRead = clipboard;
}

void frmAdd::Exitt_Click() {
  if (RequiredBlank())
    WithdrawBegun();
  else if (!KeepStudent())
    return;
  SortStudents();
  Unload();
}

void frmAdd::cancel_Click() {
  const bool asks = Dirty && !RequiredBlank();
  if (asks && Ask("Data has been entered. Are you sure you want to CANCEL?", BoxButtons::kYesNo,
                  BoxIcon::kQuestion, "Cancel") != BoxAnswer::kYes)
    return;
  WithdrawBegun();
  Unload();
}

void frmAdd::WithdrawBegun() {
  if (!begun_) return;
  Class& c = Current();
  ReDimPreserve(c.Students, --c.NumStudents);
  begun_ = false;
}

}  // namespace tallyroll
