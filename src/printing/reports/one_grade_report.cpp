// SPDX-License-Identifier: GPL-3.0-or-later
// Code 10: one grade of all students, ranked or in the order of the class.
#include <algorithm>
#include <string>
#include <vector>

#include "base/text.h"
#include "grades/marks.h"
#include "printing/page/paper_line.h"
#include "printing/page/report_choice.h"
#include "printing/page/sections.h"
#include "printing/reports/report_parts.h"
#include "printing/reports/report_writers.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr int kOneGradeRule = 80;
constexpr double kOneGradeColumnsOfTable = 51;

struct OneGradeRow {
  int student = 0;
  std::string label;  // name or ID
  std::string id;     // beside the name, when both are shown
  std::string mark;
  Currency value;
  bool counts = true;  // marks that are left out stand behind all others, whatever the order
};

OneGradeRow OneGradeRowOf(int number) {
  const Student& student = Current().Students[static_cast<std::size_t>(number)];
  const std::string_view mark = Trim(MarkOf(student, Choice.grade));
  const std::string id(Trim(student.id));
  return {number,
          Choice.shown == Shown::kId ? id : PlainName(student),
          Choice.shown == Shown::kNameAndId ? id : std::string(),
          std::string(mark),
          GradeValue(mark),
          KindOfMark(mark) != MarkKind::kLeftOut};
}

std::vector<OneGradeRow> RowsInOrder() {
  std::vector<OneGradeRow> rows;
  for (int i = 1; i <= Current().NumStudents; ++i) rows.push_back(OneGradeRowOf(i));
  if (Choice.rank == Rank::kNone) return rows;
  const bool falling = Choice.rank == Rank::kHighToLow;
  std::stable_sort(rows.begin(), rows.end(), [falling](const OneGradeRow& a, const OneGradeRow& b) {
    if (a.counts != b.counts) return a.counts;
    return falling ? b.value < a.value : a.value < b.value;
  });
  return rows;
}

std::string OneGradeTitle() {
  return " " + std::string(Trim(GradeInReport(Choice.grade).title));
}

// One walk for paper and text: `place` puts a text at a column.
template <typename Place>
void PutOneGradeRow(std::string_view label, std::string_view id, std::string_view mark,
                    Place&& place) {
  const bool both = Choice.shown == Shown::kNameAndId;
  place(4.0, 5, label);
  if (both) place(30.0, 40, id);
  place(both ? 45.0 : 35.0, both ? 60 : 45, mark);
}

std::string_view LabelHead() {
  return Choice.shown == Shown::kId ? "ID" : "NAME";
}

}  // namespace

void PrintOneGrade(ReportPass& pass) {
  PrintTarget& target = pass.target;
  PageHeader(pass, OneGradeTitle());
  const std::vector<OneGradeRow> rows = RowsInOrder();
  PaperLine line(target);
  const auto place = [&line](double units, int, std::string_view text) {
    line.Put(units * ColumnUnit(kOneGradeColumnsOfTable), text);
  };
  PrintSections(
      pass,
      {{.rows = static_cast<int>(rows.size()),
        .print =
            [&](int row) {
              const OneGradeRow& r = rows[static_cast<std::size_t>(row) - 1];
              PutOneGradeRow(r.label, r.id, r.mark, place);
              line.End();
              Rule(target);
            },
        .head =
            [&] {
              PutOneGradeRow(LabelHead(), "ID", "GRADE", place);
              line.End();
              Rule(target);
            },
        .head_lines = 1,
        .student = [&](int row) { return rows[static_cast<std::size_t>(row) - 1].student; }}});
}

void WriteOneGrade(TextReport& text) {
  const auto place = [&text](double, int column, std::string_view part) {
    text.Tab(column);
    text.Put(part);
  };
  text.Line(OneGradeTitle());
  text.End();
  PutOneGradeRow(LabelHead(), "ID", "GRADE", place);
  text.End();
  text.Row(kOneGradeRule, '_');
  for (const OneGradeRow& row : RowsInOrder()) {
    PutOneGradeRow(row.label, row.id, row.mark, place);
    text.End();
    text.Row(kOneGradeRule, '_');
  }
}

}  // namespace tallyroll
