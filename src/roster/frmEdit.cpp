// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/frmEdit.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

void AskForStudent() {
  ShowMessage("Please select a student");
}

// The selection as offsets that lie within the text.
std::pair<std::size_t, std::size_t> SelectionOf(const TextBox& box) {
  const std::size_t start =
      std::min(static_cast<std::size_t>(std::max(box.SelStart, 0)), box.Text.size());
  const std::size_t length =
      std::min(static_cast<std::size_t>(std::max(box.SelLength, 0)), box.Text.size() - start);
  return {start, length};
}

}  // namespace

frmEdit::frmEdit() : StudentForm("frmEdit") {
  Caption = "Edit Portal";
  HelpContext = 260;
  copy.Caption = "Copy &To";
  paste.Caption = "Paste &From";
  PREVIOUS.Caption = "&Previous";
  nextt.Caption = "&Next";
  exit.Caption = "E&xit";
  cancel.Caption = "&Cancel";
}

void frmEdit::Declare(ControlTable& table) {
  // A list that gets the focus stands on its first line before anything is chosen: a click there
  // changes nothing and still picks.
  table.Add("List1", List1).Change([this] { List1_Change(); }).Click([this] { List1_Change(); });
  table.Add("TabStrip1", TabStrip1).Change([this] { TabStrip1_Change(); });
  DeclareFirstPage(table, "comment");
  table.Add("copy", copy).Click([this] { copy_Click(); });
  table.Add("paste", paste).Click([this] { paste_Click(); });
  DeclareOtherPages(table);
  table.Add("PREVIOUS", PREVIOUS).Click([this] { PREVIOUS_Click(); });
  table.Add("nextt", nextt).Click([this] { nextt_Click(); });
  table.Add("exit", exit).Click([this] { exit_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
}

void frmEdit::Load() {
  const Class& c = Current();
  for (int i = 1; i <= c.NumStudents; ++i) List1.List.push_back(StudentListLine(c.Students[i]));
  at_comment_ = OpenState == kEditAtComment;
  const bool chosen = CurrentStudent >= 1 && CurrentStudent <= c.NumStudents;
  EnableFields(chosen);
  if (!chosen) return SetFocus(List1);
  Show(CurrentStudent);
  if (at_comment_)
    FocusComment();
  else
    SetFocus(lastname);
}

void frmEdit::Show(int position) {
  Position = static_cast<i16>(position);
  CurrentStudent = Position;
  List1.ListIndex = position - 1;
  EnableFields(true);
  ShowStudent();
}

// The checks, then the shown student is stored if anything changed. False: refused.
bool frmEdit::StoreShown() {
  if (Position == 0) return true;
  if ((IdChanged || Dirty) && !CheckUniqueId()) return false;
  if (!CheckRequired()) return false;
  if (Dirty) {
    StoreStudent();
    List1.List[Position - 1] = StudentListLine(Current().Students[Position]);
  }
  return true;
}

void frmEdit::MoveTo(int position) {
  if (!StoreShown()) return;
  if (position < 1 || position > Current().NumStudents) return;
  Show(position);
  if (at_comment_) FocusComment();
}

// The list already shows the line that was picked: it goes back when the shown student is refused.
void frmEdit::List1_Change() {
  const int picked = List1.ListIndex + 1;
  if (picked != Position) MoveTo(picked);
  List1.ListIndex = Position - 1;
}

// Without a student the comment waits for a pick.
void frmEdit::FocusComment() {
  TabStrip1.Selected = 0;
  if (Position > 0)
    SetFocus(comment);
  else
    SetFocus(List1);
}

void frmEdit::TabStrip1_Change() {
  if (Position > 0) return;
  TabStrip1.Selected = 0;
  AskForStudent();
  SetFocus(List1);
}

void frmEdit::copy_Click() {
  const auto [start, length] = SelectionOf(comment);
  if (length == 0) {
    FocusComment();
    ShowMessage(
        "You must first select the comment you wish to copy to the clipboard. Select the comment "
        "by dragging the mouse across the text you want to select, and then release the mouse "
        "button.");
    return;
  }
  Platform().SetClipboardText(std::string_view(comment.Text).substr(start, length));
}

void frmEdit::paste_Click() {
  FocusComment();
  if (Position == 0) return AskForStudent();
  const std::string text = Platform().ClipboardText();
  if (text.empty()) return;
  const auto [start, length] = SelectionOf(comment);
  const auto longest = static_cast<std::size_t>(comment.MaxLength);
  if (comment.Text.size() - length + text.size() > longest) {
    ShowMessage("A comment can hold no more than " + PlainNumberText(comment.MaxLength) +
                " characters.");
    return;
  }
  comment.Text.replace(start, length, text);
  comment.SelStart = static_cast<int>(start + text.size());
  comment.SelLength = 0;
  Dirty = 1;
}

void frmEdit::PREVIOUS_Click() {
  MoveTo(Position - 1);
}

void frmEdit::nextt_Click() {
  MoveTo(Position + 1);
}

void frmEdit::exit_Click() {
  if (StoreShown()) Unload();
}

void frmEdit::cancel_Click() {
  if (Dirty && Ask("Data has been changed. Are you sure you want to CANCEL?", BoxButtons::kYesNo,
                   BoxIcon::kQuestion, "Cancel") != BoxAnswer::kYes)
    return;
  Unload();
}

}  // namespace tallyroll
