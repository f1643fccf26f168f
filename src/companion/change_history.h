// SPDX-License-Identifier: GPL-3.0-or-later
// What changed in a class from save to save, kept in its companion file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/change/named_changes.h"

namespace tallyroll {

struct KeptChange {
  std::int64_t number = 0;  // in the order in which they were kept
  std::string time;         // of the save, "2026-09-01 10:15:00", local
  NamedChange change;
};

// Keeps the changes of one save. Answers why it could not be done; empty when it was.
std::string KeepChanges(const std::string& class_path, const std::string& time,
                        const std::vector<NamedChange>& changes);

// Which of them are wanted; what is empty asks for nothing. In the class file's code page.
struct ChangeFilter {
  std::string student;  // ID
  std::string name;     // as PlainName writes it
  std::string grade;    // title or code
  std::string since;    // a time or its beginning, such as "2026-09-01"
};
struct KeptChanges {
  std::vector<KeptChange> changes;  // the newest first
  std::string fault;                // why there are none; empty where nothing was kept yet
};
KeptChanges ChangesKept(const std::string& class_path, const ChangeFilter& filter);

// Whether a class with a password lets its companion show marks: the teacher agrees once.
bool HistoryAgreed(const std::string& class_path);
std::string AgreeToHistory(const std::string& class_path, bool agreed);

}  // namespace tallyroll
