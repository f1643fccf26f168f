// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>
#include <vector>

#include "base/code_page.h"
#include "cli/basics/chosen_students.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/command_line_surroundings.h"
#include "cli/basics/date_order.h"
#include "cli/basics/pdf.h"
#include "cli/commands/commands.h"
#include "letters/page/labels.h"
#include "store/program_state.h"
#include "store/sort_students.h"

namespace tallyroll {
namespace {

struct LabelsOptions {
  std::string file, to, out;
  std::vector<std::string> students;
  i16 name_mode = 68;
  OpenOptions opening;
};

CommandResult MakeLabels(const LabelsOptions& options) {
  NameMode = options.name_mode;
  std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  if (Current().NumStudents == 0) return Refused(options.file, kNoStudents);
  const CommandLineSurroundings surroundings(std::nullopt,
                                             DateOrderOfOption(options.opening.date_order));
  SortStudents();
  std::vector<i16> students;
  reason = TakeStudents(options.students, students);
  if (!reason.empty()) return Refused(options.file, reason);
  reason = WhyNotOver(options.out);
  if (!reason.empty()) return Refused(options.out, reason);
  const LabelTo to = options.to == "parent" ? LabelTo::kParent : LabelTo::kStudent;
  const PdfOutcome outcome = WritePdfJob(options.out, "Student Labels",
                                         [&](PrintTarget& pdf) { PrintLabels(pdf, students, to); });
  if (!outcome.refusal.empty()) return Refused(options.file, outcome.refusal);
  return outcome.error == 0 ? Done() : Refused(options.out, FileErrorText(outcome.error));
}

}  // namespace

void AddLabelsCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("labels", "Prints address labels, three across, into a PDF");
  const auto options = std::make_shared<LabelsOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  command.AddOption("--to", options->to, "whom they address")
      .OneOf(std::vector<std::string>{"student", "parent"})
      .Required();
  command.AddOption("--out", options->out, "the PDF to write").Required();
  AddStudents(command, options->students);
  AddNameMode(command, options->name_mode);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return MakeLabels(*options); }; });
}

}  // namespace tallyroll
