// SPDX-License-Identifier: GPL-3.0-or-later
// Letters and labels for the chosen students: printed, saved, mailed.
#include <algorithm>
#include <filesystem>
#include <optional>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "letters/mail/mail_draft.h"
#include "letters/merge/letter_names.h"
#include "letters/merge/merge.h"
#include "letters/page/print_letters.h"
#include "letters/text/letter_file.h"
#include "letters/text/letter_message.h"
#include "letters/writer/frmwrdproc.h"
#include "letters/writer/letter_dialogs.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "printing/page/print_job.h"
#include "printing/print_command.h"
#include "printing/temp_file.h"
#include "roster/chosen_students.h"
#include "store/class_file.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::size_t kMostLines = 12;  // of what one box tells

// Empty when there is none, which was told.
std::vector<i16> ChosenOrTold() {
  std::vector<i16> students = ChosenStudents();
  if (students.empty()) ShowMessage("You must first choose the names of students.");
  return students;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (std::size_t i = 0; i < std::min(lines.size(), kMostLines); ++i) text += lines[i] + "\n";
  if (lines.size() > kMostLines)
    text += "... and " + PlainNumberText(static_cast<int>(lines.size() - kMostLines)) + " more\n";
  return text;
}

// A letter as the text of a message; nothing when the teacher would rather not lose what a message
// has no character for.
std::optional<std::string> MessageOf(const RichText& letter) {
  const auto text = CodePageTextFromUtf8(LetterMessage(letter));
  if (!text) return std::nullopt;
  if (!text->lacking.empty() &&
      Ask("A message cannot hold " + PlainNumberText(static_cast<int>(text->lacking.size())) +
              " of the letter's characters; \"?\" will stand in their place. Go on?",
          BoxButtons::kYesNo, BoxIcon::kQuestion) != BoxAnswer::kYes)
    return std::nullopt;
  return text->text;
}

// What the E-mail Portal shows of letters to several: the one of the first.
std::string ShownMessage(const RichText& letter) {
  const auto text = CodePageTextFromUtf8(LetterMessage(letter));
  return text ? text->text : std::string();
}

// Files that are there already are gone over only with the teacher's leave.
bool MayReplace(const std::vector<StudentLetterName>& letters) {
  std::vector<std::string> there;
  for (const StudentLetterName& letter : letters)
    if (PathExists(letter.path))
      there.push_back(PathForDisplay(std::filesystem::path(letter.path).filename().string()));
  return there.empty() || Ask("These files exist already:\n" + Joined(there) + "Replace them?",
                              BoxButtons::kYesNo, BoxIcon::kQuestion) == BoxAnswer::kYes;
}

}  // namespace

// Before anything leaves, what is wrong with it is told: a letter that cannot be filled in stays,
// and of codes without a value the teacher decides.
bool frmwrdproc::ReadyToLeave(const std::vector<i16>& students) {
  for (const i16 student : students) {
    const MergedLetter merged = MergeLetter(RichTextBox1.Document, student);
    if (merged.error.empty()) continue;
    ShowMessage(merged.error, BoxIcon::kCritical);
    return false;
  }
  const std::vector<std::string> warnings = LetterWarnings(RichTextBox1.Document, students);
  return warnings.empty() || Ask(Joined(warnings) + "Go on?", BoxButtons::kYesNo,
                                 BoxIcon::kQuestion) == BoxAnswer::kYes;
}

bool frmwrdproc::BeginPrinting() {
  Job.PrintTab = 1;
  Job.ReportCode = 0;
  ResetPrintJob();
  return Job.PrintFlag == kPrintRuns;
}

void frmwrdproc::choosestudent_Click() {
  ShowPortal("frmstudents");
  shown_ = 0;
  ShowStudents();
  if (view.Current != kLetter) FillMerged();
}

void frmwrdproc::mnuPrint_Click() {
  const std::vector<i16> students = ChosenOrTold();
  if (students.empty() || !ReadyToLeave(students) || !BeginPrinting()) return;
  PrintMessage message;
  const auto printer = OpenPrinterOrTell();
  if (!printer) return;
  const int count = static_cast<int>(students.size());
  PrintLetters(
      *printer, count,
      [&](int letter) {
        const i16 student = students[static_cast<std::size_t>(letter) - 1];
        return MergeLetter(RichTextBox1.Document, student).text;
      },
      [&](int letter) { message.ShowPage(letter, count); });
}

// The form letter goes to paper as it is, codes and all.
void frmwrdproc::mnuform_Click() {
  if (!BeginPrinting()) return;
  PrintMessage message;
  if (const auto printer = OpenPrinterOrTell())
    PrintLetters(
        *printer, 1, [&](int) { return RichTextBox1.Document; },
        [&](int letter) { message.ShowPage(letter, 1); });
}

