// SPDX-License-Identifier: GPL-3.0-or-later
// The class as it was at each save, kept in its companion file and thinned as time goes by.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "store/change/named_changes.h"

namespace tallyroll {

struct Snapshot {
  std::int64_t number = 0;  // in the order in which they were made
  std::string time;         // of the save, "2026-09-01 10:15:00", local
  std::string told;         // what changed since the one before it; in the class file's code page
};

// One that is to be kept: the bytes of a class file.
struct NewSnapshot {
  std::string time;
  std::string_view bytes;
};

// Keeps those that differ from the one before them, the oldest first, and drops those that have
// become too many by the time of the last. Answers why it could not be done; empty when it was.
std::string KeepSnapshots(const std::string& class_path, const std::vector<NewSnapshot>& made);

struct KeptSnapshots {
  std::vector<Snapshot> snapshots;  // the newest first
  std::string fault;                // why there are none; empty where nothing was kept yet
};
KeptSnapshots SnapshotsOf(const std::string& class_path);

struct SnapshotBytes {
  std::string bytes;  // of the class file
  std::string fault;
};
SnapshotBytes BytesOfSnapshot(const std::string& class_path, std::int64_t number);

// "28 marks, Quiz 5 added": the changes in a few words.
std::string WordsOfChanges(const std::vector<NamedChange>& changes);

// Whether anything is kept that shows marks; and forgets all of it, so that no byte of it stays in
// the file.
bool KeepsMarks(const std::string& class_path);
std::string ForgetMarks(const std::string& class_path);

}  // namespace tallyroll
