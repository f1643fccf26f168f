// SPDX-License-Identifier: GPL-3.0-or-later
// Codes 3 and 4: students against grades, under codes and dates, or under titles that run upwards.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "base/text.h"
#include "grades/marks.h"
#include "printing/page/line_table.h"
#include "printing/page/paper_line.h"
#include "printing/page/sections.h"
#include "printing/reports/report_parts.h"
#include "printing/reports/report_writers.h"
#include "printing/reports/roll_book.h"
#include "printing/reports/student_column.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr i16 kFullTitles = 4;
constexpr std::string_view kRollBookTitle = "ROLL BOOK";
constexpr int kRollTitleColumn = 40;
constexpr int kRollStep = 5;
constexpr int kLastRollStart = 90;  // no column begins here or beyond
constexpr int kRollWidth = kLastRollStart + kRollStep;
constexpr int kRollRule = 89;

int GradesInBlock() {
  return (kLastRollStart - BehindStudentColumn() + kRollStep - 1) / kRollStep;
}

// The grades that stand side by side in each block. A class without grades has one empty block.
std::vector<std::vector<int>> GradesByBlock() {
  const std::vector<int> grades = RollBookGrades();
  const auto in_block = static_cast<std::size_t>(GradesInBlock());
  std::vector<std::vector<int>> blocks;
  for (std::size_t first = 0; first < grades.size() || first == 0; first += in_block) {
    const std::size_t end = std::min(first + in_block, grades.size());
    blocks.emplace_back(grades.begin() + static_cast<std::ptrdiff_t>(first),
                        grades.begin() + static_cast<std::ptrdiff_t>(end));
  }
  return blocks;
}

template <typename TextOfGrade>
void AddCells(TableLine& line, const std::vector<int>& grades, TextOfGrade text) {
  int column = BehindStudentColumn();
  for (const int grade : grades) {
    line.cells.push_back({column, std::string(Trim(text(grade)))});
    column += kRollStep;
  }
}

TableLine RollRowOf(const Student& student, const std::vector<int>& grades) {
  TableLine line;
  line.cells.push_back({0, StudentColumnText(student)});
  AddCells(line, grades, [&](int grade) { return MarkOf(student, grade); });
  return line;
}

std::vector<TableLine> RollHeadOf(const std::vector<int>& grades) {
  TableLine heads, codes, dates;
  heads.cells = {{0, std::string(StudentColumnHead())}, {BehindStudentColumn(), "GRADES"}};
  AddCells(codes, grades, [](int grade) { return std::string_view(GradeInReport(grade).code); });
  std::vector<std::string> texts;
  texts.reserve(grades.size());
  for (const int grade : grades) texts.push_back(DateWithoutYear(grade));
  std::size_t next = 0;
  AddCells(dates, grades, [&](int) { return std::string_view(texts[next++]); });
  return {heads, codes, dates};
}

LineBlock BlockOf(const std::vector<int>& grades) {
  const auto row_at = [grades](int i) {
    std::vector<TableLine> row = {
        RollRowOf(Current().Students[static_cast<std::size_t>(i)], grades)};
    if (i > 1) row.push_back({{}, '_'});
    return row;
  };
  return {RollHeadOf(grades), Current().NumStudents, row_at, {{{}, '='}}, true};
}

LineTable RollTable() {
  LineTable table{kRollWidth, {}, kRollRule};
  for (const std::vector<int>& grades : GradesByBlock()) table.blocks.push_back(BlockOf(grades));
  return table;
}

// ---- Full titles ----

// The titles' own font, for as long as it lives.
class TitleFont {
 public:
  explicit TitleFont(PrintTarget& target)
      : target_(target), name_(target.FontName), size_(target.FontSize) {
    target_.FontName = "Arial";
    target_.FontSize = 9;
  }
  ~TitleFont() {
    target_.FontName = name_;
    target_.FontSize = size_;
  }
  TitleFont(const TitleFont&) = delete;
  TitleFont& operator=(const TitleFont&) = delete;

 private:
  PrintTarget& target_;
  std::string name_;
  double size_;
};

std::string FullTitle(int grade) {
  return std::string(Trim(GradeInReport(grade).title));
}

// Half of the page is the students'.
double LongestTitle(PrintTarget& target, const std::vector<int>& grades) {
  const TitleFont font(target);
  double longest = 0;
  for (const int grade : grades) longest = std::max(longest, target.TextWidth(FullTitle(grade)));
  return std::min(longest, Job.PageBottom / 2.0);
}

double Unit() {
  return ColumnUnit(kRollWidth);
}

int TitleLines(PrintTarget& target, const std::vector<int>& grades) {
  return static_cast<int>(std::ceil(LongestTitle(target, grades) / target.TextHeight("A")));
}

// The titles stand on the line that heads the students.
void PrintTitles(PrintTarget& target, const std::vector<int>& grades) {
  const double room = TitleLines(target, grades) * target.TextHeight("A");
  target.CurrentY += room;
  {
    const TitleFont font(target);
    double x = BehindStudentColumn() * Unit();
    for (const int grade : grades) {
      target.PrintUpwards(target.Shortened(FullTitle(grade), room), x, target.CurrentY);
      x += kRollStep * Unit();
    }
  }
  target.Print(StudentColumnHead());
  Rule(target);
}

// The first student has no rule below, as in the book without titles, unless he is the last.
void PrintStudent(PrintTarget& target, int row, const std::vector<int>& grades) {
  const Student& student = Current().Students[static_cast<std::size_t>(row)];
  PaperLine line(target);
  for (const LineCell& cell : RollRowOf(student, grades).cells)
    line.Put(cell.column * Unit(), cell.text);
  line.End();
  if (row > 1 || row == Current().NumStudents) Rule(target);
}

void PrintFullTitles(ReportPass& pass) {
  PrintTarget& target = pass.target;
  const std::vector<std::vector<int>> blocks = GradesByBlock();
  std::vector<Section> sections;
  sections.reserve(blocks.size());
  for (const std::vector<int>& grades : blocks)
    sections.push_back({.rows = Current().NumStudents,
                        .print = [&target, &grades](int row) { PrintStudent(target, row, grades); },
                        .head = [&target, &grades] { PrintTitles(target, grades); },
                        .head_lines = TitleLines(target, grades) + 1,
                        .student = StudentOfRow});
  PrintSections(pass, sections);
}

}  // namespace

void PrintRollBook(ReportPass& pass) {
  PageHeader(pass, kRollBookTitle);
  if (Job.ReportCode == kFullTitles)
    PrintFullTitles(pass);
  else
    PrintLineTable(pass, RollTable());
}

void WriteRollBook(TextReport& text) {
  text.Tab(kRollTitleColumn);
  text.Line(kRollBookTitle);
  text.End();
  WriteTable(text, RollTable());
}

}  // namespace tallyroll
