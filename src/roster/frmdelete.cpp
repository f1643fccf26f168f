// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/frmdelete.h"

#include <algorithm>
#include <limits>

#include "base/text.h"
#include "platform/surroundings.h"
#include "roster/student_clipboard.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

const Student& Chosen() {
  return Current().Students[static_cast<std::size_t>(CurrentStudent)];
}

bool Confirmed(std::string_view text) {
  return Ask(text, BoxButtons::kOkCancel, BoxIcon::kQuestion, "Delete Portal") == BoxAnswer::kOk;
}

i16 WidestName(std::string Student::*name) {
  std::size_t widest = 0;
  for (const Student& student : Current().Students)
    widest = std::max(widest, Trim(student.*name).size());
  constexpr std::size_t kMost = std::numeric_limits<i16>::max();
  return static_cast<i16>(std::min(widest, kMost));
}

void RemoveStudent(int i) {
  Class& c = Current();
  c.Changed = kTrue;
  --c.NumStudents;
  c.Students.erase(c.Students.begin() + i);
  c.LastNameWidth = WidestName(&Student::lastname);
  c.FirstNameWidth = WidestName(&Student::firstname);
}

}  // namespace

frmdelete::frmdelete() : Portal("frmdelete") {
  Caption = "Delete Portal";
  HelpContext = 280;
  clipframe.Caption = "Clipboard";
  info.Caption = "All Information (incl. grades)";
  nid.Caption = "Basic Info";
  delete_.Caption = "&Delete";
  delclip.Caption = "Delete to Clipbd";
  exit.Caption = "E&xit";
  info.Value = true;
}

void frmdelete::Declare(ControlTable& table) {
  table.Add("List1", List1).Change([this] { List1_Change(); });
  table.Add("clipframe", clipframe);
  table.Add("info", info);
  table.Add("nid", nid);
  table.Add("delete", delete_).Click([this] { delete_Click(); });
  table.Add("delclip", delclip).Click([this] { delclip_Click(); });
  table.Add("exit", exit).Click([this] { exit_Click(); });
}

void frmdelete::Load() {
  FillList();
  SetFocus(List1);
}

void frmdelete::FillList() {
  const Class& c = Current();
  List1.List.clear();
  for (int i = 1; i <= c.NumStudents; ++i)
    List1.List.push_back(StudentListLine(c.Students[static_cast<std::size_t>(i)]));
  List1.ListIndex = -1;
  CurrentStudent = 0;
}

void frmdelete::List1_Change() {
  CurrentStudent = static_cast<i16>(List1.ListIndex + 1);
}

bool frmdelete::NoneChosen() {
  List1_Change();
  if (CurrentStudent >= 1) return false;
  ShowMessage("You must select a student to delete or press Exit.");
  SetFocus(List1);
  return true;
}

void frmdelete::RemoveChosen() {
  RemoveStudent(CurrentStudent);
  FillList();
  SetFocus(List1);
}

void frmdelete::delete_Click() {
  if (NoneChosen()) return;
  const std::string who = std::string(Trim(Chosen().id)) + " " + PlainName(Chosen());
  if (Confirmed("Delete " + who + "?")) RemoveChosen();
}

// A student who did not come to the clipboard stays in the class.
void frmdelete::delclip_Click() {
  if (NoneChosen()) return;
  if (!Confirmed("NOTE: The Clipboard can hold only ONE student at a time. Delete " +
                 PlainName(Chosen()) + " and save the student to the CLIPBOARD? "))
    return;
  const std::string text = StudentOnClipboard(Chosen(), info.Value);
  Platform().SetClipboardText(text);
  const auto kept = ReadStudent(Platform().ClipboardText());
  const auto sent = ReadStudent(text);
  if (!kept || !sent || kept->fields.id != sent->fields.id)
    return void(ShowMessage("An error has occured writing on Clipboard."));
  RemoveChosen();
}

}  // namespace tallyroll
