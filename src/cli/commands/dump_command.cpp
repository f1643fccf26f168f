// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>

#include "cli/basics/class_in_file.h"
#include "cli/basics/class_json.h"
#include "cli/commands/commands.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

struct DumpOptions {
  std::string file;
  bool opened = false;
  OpenOptions opening;
};

CommandResult Dump(const DumpOptions& options) {
  if (!options.opened) {
    Class c;
    const std::string reason = ParseClassFile(options.file, c);
    return reason.empty() ? Done(JsonText(ClassToJson(c))) : Refused(options.file, reason);
  }
  const std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  Json json = ClassToJson(Current());
  AddDerivedFields(Current(), json);
  return Done(JsonText(json));
}

}  // namespace

void AddDumpCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("dump", "Writes a class file as JSON");
  const auto options = std::make_shared<DumpOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  CommandOption opened = command.AddFlag("--opened", options->opened,
                                         "the class as the program holds it after opening");
  AddOpenOptions(command, options->opening);
  for (const char* option : {"--password", "--date-order"}) {
    command.Option(option).Needs(opened);
  }
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return Dump(*options); }; });
}

}  // namespace tallyroll
