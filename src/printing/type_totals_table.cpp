// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/type_totals_table.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

#include "averages/engine/engine.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/type_totals.h"
#include "printing/paper_line.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kRowLines = 4;  // a type never stands lower than four lines above the bottom
constexpr int kHeadLines = 2;
constexpr int kTextRule = 80;

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

struct Column {
  double base;  // in bases
  int text;     // in characters
  std::string_view first, second;
  std::string TypeTotalRow::*value;
  bool (*shown)();
};

bool Always() {
  return true;
}

constexpr std::array kColumns = {
    Column{0, 1, "CATEGORY", "", &TypeTotalRow::name, Always},
    Column{1, 25, "TYPE", "", &TypeTotalRow::code, Always},
    Column{1.7, 45, "TOTAL", "SCORES", &TypeTotalRow::total, ReportOnStudent},
    Column{2, 54, "MAX. SCORE", "POSSIBLE", &TypeTotalRow::maximum, Always},
    Column{2.4, 66, "TYPE", "AVG.", &TypeTotalRow::average, ReportWithAverages},
    Column{2.65, 73, "WEIGHT", "", &TypeTotalRow::weight, WeighsTypes},
};
constexpr double kNumberBase = 1.33;
constexpr int kNumberText = 33;

double Base(const PrintTarget& target) {
  constexpr double kLastColumn = 2.65, kLastWidth = 6;
  const double base = target.FontSize < 9.7 ? 27 : target.FontSize > 10 ? 22.2 : 25;
  return base * ColumnUnit(kLastColumn * base + kLastWidth);
}

// `place` puts a text at a column.
template <typename Place>
void PutRow(const TypeTotalRow& row, Place&& place) {
  for (const Column& column : kColumns) {
    if (!column.shown()) continue;
    place(column.base, column.text, row.*column.value);
    if (column.base == 1) place(kNumberBase, kNumberText, PlainNumberText(row.number));
  }
}

template <typename Place>
void PutHead(bool first_line, Place&& place) {
  for (const Column& column : kColumns) {
    if (!column.shown()) continue;
    place(column.base, column.text, first_line ? column.first : column.second);
    if (column.base == 1) place(kNumberBase, kNumberText, first_line ? "NUMBER" : "OF GRADES");
  }
}

int TypesInClass() {
  TypeCounts counts{};
  TypeSums sums{}, maxes{};
  ClassTotalsByType(counts, sums, maxes);
  return static_cast<int>(
      std::count_if(counts.begin() + 1, counts.end(), [](const auto& count) { return count > 0; }));
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

Section TypeTotalsSection(PrintTarget& target) {
  auto kept = std::make_shared<std::vector<TypeTotalRow>>();
  const auto on = [](PaperLine& line, double base) {
    return
        [&line, base](double bases, int, std::string_view text) { line.Put(bases * base, text); };
  };
  return {.rows = TypesInClass(),
          .print =
              [&target, kept, on](int row) {
                if (kept->empty()) *kept = TypeTotalRows();
                PaperLine line(target);
                PutRow((*kept)[static_cast<std::size_t>(row) - 1], on(line, Base(target)));
                line.End();
              },
          .head =
              [&target, on] {
                PaperLine line(target);
                for (const bool first_line : {true, false}) {
                  PutHead(first_line, on(line, Base(target)));
                  line.End();
                }
                Rule(target);
              },
          .head_lines = kHeadLines,
          .lines = [](int) { return kRowLines; }};
}

void WriteTypeTotals(TextReport& text) {
  const auto place = [&text](double, int column, std::string_view part) {
    text.Tab(column);
    text.Put(part);
  };
  for (const bool first_line : {true, false}) {
    PutHead(first_line, place);
    text.End();
  }
  text.Row(kTextRule, '_');
  for (const TypeTotalRow& row : TypeTotalRows()) {
    PutRow(row, place);
    text.End();
  }
}

}  // namespace tallyroll
