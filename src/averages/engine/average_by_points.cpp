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

StepRule RuleOf(const SheetRow& row) {
  if (row.kind == MarkKind::kLeftOut)
    return row.IsExtraCredit() ? StepRule::kExtraLeftOut : StepRule::kLeftOut;
  if (row.IsExtraCredit()) return StepRule::kExtraMark;
  return row.kind == MarkKind::kZero ? StepRule::kZero : StepRule::kCounted;
}

void TakeByPoints(const SheetRow& row, Points& points, TypeTotals& totals, int grade,
                  AverageListener* listener) {
  const bool left_out = row.kind == MarkKind::kLeftOut;
  const Points before = points;
  if (left_out && !row.IsExtraCredit()) points.possible -= row.Max();
  const Currency value = GradeValue(row.mark);
  points.earned += value;
  if (listener) {
    const bool from_possible = RuleOf(row) == StepRule::kLeftOut;
    listener->Take({.rule = RuleOf(row),
                    .grade = grade,
                    .value = value,
                    .most = row.Max(),
                    .before = from_possible ? before.possible : before.earned,
                    .after = from_possible ? points.possible : points.earned});
  }
  if (left_out) return;
  for (const std::size_t t : row.types) Count(totals, t, value, row.Max());
}

void TakeByPointsAndTypes(const MarkSheet& sheet, const SheetRow& row, Points& points,
                          TypeTotals& totals, int grade, AverageListener* listener) {
  if (row.kind == MarkKind::kLeftOut) {
    if (listener) listener->Take({.rule = RuleOf(row), .grade = grade, .most = row.Max()});
    return;
  }
  bool counted = false;
  for (const std::size_t t : row.types) {
    if (!IsWeighed(t)) continue;
    counted = true;
    if (!sheet.IsExtraCreditType(t)) points.possible += row.Max();
    const Currency sum = totals.sums[t];
    Count(totals, t, GradeValue(row.mark), row.Max());
    if (listener) {
      listener->Take({.rule = RuleOf(row),
                      .grade = grade,
                      .type = t,
                      .value = GradeValue(row.mark),
                      .most = row.Max(),
                      .before = sum,
                      .after = totals.sums[t]});
    }
  }
  if (listener && !counted)
    listener->Take({.rule = StepRule::kNoPart, .grade = grade, .most = row.Max()});
}

// What a type gives at its weight, of what it could give; both are sums over the types.
void TellWeighedType(AverageListener& listener, const TypeTotals& totals, std::size_t t,
                     const Points& products, const Points& sums) {
  const Currency weight = Current().TypePercents[t];
  if (totals.counts[t] == 0) return;
  listener.Take({.rule = StepRule::kTypeWeighed,
                 .type = t,
                 .value = totals.sums[t],
                 .most = totals.maxes[t],
                 .weight = weight,
                 .part = products.earned,
                 .before = sums.earned,
                 .after = sums.earned + products.earned});
  listener.Take({.rule = StepRule::kTypeBase,
                 .type = t,
                 .most = totals.maxes[t],
                 .weight = weight,
                 .part = products.possible,
                 .before = sums.possible,
                 .after = sums.possible + products.possible});
}

void TellShared(AverageListener& listener, const Points& sums, const Points& points,
                const TypeTotals& totals, Currency shared) {
  listener.Take({.rule = StepRule::kShared,
                 .most = points.possible,
                 .weight = sums.possible,
                 .before = sums.earned,
                 .after = shared});
  const Currency extra = totals.sums[kExtraCreditType];
  if (totals.counts[kExtraCreditType] == 0) return;
  listener.Take({.rule = StepRule::kExtraAdded,
                 .type = kExtraCreditType,
                 .part = extra,
                 .before = shared,
                 .after = points.earned});
}

// The points that the student would have if the weights of the types ruled the whole of what was
// possible, and the average of them.
Currency AverageOfWeightedPoints(const MarkSheet& sheet, Points& points, const TypeTotals& totals,
                                 AverageListener* listener) {
  Points sums;  // weighted: what was earned of what was possible
  for (std::size_t t = 1; t <= kGradeTypes; ++t) {
    const Currency weight = Current().TypePercents[t];
    if (weight <= Currency() || sheet.IsExtraCreditType(t)) continue;
    const Points products = {totals.sums[t] * weight, totals.maxes[t] * weight};
    if (listener) TellWeighedType(*listener, totals, t, products, sums);
    sums.earned += products.earned;
    sums.possible += products.possible;
  }
  if (sums.earned == Currency()) {
    points.earned = Currency();
    if (listener) listener->Take({.rule = StepRule::kNothingToWeigh});
    return Currency();
  }
  const Currency shared = Currency::FromDouble(
      Divided((sums.earned * points.possible).ToDouble(), sums.possible.ToDouble()));
  points.earned = shared + totals.sums[kExtraCreditType];
  if (listener) TellShared(*listener, sums, points, totals, shared);
  // Divided first, then multiplied.
  const double part = Divided(points.earned.ToDouble(), points.possible.ToDouble());
  return Currency::FromDouble(part * 100.0);
}

void TellAverageOfPoints(AverageListener& listener, const Points& points, bool divided) {
  if (divided)
    listener.Take({.rule = StepRule::kDivided,
                   .weight = points.possible,
                   .before = points.earned,
                   .after = ExactAverage});
  listener.Take({.rule = StepRule::kAverage, .after = ExactAverage});
}

}  // namespace

AverageError AverageByPoints(Points& points, TypeTotals& totals, AverageListener* listener) {
  points = Points();
  const AverageError error = Computed(totals, [&](int& grade) {
    const MarkSheet sheet(MarkSheet::Blanks::kLeadingKept);
    points.possible = Currency::FromWhole(TotalPossible());
    if (listener) listener->Take({.rule = StepRule::kPossible, .after = points.possible});
    for (grade = 1; grade <= sheet.Count(); ++grade) {
      if (IsInUse(grade))
        TakeByPoints(sheet.Row(grade), points, totals, grade, listener);
      else if (listener)
        listener->Take({.rule = StepRule::kNotUsed, .grade = grade});
    }
    grade = 0;
    const bool nothing_possible = points.possible == Currency();
    ExactAverage = nothing_possible ? Currency() : PercentOf(points.earned, points.possible);
    if (!listener) return;
    if (nothing_possible) listener->Take({.rule = StepRule::kNothingToWeigh});
    TellAverageOfPoints(*listener, points, !nothing_possible);
  });
  if (error) points = Points();
  return error;
}

AverageError AverageByPointsAndTypes(Points& points, TypeTotals& totals,
                                     AverageListener* listener) {
  points = Points();
  const AverageError error = Computed(totals, [&](int& grade) {
    const MarkSheet sheet;
    for (grade = 1; grade <= sheet.Count(); ++grade) {
      if (IsInUse(grade))
        TakeByPointsAndTypes(sheet, sheet.Row(grade), points, totals, grade, listener);
      else if (listener)
        listener->Take({.rule = StepRule::kNotUsed, .grade = grade});
    }
    grade = 0;
    ExactAverage = AverageOfWeightedPoints(sheet, points, totals, listener);
    // Where nothing was earned in a weighed type, nothing was divided.
    if (listener) TellAverageOfPoints(*listener, points, points.earned != Currency());
  });
  if (error) points = Points();
  return error;
}

}  // namespace tallyroll
