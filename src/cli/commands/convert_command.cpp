// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>

#include "cli/basics/class_in_file.h"
#include "cli/commands/commands.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

struct ConvertOptions {
  std::string from;
  std::string to;
  bool force = false;
  OpenOptions opening;
};

CommandResult Convert(const ConvertOptions& options) {
  if (IsSameFile(options.from, options.to)) {
    return Refused(options.to, "is the old file itself, which is left as it is");
  }
  std::string reason = OpenClassFile(options.from, options.opening);
  if (!reason.empty()) return Refused(options.from, reason);
  if (!IsOlderFormat(Current())) {
    return Refused(options.from, "is already in the current format");
  }
  Current().Magic = "ty8";
  reason = WriteClassTo(options.to, Current(), options.force);
  return reason.empty() ? Done() : Refused(options.to, reason);
}

}  // namespace

void AddConvertCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("convert", "Writes an older class file in the current format");
  const auto options = std::make_shared<ConvertOptions>();
  command.AddOption("OLD", options->from, "the older class file").Required();
  command.AddOption("NEW", options->to, "the class file to write").Required();
  AddOpenOptions(command, options->opening);
  AddForce(command, options->force);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return Convert(*options); }; });
}

}  // namespace tallyroll
