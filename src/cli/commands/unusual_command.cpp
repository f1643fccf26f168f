// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/json_text.h"
#include "cli/basics/table_text.h"
#include "cli/commands/commands.h"
#include "insight/unusual_marks.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

struct UnusualOptions {
  std::string file;
  bool json = false;
  i16 name_mode = 68;
  OpenOptions opening;
};

std::string Shown(std::string_view text) {
  return Utf8FromCodePage(Trim(text));
}

std::string UnusualAsJson(const std::vector<UnusualMark>& marks) {
  Json list = Json::array();
  const Class& c = Current();
  for (const UnusualMark& mark : marks) {
    const Student& student = c.Students[static_cast<std::size_t>(mark.student)];
    const Instrument& grade = c.Instruments[static_cast<std::size_t>(mark.grade)];
    list.push_back({{"id", Shown(student.id)},
                    {"lastname", Shown(student.lastname)},
                    {"firstname", Shown(student.firstname)},
                    {"grade", Shown(grade.title)},
                    {"code", Shown(grade.code)},
                    {"mark", Shown(mark.mark)},
                    {"what", NameOfKind(mark.kind)},
                    {"why", Shown(mark.told)}});
  }
  return JsonText(list);
}

std::string UnusualAsText(const std::vector<UnusualMark>& marks) {
  const Class& c = Current();
  Table table = {NameHeading()};
  for (const char* head : {"GRADE", "MARK", "WHAT", "WHY"}) table[0].emplace_back(head);
  for (const UnusualMark& mark : marks) {
    std::vector<std::string> row = NameCells(c, mark.student);
    row.push_back(CellText(c.Instruments[static_cast<std::size_t>(mark.grade)].title));
    row.push_back(CellText(mark.mark));
    row.emplace_back(NameOfKind(mark.kind));
    row.push_back(CellText(mark.told));
    table.push_back(std::move(row));
  }
  return Utf8FromCodePage(ClassHeading(c) + AlignedText(table));
}

CommandResult TellUnusual(const UnusualOptions& options) {
  NameMode = options.name_mode;
  const std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  if (Current().NumStudents == 0) return Refused(options.file, kNoStudents);
  const std::vector<UnusualMark> marks = UnusualMarks();
  if (options.json) return Done(UnusualAsJson(marks));
  return Done(marks.empty() ? "No mark of this class is unusual.\n" : UnusualAsText(marks));
}

}  // namespace

void AddUnusualCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("unusual", "Lists marks that may be slips");
  const auto options = std::make_shared<UnusualOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  command.AddFlag("--json", options->json, "as JSON");
  AddNameMode(command, options->name_mode);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return TellUnusual(*options); }; });
}

}  // namespace tallyroll
