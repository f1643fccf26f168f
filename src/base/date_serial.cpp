// SPDX-License-Identifier: GPL-3.0-or-later
// Day serials by the civil calendar, and dates as text.
#include "base/date_serial.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

#include "base/number_text.h"
#include "base/text.h"

namespace tallyroll {
namespace {

using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr sys_days kZeroDay = year{1899} / 12 / 30;
constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;

constexpr double SerialOf(sys_days day) {
  return static_cast<int>((day - kZeroDay).count());
}

constexpr double kFirstSerial = SerialOf(year{kFirstYear} / 1 / 1);
constexpr double kLastSerial = SerialOf(year{kLastYear} / 12 / 31);

constexpr std::array<std::string_view, 12> kMonths = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

std::string TwoDigits(int value) {
  return (value < 10 ? "0" : "") + PlainNumberText(value);
}

// ---- Reading ----

// A number or the name of a month.
struct Part {
  int value = 0;
  std::size_t digits = 0;  // 0 for a name

  bool IsMonthName() const { return digits == 0; }
  bool MustBeYear() const { return value > 31 || digits > 2; }
};

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::string_view Take(std::string_view& rest, bool (*belongs)(char)) {
  const auto end = std::find_if_not(rest.begin(), rest.end(), belongs);
  const std::string_view taken = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
  rest.remove_prefix(taken.size());
  return taken;
}

// 1 to 12 for a month's name or at least its first three letters, else 0.
int MonthOfName(std::string_view name) {
  if (name.size() < 3) return 0;
  const std::string wanted = LowerCase(name);
  for (std::size_t i = 0; i < kMonths.size(); ++i) {
    if (LowerCase(kMonths[i]).starts_with(wanted)) return static_cast<int>(i) + 1;
  }
  return 0;
}

std::optional<Part> TakePart(std::string_view& rest) {
  const std::string_view digits = Take(rest, IsDigit);
  if (digits.empty()) {
    const int month = MonthOfName(Take(rest, IsLetter));
    return month == 0 ? std::nullopt : std::optional(Part{month, 0});
  }
  if (digits.size() > 4) return std::nullopt;
  Part part{0, digits.size()};
  for (const char c : digits) part.value = part.value * 10 + (c - '0');
  return part;
}

// Blanks, with one separator among them.
void SkipSeparator(std::string_view& rest) {
  rest = TrimLeft(rest);
  if (!rest.empty() && std::string_view("/-.,").find(rest.front()) != std::string_view::npos) {
    rest = TrimLeft(rest.substr(1));
  }
}

std::optional<std::array<Part, 3>> PartsOf(std::string_view text) {
  std::array<Part, 3> parts;
  std::string_view rest = Trim(text);
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) SkipSeparator(rest);
    const std::optional<Part> part = TakePart(rest);
    if (!part) return std::nullopt;
    parts[i] = *part;
  }
  if (!rest.empty()) return std::nullopt;
  return parts;
}

int YearOf(const Part& part) {
  if (part.digits > 2) return part.value;
  return part.value + (part.value < 30 ? 2000 : 1900);
}

std::optional<CivilDate> Checked(const Part& year_part, int month, int day) {
  if (year_part.IsMonthName()) return std::nullopt;
  const CivilDate date{YearOf(year_part), month, day};
  return IsValidDate(date) ? std::optional(date) : std::nullopt;
}

// The month is known by its name, and of the two numbers left the second is usually the year.
std::optional<CivilDate> DateWithMonth(int month, const Part& a, const Part& b) {
  if (a.IsMonthName() || b.IsMonthName()) return std::nullopt;
  return a.MustBeYear() ? Checked(a, month, b.value) : Checked(b, month, a.value);
}

std::optional<CivilDate> DateOfParts(const std::array<Part, 3>& parts, DateOrder order) {
  const auto& [a, b, c] = parts;
  if (a.IsMonthName()) return DateWithMonth(a.value, b, c);
  if (b.IsMonthName()) return DateWithMonth(b.value, a, c);
  if (a.MustBeYear() || (order == DateOrder::kYearFirst && !c.MustBeYear())) {
    return Checked(a, b.value, c.value);
  }
  const bool day_first = order == DateOrder::kDayFirst;
  const int month = day_first ? b.value : a.value;
  const int day = day_first ? a.value : b.value;
  // A month above 12 can only be the day of somebody whose order is the other one.
  return month > 12 ? Checked(c, day, month) : Checked(c, month, day);
}

}  // namespace

bool IsValidDate(CivilDate date) {
  if (date.year < kFirstYear || date.year > kLastYear) return false;
  if (date.month < 1 || date.month > 12 || date.day < 1 || date.day > 31) return false;
  return (year{date.year} / date.month / date.day).ok();
}

double DateSerial(CivilDate date) {
  const auto month = year{date.year} / 1 + months{date.month - 1};
  return SerialOf(sys_days(month / 1) + days{date.day - 1});
}

CivilDate DateOfSerial(double serial) {
  const double whole = std::trunc(serial);
  if (!(whole >= kFirstSerial && whole <= kLastSerial)) return CivilDate{};
  const year_month_day date{kZeroDay + days{static_cast<int>(whole)}};
  return {int{date.year()}, static_cast<int>(unsigned{date.month()}),
          static_cast<int>(unsigned{date.day()})};
}

std::string DateText(double serial, DateOrder order) {
  const CivilDate date = DateOfSerial(serial);
  const std::string year_text = PlainNumberText(date.year);
  switch (order) {
    case DateOrder::kDayFirst:
      return TwoDigits(date.day) + "/" + TwoDigits(date.month) + "/" + year_text;
    case DateOrder::kYearFirst:
      return year_text + "/" + TwoDigits(date.month) + "/" + TwoDigits(date.day);
    case DateOrder::kMonthFirst:
      break;
  }
  return PlainNumberText(date.month) + "/" + PlainNumberText(date.day) + "/" + year_text;
}

std::optional<double> DateFromText(std::string_view text, DateOrder order) {
  const auto parts = PartsOf(text);
  if (!parts) return std::nullopt;
  const std::optional<CivilDate> date = DateOfParts(*parts, order);
  return date ? std::optional(DateSerial(*date)) : std::nullopt;
}

std::string_view MonthName(int month) {
  if (month < 1 || month > 12) return {};
  return kMonths[static_cast<std::size_t>(month - 1)];
}

}  // namespace tallyroll
