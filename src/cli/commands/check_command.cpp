// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>
#include <vector>

#include "base/code_page.h"
#include "base/number_text.h"
#include "cli/basics/class_in_file.h"
#include "cli/commands/commands.h"
#include "store/check_class.h"

namespace tallyroll {
namespace {

std::string Counted(i16 count, const char* what) {
  return PlainNumberText(int{count}) + " " + what;
}

// The lines of one file; raises `faulty` when it is not in order.
std::string CheckLines(const std::string& file, bool& faulty) {
  Class c;
  const std::string reason = ParseClassFile(file, c);
  if (!reason.empty()) {
    faulty = true;
    return ReasonLine(file, reason) + "\n";
  }
  const std::vector<std::string> broken = BrokenInvariants(c);
  if (broken.empty()) {
    return ReasonLine(file, "ok, " + Counted(c.NumStudents, "students") + ", " +
                                Counted(c.NumInstruments, "grades") + ", " +
                                Counted(c.NumDays, "days")) +
           "\n";
  }
  faulty = true;
  std::string lines;
  for (const std::string& invariant : broken) {
    lines += ReasonLine(file, Utf8FromCodePage(invariant)) + "\n";
  }
  return lines;
}

// Faults stand among the lines of the other files, in the order asked for: on standard output when
// every file is in order, otherwise on standard error.
CommandResult Check(const std::vector<std::string>& files) {
  CommandResult result;
  for (const std::string& file : files) result.text += CheckLines(file, result.refused);
  return result;
}

}  // namespace

void AddCheckCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("check", "Says whether class files are in order");
  const auto files = std::make_shared<std::vector<std::string>>();
  command.AddOption("FILE", *files, "the class files").Required();
  command.WhenChosen(
      [&chosen, files] { chosen = [files](std::istream&) { return Check(*files); }; });
}

}  // namespace tallyroll
