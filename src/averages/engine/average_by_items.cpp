// SPDX-License-Identifier: GPL-3.0-or-later
// Method 0: each grade has a weight of its own. A left-out mark takes its weight out of the total,
// so that the others share it; extra credit comes on top and is never divided.
#include "averages/engine/arithmetic.h"
#include "averages/engine/lowest.h"
#include "averages/engine/mark_sheet.h"

namespace tallyroll {
namespace {

class ItemsAverage {
 public:
  ItemsAverage(TypeTotals& totals, AverageListener* listener)
      : totals_(totals), listener_(listener) {
    low_.fill(kNoLowest);
    if (class_.AverageFlag2) FlagEveryType(type_weights_);
  }

  void Take(int grade, const SheetRow& row, Currency weight) {
    Standing mark{grade, row, weight};
    if (row.kind == MarkKind::kLeftOut && !row.IsExtraCredit()) {
      const Currency total = total_;
      total_ -= weight;
      mark.special = true;
      mark.droppable = class_.AverageFlag1 != 0;
      if (listener_) Tell(StepRule::kLeftOut, mark, weight, total, total_);
    } else if (row.kind == MarkKind::kZero) {
      mark.droppable = false;
      if (listener_) Tell(StepRule::kZero, mark, Currency(), points_, points_);
    } else {
      Grade(mark);
    }
    TakeIntoTypes(mark);
  }

  Currency Average() {
    if (class_.AverageFlag2) PickSingleLowestType(low_, type_weights_, listener_);
    for (std::size_t t = 1; t <= kGradeTypes; ++t) {
      if (IsDropped(t)) Drop(t);
    }
    // Without anything left to weigh, extra credit counts for nothing either.
    if (total_ < Currency::FromWhole(1)) {
      if (listener_) listener_->Take({.rule = StepRule::kNothingToWeigh, .before = total_});
      return Currency();
    }
    const Currency share = PercentOf(points_, total_);
    const Currency average = share + extra_;
    if (listener_) TellShare(share, average);
    return average;
  }

  const TypeSums& type_weights() const { return type_weights_; }

 private:
  struct Standing {
    int grade;
    const SheetRow& row;
    Currency weight;
    Currency value{};
    Currency percent{};
    bool droppable = true;
    bool special = false;
  };

  void Grade(Standing& mark) {
    mark.value = GradeValue(mark.row.mark);
    mark.percent = PercentOf(mark.value, mark.row.instrument.mvalue);
    const Currency weighted = Weighted(mark.weight, mark.percent);
    if (mark.row.IsExtraCredit()) {
      mark.special = mark.row.kind == MarkKind::kLeftOut;
      const Currency extra = extra_;
      extra_ += weighted;
      if (!listener_) return;
      Tell(mark.special ? StepRule::kExtraLeftOut : StepRule::kExtraMark, mark, weighted, extra,
           extra_);
    } else {
      const Currency points = points_;
      points_ += weighted;
      if (listener_) Tell(StepRule::kCounted, mark, weighted, points, points_);
    }
  }

  void TakeIntoTypes(const Standing& mark) {
    for (const std::size_t t : mark.row.types) {
      if (!mark.special) {
        ++totals_.counts[t];
        totals_.sums[t] += mark.value;
        totals_.maxes[t] += mark.row.Max();
      }
      // A grade stands as the lowest of one type only.
      const bool candidate = mark.droppable && type_weights_[t] == kMayDrop;
      if (candidate && mark.row.MayBeDropped() && IsLowest(mark, t)) return;
    }
  }

  bool IsLowest(const Standing& mark, std::size_t t) {
    if (class_.AverageFlag1 && mark.special) {
      low_[t] = kLeftOutIsLowest;
      if (listener_) TellLowest(StepRule::kAbsenceLowest, mark, t);
      return true;
    }
    if (mark.percent >= low_[t]) return false;
    low_[t] = mark.percent;
    low_weight_[t] = mark.weight;
    low_value_[t] = mark.value;
    low_max_[t] = mark.row.Max();
    if (listener_) TellLowest(StepRule::kLowest, mark, t);
    return true;
  }

  bool IsDropped(std::size_t t) const {
    return totals_.sums[t] != kNoGrade && type_weights_[t] == kMayDrop && low_[t] >= Currency() &&
           low_[t] < kNoLowest;
  }

  void Drop(std::size_t t) {
    --totals_.counts[t];
    totals_.sums[t] -= low_value_[t];
    totals_.maxes[t] -= low_max_[t];
    const Currency weighted = Weighted(low_weight_[t], low_[t]);
    const Currency points = points_;
    points_ -= weighted;
    total_ -= low_weight_[t];
    if (!listener_) return;
    listener_->Take({.rule = StepRule::kDropped,
                     .type = t,
                     .value = low_value_[t],
                     .most = low_max_[t],
                     .percent = low_[t],
                     .weight = low_weight_[t],
                     .part = weighted,
                     .before = points,
                     .after = points_});
  }

  void Tell(StepRule rule, const Standing& mark, Currency part, Currency before, Currency after) {
    listener_->Take({.rule = rule,
                     .grade = mark.grade,
                     .value = mark.value,
                     .most = mark.row.Max(),
                     .percent = mark.percent,
                     .weight = mark.weight,
                     .part = part,
                     .before = before,
                     .after = after});
  }

  void TellLowest(StepRule rule, const Standing& mark, std::size_t t) {
    listener_->Take({.rule = rule,
                     .grade = mark.grade,
                     .type = t,
                     .value = mark.value,
                     .percent = mark.percent});
  }

  void TellShare(Currency share, Currency average) {
    listener_->Take(
        {.rule = StepRule::kDivided, .weight = total_, .before = points_, .after = share});
    if (extra_ == Currency()) return;
    listener_->Take(
        {.rule = StepRule::kExtraAdded, .part = extra_, .before = share, .after = average});
  }

  const Class& class_ = Current();
  TypeTotals& totals_;
  AverageListener* const listener_;
  TypeSums type_weights_ = class_.TypeWeights;
  Currency points_;
  Currency extra_;
  Currency total_ = Currency::FromWhole(100);
  TypeSums low_{};
  TypeSums low_weight_{};
  TypeSums low_value_{};
  TypeSums low_max_{};
};

}  // namespace

AverageError AverageByItems(TypeTotals& totals, AverageListener* listener) {
  return Computed(totals, [&](int& grade) {
    const MarkSheet sheet;
    ItemsAverage items(totals, listener);
    for (grade = 1; grade <= sheet.Count(); ++grade) {
      items.Take(grade, sheet.Row(grade), ItemOf(Current().Weights, grade));
    }
    grade = 0;
    ExactAverage = items.Average();
    if (listener) listener->Take({.rule = StepRule::kAverage, .after = ExactAverage});
    if (Current().AverageFlag2) Current().TypeWeights = items.type_weights();
  });
}

}  // namespace tallyroll
