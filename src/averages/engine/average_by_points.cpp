// SPDX-License-Identifier: GPL-3.0-or-later
// Methods 2 and 3: what was earned of what was possible. No grade is dropped.
#include "averages/engine/arithmetic.h"
#include "averages/engine/mark_sheet.h"

namespace tallyroll {
namespace {

constexpr Currency kInUse = Currency::FromScaled(1'0000);

bool IsInUse(int grade) {
  return ItemOf(Current().InstrumentUse, grade) == kInUse;
}

void Count(TypeTotals& totals, std::size_t t, Currency value, Currency max) {
  ++totals.counts[t];
  totals.maxes[t] += max;
  totals.sums[t] += value;
}

// Only types with a weight count, and extra credit, which needs none.
bool IsWeighed(std::size_t t) {
  return Current().TypePercents[t] > Currency() || t == kExtraCreditType;
}

void TakeByPoints(const SheetRow& row, Points& points, TypeTotals& totals) {
  const bool left_out = row.kind == MarkKind::kLeftOut;
  if (left_out && !row.IsExtraCredit()) points.possible -= row.Max();
  const Currency value = GradeValue(row.mark);
  points.earned += value;
  if (left_out) return;
  for (const std::size_t t : row.types) Count(totals, t, value, row.Max());
}

void TakeByPointsAndTypes(const MarkSheet& sheet, const SheetRow& row, Points& points,
                          TypeTotals& totals) {
  if (row.kind == MarkKind::kLeftOut) return;
  for (const std::size_t t : row.types) {
    if (!IsWeighed(t)) continue;
    if (!sheet.IsExtraCreditType(t)) points.possible += row.Max();
    Count(totals, t, GradeValue(row.mark), row.Max());
  }
}

// The points that the student would have if the weights of the types ruled the whole of what was
// possible, and the average of them.
Currency AverageOfWeightedPoints(const MarkSheet& sheet, Points& points, const TypeTotals& totals) {
  Currency weighted;
  Currency base;
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    const Currency weight = Current().TypePercents[t];
    if (weight <= Currency() || sheet.IsExtraCreditType(t)) continue;
    weighted += totals.sums[t] * weight;
    base += totals.maxes[t] * weight;
  }
  if (weighted == Currency()) {
    points.earned = Currency();
    return Currency();
  }
  const double shared = Divided((weighted * points.possible).ToDouble(), base.ToDouble());
  points.earned = Currency::FromDouble(shared) + totals.sums[kExtraCreditType];
  // Divided first, then multiplied.
  const double part = Divided(points.earned.ToDouble(), points.possible.ToDouble());
  return Currency::FromDouble(part * 100.0);
}

}  // namespace

AverageError AverageByPoints(Points& points, TypeTotals& totals) {
  points = Points();
  const AverageError error = Computed(totals, [&](int& grade) {
    const MarkSheet sheet(MarkSheet::Blanks::kLeadingKept);
    points.possible = Currency::FromWhole(TotalPossible());
    for (grade = 1; grade <= sheet.Count(); ++grade) {
      if (IsInUse(grade)) TakeByPoints(sheet.Row(grade), points, totals);
    }
    grade = 0;
    const bool nothing_possible = points.possible == Currency();
    ExactAverage = nothing_possible ? Currency() : PercentOf(points.earned, points.possible);
  });
  if (error) points = Points();
  return error;
}

AverageError AverageByPointsAndTypes(Points& points, TypeTotals& totals) {
  points = Points();
  const AverageError error = Computed(totals, [&](int& grade) {
    const MarkSheet sheet;
    for (grade = 1; grade <= sheet.Count(); ++grade) {
      if (IsInUse(grade)) TakeByPointsAndTypes(sheet, sheet.Row(grade), points, totals);
    }
    grade = 0;
    ExactAverage = AverageOfWeightedPoints(sheet, points, totals);
  });
  if (error) points = Points();
  return error;
}

}  // namespace tallyroll
