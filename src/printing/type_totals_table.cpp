// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/type_totals_table.h"

#include <array>
#include <memory>
#include <string_view>

#include "averages/engine/engine.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/type_totals.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kRowLines = 4;  // a type never stands lower than four lines above the bottom
constexpr int kTypeHeadLines = 2;
constexpr int kTypeTotalsRule = 80;

bool ReportOnStudent() {
  return Job.ReportCode == 12 || Job.ReportCode == 13 || Job.ReportCode == 17 ||
         Job.ReportCode == 18;
}

void StudentTotals(TypeTotals& totals) {
  if (ReportWithAverages()) {
    if (const AverageError error = ComputeAverage(totals))
      throw ReportEnds{AverageErrorText(error)};
  } else if (const int error = StudentTotalsByType(totals.counts, totals.sums, totals.maxes)) {
    throw ReportEnds{AverageErrorText({error, CurrentStudent, 0})};
  }
}

void AddStudent(TypeSums& earned, TypeSums& maxes) {
  TypeCounts counts{};
  TypeSums his{}, his_maxes{};
  if (const int error = StudentTotalsByType(counts, his, his_maxes)) throw RunTimeError{error};
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    earned[t] += his[t];
    maxes[t] += his_maxes[t];
  }
}

// What all students earned, and what they could have earned with the grades that count for each.
void AddStudents(TypeSums& earned, TypeSums& maxes) {
  const i16 in_work = CurrentStudent;
  try {
    for (CurrentStudent = 1; CurrentStudent <= Current().NumStudents; ++CurrentStudent)
      AddStudent(earned, maxes);
  } catch (const RunTimeError& fault) {
    throw ReportEnds{AverageErrorText({fault.number, CurrentStudent, 0})};
  }
  CurrentStudent = in_work;
}

// Percent of the maximum with two decimals, a half going up.
std::string Percent(Currency sum, Currency maximum) {
  if (maximum <= Currency()) return {};
  const Currency percent = Currency::FromDouble(100 * sum.ToDouble() / maximum.ToDouble());
  return PlainNumberText(Currency::FromScaled((percent.scaled() + 50) / 100 * 100));
}

// ---- Columns: twips of a base on paper, characters in a text file ----

struct TypeColumn {
  double base;  // in bases
  int text;     // in characters
  std::string_view first, second;
  std::string TypeTotalRow::*value;
  bool (*shown)();
};

bool Always() {
  return true;
}

constexpr std::array kTypeColumns = {
    TypeColumn{0, 1, "CATEGORY", "", &TypeTotalRow::name, Always},
    TypeColumn{1, 25, "TYPE", "", &TypeTotalRow::code, Always},
    TypeColumn{1.7, 45, "TOTAL", "SCORES", &TypeTotalRow::total, ReportOnStudent},
    TypeColumn{2, 54, "MAX. SCORE", "POSSIBLE", &TypeTotalRow::maximum, Always},
    TypeColumn{2.4, 66, "TYPE", "AVG.", &TypeTotalRow::average, ReportWithAverages},
    TypeColumn{2.65, 73, "WEIGHT", "", &TypeTotalRow::weight, WeighsTypes},
};
constexpr double kNumberBase = 1.33;
constexpr int kNumberText = 33;

double Base(const PrintTarget& target) {
  if (target.FontSize < 9.7) return 27 * Job.CharUnit;
  return (target.FontSize > 10 ? 22.2 : 25) * Job.CharUnit;
}

// `move` takes the pen to a column, `put` prints there.
template <typename Move, typename Put>
void PutTypeRow(const TypeTotalRow& row, Move&& move, Put&& put) {
  for (const TypeColumn& column : kTypeColumns) {
    if (!column.shown()) continue;
    move(column.base, column.text);
    put(row.*column.value);
    if (column.base != 1) continue;
    move(kNumberBase, kNumberText);
    put(PlainNumberText(row.number));
  }
}

template <typename Move, typename Put>
void PutTypeHead(bool first_line, Move&& move, Put&& put) {
  for (const TypeColumn& column : kTypeColumns) {
    if (!column.shown()) continue;
    move(column.base, column.text);
    put(first_line ? column.first : column.second);
    if (column.base != 1) continue;
    move(kNumberBase, kNumberText);
    put(first_line ? "NUMBER" : "OF GRADES");
  }
}

}  // namespace

std::vector<TypeTotalRow> TypeTotalRows() {
  TypeCounts in_class{};
  TypeSums unused{}, class_maxes{};
  ClassTotalsByType(in_class, unused, class_maxes);
  TypeTotals totals;
  TypeSums possible{};  // what the percents are of
  const bool on_student = ReportOnStudent();
  if (on_student) {
    StudentTotals(totals);
    possible = totals.maxes;
  } else {
    totals = {in_class, {}, class_maxes};
    if (ReportWithAverages()) AddStudents(totals.sums, possible);
  }
  TypeCodes codes;
  TypeTexts names;
  MakeTypeCodes(codes);
  MakeTypeNames(names);
  std::vector<TypeTotalRow> rows;
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    if (in_class[t] == 0) continue;
    const Currency sum = totals.counts[t] > 0 ? totals.sums[t] : Currency();
    rows.push_back({std::string(Trim(names[t])), std::string(Trim(codes[t].view())),
                    totals.counts[t], on_student ? PlainNumberText(sum) : std::string(),
                    PlainNumberText(totals.maxes[t]), Percent(sum, possible[t]),
                    PlainNumberText(Current().TypePercents[t])});
  }
  return rows;
}

Section TypeTotalsSection(PrintTarget& target, std::vector<TypeTotalRow> rows) {
  const int count = static_cast<int>(rows.size());
  auto kept = std::make_shared<std::vector<TypeTotalRow>>(std::move(rows));
  const auto move = [&target](double base, int) { target.CurrentX = base * Base(target); };
  const auto put = [&target](std::string_view text) { target.PrintOpen(text); };
  return {.rows = count,
          .print =
              [&target, kept, move, put](int row) {
                PutTypeRow((*kept)[static_cast<std::size_t>(row) - 1], move, put);
                target.Print();
              },
          .head =
              [&target, move, put] {
                for (const bool first_line : {true, false}) {
                  PutTypeHead(first_line, move, put);
                  target.Print();
                }
                Rule(target);
              },
          .head_lines = kTypeHeadLines,
          .lines = [](int) { return kRowLines; }};
}

void WriteTypeTotals(TextReport& text) {
  const auto move = [&text](double, int column) { text.Tab(column); };
  const auto put = [&text](std::string_view part) { text.Put(part); };
  for (const bool first_line : {true, false}) {
    PutTypeHead(first_line, move, put);
    text.End();
  }
  text.Row(kTypeTotalsRule, '_');
  for (const TypeTotalRow& row : TypeTotalRows()) {
    PutTypeRow(row, move, put);
    text.End();
  }
}

}  // namespace tallyroll
