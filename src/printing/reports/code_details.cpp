// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/reports/code_details.h"

#include <array>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "printing/page/paper_line.h"
#include "printing/reports/grade_columns.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

std::string DetailText(std::string_view text) {
  return std::string(Trim(text));
}

constexpr std::array kDetailColumns = {
    GradeColumn{4, 4, 5, "TITLE", "", [](int i) { return DetailText(GradeInReport(i).title); }},
    GradeColumn{35, 35, 36, "CODE", "", [](int i) { return DetailText(GradeInReport(i).code); }},
    GradeColumn{35 + 2 * 4, 35 + 2 * 4, 43, "TYPE", "",
                [](int i) { return DetailText(GradeInReport(i).typecode); }},
    GradeColumn{35 + 3 * 4, 35 + 3 * 4, 50, " DATE", "",
                [](int i) { return DetailText(GradeInReport(i).testdate); }},
    GradeColumn{35 + 5 * 4, 35 + 5 * 4, 64, "MAX.", "SCORE",
                [](int i) { return PlainNumberText(GradeInReport(i).mvalue); }},
};
constexpr GradeColumns kDetailTable{kDetailColumns, 35 + 6.5 * 4, 35 + 6.5 * 4, 72};
constexpr double kDetailColumnsOfTable = 66;

}  // namespace

Section CodeDetailsSection(PrintTarget& target) {
  return {.rows = GradeCount(Current()),
          .print =
              [&target](int row) {
                PrintGradeRow(target, kDetailTable, ColumnUnit(kDetailColumnsOfTable), row);
              },
          .head =
              [&target] {
                PrintGradeHead(target, kDetailTable, ColumnUnit(kDetailColumnsOfTable));
                Rule(target);
              },
          .head_lines = 2};
}

void WriteCodeDetails(TextReport& text) {
  WriteGradeHead(text, kDetailTable);
  for (int grade = 1; grade <= GradeCount(Current()); ++grade)
    WriteGradeRow(text, kDetailTable, grade);
}

}  // namespace tallyroll
