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
  TypesAverage(const MarkSheet& sheet, TypeTotals& totals, AverageListener* listener)
      : sheet_(sheet), totals_(totals), listener_(listener) {
    low_.fill(kNoLowest);
    low_value_.fill(kLeftOutIsLowest);
    if (class_.AverageFlag2) FlagEveryType(type_weights_);
  }

  // A grade of no type has no part in the average, whatever its mark.
  void Take(int grade, const SheetRow& row) {
    if (row.types.empty()) {
      if (listener_)
        listener_->Take({.rule = StepRule::kNoPart, .grade = grade, .most = row.Max()});
      return;
    }
    if (row.kind == MarkKind::kLeftOut) return TakeLeftOut(grade, row);
    const Currency value = GradeValue(row.mark);
    const Currency percent = PercentOf(value, row.instrument.mvalue);
    const bool candidate = row.kind == MarkKind::kGraded && row.MayBeDropped();
    for (const std::size_t t : row.types) {
      totals_.sums[t] += value;
      ++totals_.counts[t];
      totals_.maxes[t] += row.Max();
      if (listener_) TellMark(grade, row, t, value, percent);
      if (!candidate || type_weights_[t] != kMayDrop || percent >= low_[t]) continue;
      low_[t] = percent;
      low_value_[t] = value;
      low_max_[t] = row.Max();
      if (listener_)
        listener_->Take({.rule = StepRule::kLowest,
                         .grade = grade,
                         .type = t,
                         .value = value,
                         .percent = percent});
    }
  }

  Currency Average() {
    for (std::size_t t = 1; t <= kGradeTypes; ++t) NoteMissing(t);
    if (class_.AverageFlag2) PickSingleLowestType(low_, type_weights_, listener_);
    for (std::size_t t = 1; t <= kGradeTypes; ++t) {
      if (IsDropped(t)) Drop(t);
    }
    for (std::size_t t = 1; t <= kGradeTypes; ++t) Weigh(t);
    if (average_ != Currency() && weight_sum_ != 0) {
      const i16 divisor = class_.AverageFlag3 ? 100 : weight_sum_;
      const Currency sum = average_;
      average_ = PercentOf(average_, Currency::FromWhole(divisor));
      if (listener_) TellShare(sum, divisor);
    }
    if (listener_ && extra_ != Currency()) TellExtra();
    return average_ + extra_;
  }

  const TypeSums& type_weights() const { return type_weights_; }

 private:
  void TakeLeftOut(int grade, const SheetRow& row) {
    if (listener_)
      listener_->Take({.rule = row.IsExtraCredit() ? StepRule::kExtraLeftOut : StepRule::kLeftOut,
                       .grade = grade,
                       .most = row.Max()});
    if (!class_.AverageFlag1 || !row.MayBeDropped()) return;
    for (const std::size_t t : row.types) {
      if (sheet_.IsExtraCreditType(t) || type_weights_[t] != kMayDrop) continue;
      low_[t] = kLeftOutIsLowest;
      low_value_[t] = kLeftOutIsLowest;
      if (listener_) listener_->Take({.rule = StepRule::kAbsenceLowest, .grade = grade, .type = t});
    }
  }

  void TellMark(int grade, const SheetRow& row, std::size_t t, Currency value, Currency percent) {
    const bool zero = row.kind == MarkKind::kZero;
    listener_->Take({.rule = sheet_.IsExtraCreditType(t) ? StepRule::kExtraMark
                             : zero                      ? StepRule::kZero
                                                         : StepRule::kCounted,
                     .grade = grade,
                     .type = t,
                     .value = value,
                     .most = row.Max(),
                     .percent = percent,
                     .before = totals_.sums[t] - value,
                     .after = totals_.sums[t]});
  }

  void TellShare(Currency sum, i16 divisor) {
    if (divisor != weight_sum_)
      listener_->Take({.rule = StepRule::kDivisorKept,
                       .before = Currency::FromWhole(weight_sum_),
                       .after = Currency::FromWhole(divisor)});
    listener_->Take({.rule = StepRule::kDivided,
                     .weight = Currency::FromWhole(divisor),
                     .before = sum,
                     .after = average_});
  }

  void TellExtra() {
    listener_->Take({.rule = StepRule::kExtraAdded,
                     .type = kExtraCreditType,
                     .part = extra_,
                     .before = average_,
                     .after = average_ + extra_});
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
    if (listener_)
      listener_->Take({.rule = StepRule::kDropped,
                       .type = t,
                       .value = low_value_[t],
                       .most = low_max_[t],
                       .percent = low_[t],
                       .part = low_value_[t],
                       .before = totals_.sums[t] + low_value_[t],
                       .after = totals_.sums[t]});
    NoteMissing(t);
  }

  // Adds a type to the average, or takes its weight out of what the average is divided by. The
  // divisor is a whole number at each step, so a fractional weight is rounded type by type.
  void Weigh(std::size_t t) {
    const Currency weight = class_.TypePercents[t];
    const bool extra_credit = sheet_.IsExtraCreditType(t);
    if (totals_.sums[t] == kNoGrade) {
      const Currency before = Currency::FromWhole(weight_sum_);
      if (!extra_credit) weight_sum_ = (before - weight).ToWhole16();
      if (listener_ && !extra_credit && weight != Currency())
        listener_->Take({.rule = StepRule::kTypeEmpty,
                         .type = t,
                         .weight = weight,
                         .before = before,
                         .after = Currency::FromWhole(weight_sum_)});
      return;
    }
    if (totals_.counts[t] <= 0) return;
    const double ratio = Divided(totals_.sums[t].ToDouble(), totals_.maxes[t].ToDouble());
    const Currency value = Currency::FromDouble(weight.ToDouble() * ratio);
    const Currency before = extra_credit ? extra_ : average_;
    if (extra_credit) {
      extra_ = value;
    } else {
      average_ += value;
    }
    if (listener_)
      listener_->Take({.rule = extra_credit ? StepRule::kTypeExtra : StepRule::kTypeWeighed,
                       .type = t,
                       .value = totals_.sums[t],
                       .most = totals_.maxes[t],
                       .weight = weight,
                       .part = value,
                       .before = before,
                       .after = extra_credit ? extra_ : average_});
  }

  const Class& class_ = Current();
  const MarkSheet& sheet_;
  TypeTotals& totals_;
  AverageListener* const listener_;
  TypeSums type_weights_ = class_.TypeWeights;
  TypeSums low_{};
  TypeSums low_value_{};
  TypeSums low_max_{};
  Currency average_;
  Currency extra_;
  i16 weight_sum_ = 100;
};

}  // namespace

AverageError AverageByTypes(TypeTotals& totals, AverageListener* listener) {
  return Computed(totals, [&](int& grade) {
    const MarkSheet sheet;
    TypesAverage types(sheet, totals, listener);
    for (grade = 1; grade <= sheet.Count(); ++grade) types.Take(grade, sheet.Row(grade));
    grade = 0;
    ExactAverage = types.Average();
    if (listener) listener->Take({.rule = StepRule::kAverage, .after = ExactAverage});
    if (Current().AverageFlag2) Current().TypeWeights = types.type_weights();
  });
}

}  // namespace tallyroll
