// SPDX-License-Identifier: GPL-3.0-or-later
// A student at a glance: what stands beside the class while the current cell is in his row. Each
// figure is the one that the reports print.
#pragma once

#include <string>
#include <vector>

#include "store/records.h"

namespace tallyroll {

// A grade on the line of percents. Extra credit and grades that are left out are not on it.
struct GlancePoint {
  int grade = 0;
  int percent = 0;
  int passing = 0;  // the percent that passes
  bool missing = false;
  bool failing = false;

  friend bool operator==(const GlancePoint&, const GlancePoint&) = default;
};

struct MissingMark {
  int grade = 0;
  std::string mark;
  std::string title;

  friend bool operator==(const MissingMark&, const MissingMark&) = default;
};

struct StudentGlance {
  int student = 0;  // 0: there is none, and nothing else counts
  std::string name;
  std::string initials;
  std::string id;
  bool has_method = false;
  std::string error;        // why there is no average
  std::string average;      // "84.59"
  std::string final_grade;  // "85 B"
  std::string final_words;  // "85 (B/SAT/3.0)", as the reports have it
  bool failing = false;     // the final grade
  std::vector<GlancePoint> line;
  std::vector<MissingMark> missing;
  bool has_attendance = false;
  int absent = 0;
  int late = 0;
};

// Of the class in work, which is not changed.
StudentGlance LookAtStudent(int student);

}  // namespace tallyroll
