// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/code_details.h"

#include <array>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kTextRule = 80;

struct Column {
  double units;  // CharUnits on paper
  int text;      // characters in a text file
  std::string_view first, second;
  std::string (*value)(int grade);
};

std::string Text(std::string_view text) {
  return std::string(Trim(text));
}

constexpr std::array kColumns = {
    Column{4, 5, "TITLE", "", [](int i) { return Text(GradeInReport(i).title); }},
    Column{35, 36, "CODE", "", [](int i) { return Text(GradeInReport(i).code); }},
    Column{35 + 2 * 4, 43, "TYPE", "", [](int i) { return Text(GradeInReport(i).typecode); }},
    Column{35 + 3 * 4, 50, " DATE", "", [](int i) { return Text(GradeInReport(i).testdate); }},
    Column{35 + 5 * 4, 64, "MAX.", "SCORE",
           [](int i) { return PlainNumberText(GradeInReport(i).mvalue); }},
};
constexpr double kUseUnits = 35 + 6.5 * 4;
constexpr int kUseText = 72;

template <typename Move, typename Put>
void PutHead(bool first_line, Move&& move, Put&& put) {
  for (const Column& column : kColumns) {
    move(column.units, column.text);
    put(first_line ? column.first : column.second);
  }
  if (!ShowsWeightOrUse() || !first_line) return;
  move(kUseUnits, kUseText);
  put(WeightOrUseHead());
}

template <typename Move, typename Put>
void PutRow(int grade, Move&& move, Put&& put) {
  for (const Column& column : kColumns) {
    move(column.units, column.text);
    put(column.value(grade));
  }
  if (!ShowsWeightOrUse()) return;
  move(kUseUnits, kUseText);
  put(WeightOrUse(grade));
}

}  // namespace

Section CodeDetailsSection(PrintTarget& target) {
  const auto move = [&target](double units, int) { target.CurrentX = units * Job.CharUnit; };
  const auto put = [&target](std::string_view text) { target.PrintOpen(text); };
  return {.rows = GradeCount(Current()),
          .print =
              [&target, move, put](int row) {
                PutRow(row, move, put);
                target.Print();
              },
          .head =
              [&target, move, put] {
                for (const bool first_line : {true, false}) {
                  PutHead(first_line, move, put);
                  target.Print();
                }
                Rule(target);
              },
          .head_lines = 2};
}

void WriteCodeDetails(TextReport& text) {
  const auto move = [&text](double, int column) { text.Tab(column); };
  const auto put = [&text](std::string_view part) { text.Put(part); };
  for (const bool first_line : {true, false}) {
    PutHead(first_line, move, put);
    text.End();
  }
  text.Row(kTextRule, '_');
  for (int grade = 1; grade <= GradeCount(Current()); ++grade) {
    PutRow(grade, move, put);
    text.End();
  }
}

}  // namespace tallyroll
