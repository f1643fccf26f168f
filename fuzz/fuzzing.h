// SPDX-License-Identifier: GPL-3.0-or-later
// What the fuzzers share.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "store/class_format.h"
#include "store/mend_class.h"

namespace tallyroll {

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Ends the fuzzer with a crash that it keeps.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

// What a class can be written as is read back to the same bytes.
inline void RequireRoundTrip(Class& c) {
  c.Magic = "ty8";
  std::string first, second;
  if (SerializeClass(c, first) != 0) return;  // a text of an older file may be too long
  Class again;
  Require(ParseClass(first, again).error == 0);
  Require(SerializeClass(again, second) == 0);
  Require(first == second);
}

// Opening makes every list reach as far as its count.
inline void RequireMended(Class& c, std::size_t file_size) {
  MendClass(c, file_size);
  Require(UpperBound(c.Students) == c.NumStudents);
  Require(UpperBound(c.ChartRows) >= c.NumCharts && UpperBound(c.ChartColumns) >= c.NumCharts);
  for (int i = 1; i <= c.NumStudents; ++i) {
    const Student& s = c.Students[static_cast<std::size_t>(i)];
    Require(UpperBound(s.Marks) >= c.NumInstruments);
    Require(UpperBound(s.SummaryDetail) >= c.NumSummaries);
    Require(UpperBound(s.SeatRow) >= c.NumCharts);
    Require(s.DailyMarks.empty() || UpperBound(s.DailyMarks) >= c.NumDays);
  }
}

}  // namespace tallyroll
