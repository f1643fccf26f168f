// SPDX-License-Identifier: GPL-3.0-or-later
// Open edX: its grade report, whose grades are parts of 1, and the file of bulk grades, which can
// go back with new marks.
#include <algorithm>
#include <map>

#include "base/number_text.h"
#include "base/text.h"
#include "exchange/formats/csv_writer.h"
#include "exchange/formats/foreign_mark.h"
#include "exchange/formats/formats.h"

namespace tallyroll {
namespace {

constexpr std::string_view kNotAttempted = "Not Attempted";
constexpr std::string_view kNamePrefix = "name-";

bool IsBulk(const CsvSource& source) {
  return source.Find("user_id") && source.Find("course_id");
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
    for (std::size_t row = 0; row < source_.rows(); ++row)
      if (!source_.IsBlankRow(row)) BulkRow(row);
    return std::move(table_);
  }

  ForeignTable Report() {
    const auto grade = source_.Find("Grade");
    for (std::size_t column = *grade + 1; column < source_.columns(); ++column)
      if (const std::string title = source_.Title(column); title.find(": ") != std::string::npos)
        ReportTitle(column, title);
    for (std::size_t row = 0; row < source_.rows(); ++row)
      if (!source_.IsBlankRow(row)) ReportRow(row);
    return std::move(table_);
  }

 private:
  struct Item {
    std::size_t name;
    std::optional<std::size_t> grade, override_;
    int place;
  };

  // The title of a subsection stands in its column, on every line.
  void BulkTitle(std::size_t column) {
    ForeignGrade grade;
    grade.key = source_.Title(column).substr(kNamePrefix.size());
    for (std::size_t row = 0; row < source_.rows() && grade.title.empty(); ++row)
      grade.title = source_.Cell(row, column);
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

  void BulkRow(std::size_t row) {
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
  return IsBulk(source) || IsReport(source);
}

ForeignTable ReadEdx(const CsvSource& source) {
  if (IsBulk(source)) return EdxReader(source).Bulk();
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
  for (std::size_t s = 0; s < table.students.size(); ++s) {
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
