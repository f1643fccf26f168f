// SPDX-License-Identifier: GPL-3.0-or-later
// The page that tells a parent how an average came about: texts in the code page, each number one
// that the engine told. Screen, paper and files show the same page.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "averages/explained/explained_average.h"

namespace tallyroll {

// A row of the table of grades, which stand by their types: the head of a type has a name alone.
struct ExplainedRow {
  int grade = 0;  // Instruments index; 0 for the head of a type
  std::string title;
  std::string mark;
  std::string most;
  std::string percent;  // empty where the method knows none
  std::string weight;
  std::string counts;  // what it gives
  std::string note;    // what is special about it
};

// A row of the table of types, where types have weights.
struct ExplainedType {
  std::string name, grades, earned, most, weight, counts;
};

struct ExplainedPage {
  std::string student;  // name and ID as NameMode asks
  std::vector<ExplainedRow> grades;
  std::vector<ExplainedType> types;
  std::vector<std::string> sum;       // from the tables to the exact average
  std::vector<std::string> rounding;  // from there to the final grade
  std::string average;                // to two decimals
  std::string final_grade;            // "88 (B+/SAT/3.5)"
};

// One that could not be averaged has the reason in `sum` and nothing behind it.
ExplainedPage PageOf(const ExplainedAverage& explained);

// The heads of the columns of grades, by the rows' fields from `title` to `note`.
inline constexpr std::array<std::string_view, 7> kExplainedHeads = {
    "Grade", "Mark", "Of", "Percent", "Weight", "Counts", "Note"};
inline constexpr std::array<std::string_view, 6> kExplainedTypeHeads = {"Type", "Grades", "Earned",
                                                                        "Of",   "Weight", "Counts"};

}  // namespace tallyroll
