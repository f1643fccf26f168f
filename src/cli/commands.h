// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of tallyroll-cli: one file each.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>

#include "store/records.h"

namespace CLI {
class App;
}

namespace tallyroll {

// What a command gives: the whole of its output, or why it was refused.
struct CommandResult {
  bool refused = false;
  std::string text;  // UTF-8
};

// "FILE: reason" on one line, whatever the name or the message holds.
std::string ReasonLine(const std::string& file, const std::string& reason);

CommandResult Done(std::string text = {});
CommandResult Refused(const std::string& file, const std::string& reason);

// The command that the command line chose, with its options; run when the line was read whole.
using ChosenCommand = std::function<CommandResult(std::istream& in)>;

// Adds --password and --date-order to a command that opens a class.
struct OpenOptions;
void AddOpenOptions(CLI::App& command, OpenOptions& options);
// How names and IDs are shown and sorted.
void AddNameMode(CLI::App& command, i16& name_mode);

// Each adds its command and its options, and fills `chosen` when it is the one.
void AddDumpCommand(CLI::App& app, ChosenCommand& chosen);
void AddBuildCommand(CLI::App& app, ChosenCommand& chosen);
void AddCheckCommand(CLI::App& app, ChosenCommand& chosen);
void AddConvertCommand(CLI::App& app, ChosenCommand& chosen);
void AddShowCommand(CLI::App& app, ChosenCommand& chosen);
void AddAveragesCommand(CLI::App& app, ChosenCommand& chosen);
void AddAttendanceCommand(CLI::App& app, ChosenCommand& chosen);
void AddReportCommand(CLI::App& app, ChosenCommand& chosen);
void AddStatisticsCommand(CLI::App& app, ChosenCommand& chosen);
void AddCompareCommand(CLI::App& app, ChosenCommand& chosen);
void AddImportCommand(CLI::App& app, ChosenCommand& chosen);
void AddExportCommand(CLI::App& app, ChosenCommand& chosen);

}  // namespace tallyroll
