// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmdGrade.h"

#include <utility>

#include "base/text.h"
#include "grades/grade_clipboard.h"
#include "grades/marks.h"
#include "grades/method_reset.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

std::string_view CaptionOf(int open_state) {
  switch (open_state) {
    case kTransferGrade:
      return "Transfer Grade Between Classes Portal";
    case kOrderOfGrades:
      return "Edit Order of Grade Title Portal";
    default:
      return "Delete Grades Portal";
  }
}

std::string TitleOf(int i) {
  return std::string(TrimRight(Current().Instruments[static_cast<std::size_t>(i)].title));
}

bool Confirmed(std::string text, std::string title) {
  MessageRequest box;
  box.text = std::move(text);
  box.title = std::move(title);
  box.buttons = BoxButtons::kOkCancel;
  box.icon = BoxIcon::kQuestion;
  box.second_is_default = true;
  return Platform().MessageBox(box) == BoxAnswer::kOk;
}

// The clipboard is emptied first, so that an older grade on it cannot pass for this one.
bool PutOnClipboard(std::string_view grade) {
  Platform().SetClipboardText("");
  if (!Platform().ClipboardText().empty()) return false;
  Platform().SetClipboardText(grade);
  return HoldsGrade(Platform().ClipboardText());
}

template <typename T>
void Remove(List<T>& list, int i) {
  if (i <= UpperBound(list)) list.erase(list.begin() + i);
}

template <typename T>
void Swap(List<T>& list, int i, int k) {
  using std::swap;
  swap(list[static_cast<std::size_t>(i)], list[static_cast<std::size_t>(k)]);
}

void RemoveGrade(int i) {
  Class& c = Current();
  --c.NumInstruments;
  for (int k = 1; k <= c.NumStudents; ++k) Remove(c.Students[static_cast<std::size_t>(k)].Marks, i);
  Remove(c.Instruments, i);
  Remove(c.Weights, i);
  Remove(c.InstrumentUse, i);
  c.Changed = kTrue;
}

}  // namespace

frmdGrade::frmdGrade() : Portal("frmdGrade") {
  HelpContext = 330;
  reorderFrame.Caption = "MOVE";
  up.Caption = "&Up";
  down.Caption = "Do&wn";
  delete_.Caption = "&Delete";
  transfer.Caption = "&Transfer Grade to Clipboard";
  exitbt.Caption = "E&xit";
}

void frmdGrade::Declare(ControlTable& table) {
  table.Add("List1", List1);
  table.Add("reorderFrame", reorderFrame);
  table.Add("up", up).Click([this] { up_Click(); });
  table.Add("down", down).Click([this] { down_Click(); });
  table.Add("delete", delete_).Click([this] { delete_Click(); });
  table.Add("transfer", transfer).Click([this] { transfer_Click(); });
  table.Add("exitbt", exitbt).Click([this] { exitbt_Click(); });
}

void frmdGrade::Load() {
  Caption = CaptionOf(OpenState);
  delete_.Visible = OpenState == kDeleteGrades;
  transfer.Visible = OpenState == kTransferGrade;
  reorderFrame.Visible = OpenState == kOrderOfGrades;
  if (OpenState == kOrderOfGrades) ReDimPreserve(Current().InstrumentUse, Current().NumInstruments);
  FillList();
  SetFocus(List1);
}

void frmdGrade::FillList() {
  const Class& c = Current();
  List1.List.clear();
  List1.ListIndex = -1;
  for (int i = 1; i <= GradeCount(c); ++i) {
    const Instrument& grade = c.Instruments[static_cast<std::size_t>(i)];
    List1.List.push_back(grade.code + "\t" + grade.title);
  }
}

// False when nothing is chosen.
bool frmdGrade::TakeChoice() {
  CurrentStudent = static_cast<i16>(List1.ListIndex + 1);
  return CurrentStudent >= 1;
}

void frmdGrade::delete_Click() {
  if (!TakeChoice()) return void(ShowMessage("You must select a grade to delete or press Exit."));
  const int i = CurrentStudent;
  if (!Confirmed("Delete " + TitleOf(i) + "?", "Delete Portal")) return;
  const std::string typecode = Current().Instruments[static_cast<std::size_t>(i)].typecode;
  RemoveGrade(i);
  CurrentStudent = 0;
  FillList();
  GradeDeleted(TypeInUse(typecode));
}

void frmdGrade::transfer_Click() {
  if (!TakeChoice())
    return void(
        ShowMessage("No grade was chosen to place in the clipboard. Either choose a grade title to "
                    "transfer or press Exit to leave this portal."));
  const bool wanted =
      Confirmed("Transfer " + TitleOf(CurrentStudent) +
                    " to the clipboard? (The Grade will still remain in the current class.)",
                "Transfer Portal");
  if (!wanted) return;
  if (!PutOnClipboard(GradeOnClipboard(CurrentStudent)))
    ShowMessage("An error has occured writing on Clipboard.");
}

void frmdGrade::up_Click() {
  if (TakeChoice() && CurrentStudent > 1) ChangePlaces(CurrentStudent, CurrentStudent - 1);
}

void frmdGrade::down_Click() {
  if (TakeChoice() && CurrentStudent < GradeCount(Current()))
    ChangePlaces(CurrentStudent, CurrentStudent + 1);
}

// The grade chosen, at i, goes to k and stays chosen.
void frmdGrade::ChangePlaces(int i, int k) {
  Class& c = Current();
  for (int s = 1; s <= c.NumStudents; ++s) {
    List<ShortText>& marks = c.Students[static_cast<std::size_t>(s)].Marks;
    if (UpperBound(marks) < c.NumInstruments)
      ReDimPreserve(marks, c.NumInstruments, ShortText(kNewMark));
    Swap(marks, i, k);
  }
  Swap(c.Instruments, i, k);
  if (UpperBound(c.Weights) < c.NumInstruments) ReDimPreserve(c.Weights, c.NumInstruments);
  Swap(c.Weights, i, k);
  Swap(c.InstrumentUse, i, k);
  c.Changed = kTrue;
  CurrentStudent = static_cast<i16>(k);
  FillList();
  List1.ListIndex = k - 1;
}

}  // namespace tallyroll
