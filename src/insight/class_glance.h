// SPDX-License-Identifier: GPL-3.0-or-later
// The class at a glance: what the status bar tells of it, and where each student stands in it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/currency.h"
#include "store/records.h"

namespace tallyroll {

struct ClassGlance {
  std::string description;
  int students = 0;
  int grades = 0;
  i16 method = 5;
  // By student, 0 unused; none without a method, without a mark that counts, or after an error.
  std::vector<std::optional<Currency>> averages;
  // Of those that there are, to two decimals, a half up.
  std::optional<Currency> average;
};

// Of the class in work, which is not changed.
ClassGlance LookAtClass();

// A class without a method has averages of no meaning yet.
bool HasMethod(i16 method);
// In the few words that a status bar has room for.
std::string_view WordsOfMethod(i16 method);

// The place of a student among those with an average, the highest first; equal averages share the
// better place. `place` 0 is none.
struct RankInClass {
  int place = 0;
  int of = 0;
};
RankInClass RankOf(const ClassGlance& glance, int student);

}  // namespace tallyroll
