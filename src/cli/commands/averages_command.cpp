// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "averages/rounding.h"
#include "base/code_page.h"
#include "base/number_text.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/json_text.h"
#include "cli/basics/table_text.h"
#include "cli/commands/commands.h"
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
    text += Utf8FromCodePage(CsvTextField(student.id) + "," + CsvTextField(student.lastname) + "," +
                             CsvTextField(student.firstname) + fields);
  });
}

// ---- As JSON ----

// A class may have thousands of students with 78 figures each, so the text is put together in
// place, without a tree of values and without a text of each figure; texts that need escapes go
// through the JSON library.
bool NeedsEscape(char c) {
  return c < ' ' || c > '~' || c == '"' || c == '\\';
}

void AddQuoted(std::string& text, std::string_view value) {
  if (std::any_of(value.begin(), value.end(), NeedsEscape))
    text += Json(Utf8FromCodePage(value)).dump();
  else
    text.append(1, '"').append(value).append(1, '"');
}

// Most of a student's types hold no grade.
void AddQuoted(std::string& text, Currency value) {
  if (value == Currency())
    text += "\"0\"";
  else
    text.append(1, '"').append(PlainNumberText(value)).append(1, '"');
}

void AddCount(std::string& text, int count) {
  if (count >= 0 && count < 10)
    text += static_cast<char>('0' + count);
  else
    text += PlainNumberText(count);
}

// The items of types 1 to 26.
template <typename Items, typename Add>
void AddArray(std::string& text, const Items& items, Add&& add) {
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    text += t == 1 ? "[" : ", ";
    add(items[t]);
  }
  text += ']';
}

void AddJsonObject(const Student& student, const StudentAverage& outcome, std::string& text) {
  const auto name = [&](const char* first, const char* field) {
    text.append(first).append(field).append("\": ");
  };
  const auto quoted = [&](const char* field, auto value) {
    name(",\n    \"", field);
    AddQuoted(text, value);
  };
  const auto sums = [&](const char* field, const TypeSums& items) {
    name(",\n    \"", field);
    AddArray(text, items, [&](Currency value) { AddQuoted(text, value); });
  };
  const auto points = [&](const char* field, Currency value) {
    name(",\n    \"", field);
    if (HasPoints())
      AddQuoted(text, value);
    else
      text += "null";
  };
  name("  {\n    \"", "id");
  AddQuoted(text, student.id);
  quoted("lastname", std::string_view(student.lastname));
  quoted("firstname", std::string_view(student.firstname));
  quoted("ComputedAverage", outcome.computed);
  quoted("ExactAverage", outcome.exact);
  quoted("FinalGrade", outcome.grade.Text());
  quoted("Marks0", outcome.grade.mark.view());
  name(",\n    \"", "counts");
  AddArray(text, outcome.totals.counts, [&](int count) { AddCount(text, count); });
  sums("sums", outcome.totals.sums);
  sums("maxes", outcome.totals.maxes);
  points("earned", outcome.points.earned);
  points("possible", outcome.points.possible);
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
  return reason.empty() ? Done(std::move(text)) : Refused(options.file, Utf8FromCodePage(reason));
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
