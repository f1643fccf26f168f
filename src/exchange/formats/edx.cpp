// SPDX-License-Identifier: GPL-3.0-or-later
// Open edX: its grade report, whose grades are parts of 1, the file of bulk grades, which can go
// back with new marks, and the points of single problems, a line for each student and problem.
#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "base/number_text.h"
#include "base/text.h"
#include "exchange/formats/csv_writer.h"
#include "exchange/formats/foreign_mark.h"
#include "exchange/formats/formats.h"
#include "platform/long_work.h"

namespace tallyroll {
namespace {

constexpr std::string_view kNotAttempted = "Not Attempted";
constexpr std::string_view kNamePrefix = "name-";

bool IsBulk(const CsvSource& source) {
  return source.Find("user_id") && source.Find("course_id");
}

bool IsProblems(const CsvSource& source) {
  return source.Find("user_id") && source.Find("block_id") && source.Find("Previous Points") &&
         source.Find("New Points");
}

bool IsReport(const CsvSource& source) {
  return source.Find("Student ID") && source.Find("Grade") && source.Find("Enrollment Status");
}

class EdxReader {
 public:
  explicit EdxReader(const CsvSource& source) : source_(source) {}

  ForeignTable Bulk() {
    for (std::size_t column = 0; column < source_.columns(); ++column)
      if (source_.Title(column).starts_with(kNamePrefix)) BulkTitle(column);
    ReadRows(source_, 0, table_, [this](std::size_t row) { BulkRow(row); });
    return std::move(table_);
  }

  ForeignTable Problems() {
    std::map<std::string, int> students, problems;
    std::set<std::pair<int, int>> known;
    ReadRows(source_, 0, table_, [&](std::size_t row) {
      if (source_.IsBlankRow(row)) return;
      const int problem = ProblemOf(row, problems);
      const int student = StudentOf(row, students);
      if (known.emplace(student, problem).second) return ReadPoints(row, student, problem);
      const auto column = static_cast<int>(*source_.Find("user_id")) + 1;
      table_.faults.push_back({source_.LineOf(row), column, CellOf(row, "user_id"),
                               "has points for this problem on an earlier line already"});
    });
    return std::move(table_);
  }

  ForeignTable Report() {
    const auto grade = source_.Find("Grade");
    for (std::size_t column = *grade + 1; column < source_.columns(); ++column)
      if (const std::string title = source_.Title(column); title.find(": ") != std::string::npos)
        ReportTitle(column, title);
    ReadRows(source_, 0, table_, [this](std::size_t row) { ReportRow(row); });
    return std::move(table_);
  }

 private:
  struct Item {
    std::size_t name;
    std::optional<std::size_t> grade, override_;
    int place;
  };

  void ReadPoints(std::size_t row, int student, int problem) {
    const std::size_t changed = *source_.Find("New Points");
    const bool is_new = !source_.Cell(row, changed).empty();
    TakeMark(source_, row, is_new ? changed : *source_.Find("Previous Points"), student, problem,
             table_);
  }

  // The title of a subsection stands in its column, on every line.
  void BulkTitle(std::size_t column) {
    ForeignGrade grade;
    grade.key = source_.Title(column).substr(kNamePrefix.size());
    for (std::size_t row = 0; row < source_.rows() && grade.title.empty(); ++row) {
      grade.title = source_.Cell(row, column);
      if (!source_.HoldsCell(row, column)) grade.shown = source_.ShownCell(row, column);
    }
    if (grade.title.empty()) grade.title = grade.key;
    const auto points = source_.Find("grade-" + grade.key);
    const auto changed = source_.Find("new_override-" + grade.key);
    grade.column = static_cast<int>(column) + 1;
    table_.grades.push_back(std::move(grade));
    items_.push_back({column, points, changed, static_cast<int>(table_.grades.size()) - 1});
  }

  std::string CellOf(std::size_t row, std::string_view title) const {
    const auto column = source_.Find(title);
    return column ? source_.Cell(row, *column) : std::string();
  }

  int ProblemOf(std::size_t row, std::map<std::string, int>& problems) {
    const std::size_t block = *source_.Find("block_id");
    const std::string key = source_.Cell(row, block);
    const auto [known, added] = problems.emplace(key, static_cast<int>(table_.grades.size()));
    if (!added) return known->second;
    ForeignGrade grade;
    grade.key = grade.title = key;
    if (const auto title = source_.Find("title"); title && !source_.Cell(row, *title).empty()) {
      grade.title = source_.Cell(row, *title);
      if (!source_.HoldsCell(row, *title)) grade.shown = source_.ShownCell(row, *title);
    }
    grade.column = static_cast<int>(block) + 1;
    grade.line = source_.LineOf(row);
    table_.grades.push_back(std::move(grade));
    return known->second;
  }

