// SPDX-License-Identifier: GPL-3.0-or-later
// Dates as day serials: days since 30 December 1899, as class files hold them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tallyroll {

// The order of the user's short dates, by the first letter of the short date pattern.
enum class DateOrder { kMonthFirst, kDayFirst, kYearFirst };

struct CivilDate {
  int year = 1899;
  int month = 12;  // 1 to 12
  int day = 30;    // 1 to 31

  friend bool operator==(const CivilDate&, const CivilDate&) = default;
};

// Years 100 to 9999.
bool IsValidDate(CivilDate date);
// A month above 12 or a day beyond the month's last counts on: month 13 is the next January.
double DateSerial(CivilDate date);
// The day of a serial; the time of day is dropped. A serial that is no day of a valid year, as a
// damaged file may hold, gives the zero day.
CivilDate DateOfSerial(double serial);

// The text of a date in the user's order: "9/1/2026", "01/09/2026", "2026/09/01" by pattern:
// month first without padding, day first and year first with two digits.
std::string DateText(double serial, DateOrder order);
// Reads "9/1/2026", "9-1-26", "2026-09-01", " 9/ 1/ 2026", with month names in English as well
// ("Sep 1, 2026"); blanks around numbers are skipped. A two-digit year below 30 is 20xx, else 19xx.
// A first number above 31 is the year whatever the order; a last one above 31 is the year even in
// the order that has it first; a month above 12 is the day and the day the month. Nothing when the
// text is no date.
std::optional<double> DateFromText(std::string_view text, DateOrder order);

// "January" to "December" for 1 to 12.
std::string_view MonthName(int month);

}  // namespace tallyroll
