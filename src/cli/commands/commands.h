// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of tallyroll-cli: one file each.
#pragma once

#include <functional>
#include <iosfwd>

#include "cli/basics/command_options.h"
#include "cli/basics/command_result.h"

namespace tallyroll {

// The command that the command line chose, with its options; run when the line was read whole.
using ChosenCommand = std::function<CommandResult(std::istream& in)>;

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
void AddExplainCommand(Command& app, ChosenCommand& chosen);
void AddUnusualCommand(Command& app, ChosenCommand& chosen);
void AddHistoryCommand(Command& app, ChosenCommand& chosen);
void AddSnapshotsCommand(Command& app, ChosenCommand& chosen);
void AddRowsCommand(Command& app, ChosenCommand& chosen);
void AddExchangeCommand(Command& app, ChosenCommand& chosen);
void AddLettersCommand(Command& app, ChosenCommand& chosen);
void AddLabelsCommand(Command& app, ChosenCommand& chosen);
void AddMailCommand(Command& app, ChosenCommand& chosen);

}  // namespace tallyroll
