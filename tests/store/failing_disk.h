// SPDX-License-Identifier: GPL-3.0-or-later
// A disk that refuses: the system calls of this test program fail as told while one of these lives.
#pragma once

#include <cstddef>

namespace tallyroll {

class FailingDisk {
 public:
  FailingDisk();
  ~FailingDisk();
  FailingDisk(const FailingDisk&) = delete;
  FailingDisk& operator=(const FailingDisk&) = delete;

  // The error number of each call; 0 lets it through.
  int flush_error = 0;
  int rename_error = 0;
  int link_error = 0;
  int owner_error = 0;
  int mode_error = 0;
  // How many flushes go well before they begin to fail.
  int good_flushes = 0;
  // How many readings and writings are interrupted by a signal before one is let through.
  int interruptions = 0;
  // How many bytes a reading or a writing moves at most; 0 lets it move all.
  std::size_t most_bytes = 0;
};

}  // namespace tallyroll
