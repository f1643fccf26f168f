// SPDX-License-Identifier: GPL-3.0-or-later
// The form letter's file: new, open, save.
#include <filesystem>

#include "base/code_page.h"
#include "letters/text/letter_file.h"
#include "letters/writer/frmwrdproc.h"
#include "letters/writer/letter_dialogs.h"
#include "platform/surroundings.h"
#include "store/class_file.h"

namespace tallyroll {
namespace {

constexpr std::string_view kWriterTitle = "Tallyroll Word Processor";

std::string NameOfFile(const std::string& path) {
  return PathForDisplay(std::filesystem::path(path).filename().string());
}

std::string TitleOf(const std::string& path) {
  std::string title(kWriterTitle);
  if (path.empty()) return title;
  title += ' ';
  return title += NameOfFile(path);
}

bool MayGoOver(const std::string& path, const FileStamp& stamp) {
  const FileStamp now = StampOf(path);
  if (now == stamp || now.size < 0) return true;
  return Ask("The letter has been changed by another program since it was opened. Save over it?",
             BoxButtons::kYesNo, BoxIcon::kQuestion) == BoxAnswer::kYes;
}

}  // namespace

std::string AskForLetter(std::string& folder, bool save, std::string_view offered) {
  FileDialogRequest request;
  request.save = save;
  request.folder = folder;
  request.filename = offered;
  request.filter = "Rich Text Format (*.rtf)|*.rtf|Text File (*.txt)|*.txt";
  request.default_extension = "rtf";
  request.file_must_exist = !save;
  request.overwrite_prompt = save;
  request.help_context = kWriterTopic;
  std::string path = Platform().FileDialog(request).value_or("");
  if (path.empty()) return path;
  folder = std::filesystem::path(path).parent_path().string();
  if (!save || !IsOpenClassFile(path)) return path;
  ShowMessage(" The file is already open ");
  return {};
}

void TellSaveFailure(const std::string& path) {
  ShowMessage("Unkown error while saving file " + PathForDisplay(path));
}

void frmwrdproc::SetLetter(RichText letter, std::string file) {
  RichTextBox1.Load(std::move(letter));
  file_ = std::move(file);
  stamp_ = StampOf(file_);
  changed_ = false;
  Caption = TitleOf(file_);
  ShowLooks();
  SetFocus(RichTextBox1);
}

// True when the letter may go: it stands in its file, or the teacher lets it go.
bool frmwrdproc::MayLoseLetter() {
  if (!changed_) return true;
  switch (Ask("Data has been changed. Save File?  ", BoxButtons::kYesNoCancel)) {
    case BoxAnswer::kYes:
      return mnusave_Click();
    case BoxAnswer::kNo:
      return true;
    default:
      return false;
  }
}

void frmwrdproc::mnuNew_Click() {
  if (!MayLoseLetter()) return;
  ShowMerged(false);
  SetLetter({}, {});
}

void frmwrdproc::mnuOpen_Click() {
  if (!MayLoseLetter()) return;
  const std::string path = AskForLetter(folder_, false);
  if (path.empty()) return;
  LetterReading read = ReadLetter(path);
  if (!read.reason.empty() || read.error != 0) {
    ShowMessage("Unkown error while opening file " + PathForDisplay(path));
    return;
  }
  ShowMerged(false);
  SetLetter(std::move(read.text), path);
  if (read.left_out.empty()) return;
  std::string told = "What this letter can't hold was left out:\n";
  for (const std::string& line : read.left_out) told += line + "\n";
  ShowMessage(told + "Saved under its own name, the letter loses it for good.");
}

bool frmwrdproc::mnusave_Click() {
  if (file_.empty()) return mnusaveas_Click();
  return MayGoOver(file_, stamp_) && WriteTo(file_);
}

bool frmwrdproc::mnusaveas_Click() {
  const std::string path =
      AskForLetter(folder_, true, std::filesystem::path(file_).filename().string());
  return !path.empty() && WriteTo(path);
}

bool frmwrdproc::WriteTo(const std::string& path) {
  if (WriteLetter(path, RichTextBox1.Document) != 0) {
    TellSaveFailure(path);
    return false;
  }
  file_ = path;
  stamp_ = StampOf(path);
  changed_ = false;
  Caption = TitleOf(path);
  return true;
}

void frmwrdproc::QueryUnload() {
  if (Frame2.Visible) return Command2_Click();
  if (view.Current != kLetter) return ShowMerged(false);
  if (MayLoseLetter()) Unload();
}

}  // namespace tallyroll
