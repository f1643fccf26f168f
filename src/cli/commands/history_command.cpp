// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>

#include "base/code_page.h"
#include "base/date_serial.h"
#include "base/text.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/json_text.h"
#include "cli/basics/table_text.h"
#include "cli/commands/commands.h"
#include "companion/change_history.h"
#include "store/csv.h"

namespace tallyroll {
namespace {

struct HistoryOptions {
  std::string file, student, grade, since;
  bool json = false, csv = false;
  OpenOptions opening;
};

std::string ToUtf8(const std::string& text) {
  return Utf8FromCodePage(text);
}

std::string HistoryAsJson(const std::vector<KeptChange>& changes) {
  Json list = Json::array();
  for (const auto& [number, time, change] : changes)
    list.push_back({{"time", time},
                    {"id", ToUtf8(change.student)},
                    {"name", ToUtf8(change.name)},
                    {"grade", ToUtf8(change.grade)},
                    {"code", ToUtf8(change.code)},
                    {"field", change.field},
                    {"old", ToUtf8(change.before)},
                    {"new", ToUtf8(change.after)}});
  return JsonText(list);
}

Table HistoryTable(const std::vector<KeptChange>& changes) {
  Table table = {{"TIME", "ID", "NAME", "GRADE", "CODE", "FIELD", "OLD", "NEW"}};
  for (const auto& [number, time, change] : changes)
    table.push_back({time, CellText(change.student), CellText(change.name), CellText(change.grade),
                     CellText(change.code), change.field, CellText(change.before),
                     CellText(change.after)});
  return table;
}

std::string HistoryAsCsv(const Table& table) {
  std::string text;
  for (const auto& row : table) {
    for (std::size_t i = 0; i < row.size(); ++i) text += (i > 0 ? "," : "") + CsvTextField(row[i]);
    text += "\n";
  }
  return Utf8FromCodePage(text);
}

CommandResult TellHistory(const HistoryOptions& options) {
  const std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  const auto student = CodePageFromUtf8(options.student);
  const auto grade = CodePageFromUtf8(options.grade);
  if (!student || !grade) return Refused(options.file, "no class can hold such a student or grade");
  ChangeFilter filter;
  filter.student = *student;
  filter.grade = *grade;
  filter.since = options.since;
  const KeptChanges kept = ChangesKept(options.file, filter);
  if (!kept.fault.empty()) return Refused(options.file, Utf8FromCodePage(kept.fault));
  if (options.json) return Done(HistoryAsJson(kept.changes));
  const Table table = HistoryTable(kept.changes);
  if (options.csv) return Done(HistoryAsCsv(table));
  if (kept.changes.empty()) return Done("No change is kept.\n");
  return Done(Utf8FromCodePage(AlignedText(table)));
}

std::string CheckSince(const std::string& text) {
  const bool whole = text.size() == 10 && DateFromText(text, DateOrder::kYearFirst).has_value();
  return whole ? "" : "must be a date, YYYY-MM-DD";
}

}  // namespace

void AddHistoryCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("history", "Lists what changed from save to save");
  const auto options = std::make_shared<HistoryOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  command.AddOption("--student", options->student, "a student's ID");
  command.AddOption("--grade", options->grade, "a grade's code or title");
  command.AddOption("--since", options->since, "the first day, YYYY-MM-DD").Check(CheckSince);
  const auto csv = command.AddFlag("--csv", options->csv, "as comma-separated values");
  command.AddFlag("--json", options->json, "as JSON").Excludes(csv);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return TellHistory(*options); }; });
}

}  // namespace tallyroll
