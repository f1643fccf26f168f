// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/reports/type_totals_table.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

#include "averages/engine/engine.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/type_totals.h"
#include "printing/page/paper_line.h"
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

// A type may count more grades of a whole class than of one student.
struct RunningTotals {
  std::array<int, kGradeTypes + 1> counts{};
  TypeSums sums{}, maxes{};
};

// A type of which nothing counted brings no sum, whatever mark the average's rule leaves there.
void AddStudent(RunningTotals& running) {
  TypeTotals totals;
  if (const AverageError error = ComputeAverage(totals)) throw ReportEnds{AverageErrorText(error)};
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    if (totals.counts[t] == 0) continue;
    running.counts[t] += totals.counts[t];
    running.sums[t] += totals.sums[t];
    running.maxes[t] += totals.maxes[t];
  }
}

// The averages' own count of all students: a grade that is dropped for a student is not in it.
RunningTotals TotalsOfAllStudents() {
  RunningTotals running;
  const i16 in_work = CurrentStudent;
  try {
    for (int s = 1; s <= Current().NumStudents; ++s) {
      CurrentStudent = static_cast<i16>(s);
      AddStudent(running);
    }
  } catch (const RunTimeError& fault) {
    throw ReportEnds{AverageErrorText({fault.number, CurrentStudent, 0})};
  }
  CurrentStudent = in_work;
  return running;
}

TypeTotals TotalsOfStudent() {
  TypeTotals totals;
  if (const int error = StudentTotalsByType(totals.counts, totals.sums, totals.maxes))
    throw ReportEnds{AverageErrorText({error, CurrentStudent, 0})};
  return totals;
}

// With averages the figures are what the averages count, otherwise those of all marks.
RunningTotals TotalsInReport(const TypeCounts& in_class, const TypeSums& class_maxes) {
  RunningTotals totals;
  if (ReportWithAverages() && ReportOnStudent()) {
    AddStudent(totals);
  } else if (ReportWithAverages()) {
    totals = TotalsOfAllStudents();
  } else if (ReportOnStudent()) {
    const TypeTotals his = TotalsOfStudent();
    totals = {{}, his.sums, his.maxes};
    std::copy(his.counts.begin(), his.counts.end(), totals.counts.begin());
  } else {
    std::copy(in_class.begin(), in_class.end(), totals.counts.begin());
    totals.maxes = class_maxes;
  }
  return totals;
}

int TypesInClass() {
  TypeCounts in_class{};
  TypeSums unused{}, maxes{};
  ClassTotalsByType(in_class, unused, maxes);
  return static_cast<int>(
      std::count_if(in_class.begin() + 1, in_class.end(), [](i16 count) { return count != 0; }));
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
  constexpr double kLastColumn = 2.65, kLastWidth = 6;
  const double base = target.FontSize < 9.7 ? 27 : target.FontSize > 10 ? 22.2 : 25;
  return base * ColumnUnit(kLastColumn * base + kLastWidth);
}

// `place` puts a text at a column.
template <typename Place>
void PutTypeRow(const TypeTotalRow& row, Place&& place) {
  for (const TypeColumn& column : kTypeColumns) {
    if (!column.shown()) continue;
    place(column.base, column.text, row.*column.value);
    if (column.base == 1) place(kNumberBase, kNumberText, PlainNumberText(row.number));
  }
}

template <typename Place>
void PutTypeHead(bool first_line, Place&& place) {
  for (const TypeColumn& column : kTypeColumns) {
    if (!column.shown()) continue;
    place(column.base, column.text, first_line ? column.first : column.second);
    if (column.base == 1) place(kNumberBase, kNumberText, first_line ? "NUMBER" : "OF GRADES");
  }
}

}  // namespace

std::vector<TypeTotalRow> TypeTotalRows() {
  TypeCounts in_class{};
  TypeSums unused{}, class_maxes{};
  ClassTotalsByType(in_class, unused, class_maxes);
  const RunningTotals totals = TotalsInReport(in_class, class_maxes);
  TypeCodes codes;
  TypeTexts names;
  MakeTypeCodes(codes);
  MakeTypeNames(names);
  std::vector<TypeTotalRow> rows;
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    if (in_class[t] == 0) continue;
    rows.push_back({std::string(Trim(names[t])), std::string(Trim(codes[t].view())),
                    totals.counts[t], PlainNumberText(totals.sums[t]),
                    PlainNumberText(totals.maxes[t]), Percent(totals.sums[t], totals.maxes[t]),
                    PlainNumberText(Current().TypePercents[t])});
  }
  return rows;
}

// The figures of a whole class take an average of each student, so they are made when the first row
// is due: most pages have none.
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
                PutTypeRow((*kept)[static_cast<std::size_t>(row) - 1], on(line, Base(target)));
                line.End();
              },
          .head =
              [&target, on] {
                PaperLine line(target);
                for (const bool first_line : {true, false}) {
                  PutTypeHead(first_line, on(line, Base(target)));
                  line.End();
                }
                Rule(target);
              },
          .head_lines = kTypeHeadLines,
          .lines = [](int) { return kRowLines; }};
}

void WriteTypeTotals(TextReport& text) {
  const auto place = [&text](double, int column, std::string_view part) {
    text.Tab(column);
    text.Put(part);
  };
  for (const bool first_line : {true, false}) {
    PutTypeHead(first_line, place);
    text.End();
  }
  text.Row(kTypeTotalsRule, '_');
  for (const TypeTotalRow& row : TypeTotalRows()) {
    PutTypeRow(row, place);
    text.End();
  }
}

}  // namespace tallyroll
