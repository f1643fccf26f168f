// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/reports/grade_columns.h"

#include "printing/page/paper_line.h"

namespace tallyroll {
namespace {

constexpr int kGradeHeadRule = 80;

// One walk for paper and text: `place` goes to a column and puts a text there.
template <typename Place>
void PutGradeHead(const GradeColumns& table, bool first_line, Place&& place) {
  for (const GradeColumn& column : table.columns) {
    const std::string_view head = first_line ? column.first : column.second;
    if (!head.empty()) place(column.head, column.text, head);
  }
  if (ShowsWeightOrUse() && first_line) place(table.use_head, table.use_text, WeightOrUseHead());
}

template <typename Place>
void PutGradeRow(const GradeColumns& table, int grade, Place&& place) {
  for (const GradeColumn& column : table.columns)
    place(column.row, column.text, column.value(grade));
  if (ShowsWeightOrUse()) place(table.use_row, table.use_text, WeightOrUse(grade));
}

auto OnPaper(PaperLine& line, double unit) {
  return [&line, unit](double units, int, std::string_view text) { line.Put(units * unit, text); };
}

auto InText(TextReport& report) {
  return [&report](double, int column, std::string_view text) {
    report.Tab(column);
    report.Put(text);
  };
}

}  // namespace

void PrintGradeHead(PrintTarget& target, const GradeColumns& table, double unit) {
  PaperLine line(target);
  for (const bool first_line : {true, false}) {
    PutGradeHead(table, first_line, OnPaper(line, unit));
    line.End();
  }
}

void PrintGradeRow(PrintTarget& target, const GradeColumns& table, double unit, int grade) {
  PaperLine line(target);
  PutGradeRow(table, grade, OnPaper(line, unit));
  line.End();
}

void WriteGradeHead(TextReport& text, const GradeColumns& table) {
  for (const bool first_line : {true, false}) {
    PutGradeHead(table, first_line, InText(text));
    text.End();
  }
  text.Row(kGradeHeadRule, '_');
}

void WriteGradeRow(TextReport& text, const GradeColumns& table, int grade) {
  PutGradeRow(table, grade, InText(text));
  text.End();
}

}  // namespace tallyroll
