// SPDX-License-Identifier: GPL-3.0-or-later
// The six codes of daily attendance, and what is counted of them.
#pragma once

#include <array>
#include <string_view>

#include "store/records.h"

namespace tallyroll {

// Absent, cut, excused, special absence, note received, late: their order on every screen.
inline constexpr std::string_view kDailyCodes = "ACESNL";
inline constexpr char kNoMark = ' ';

// Place of a code in kDailyCodes, or behind them for any other character: upper case alone is a
// code.
inline constexpr std::array<unsigned char, 256> kPlaceOfMark = [] {
  std::array<unsigned char, 256> places{};
  places.fill(static_cast<unsigned char>(kDailyCodes.size()));
  for (std::size_t k = 0; k < kDailyCodes.size(); ++k)
    places[static_cast<unsigned char>(kDailyCodes[k])] = static_cast<unsigned char>(k);
  return places;
}();

constexpr std::size_t PlaceOfMark(char mark) {
  return kPlaceOfMark[static_cast<unsigned char>(mark)];
}
constexpr bool IsDailyCode(char mark) {
  return PlaceOfMark(mark) < kDailyCodes.size();
}

// How often each code stands. Each mark counts once, under its own code; what is no code is
// counted apart.
struct CodeCounts {
  // In the order of kDailyCodes, and as many places as a machine word or two hold.
  std::array<i16, 8> at{};

  void Count(char mark) { ++at[PlaceOfMark(mark)]; }
  i16 Of(char code) const { return at[PlaceOfMark(code)]; }
  // The one combined figure: whoever is excused or late was not absent.
  int Absences() const { return Of('A') + Of('C') + Of('S') + Of('N'); }
};

// The mark of a day; a student who was added without daily marks has none.
inline char MarkOn(const Student& student, int day) {
  const auto j = static_cast<std::size_t>(day);
  return j < student.DailyMarks.size() ? student.DailyMarks[j].view().front() : kNoMark;
}

// Indexes of AttendanceDays, both included; none when the first is above the last.
struct DayRange {
  int first = 1;
  int last = 0;
};

CodeCounts CountDays(const Student& student, DayRange range);

// The days of the class from one date to another, both included.
DayRange DaysBetween(double first, double last);

}  // namespace tallyroll
