// SPDX-License-Identifier: GPL-3.0-or-later
// Codes 2 and 14: which grades are missing, for the class or for one student.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "base/text.h"
#include "grades/marks.h"
#include "printing/page/paper_line.h"
#include "printing/page/sections.h"
#include "printing/reports/report_parts.h"
#include "printing/reports/report_writers.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kClassTitle = " Missing Grades for Class Printout";
constexpr std::string_view kMissingTitle = "Missing Grades For ";
constexpr std::string_view kNoneOnPaper = " is not missing any Grades";
constexpr std::string_view kNoneInText = "  is not missing any Grades";
constexpr int kLinesBesideList = 2;  // the name and the heads
constexpr int kClassRule = 77, kStudentRule = 80;
constexpr double kMissingColumnsOfTable = 61;

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

void PrintHead(PrintTarget& target) {
  const double unit = ColumnUnit(kMissingColumnsOfTable);
  PaperLine line(target);
  for (const MissingColumn& column : kMissingColumns) line.Put(column.units * unit, column.head);
  line.End();
  Rule(target);
}

void PrintMissingRow(PrintTarget& target, int grade) {
  const double unit = ColumnUnit(kMissingColumnsOfTable);
  PaperLine line(target);
  for (const MissingColumn& column : kMissingColumns)
    line.Put(column.units * unit, column.value(grade));
  line.End();
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

// The rows that a pass needs, whole students at a time.
class ClassRows {
 public:
  // In the layout pass all of them; the last row of each student is kept for the pages.
  explicit ClassRows(const ReportPass& pass) {
    if (pass.recording) Job.WrapLast = {0};
    int student = 1;
    if (!pass.recording) {
      const auto begin = std::lower_bound(Job.WrapLast.begin(), Job.WrapLast.end(), pass.first);
      student = std::max(static_cast<int>(begin - Job.WrapLast.begin()), 1);
    }
    before_ = Job.WrapLast[static_cast<std::size_t>(student) - 1];
    for (; student <= Current().NumStudents; ++student) {
      if (!pass.recording && before_ + static_cast<int>(rows_.size()) >= pass.last) return;
      AddStudent(student);
      if (pass.recording) Job.WrapLast.push_back(static_cast<int>(rows_.size()));
    }
  }
  const ClassRow& At(int row) const { return rows_[static_cast<std::size_t>(row - before_) - 1]; }
  static int Count() { return Job.WrapLast.back(); }

 private:
  void AddStudent(int s) {
    const std::vector<int> missing = MissingGrades(Current().Students[static_cast<std::size_t>(s)]);
    const int whole = kLinesBesideList + static_cast<int>(missing.size());
    for (const int grade : missing) {
      const bool first = grade == missing.front();
      rows_.push_back(
          {static_cast<i16>(s), grade, first, grade == missing.back(), first ? whole : 1});
    }
  }

  std::vector<ClassRow> rows_;
  int before_ = 0;  // rows of the students ahead of them
};

void PrintClassRow(PrintTarget& target, const ClassRow& row) {
  CurrentStudent = row.student;
  if (row.first) {
    PrintLine(target, StudentLabel());
    PrintHead(target);
  }
  PrintMissingRow(target, row.grade);
  if (row.last) target.Print();
}

void WriteList(TextReport& text, const std::vector<int>& missing, int rule) {
  for (const MissingColumn& column : kMissingColumns) {
    text.Tab(column.text);
    text.Put(column.head);
  }
  text.End();
  text.Row(rule, '_');
  for (const int grade : missing) {
    for (const MissingColumn& column : kMissingColumns) {
      text.Tab(column.text);
      text.Put(column.value(grade));
    }
    text.End();
  }
}

}  // namespace

void PrintMissingForClass(ReportPass& pass) {
  PageHeader(pass, kClassTitle);
  const ClassRows rows(pass);
  PrintSections(pass, {{.rows = ClassRows::Count(),
                        .print = [&](int row) { PrintClassRow(pass.target, rows.At(row)); },
                        .lines = [&](int row) { return rows.At(row).lines; },
                        .student = [&](int row) { return rows.At(row).student; }}});
}

void WriteMissingForClass(TextReport& text) {
  text.Line(kClassTitle);
  text.End();
  for (int s = 1; s <= Current().NumStudents; ++s) {
    CurrentStudent = static_cast<i16>(s);
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
          .print = [&](int) { PrintLine(target, StudentLabel() + std::string(kNoneOnPaper)); }}},
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
