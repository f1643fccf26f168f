// SPDX-License-Identifier: GPL-3.0-or-later
// The grade book file of Canvas: the students' columns up to "Section", then a column for each
// assignment, then totals; below the titles a line of points.
#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "base/text.h"
#include "exchange/formats/csv_source.h"
#include "exchange/formats/csv_writer.h"
#include "exchange/formats/foreign_mark.h"
#include "exchange/formats/formats.h"
#include "platform/long_work.h"

namespace tallyroll {
namespace {

constexpr std::array<std::string_view, 9> kCanvasTotals = {
    "Current Score", "Current Points", "Current Grade",  "Final Score",    "Final Points",
    "Final Grade",   "Override Score", "Override Grade", "Override Status"};
constexpr std::string_view kPointsLine = "    Points Possible";
constexpr std::string_view kTestStudent = "Student, Test";

bool IsDigitOfKey(char c) {
  return c >= '0' && c <= '9';
}

// A name that begins with "=" is written ="...", so that no spreadsheet computes it.
std::string WithoutCanvasShield(std::string text) {
  if (text.size() > 3 && text.starts_with("=\"") && text.ends_with('"'))
    return text.substr(2, text.size() - 3);
  return text;
}

// "Essay (4711)" into both.
void SplitKey(std::string_view title, ForeignGrade& grade) {
  grade.title = title;
  const std::size_t open = title.rfind(" (");
  if (open == std::string_view::npos || !title.ends_with(')')) return;
  const std::string_view key = title.substr(open + 2, title.size() - open - 3);
  if (key.empty() || !std::ranges::all_of(key, IsDigitOfKey)) return;
  grade.title = Trim(title.substr(0, open));
  grade.key = key;
}

class CanvasReader {
 public:
  explicit CanvasReader(const CsvSource& source) : source_(source) {}

  ForeignTable Read() {
    table_.refusal = LacksColumns(source_, {"ID", "Section"});
    const auto section = source_.Find("Section");
    if (!table_.refusal.empty() || !section) return std::move(table_);
    FindHeadLines();
    for (std::size_t column = *section + 1; column < source_.columns(); ++column)
      ReadGradeTitle(column);
    ReadRows(source_, first_, table_, [this](std::size_t row) { ReadRow(row); });
    return std::move(table_);
  }

 private:
  // Between the titles and the points another line may stand, that of hand-posted assignments.
  void FindHeadLines() {
    while (first_ < source_.rows() && IsHeadLine(first_)) {
      if (IsPoints(first_)) points_ = first_;
      ++first_;
    }
  }
  // The words are translated, the blanks before them are not.
  bool IsPoints(std::size_t row) const {
    return source_.RawCell(row, 0).starts_with("    ") ||
           LowerCase(source_.Cell(row, 0)) == "points possible";
  }
  bool IsHeadLine(std::size_t row) const { return source_.Cell(row, 0).empty() || IsPoints(row); }

  void ReadGradeTitle(std::size_t column) {
    const std::string title = source_.Title(column);
    const std::string points = points_ ? source_.Cell(*points_, column) : "";
    if (IsCanvasTotal(title) || points.starts_with('(')) return;
    ForeignGrade grade;
    SplitKey(title, grade);
    grade.maximum = ForeignNumber(points);
    if (grade.key.empty() && points_ && !grade.maximum) {
      table_.notes.push_back("The column \"" + title + "\" has no points and is no grade.");
      return;
    }
    if (const int place = TakeGrade(source_, column, std::move(grade), table_); place >= 0)
      columns_.emplace_back(column, place);
  }

  std::string CellOf(std::size_t row, std::string_view title) const {
    const auto column = source_.Find(title);
    return column ? WithoutCanvasShield(source_.Cell(row, *column)) : std::string();
  }

  void ReadRow(std::size_t row) {
    if (source_.IsBlankRow(row)) return;
    ForeignStudent student;
    student.line = source_.LineOf(row);
    student.key = CellOf(row, "ID");
    student.id = CellOf(row, "SIS User ID");
    student.login = CellOf(row, "SIS Login ID");
    student.lastname = CellOf(row, "LastName");
    student.firstname = CellOf(row, "FirstName");
    const std::string name = CellOf(row, "Student");
    if (student.lastname.empty()) TakeName(name, student);
    if (name == kTestStudent && student.id.empty()) {
      table_.notes.emplace_back("The test student is left out.");
      return;
    }
    table_.students.push_back(std::move(student));
    const int place = static_cast<int>(table_.students.size()) - 1;
    for (const auto& [column, grade] : columns_) ReadCell(row, column, place, grade);
  }

  void ReadCell(std::size_t row, std::size_t column, int student, int grade) {
    const std::string cell = source_.Cell(row, column);
    if (cell == "N/A") return;
    if (cell != "EX") return TakeMark(source_, row, column, student, grade, table_);
    table_.marks.push_back(
        {student, grade, "EXC", {}, source_.LineOf(row), static_cast<int>(column) + 1});
  }

  const CsvSource& source_;
  ForeignTable table_;
  std::optional<std::size_t> points_;
  std::size_t first_ = 0;  // row of the first student
  std::vector<std::pair<std::size_t, int>> columns_;
};

}  // namespace

bool IsCanvasTotal(std::string_view title) {
  return std::ranges::any_of(kCanvasTotals, [&](std::string_view total) {
    return title.find(total) != std::string_view::npos;
  });
}

bool EndsAsCanvasKey(std::string_view title) {
  ForeignGrade grade;
  SplitKey(title, grade);
  return !grade.key.empty();
}

bool LooksLikeCanvas(const CsvSource& source) {
  return source.Find("ID") && source.Find("Section") &&
         (source.Find("Student") || source.Find("LastName"));
}

ForeignTable ReadCanvas(const CsvSource& source) {
  return CanvasReader(source).Read();
}

std::string WriteCanvas(const ForeignTable& table) {
  CsvWriter out;
  out.Row({"Student", "ID", "SIS User ID", "SIS Login ID", "Section"});
  for (const ForeignGrade& grade : table.grades)
    out.Add(grade.title + (grade.key.empty() ? "" : " (" + grade.key + ")"));
  out.EndRow();
  out.Row({kPointsLine, "", "", "", ""});
  for (const ForeignGrade& grade : table.grades)
    out.Add(grade.maximum ? PlainNumberText(*grade.maximum) : "");
  out.EndRow();
  const MarksByCell marks(table);
  LongWork work(kWritingLines, static_cast<int>(table.students.size()));
  for (std::size_t s = 0; s < table.students.size() && work.Step(); ++s) {
    const ForeignStudent& student = table.students[s];
    out.Row({student.lastname + ", " + student.firstname, student.key, student.id, student.login,
             table.section});
    for (std::size_t g = 0; g < table.grades.size(); ++g) out.Add(marks.Text(s, g));
    out.EndRow();
  }
  return out.Utf8();
}

}  // namespace tallyroll
