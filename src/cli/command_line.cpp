// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>

#include "cli/command_line_surroundings.h"
#include "cli/commands.h"
#include "shell/program.h"

namespace tallyroll {
namespace {

constexpr int kRefused = 1;
constexpr int kWrongCommandLine = 2;

void WriteReason(std::string reason, std::ostream& err) {
  while (!reason.empty() && reason.back() == '\n') reason.pop_back();
  err << reason << std::endl;
}

int RefuseCommandLine(const CLI::ParseError& error, std::ostream& err) {
  WriteReason(ReasonLine("tallyroll-cli", error.what() + std::string(" (see --help)")), err);
  return kWrongCommandLine;
}

int RunChosen(const ChosenCommand& chosen, std::istream& in, std::ostream& out, std::ostream& err) {
  ResetProgram();
  CommandResult result = chosen(in);
  if (result.refused) {
    WriteReason(std::move(result.text), err);
    return kRefused;
  }
  out << result.text << std::flush;
  if (out) return 0;
  WriteReason("standard output: cannot be written", err);
  return kRefused;
}

}  // namespace

CommandResult Done(std::string text) {
  return {false, std::move(text)};
}

std::string ReasonLine(const std::string& file, const std::string& reason) {
  std::string line = file + ": " + reason;
  std::ranges::replace_if(
      line, [](char c) { return static_cast<unsigned char>(c) < 32; }, ' ');
  return line;
}

CommandResult Refused(const std::string& file, const std::string& reason) {
  return {true, ReasonLine(file, reason)};
}

int RunCommandLine(int argc, const char* const* argv, std::istream& in, std::ostream& out,
                   std::ostream& err) {
  CLI::App app("Tallyroll without a screen", "tallyroll-cli");
  app.set_version_flag("--version", "tallyroll-cli " TALLYROLL_VERSION);
  app.require_subcommand(1);
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
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() != 0) return RefuseCommandLine(error, err);
    app.exit(error, out, err);
    return 0;
  }
  return RunChosen(chosen, in, out, err);
}

int RunCommandLine(int argc, const char* const* argv) {
  return RunCommandLine(argc, argv, std::cin, std::cout, std::cerr);
}

}  // namespace tallyroll
