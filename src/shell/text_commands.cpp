// SPDX-License-Identifier: GPL-3.0-or-later
// Text files from and to a class window, and a new class from the students of an old one.
#include <optional>
#include <utility>

#include "base/code_page.h"
#include "base/number_text.h"
#include "platform/portal.h"
#include "shell/recent_list.h"
#include "shell/shell_state.h"
#include "store/class_defaults.h"
#include "store/safe_file.h"
#include "store/settings.h"
#include "store/sort_students.h"
#include "store/text/frmtxt.h"
#include "store/text/grade_file.h"
#include "store/text/saved_text.h"
#include "store/text/text_export.h"
#include "store/text/text_import.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

constexpr int kTextFileHelp = 160;

// What frmtxt answers to this request.
int AskTextFilePortal(int request) {
  OpenState = request;
  ShowPortal("frmtxt");
  return std::exchange(OpenState, 0);
}

FileDialogRequest TextFileRequest() {
  const bool csv = TextMode == kCsvText;
  FileDialogRequest request;
  request.folder = LastFolder;
  request.filter = csv ? "CSV Files (*.csv)|*.CSV;*.TXT" : "Text Files (*.txt)|*.TXT";
  request.default_extension = csv ? "CSV" : "TXT";
  request.help_context = kTextFileHelp;
  return request;
}

// The chosen path, in whose folder the next dialog begins; empty when it was cancelled.
std::string TakeFolder(const std::optional<std::string>& chosen) {
  if (chosen && !chosen->empty()) LastFolder = FolderOf(*chosen);
  return chosen.value_or("");
}

// Asks for ImportFile, and for its columns where a spreadsheet wrote it.
bool PickImportFile(int request, int where) {
  FileDialogRequest dialog = TextFileRequest();
  if (TextMode != kCsvText) dialog.filter = "DATA FILES (*.txt)|*.TXT";
  dialog.file_must_exist = true;
  ImportFile = TakeFolder(Platform().FileDialog(dialog));
  if (ImportFile.empty()) return false;
  if (TextMode != kCsvText) return true;
  const int into = where == kNewClass ? kIntoNewClass : 0;
  return AskTextFilePortal(kAskColumns + into + request) == kThisClass;
}

std::string Counted(std::int64_t count, std::string_view what) {
  return PlainNumberText(count) + " " + std::string(what) + (count == 1 ? "" : "s");
}

// A student of the next class: everything that is not of this class's term.
Student ForNewClass(const Student& from) {
  Student student;
  for (const auto field :
       {&Student::lastname, &Student::firstname, &Student::id, &Student::comments, &Student::parent,
        &Student::phone, &Student::work, &Student::email, &Student::address, &Student::city,
        &Student::state, &Student::zip, &Student::birth})
    student.*field = from.*field;
  return student;
}

}  // namespace

void Form1::ImportText() {
  const int where = AskTextFilePortal(kImportNames);
  if (where != kThisClass && where != kNewClass) return;
  if (!PickImportFile(kImportNames, where)) return;
  if (where == kThisClass)
    AppendStudents();
  else if (Tag.empty())
    StartFromText();
  else
    FrameForm->NewClass(kStartFromText);
}

void Form1::AppendStudents() {
  TextRoster roster;
  if (!ReadImportFile(roster)) return;
  const int before = Current().NumStudents;
  const ImportOutcome outcome = AddImportedStudents(roster);
  if (outcome.cancelled) return;
  EnableClassMenus(true);
  showform3();
  ShowStatus(Counted(Current().NumStudents - before, "student") + " added.");
  TellGivenIds(outcome);
}

void Form1::StartFromText() {
  if (!TakeSlot()) return;
  const i16 before = std::exchange(CurrentClass, static_cast<i16>(SlotIndex));
  const auto leave = [&] {
    GiveSlotBack();
    CurrentClass = before;
  };
  TextRoster roster;
  if (!ReadImportFile(roster)) return leave();
  StartNewClass();
  SetNewClassDefaults();
  const ImportOutcome outcome = AddImportedStudents(roster);
  if (outcome.cancelled) {
    ResetClassSlot();
    return leave();
  }
  ShowNewClass();
  TellGivenIds(outcome);
}

void Form1::TransferRoster() {
  const i16 source = CurrentClass;
  if (!TakeSlot()) return;
  CurrentClass = static_cast<i16>(SlotIndex);
  StartNewClass();
  SetNewClassDefaults();
  const Class& from = Classes[static_cast<std::size_t>(source)];
  Class& to = Current();
  to.NumStudents = from.NumStudents;
  ReDim(to.Students, to.NumStudents);
  for (std::size_t i = 1; i < to.Students.size(); ++i)
    to.Students[i] = ForNewClass(from.Students[i]);
  to.LastNameWidth = from.LastNameWidth;
  to.FirstNameWidth = from.FirstNameWidth;
  to.Changed = kTrue;
  ShowNewClass();
}

void Form1::SetNewClassDefaults() {
  SetDefaultRoundScale();
  SetDefaultLetterValues();
  LoadLetterString();
}

void Form1::ShowNewClass() {
  Caption = "NewClass " + PlainNumberText(SlotIndex);
  Tag = PlainNumberText(SlotIndex);
  FrameForm->RebuildRecentMenu();
  EnableClassMenus(true);
  showform3();
  CheckNameMode();
}

void Form1::mnuTransfer_Click() {
  if (Ask("This option TRANSFERS Name, Id, Comments and Supplementary Information to a new file. "
          "Continue?",
          BoxButtons::kYesNo) == BoxAnswer::kYes)
    FrameForm->NewClass(kTransferRoster);
}

void Form1::ImportGrades(int by) {
  if (AskTextFilePortal(by) != kThisClass || !PickImportFile(by, kThisClass)) return;
  RunPortal("frmMarks", by, AfterPortal::kRefill);
}

void Form1::ExportStudents(int what) {
  if (AskTextFilePortal(what) != kThisClass) return;
  FileDialogRequest dialog = TextFileRequest();
  dialog.save = true;
  dialog.overwrite_prompt = true;
  const std::string path = TakeFolder(AskForText(dialog));
  if (path.empty()) return;
  if (readyopen(path)) return void(ShowMessage(" The file is already open "));
  const TextOfClass text = ExportText(Current(), what, TextMode, SavedTextEncoding);
  if (text.cancelled) return;
  if (const int error = ReplaceFile(path, text.bytes, OldTail::kDrop))
    return ShowTextFileError(error);
  std::string told = Counted(Current().NumStudents, "student") + " written to " +
                     FileNameOf(PathForDisplay(path)) + ".";
  if (text.changed > 0)
    told += " " + Counted(text.changed, "value") + " changed to fit the layout.";
  ShowStatus(told);
}

}  // namespace tallyroll
