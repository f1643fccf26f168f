// SPDX-License-Identifier: GPL-3.0-or-later
// What the start page tells of a class file without opening it.
#pragma once

#include <string>

namespace tallyroll {

struct RecentFacts {
  bool there = false;       // a file is
  bool known = false;       // and it tells what follows
  bool locked = false;      // by a password: it tells nothing more
  std::string description;  // of the class
  int students = 0;
  double saved = 0;      // the day of its last save, as a day serial; 0 is none
  bool unsaved = false;  // work on it was lost, and is offered when it is opened
};

// From the first bytes of the file, whatever its size; never a message.
RecentFacts FactsOfFile(const std::string& path);

// "Mathematics 8, 28 students, 9/18/2026, with work that was not saved"; empty when nothing is
// known.
std::string TextOfFacts(const RecentFacts& facts);

}  // namespace tallyroll
