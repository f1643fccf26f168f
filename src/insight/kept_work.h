// SPDX-License-Identifier: GPL-3.0-or-later
// What is worked on in a class window and not yet saved, kept in case the program stops.
#pragma once

#include <string>
#include <vector>

#include "store/change/named_changes.h"
#include "store/records.h"

namespace tallyroll {

class KeptWork {
 public:
  // Keeps the class if it has unsaved changes that are not kept yet. Answers what the teacher
  // should know, once: why it cannot be kept.
  std::string Keep(const Class& c);
  // The class is on the disk, or is given up: nothing of it is kept any more, nor beside the file
  // that it was before.
  void Drop(const std::string& class_path, const std::string& other_path = {});

 private:
  std::size_t kept_ = 0;  // of the bytes that were kept last
  bool off_ = false;      // it was told that nothing is kept
};

// What an earlier run left of a class that was opened, newer than its file.
struct FoundWork {
  std::string class_path;
  std::string time;
  std::string bytes;
  std::vector<NamedChange> changes;  // from the file to it
  bool taken = false;                // the teacher chose to keep it
};
// Set by FindWork and by frmrecover.
extern FoundWork WorkFound;

// Looks for it. What is no newer than the file, or no other, is forgotten. False: there is none.
bool FindWork(const Class& c);

}  // namespace tallyroll
