// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>
#include <vector>

#include "base/code_page.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/table_text.h"
#include "cli/commands/commands.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

struct ShowOptions {
  std::string file;
  i16 name_mode = 68;
  OpenOptions opening;
};

std::vector<std::string> HeadingRow(const Class& c) {
  std::vector<std::string> row = NameHeading();
  for (int j = 1; j <= c.NumInstruments; ++j) {
    row.push_back(CellText(c.Instruments[static_cast<std::size_t>(j)].code));
  }
  return row;
}

std::vector<std::string> StudentRow(const Class& c, int i) {
  std::vector<std::string> row = NameCells(c, i);
  const Student& student = c.Students[static_cast<std::size_t>(i)];
  for (int j = 1; j <= c.NumInstruments; ++j) {
    row.push_back(CellText(student.Marks[static_cast<std::size_t>(j)]));
  }
  return row;
}

CommandResult Show(const ShowOptions& options) {
  NameMode = options.name_mode;
  const std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  const Class& c = Current();
  if (c.NumStudents == 0) return Refused(options.file, kNoStudents);
  Table table = {HeadingRow(c)};
  for (int i = 1; i <= c.NumStudents; ++i) table.push_back(StudentRow(c, i));
  return Done(Utf8FromCodePage(ClassHeading(c) + AlignedText(table)));
}

}  // namespace

void AddShowCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("show", "Shows the students and their marks as a table");
  const auto options = std::make_shared<ShowOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  AddNameMode(command, options->name_mode);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return Show(*options); }; });
}

}  // namespace tallyroll
