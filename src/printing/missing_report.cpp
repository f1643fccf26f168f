// SPDX-License-Identifier: GPL-3.0-or-later
// Codes 2 and 14: which grades are missing, for the class or for one student.
#include <array>
#include <string>
#include <vector>

#include "base/text.h"
#include "grades/marks.h"
#include "printing/report_parts.h"
#include "printing/report_writers.h"
#include "printing/sections.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kClassTitle = " Missing Grades for Class Printout";
constexpr std::string_view kMissingTitle = "Missing Grades For ";
constexpr std::string_view kNoneOnPaper = " is not missing any Grades";
constexpr std::string_view kNoneInText = "  is not missing any Grades";
constexpr int kLinesBesideList = 2;  // the name and the heads
constexpr int kClassRule = 77, kStudentRule = 80;

struct MissingColumn {
  double units;  // CharUnits on paper
  int text;      // characters in a text file
  std::string_view head;
  std::string (*value)(int grade);
};

std::string MissingText(std::string_view text) {
  return std::string(Trim(text));
}

constexpr std::array kMissingColumns = {
    MissingColumn{4, 5, "TITLE", [](int i) { return MissingText(GradeInReport(i).title); }},
    MissingColumn{35, 36, "CODE", [](int i) { return MissingText(GradeInReport(i).code); }},
    MissingColumn{35 + 2 * 4, 43, "TYPE",
                  [](int i) { return MissingText(GradeInReport(i).typecode); }},
    MissingColumn{35 + 3 * 4, 50, " DATE",
                  [](int i) { return MissingText(GradeInReport(i).testdate); }},
    MissingColumn{35 + 5 * 4, 64, "GRADE",
                  [](int i) { return MissingText(MarkOf(StudentInReport(), i)); }},
};

std::vector<int> MissingGrades(const Student& student) {
  std::vector<int> missing;
  for (int i = 1; i <= GradeCount(Current()); ++i)
    if (IsMissing(TrimRight(MarkOf(student, i)))) missing.push_back(i);
  return missing;
}

template <typename Move, typename Put>
void PutMissingHead(Move&& move, Put&& put) {
  for (const MissingColumn& column : kMissingColumns) {
    move(column.units, column.text);
    put(column.head);
  }
}

template <typename Move, typename Put>
void PutMissingRow(int grade, Move&& move, Put&& put) {
  for (const MissingColumn& column : kMissingColumns) {
    move(column.units, column.text);
    put(column.value(grade));
  }
}

void PrintHead(PrintTarget& target) {
  PutMissingHead([&](double units, int) { target.CurrentX = units * Job.CharUnit; },
                 [&](std::string_view text) { target.PrintOpen(text); });
  target.Print();
  Rule(target);
}

void PrintMissingRow(PrintTarget& target, int grade) {
  PutMissingRow(
      grade, [&](double units, int) { target.CurrentX = units * Job.CharUnit; },
      [&](std::string_view text) { target.PrintOpen(text); });
  target.Print();
}

// ---- For the class ----

// A student's list moves to the next page where it does not fit whole; one that no page can hold is
// split there.
struct ClassRow {
  i16 student = 0;
  int grade = 0;       // Instruments index
  bool first = false;  // the name and the heads stand above it
  bool last = false;   // an empty line stands below it
  int lines = 1;       // what must fit for the row to stay on its page
};

std::vector<ClassRow> RowsOfClass() {
  std::vector<ClassRow> rows;
  for (int s = 1; s <= Current().NumStudents; ++s) {
    const std::vector<int> missing = MissingGrades(Current().Students[static_cast<std::size_t>(s)]);
    const int whole = kLinesBesideList + static_cast<int>(missing.size());
    for (const int grade : missing) {
      const bool first = grade == missing.front();
      rows.push_back(
          {static_cast<i16>(s), grade, first, grade == missing.back(), first ? whole : 1});
    }
  }
  return rows;
}

void PrintClassRow(PrintTarget& target, const ClassRow& row) {
  CurrentStudent = row.student;
  if (row.first) {
    target.Print(StudentLabel());
    PrintHead(target);
  }
  PrintMissingRow(target, row.grade);
  if (row.last) target.Print();
}

void WriteList(TextReport& text, const std::vector<int>& missing, int rule) {
  const auto move = [&text](double, int column) { text.Tab(column); };
  const auto put = [&text](std::string_view part) { text.Put(part); };
  PutMissingHead(move, put);
  text.End();
  text.Row(rule, '_');
  for (const int grade : missing) {
    PutMissingRow(grade, move, put);
    text.End();
  }
}

}  // namespace

void PrintMissingForClass(ReportPass& pass) {
  PageHeader(pass, kClassTitle);
  const std::vector<ClassRow> rows = RowsOfClass();
  const auto row_at = [&rows](int row) { return rows[static_cast<std::size_t>(row) - 1]; };
  PrintSections(pass, {{.rows = static_cast<int>(rows.size()),
                        .print = [&](int row) { PrintClassRow(pass.target, row_at(row)); },
                        .lines = [&](int row) { return row_at(row).lines; }}});
}

void WriteMissingForClass(TextReport& text) {
  text.Line(kClassTitle);
  text.End();
  for (CurrentStudent = 1; CurrentStudent <= Current().NumStudents; ++CurrentStudent) {
    const std::vector<int> missing = MissingGrades(StudentInReport());
    if (missing.empty()) continue;
    text.Line(StudentLabel());
    WriteList(text, missing, kClassRule);
    text.Line("   ");
  }
}

void PrintMissingForStudent(ReportPass& pass) {
  StudentHeader(pass, std::string(kMissingTitle) + StudentLabel(), pass.first == 1);
  const std::vector<int> missing = MissingGrades(StudentInReport());
  PrintTarget& target = pass.target;
  if (missing.empty()) {
    PrintSections(
        pass,
        {{.rows = 1,
          .print = [&](int) { target.Print(StudentLabel() + std::string(kNoneOnPaper)); }}},
        true);
    return;
  }
  PrintSections(
      pass,
      {{.rows = static_cast<int>(missing.size()),
        .print =
            [&](int row) { PrintMissingRow(target, missing[static_cast<std::size_t>(row) - 1]); },
        .head = [&] { PrintHead(target); },
        .head_lines = 1}},
      true);
}

void WriteMissingForStudent(TextReport& text) {
  text.Row(kStudentRule, '=');
  text.Line(std::string(kMissingTitle) + StudentLabel());
  text.End();
  const std::vector<int> missing = MissingGrades(StudentInReport());
  if (missing.empty())
    text.Line(StudentLabel() + std::string(kNoneInText));
  else
    WriteList(text, missing, kStudentRule);
  text.Line("   ");
}

}  // namespace tallyroll
