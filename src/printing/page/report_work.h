// SPDX-License-Identifier: GPL-3.0-or-later
// The writing of a report into a file as a long work: its rows are the steps, and a Cancel ends the
// run.
#pragma once

#include <functional>

#include "platform/long_work.h"

namespace tallyroll {

class ReportWork {
 public:
  // So many rows; 0 where nobody knows.
  explicit ReportWork(int rows);
  ~ReportWork();
  ReportWork(const ReportWork&) = delete;
  ReportWork& operator=(const ReportWork&) = delete;

 private:
  LongWork work_;
  std::function<void()> before_;  // who was told of each row before
};

}  // namespace tallyroll
