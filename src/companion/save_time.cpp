// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/save_time.h"

#include <cmath>
#include <ctime>

#include "base/date_serial.h"
#include "base/number_text.h"

namespace tallyroll {
namespace {

std::string TwoDigits(int number) {
  return (number < 10 ? "0" : "") + PlainNumberText(number);
}

std::string TimeOf(CivilDate date, int hour, int minute, int second) {
  return PlainNumberText(date.year) + "-" + TwoDigits(date.month) + "-" + TwoDigits(date.day) +
         " " + TwoDigits(hour) + ":" + TwoDigits(minute) + ":" + TwoDigits(second);
}

}  // namespace

std::string SaveTimeText(double serial) {
  constexpr int kSecondsOfDay = 86400;
  auto second = static_cast<std::int64_t>(std::llround(serial * kSecondsOfDay));
  const std::int64_t day = second / kSecondsOfDay;
  second %= kSecondsOfDay;
  const int of_day = static_cast<int>(second);
  return TimeOf(DateOfSerial(static_cast<double>(day)), of_day / 3600, of_day / 60 % 60,
                of_day % 60);
}

std::string FileTimeText(std::int64_t modified) {
  constexpr std::int64_t kNanosecondsOfSecond = 1000000000;
  const std::time_t seconds = modified / kNanosecondsOfSecond;
  std::tm local{};
  if (!localtime_r(&seconds, &local)) return SaveTimeText(0);
  return TimeOf({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday}, local.tm_hour,
                local.tm_min, local.tm_sec);
}

double DayOfSaveTime(std::string_view time) {
  return DateFromText(time.substr(0, time.find(' ')), DateOrder::kYearFirst).value_or(0);
}

}  // namespace tallyroll
