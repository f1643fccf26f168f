// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of tallyroll-cli: one file each.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>

#include "cli/command_options.h"
#include "store/records.h"

namespace tallyroll {

// What a command gives: the whole of its output, or why it was refused.
struct CommandResult {
  bool refused = false;
  std::string text;       // UTF-8
  std::string note = {};  // a line on standard error all the same
};

// "FILE: reason" on one line, whatever the name or the message holds.
std::string ReasonLine(const std::string& file, const std::string& reason);

CommandResult Done(std::string text = {});
CommandResult Refused(const std::string& file, const std::string& reason);

// The command that the command line chose, with its options; run when the line was read whole.
using ChosenCommand = std::function<CommandResult(std::istream& in)>;

// Adds --password and --date-order to a command that opens a class.
struct OpenOptions;
void AddOpenOptions(Command& command, OpenOptions& options);
// Adds --force to a command that writes a class.
void AddForce(Command& command, bool& force);
// How names and IDs are shown and sorted.
void AddNameMode(Command& command, i16& name_mode);

// Each adds its command and its options, and fills `chosen` when it is the one.
void AddDumpCommand(Command& app, ChosenCommand& chosen);
void AddBuildCommand(Command& app, ChosenCommand& chosen);
void AddCheckCommand(Command& app, ChosenCommand& chosen);
void AddConvertCommand(Command& app, ChosenCommand& chosen);
void AddShowCommand(Command& app, ChosenCommand& chosen);
void AddAveragesCommand(Command& app, ChosenCommand& chosen);
void AddAttendanceCommand(Command& app, ChosenCommand& chosen);
void AddReportCommand(Command& app, ChosenCommand& chosen);
void AddStatisticsCommand(Command& app, ChosenCommand& chosen);
void AddCompareCommand(Command& app, ChosenCommand& chosen);
void AddImportCommand(Command& app, ChosenCommand& chosen);
void AddExportCommand(Command& app, ChosenCommand& chosen);
void AddSeatingCommand(Command& app, ChosenCommand& chosen);

}  // namespace tallyroll
