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
  explicit ItemsAverage(TypeTotals& totals) : totals_(totals) {
    low_.fill(kNoLowest);
    if (class_.AverageFlag2) FlagEveryType(type_weights_);
  }

  void Take(const SheetRow& row, Currency weight) {
    Standing mark{row, weight};
    if (row.kind == MarkKind::kLeftOut && !row.IsExtraCredit()) {
      total_ -= weight;
      mark.special = true;
      mark.droppable = class_.AverageFlag1 != 0;
    } else if (row.kind == MarkKind::kZero) {
      mark.droppable = false;
    } else {
      Grade(mark);
    }
    TakeIntoTypes(mark);
  }

  Currency Average() {
    if (class_.AverageFlag2) PickSingleLowestType(low_, type_weights_);
    for (std::size_t t = 1; t <= kGradeTypes; ++t) {
      if (IsDropped(t)) Drop(t);
    }
    // Without anything left to weigh, extra credit counts for nothing either.
    if (total_ < Currency::FromWhole(1)) return Currency();
    return PercentOf(points_, total_) + extra_;
  }

  const TypeSums& type_weights() const { return type_weights_; }

 private:
  struct Standing {
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
      extra_ += weighted;
    } else {
      points_ += weighted;
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
      return true;
    }
    if (mark.percent >= low_[t]) return false;
    low_[t] = mark.percent;
    low_weight_[t] = mark.weight;
    low_value_[t] = mark.value;
    low_max_[t] = mark.row.Max();
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
    points_ -= Weighted(low_weight_[t], low_[t]);
    total_ -= low_weight_[t];
  }

  const Class& class_ = Current();
  TypeTotals& totals_;
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

AverageError AverageByItems(TypeTotals& totals) {
  return Computed(totals, [&](int& grade) {
    const MarkSheet sheet;
    ItemsAverage items(totals);
    for (grade = 1; grade <= sheet.Count(); ++grade) {
      items.Take(sheet.Row(grade), ItemOf(Current().Weights, grade));
    }
    grade = 0;
    ExactAverage = items.Average();
    if (Current().AverageFlag2) Current().TypeWeights = items.type_weights();
  });
}

}  // namespace tallyroll
