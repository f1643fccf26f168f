// SPDX-License-Identifier: GPL-3.0-or-later
#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <vector>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "cli/class_in_file.h"
#include "cli/commands.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

struct ShowOptions {
  std::string file;
  i16 name_mode = 68;
  OpenOptions opening;
};

// A row holds a cell for each column; row 0 is the heading. Cells are in the code page, so that
// one byte is one column of the screen.
using Table = std::vector<std::vector<std::string>>;

// Text of a class on one line of a terminal: no control character reaches it.
std::string Shown(std::string_view text) {
  std::string shown(Trim(text));
  for (char& c : shown) {
    const auto byte = static_cast<unsigned char>(c);
    const char32_t character = UnicodeOf(byte);
    if (character < 32 || (character >= 127 && character < 160)) c = ' ';
  }
  return shown;
}

std::string PlainName(const Student& student) {
  return Shown(student.lastname) + ", " + Shown(student.firstname);
}

std::string NumberedName(const Student& student, int number) {
  return SignedNumberText(number) + " " + PlainName(student);
}

std::vector<std::string> HeadingRow(const Class& c) {
  std::vector<std::string> row;
  switch (NameMode) {
    case 57:
      row = {"NAME"};
      break;
    case 82:
      row = {"ID", "NAME"};
      break;
    case 73:
      row = {"ID"};
      break;
    default:
      row = {"NAME", "ID"};
      break;
  }
  for (int j = 1; j <= c.NumInstruments; ++j) {
    row.push_back(Shown(c.Instruments[static_cast<std::size_t>(j)].code));
  }
  return row;
}

std::vector<std::string> StudentRow(const Class& c, int i) {
  const Student& student = c.Students[static_cast<std::size_t>(i)];
  const std::string id = Shown(student.id);
  std::vector<std::string> row;
  switch (NameMode) {
    case 57:
      row = {NumberedName(student, i)};
      break;
    case 82:
      row = {id, PlainName(student)};
      break;
    case 73:
      row = {id};
      break;
    default:
      row = {NumberedName(student, i), id};
      break;
  }
  for (int j = 1; j <= c.NumInstruments; ++j) {
    row.push_back(Shown(student.Marks[static_cast<std::size_t>(j)]));
  }
  return row;
}

std::string AlignedText(const Table& table) {
  std::vector<std::size_t> widths(table.front().size());
  for (const auto& row : table) {
    for (std::size_t k = 0; k < row.size(); ++k) widths[k] = std::max(widths[k], row[k].size());
  }
  std::string text;
  for (const auto& row : table) {
    std::string line;
    for (std::size_t k = 0; k < row.size(); ++k) {
      line += (k == 0 ? "" : "  ") + PadRight(row[k], widths[k]);
    }
    text += std::string(TrimRight(line)) + "\n";
  }
  return text;
}

std::string ClassHeading(const Class& c) {
  std::string heading;
  for (const std::string* part : {&c.description, &c.teacher, &c.school}) {
    const std::string shown = Shown(*part);
    if (!shown.empty()) heading += (heading.empty() ? "" : ", ") + shown;
  }
  return heading.empty() ? heading : heading + "\n\n";
}

CommandResult Show(const ShowOptions& options) {
  NameMode = options.name_mode;
  const std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  const Class& c = Current();
  Table table = {HeadingRow(c)};
  for (int i = 1; i <= c.NumStudents; ++i) table.push_back(StudentRow(c, i));
  return Done(Utf8FromCodePage(ClassHeading(c) + AlignedText(table)));
}

}  // namespace

void AddShowCommand(CLI::App& app, ChosenCommand& chosen) {
  CLI::App* command = app.add_subcommand("show", "Shows the students and their marks as a table");
  const auto options = std::make_shared<ShowOptions>();
  command->add_option("FILE", options->file, "the class file")->required();
  command
      ->add_option("--name-mode", options->name_mode,
                   "by name: 68 with the ID, 57 without; by ID: 82 with the name, 73 without")
      ->check(CLI::IsMember({68, 57, 82, 73}));
  AddOpenOptions(*command, options->opening);
  command->callback(
      [&chosen, options] { chosen = [options](std::istream&) { return Show(*options); }; });
}

}  // namespace tallyroll