void frmwrdproc::mnusavest_Click() {
  const std::vector<i16> students = ChosenOrTold();
  if (students.empty() || !ReadyToLeave(students)) return;
  const std::string path = AskForLetter(folder_, true);
  if (!path.empty()) WriteLetters(path, students);
}

bool frmwrdproc::WriteLetters(const std::string& chosen, const std::vector<i16>& students) {
  const StudentLetterNames names = NamesOfStudentLetters(chosen, students);
  if (!MayReplace(names.letters)) return false;
  for (const StudentLetterName& letter : names.letters) {
    const RichText text = MergeLetter(RichTextBox1.Document, letter.student).text;
    if (WriteLetter(letter.path, text) == 0) continue;
    TellSaveFailure(letter.path);
    return false;
  }
  if (!names.notices.empty()) ShowMessage(Joined(names.notices));
  ClassWindow().ShowStatus(PlainNumberText(static_cast<int>(students.size())) +
                           " letters were saved");
  return true;
}

void frmwrdproc::mnupdf_Click() {
  const std::vector<i16> students = ChosenOrTold();
  if (students.empty() || !ReadyToLeave(students)) return;
  FileDialogRequest request;
  request.save = true;
  request.folder = folder_;
  request.filter = "PDF File (*.pdf)|*.pdf";
  request.default_extension = "pdf";
  request.overwrite_prompt = true;
  request.help_context = kWriterTopic;
  const std::string path = Platform().FileDialog(request).value_or("");
  if (path.empty()) return;
  folder_ = std::filesystem::path(path).parent_path().string();
  Job.PrintFlag = kPrintRuns;
  Job.PrintTitle = Caption;
  PrintMessage message;
  const auto pdf = Platform().OpenPdf(path, false, Job.PrintTitle);
  if (!pdf) return TellSaveFailure(path);
  const int count = static_cast<int>(students.size());
  const bool done = PrintLetters(
      *pdf, count,
      [&](int letter) {
        const i16 student = students[static_cast<std::size_t>(letter) - 1];
        return MergeLetter(RichTextBox1.Document, student).text;
      },
      [&](int letter) { message.ShowPage(letter, count); });
  if (done) ClassWindow().ShowStatus(SavedText(path));
}

void frmwrdproc::mnuemail_Click() {
  const std::vector<i16> students = ChosenStudents();
  if (students.empty()) {
    ShowMessage("You must first choose the name of a student.");
    return;
  }
  if (students.size() > 1) {
    ShowMessage("For E-mail, choose the name of only ONE student.");
    return;
  }
  if (!ReadyToLeave(students)) return;
  CurrentStudent = students.front();
  const MergedLetter merged = MergeLetter(RichTextBox1.Document, students.front());
  const std::optional<std::string> body = MessageOf(merged.text);
  if (!body) return;
  if (WriteTempFile(*body) != 0) return TellSaveFailure(TempFilePath());
  Draft = MailDraft();
  Draft.letter = true;
  ShowPortal("frmSendMail");
}

// Runs of mail are told apart by their subject, so a letter's name is a good one to begin with.
void frmwrdproc::mnumany_Click() {
  const std::vector<i16> students = ChosenOrTold();
  if (students.empty() || !ReadyToLeave(students)) return;
  const RichText& form = RichTextBox1.Document;
  if (WriteTempFile(ShownMessage(MergeLetter(form, students.front()).text)) != 0)
    return TellSaveFailure(TempFilePath());
  CurrentStudent = students.front();
  Draft = MailDraft();
  Draft.letter = true;
  Draft.subject = PathForDisplay(std::filesystem::path(file_).stem().string());
  Draft.students = students;
  Draft.text_of = [form](i16 student) { return LetterMessage(MergeLetter(form, student).text); };
  ShowPortal("frmSendMail");
}

void frmwrdproc::labels_Click() {
  if (ChosenOrTold().empty()) return;
  Frame2.Visible = true;
  student.Value = true;
  parent.Value = false;
  SetFocus(student);
}

void frmwrdproc::Command1_Click() {
  Frame2.Visible = false;
  SetFocus(RichTextBox1);
  const std::vector<i16> students = ChosenOrTold();
  if (students.empty() || !BeginPrinting()) return;
  PrintMessage message;
  message.ShowPage(1, 0);
  if (const auto printer = OpenPrinterOrTell())
    PrintLabels(*printer, students, parent.Value ? LabelTo::kParent : LabelTo::kStudent);
}

void frmwrdproc::Command2_Click() {
  Frame2.Visible = false;
  SetFocus(RichTextBox1);
}

}  // namespace tallyroll
