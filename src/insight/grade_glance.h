// SPDX-License-Identifier: GPL-3.0-or-later
// A grade at a glance: what stands beside the class while the current cell is in its column. Each
// figure is the one that the statistics show.
#pragma once

#include <array>
#include <string>

namespace tallyroll {

// How many marks lie in ten percents of the maximum: 0 to 9, 10 to 19 and so on, the last one
// without an end.
inline constexpr std::size_t kTens = 10;
struct MarksInTen {
  int count = 0;
  int failing = 0;  // of them

  friend bool operator==(const MarksInTen&, const MarksInTen&) = default;
};

struct GradeGlance {
  int grade = 0;  // 0: there is none, and nothing else counts
  std::string title, code, date;
  int maximum = 0;
  std::string mark;      // of the student; empty without one
  bool failing = false;  // that mark
  std::string to_pass;
  std::string average;  // of the class; empty where nobody has a mark
  std::string median;
  std::array<MarksInTen, kTens> tens{};
  int own = -1;  // the ten that the student's mark is in; -1 without a mark
  int counted = 0;
  int missing = 0;
  int failed = 0;
};

// Of the class in work, which is not changed. Without a student, 0, there is no mark.
GradeGlance LookAtGrade(int grade, int student);

}  // namespace tallyroll
