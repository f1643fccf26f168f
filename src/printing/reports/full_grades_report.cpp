// SPDX-License-Identifier: GPL-3.0-or-later
// Codes 1 and 11: all grades of all students, with their averages or without.
#include <algorithm>
#include <string>
#include <vector>

#include "base/text.h"
#include "printing/page/paper_line.h"
#include "printing/page/report_choice.h"
#include "printing/reports/code_details.h"
#include "printing/reports/report_writers.h"
#include "printing/reports/student_rows.h"
#include "printing/reports/type_totals_table.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kFullGradesTitle = " Full Grades Printout";
constexpr std::string_view kFullAverageTitle = " Full Grades and Computed Average Printout";
constexpr int kFullTitleColumn = 20;
constexpr int kFullGradesRule = 77;

std::string_view FullGradesTitle() {
  return ReportWithAverages() ? kFullAverageTitle : kFullGradesTitle;
}

bool EndsWithDetails() {
  return ReportWithAverages() || Choice.printcode;
}

// What stands on paper for a student, who is one row of the page table. Only a block whose comment
// makes it taller than a page has a row for each further line of the comment, and is broken there.
class StudentBlocks {
 public:
  explicit StudentBlocks(ReportPass& pass) : target_(pass.target) {
    if (pass.recording && Job.WrapFirst.size() == 1) FindStudentRows();
    room_ = LinesBelowHead(target_);
    for (int s = 1; s <= Current().NumStudents; ++s) {
      const auto student = static_cast<i16>(s);
      for (int line = 1, lines = RowsOf(student); line <= lines; ++line)
        rows_.push_back({student, line, lines});
    }
  }

  int Count() const { return static_cast<int>(rows_.size()); }

  int StudentOf(int row) const { return rows_[static_cast<std::size_t>(row) - 1].student; }

  void Fit(ReportPass& pass, int row) {
    const Row& r = Enter(row);
    if (r.line > 1) {
      if (WouldPassBottom(target_, r.line < r.lines ? 1 : 1 + LinesBehind())) BreakPage(pass, row);
      return;
    }
    const int pages = Job.PageCount;
    FitBlock(pass, row);
    const int lines = LinesOf(r);
    if (Job.PageCount == pages && lines <= room_ && WouldPushFootOff(target_, lines))
      BreakPage(pass, row);
    if (GradeRows() < AllGradeRows()) NoteTooTall();
  }

  void Print(int row) {
    const Row& r = Enter(row);
    if (r.line == 1) {
      Job.BlockLines = ReportWithAverages() ? 4 : 1;
      PrintStudentRows(target_, GradeRows());
      Job.BlockLines += 2 * (AllGradeRows() - GradeRows());
      if (Choice.attendance1) PrintAttendanceRows(target_);
    }
    if (Choice.comment1) PrintComment(r);
    if (r.line < r.lines) return;
    target_.Print();
    if (ReportWithAverages()) PrintAverages(target_);
    Rule(target_);
    target_.Print();
  }

 private:
  struct Row {
    i16 student = 0;
    int line = 1, lines = 1;  // of the comment; one that stays together is one
  };

  const Row& Enter(int row) {
    const Row& r = rows_[static_cast<std::size_t>(row) - 1];
    CurrentStudent = r.student;
    return r;
  }

  const std::vector<std::string>& Comment() {
    if (wrapped_ != CurrentStudent) comment_ = WrappedComment(target_);
    wrapped_ = CurrentStudent;
    return comment_;
  }
  int LinesOfComment() { return Choice.comment1 ? static_cast<int>(Comment().size()) : 0; }
  void PrintComment(const Row& r) {
    if (r.lines == 1) {
      for (const std::string& line : Comment()) PrintLine(target_, line);
    } else {
      PrintLine(target_, Comment()[static_cast<std::size_t>(r.line) - 1]);
    }
  }

  // An empty line and the averages, above the rule.
  static int LinesBehind() { return 1 + (ReportWithAverages() ? 2 : 0); }
  static int LinesBesideGrades() {
    return 1 + (Choice.attendance1 ? LinesOfAttendance() : 0) + LinesBehind();
  }
  static int AllGradeRows() { return static_cast<int>(Job.WrapFirst.size()) - 1; }
  // No more than a page holds.
  int GradeRows() const { return std::clamp((room_ - LinesBesideGrades()) / 2, 0, AllGradeRows()); }
  int LinesBesideComment() const { return LinesBesideGrades() + 2 * GradeRows(); }
  int LinesOf(const Row& r) { return LinesBesideComment() + (r.lines > 1 ? 1 : LinesOfComment()); }

  // Two lines that follow one another are together wider than the page, so a comment of few
  // characters need not be wrapped to know that it fits.
  bool SurelyFits(const std::string& comment) const {
    const double widest = target_.TextWidth("W") * static_cast<double>(comment.size());
    const auto ends = std::count(comment.begin(), comment.end(), '\r') +
                      std::count(comment.begin(), comment.end(), '\n');
    return LinesBesideComment() + 2 * widest / Job.PageTextWidth + static_cast<double>(ends) + 2 <
           room_;
  }
  int RowsOf(i16 student) {
    CurrentStudent = student;
    if (!Choice.comment1 || SurelyFits(StudentInReport().comments)) return 1;
    const int lines = LinesOfComment();
    return LinesBesideComment() + lines <= room_ ? 1 : lines;
  }

  PrintTarget& target_;
  int room_ = 0;  // lines of a page
  std::vector<Row> rows_;
  i16 wrapped_ = 0;  // whose comment is kept
  std::vector<std::string> comment_;
};

void WriteStudent(TextReport& text) {
  WriteStudentRows(text);
  if (Choice.attendance1) WriteAttendanceRows(text);
  if (Choice.comment1) WriteComments(text);
  if (ReportWithAverages())
    WriteAverages(text);
  else
    text.End();
  text.Row(kFullGradesRule, '_');
  text.End();
}

}  // namespace

void PrintFullGrades(ReportPass& pass) {
  PageHeader(pass, FullGradesTitle());
  Job.BlockLines = 2;
  StudentBlocks blocks(pass);
  std::vector<Section> sections = {{.rows = blocks.Count(),
                                    .print = [&](int row) { blocks.Print(row); },
                                    .fit = [&](ReportPass& at, int row) { blocks.Fit(at, row); },
                                    .student = [&](int row) { return blocks.StudentOf(row); }}};
  if (EndsWithDetails()) {
    sections.push_back(CodeDetailsSection(pass.target));
    sections.push_back(TypeTotalsSection(pass.target));
  }
  PrintSections(pass, sections);
}

void WriteFullGrades(TextReport& text) {
  text.Tab(kFullTitleColumn);
  text.Line(FullGradesTitle());
  text.End();
  for (int s = 1; s <= Current().NumStudents; ++s) {
    if (Cancelled()) return;
    CurrentStudent = static_cast<i16>(s);
    WriteStudent(text);
  }
  if (!EndsWithDetails()) return;
  WriteCodeDetails(text);
  text.End();
  WriteTypeTotals(text);
}

}  // namespace tallyroll
