// SPDX-License-Identifier: GPL-3.0-or-later
// Work in a process of its own, of whose system calls one fails or is the last one.
#pragma once

#include <functional>

namespace tallyroll {

enum class Fate {
  kKilled,  // before the call is made
  kFails,   // with `error`
};

struct Faulted {
  bool supported = false;  // processes can be watched here
  bool met = false;        // there was such a call
  int status = 0;          // what the process ended with; of a killed one nothing
};

// Of the calls that change what is on the disk, in all threads of the work, the `nth` from 1 on
// meets that fate; 0 lets all of them through.
Faulted RunWithFault(const std::function<int()>& work, int nth, Fate fate, int error = 0);

}  // namespace tallyroll
