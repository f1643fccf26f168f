// SPDX-License-Identifier: GPL-3.0-or-later
// Method 1: each type has a weight, and within a type a grade counts by its points. A type without
// a grade leaves its weight to the others.
#include "averages/engine/arithmetic.h"
#include "averages/engine/lowest.h"
#include "averages/engine/mark_sheet.h"

namespace tallyroll {
namespace {

class TypesAverage {
 public:
  TypesAverage(const MarkSheet& sheet, TypeTotals& totals) : sheet_(sheet), totals_(totals) {
    low_.fill(kNoLowest);
    low_value_.fill(kLeftOutIsLowest);
    if (class_.AverageFlag2) FlagEveryType(type_weights_);
  }

  // A grade of no type has no part in the average, whatever its mark.
  void Take(const SheetRow& row) {
    if (row.types.empty()) return;
    if (row.kind == MarkKind::kLeftOut) return TakeLeftOut(row);
    const Currency value = GradeValue(row.mark);
    const Currency percent = PercentOf(value, row.instrument.mvalue);
    const bool candidate = row.kind == MarkKind::kGraded && row.MayBeDropped();
    for (const std::size_t t : row.types) {
      totals_.sums[t] += value;
      ++totals_.counts[t];
      totals_.maxes[t] += row.Max();
      if (!candidate || type_weights_[t] != kMayDrop || percent >= low_[t]) continue;
      low_[t] = percent;
      low_value_[t] = value;
      low_max_[t] = row.Max();
    }
  }

  Currency Average() {
    for (std::size_t t = 1; t <= kGradeTypes; ++t) NoteMissing(t);
    if (class_.AverageFlag2) PickSingleLowestType(low_, type_weights_);
    for (std::size_t t = 1; t <= kGradeTypes; ++t) {
      if (IsDropped(t)) Drop(t);
    }
    for (std::size_t t = 1; t <= kGradeTypes; ++t) Weigh(t);
    if (average_ != Currency() && weight_sum_ != 0) {
      const i16 divisor = class_.AverageFlag3 ? 100 : weight_sum_;
      average_ = PercentOf(average_, Currency::FromWhole(divisor));
    }
    return average_ + extra_;
  }

  const TypeSums& type_weights() const { return type_weights_; }

 private:
  void TakeLeftOut(const SheetRow& row) {
    if (!class_.AverageFlag1 || !row.MayBeDropped()) return;
    for (const std::size_t t : row.types) {
      if (sheet_.IsExtraCreditType(t) || type_weights_[t] != kMayDrop) continue;
      low_[t] = kLeftOutIsLowest;
      low_value_[t] = kLeftOutIsLowest;
    }
  }

  void NoteMissing(std::size_t t) {
    if (totals_.counts[t] == 0) totals_.sums[t] = kNoGrade;
  }

  bool IsDropped(std::size_t t) const {
    return totals_.sums[t] != kNoGrade && type_weights_[t] == kMayDrop && totals_.counts[t] > 0 &&
           low_value_[t] > kLeftOutIsLowest;
  }

  void Drop(std::size_t t) {
    totals_.sums[t] -= low_value_[t];
    --totals_.counts[t];
    totals_.maxes[t] -= low_max_[t];
    NoteMissing(t);
  }

  // Adds a type to the average, or takes its weight out of what the average is divided by. The
  // divisor is a whole number at each step, so a fractional weight is rounded type by type.
  void Weigh(std::size_t t) {
    const Currency weight = class_.TypePercents[t];
    const bool extra_credit = sheet_.IsExtraCreditType(t);
    if (totals_.sums[t] == kNoGrade) {
      if (!extra_credit) weight_sum_ = (Currency::FromWhole(weight_sum_) - weight).ToWhole16();
      return;
    }
    if (totals_.counts[t] <= 0) return;
    const double ratio = Divided(totals_.sums[t].ToDouble(), totals_.maxes[t].ToDouble());
    const Currency value = Currency::FromDouble(weight.ToDouble() * ratio);
    if (extra_credit) {
      extra_ = value;
    } else {
      average_ += value;
    }
  }

  const Class& class_ = Current();
  const MarkSheet& sheet_;
  TypeTotals& totals_;
  TypeSums type_weights_ = class_.TypeWeights;
  TypeSums low_{};
  TypeSums low_value_{};
  TypeSums low_max_{};
  Currency average_;
  Currency extra_;
  i16 weight_sum_ = 100;
};

}  // namespace

AverageError AverageByTypes(TypeTotals& totals) {
  return Computed(totals, [&](int& grade) {
    const MarkSheet sheet;
    TypesAverage types(sheet, totals);
    for (grade = 1; grade <= sheet.Count(); ++grade) types.Take(sheet.Row(grade));
    grade = 0;
    ExactAverage = types.Average();
    if (Current().AverageFlag2) Current().TypeWeights = types.type_weights();
  });
}

}  // namespace tallyroll
