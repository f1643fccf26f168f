// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/thinning.h"

#include <array>
#include <cmath>
#include <cstdint>

#include "base/date_serial.h"

namespace tallyroll {
namespace {

std::int64_t DayNumber(double day) {
  return std::llround(std::floor(day));
}
// Day 2 was a Monday.
std::int64_t WeekNumber(double day) {
  return std::llround(std::floor((std::floor(day) - 2) / 7));
}
std::int64_t YearNumber(double day) {
  return DateOfSerial(day).year;
}
std::int64_t MonthNumber(double day) {
  return YearNumber(day) * 12 + DateOfSerial(day).month;
}

struct Stage {
  std::int64_t (*number)(double day);
  int most;
};
constexpr std::array kStages = {Stage{DayNumber, 12}, Stage{WeekNumber, 10}, Stage{MonthNumber, 9}};

// Goes from the newest to the oldest.
class Thinning {
 public:
  explicit Thinning(double today) : today_(today) {}

  bool Keeps(double day) {
    const bool last_of_year = !any_ || YearNumber(newer_) != YearNumber(day);
    any_ = true;
    newer_ = day;
    if (day >= today_ - 1) return true;
    if (stage_ < kStages.size() && Opens(kStages[stage_], day)) {
      kept_ = day;
      any_kept_ = true;
      if (++count_ == kStages[stage_].most) {
        ++stage_;
        count_ = 0;
      }
      return true;
    }
    return last_of_year;
  }

 private:
  // Whether it is the newest of a day, week or month of which none is kept yet.
  bool Opens(const Stage& stage, double day) const {
    return !any_kept_ || stage.number(kept_) != stage.number(day);
  }

  double today_;
  bool any_ = false, any_kept_ = false;
  double newer_ = 0, kept_ = 0;  // the ones before
  std::size_t stage_ = 0;
  int count_ = 0;
};

}  // namespace

std::vector<std::size_t> SnapshotsToDrop(const std::vector<double>& days, double today) {
  Thinning thinning(std::floor(today));
  std::vector<std::size_t> drop;
  for (std::size_t i = days.size(); i-- > 0;)
    if (!thinning.Keeps(days[i])) drop.insert(drop.begin(), i);
  return drop;
}

}  // namespace tallyroll
