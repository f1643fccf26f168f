// SPDX-License-Identifier: GPL-3.0-or-later
// From the exact average to the final grade of a report card.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "averages/engine/engine.h"
#include "base/short_text.h"

namespace tallyroll {

// By the row of a rounding scale: the standard grade, and the legend printed behind it. The last
// legend is that of an average of 40 or less, which no row is asked for.
inline constexpr std::array<int, 14> FinalValues = {100, 99, 95, 90, 88, 85, 80,
                                                    78,  75, 70, 68, 65, 60, 55};
inline constexpr std::array<std::string_view, 15> FinalLabels = {
    "(A+/EX/4.0)     ", "(A+/EX/4.0)     ", "(A/EX/4.0)      ", "(A-/EX/4.0)     ",
    "(B+/SAT/3.5)    ", "(B/SAT/3.0)     ", "(B-/SAT/3.0)    ", "(C+/SAT/2.5)    ",
    "(C/SAT/2.0)     ", "(C-/SAT/2.0)    ", "(D+/N/1.5)      ", "(D/N/1.0)       ",
    "(D-/N/1.0)      ", "(F/UNSAT/0.0)   ", " (F/UNSAT/ABS)  "};
inline constexpr std::size_t kLowAverageLabel = 14;

// A final grade; its text is put together only where it is shown.
struct FinalGrade {
  ShortText mark;          // what Marks[0] holds
  ShortText number;        // the grade with its sign column
  std::size_t label = 13;  // of FinalLabels

  // " 95 (A/EX/4.0)      ": the number, one blank, the legend with its padding.
  std::string Text() const;
};

// Rounds ExactAverage to two decimals in place, gives the final grade by the rounding scale in
// force, and writes Marks[0] of CurrentStudent. An average beyond 16 bits changes nothing.
AverageError RoundedGrade(FinalGrade& grade, AverageListener* listener = nullptr);

// All that an average gives for one student.
struct StudentAverage {
  Points points;
  TypeTotals totals;
  Currency computed;  // before it is rounded
  Currency exact;     // rounded to two decimals
  FinalGrade grade;
};

// Averages CurrentStudent by the class's method and rounds. An error changes nothing, not even one
// that is met only in rounding.
AverageError AverageStudent(StudentAverage& student, AverageListener* listener = nullptr);

}  // namespace tallyroll
