// SPDX-License-Identifier: GPL-3.0-or-later
#include <filesystem>
#include <memory>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "base/date_serial.h"
#include "cli/basics/chosen_students.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/command_line_surroundings.h"
#include "cli/basics/date_order.h"
#include "cli/basics/merged_letters.h"
#include "cli/basics/pdf.h"
#include "cli/commands/commands.h"
#include "letters/merge/letter_names.h"
#include "letters/page/print_letters.h"
#include "letters/text/rtf_writer.h"
#include "store/program_state.h"
#include "store/sort_students.h"

namespace tallyroll {
namespace {

namespace fs = std::filesystem;

struct LettersOptions {
  std::string file, letter, out, one_pdf, format, today;
  std::vector<std::string> students;
  i16 name_mode = 68;
  OpenOptions opening;
};

std::string WritePdfOf(const std::string& path, const std::vector<RichText>& texts,
                       std::size_t first, std::size_t count) {
  std::string reason = WhyNotOver(path);
  if (!reason.empty()) return reason;
  const std::string title = PathForDisplay(fs::path(path).stem().string());
  const PdfOutcome outcome = WritePdfJob(path, title, [&](PrintTarget& pdf) {
    PrintLetters(pdf, static_cast<int>(count),
                 [&](int letter) { return texts[first + static_cast<std::size_t>(letter) - 1]; });
  });
  if (!outcome.refusal.empty()) return outcome.refusal;
  return outcome.error == 0 ? "" : FileErrorText(outcome.error);
}

std::string FormatOf(const LettersOptions& options) {
  if (!options.format.empty()) return options.format;
  return IsRichTextFile(options.letter) ? "rtf" : "txt";
}

StudentLetterNames NamesOf(const LettersOptions& options, const std::vector<i16>& students) {
  const fs::path beginning = fs::path(options.out) / fs::path(options.letter).stem();
  const std::string format = FormatOf(options);
  if (format == "pdf") return NamesOfStudentLetters(beginning.string() + ".pdf", ".pdf", students);
  return NamesOfStudentLetters(beginning.string() + "." + format, students);
}

// Answers the paths, a line each, or why it went no further.
CommandResult WriteEach(const LettersOptions& options, MergedLetters& merged) {
  const StudentLetterNames names = NamesOf(options, merged.students);
  const std::string format = FormatOf(options);
  std::string paths;
  for (std::size_t i = 0; i < names.letters.size(); ++i) {
    const std::string& path = names.letters[i].path;
    const RichText& text = merged.texts[i];
    const std::string reason =
        format == "pdf" ? WritePdfOf(path, merged.texts, i, 1)
                        : WriteFileTo(path, format == "rtf" ? WriteRtf(text) : PlainTextFile(text));
    if (!reason.empty()) return Refused(path, reason);
    paths += path + "\n";
  }
  for (const std::string& notice : names.notices) merged.notes.push_back(Utf8FromCodePage(notice));
  return Done(paths);
}

CommandResult WriteLetters(const LettersOptions& options, MergedLetters& merged) {
  std::error_code ignored;
  if (!options.out.empty() && !fs::is_directory(options.out, ignored))
    return Refused(options.out, "there is no such folder");
  CommandResult result = Done();
  // The PDF comes first: a program without it hands the whole command line on.
  if (!options.one_pdf.empty()) {
    const std::string reason = WritePdfOf(options.one_pdf, merged.texts, 0, merged.texts.size());
    if (!reason.empty()) return Refused(options.one_pdf, reason);
  }
  if (!options.out.empty()) result = WriteEach(options, merged);
  if (result.refused) return result;
  if (!options.one_pdf.empty()) result.text += options.one_pdf + "\n";
  for (const std::string& note : merged.notes)
    result.note += ReasonLine(options.letter, note) + "\n";
  return result;
}

CommandResult MakeLetters(const LettersOptions& options) {
  if (options.out.empty() && options.one_pdf.empty())
    return Refused(options.file, "--out or --one-pdf must say where the letters go");
  NameMode = options.name_mode;
  std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  if (Current().NumStudents == 0) return Refused(options.file, kNoStudents);
  CommandLineSurroundings surroundings(std::nullopt, DateOrderOfOption(options.opening.date_order));
  if (!options.today.empty())
    surroundings.today = *DateFromText(options.today, DateOrder::kYearFirst);
  SortStudents();
  LetterReading letter;
  reason = ReadFormLetter(options.letter, letter);
  if (!reason.empty()) return Refused(options.letter, reason);
  std::vector<i16> students;
  reason = TakeStudents(options.students, students);
  if (!reason.empty()) return Refused(options.file, reason);
  MergedLetters merged = MergeLetters(letter, students);
  if (!merged.refusal.empty()) return Refused(options.letter, merged.refusal);
  return WriteLetters(options, merged);
}

std::string CheckLetterDate(const std::string& text) {
  return DateFromText(text, DateOrder::kYearFirst) ? "" : "must be a date, YYYY-MM-DD";
}

}  // namespace

void AddLettersCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("letters", "Merges a form letter for each student");
  const auto options = std::make_shared<LettersOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  command.AddOption("--letter", options->letter, "the form letter: .rtf, otherwise plain text")
      .Required();
  AddStudents(command, options->students);
  command.AddOption("--out", options->out, "the folder for a file a student");
  command.AddOption("--format", options->format, "of those files; otherwise that of the letter")
      .OneOf({"rtf", "txt", "pdf"});
  command.AddOption("--one-pdf", options->one_pdf, "one PDF with all letters");
  command.AddOption("--today", options->today, "the date in the letter, YYYY-MM-DD")
      .Check(CheckLetterDate);
  AddNameMode(command, options->name_mode);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return MakeLetters(*options); }; });
}

}  // namespace tallyroll
