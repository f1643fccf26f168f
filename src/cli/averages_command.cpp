// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>
#include <vector>

#include "averages/rounding.h"
#include "base/code_page.h"
#include "base/number_text.h"
#include "cli/class_in_file.h"
#include "cli/commands.h"
#include "cli/json_text.h"
#include "cli/table_text.h"
#include "store/csv.h"

namespace tallyroll {
namespace {

struct AveragesOptions {
  std::string file;
  bool csv = false;
  bool json = false;
  i16 name_mode = 68;
  OpenOptions opening;
};

bool HasPoints() {
  return Current().Method == 2 || Current().Method == 3;
}

// Hands each student and his figures on. Answers why there are none, if one cannot be computed.
template <typename Visitor>
std::string ForEachOutcome(Visitor&& visit) {
  const Class& c = Current();
  for (int i = 1; i <= c.NumStudents; ++i) {
    CurrentStudent = static_cast<i16>(i);
    StudentAverage outcome;
    if (const AverageError error = AverageStudent(outcome)) return AverageErrorText(error);
    visit(i, c.Students[static_cast<std::size_t>(i)], outcome);
  }
  return {};
}

// ---- As a table ----

std::string PointsText(const Points& points) {
  return PlainNumberText(points.earned) + "/" + PlainNumberText(points.possible);
}

std::string TableText(std::string& text) {
  std::vector<std::string> heading = NameHeading();
  if (HasPoints()) heading.emplace_back("POINTS");
  heading.emplace_back("AVERAGE");
  heading.emplace_back("GRADE");
  Table table = {heading};
  std::string reason = ForEachOutcome([&](int i, const Student&, const StudentAverage& outcome) {
    std::vector<std::string> row = NameCells(Current(), i);
    if (HasPoints()) row.push_back(PointsText(outcome.points));
    row.push_back(PlainNumberText(outcome.exact));
    row.push_back(outcome.grade.Text());
    table.push_back(std::move(row));
  });
  text = Utf8FromCodePage(ClassHeading(Current()) + AlignedText(table));
  return reason;
}

// ---- As comma-separated values ----

std::string CsvText(std::string& text) {
  text = "id,lastname,firstname,ComputedAverage,ExactAverage,FinalGrade,Marks0,earned,possible\n";
  return ForEachOutcome([&](int, const Student& student, const StudentAverage& outcome) {
    const bool points = HasPoints();
    const std::string fields = "," + PlainNumberText(outcome.computed) + "," +
                               PlainNumberText(outcome.exact) + "," +
                               CsvField(outcome.grade.Text()) + "," + outcome.grade.mark.str() +
                               "," + (points ? PlainNumberText(outcome.points.earned) : "") + "," +
                               (points ? PlainNumberText(outcome.points.possible) : "") + "\n";
    text += Utf8FromCodePage(CsvField(student.id) + "," + CsvField(student.lastname) + "," +
                             CsvField(student.firstname) + fields);
  });
}

// ---- As JSON ----

// A class may have thousands of students with 78 figures each, so the text is put together without
// a tree of values; the texts that need escapes go through the JSON library.
std::string Quoted(std::string_view text) {
  return Json(Utf8FromCodePage(text)).dump();
}
std::string Quoted(Currency value) {
  return '"' + PlainNumberText(value) + '"';
}

std::string Items(const TypeCounts& counts) {
  std::string text;
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    text += (t == 1 ? "" : ", ") + PlainNumberText(int{counts[t]});
  }
  return "[" + text + "]";
}

std::string Items(const TypeSums& sums) {
  std::string text;
  for (std::size_t t = 1; t <= kGradeTypes; ++t) text += (t == 1 ? "" : ", ") + Quoted(sums[t]);
  return "[" + text + "]";
}

void AddJsonObject(const Student& student, const StudentAverage& outcome, std::string& text) {
  const bool points = HasPoints();
  const char* separator = "  {\n    \"";
  const auto add = [&](const char* name, const std::string& value) {
    text.append(separator).append(name).append("\": ").append(value);
    separator = ",\n    \"";
  };
  add("id", Quoted(student.id));
  add("lastname", Quoted(student.lastname));
  add("firstname", Quoted(student.firstname));
  add("ComputedAverage", Quoted(outcome.computed));
  add("ExactAverage", Quoted(outcome.exact));
  add("FinalGrade", Quoted(outcome.grade.Text()));
  add("Marks0", Quoted(outcome.grade.mark.view()));
  add("counts", Items(outcome.totals.counts));
  add("sums", Items(outcome.totals.sums));
  add("maxes", Items(outcome.totals.maxes));
  add("earned", points ? Quoted(outcome.points.earned) : "null");
  add("possible", points ? Quoted(outcome.points.possible) : "null");
  text += "\n  }";
}

std::string ArrayText(std::string& text) {
  text = "[";
  std::string reason =
      ForEachOutcome([&](int i, const Student& student, const StudentAverage& outcome) {
        text += i == 1 ? "\n" : ",\n";
        AddJsonObject(student, outcome, text);
      });
  text += "\n]\n";
  return reason;
}

// ---- The command ----

CommandResult Averages(const AveragesOptions& options) {
  NameMode = options.name_mode;
  std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  if (Current().NumStudents == 0) return Refused(options.file, kNoStudents);
  std::string text;
  reason = options.json ? ArrayText(text) : options.csv ? CsvText(text) : TableText(text);
  return reason.empty() ? Done(text) : Refused(options.file, Utf8FromCodePage(reason));
}

}  // namespace

void AddAveragesCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("averages", "Shows every student's average and final grade");
  const auto options = std::make_shared<AveragesOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  CommandOption csv = command.AddFlag("--csv", options->csv, "as comma-separated values");
  command.AddFlag("--json", options->json, "as JSON, with the totals by type").Excludes(csv);
  AddNameMode(command, options->name_mode);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return Averages(*options); }; });
}

}  // namespace tallyroll