  int StudentOf(std::size_t row, std::map<std::string, int>& students) {
    const std::string key = CellOf(row, "user_id");
    const auto [known, added] = students.emplace(key, static_cast<int>(table_.students.size()));
    if (!added) return known->second;
    ForeignStudent student;
    student.line = source_.LineOf(row);
    student.key = key;
    student.login = CellOf(row, "username");
    student.id = CellOf(row, "student_uid");
    TakeName(CellOf(row, "full_name"), student);
    table_.students.push_back(std::move(student));
    return known->second;
  }

  void BulkRow(std::size_t row) {
    if (source_.IsBlankRow(row)) return;
    const std::string course = CellOf(row, "course_id");
    if (table_.course.empty()) table_.course = course;
    if (course != table_.course) {
      table_.faults.push_back({source_.LineOf(row),
                               static_cast<int>(*source_.Find("course_id")) + 1, course,
                               "is another course than on the lines above"});
      return;
    }
    ForeignStudent student;
    student.line = source_.LineOf(row);
    student.key = CellOf(row, "user_id");
    student.login = CellOf(row, "username");
    student.id = CellOf(row, "student_key");
    table_.students.push_back(std::move(student));
    const int place = static_cast<int>(table_.students.size()) - 1;
    for (const Item& item : items_) {
      const bool changed = item.override_ && !source_.Cell(row, *item.override_).empty();
      const auto column = changed ? item.override_ : item.grade;
      if (column) TakeMark(source_, row, *column, place, item.place, table_);
    }
  }

  void ReportTitle(std::size_t column, const std::string& title) {
    ForeignGrade grade;
    grade.title = title;
    grade.fraction = true;
    if (const int place = TakeGrade(source_, column, std::move(grade), table_); place >= 0)
      items_.push_back({column, column, std::nullopt, place});
  }

  void ReportRow(std::size_t row) {
    if (source_.IsBlankRow(row)) return;
    ForeignStudent student;
    student.line = source_.LineOf(row);
    student.key = CellOf(row, "Student ID");
    student.email = CellOf(row, "Email");
    student.login = CellOf(row, "Username");
    table_.students.push_back(std::move(student));
    const int place = static_cast<int>(table_.students.size()) - 1;
    for (const Item& item : items_)
      if (source_.Cell(row, item.name) != kNotAttempted)
        TakeMark(source_, row, item.name, place, item.place, table_);
  }

  const CsvSource& source_;
  ForeignTable table_;
  std::vector<Item> items_;
};

}  // namespace

bool LooksLikeEdx(const CsvSource& source) {
  return IsBulk(source) || IsProblems(source) || IsReport(source);
}

ForeignTable ReadEdx(const CsvSource& source) {
  if (IsBulk(source)) return EdxReader(source).Bulk();
  if (IsProblems(source)) return EdxReader(source).Problems();
  if (IsReport(source)) return EdxReader(source).Report();
  ForeignTable table;
  table.refusal = LacksColumns(source, {"user_id", "course_id"});
  return table;
}

// What the other side has no identifier for it would refuse, so it does not go out.
ForeignFile WriteEdx(const ForeignTable& table) {
  if (table.course.empty())
    return {"has no course to go to: take its bulk grades from Open edX first", ""};
  std::vector<std::size_t> grades;
  for (std::size_t g = 0; g < table.grades.size(); ++g)
    if (!table.grades[g].key.empty()) grades.push_back(g);
  CsvWriter out;
  out.Row({"user_id", "username", "student_key", "course_id", "track", "cohort"});
  for (const std::size_t g : grades)
    for (const char* part :
         {"name-", "grade-", "original_grade-", "previous_override-", "new_override-"})
      out.Add(part + table.grades[g].key);
  out.EndRow();
  const MarksByCell marks(table);
  LongWork work(kWritingLines, static_cast<int>(table.students.size()));
  for (std::size_t s = 0; s < table.students.size() && work.Step(); ++s) {
    const ForeignStudent& student = table.students[s];
    if (student.key.empty()) continue;
    out.Row({student.key, student.login, student.id, table.course, "", ""});
    for (const std::size_t g : grades)
      out.Row({table.grades[g].title, "", "", "", marks.Text(s, g)});
    out.EndRow();
  }
  return {"", out.Utf8()};
}

}  // namespace tallyroll
