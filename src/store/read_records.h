// SPDX-License-Identifier: GPL-3.0-or-later
// Reading the top-level lists of a class, one record after the other.
#pragma once

#include <algorithm>

#include "store/record_bytes.h"

namespace tallyroll {

// Reads `count` records by `read_one`, none of which takes fewer than `least_bytes`. `count` is
// lowered to 0 and goes up with each record read whole, so that it is right whenever a fault ends
// the reading; FitCounts then drops the record that was cut.
template <typename Record, typename ReadOne>
void ReadRecords(FieldReader& in, List<Record>& list, i16& count, std::size_t least_bytes,
                 ReadOne&& read_one) {
  const i16 told = count;
  count = 0;
  list.clear();
  if (told <= 0) return;
  list.reserve(1 + std::min(static_cast<std::size_t>(told), in.remaining() / least_bytes));
  list.emplace_back();
  while (count < told) {
    list.emplace_back();
    read_one(list.back());
    ++count;
  }
}

// Empties the four top-level lists, so that what they hold afterwards was read.
void ClearRecords(Class& c);

// 57 when one of the five counts of a header is negative, otherwise 0.
int FaultOfCounts(const Class& c);

// After a reading, whole or not: no count goes beyond its list, and no list beyond its count. A
// student who was cut behind the lastname counts. NumCharts is held against the charts' sizes.
void FitCounts(Class& c);

}  // namespace tallyroll
