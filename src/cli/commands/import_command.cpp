// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>

#include "base/code_page.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/command_line_surroundings.h"
#include "cli/basics/date_order.h"
#include "cli/basics/text_layouts.h"
#include "cli/commands/commands.h"
#include "store/class_defaults.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/text/text_import.h"

namespace tallyroll {
namespace {

struct ImportOptions {
  std::string text;
  std::string file;
  std::string layout;
  bool leave_out = false;
  bool force = false;
};

std::string LackingReason(const TextRoster& roster) {
  std::string reason = "holds what a class file cannot hold (--leave-out leaves it empty)";
  for (const std::string& value : roster.lacking) reason += "; " + value;
  return Utf8FromCodePage(reason);
}

void StartClass() {
  CurrentClass = 1;
  StartNewClass();
  SetDefaultRoundScale();
  SetDefaultLetterValues();
}

std::string Told(const ImportOutcome& outcome) {
  if (outcome.given.empty()) return {};
  std::string text = GivenIdsSentence(outcome) + "\n";
  for (const std::string& line : GivenIdLines(outcome)) text += line + "\n";
  return Utf8FromCodePage(text);
}

CommandResult Import(const ImportOptions& options) {
  if (IsSameFile(options.text, options.file))
    return Refused(options.file, "is the text file itself, which is left as it is");
  const FileContents file = ReadWholeFile(options.text, kLargestTextFile);
  if (file.error != 0) return Refused(options.text, FileErrorText(file.error));
  TextRoster roster = ReadRosterText(file.bytes, kTextLayouts.at(options.layout));
  if (!roster.refusal.empty()) return Refused(options.text, roster.refusal);
  if (!roster.lacking.empty() && !options.leave_out)
    return Refused(options.text, LackingReason(roster));

  const CommandLineSurroundings surroundings({}, DateOrderOfOption(""));
  StartClass();
  const ImportOutcome outcome = AddStudents(roster);
  if (outcome.error != 0) return Refused(options.text, FileErrorText(outcome.error));
  const std::string reason = WriteClassTo(options.file, Current(), options.force);
  return reason.empty() ? Done(Told(outcome)) : Refused(options.file, reason);
}

}  // namespace

void AddImportCommand(Command& app, ChosenCommand& chosen) {
  Command command =
      app.AddCommand("import", "Makes a class of the students that a text file holds");
  const auto options = std::make_shared<ImportOptions>();
  command.AddOption("TEXT", options->text, "the text file, one student a line").Required();
  command.AddOption("FILE", options->file, "the class file to write").Required();
  command.AddOption("--layout", options->layout, "how the fields of a line are parted")
      .Required()
      .OneOf(NamesOf(kTextLayouts));
  command.AddFlag("--leave-out", options->leave_out,
                  "leave a value empty that a class file cannot hold, and import the rest");
  AddForce(command, options->force);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return Import(*options); }; });
}

}  // namespace tallyroll
