// SPDX-License-Identifier: GPL-3.0-or-later
// Which record of a class is which of another state of it.
#pragma once

#include <cstddef>
#include <vector>

#include "store/records.h"

namespace tallyroll {

inline constexpr std::size_t kNowhere = 0;

// By the place after: the place before, or kNowhere for a record that is new.
struct SameRecords {
  std::vector<std::size_t> students, grades;
};

// Students are the same by ID, or by name where an ID is missing or stands twice; grades by title
// and code, or else by their place.
SameRecords MatchRecords(const Class& before, const Class& after);

}  // namespace tallyroll
