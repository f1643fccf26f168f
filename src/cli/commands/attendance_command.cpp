// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>
#include <vector>

#include "attendance/consecutive.h"
#include "attendance/daily_codes.h"
#include "base/code_page.h"
#include "base/date_serial.h"
#include "base/number_text.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/json_text.h"
#include "cli/basics/months_option.h"
#include "cli/basics/table_text.h"
#include "cli/commands/commands.h"
#include "store/csv.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

struct AttendanceOptions {
  std::string file;
  std::string months;
  int consecutive = 0;  // 0: counts are wanted
  bool csv = false;
  bool json = false;
  i16 name_mode = 68;
  OpenOptions opening;
};

constexpr std::string_view kTotal = "T";

const Student& StudentAt(int i) {
  return Current().Students[static_cast<std::size_t>(i)];
}

std::string Iso(double day) {
  std::string text = DateText(day, DateOrder::kYearFirst);
  for (char& c : text) c = c == '/' ? '-' : c;
  return text;
}

std::string CsvNames(const Student& student) {
  return CsvTextField(student.id) + "," + CsvTextField(student.lastname) + "," +
         CsvTextField(student.firstname);
}

Json JsonNames(const Student& student) {
  return {{"id", Utf8FromCodePage(student.id)},
          {"lastname", Utf8FromCodePage(student.lastname)},
          {"firstname", Utf8FromCodePage(student.firstname)}};
}

std::string TableText(const Table& table) {
  return Utf8FromCodePage(ClassHeading(Current()) + AlignedText(table));
}

// ---- Counts ----

std::vector<std::string> Figures(const CodeCounts& counts) {
  std::vector<std::string> figures;
  for (const char code : kDailyCodes) figures.push_back(PlainNumberText(int{counts.Of(code)}));
  figures.push_back(PlainNumberText(counts.Absences()));
  return figures;
}

std::string CountsTable(DayRange range) {
  std::vector<std::string> heading = NameHeading();
  for (const char code : kDailyCodes) heading.emplace_back(1, code);
  heading.emplace_back(kTotal);
  Table table = {heading};
  for (int i = 1; i <= Current().NumStudents; ++i) {
    std::vector<std::string> row = NameCells(Current(), i);
    for (std::string& figure : Figures(CountDays(StudentAt(i), range)))
      row.push_back(std::move(figure));
    table.push_back(std::move(row));
  }
  return TableText(table);
}

std::string CountsCsv(DayRange range) {
  std::string text = "id,lastname,firstname";
  for (const char code : kDailyCodes) text += std::string(",") + code;
  text += "," + std::string(kTotal) + "\n";
  for (int i = 1; i <= Current().NumStudents; ++i) {
    text += CsvNames(StudentAt(i));
    for (const std::string& figure : Figures(CountDays(StudentAt(i), range))) text += "," + figure;
    text += "\n";
  }
  return Utf8FromCodePage(text);
}

std::string CountsJson(DayRange range) {
  Json all = Json::array();
  for (int i = 1; i <= Current().NumStudents; ++i) {
    const CodeCounts counts = CountDays(StudentAt(i), range);
    Json student = JsonNames(StudentAt(i));
    for (const char code : kDailyCodes) student[std::string(1, code)] = counts.Of(code);
    student[std::string(kTotal)] = counts.Absences();
    all.push_back(std::move(student));
  }
  return JsonText(all);
}

// ---- Absences in a row ----

std::string Dates(const AbsenceRun& run) {
  std::string text;
  for (const double day : run.dates) text += (text.empty() ? "" : " ") + Iso(day);
  return text;
}

std::string RunsTable(const std::vector<AbsenceRun>& runs) {
  std::vector<std::string> heading = NameHeading();
  heading.emplace_back("DAYS");
  heading.emplace_back("DATES");
  Table table = {heading};
  for (const AbsenceRun& run : runs) {
    std::vector<std::string> row = NameCells(Current(), run.student);
    row.push_back(PlainNumberText(static_cast<int>(run.dates.size())));
    row.push_back(Dates(run));
    table.push_back(std::move(row));
  }
  return TableText(table);
}

std::string RunsCsv(const std::vector<AbsenceRun>& runs) {
  std::string text = "id,lastname,firstname,days,dates\n";
  for (const AbsenceRun& run : runs)
    text += CsvNames(StudentAt(run.student)) + "," +
            PlainNumberText(static_cast<int>(run.dates.size())) + "," + Dates(run) + "\n";
  return Utf8FromCodePage(text);
}

std::string RunsJson(const std::vector<AbsenceRun>& runs) {
  Json all = Json::array();
  for (const AbsenceRun& run : runs) {
    Json found = JsonNames(StudentAt(run.student));
    found["dates"] = Json::array();
    for (const double day : run.dates) found["dates"].push_back(Iso(day));
    all.push_back(std::move(found));
  }
  return JsonText(all);
}

// ---- The command ----

// Empty when nobody was absent on so many days in a row.
std::string Output(const AttendanceOptions& options, DayRange range) {
  if (options.consecutive > 0) {
    const std::vector<AbsenceRun> runs = AbsencesInARow(range, options.consecutive);
    if (runs.empty()) return {};
    return options.json ? RunsJson(runs) : options.csv ? RunsCsv(runs) : RunsTable(runs);
  }
  return options.json ? CountsJson(range) : options.csv ? CountsCsv(range) : CountsTable(range);
}

CommandResult Attendance(const AttendanceOptions& options) {
  NameMode = options.name_mode;
  std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  if (Current().NumStudents == 0) return Refused(options.file, kNoStudents);
  DayRange range{1, Current().NumDays};
  if (!options.months.empty()) {
    MonthRange months;
    reason = TakeMonthsOption(options.months, months);
    if (!reason.empty()) return Refused(options.file, reason);
    const CivilDate last = DateOfSerial(months.last);
    range = DaysBetween(months.first, DateSerial({last.year, last.month + 1, 1}) - 1);
  }
  std::string text = Output(options, range);
  if (text.empty())
    return Refused(options.file, "no student was absent on " +
                                     PlainNumberText(options.consecutive) +
                                     " or more marked days in a row");
  return Done(std::move(text));
}

}  // namespace

void AddAttendanceCommand(Command& app, ChosenCommand& chosen) {
  Command command =
      app.AddCommand("attendance", "Counts every student's absences, cuts, lates and so on");
  const auto options = std::make_shared<AttendanceOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  command.AddOption("--months", options->months, "these months alone, YYYY-MM..YYYY-MM");
  command
      .AddOption("--consecutive", options->consecutive,
                 "who was absent on so many marked days in a row, with the dates")
      .Between(1, 32767);
  CommandOption csv = command.AddFlag("--csv", options->csv, "as comma-separated values");
  command.AddFlag("--json", options->json, "as JSON").Excludes(csv);
  AddNameMode(command, options->name_mode);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return Attendance(*options); }; });
}

}  // namespace tallyroll
