// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command_line.h"

#include <algorithm>
#include <iostream>
#include <string>

#include "cli/basics/command_line_surroundings.h"
#include "cli/commands/commands.h"
#include "shell/program.h"

namespace tallyroll {
namespace {

constexpr int kRefused = 1;
constexpr int kWrongCommandLine = 2;

void WriteReason(std::string reason, std::ostream& err) {
  while (!reason.empty() && reason.back() == '\n') reason.pop_back();
  err << reason << std::endl;
}

int RefuseCommandLine(const std::string& reason, std::ostream& err) {
  WriteReason(ReasonLine("tallyroll-cli", reason + " (see --help)"), err);
  return kWrongCommandLine;
}

int RunChosen(const ChosenCommand& chosen, std::istream& in, std::ostream& out, std::ostream& err) {
  ResetProgram();
  CommandResult result = chosen(in);
  if (result.refused) {
    WriteReason(std::move(result.text), err);
    return kRefused;
  }
  if (!result.note.empty()) WriteReason(result.note, err);
  const bool whole = !result.stream || result.stream(out, err);
  out << result.text << std::flush;
  if (out) return whole && !result.failed ? 0 : kRefused;
  WriteReason("standard output: cannot be written", err);
  return kRefused;
}

}  // namespace

int RunCommandLine(int argc, const char* const* argv, std::istream& in, std::ostream& out,
                   std::ostream& err) {
  CommandParser parser;
  Command app = parser.Root();
  ChosenCommand chosen;
  AddDumpCommand(app, chosen);
  AddBuildCommand(app, chosen);
  AddCheckCommand(app, chosen);
  AddConvertCommand(app, chosen);
  AddShowCommand(app, chosen);
  AddAveragesCommand(app, chosen);
  AddAttendanceCommand(app, chosen);
  AddReportCommand(app, chosen);
  AddStatisticsCommand(app, chosen);
  AddCompareCommand(app, chosen);
  AddImportCommand(app, chosen);
  AddExportCommand(app, chosen);
  AddSeatingCommand(app, chosen);
  AddExplainCommand(app, chosen);
  AddUnusualCommand(app, chosen);
  AddHistoryCommand(app, chosen);
  AddSnapshotsCommand(app, chosen);
  AddRowsCommand(app, chosen);
  AddExchangeCommand(app, chosen);
  AddLettersCommand(app, chosen);
  AddLabelsCommand(app, chosen);
  AddMailCommand(app, chosen);
  std::string reason;
  const ParsedLine parsed = parser.Parse(argc, argv, out, reason);
  if (parsed == ParsedLine::kWrong) return RefuseCommandLine(reason, err);
  if (parsed == ParsedLine::kAnswered) return 0;
  return RunChosen(chosen, in, out, err);
}

int RunCommandLine(int argc, const char* const* argv) {
  return RunCommandLine(argc, argv, std::cin, std::cout, std::cerr);
}

}  // namespace tallyroll
