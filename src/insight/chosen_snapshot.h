// SPDX-License-Identifier: GPL-3.0-or-later
// A snapshot that is looked at.
#pragma once

#include <cstdint>
#include <string>

#include "companion/class_snapshots.h"
#include "store/records.h"

namespace tallyroll {

// Which one the Snapshots Portal leaves to be opened beside the class: set as it is left, taken by
// the class window. Without a path none is.
struct SnapshotChoice {
  std::string class_path;
  Snapshot snapshot;
  std::int64_t other = 0;  // the one whose marks are compared; 0 is the class as it stands
};
extern SnapshotChoice ChosenSnapshot;

// "Tue 9/1/2026, 10:15:00".
std::string NameOfSnapshot(const Snapshot& snapshot);

// Of the class in work, fit to be looked at. Answers why it cannot be read; empty when it was.
std::string ReadSnapshot(std::int64_t number, Class& out);

}  // namespace tallyroll
